// Post the audited vouchers of the current period, or take the posting back.
#pragma once

#include "module/vouchers/period_dialog.h"

namespace module {

class TF6663 : public PeriodDialog {
public:
    // What the user sees, from top to bottom.
    TRadioButton R1{this, "R1", "发现凭证号不连续时终止登帐"};
    TRadioButton R2{this, "R2", "允许凭证号不连续的凭证登帐"};

    // What the user does.
    explicit TF6663(TForm* parent);
    const char* ClassName() const override { return "TF6663"; }
    using PeriodDialog::btn_okClick;
    void btn_okClick(const TButton& sender) override; // btn_ok posts, btn_re takes back

private:
    // This form's own rules.
    void remember_choice();
    void restore_choice();
    bool numbers_run_on(const std::string& period);
};

extern TF6663* F6663;

} // namespace module
