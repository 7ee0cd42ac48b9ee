// Ask which receipts in any currency to list: customer, number, dates.
#pragma once

#include "module/settlement/settlement_filter.h"

namespace module {

class TF6630F : public SettlementFilter {
public:
    explicit TF6630F(TForm* parent);
    const char* ClassName() const override { return "TF6630F"; }
};

} // namespace module
