// Open the books on a day: all vouchers go, the opening figures become the first balances.
#include "module/period/U6699_2.h"

#include "host/ports/host.h"
#include "module/period/opening_posting.h"
#include "module/refuse.h"
#include "module/vouchers/voucher_words.h"

namespace module {

// ---- opening ----

TF6699_2::TF6699_2(TForm* parent) : TFrm_Base_Common(parent) {
    Caption = "初始化登帐";
    BDATE.OnChange = [this] { refresh_date_hint(); };
    BDATE.set(the_host().clock->today());
    DateHint.Caption = "应为月份的第一天，否则期初余额留在启用月份，登帐后不再计入";
    DateHint.FontColor = clRed;
    btn_ok.OnClick = [this] { btn_okClick(); };
    btn_Cancel.Cancel = true;
    btn_Cancel.ModalResult = mrCancel;
    layout = Rows({Columns({Field("帐套启用日期:", BDATE, 14), Spring()}), Control(DateHint),
                   Text("凭证字:"), Control(R1), Control(R2), Control(R3), Rule(),
                   Text("1、初始化将会清空所有凭证"),
                   Text("2、设定使用凭证字，系统开始启用后将不可更改"),
                   Text("3、清空所有收款，付款单据，并初始化首次应收款，应付款"),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TF6699_2::FormShow() {
    TFrm_Base_Common::FormShow();
    show_voucher_words();
}

// Posting carries the balances of the month before: those of a start inside a month stand in the
// month itself, and its first posting writes over them.
void TF6699_2::refresh_date_hint() {
    const auto day = BDATE.date();
    DateHint.Visible = day && day->day() != 1;
}

// The words were settled when the books were made; the posting leaves them as they are.
void TF6699_2::show_voucher_words() {
    const std::string first_word = read_voucher_words(FunctionCode).words.front();
    TRadioButton& own = first_word == "收" ? R2 : first_word == "现收" ? R3 : R1;
    own.Checked = true;
}

void TF6699_2::FormKeyDown(Key& key) {
    if (key.code != KeyCode::F2 || key.ctrl || key.alt || key.shift) return;
    key = {};
    SetFocusTo(btn_ok);
    btn_ok.Click();
}

// ---- checking ----

// Another window may have opened the books meanwhile: posting again would empty them.
std::string TF6699_2::why_not_again() {
    const std::string period = Getsysinfo("period");
    if (period.empty()) return "";
    return "帐套已在 " + period + " 启用，不能再次初始化!请先从[期末结帐]模块反结至开帐前。";
}

// ---- saving ----

void TF6699_2::btn_okClick() {
    RequireRight("post", "初始化登帐");
    CheckDate(BDATE, "帐套启用日期");
    if (const std::string reason = why_not_again(); !reason.empty()) refuse(reason);
    const Date chosen = BDATE.value();
    const OpeningDay opening(chosen);
    BDATE.set(opening.day);
    const std::string answer =
        ExecSql(FunctionCode, opening.first_period, "Edit", opening_batch(opening));
    if (answer == "Y") {
        ModalResult = mrOk;
    } else {
        BDATE.set(chosen); // a second try must not begin in another month
    }
}

} // namespace module
