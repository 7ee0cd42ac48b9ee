// Post the audited vouchers of the current period, or take the posting back.
#include "module/vouchers/U6663.h"

#include "host/dataset/client_dataset.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"
#include "module/refuse.h"
#include "module/vouchers/posting_batch.h"

namespace module {

TF6663* F6663 = nullptr;

// ---- opening ----

TF6663::TF6663(TForm* parent) : PeriodDialog(parent, "登帐 F2", "反登帐") {
    Caption = "凭证登帐";
    R1.GroupIndex = R2.GroupIndex = 1;
    restore_choice();
    R1.OnClick = R2.OnClick = [this] { remember_choice(); };
    layout = Rows({period_line(), counts_line(), Control(R1), Control(R2), Text("系统提示："),
                   Text("1、本次登帐把当前未登帐凭证一次性登入总分类帐及明细分类帐户"), Rule(),
                   buttons_line()});
}

void TF6663::restore_choice() {
    const bool tolerant = the_host().settings->read(G_CoName, "663.R2.Checked", "false") == "true";
    R1.Checked = !tolerant;
    R2.Checked = tolerant;
}

void TF6663::remember_choice() {
    the_host().settings->write(G_CoName, "663.R2.Checked", R2.Checked ? "true" : "false");
}

// ---- checking ----

// The last voucher is not looked at: a gap before it shows at the one that follows the gap.
bool TF6663::numbers_run_on(const std::string& period) {
    TClientDataSet numbers;
    opensql(numbers, FunctionCode,
            "select pzz_h from d6601 WHERE (D6601.PZQJ = " + quoted(period) + ")  order by pzz_h ");
    const int field = numbers.FieldByName("pzz_h").index();
    for (int row = 0; row + 1 < numbers.RecordCount(); ++row) {
        if (numbers.text_at(row, field) != std::to_string(row + 1)) return false;
    }
    return true;
}

// ---- saving ----

void TF6663::btn_okClick(const TButton& sender) {
    InitForm(record_);
    const Period period = current_period();
    RequireRight("post", "登帐");
    if (R1.Checked && !numbers_run_on(period_text())) refuse("凭证号不连续!");
    const bool posting = &sender == &btn_ok;
    if (!posting && BooksAreStrict()) {
        refuse("本帐套按严格方式管理,不能反登帐!请用红字凭证更正。");
    }
    if (!save(period_text(), posting ? posting_batch(period) : unposting_batch(period))) return;
    InitForm(record_);
    DISPINFO(posting ? "登帐完成!" : "反登帐完成!", 5);
}

} // namespace module
