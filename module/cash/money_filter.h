// What the condition dialogs of the reports on money accounts share: days, account, their texts.
#pragma once

#include "module/filters/date_range_filter.h"

namespace module {

// In what one dialog differs from the others.
struct MoneyDialog {
    const char* caption;   // "现金银行总帐 · 查询条件"
    const char* statement; // how the text that OK gives begins
};

// Days as the statements have them: "2024-03-01".
struct DaysAsked {
    std::string first, last;
};

class MoneyFilter : public DateRangeFilter {
public:
    // What the user sees beside the dates.
    TLinkEdit JY_ID{this, "JY_ID", "帐户代码"}; // money account; blank: all of them

    // What the user does.
    void btn_okClick() override;
    const DaysAsked& Days() const { return days_; } // of the last OK

protected:
    MoneyFilter(TForm* parent, const MoneyDialog& dialog); // `dialog` outlives it
    // Steps that differ: a check before the texts, the rest of the statement, the description.
    virtual void check_choice() {}
    virtual std::string condition();
    virtual std::string description() const;

    std::string account() const;   // code of the account asked for, or ""
    std::string days_text() const; // "03-01 至 03-31"

private:
    const MoneyDialog& dialog_;
    DaysAsked days_;
};

} // namespace module
