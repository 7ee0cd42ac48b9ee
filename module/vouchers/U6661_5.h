// Allocate the cash of one voucher to cash-flow items; the voucher saves it.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Detail.h"
#include "module/host_names.h"

namespace module {

class TF6661_5 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TLabel CashHint{this, "CashHint"}; // the voucher's cash, what is allocated, what is left
    TClientDataSet AdoQry_Main;        // one row a cash-flow item
    TDBGridEh GRID2{this, "GRID2", &AdoQry_Main};

    // What the user does.
    explicit TF6661_5(TForm* parent);
    const char* ClassName() const override { return "TF6661_5"; }
    void GRID2ColEnter(); // item and name are passed over

    // What the voucher does. The first amount typed enables `save`.
    void enable_on_edit(TAction& save) { save_ = &save; }
    // Loads the allocation of voucher `NOID`; in "ReadOnly" it is only shown. A voucher that is
    // being added has none yet, whatever the number typed for it belongs to.
    void initnoid(const std::string& NOID, const std::string& mode);
    // The statements that replace the allocation of `NOID`; "" when nothing is to be written.
    std::string getsql(const std::string& NOID) const;
    bool has_amounts() const; // any item carries one, of whatever sign
    bool loaded() const { return AdoQry_Main.Active(); }
    void forget(); // the next voucher begins without an allocation
    // Shows the items to a person; `cash_change` is what the voucher's cash lines add to the cash.
    // True when amounts were changed and accepted.
    bool allocate(Amount cash_change);
    bool confirmed() const { return confirmed_; } // a person accepted what it shows
    // Is the stored allocation of the voucher loaded another one than it was then?
    bool stored_meanwhile() const;

    // Steps of every edit dialog that differ here.
    void SaveData() override;

protected:
    bool has_unsaved_work() const override;
    void FormShow() override;

private:
    // This form's own rules.
    void build_columns();
    void amount_typed(TField& field, const std::string& typed);
    Amount allocated() const; // inflows less outflows
    Amount left_for(const std::string& side) const;
    void refresh_hint();
    void put_back(const TClientDataSet& before);
    TAction* save_ = nullptr;
    bool loading_ = false;
    std::string noid_;      // voucher whose allocation was loaded
    std::string as_loaded_; // what was stored of it then
    bool confirmed_ = false;
    Amount cash_change_;
};

} // namespace module
