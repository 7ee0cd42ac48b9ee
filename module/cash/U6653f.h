// Ask for the days, the account and the kinds of documents of the income and expense detail.
#pragma once

#include <array>

#include "module/cash/money_filter.h"

namespace module {

class TF6653F : public MoneyFilter {
public:
    // What the user sees beside days and account: documents that are listed, at least one of them.
    TCheckBox CK1{this, "CK1", "收款单"};   // receipts, advances and their refunds
    TCheckBox CK2{this, "CK2", "收款结算"};
    TCheckBox CK3{this, "CK3", "付款单"};
    TCheckBox CK4{this, "CK4", "费用结算"};
    TCheckBox CK5{this, "CK5", "银行存取款单"};
    TCheckBox CK6{this, "CK6", "销售退回"};
    TCheckBox CK7{this, "CK7", "采购退回"};

    // What the user does.
    explicit TF6653F(TForm* parent);
    const char* ClassName() const override { return "TF6653F"; }
    void InitForm() override;

protected:
    void check_choice() override;
    std::string condition() override;
    std::string description() const override;

private:
    // This form's own rules.
    std::array<TCheckBox*, 7> boxes() { return {&CK1, &CK2, &CK3, &CK4, &CK5, &CK6, &CK7}; }
    std::string kinds_asked();
    std::string documents_text() const;
};

} // namespace module
