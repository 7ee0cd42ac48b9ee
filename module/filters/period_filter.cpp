// What the condition dialogs of books by period share: year, month, and the limits of the books.
#include "module/filters/period_filter.h"

#include "module/refuse.h"

namespace module {

PeriodFilter::PeriodFilter(TForm* parent, const PeriodRefusals& refusals)
    : TFrm_Sys_Filter(parent), refusals_(refusals) {
    EDT1.Min = Amount::from_whole(2000);
    EDT1.Max = Amount::from_whole(2099);
    EDT1.set(std::int64_t{2008});
    fill_with_months(EDT2);
}

void PeriodFilter::fill_with_months(TComboBox& months) {
    std::vector<std::string> items;
    for (int month = 1; month <= 12; ++month) items.push_back(std::to_string(month));
    months.Items = items;
    months.set_index(0);
}

void PeriodFilter::FormActivate() {
    TFrm_Sys_Filter::FormActivate();
    ReadPeriods();
    show_limits();
}

void PeriodFilter::show_limits() {
    btn_ok.Enabled = !CurrentPeriod.empty();
    const auto current = Period::parse(CurrentPeriod);
    if (!current) return DISPINFO(no_current_period, 5), void();
    offer_period(*current);
    Books.Caption = (FirstPeriod.empty() ? "" : "帐套启用日期 " + FirstPeriod + "    ") +
                    "当前会计期间 " + CurrentPeriod;
}

void PeriodFilter::offer_period(Period current) {
    EDT1.set(std::int64_t{current.year()});
    EDT2.set_index(current.month() - 1);
}

void PeriodFilter::InitFocu() {
    EDT2.SetFocus();
}

std::string PeriodFilter::year_and(const TComboBox& month) const {
    const std::string text = month.Text;
    return EDT1.Text.get() + "-" + (text.size() == 1 ? "0" : "") + text;
}

// ---- checking ----

void PeriodFilter::refuse_month(const std::string& reason) {
    EDT2.SetFocus();
    refuse(reason);
}

void PeriodFilter::check_chosen(const TComboBox& month) {
    if (!Period::parse(year_and(month))) refuse_month("会计年度和会计期间不能为空!请选择。");
}

void PeriodFilter::check_limits(const std::string& first) {
    if (CurrentPeriod < first) refuse_month(refusals_.too_late + CurrentPeriod);
    if (refusals_.too_early != nullptr && FirstPeriod > first)
        refuse_month(refusals_.too_early + FirstPeriod);
}

} // namespace module
