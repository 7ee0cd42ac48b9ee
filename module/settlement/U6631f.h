// Ask which receipts to list: customer, number or slip, dates.
#pragma once

#include "module/settlement/settlement_filter.h"

namespace module {

class TF6631F : public SettlementFilter {
public:
    explicit TF6631F(TForm* parent);
    const char* ClassName() const override { return "TF6631F"; }
};

} // namespace module
