// Close the current period, or take the closing back.
#pragma once

#include "module/vouchers/period_dialog.h"

namespace module {

class TF6668 : public PeriodDialog {
public:
    // What the user does.
    explicit TF6668(TForm* parent);
    const char* ClassName() const override { return "TF6668"; }
    using PeriodDialog::btn_okClick;
    void btn_okClick(const TButton& sender) override; // btn_ok closes, btn_re takes back

private:
    // This form's own rules.
    void close_period(const Period& period);
    void reopen(const Period& period);
    void reopen_period_before(const Period& period);
    void return_to_before_set_up();
};

extern TF6668* F6668;

} // namespace module
