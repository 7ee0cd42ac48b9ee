// The income statement: look at it, recalculate it, change its formulas.
#pragma once

#include "module/statements/statement_form.h"

namespace module {

extern const StatementKind income_statement;

class TF6673 : public StatementForm {
public:
    explicit TF6673(TForm* parent) : StatementForm(parent, income_statement) {}
    const char* ClassName() const override { return "TF6673"; }
};

extern TF6673* F6673;

} // namespace module
