// Ask for which suppliers and days the payables are listed document by document.
#pragma once

#include "module/receivables/party_range_filter.h"

namespace module {

class TF6642F : public PartyRangeFilter {
public:
    explicit TF6642F(TForm* parent);
    const char* ClassName() const override { return "TF6642F"; }
};

} // namespace module
