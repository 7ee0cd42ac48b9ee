// Carry the period's profit and loss into the profit of the year by one voucher.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"
#include "module/period/carry_forward.h"

namespace module {

class TF6667 : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TDateEdit bdate{this, "bdate", "凭证日期"}; // voucher date
    TLabel DateHint{this, "DateHint"};          // the date lies outside the period
    TEdit Edit1{this, "Edit1", "凭证摘要"};     // voucher summary
    TLinkEdit KM_ID{this, "KM_ID", "会计科目"}; // an account below 3141
    TLabel KM_NAME{this, "KM_NAME"};            // its name, shown beside the code
    TClientDataSet cds1; // the accounts carried forward and their balances
    TDBGridEh DBGridEh{this, "DBGridEh", &cds1};
    TLabel Totals{this, "Totals"}; // expenses, income, result
    TLabel Made{this, "Made"};     // the voucher written last

    // What the user does.
    explicit TF6667(TForm* parent);
    const char* ClassName() const override { return "TF6667"; }
    void InitForm(const Trecord& record);
    void KM_IDExit(TWinControl& sender); // must lie below 3141
    void KM_IDButtonClick();
    void btn_okClick() override;

protected:
    void FormActivate() override;

private:
    // This form's own rules.
    void build_layout();
    void load_accounts();
    void read_balance_of_row();
    void show_totals();
    void refresh_date_hint();
    void show_account_name(const std::string& name);
    void require_same_period();
    std::string why_changed_meanwhile(); // "" while the balances are those shown
    std::string period_;
    CarriedTotals totals_;
};

extern TF6667* F6667;

} // namespace module
