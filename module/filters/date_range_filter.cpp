// What the dialogs that ask for a range of days share: the two days, their menu, their check.
#include "module/filters/date_range_filter.h"

#include "host/ports/host.h"
#include "host/values/period.h"

namespace module {

DateRangeFilter::DateRangeFilter(TForm* parent, const std::string& caption)
    : TFrm_Sys_Filter(parent), BDATE(this, "BDATE", caption) {
    PreferredWidth = 76; // the row of the dates in full
    BindDayCount(BDATE, EDATE, titDATE);
    BindDateMenu(btn_dateset, BDATE, EDATE);
}

void DateRangeFilter::InitForm() {
    TFrm_Sys_Filter::InitForm();
    ReadPeriods();
    const Period period =
        Period::parse(CurrentPeriod).value_or(Period::of(the_host().clock->today()));
    BDATE.set(period.first_day());
    EDATE.set(period.last_day());
}

void DateRangeFilter::InitFocu() {
    BDATE.SetFocus();
}

LayoutNode DateRangeFilter::date_row() {
    return Columns({Field(BDATE.Caption, BDATE, 12), Field(EDATE.Caption, EDATE, 12),
                    Control(titDATE), Control(btn_dateset)});
}

std::string DateRangeFilter::date_text() const {
    return "(" + BDATE.Text.get() + " 至 " + EDATE.Text.get() + ")";
}

} // namespace module
