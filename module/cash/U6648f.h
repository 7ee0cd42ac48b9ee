// Ask which bank deposits and withdrawals to list: number or summary, dates, the two accounts.
#pragma once

#include "module/filters/date_range_filter.h"

namespace module {

class TF6648F : public DateRangeFilter {
public:
    // What the user sees beside the dates, from top to bottom.
    TEdit NOID{this, "NOID", "单号 / 摘要"};         // looked for in number and summary
    TCheckBox CK1{this, "CK1", "精确"};              // the whole text, not a part of it
    TLinkEdit JY_ID_SK{this, "JY_ID_SK", "收款帐户"}; // account that receives
    TLinkEdit JY_ID_FK{this, "JY_ID_FK", "付款帐户"}; // account that pays

    // What the user does.
    explicit TF6648F(TForm* parent);
    const char* ClassName() const override { return "TF6648F"; }
    void InitForm() override;
    void btn_okClick() override;

private:
    // This form's own rules.
    std::string searched() const;
    std::string account(const char* column, const TLinkEdit& edit);
    std::string described() const;
};

} // namespace module
