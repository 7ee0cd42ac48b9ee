// Ask for the days and the account of the cash and bank daybook.
#pragma once

#include "module/cash/money_filter.h"

namespace module {

class TF6652F : public MoneyFilter {
public:
    explicit TF6652F(TForm* parent);
    const char* ClassName() const override { return "TF6652F"; }
};

} // namespace module
