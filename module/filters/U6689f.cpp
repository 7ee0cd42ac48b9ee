// Ask for the period and the account level of the trial balance.
#include "module/filters/U6689f.h"

#include "module/ledgers/trial_balance_query.h"

namespace module {

namespace {

constexpr PeriodRefusals refusals = {
    .too_late = "开始期间不能大于当前会计期间!当前会计期间:",
    .too_early = "开始期间不能 小于 帐套启用日期!帐套启用日期为:",
};

} // namespace

// ---- opening ----

TF6689F::TF6689F(TForm* parent) : PeriodFilter(parent, refusals) {
    Caption = "试算平衡表 · 查询条件";
    EDT3.Min = Amount::from_whole(1);
    EDT3.Max = Amount::from_whole(5);
    EDT3.set(std::int64_t{1});
    layout = Rows({Columns({Field("会计年度:", EDT1, 10), Text("2000 – 2099"), Spring()}),
                   Columns({Field("会计期间:", EDT2, 10), Text("1 – 12 月"), Spring()}),
                   Columns({Field("科目级别:", EDT3, 10), Text("1 – 5，下次沿用"), Spring()}),
                   Rule(), Control(Books), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6689F::InitForm() {
    PeriodFilter::InitForm();
    Remember(EDT3);
}

// ---- checking ----

void TF6689F::btn_okClick() {
    const std::string period = year_and(EDT2);
    check_chosen(EDT2);
    check_limits(period);
    PeriodFilter::btn_okClick();
    shown_ = Period::parse(period);
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
