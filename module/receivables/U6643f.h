// Ask for which suppliers and days the payables are summed up.
#pragma once

#include "module/receivables/party_range_filter.h"

namespace module {

class TF6643F : public PartyRangeFilter {
public:
    explicit TF6643F(TForm* parent);
    const char* ClassName() const override { return "TF6643F"; }
};

} // namespace module
