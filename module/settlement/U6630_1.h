// Enter, change or look at one receipt in any currency, split over money accounts.
#pragma once

#include <memory>

#include "module/settlement/currency_statements.h"
#include "module/settlement/settlement_form.h"

namespace module {

class TQX_LINK_HB;

class TF6630_1 : public SettlementForm {
public:
    // What the user sees beside the head of every receipt.
    TLinkEdit HB_ID{this, "HB_ID", "收款货币"};           // currency
    CodeName HB_NAME{this, "HB_NAME", HB_ID};             // its name
    MoneyEdit HL{this, "HL", "汇    率", 4};              // rate to the base currency
    MoneyEdit WBMONEY{this, "WBMONEY", "外币金额"};       // money in the currency
    MoneyEdit MONEY{this, "MONEY", "收款金额"};           // the same in base currency; hidden
    MoneyEdit yh{this, "yh", "优惠金额"};                 // discount; hidden, always none
    MoneyEdit MONEY_RS{this, "MONEY_RS", "溢收金额", 4};  // over-receipt; hidden
    TComboBox CB2{this, "CB2", "单据货币显示(仅制单时生效):"}; // items of this currency only
    TClientDataSet cd_jy;                                 // a row a money account
    TDBGridEh Accounts{this, "cd_jy", &cd_jy};
    TLabel AccountHint{this, "AccountHint"};              // the head carries it all
    TLabel OverReceipts{this, "OverReceipts"};            // of all income categories

    // What the user does.
    explicit TF6630_1(TForm* parent);
    ~TF6630_1() override;
    const char* ClassName() const override { return "TF6630_1"; }
    void HB_IDExit();        // currency left: its usual rate is taken
    void HB_IDButtonClick(); // picks the currency
    void CB2CloseUp();       // items of another currency are put aside
    void MONEYChange();      // money: what it is in the currency; spread
    void WBMONEYChange();    // money in the currency: what it is worth; spread
    void HLChange();         // rate: whichever amount was not typed follows
    void cd_jyAfterPost();   // money on an account: all of them together
    void DS2DataChange();    // the split changed: totals and hint

protected:
    // Steps of every receipt that differ here.
    std::string open_items_query(const std::string& party) const override;
    std::string head_query(const std::string& number) const override;
    std::string lines_query_of(const std::string& number) const override;
    void begin_amounts() override;
    void show_amounts() override;
    Amount money_to_spread() const override { return MONEY.value() + yh.value(); }
    Amount money_moved() const override { return MONEY.value(); }
    void check_amounts() override;
    std::string batch_to_save() override;
    void items_loaded() override;
    void refresh_totals() override;
    Amount document_shares() const override { return share_sum() - over_receipts(); }
    void Act_SaveExecute() override;

private:
    // This form's own rules.
    void bind_own_events();
    void load_accounts();
    void load_currencies();
    void show_items_of(const std::string& currency);
    void put_on_head_account(); // unless other accounts hold money already
    void set_money(Amount money);
    void set_foreign();
    Amount over_receipts() const; // of all income categories
    Amount split_sum() const { return cd_jy.Sum("MONEY"); }
    std::vector<AccountShare> split() const;
    CurrencyHead head_to_save() const;
    bool foreign_typed_ = false; // the amount in the currency is the one that was typed
    bool following_ = false;     // one amount follows the other
    std::string currency_;       // whose rate was taken
    std::unique_ptr<TQX_LINK_HB> QX_LINK_HB;
};

} // namespace module
