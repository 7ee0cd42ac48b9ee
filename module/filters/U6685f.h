// Ask for the periods and the accounts of the detailed ledger.
#pragma once

#include "module/filters/account_range_filter.h"

namespace module {

class TF6685F : public AccountRangeFilter {
public:
    explicit TF6685F(TForm* parent);
    const char* ClassName() const override { return "TF6685F"; }

protected:
    std::string statement(LedgerCall call) const override;
    std::string more_description() const override;
};

} // namespace module
