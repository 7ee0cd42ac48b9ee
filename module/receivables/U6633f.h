// Ask for which customers and days the receivables are summed up.
#pragma once

#include "module/receivables/party_range_filter.h"

namespace module {

class TF6633F : public PartyRangeFilter {
public:
    explicit TF6633F(TForm* parent);
    const char* ClassName() const override { return "TF6633F"; }
};

} // namespace module
