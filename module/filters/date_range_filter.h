// What the dialogs that ask for a range of days share: the two days, their menu, their check.
#pragma once

#include "host/forms/Sys_Filter.h"
#include "module/host_names.h"

namespace module {

// A form of the family shows date_row() in its layout, calls CheckDates first in its own
// btn_okClick and the inherited one last.
class DateRangeFilter : public TFrm_Sys_Filter {
public:
    // What the user sees.
    TDateEdit BDATE;                        // first day
    TDateEdit EDATE{this, "EDATE", "至："}; // last day
    TLabel titDATE{this, "titDATE"};        // length of the range
    TButton btn_dateset{this, "btn_dateset", "时段选择"};

    // What the user does. The range begins as the current period of the books, in books that were
    // not set up as the month of today.
    void InitForm() override;
    void InitFocu() override;

protected:
    // `caption` stands before the first day: "开单日期".
    DateRangeFilter(TForm* parent, const std::string& caption);
    LayoutNode date_row(); // both days, the length of the range, the menu
    std::string date_text() const; // "(2024-03-01 至 2024-03-31)"
};

} // namespace module
