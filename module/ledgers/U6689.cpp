// Show each account's balances and turnover of a period, and whether the books balance.
#include "module/ledgers/U6689.h"

#include "module/filters/U6689f.h"
#include "module/ledgers/U6685.h"
#include "module/ledgers/ledger_call.h"

namespace module {

TF6689* F6689 = nullptr;

// ---- opening ----

TF6689::TF6689(TForm* parent) : TFrm_Base_Qry(parent) {
    Caption = "试算平衡表";
    AddColumn("KM_ID", "科目", 12);
    GridColumn& name = AddColumn("KM_NAME", "会计科目", -1);
    name.Footer = FooterKind::Text;
    name.FooterText = "（仅合计一级科目,仅显示有业务数据科目）  合计：";
    name.FooterAlign = Alignment::Right;
    add_side_by_side("期初余额", "B");   // opening balance
    add_side_by_side("本期发生额", "C"); // turnover of the period
    add_side_by_side("期末余额", "D");   // closing balance
    for (TSpeedButton* button : levels()) {
        button->GroupIndex = 1;
        const std::int64_t level = button->Caption.get()[0] - '0';
        button->OnClick = [this, level] { LevelClick(level); };
    }
    Balanced.Visible = Unbalanced.Visible = false;
    Balanced.FontColor = clBlue;
    Unbalanced.FontColor = clRed;
    Act_Open.OnExecute = [this] { DBGridEhDblClick(); };
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Open, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Control(ConditionLabel), Spring(), Text("科目级别"), Control(Level1),
                            Control(Level2), Control(Level3), Control(Level4), Control(Level5),
                            Space(2), Control(Balanced), Control(Unbalanced)}),
                   Rest(DBGridEh)});
}

// Footers add up the top level alone (BB1 for B1): a sum over all levels would count twice.
void TF6689::add_side_by_side(const std::string& title, const std::string& letter) {
    for (const char* side : {"1", "2"}) {
        const std::string field = letter + side;
        const std::string word = side[0] == '1' ? "借方" : "贷方";
        GridColumn& column = AddAmountColumn(field, title + "|" + word);
        column.Footer = FooterKind::Sum;
        column.FooterField = letter + field;
    }
}

void TF6689::InitForm(const Trecord& record) {
    Act_Add.Enabled = false;
    Act_Add.Visible = false;
    SumFields = "B1,B2,C1,C2,D1,D2";
    KeyField = "KM_ID";
    TFrm_Base_Qry::InitForm(record);
}

std::unique_ptr<TFrm_Sys_Filter> TF6689::CreateFilter() {
    auto dialog = std::make_unique<TF6689F>(this);
    F6689F = dialog.get();
    return dialog;
}

// ---- lines ----

void TF6689::GetData() {
    TFrm_Base_Qry::GetData();
    if (SqlText.empty()) return;
    refcon();
    show_level();
}

void TF6689::LevelClick(std::int64_t level) {
    if (!F6689F->ShowLevel(level)) return Act_Locate.Execute(), void();
    SqlText = F6689F->ResultText;
    ConditionLabel.Caption = F6689F->Description;
    GetData();
}

void TF6689::show_level() {
    const auto buttons = levels();
    const std::int64_t level = F6689F->EDT3.as_integer();
    buttons[static_cast<std::size_t>(level - 1)]->Down = true;
}

void TF6689::refcon() {
    const auto agree = [this](const char* debits, const char* credits) {
        return AdoQry_Main.Sum(debits) == AdoQry_Main.Sum(credits);
    };
    const bool balanced = agree("BB1", "BB2") && agree("CC1", "CC2") && agree("DD1", "DD2");
    Balanced.Visible = balanced;
    Unbalanced.Visible = !balanced;
}

void TF6689::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty() || !F6689F->ShownPeriod()) return;
    const std::string account = AdoQry_Main.FieldByName("KM_ID").AsText();
    open_detailed_ledger(this, account_in_period(account, F6689F->ShownPeriod()->to_text()),
                         account + " " + AdoQry_Main.FieldByName("KM_NAME").AsText());
}

} // namespace module
