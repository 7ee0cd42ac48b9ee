// What the dialogs that post or close the current period share.
#include "module/vouchers/period_dialog.h"

#include "host/dataset/client_dataset.h"
#include "host/values/text.h"
#include "module/refuse.h"

namespace module {
namespace {

const char* const select_counts =
    "SELECT param,(SELECT COUNT(*) AS I FROM D6601 WHERE (D = 0) and (t = 1) AND (PZQJ =(SELECT "
    "PARAM FROM D6600 WHERE ID=2))) AS I,(SELECT COUNT(*) AS j FROM D6601 WHERE (t = 0) AND (PZQJ "
    "=(SELECT PARAM FROM D6600 WHERE ID=2))) AS J FROM d6600 where id=2";

} // namespace

// ---- opening ----

PeriodDialog::PeriodDialog(TForm* parent, const std::string& forward, const std::string& back)
    : TFrm_Base_Dialog(parent), btn_re(this, "btn_re", back) {
    btn_ok.Caption = forward;
    btn_Cancel.Caption = "关闭";
    btn_re.OnClick = [this] { btn_okClick(btn_re); };
}

LayoutNode PeriodDialog::period_line() {
    return Columns({Text("当前会计年份及月份为:"), Control(BDATE), Spring()});
}

LayoutNode PeriodDialog::counts_line() {
    return Columns({Text("已审未登帐"), Control(Label7), Spring(), Text("未审凭证"),
                    Control(Label9), Spring()});
}

LayoutNode PeriodDialog::buttons_line() { return Buttons({&btn_ok, &btn_re, &btn_Cancel}); }

void PeriodDialog::InitForm(const Trecord& record) {
    OpenFunction(record);
    TClientDataSet counts;
    opensql(counts, FunctionCode, select_counts);
    const auto column = [&](const char* name) {
        return counts.IsEmpty() ? "" : counts.FieldByName(name).AsText();
    };
    period_ = trimmed(column("param"));
    Label7.Caption = column("I");
    Label9.Caption = column("J");
    const bool set_up = !period_.empty();
    btn_ok.Enabled = set_up;
    btn_re.Enabled = set_up;
    BDATE.Caption = set_up ? period_ : "没有初始建帐!请从  [会计科目初始]  模块进行首次建帐!";
}

// ---- checking ----

bool PeriodDialog::nothing_waits() const {
    return Label7.Caption.get() == "0" && Label9.Caption.get() == "0";
}

Period PeriodDialog::current_period() const {
    if (period_.empty()) refuse("没有初始建帐!请从[会计科目初始]模块进行首次建帐!");
    const auto period = Period::parse(period_);
    if (!period) refuse("当前会计期间“" + period_ + "”不是年月!请检查会计科目初始。");
    return *period;
}

// ---- saving ----

void PeriodDialog::btn_okClick() { btn_okClick(btn_ok); }

bool PeriodDialog::save(const std::string& document, const std::string& batch) const {
    return ExecSql(FunctionCode, document, "Edit", batch, 0, false, true, false, true) == "Y";
}

} // namespace module
