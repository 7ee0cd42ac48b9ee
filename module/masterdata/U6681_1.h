// Enter or change one account of the chart.
#pragma once

#include "host/forms/Base_Node_d.h"
#include "module/host_names.h"

namespace module {

class TF6681_1 : public TFrm_Base_Node_d {
public:
    // What the user sees, from top to bottom.
    TEdit t0{this, "t0", "科目代号"};                                  // account code, unique
    TEdit t1{this, "t1", "科目名称"};                                  // account name
    TRadioButton RB1{this, "RB1", "借"};                               // balance side debit
    TRadioButton RB2{this, "RB2", "贷"};                               // balance side credit
    TCheckBox CK1{this, "CK1", "核算现金流量(1001-1009之间科目生效)"}; // cash-flow accounting

    // What the user does.
    explicit TF6681_1(TForm* parent);
    const char* ClassName() const override { return "TF6681_1"; }
    void initbtn(const TSpeedButton& category); // new accounts belong to this category
    void t0Exit();                              // code left: must be well formed and new
    void t1Exit();                              // name left: must not be blank

    // Steps of every tree dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

private:
    // This form's own rules.
    bool adding() const { return Mode != "Edit"; }
    void load_selected_account();
    std::string insert_account(const std::string& level) const;
    std::string update_account(const std::string& level) const;
    std::string parent_code() const;
    std::string selected_code() const;
    std::string side() const { return RB1.Checked ? "借" : "贷"; }
    void show_in_tree();
    int category_ = 1; // KM_FL of new accounts
};

} // namespace module
