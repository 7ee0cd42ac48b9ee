// Ask which vouchers to list: dates, numbers, word, posted or not, audited or not.
#pragma once

#include "module/filters/voucher_range_filter.h"

namespace module {

class TF6661F : public VoucherRangeFilter {
public:
    // What the user sees beside the range.
    TRadioButton S1{this, "S1", "全部"};
    TRadioButton S2{this, "S2", "已审核"}; // audited
    TRadioButton S3{this, "S3", "未审核"};

    // What the user does.
    explicit TF6661F(TForm* parent);
    const char* ClassName() const override { return "TF6661F"; }
    void InitForm() override;
    void btn_okClick() override;

private:
    // This form's own rules.
    std::string audit_state() const;
};

} // namespace module
