// See whether the opening figures balance; only then may they be posted.
#include "module/period/U6699_1.h"

#include "host/controls/amount_column.h"

namespace module {

namespace {

const char* const select_opening_figures =
    "SELECT KM_ID, KM_NAME, CASE FX WHEN '借' THEN BEGIN1  ELSE 0 END AS B1,CASE FX WHEN '贷' THEN "
    "BEGIN1 ELSE 0 END AS B2, BEGIN2 AS C1, BEGIN3 AS C2, CASE FX WHEN '借' THEN BEGIN4 ELSE 0 END "
    "AS D1,CASE FX WHEN '贷' THEN BEGIN4 ELSE 0 END AS D2 FROM D6801 ";

// Debits and credits of one kind of figure.
struct Pair {
    const char *title, *debits, *credits;
};
constexpr Pair pairs[] = {
    {"年初余额", "B1", "B2"}, {"本年累计", "C1", "C2"}, {"期初余额", "D1", "D2"}};

} // namespace

// ---- opening ----

TF6699_1::TF6699_1(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "会计科目初始试算平衡";
    PreferredWidth = 146;
    DBGridEh.ReadOnly = true;
    DBGridEh.Columns = {{.FieldName = "KM_ID", .Title = "科目代码", .Width = 12},
                        {.FieldName = "KM_NAME",
                         .Title = "科目名称",
                         .Width = -1,
                         .Footer = FooterKind::Text,
                         .FooterText = "合计："}};
    for (const Pair& pair : pairs) {
        for (const char* field : {pair.debits, pair.credits}) {
            AdoQry_Main.DefineField(field, FieldType::Amount).DisplayFormat = "0.00";
            const char* side = field == pair.debits ? "|借方" : "|贷方";
            DBGridEh.Columns.push_back(amount_column(field, pair.title + std::string(side), 13));
        }
    }
    layout = Rows({Rest(DBGridEh), Control(Verdict), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6699_1::InitForm(const std::string& key, TClientDataSet* list) {
    TFrm_Base_Detail::InitForm(key, list);
    accepted_ = false;
    opensql(AdoQry_Main, FunctionCode, select_opening_figures);
    const bool equal = balanced();
    btn_ok.Enabled = equal;
    Verdict.Caption = equal ? "试算平衡!点击确定转入总分类帐" : "试算不平衡";
    Verdict.FontColor = equal ? clBlue : clRed;
}

// ---- checking ----

bool TF6699_1::balanced() const {
    for (const Pair& pair : pairs) {
        if (AdoQry_Main.Sum(pair.debits) != AdoQry_Main.Sum(pair.credits)) return false;
    }
    return true;
}

void TF6699_1::btn_okClick() {
    accepted_ = true;
    ModalResult = mrOk;
}

void TF6699_1::btn_CancelClick() {
    accepted_ = false;
    TFrm_Base_Detail::btn_CancelClick();
}

} // namespace module
