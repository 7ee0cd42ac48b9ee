// A financial statement: its lines, its two grids, its layouts, saving.
#include "module/statements/statement_form.h"

#include "host/printing/grid_sheet.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace module {

namespace {

constexpr int layouts = 3;
constexpr std::string_view grand_total = "总计";
const char* const select_period = "SELECT id,param  FROM d6600 where id=2";

GridColumn column_of(StatementContent content, const char* field, const char* title) {
    GridColumn column;
    column.FieldName = field;
    column.Title = title;
    if (content == StatementContent::LineNumber) {
        column.Width = 5;
        column.Align = Alignment::Center;
    }
    return column;
}

} // namespace

// ---- opening ----

StatementForm::StatementForm(TForm* parent, const StatementKind& kind)
    : TFrm_Base_Inner(parent), kind_(kind) {
    Caption = kind.caption;
    TableName = kind.table;
    KeyField = "ID";
    Edit1.Text = "2016-06";
    rb1.Checked = true;
    CellName.Bold = true;
    CellName.FontColor = clBlue;
    rb1.OnClick = rb2.OnClick = [this] { rb1Click(); };
    work_.DefineField("a", FieldType::Text); // all digits of what a formula gives
    add_columns();
    for (const FieldLabel& one : kind.labels)
        AdoQry_Main.DefineField(one.field, FieldType::Text, one.size).DisplayLabel = one.label;
    FormCreate();
    arrange();
}

// The lines of a printed form are neither added nor deleted here.
void StatementForm::FormCreate() {
    for (TAction* action : {&Act_Add, &Act_Delete}) action->Enabled = action->Visible = false;
    AdoQry_Main.BeforeInsert = [] { Abort(); };
    Act_Other.Caption = "重算";
    Act_Other.Hint = "公式更改后请执行重算!";
    Act_Other.ShortCut = "F9";
    Act_Other.Icon = "calculator";
    Act_Other.Right = Act_Save.Right;
    if (kind_.layout_query != nullptr) {
        CB1 = std::make_unique<LayoutBox>(this, "CB1");
        std::vector<std::string> styles;
        for (int layout = 1; layout <= layouts; ++layout)
            styles.push_back("样式" + std::to_string(layout));
        CB1->Items = styles;
        CB1->set_index(0);
        CB1->OnSameAgain = [this] { CB1CloseUp(); };
        CB1->OnChange = [this] {
            if (layout_number() != shown_layout_) CB1CloseUp();
        };
    }
}

void StatementForm::add_columns() {
    const bool halves = kind_.columns.size() > 4;
    for (const StatementColumn& one : kind_.columns) {
        GridColumn amount = column_of(one.content, one.field, one.title);
        GridColumn formula = column_of(one.content, one.formula_field, one.formula_title);
        amount.ReadOnly = true;
        if (one.content == StatementContent::Item) {
            amount.Width = !halves ? 52 : DBGridEh.Columns.empty() ? -1 : 30;
            formula.Width = halves ? 18 : 34;
        }
        if (one.content == StatementContent::Amount) {
            amount.Width = halves ? 17 : 22;
            amount.Align = Alignment::Right;
            amount.Tag = amount_tag;
            formula.Width = halves ? 25 : -1;
        }
        DBGridEh.Columns.push_back(std::move(amount));
        DBGridEh1.Columns.push_back(std::move(formula));
    }
    for (TDBGridEh* grid : {&DBGridEh, &DBGridEh1}) {
        grid->FixedOrder = true;
        grid->RowSizing = true;
        grid->AppendOnEnter = false;
    }
    DBGridEh1.Visible = false;
}

void StatementForm::arrange() {
    std::vector<LayoutNode> choices = {Control(rb1), Control(rb2), Rule()};
    if (CB1) choices.push_back(Field("", *CB1, 8));
    choices.push_back(Field("", Edit1, 9));
    choices.push_back(Control(CurrentPeriod));
    choices.push_back(Spring());
    choices.push_back(Text(Act_Other.Hint));
    layout = Rows({ToolBar({&Act_Other, &Act_Save, &Act_Refresh, nullptr, &Act_Print, &Act_Preview,
                            &Act_Export, nullptr, &Act_Quit}),
                   Columns(std::move(choices)),
                   Columns({Control(CellName), Field("公式:", LA4, -1), Control(CellItem)}),
                   Rest(DBGridEh), Rest(DBGridEh1)});
}

void StatementForm::InitForm(const Trecord& record) {
    TFrm_Base_Inner::InitForm(record);
    SqlText = kind_.opening_query + layout_text();
    Act_RefreshExecute();
    follow_the_selected_cell();
    DBGridEh1.ReadOnly = DBGridEh.ReadOnly;
    Act_Other.Visible = Act_Save.Visible;
    Act_Other.Enabled = Act_Save.Enabled;
    DBGridEh.SetFocus();
    if (!kind_.opens_at_current_period) {
        CurrentPeriod.Caption = "请录入要看的期间,再重算";
        return;
    }
    Edit1.Text = read_current_period();
    if (trimmed(Edit1.Text.get()).empty()) LA4.Caption = "读取会计期间错误!请确认是否进行初始建帐!";
}

std::string StatementForm::read_current_period() {
    opensql(work_, FunctionCode, select_period);
    const std::string period = work_.IsEmpty() ? "" : work_.FieldByName("param").AsText();
    CurrentPeriod.Caption = period.empty() ? "" : "当前会计期间 " + period;
    return period;
}

// ---- printing ----

// What is looked at: the statement, or its formulas.
Sheet StatementForm::MakeSheet() {
    Sheet sheet = sheet_of(rb1.Checked ? DBGridEh : DBGridEh1, Caption);
    sheet.conditions = {"会计期间：" + trimmed(Edit1.Text.get())};
    // The letters over the columns serve the formulas alone.
    for (SheetColumn& column : sheet.columns) column.title = lower_title(column);
    sheet.one_page = rb1.Checked;
    if (sheet.one_page) sheet.signatures = {"单位负责人", "财务负责人", "制表"};
    return sheet;
}

// ---- looking ----

void StatementForm::rb1Click() {
    DBGridEh1.set_column(DBGridEh.column());
    DBGridEh.Visible = rb1.Checked.get();
    DBGridEh1.Visible = rb2.Checked.get();
    DBGridEhColumns2GetCellParams();
}

int StatementForm::layout_number() const {
    return CB1 ? CB1->item_index() + 1 : 1;
}

std::string StatementForm::layout_text() const {
    return CB1 ? std::to_string(layout_number()) : "";
}

void LayoutBox::enter_text(const std::string& text) {
    const bool same = text == Text.get();
    TComboBox::enter_text(text);
    if (same) OnSameAgain();
}

// Changes that are not saved would go with the layout shown, so the person is asked.
void StatementForm::CB1CloseUp() {
    const std::string before = SqlText;
    SqlText = kind_.layout_query + layout_text();
    Act_RefreshExecute();
    if (has_unsaved_work()) {
        SqlText = before;
        CB1->set_index(shown_layout_ - 1);
        return;
    }
    shown_layout_ = layout_number();
}

void StatementForm::follow_the_selected_cell() {
    const auto show = [this] {
        if (!recalculating_) DBGridEhColumns2GetCellParams();
    };
    DBGridEh.OnColEnter = show;
    DBGridEh1.OnColEnter = [this] { DBGridEh.set_column(DBGridEh1.column()); };
    AdoQry_Main.AfterScroll = show;
    AdoQry_Main.OnDataChange = [show](TField*) { show(); };
}

const StatementColumn* StatementForm::selected_column() const {
    const auto column = static_cast<std::size_t>(DBGridEh.column());
    return column < kind_.columns.size() ? &kind_.columns[column] : nullptr;
}

void StatementForm::DBGridEhColumns2GetCellParams() {
    const StatementColumn* column = selected_column();
    const bool amount =
        column != nullptr && column->content == StatementContent::Amount && !AdoQry_Main.IsEmpty();
    const auto title = [&](bool letter) {
        const std::string whole = column->title;
        const std::size_t bar = whole.find('|');
        return letter ? whole.substr(0, bar) : whole.substr(bar + 1);
    };
    LA4.Caption = amount ? AdoQry_Main.FieldByName(column->formula_field).AsText() : "";
    LA4.Hint = LA4.Caption.get();
    CellName.Caption = amount ? title(true) + std::to_string(AdoQry_Main.RecNo() + 1) : "";
    CellItem.Caption = amount ? item_of(*column) + " · " + title(false) : "";
}

std::string StatementForm::item_of(const StatementColumn& column) const {
    const StatementColumn* item = &kind_.columns.front();
    for (const StatementColumn& one : kind_.columns) {
        if (one.content == StatementContent::Item) item = &one;
        if (&one == &column) break;
    }
    return trimmed(AdoQry_Main.FieldByName(item->field).AsText());
}

// Items that stand at the margin head a group or sum one up; indented ones belong to them. The
// amounts of a grand total are what the eye looks for.
void StatementForm::DBGridEhGetCellParams(TField& field, CellParams& params) {
    const int column = DBGridEh.column_index(field.FieldName);
    if (column < 0) return;
    const StatementColumn& shown = kind_.columns[static_cast<std::size_t>(column)];
    if (shown.content == StatementContent::Amount)
        params.Bold = item_of(shown).ends_with(grand_total);
    if (shown.content != StatementContent::Item) return;
    const std::string item = field.AsText();
    if (!item.empty() && item.front() != ' ') params.Font = clBlue;
}

// ---- saving ----

void StatementForm::SaveData() {
    if (!AdoQry_Main.Modified()) return;
    TFrm_Base_Inner::SaveData();
    if (ExecSql(FunctionCode, TableName, "Edit", kind_.clear_blanks) != "Y") Abort();
}

} // namespace module
