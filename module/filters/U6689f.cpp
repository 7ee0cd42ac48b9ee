// Ask for the period and the account level of the trial balance.
#include "module/filters/U6689f.h"

#include "module/ledgers/trial_balance_query.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

TF6689F::TF6689F(TForm* parent) : TFrm_Sys_Filter(parent) {
    Caption = "试算平衡表 · 查询条件";
    EDT1.Min = Amount::from_whole(2000);
    EDT1.Max = Amount::from_whole(2099);
    EDT1.set(std::int64_t{2008});
    std::vector<std::string> months;
    for (int month = 1; month <= 12; ++month) months.push_back(std::to_string(month));
    EDT2.Items = months;
    EDT2.set_index(0);
    EDT3.Min = Amount::from_whole(1);
    EDT3.Max = Amount::from_whole(5);
    EDT3.set(std::int64_t{1});
    layout = Rows({Columns({Field("会计年度:", EDT1, 10), Text("2000 – 2099"), Spring()}),
                   Columns({Field("会计期间:", EDT2, 10), Text("1 – 12 月"), Spring()}),
                   Columns({Field("科目级别:", EDT3, 10), Text("1 – 5，下次沿用"), Spring()}),
                   Rule(), Control(Books), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6689F::InitForm() {
    TFrm_Sys_Filter::InitForm();
    Remember(EDT3);
}

void TF6689F::FormActivate() {
    TFrm_Sys_Filter::FormActivate();
    ReadPeriods();
    btn_ok.Enabled = !CurrentPeriod.empty();
    const auto period = Period::parse(CurrentPeriod);
    if (!period) return DISPINFO("读取会计期间错误!请确认是否进行初始建帐!", 5), void();
    EDT1.set(std::int64_t{period->year()});
    EDT2.set_index(period->month() - 1);
    Books.Caption = "帐套启用日期 " + FirstPeriod + "    当前会计期间 " + CurrentPeriod;
}

void TF6689F::InitFocu() {
    EDT2.SetFocus();
}

// ---- checking ----

std::string TF6689F::chosen_period() const {
    const std::string month = EDT2.Text;
    return EDT1.Text.get() + "-" + (month.size() == 1 ? "0" : "") + month;
}

void TF6689F::check_period(const std::string& period) {
    if (CurrentPeriod < period) {
        EDT2.SetFocus();
        refuse("开始期间不能大于当前会计期间!当前会计期间:" + CurrentPeriod);
    }
    if (FirstPeriod > period) {
        EDT2.SetFocus();
        refuse("开始期间不能 小于 帐套启用日期!帐套启用日期为:" + FirstPeriod);
    }
}

void TF6689F::btn_okClick() {
    const std::string text = chosen_period();
    check_period(text);
    const auto period = Period::parse(text);
    if (!period) refuse("会计年度和会计期间不能为空!请选择。");
    TFrm_Sys_Filter::btn_okClick();
    shown_ = period;
    write_result();
}

bool TF6689F::ShowLevel(std::int64_t level) {
    if (!shown_) return false;
    EDT3.set(level);
    SaveRemembered();
    write_result();
    return true;
}

// ---- statements ----

void TF6689F::write_result() {
    ResultText = trial_balance_query(*shown_, EDT3.as_integer());
    Description = " ●会计年度:" + std::to_string(shown_->year()) +
                  "    ●会计期间:" + std::to_string(shown_->month()) +
                  "    ●科目级别:" + EDT3.Text.get();
}

} // namespace module
