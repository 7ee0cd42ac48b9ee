// Post the audited vouchers of the current period, or take the posting back.
#include "module/vouchers/U6663.h"

#include "host/dataset/client_dataset.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/vouchers/posting_batch.h"

namespace module {

TF6663* F6663 = nullptr;

namespace {

const char* const select_counts =
    "SELECT param,(SELECT COUNT(*) AS I FROM D6601 WHERE (D = 0) and (t = 1) AND (PZQJ =(SELECT "
    "PARAM FROM D6600 WHERE ID=2))) AS I,(SELECT COUNT(*) AS j FROM D6601 WHERE (t = 0) AND (PZQJ "
    "=(SELECT PARAM FROM D6600 WHERE ID=2))) AS J FROM d6600 where id=2";

} // namespace

// ---- opening ----

TF6663::TF6663(TForm* parent) : TFrm_Base_Dialog(parent) {
    Caption = "凭证登帐";
    btn_ok.Caption = "登帐 F2";
    btn_ok.KeyHint = "";
    btn_Cancel.Caption = "关闭";
    btn_re.OnClick = [this] { btn_okClick(btn_re); };
    R1.GroupIndex = R2.GroupIndex = 1;
    restore_choice();
    R1.OnClick = R2.OnClick = [this] { remember_choice(); };
    layout = Rows({Columns({Text("当前会计年份及月份为:"), Control(BDATE), Spring()}),
                   Columns({Text("已审未登帐"), Control(AuditedCount), Spring(), Text("未审凭证"),
                            Control(NotAuditedCount), Spring()}),
                   Control(R1), Control(R2), Text("系统提示："),
                   Text("1、本次登帐把当前未登帐凭证一次性登入总分类帐及明细分类帐户"), Rule(),
                   Buttons({&btn_ok, &btn_re, &btn_Cancel})});
}

void TF6663::InitForm(const Trecord& record) {
    OpenFunction(record);
    read_counts();
}

void TF6663::read_counts() {
    TClientDataSet counts;
    opensql(counts, FunctionCode, select_counts);
    const auto column = [&](const char* name) {
        return counts.IsEmpty() ? "" : counts.FieldByName(name).AsText();
    };
    period_ = trimmed(column("param"));
    AuditedCount.Caption = column("I");
    NotAuditedCount.Caption = column("J");
    const bool set_up = !period_.empty();
    btn_ok.Enabled = set_up;
    btn_re.Enabled = set_up;
    BDATE.Caption = set_up ? period_ : "没有初始建帐!请从  [会计科目初始]  模块进行首次建帐!";
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

void TF6663::btn_okClick() {
    btn_okClick(btn_ok);
}

void TF6663::btn_okClick(const TButton& sender) {
    InitForm(record_);
    if (period_.empty()) refuse("没有初始建帐!请从[会计科目初始]模块进行首次建帐!");
    RequireRight("post", "登帐");
    if (R1.Checked && !numbers_run_on(period_)) refuse("凭证号不连续!");
    const auto period = Period::parse(period_);
    if (!period) refuse("当前会计期间“" + period_ + "”不是年月!请检查会计科目初始。");
    const bool posting = &sender == &btn_ok;
    if (!posting && BooksAreStrict()) {
        refuse("本帐套按严格方式管理,不能反登帐!请用红字凭证更正。");
    }
    const std::string batch = posting ? posting_batch(*period) : unposting_batch(*period);
    const std::string answer =
        ExecSql(FunctionCode, period_, "Edit", batch, 0, false, true, false, true);
    if (answer != "Y") return;
    read_counts();
    DISPINFO(posting ? "登帐完成!" : "反登帐完成!", 5);
}

} // namespace module
