// Enter, change or look at one bank deposit, withdrawal or transfer between own accounts.
#include "module/cash/U6648_1.h"

#include "host/forms/parts/paper_job.h"
#include "host/ports/host.h"
#include "host/printing/sheet.h"
#include "host/values/text.h"
#include "module/cash/bank_transfer.h"
#include "module/masterdata/list_row.h"
#include "module/refuse.h"
#include "module/trade/document_number.h"
#include "module/trade/summary_field.h"
#include "module/trade/trade_code.h"

namespace module {

namespace {

constexpr NumberSeries numbers{"648", "D653"};

// What a person enters; a change of any of it by somebody else is a change of the document.
constexpr const char* entered_columns[] = {"BDATE", "JY_ID_FK", "JY_ID_SK", "MONEY",  "ZY",
                                           "YW_ID", "BM_ID",    "USER_ID"};

} // namespace

// ---- opening ----

TF6648_1::TF6648_1(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "银行存取款单";
    PreferredWidth = 72;
    Edit1.MaxLength = 20;
    Edit1.OnExit = [this] { Edit1Exit(); };
    for (TLinkEdit* account : {&JY_ID_FK, &JY_ID_SK})
        bind_trade_code(*this, *account, money_accounts);
    bind_trade_code(*this, YW_ID, staff);
    bind_trade_code(*this, BM_ID, departments);
    offer_summaries(*this, EDIT2);
    USER_NAME.ReadOnly = true;
    USER_NAME.TabStop = false;
    Act_Print.Right = "print";
    Act_Print.OnExecute = [this] { btn_frf(); };
    PrintButton.KeyHint = "Ctrl+P";
    PrintButton.OnClick = [this] { Act_Print.Execute(); };
    FirstField = &JY_ID_FK; // the number comes by itself
    layout = Rows({Columns({Field(Edit1.Caption, Edit1, 20), Field(BDATE.Caption, BDATE, 12)}),
                   Field(JY_ID_FK.Caption, JY_ID_FK, 12),
                   Field(JY_ID_SK.Caption, JY_ID_SK, 12),
                   Columns({Field(MONEY.Caption, MONEY, 18), Spring()}),
                   Field(EDIT2.Caption, EDIT2, 48),
                   Columns({Field(YW_ID.Caption, YW_ID, 12), Field(BM_ID.Caption, BM_ID, 12)}),
                   Columns({Field(USER_NAME.Caption, USER_NAME, 12), Spring()}),
                   Buttons({&PrintButton, &btn_ok, &btn_Cancel})});
}

void TF6648_1::RefreshData() {
    LockedField = &Edit1;
    lock(false);
    if (adding())
        clear();
    else
        fill_from(*List);
    TFrm_Base_Detail::RefreshData();
}

void TF6648_1::OpenNoid(const std::string& key) {
    TClientDataSet document;
    opensql(document, FunctionCode, select_transfer(key));
    if (document.IsEmpty()) refuse("单据“" + key + "”已不存在,可能已被他人删除!");
    Mode = "ReadOnly";
    fill_from(document);
    lock(true);
}

void show_bank_transfer(const std::string& number, TForm* opener) {
    TF6648_1 dialog(opener);
    dialog.FunctionCode = numbers.code;
    dialog.OpenNoid(number);
    dialog.ShowModal();
}

void TF6648_1::clear() {
    for (TEdit* edit : {static_cast<TEdit*>(&Edit1), static_cast<TEdit*>(&JY_ID_FK),
                        static_cast<TEdit*>(&JY_ID_SK), static_cast<TEdit*>(&MONEY),
                        static_cast<TEdit*>(&EDIT2), static_cast<TEdit*>(&YW_ID),
                        static_cast<TEdit*>(&BM_ID)})
        edit->Text = "";
    for (TLinkEdit* code : {&JY_ID_FK, &JY_ID_SK, &YW_ID, &BM_ID}) code->DisplayName = "";
    BDATE.set(the_host().clock->today());
    USER_NAME.Text = G_UserName;
}

void TF6648_1::fill_from(const TClientDataSet& row) {
    const auto text = [&](const char* field) { return row.FieldByName(field).AsText(); };
    Edit1.Text = text("NOID");
    EDIT2.Text = text("ZY");
    show_code(JY_ID_FK, row, "JY_ID_FK", "JY_NAME_FK");
    show_code(JY_ID_SK, row, "JY_ID_SK", "JY_NAME_SK");
    show_code(YW_ID, row, "YW_ID", "YW_NAME");
    show_code(BM_ID, row, "BM_ID", "BM_NAME");
    MONEY.set(row.FieldByName("MONEY").AsAmount());
    USER_NAME.Text = text("USER_NAME");
    BDATE.Text = text("BDATE").substr(0, 10);
}

void TF6648_1::lock(bool only_shown) {
    for (TWinControl* field : {static_cast<TWinControl*>(&Edit1),
                               static_cast<TWinControl*>(&BDATE),
                               static_cast<TWinControl*>(&JY_ID_FK),
                               static_cast<TWinControl*>(&JY_ID_SK),
                               static_cast<TWinControl*>(&MONEY),
                               static_cast<TWinControl*>(&EDIT2),
                               static_cast<TWinControl*>(&YW_ID),
                               static_cast<TWinControl*>(&BM_ID)})
        field->ReadOnly = only_shown;
    btn_ok.Visible = !only_shown;
    btn_Cancel.Caption = only_shown ? "关闭" : "取消";
    Act_Print.Visible = can_print() && !adding();
    PrintButton.Visible = Act_Print.Visible.get();
}

// ---- leaving a field ----

void TF6648_1::Edit1Exit() {
    if (adding()) settle_number(*this, Edit1, numbers);
}

// ---- checking ----

void TF6648_1::check_accounts() {
    const std::string receiving = trimmed(JY_ID_SK.Text.get());
    if (receiving == trimmed(JY_ID_FK.Text.get())) {
        JY_ID_FK.SetFocus();
        refuse("付款帐户 和 收款帐户 不能相同!");
    }
    CheckBlank(JY_ID_FK, "付款帐户");
    CheckBlank(JY_ID_SK, "收款帐户");
}

void TF6648_1::check_unchanged() {
    TClientDataSet stored;
    const std::string number = List->FieldByName("NOID").AsText();
    for (const char* column : {"BDATE", "MONEY"})
        stored.DefineField(column, List->FieldByName(column).Type);
    opensql(stored, FunctionCode, select_transfer(number));
    if (stored.IsEmpty()) refuse("单据“" + number + "”已被他人删除,不能保存!请退出后刷新列表。");
    for (const char* column : entered_columns) {
        if (stored.FieldByName(column).AsText() == List->FieldByName(column).AsText()) continue;
        refuse("单据“" + number + "”已被他人修改,不能保存!请退出后刷新列表,再修改。");
    }
}

// ---- saving ----

BankTransfer TF6648_1::entered() const {
    return {.number = trimmed(Edit1.Text.get()),
            .date = BDATE.value().to_text(),
            .paying = trimmed(JY_ID_FK.Text.get()),
            .receiving = trimmed(JY_ID_SK.Text.get()),
            .amount = MONEY.sent_text(),
            .summary = EDIT2.Text,
            .staff = trimmed(YW_ID.Text.get()),
            .department = trimmed(BM_ID.Text.get()),
            .operator_id = G_UserId};
}

void TF6648_1::SaveData() {
    check_accounts();
    if (!adding()) check_unchanged();
    const BankTransfer transfer = entered();
    const std::string statement =
        adding() ? insert_transfer(transfer)
                 : update_transfer(transfer, List->FieldByName("NOID").AsText());
    saved_ = ExecSql(FunctionCode, transfer.number, Mode, statement) == "Y";
    if (!saved_) return;
    USER_NAME.Text = G_UserName; // whoever changes a document answers for it
    write_row(transfer);
}

void TF6648_1::write_row(const BankTransfer& saved) {
    write_list_row(*List, adding(),
                   {{"NOID", saved.number},
                    {"ZY", saved.summary},
                    {"JY_ID_FK", saved.paying},
                    {"JY_NAME_FK", JY_ID_FK.DisplayName.get()},
                    {"JY_ID_SK", saved.receiving},
                    {"JY_NAME_SK", JY_ID_SK.DisplayName.get()},
                    {"YW_ID", saved.staff},
                    {"YW_NAME", YW_ID.DisplayName.get()},
                    {"BM_ID", saved.department},
                    {"BM_NAME", BM_ID.DisplayName.get()},
                    {"MONEY", MONEY.value()},
                    {"USER_ID", saved.operator_id},
                    {"USER_NAME", USER_NAME.Text.get()},
                    {"BDATE", DateTime{BDATE.value()}}});
}

// ---- printing ----

void TF6648_1::btn_frf() {
    CommitActive();
    if (has_unsaved_work()) refuse("单据还没有保存，请先按 F2 保存再打印!");
    the_host().ui->print(*paper_of(slip()), false);
}

Sheet TF6648_1::slip() const {
    const auto name = [](const TLinkEdit& edit) {
        return edit.Text.get() + " " + edit.DisplayName.get();
    };
    const std::vector<std::string> cells = {name(JY_ID_FK), name(JY_ID_SK),
                                            MONEY.value().to_text(2), EDIT2.Text.get()};
    Sheet sheet;
    sheet.title = Caption;
    sheet.conditions = {"单号：" + Edit1.Text.get() + "    日期：" + BDATE.Text.get(),
                        "经手人：" + YW_ID.DisplayName.get() + "    部门：" +
                            BM_ID.DisplayName.get() + "    制单人：" + USER_NAME.Text.get()};
    sheet.columns = {{.title = "付款帐户", .width = 20},
                     {.title = "收款帐户", .width = 20},
                     {.title = "金额", .width = 16, .align = Alignment::Right},
                     {.title = "摘要", .width = -1}};
    sheet.rows = 1;
    sheet.cell = [cells](int, int column) {
        const std::string& text = cells[static_cast<std::size_t>(column)];
        return SheetCell{.value = text, .text = text};
    };
    sheet.signatures = {"审核", "出纳", "经手人"};
    return sheet;
}

} // namespace module
