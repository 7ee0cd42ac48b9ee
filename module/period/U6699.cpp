// Enter the opening figures of every account, test whether they balance, and open the books.
#include "module/period/U6699.h"

#include "host/values/text.h"
#include "module/period/U6699_1.h"
#include "module/period/U6699_2.h"
#include "module/refuse.h"

namespace module {

TF6699* F6699 = nullptr;

namespace {

constexpr const char* typed_fields[] = {"BEGIN2", "BEGIN3", "BEGIN4", "BEGIN5"};

const char* const already_set_up =
    "帐套已启用，期初数据不能被更改!如需更改请从[期末结帐]模块反结至开帐前!";

} // namespace

// ---- opening ----

TF6699::TF6699(TForm* parent) : TFrm_Base_Inner(parent) {
    Caption = "会计科目初始";
    hide({&Act_Add, &Act_Delete}); // accounts come and go in the chart
    Act_Other.Caption = "试算平衡";
    Act_Other.Icon = "scale";
    Act_Other.Visible = true;
    ReadOnlyHint.Caption = already_set_up;
    for (TLabel* step : {&LA1, &LA2, &LA3}) {
        step->OnClick = [this, step] { LACLICK(*step); };
    }
    LA3.Hint = "试算平衡表上点击确定后进行";
    build_columns();
    layout = Rows({ToolBar({&Act_Save, &Act_Other, nullptr, &Act_Refresh, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Control(LA1), Space(2), Control(LA2), Space(2), Control(LA3),
                            Control(LA4), Control(ReadOnlyHint), Spring()}),
                   Rest(DBGridEh),
                   StatusLine({Control(YearOpening), Control(Accumulated), Control(Opening)})});
}

void TF6699::build_columns() {
    AddColumn("KM_ID", "科目代码", 12).ReadOnly = true;
    GridColumn& name = AddColumn("KM_NAME2", "科目名称", -1);
    name.ReadOnly = true;
    name.Footer = FooterKind::Text;
    name.FooterText = "合计：";
    GridColumn& side = AddColumn("FX", "方向", 6);
    side.ReadOnly = true;
    side.Align = Alignment::Center;
    AddAmountColumn("BEGIN1", "年初余额", 16).ReadOnly = true;
    AddAmountColumn("BEGIN2", "本年累计借方", 16);
    AddAmountColumn("BEGIN3", "本年累计贷方", 16);
    AddAmountColumn("BEGIN4", "期初余额", 16);
    AddAmountColumn("BEGIN5", "本年累计损益", 16);
    for (const char* field : typed_fields) {
        AdoQry_Main.FieldByName(field).OnSetText = [this](TField& typed, const std::string& text) {
            SetFloatText(typed, text);
        };
    }
    AdoQry_Main.BeforeInsert = [] { Abort(); };
    AdoQry_Main.OnDataChange = [this](TField*) { refresh_totals(); };
    DBGridEh.AppendOnEnter = false;
    DBGridEh.OnColEnter = [this] { DBGridEhColEnter(); };
    DBGridEh.SelectField("BEGIN2");
}

void TF6699::InitForm(const Trecord& record) {
    SqlText = "SELECT * FROM V6801 WHERE ISEND=1 order by km_id";
    TableName = "D6801";
    KeyField = "KM_ID";
    SumFields = "BEGIN2,BEGIN3";
    TFrm_Base_Inner::InitForm(record);
}

void TF6699::GetData() {
    set_read_only(!Getsysinfo("period").empty());
    TFrm_Base_Inner::GetData();
    refresh_totals();
}

// What the books were opened with stays as it was posted.
void TF6699::set_read_only(bool set_up) {
    DBGridEh.ReadOnly = set_up;
    Act_Save.Enabled = !set_up;
    Act_Other.Enabled = !set_up;
    for (TLabel* step : {&LA1, &LA2, &LA3, &LA4}) step->Visible = !set_up;
    ReadOnlyHint.Visible = set_up;
}

// ---- lines ----

void TF6699::DBGridEhColEnter() {
    if (DBGridEh.column() >= DBGridEh.column_index("BEGIN2")) return;
    DBGridEh.SelectField("BEGIN2");
    Abort();
}

void TF6699::SetFloatText(TField& field, const std::string& typed) {
    AdoQry_Main.Edit();
    TFrm_Base_Inner::SetFloatText(field, trimmed(typed).empty() ? "0" : typed);
    field.SetValue(field.AsAmount().rounded(2));
    const auto amount = [&](const char* name) { return AdoQry_Main.FieldByName(name).AsAmount(); };
    const OpeningFigures figures{AdoQry_Main.FieldByName("FX").AsText(), amount("BEGIN2"),
                                 amount("BEGIN3"), amount("BEGIN4")};
    AdoQry_Main.FieldByName("BEGIN1").SetValue(figures.year_opening());
}

void TF6699::refresh_totals() {
    if (!AdoQry_Main.Active()) return;
    const auto show = [](TLabel& label, const std::string& title, const BothSides& sides) {
        label.Caption = title + "  借 " + sides.debit.to_text() + "  贷 " +
                        sides.credit.to_text() + "  " + sides.verdict();
        label.FontColor = sides.balanced() ? clDefault : clRed;
    };
    const auto field = [&](const char* name) { return AdoQry_Main.FieldByName(name).index(); };
    BothSides year, accumulated, opening;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const auto amount = [&](const char* name) {
            const Value value = AdoQry_Main.value_at(row, field(name));
            const auto* held = std::get_if<Amount>(&value);
            return held ? *held : Amount();
        };
        const std::string side = AdoQry_Main.text_at(row, field("FX"));
        year.add(side, amount("BEGIN1"));
        accumulated.add("借", amount("BEGIN2"));
        accumulated.add("贷", amount("BEGIN3"));
        opening.add(side, amount("BEGIN4"));
    }
    show(YearOpening, "年初余额", year);
    show(Accumulated, "本年累计", accumulated);
    show(Opening, "期初余额", opening);
}

// ---- the steps ----

void TF6699::LACLICK(const TLabel& step) {
    CommitActive();
    if (&step == &LA1 && has_unsaved_work()) Act_Save.Execute();
    if (&step != &LA2) return; // the third follows from the second
    if (has_unsaved_work()) return DISPINFO("请保存后再进行试算平衡!", 5), void();
    test_balance_and_post();
}

void TF6699::test_balance_and_post() {
    TF6699_1 F6699_1(this);
    if (F6699_1.Open("Edit", "", nullptr) != mrOk || !F6699_1.accepted()) return;
    TF6699_2 F6699_2(this);
    if (F6699_2.ShowModal() == mrOk) Close();
}

// ---- saving ----

void TF6699::SaveData() {
    if (!Getsysinfo("period").empty()) refuse(already_set_up);
    TFrm_Base_Inner::SaveData();
}

} // namespace module
