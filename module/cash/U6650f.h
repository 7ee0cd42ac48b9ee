// Ask for the days and the account of the cash and bank ledger.
#pragma once

#include "module/cash/money_filter.h"

namespace module {

class TF6650F : public MoneyFilter {
public:
    explicit TF6650F(TForm* parent);
    const char* ClassName() const override { return "TF6650F"; }
};

} // namespace module
