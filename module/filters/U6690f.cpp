// Ask for the periods and the cash or bank account of the journal.
#include "module/filters/U6690f.h"

#include "module/refuse.h"

namespace module {

// ---- opening ----

TF6690F::TF6690F(TForm* parent) : LedgerFilter(parent, journal_dialog) {
    ComboBox2.Text = "人民币";
    AdoQry_Main.DefineField("KM_ID", FieldType::Text, 50);
    AdoQry_Main.DefineField("KM_NAME", FieldType::Text);
    DBGridEh.ReadOnly = true;
    DBGridEh.Columns = {{.FieldName = "KM_ID", .Title = "科目代码", .Width = 14},
                        {.FieldName = "KM_NAME", .Title = "科目名称", .Width = -1}};
    DBGridEh.EmptyText = "没有 1001、1002 开头的科目";
    DBGridEh.OnDblClick = [this] { press(btn_ok); };
    layout = Rows({Columns({Field("会计年度:", EDT1, 10), Text("2000 – 2099"), Spring()}),
                   Columns({Field("会计期间:", EDT2, 6), Field("至:", EDT3, 6), Spring()}),
                   Columns({Field("币    别:", ComboBox2, 12), Spring()}), Control(YS),
                   Control(Books), Rest(DBGridEh), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6690F::InitForm() {
    LedgerFilter::InitForm();
    read_current_period();
    read_accounts();
}

void TF6690F::read_current_period() {
    TClientDataSet period;
    opensql(period, FunctionCode, "SELECT param  FROM d6600 where id=2");
    CurrentPeriod = period.IsEmpty() ? "" : period.FieldByName("param").AsText();
    if (const auto current = Period::parse(CurrentPeriod)) offer_period(*current);
}

void TF6690F::read_accounts() {
    opensql(AdoQry_Main, FunctionCode,
            "SELECT KM_ID, KM_NAME FROM D6801 WHERE (KM_ID LIKE '1001%') OR (KM_ID LIKE '1002%')");
}

// The periods chosen last are offered again: one journal is often looked at after the other.
void TF6690F::FormActivate() {
    TFrm_Sys_Filter::FormActivate();
    const bool asked_before = !ResultText.empty();
    if (!asked_before) show_limits();
}

void TF6690F::InitFocu() {
    DBGridEh.SetFocus();
}

// ---- checking ----

void TF6690F::check_more() {
    if (AdoQry_Main.IsEmpty())
        refuse("没有现金、银行科目可以选择!请先在会计科目中增加 1001 或 1002 开头的科目。");
}

// ---- statements ----

std::string TF6690F::chosen(const char* field) const {
    return AdoQry_Main.FieldByName(field).AsText();
}

std::string TF6690F::statement(LedgerCall call) const {
    call.first_account = chosen("KM_ID");
    return detailed_ledger_call(call);
}

std::string TF6690F::more_description() const {
    return "     ●科目：" + chosen("KM_ID") + " " + chosen("KM_NAME");
}

} // namespace module
