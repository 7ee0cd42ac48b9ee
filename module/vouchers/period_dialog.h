// What the dialogs that post or close the current period share: the period and what waits in it.
#pragma once

#include "host/forms/Base_Dialog.h"
#include "host/values/period.h"
#include "module/host_names.h"

namespace module {

// Shows the current period and how many of its vouchers wait; one button goes forward, one back.
// The dialog stays open after its work. Books that were not set up offer neither button.
class PeriodDialog : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TLabel BDATE{this, "BDATE"};   // current period
    TLabel Label7{this, "Label7"}; // audited, not yet posted
    TLabel Label9{this, "Label9"}; // not audited
    TButton btn_re;                // takes back what btn_ok did

    // What the user does. Opening is also refreshing: the figures are read anew.
    PeriodDialog(TForm* parent, const std::string& forward, const std::string& back);
    void InitForm(const Trecord& record);
    void btn_okClick() override;
    virtual void btn_okClick(const TButton& sender) = 0; // btn_ok or btn_re

protected:
    // The two lines every such dialog begins with.
    LayoutNode period_line();
    LayoutNode counts_line();
    LayoutNode buttons_line();

    bool nothing_waits() const; // neither to post nor to audit
    // The current period; refuses with a message where there is none.
    Period current_period() const;
    const std::string& period_text() const { return period_; }
    // Sends the batch as a change of `document`; true when it was done.
    bool save(const std::string& document, const std::string& batch) const;

private:
    std::string period_; // "2024-03"; "" in books that were not set up
};

} // namespace module
