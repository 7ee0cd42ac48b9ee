// Ask which vouchers to list: dates, numbers, word, posted or not, audited or not.
#include "module/filters/U6661f.h"

#include "host/ports/host.h"
#include "host/values/period.h"
#include "host/values/sql_text.h"
#include "module/vouchers/voucher_words.h"

namespace module {

// ---- opening ----

TF6661F::TF6661F(TForm* parent) : TFrm_Sys_Filter(parent) {
    Caption = "凭证 · 查询条件";
    for (TRadioButton* state : {&R1, &R2, &R3}) state->GroupIndex = 1;
    for (TRadioButton* state : {&S1, &S2, &S3}) state->GroupIndex = 2;
    PZZ_H1.Min = PZZ_H2.Min = Amount();
    BindDayCount(BDATE, EDATE, titDATE);
    BindDateMenu(btn_dateset, BDATE, EDATE);
    layout = Rows({Columns({Field("凭证日期", BDATE, 12), Field("至：", EDATE, 12),
                            Control(titDATE), Control(btn_dateset)}),
                   Columns({Field("凭 证 号", PZZ_H1, 12), Field("至：", PZZ_H2, 12), Spring()}),
                   Columns({Field("凭 证 字", PZZ, 12), Spring()}),
                   Group("过帐", {Columns({Control(R1), Control(R2), Control(R3), Spring()})}),
                   Group("审核", {Columns({Control(S1), Control(S2), Control(S3), Spring()})}),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TF6661F::InitForm() {
    TFrm_Sys_Filter::InitForm();
    ReadPeriods();
    const Period period =
        Period::parse(CurrentPeriod).value_or(Period::of(the_host().clock->today()));
    BDATE.set(period.first_day());
    EDATE.set(period.last_day());
    PZZ_H1.set(std::int64_t{1});
    PZZ_H2.set(std::int64_t{999999});
    const VoucherWords words = read_voucher_words(FunctionCode);
    by_kind_ = words.by_kind;
    std::vector<std::string> items = words.words;
    if (by_kind_) items.insert(items.begin(), "所有");
    PZZ.Items = items;
    PZZ.set_index(0);
    R1.Checked = true;
    S1.Checked = true;
    for (TRadioButton* state : {&R1, &R2, &R3, &S1, &S2, &S3}) Remember(*state);
}

void TF6661F::InitFocu() {
    BDATE.SetFocus();
}

// ---- checking ----

void TF6661F::btn_okClick() {
    CheckDates(BDATE, EDATE);
    ResultText = condition();
    Description = " ●凭证日期:(" + BDATE.Text.get() + " 至 " + EDATE.Text.get() +
                  ")     ●凭 证 号:(" + PZZ_H1.Text.get() + " 至 " + PZZ_H2.Text.get() + ")";
    TFrm_Sys_Filter::btn_okClick();
}

// ---- statements ----

std::string TF6661F::condition() const {
    std::string text = DateCondition("D6601", BDATE.value(), EDATE.value()) +
                       " AND (D6601.PZZ_H>=" + std::to_string(PZZ_H1.as_integer()) +
                       ") AND (D6601.PZZ_H<=" + std::to_string(PZZ_H2.as_integer()) + ")";
    if (R2.Checked) text += " AND (D6601.D=1)";
    if (R3.Checked) text += " AND (D6601.D=0)";
    if (S2.Checked) text += " AND (D6601.T=1)";
    if (S3.Checked) text += " AND (D6601.T=0)";
    if (by_kind_ && PZZ.item_index() > 0) text += " AND (D6601.pzz=" + quoted(PZZ.Text.get()) + ")";
    return text;
}

} // namespace module
