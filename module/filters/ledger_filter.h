// What the condition dialogs of the ledgers share: a range of periods in one year.
#pragma once

#include "module/filters/period_filter.h"
#include "module/ledgers/ledger_call.h"

namespace module {

// How the dialogs differ.
struct LedgerDialog {
    const char* caption;
    PeriodRefusals refusals;
    const char* reversed;  // told when the first month comes after the last
    const char* box;       // what may be ticked
    bool ticked_shows_all; // ticked, nothing is left out; else ticking leaves something out
    const char* everything; // said above the list while nothing is left out
    const char* selection;  // … while something is
    const char* gap;        // between year and periods in the description
};

extern const LedgerDialog detailed_ledger_dialog, general_ledger_dialog, journal_dialog;

class LedgerFilter : public PeriodFilter {
public:
    // What the user sees beside year and first month.
    TComboBox EDT3{this, "EDT3", "至:"};             // last month
    TComboBox ComboBox2{this, "ComboBox2", "币    别:"}; // currency: all amounts are kept in one
    TCheckBox YS{this, "YS"};                        // unposted vouchers, or idle accounts

    // What the user does.
    void InitForm() override;
    void btn_okClick() override;
    // What the list shown leaves out, "仅已过帐凭证"; "" before the first OK.
    std::string Scope;

protected:
    LedgerFilter(TForm* parent, const LedgerDialog& dialog);
    void offer_period(Period current) override;
    // Checks of the form's own, after those of the periods.
    virtual void check_more() {}
    // The statement and the end of the description; the call has its periods and `show`.
    virtual std::string statement(LedgerCall call) const = 0;
    virtual std::string more_description() const = 0;

private:
    const LedgerDialog& dialog_;
};

} // namespace module
