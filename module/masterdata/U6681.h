// Maintain the chart of accounts, one tree a category.
#pragma once

#include <memory>

#include "host/forms/Base_Node.h"
#include "module/host_names.h"

namespace module {

class TF6681_1;

class TF6681 : public TFrm_Base_Node {
public:
    // What the user sees, from top to bottom.
    TSpeedButton SpeedButton1{this, "SpeedButton1", "资产"}; // assets
    TSpeedButton SpeedButton2{this, "SpeedButton2", "负债"}; // liabilities
    TSpeedButton SpeedButton3{this, "SpeedButton3", "成本"}; // cost
    TSpeedButton SpeedButton4{this, "SpeedButton4", "权益"}; // equity
    TSpeedButton SpeedButton5{this, "SpeedButton5", "损益"}; // profit and loss

    // What the user does.
    explicit TF6681(TForm* parent);
    ~TF6681() override;
    const char* ClassName() const override { return "TF6681"; }
    void InitForm(const Trecord& record) override;
    void SpeedButton2Click(TSpeedButton& sender); // another category of accounts

protected:
    // Steps of every tree that differ here.
    TFrm_Base_Node_d* Dialog() override;
    void Act_CopyAddExecute() override; // a sub-account

private:
    // This form's own rules.
    void show_category(const TSpeedButton& category);
    void refuse_below_account_in_use();
    std::unique_ptr<TF6681_1> F6681_1;
};

extern TF6681* F6681;

} // namespace module
