// Ask which payments to list: supplier, number or slip, dates.
#pragma once

#include "module/settlement/settlement_filter.h"

namespace module {

class TF6641F : public SettlementFilter {
public:
    explicit TF6641F(TForm* parent);
    const char* ClassName() const override { return "TF6641F"; }
};

} // namespace module
