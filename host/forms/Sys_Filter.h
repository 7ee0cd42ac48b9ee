// The condition dialog of a list: dates, periods, ranges and options, remembered per company.
#pragma once

#include <memory>
#include <vector>

#include "host/forms/Base_Condition.h"

namespace host {

// A form of the family overrides btn_okClick: its own checks, then ResultText and Description, the
// inherited operation last. Abort() keeps the dialog open with its inputs.
class TFrm_Sys_Filter : public TFrm_Base_Condition {
public:
    explicit TFrm_Sys_Filter(TForm* parent);

    virtual void InitForm();  // defaults and remembered values; called once by the list
    virtual void InitFocu();  // puts the focus on the first field when the dialog appears
    // The result text of the default conditions, for a list that shows rows before it was asked;
    // runs the checks of OK without showing the dialog; false when they refuse.
    bool Preset();

    // The current period and the first period of the books; "" when the books are not set up.
    std::string CurrentPeriod, FirstPeriod;
    void ReadPeriods();

protected:
    void btn_okClick() override; // checks the fields, keeps what is remembered, closes with OK
    void FormShow() override;
    // Shared pieces of the family.
    // "(" table ".BDATE>='" start "') AND (" table ".BDATE<'" day after the end "')"
    static std::string DateCondition(const std::string& table, Date start, Date end);
    // "开始日期不能大于结束日期!" with the focus on the start.
    void CheckDates(TDateEdit& start, TDateEdit& end);
    // "(" days "天)" into the label whenever one of the dates changes.
    void BindDayCount(TDateEdit& start, TDateEdit& end, TLabel& days);
    // The menu of the button 时段选择.
    void BindDateMenu(TButton& button, TDateEdit& start, TDateEdit& end);
    // Check marks and values kept between uses, in the company's settings.
    void Remember(TWinControl& control);
    void SaveRemembered();
    std::vector<TWinControl*> remembered_;
    std::unique_ptr<TPopupMenu> date_menu_;

private:
    std::string setting_of(const TWinControl& control) const;
    std::vector<std::unique_ptr<TMenuItem>> date_items_;
};

} // namespace host
