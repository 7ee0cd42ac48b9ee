// Post the audited vouchers of the current period, or take the posting back.
#pragma once

#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"

namespace module {

class TF6663 : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TLabel BDATE{this, "BDATE"};               // current period
    TLabel AuditedCount{this, "AuditedCount"}; // audited, not yet posted
    TLabel NotAuditedCount{this, "NotAuditedCount"};
    TRadioButton R1{this, "R1", "发现凭证号不连续时终止登帐"};
    TRadioButton R2{this, "R2", "允许凭证号不连续的凭证登帐"};
    TButton btn_re{this, "btn_re", "反登帐"}; // take the posting back

    // What the user does.
    explicit TF6663(TForm* parent);
    const char* ClassName() const override { return "TF6663"; }
    void InitForm(const Trecord& record);
    void btn_okClick() override;
    void btn_okClick(const TButton& sender); // btn_ok posts, btn_re takes back

private:
    // This form's own rules.
    void read_counts();
    void remember_choice();
    void restore_choice();
    bool numbers_run_on(const std::string& period);
    std::string period_;
};

extern TF6663* F6663;

} // namespace module
