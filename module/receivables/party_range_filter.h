// What the condition dialogs of the balances with customers and suppliers share.
#pragma once

#include "module/filters/date_range_filter.h"
#include "module/receivables/trade_side.h"

namespace module {

// In what one dialog differs from the others.
struct PartyDialog {
    const TradeSide& side;
    const char* caption; // of the window
    const char* party;   // before the first party: "客    户："
    const char* call;    // "exec SYS_YS @PARAM=1,@PARAM1="
};

// The days of a call as its text has them: the last one is the day after.
struct AskedDays {
    std::string from, until;
    std::string told; // "(2024-03-01 至 2024-03-31)"
};

class PartyRangeFilter : public DateRangeFilter {
public:
    // What the user sees. Any text may stand as a party: a code that nobody has still begins or
    // ends a range.
    TLinkEdit KH_GYS_ID;                    // the party, or the first of several
    TLinkEdit KH_GYS_ID2{this, "KH_GYS_ID2", "至"}; // the last one
    TCheckBox CK1{this, "CK1", "仅显示期间有业务的数据"}; // parties with a document in the range
    TCheckBox CK2{this, "CK2", "隐藏期末为0的数据"};      // without those that owe nothing

    // What the user does.
    void InitForm() override;
    void btn_okClick() override;
    const AskedDays& Days() const { return days_; } // of the last OK

protected:
    PartyRangeFilter(TForm* parent, const PartyDialog& dialog);

private:
    void check_parties();
    std::string parties_asked() const;
    std::string description() const;

    const PartyDialog& dialog_;
    AskedDays days_;
};

} // namespace module
