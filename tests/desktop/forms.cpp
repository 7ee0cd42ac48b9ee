// The small forms: their fields, grids and rules.
#include "tests/desktop/forms.h"

#include "host/contract/U_function.h"
#include "host/contract/Zpy.h"
#include "host/values/errors.h"

namespace tests {

using namespace host;

namespace {

struct Account {
    const char* code;
    const char* name;
};
constexpr Account accounts[] = {{"1001", "现金"},     {"100201", "银行存款-工行园区支行"},
                                {"1131", "应收帐款"}, {"2131", "预收帐款"},
                                {"550102", "营业费用-运输费"}, {"550302", "财务费用-手续费"}};

std::vector<Suggestion> matching_accounts(const std::string& typed) {
    std::vector<Suggestion> found;
    for (const auto& [code, name] : accounts) {
        const std::string pinyin = GetPY(name);
        const bool match = std::string(code).find(typed) != std::string::npos ||
                           std::string(name).find(typed) != std::string::npos ||
                           pinyin.find(typed) != std::string::npos;
        if (match) found.push_back({code, {code, name, pinyin, "借", "12000.00"}, code});
    }
    return found;
}

std::string name_of_account(const std::string& code) {
    for (const auto& account : accounts)
        if (code == account.code) return account.name;
    return "";
}

std::string upper(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

} // namespace

TVoucherForm::TVoucherForm(TForm* parent) : TForm(parent) {
    Caption = "记帐凭证";
    Tag = 661;
    PZZ.Items = std::vector<std::string>{"记"};
    PZZ.set_index(0);
    PZZ_H.set(39);
    PZZ_Z.set(3);
    BDATE.set(*Date::of(2016, 6, 28));
    Maker.Bold = false;
    build_grid();
    Act_Save.OnExecute = [this] { save(); };
    Act_AddLine.OnExecute = [this] { DBGridEh.set_row(Lines.RecordCount()); };
    Act_Quit.OnExecute = [this] { Close(); };
    Lines.OnDataChange = [this](TField*) { show_difference(); };
    layout = Rows({ToolBar({&Act_Save, nullptr, &Act_AddLine, nullptr, &Act_Print, &Act_Quit}),
                   Columns({Field("凭证字", PZZ, 6), Field("", PZZ_H, 8), Spring(),
                            Rows({Title("记帐凭证"), Columns({Spring(), Control(PZQJ), Spring()})}),
                            Spring(), Field("日期", BDATE, 12), Field("附单据(张)", PZZ_Z, 6)}),
                   Rest(DBGridEh),
                   Columns({Text("制单人:"), Control(Maker), Spring(), Control(Difference)}),
                   StatusLine({Text("[Enter] 下一格，行末加行    [空格] 借贷互换    [F4] 选择"),
                               Spring(), Text("借贷相等且两行以上可保存")})});
    show_difference();
}

void TVoucherForm::build_grid() {
    Lines.DefineField("ZY", FieldType::Text, 100);
    TField& code = Lines.DefineField("KM_ID", FieldType::Text, 50);
    Lines.DefineField("KM_NAME_NEW", FieldType::Text, 80);
    for (const char* side : {"J", "D"})
        Lines.DefineField(side, FieldType::Amount).DisplayFormat = "0.00";
    code.OnSetText = [this](TField& field, const std::string& typed) {
        if (name_of_account(typed).empty()) {
            DISPINFO("科目不存在!", 5);
            Abort();
        }
        field.SetValue(typed);
        Lines.FieldByName("KM_NAME_NEW").SetValue(name_of_account(typed));
    };
    Lines.Open();
    GridColumn summary{.FieldName = "ZY", .Title = "摘要", .Width = -1, .Button = true};
    GridColumn account{.FieldName = "KM_ID", .Title = "科目", .Width = 11, .Button = true};
    GridColumn name{.FieldName = "KM_NAME_NEW", .Title = "会计科目", .Width = 36, .ReadOnly = true};
    GridColumn debit{.FieldName = "J", .Title = "借方金额", .Tag = 9, .RuledAmount = true,
                     .Footer = FooterKind::Sum};
    GridColumn credit = debit;
    credit.FieldName = "D";
    credit.Title = "贷方金额";
    DBGridEh.Columns = {summary, account, name, debit, credit};
    DBGridEh.OnButtonClick = [](GridColumn&) {};
    DBGridEh.OnSuggest = [](const GridColumn& column, const std::string& typed) {
        return column.FieldName == "KM_ID" ? matching_accounts(upper(typed))
                                           : std::vector<Suggestion>();
    };
}

void TVoucherForm::add_line(const std::string& summary, const std::string& account, Amount debit,
                            Amount credit) {
    Lines.Append();
    Lines.FieldByName("ZY").SetValue(summary);
    Lines.FieldByName("KM_ID").SetValue(account);
    Lines.FieldByName("KM_NAME_NEW").SetValue(name_of_account(account));
    Lines.FieldByName("J").SetValue(debit);
    Lines.FieldByName("D").SetValue(credit);
    Lines.Post();
}

void TVoucherForm::show_difference() {
    const Amount difference = Lines.Sum("J") - Lines.Sum("D");
    Difference.Visible = !difference.is_zero();
    Difference.FontColor = 255;
    const bool debit = !difference.is_negative();
    Difference.Caption = std::string("差额  ") + (debit ? "借多 " : "贷多 ") +
                         (debit ? difference : -difference).to_text();
}

void TVoucherForm::save() {
    CommitActive();
    if (Lines.editing()) Lines.Post();
    if (Lines.Sum("J") != Lines.Sum("D")) {
        DISPINFO("借贷不平衡!", 5);
        Abort();
    }
    Lines.MarkSaved();
    ++saved;
}

TListForm::TListForm(int rows, TForm* parent) : TForm(parent) {
    Caption = "录凭证";
    Tag = 662;
    Heads.DefineField("PZQJ", FieldType::Text, 7);
    Heads.DefineField("PZZ", FieldType::Text, 4);
    Heads.DefineField("PZZ_H", FieldType::Integer);
    Heads.DefineField("KM_NAME", FieldType::Text, 80);
    for (const char* amount : {"B1", "B2", "C1", "C2"})
        Heads.DefineField(amount, FieldType::Amount).DisplayFormat = "0.00";
    Heads.DefineField("T", FieldType::Integer);
    Heads.DefineField("D", FieldType::Boolean);
    Heads.Open();
    Heads.DisableControls();
    for (int i = 1; i <= rows; ++i) {
        Heads.Append();
        const Value values[] = {std::string("2016-06"), std::string("记"), std::int64_t(i),
                                std::string(i % 3 == 0 ? "银行存款-工行园区支行" : "应收帐款"),
                                Amount::from_cents(123456789), Amount::from_cents(0),
                                Amount::from_cents(i % 7 == 0 ? -702000 : 1234550),
                                Amount::from_cents(39500), std::int64_t(i > rows - 3 ? 0 : 1),
                                i <= rows - 8};
        for (int field = 0; field < 10; ++field)
            Heads.Fields()[static_cast<std::size_t>(field)]->SetValue(values[field]);
        Heads.Post();
    }
    Heads.First();
    Heads.EnableControls();
    auto amount = [](const char* field, const char* title) {
        return GridColumn{.FieldName = field, .Title = title, .Width = 14, .Tag = 9,
                          .Footer = FooterKind::Sum};
    };
    DBGridEh.Columns = {
        {.FieldName = "PZQJ", .Title = "期间", .Width = 10},
        {.FieldName = "PZZ", .Title = "凭证字", .Width = 8, .Align = Alignment::Center},
        {.FieldName = "PZZ_H", .Title = "号", .Width = 6},
        {.FieldName = "KM_NAME", .Title = "会计科目", .Width = -1, .Footer = FooterKind::Text,
         .FooterText = "（仅合计一级科目）  合计："},
        amount("B1", "期初余额|借方"),
        amount("B2", "期初余额|贷方"),
        amount("C1", "本期发生额|借方"),
        amount("C2", "本期发生额|贷方"),
        {.FieldName = "T", .Title = "审核", .Width = 6, .Align = Alignment::Center},
        {.FieldName = "D", .Title = "登帐", .Width = 6, .CheckBox = true}};
    DBGridEh.ReadOnly = true;
    DBGridEh.MultiSelect = true;
    DBGridEh.EmptyText = "您还没选择任何查询参数,请按【F3】呼出查询选项!";
    DBGridEh.OnGetCellParams = [this](TField& field, CellParams& params) {
        if (Heads.FieldByName("T").AsInteger() == 0) params.Background = 0xFFFF80;
        if (field.Type == FieldType::Amount && field.AsAmount().is_negative()) params.Font = 255;
    };
    Act_Refresh.OnExecute = [this] { ++refreshed; };
    Act_Quit.OnExecute = [this] { Close(); };
    layout =
        Rows({ToolBar({&Act_Add, &Act_Modify, nullptr, &Act_Refresh, nullptr, &Act_Quit}),
              Columns({Control(ConditionLabel), Spring(), Control(Balanced)}), Rest(DBGridEh)});
}

TDialogForm::TDialogForm(TForm* parent) : TForm(parent) {
    Caption = "查询条件";
    Year.Min = Amount::from_whole(2000);
    Year.Max = Amount::from_whole(2099);
    Year.set(2016);
    Month.Items = std::vector<std::string>{"5", "6", "7"};
    Month.set_index(1);
    Account.DisplayName = "应收帐款";
    Account.Text = "1131";
    Debit.Checked = true;
    Code.MaxLength = 4;
    Code.UpperCase = true;
    Code.OnExit = [this] {
        if (FocusTarget() == &btn_Cancel || Code.Text.get() != "X") return;
        DISPINFO("代号不能为X!", 5);
        Abort();
    };
    btn_ok.Default = true;
    btn_ok.KeyHint = "F2";
    btn_ok.ModalResult = mrOk;
    btn_Cancel.Cancel = true;
    btn_Cancel.KeyHint = "Esc";
    btn_Cancel.ModalResult = mrCancel;
    layout = Rows({Field("代    号", Code, 10),
                   Columns({Field("会计年度:", Year, 8), Text("2000 – 2099")}),
                   Field("会计期间:", Month, 8), Field("科目代码:", Account, 8),
                   Group("余额方向", {Columns({Control(Debit), Control(Credit), Spring()})}),
                   Control(Cash), Rule(), Text("帐套启用日期 2014-01    当前会计期间 2016-06"),
                   Buttons({&btn_ok, &btn_Cancel})});
}

TTreeForm::TTreeForm(TForm* parent) : TForm(parent) {
    Caption = "会计科目";
    Tag = 681;
    One.GroupIndex = Two.GroupIndex = 1;
    One.Down = true;
    TTreeNode* bank = Tree.AddRoot("1002 银行存款");
    Tree.AddChild(bank, "100201 工行园区支行");
    Tree.AddChild(bank, "100202 建行新区支行");
    Tree.AddRoot("1131 应收帐款");
    Tree.Select(bank);
    Act_Quit.OnExecute = [this] { Close(); };
    layout =
        Rows({ToolBar({&Act_Quit}), Columns({Control(One), Control(Two), Spring()}), Rest(Tree)});
}

} // namespace tests
