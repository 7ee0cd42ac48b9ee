// The cash flow statement: look at it, recalculate it, change its formulas.
#pragma once

#include "module/statements/statement_form.h"

namespace module {

extern const StatementKind cash_flow_statement;

class TF6672 : public StatementForm {
public:
    explicit TF6672(TForm* parent) : StatementForm(parent, cash_flow_statement) {}
    const char* ClassName() const override { return "TF6672"; }
};

extern TF6672* F6672;

} // namespace module
