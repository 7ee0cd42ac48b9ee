// Ask which vouchers to list: dates, numbers, word, posted or not, audited or not.
#include "module/filters/U6661f.h"

namespace module {

// ---- opening ----

TF6661F::TF6661F(TForm* parent) : VoucherRangeFilter(parent, 999999) {
    Caption = "凭证 · 查询条件";
    for (TRadioButton* state : {&S1, &S2, &S3}) state->GroupIndex = 2;
    std::vector<LayoutNode> rows = range_rows();
    rows.insert(rows.end(),
                {posting_row(),
                 Group("审核", {Columns({Control(S1), Control(S2), Control(S3), Spring()})}),
                 Buttons({&btn_ok, &btn_Cancel})});
    layout = Rows(rows);
}

void TF6661F::InitForm() {
    VoucherRangeFilter::InitForm();
    S1.Checked = true;
    for (TRadioButton* state : {&S1, &S2, &S3}) Remember(*state);
}

// ---- checking ----

void TF6661F::btn_okClick() {
    CheckDates(BDATE, EDATE);
    ResultText = dates_and_numbers() + posting_state() + audit_state() + word();
    Description = " ●凭证日期:" + date_text() + "     ●凭 证 号:" + number_text();
    TFrm_Sys_Filter::btn_okClick();
}

// ---- statements ----

std::string TF6661F::audit_state() const {
    if (S2.Checked) return " AND (D6601.T=1)";
    return S3.Checked ? " AND (D6601.T=0)" : "";
}

} // namespace module
