// Ask for which customers and days the receivables are listed document by document.
#pragma once

#include "module/receivables/party_range_filter.h"

namespace module {

class TF6632F : public PartyRangeFilter {
public:
    explicit TF6632F(TForm* parent);
    const char* ClassName() const override { return "TF6632F"; }
};

} // namespace module
