// A receipt or payment on one money account, with discount and returns; two sides, one form.
#pragma once

#include "module/settlement/settlement_form.h"
#include "module/settlement/settlement_statements.h"

namespace module {

class SingleAccountForm : public SettlementForm {
public:
    // What the user sees beside the head of every receipt and payment.
    MoneyEdit MONEY;                     // money that moved
    MoneyEdit YH{this, "YH", "优惠金额"}; // discount
    TLabel Credited{this, "Credited"};   // both together

    // What the user does.
    void MONEYChange(); // money or discount: spread over the open items

protected:
    SingleAccountForm(TForm* parent, const SettlementKind& kind);

    // Steps of every receipt and payment that differ here.
    std::string open_items_query(const std::string& party) const override;
    std::string head_query(const std::string& number) const override;
    std::string lines_query_of(const std::string& number) const override;
    void begin_amounts() override;
    void show_amounts() override;
    Amount money_to_spread() const override { return MONEY.value() + YH.value(); }
    Amount money_moved() const override { return MONEY.value(); }
    void check_amounts() override;
    std::string batch_to_save() override;
    void prepare_advance() override;

private:
    // This form's own rules.
    void build_columns();
    void build_layout();
    SettlementHead head_to_save() const;
};

} // namespace module
