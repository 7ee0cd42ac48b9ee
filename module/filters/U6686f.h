// Ask for the periods, the accounts and the account level of the general ledger.
#pragma once

#include "module/filters/account_range_filter.h"

namespace module {

class TF6686F : public AccountRangeFilter {
public:
    // What the user sees beside periods and accounts.
    TNumberEdit PZZ_H{this, "PZZ_H", "科目级别:"}; // deepest account level, kept for next time

    explicit TF6686F(TForm* parent);
    const char* ClassName() const override { return "TF6686F"; }
    void InitForm() override;

protected:
    std::string statement(LedgerCall call) const override;
    std::string more_description() const override;
};

} // namespace module
