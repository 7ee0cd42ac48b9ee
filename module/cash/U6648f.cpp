// Ask which bank deposits and withdrawals to list: number or summary, dates, the two accounts.
#include "module/cash/U6648f.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/trade/trade_code.h"

namespace module {

namespace {

const char* const between_conditions = "     ●";

} // namespace

// ---- opening ----

TF6648F::TF6648F(TForm* parent) : DateRangeFilter(parent, "开单日期") {
    Caption = "银行存取款单 · 查询条件";
    for (TLinkEdit* edit : {&JY_ID_SK, &JY_ID_FK}) bind_trade_code(*this, *edit, money_accounts);
    layout = Rows({Columns({Field(NOID.Caption, NOID, 28), Control(CK1), Spring()}), date_row(),
                   Field(JY_ID_SK.Caption, JY_ID_SK, 12),
                   Field(JY_ID_FK.Caption, JY_ID_FK, 12),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TF6648F::InitForm() {
    DateRangeFilter::InitForm();
    Remember(CK1);
}

// ---- checking ----

void TF6648F::btn_okClick() {
    CheckDates(BDATE, EDATE);
    DateRangeFilter::btn_okClick();
    ResultText = DateCondition("D653", BDATE.value(), EDATE.value()) + searched() +
                 account("D653.JY_ID_FK", JY_ID_FK) + account("D653.JY_ID_SK", JY_ID_SK);
    Description = " ●开单日期:" + date_text() + described();
}

// ---- statements ----

std::string TF6648F::searched() const {
    const std::string text = trimmed(NOID.Text.get());
    if (text.empty()) return "";
    const std::string wanted =
        CK1.Checked ? "=" + quoted(text) : " LIKE " + quoted("%" + text + "%");
    return " and  ((D653.noid" + wanted + ") or (D653.ZY" + wanted + "))";
}

std::string TF6648F::account(const char* column, const TLinkEdit& edit) {
    const std::string code = trimmed(edit.Text.get());
    return code.empty() ? "" : " AND " + Condition_t(column, "=", code);
}

std::string TF6648F::described() const {
    std::string told;
    const std::string text = trimmed(NOID.Text.get());
    if (!text.empty()) told += between_conditions + NOID.Caption.get() + ":" + text;
    for (const TLinkEdit* edit : {&JY_ID_SK, &JY_ID_FK}) {
        if (trimmed(edit->Text.get()).empty()) continue;
        told += between_conditions + edit->Caption.get() + ":" + edit->Text.get() + " " +
                edit->DisplayName.get();
    }
    return told;
}

} // namespace module
