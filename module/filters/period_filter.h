// What the condition dialogs of books by period share: year, month, and the limits of the books.
#pragma once

#include "host/forms/Sys_Filter.h"
#include "host/values/period.h"
#include "module/host_names.h"

namespace module {

// What is told when the periods asked for cannot be shown; null where a dialog does not check it.
// The current period, or the first one of the books, follows the text.
struct PeriodRefusals {
    const char* too_late;
    const char* too_early;
};

class PeriodFilter : public TFrm_Sys_Filter {
public:
    // What the user sees.
    TNumberEdit EDT1{this, "EDT1", "会计年度:"}; // year
    TComboBox EDT2{this, "EDT2", "会计期间:"};   // month, or the first of two
    TLabel Books{this, "Books"};                 // first and current period of the books

    // What the user does.
    void InitFocu() override;

protected:
    PeriodFilter(TForm* parent, const PeriodRefusals& refusals);
    // Reads the periods of the books and offers the current one. Books that were not set up have
    // none: said, and OK is not possible.
    void FormActivate() override;
    virtual void offer_period(Period current);
    void show_limits();

    static void fill_with_months(TComboBox& months);
    std::string year_and(const TComboBox& month) const; // "2024-03"
    // Steps of OK: the refusals put the focus on the month.
    void check_chosen(const TComboBox& month);
    void check_limits(const std::string& first);
    [[noreturn]] void refuse_month(const std::string& reason);

private:
    const PeriodRefusals refusals_;
};

} // namespace module
