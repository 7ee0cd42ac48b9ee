// The balance sheet: look at it, recalculate it, change its formulas.
#pragma once

#include "module/statements/statement_form.h"

namespace module {

extern const StatementKind balance_sheet;

class TF6671 : public StatementForm {
public:
    explicit TF6671(TForm* parent) : StatementForm(parent, balance_sheet) {}
    const char* ClassName() const override { return "TF6671"; }
};

extern TF6671* F6671;

} // namespace module
