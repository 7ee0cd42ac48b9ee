// What the dialogs of the two ledgers share: from which account to which.
#pragma once

#include <memory>

#include "module/filters/ledger_filter.h"

namespace module {

class TFLINK_6801;

class AccountRangeFilter : public LedgerFilter {
public:
    // What the user sees beside the periods. Any text may stand here: a code that no account has
    // still begins or ends a range.
    TLinkEdit KM1{this, "KM1", "科目代码:"}; // first account
    TLinkEdit KM2{this, "KM2", "至:"};       // last account
    ~AccountRangeFilter() override;

protected:
    // `beyond_all` stands behind every code, so that the last account need not be typed.
    AccountRangeFilter(TForm* parent, const LedgerDialog& dialog, const std::string& beyond_all);
    LedgerCall with_accounts(LedgerCall call) const;
    std::string accounts_description() const; // "1001 至 1009"
    std::vector<LayoutNode> period_and_account_rows();

private:
    void choose_account(TLinkEdit& edit);
    std::unique_ptr<TFLINK_6801> FLINK_6801;
};

} // namespace module
