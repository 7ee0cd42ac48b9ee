// What the entry of other receipts and of other payments share: all but a table of differences.
#include "module/other_documents/other_document.h"

#include "host/controls/amount_column.h"
#include "host/ports/host.h"
#include "host/values/code_match.h"
#include "module/masterdata/Ulink_6804.h"
#include "module/refuse.h"
#include "module/trade/summary_field.h"

namespace module {

namespace {

constexpr const char* party_account = "0";
constexpr int category_column = 0;

struct Category {
    std::string code, name, pinyin;
};

std::vector<Category> read_categories(const std::string& function, const OtherDocumentKind& kind) {
    TClientDataSet rows;
    opensql(rows, function, select_categories(kind));
    std::vector<Category> categories;
    for (rows.First(); !rows.Eof(); rows.Next()) {
        categories.push_back({rows.FieldByName("SZLB").AsText(),
                              rows.FieldByName("SZLB_NAME").AsText(),
                              rows.FieldByName("PYM").AsText()});
    }
    return categories;
}

} // namespace

// ---- opening ----

OtherDocument::OtherDocument(TForm* parent, const OtherDocumentKind& kind)
    : Tfrm_Base_Entry_Body(parent), kind_(kind) {
    Caption = kind.caption;
    FunctionCode = kind.numbers.code;
    Edit1.MaxLength = 20;
    KH_GYS_ID.Caption = kind.party_caption;
    JY_ID.Caption = kind.account_caption;
    CB1.Items = std::vector<std::string>{kind.settled, kind.open};
    OpenHint.Caption = kind.open_hint;
    for (TNumberEdit* shown : {&TOLMONEY, &SUMMONEY}) {
        shown->ReadOnly = true;
        shown->TabStop = false;
    }
    build_columns();
    bind_events();
    build_layout();
}

void OtherDocument::build_columns() {
    AdoQry_Main.DefineField("SZLB", FieldType::Text);
    AdoQry_Main.DefineField("SZLB_NAME", FieldType::Text);
    AdoQry_Main.DefineField("MONEY", FieldType::Amount).DisplayFormat = "0.00";
    AdoQry_Main.DefineField("NOTE", FieldType::Text, 200);
    GridColumn category{.FieldName = "SZLB", .Title = "代码", .Width = 10};
    category.Button = true;
    GridColumn name{
        .FieldName = "SZLB_NAME", .Title = kind_.category_title, .Width = 28, .ReadOnly = true};
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    DBGridEh.Columns = {category, name, amount_column("MONEY", "金额", 18),
                        {.FieldName = "NOTE", .Title = "备注", .Width = -1}};
    DBGridEh.FixedOrder = true;
}

void OtherDocument::build_layout() {
    layout = Rows(
        {ToolBar({&Act_Save, nullptr, &Act_AddLine, &Act_DeleteLine, nullptr, &Act_Print,
                  &Act_Preview, nullptr, &Act_Quit}),
         Columns({Title(kind_.caption), Space(),
                  Rows({Field("单    号", Edit1, 18), Field(kind_.party_caption, KH_GYS_ID, 10),
                        Field("摘    要", NOTE, 23)}),
                  Rows({Field("日    期", BDATE, 12), Field("单据类型", CB1, 12),
                        Field(kind_.account_caption, JY_ID, 6)}),
                  Rows({Field("经 手 人", YW_ID, 8), Field("部    门", BM_ID, 8), Spring()}),
                  Spring()}),
         Control(OpenHint), Control(LockReason), Rest(DBGridEh),
         Columns({Text("制单人:"), Control(USER_NAME), Spring(), Field("应结算金额", TOLMONEY, 14),
                  Field("已结算金额", SUMMONEY, 14)}),
         StatusLine({Text("Enter 下一格，行末加行"), Text("F4 选择"), Spring(),
                     Text("金额为 0 的行不保存")})});
}

void OtherDocument::bind_events() {
    offer_trade_codes(KH_GYS_ID, kind_.party);
    KH_GYS_ID.OnExit = [this] { require_trade_code(*this, KH_GYS_ID, kind_.party); };
    offer_trade_codes(JY_ID, money_accounts);
    JY_ID.OnExit = [this] { JY_IDExit(); };
    bind_trade_code(*this, YW_ID, staff);
    bind_trade_code(*this, BM_ID, departments);
    offer_summaries(*this, NOTE);
    Edit1.OnExit = [this] { Edit1Exit(); };
    CB1.OnChange = [this] { CB1Change(); };
    AdoQry_Main.FieldByName("SZLB").OnSetText = [this](TField& field, const std::string& typed) {
        WL_IDSetText(field, typed);
    };
    AdoQry_Main.FieldByName("MONEY").OnSetText = [this](TField& field, const std::string& typed) {
        SetFloatText(field, typed);
    };
    AdoQry_Main.OnDataChange = [this](TField*) { lock_category_where_set(); };
    DBGridEh.OnSuggest = [this](const GridColumn& column, const std::string& typed) {
        return suggest(column, typed);
    };
}

void OtherDocument::OpenNoid(const std::string& key) {
    opensql(AdoQry_Head, FunctionCode, select_head(kind_, key));
    opensql(AdoQry_Main, FunctionCode, select_lines(kind_, key));
    if (AdoQry_Head.IsEmpty()) refuse("单据“" + key + "”已不存在!请刷新后再试。");
    opened_.remember(AdoQry_Head, AdoQry_Main, select_head(kind_, key), select_lines(kind_, key));
    Tfrm_Base_Entry_Body::OpenNoid(key);
}

void OtherDocument::RefreshData() {
    Tfrm_Base_Entry_Body::RefreshData();
    if (Mode == "Add") {
        begin_new();
    } else {
        show_stored_head();
    }
    if (new_document()) {
        Edit1.Text = fresh_number(kind_.numbers);
        BDATE.set(the_host().clock->today());
        TOLMONEY.Text = "0";
        SUMMONEY.Text = "0";
        USER_NAME.Caption = G_UserName;
    }
    lock_what_stays();
    CB1Change();
    lock_category_where_set();
    SetTabTitle(Caption.get() + " " + Edit1.Text.get());
}

// The number is there already: who types all day begins with the party.
void OtherDocument::FormShow() {
    Tfrm_Base_Entry_Body::FormShow();
    go_to_first_field();
}

void OtherDocument::go_to_first_field() {
    if (new_document() && KH_GYS_ID.usable()) SetFocusTo(KH_GYS_ID);
}

void OtherDocument::begin_new() {
    opensql(AdoQry_Main, FunctionCode, select_blank_lines(kind_));
    for (TLinkEdit* field : {&KH_GYS_ID, &NOTE, &YW_ID, &BM_ID}) {
        field->Text = "";
        field->DisplayName = "";
    }
    CB1.set_index(0);
    show_cash(JY_ID);
}

void OtherDocument::show_stored_head() {
    const auto text = [this](const char* field) { return AdoQry_Head.FieldByName(field).AsText(); };
    const auto show = [this](TLinkEdit& edit, const char* code, const char* name) {
        show_code(edit, AdoQry_Head, code, name);
    };
    Edit1.Text = text("NOID");
    show(KH_GYS_ID, "KH_GYS_ID", "KG_NAME");
    show(YW_ID, "YW_ID", "YW_NAME");
    show(BM_ID, "BM_ID", "BM_NAME");
    CB1.set_index(AdoQry_Head.FieldByName("C").AsInteger() == 0 ? 0 : 1);
    show(JY_ID, "JY_ID", "JY_NAME");
    NOTE.Text = text("ZY");
    BDATE.set(AdoQry_Head.FieldByName("BDATE").AsDateTime().date);
    TOLMONEY.set(AdoQry_Head.FieldByName("TOLMONEY").AsAmount());
    SUMMONEY.set(AdoQry_Head.FieldByName("SUMMONEY").AsAmount());
    USER_NAME.Caption = text("USER_NAME");
}

// A saved document keeps its number and type; an open one also its account, since no money moved.
void OtherDocument::lock_what_stays() {
    const bool stored = !new_document();
    Edit1.ReadOnly = stored;
    CB1.ReadOnly = stored;
    JY_ID.ReadOnly = stored && stays_open();
}

// ---- leaving a field ----

void OtherDocument::Edit1Exit() {
    settle_number(*this, Edit1, kind_.numbers);
    SetTabTitle(Caption.get() + " " + Edit1.Text.get());
}

void OtherDocument::JY_IDExit() {
    if (stays_open()) {
        if (JY_ID.Text.get() == party_account) JY_ID.DisplayName = kind_.party_account;
        else require_trade_code(*this, JY_ID, money_accounts);
        return;
    }
    CheckBlank(JY_ID, kind_.account_caption);
    require_trade_code(*this, JY_ID, money_accounts);
}

// A copy of an open document that is to be settled at once needs an account that holds money.
void OtherDocument::CB1Change() {
    OpenHint.Visible = stays_open();
    if (stays_open() || JY_ID.Text.get() != party_account) return;
    show_cash(JY_ID);
}

// ---- lines ----

// What a line is about is settled once it stands there; another category is another line.
void OtherDocument::lock_category_where_set() {
    GridColumn& category = DBGridEh.Columns[category_column];
    const bool being_added = AdoQry_Main.State() == DataSetState::Insert;
    category.ReadOnly = AdoQry_Main.Active() && !being_added && !AdoQry_Main.IsEmpty() &&
                        !AdoQry_Main.FieldByName("SZLB").AsText().empty();
}

void OtherDocument::FormKeyPress(char32_t& character) {
    lock_category_where_set();
    Tfrm_Base_Entry_Body::FormKeyPress(character);
}

void OtherDocument::ColumnClick(GridColumn& column) {
    if (column.FieldName != "SZLB") return;
    TFLINK_6804 picker(this);
    picker.FunctionCode = kind_.numbers.code;
    if (picker.ShowModal() != mrOk) return;
    take_category(picker.AdoQry_Main.FieldByName("SZLB").AsText(),
                  picker.AdoQry_Main.FieldByName("SZLB_NAME").AsText());
}

void OtherDocument::take_category(const std::string& code, const std::string& name) {
    AdoQry_Main.Edit();
    AdoQry_Main.FieldByName("SZLB").SetValue(code);
    AdoQry_Main.FieldByName("SZLB_NAME").SetValue(name);
}

// A text that is no code but fits one category by name or pinyin stands for that category.
void OtherDocument::WL_IDSetText(TField&, const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty()) return take_category("", "");
    const std::vector<Category> categories = read_categories(FunctionCode, kind_);
    for (const Category& category : categories)
        if (same_text(category.code, text)) return take_category(category.code, category.name);
    const auto found = rows_fitting(categories, text);
    if (found.size() == 1) return take_category(found.front()->code, found.front()->name);
    const std::string title = kind_.category_title;
    if (found.empty()) refuse(title + "“" + text + "”不存在!请按 F4 选择，或先在收支类别中新增。");
    refuse("有 " + std::to_string(found.size()) + " 个" + title + "与“" + text +
           "”相符!请录入完整的代码，或按 F4 选择。");
}

std::vector<TDBGridEh::Suggestion> OtherDocument::suggest(const GridColumn& column,
                                                          const std::string& typed) {
    std::vector<TDBGridEh::Suggestion> suggestions;
    if (column.FieldName != "SZLB" || trimmed(typed).empty()) return suggestions;
    const std::vector<Category> categories = read_categories(FunctionCode, kind_);
    for (const Category* category : rows_fitting(categories, typed))
        suggestions.push_back({category->code, {category->code, category->name}, category->code});
    return suggestions;
}

void OtherDocument::SetFloatText(TField& field, const std::string& typed) {
    Tfrm_Base_Entry_Body::SetFloatText(field, typed);
    if (!field.IsNull()) field.SetValue(field.AsAmount().rounded(2));
}

// ---- checking ----

bool OtherDocument::AllCheck() {
    if (!Tfrm_Base_Entry_Body::AllCheck()) return false;
    check_somebody_is_named();
    check_categories();
    CheckDate(BDATE, "日期");
    return true;
}

void OtherDocument::check_somebody_is_named() {
    const bool no_party = trimmed(KH_GYS_ID.Text.get()).empty();
    const bool nobody = no_party && trimmed(YW_ID.Text.get()).empty() &&
                        trimmed(BM_ID.Text.get()).empty();
    if (!(stays_open() && no_party) && !nobody) return;
    KH_GYS_ID.SetFocus();
    refuse(stays_open() && no_party ? kind_.party_missing : kind_.nobody_named);
}

void OtherDocument::check_categories() {
    const auto blank = [this] { return trimmed(AdoQry_Main.FieldByName("SZLB").AsText()).empty(); };
    if (AdoQry_Main.RecordCount() > 1 && blank()) AdoQry_Main.Delete();
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(AdoQry_Main, row);
        if (!blank()) continue;
        DBGridEh.set_row(row);
        refuse("收支类别  不可以为空白!请将此行删除!");
    }
}

// ---- statements ----

OtherDocumentHead OtherDocument::head_to_save(const std::string& total) const {
    return {.number = Edit1.Text,
            .open = stays_open(),
            .party = KH_GYS_ID.Text,
            .staff = YW_ID.Text,
            .department = BM_ID.Text,
            .account = JY_ID.Text,
            .date = BDATE.Text,
            .summary = NOTE.Text,
            .user = G_UserId,
            .total = total};
}

std::string OtherDocument::lines_to_save() const {
    std::string batch;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(AdoQry_Main, row);
        const Amount amount = AdoQry_Main.FieldByName("MONEY").AsAmount();
        if (amount.is_zero()) continue;
        batch += insert_line(kind_, Edit1.Text,
                             {AdoQry_Main.FieldByName("SZLB").AsText(), amount,
                              AdoQry_Main.FieldByName("NOTE").AsText()});
    }
    return batch;
}

// ---- saving ----

void OtherDocument::Act_SaveExecute() {
    Tfrm_Base_Entry_Body::Act_SaveExecute();
    if (!Closed()) go_to_first_field();
}

void OtherDocument::SaveData() {
    const std::string lines = lines_to_save();
    if (lines.empty()) refuse("表格至少有一行填写金额!");
    const Amount sum = AdoQry_Main.Sum("MONEY");
    TOLMONEY.set(sum);
    if (!stays_open()) SUMMONEY.set(sum);
    const bool edits = Mode == "Edit";
    const OtherDocumentHead head = head_to_save(sum.to_text());
    const std::string number = head.number;
    const std::string batch = (edits ? update_head(kind_, head) : insert_head(kind_, head)) +
                              (head.open ? recompute_open_amount(kind_, number) : "") +
                              (edits ? delete_lines(kind_, number) : "") + lines;
    if (opened_.save(FunctionCode, number, Mode, batch) == "Y") Saved(number);
}

} // namespace module
