// Ask which vouchers to add up by account: dates, numbers, word, posted or not.
#pragma once

#include <optional>

#include "module/filters/voucher_range_filter.h"
#include "module/ledgers/ledger_call.h"

namespace module {

class TF6684F : public VoucherRangeFilter {
public:
    explicit TF6684F(TForm* parent);
    const char* ClassName() const override { return "TF6684F"; }

    // What the user does.
    void btn_okClick() override;
    // The account's detailed ledger of the months last asked for. A ledger lies in one year: of a
    // range over several the last one is shown.
    LedgerCall MonthsOf(const std::string& account) const;

protected:
    VoucherWords read_words() override;

private:
    // This form's own rules.
    void count_vouchers(const std::string& condition);
    Date first_, last_;        // of the last OK
    bool posted_only_ = false;
    std::string vouchers_, attachments_;
};

} // namespace module
