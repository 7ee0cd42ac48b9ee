// Turn the sales documents of one dispatch note into receipts, one a customer.
#include "module/invoicing/U6631_2.h"

#include "host/controls/amount_column.h"
#include "host/forms/parts/code_picker.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/invoicing/U6631_3.h"
#include "module/invoicing/import_statements.h"
#include "module/refuse.h"
#include "module/trade/document_number.h"

namespace module {

namespace {

constexpr const char* document_row = "请更改有底色资料行，白底色资料行不可更改!";
constexpr NumberSeries receipt_numbers{"631", "d631"};
constexpr Color customer_background = 0xFFFF80;
constexpr const char* imported_mark = "*";

const char* const select_accounts =
    "SELECT JY_ID,JY_NAME FROM D1010 WHERE (D1010.JY_ID <> '0') ORDER BY JY_ID";

} // namespace

// ---- opening ----

TF6631_2::TF6631_2(TForm* parent) : TFrm_Base_Dialog(parent) {
    Caption = "派车单导入";
    PreferredWidth = 146;
    Edit1.MaxLength = 20;
    btn_ok.Caption = "导入";
    btn_Cancel.Caption = "关闭";
    btn_ref.KeyHint = "F5";
    btn_ref.OnClick = [this] { btn_refClick(); };
    define_fields();
    GRID1.Columns = {{.FieldName = "KH_GYS_ID", .Title = "客户代号", .Width = 8, .ReadOnly = true},
                     {.FieldName = "KG_NAME", .Title = "客户简称", .Width = -1, .ReadOnly = true},
                     {.FieldName = "NOID", .Title = "销售单号", .Width = 14, .ReadOnly = true},
                     amount_column("TOLMONEY", "金额", 10, FooterKind::None),
                     amount_column("SMONEY", "本次收款", 10),
                     {.FieldName = "BDATE", .Title = "日期", .Width = 10},
                     {.FieldName = "JY_ID", .Title = "收款帐户", .Width = 7},
                     {.FieldName = "JY_NAME", .Title = "帐户名称", .Width = 11, .ReadOnly = true},
                     {.FieldName = "PH", .Title = "票号", .Width = 9}};
    GRID1.Columns[3].ReadOnly = GRID1.Columns[4].ReadOnly = true;
    GRID1.Columns[6].Button = true;
    GRID1.FixedOrder = true; // a customer's documents stand before his total
    GRID1.AppendOnEnter = false;
    GRID1.EmptyText = "请录入派车单号，再按 F5 查询";
    GRID1.OnDblClick = [this] { GRID1DblClick(); };
    GRID1.OnGetCellParams = [this](TField& field, CellParams& params) {
        GRID1GetCellParams(field, params);
    };
    GRID1.OnButtonClick = [this](GridColumn&) {
        TClientDataSet rows;
        opensql(rows, FunctionCode, select_accounts);
        CodePicker picker(this);
        picker.init(rows, "帐户代号", "结算帐户", "");
        if (picker.ShowModal() == mrOk) take_account(picker.chosen_code());
    };
    layout = Rows({Columns({Field("派车单号", Edit1, 18), Control(btn_ref), Spring()}),
                   Text("有底色的行是客户合计，可以更改日期、收款帐户和票号；双击白底色的行查看销售单。"),
                   Rest(GRID1), Buttons({&btn_ok, &btn_Cancel})});
}

TF6631_2::~TF6631_2() = default;

// Only the rows that become receipts are changed; the documents stand as they are.
void TF6631_2::define_fields() {
    AdoQry_Main.DefineField("INX", FieldType::Integer);
    for (const char* text : {"KH_GYS_ID", "KG_NAME", "NOID", "JY_NAME", "B"})
        AdoQry_Main.DefineField(text, FieldType::Text);
    for (const char* amount : {"TOLMONEY", "SMONEY"})
        AdoQry_Main.DefineField(amount, FieldType::Amount).DisplayFormat = "0.00";
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("JY_ID", FieldType::Text, 2);
    AdoQry_Main.DefineField("PH", FieldType::Text, 50);
    for (const char* changed : {"BDATE", "JY_ID", "PH"})
        AdoQry_Main.FieldByName(changed).OnSetText = [this](TField& field,
                                                            const std::string& typed) {
            if (!on_customer()) refuse(document_row);
            if (field.FieldName == "JY_ID") return take_account(typed);
            if (field.FieldName == "BDATE" && trimmed(typed).empty()) refuse("日期不能为空，请录入!");
            field.SetConverted(typed);
        };
    AdoQry_Main.BeforeInsert = [] { Abort(); };
}

void TF6631_2::FormShow() {
    TFrm_Base_Dialog::FormShow();
    imported_ = false;
    Edit1.Text = "";
    AdoQry_Main.Open();
    SetFocusTo(Edit1);
}

void TF6631_2::FormKeyDown(Key& key) {
    if (key.code == KeyCode::F5 && !key.ctrl && !key.alt && !key.shift) {
        key = {};
        return press(btn_ref);
    }
    TFrm_Base_Dialog::FormKeyDown(key);
}

// ---- lines ----

bool TF6631_2::on_customer() const { return AdoQry_Main.FieldByName("INX").AsInteger() == 1; }

void TF6631_2::btn_refClick() {
    opensql(AdoQry_Main, FunctionCode, select_dispatched(trimmed(Edit1.Text.get())));
    show_account_names();
    if (AdoQry_Main.IsEmpty()) refuse("派车单“" + Edit1.Text.get() + "”没有销售单!请核对派车单号。");
    GRID1.SetFocus();
}

void TF6631_2::show_account_names() {
    TClientDataSet accounts;
    opensql(accounts, FunctionCode, select_accounts);
    for (AdoQry_Main.First(); !AdoQry_Main.Eof(); AdoQry_Main.Next()) {
        if (!on_customer()) continue;
        if (!accounts.Locate("JY_ID", AdoQry_Main.FieldByName("JY_ID").AsText())) continue;
        AdoQry_Main.Edit();
        AdoQry_Main.FieldByName("JY_NAME").SetValue(accounts.FieldByName("JY_NAME").AsText());
        AdoQry_Main.Post();
    }
    AdoQry_Main.First();
}

void TF6631_2::take_account(const std::string& typed) {
    if (!on_customer()) refuse(document_row);
    TClientDataSet accounts;
    opensql(accounts, FunctionCode, select_accounts);
    if (!accounts.Locate("JY_ID", trimmed(typed)))
        refuse("结算帐户“" + typed + "”不存在!请按 F4 选择结算帐户。");
    AdoQry_Main.Edit();
    AdoQry_Main.FieldByName("JY_ID").SetValue(accounts.FieldByName("JY_ID").AsText());
    AdoQry_Main.FieldByName("JY_NAME").SetValue(accounts.FieldByName("JY_NAME").AsText());
}

void TF6631_2::GRID1GetCellParams(TField& field, CellParams& params) {
    if (on_customer()) params.Background = customer_background;
    const int column = GRID1.column_index(field.FieldName);
    const bool amount = column >= 0 &&
                        GRID1.Columns[static_cast<std::size_t>(column)].Tag == amount_tag;
    if (amount && field.AsAmount().is_negative()) params.Font = clRed;
}

void TF6631_2::GRID1DblClick() {
    if (AdoQry_Main.IsEmpty() || on_customer()) return;
    if (!F6631_3) F6631_3 = std::make_unique<TF6631_3>(this);
    F6631_3->InitForm(AdoQry_Main.FieldByName("NOID").AsText(), nullptr, true, false, true);
}

// ---- saving ----

bool TF6631_2::send(const std::string& number, const std::string& batch) {
    if (ExecSql(FunctionCode, number, "A", batch) != "Y") return false;
    AdoQry_Main.Edit();
    AdoQry_Main.FieldByName("KG_NAME").SetValue("成功导入,收款单号:" + number);
    AdoQry_Main.FieldByName("B").SetValue(std::string(imported_mark));
    AdoQry_Main.Post();
    imported_ = true;
    return true;
}

// Is there a customer below the current row whose receipt is still to be made?
bool TF6631_2::customer_follows() {
    for (int row = AdoQry_Main.RecNo() + 1; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(AdoQry_Main, row);
        if (on_customer() && AdoQry_Main.FieldByName("B").AsText() != imported_mark) return true;
    }
    return false;
}

// Each customer's documents stand before his own row: a batch grows until that row sends it. A
// customer whose receipt was refused leaves his number to the next one.
void TF6631_2::btn_okClick() {
    RequireRight("add", "新增“销售收款”");
    CommitActive();
    AdoQry_Main.LeaveRow();
    if (AdoQry_Main.IsEmpty()) return;
    const auto text = [this](const char* field) { return AdoQry_Main.FieldByName(field).AsText(); };
    std::string number = fresh_number(receipt_numbers);
    std::string batch;
    for (AdoQry_Main.First(); !AdoQry_Main.Eof(); AdoQry_Main.Next()) {
        const Amount total = AdoQry_Main.FieldByName("TOLMONEY").AsAmount();
        if (!on_customer()) {
            batch += insert_imported_line(number, text("NOID"), text("KH_GYS_ID"), total);
            continue;
        }
        batch += insert_imported_head(
            {number, text("KH_GYS_ID"), text("JY_ID"),
             AdoQry_Main.FieldByName("BDATE").AsDateTime().date.to_text(), text("PH"), G_UserId,
             AdoQry_Main.FieldByName("SMONEY").AsAmount()});
        const bool sent = text("B") != imported_mark && send(number, batch);
        if (sent && customer_follows()) number = fresh_number(receipt_numbers);
        batch.clear();
    }
}

} // namespace module
