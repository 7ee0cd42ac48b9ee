// Enter or change one account of the chart.
#pragma once

#include "module/masterdata/code_tree_dialog.h"

namespace module {

class TF6681_1 : public CodeTreeDialog {
public:
    // What the user sees below code, name and side.
    TCheckBox CK1{this, "CK1", "核算现金流量(1001-1009之间科目生效)"}; // cash-flow accounting

    // What the user does.
    explicit TF6681_1(TForm* parent);
    const char* ClassName() const override { return "TF6681_1"; }
    void initbtn(const TSpeedButton& category); // new accounts belong to this category

    // Steps of every tree dialog that differ here.
    void SaveData() override;

protected:
    // Steps in which the trees differ.
    void show_more(TClientDataSet* row) override;
    std::string further_values() const override;
    std::string update() const override;

private:
    // This form's own rules.
    void refuse_turning_account_with_balance();
    std::string level() const; // of the account in the chart, "1" at the top; quoted
    std::string cash_flow_mark() const;
    int category_ = 1; // KM_FL of new accounts
};

} // namespace module
