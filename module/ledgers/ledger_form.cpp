// What the ledgers on screen share: rows grouped by account, and the way from a row to its origin.
#include "module/ledgers/ledger_form.h"

#include <algorithm>

#include "host/controls/amount_column.h"
#include "host/controls/grid_groups.h"
#include "module/filters/ledger_filter.h"

namespace module {

namespace {

// Of a row of the ledger; "" where the query answered no such field.
std::string text_of(const TClientDataSet& rows, const char* field, int row) {
    const TField* found = rows.FindField(field);
    return found == nullptr ? "" : rows.text_at(row, found->index());
}

// The account's own name: what stands above it in the chart is told above the lines.
std::string own_name(const std::string& full_name) {
    const std::size_t last = full_name.rfind('-');
    return last == std::string::npos ? full_name : full_name.substr(last + 1);
}

} // namespace

// ---- opening ----

LedgerForm::LedgerForm(TForm* parent, const LedgerKind& kind) : TFrm_Base_Qry(parent) {
    Caption = kind.caption;
    SumFields = "J,D,E";
    KeyField = "KM_id";
    Act_Open.Caption = kind.open_caption;
    TipLabel.Caption = kind.tip;
    Act_Group.OnExecute = [this] { go_to_group(false); };
    Act_Open.OnExecute = [this] { DBGridEhDblClick(); };
    DBGridEh.OnKeyDown = [this](Key& key) { DBGridEhKeyDown(key); };
    // The balance runs from row to row: in another order it would say nothing.
    DBGridEh.OnTitleClick = [](int) {};
    DBGridEh.AutoFooter = false; // sums over openings, lines and totals are no figure to show
    DBGridEh.EmptyText = "没有数据，请按 F3 选择查询条件";
    AdoQry_Main.AfterScroll = [this] { row_chosen(); };
    AccountLabel.Bold = true;
    VoucherArrow.Visible = VoucherLabel.Visible = false;
    VoucherLabel.FontColor = clBlue;
    VoucherLabel.OnClick = [this] { DBGridEhDblClick(); };
    OpenerLabel.FontColor = clBlue;
    OpenerLabel.Visible = OpenerArrow.Visible = parent != nullptr && parent->Shown();
    if (OpenerLabel.Visible) {
        OpenerLabel.Caption = parent->Caption.get();
        OpenerLabel.OnClick = [parent] { parent->Activate(); };
    }
    build_group_grid();
}

void LedgerForm::build_group_grid() {
    Groups.DefineField("KM_ID", FieldType::Text);
    Groups.DefineField("KM_NAME", FieldType::Text);
    Groups.DefineField("E", FieldType::Amount).DisplayFormat = "0.00";
    Groups.AfterScroll = [this] { group_chosen(); };
    GroupGrid.Columns = {{.FieldName = "KM_ID", .Title = "科目组", .Width = 8},
                         {.FieldName = "KM_NAME", .Title = "会计科目", .Width = -1},
                         amount_column("E", "余额", 12, FooterKind::None)};
    GroupGrid.OnGetCellParams = DBGridEh.OnGetCellParams;
    GroupGrid.OnTitleClick = [](int) {};
    GroupGrid.OnDblClick = [this] { DBGridEh.SetFocus(); }; // on to its lines
    GroupGrid.ReadOnly = true;
    GroupGrid.TabStop = false;
    Groups.Open();
}

void LedgerForm::arrange(bool with_groups) {
    GroupGrid.Visible = with_groups;
    const LayoutNode rows = Rest(DBGridEh);
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Group, &Act_Open, nullptr,
                            &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Control(ConditionLabel), Spring(), Control(ScopeLabel)}),
                   Columns({Control(OpenerLabel), Control(OpenerArrow), Control(AccountLabel),
                            Control(VoucherArrow), Control(VoucherLabel), Spring()}),
                   with_groups ? Splitter(Rest(GroupGrid), rows, 29, true) : rows,
                   StatusLine({Control(TipLabel)})});
}

void LedgerForm::Act_LocateExecute() {
    TFrm_Base_Qry::Act_LocateExecute();
    const LedgerFilter* conditions = Conditions();
    if (conditions->ResultText != SqlText) return;
    ScopeLabel.Caption = conditions->Scope;
    SetTabTitle(""); // no longer the one account it was opened for
}

// ---- printing ----

Sheet LedgerForm::MakeSheet() {
    Sheet sheet = TFrm_Base_Qry::MakeSheet();
    if (!ScopeLabel.Caption->empty()) sheet.conditions.push_back(ScopeLabel.Caption);
    CarriedSums carried{
        .label = "ZY", .added = {"J", "D"}, .copied = {"KM_ID", "KM_NAME", "FX", "E"}};
    carried.row = [this](int row) { return book_row(row); };
    carried.begins_account = [this](int row) { return begins_group(DBGridEh, row); };
    // An account whose code stands in no column of its own is named above its pages.
    const int code = sheet.column_of("KM_ID");
    carried.a_page_each =
        code < 0 || sheet.columns[static_cast<std::size_t>(code)].in_files_only;
    if (carried.a_page_each)
        carried.account = [this](int row) {
            return text_of(AdoQry_Main, "KM_ID", row) + "  " + text_of(AdoQry_Main, "KM_NAME", row);
        };
    sheet.carried = std::move(carried);
    return sheet;
}

// ---- groups ----

// Read anew, the ledger shows the same line of the same account.
void LedgerForm::GetData() {
    const bool again = SqlText == shown_sql_;
    const int line = again ? line_in_group(AdoQry_Main.RecNo()) : 0;
    TFrm_Base_Qry::GetData();
    shown_sql_ = SqlText;
    list_groups();
    const int row = AdoQry_Main.RecNo();
    if (row >= 0) AdoQry_Main.GotoRow(std::min(row + line, last_of_group(row)));
    row_chosen();
}

std::size_t LedgerForm::group_of(int row) const {
    const auto after = std::upper_bound(group_rows_.begin(), group_rows_.end(), row);
    return static_cast<std::size_t>(after - group_rows_.begin()) - 1;
}

int LedgerForm::line_in_group(int row) const {
    return row < 0 || group_rows_.empty() ? 0 : row - group_rows_[group_of(row)];
}

int LedgerForm::last_of_group(int row) const {
    const std::size_t next = group_of(row) + 1;
    return (next < group_rows_.size() ? group_rows_[next] : AdoQry_Main.RecordCount()) - 1;
}

// An account's balance is the one its last row ends with.
void LedgerForm::list_groups() {
    following_ = true;
    group_rows_ = group_starts(DBGridEh);
    Groups.DisableControls();
    Groups.EmptyDataSet();
    for (std::size_t group = 0; group < group_rows_.size(); ++group) {
        const int first = group_rows_[group];
        Groups.Append();
        Groups.FieldByName("KM_ID").SetValue(text_of(AdoQry_Main, "KM_ID", first));
        Groups.FieldByName("KM_NAME").SetValue(own_name(text_of(AdoQry_Main, "KM_NAME", first)));
        Groups.FieldByName("E").SetValue(
            AdoQry_Main.value_at(last_of_group(first), AdoQry_Main.FieldByName("E").index()));
        Groups.Post();
    }
    Groups.MarkSaved();
    Groups.First();
    Groups.EnableControls();
    following_ = false;
}

void LedgerForm::go_to_group(bool backward) {
    const int row = neighbour_group(DBGridEh, AdoQry_Main.RecNo(), backward);
    if (row >= 0) DBGridEh.set_row(row);
}

void LedgerForm::DBGridEhKeyDown(Key& key) {
    if (key.code != KeyCode::Tab || key.ctrl || key.alt) return;
    go_to_group(key.shift);
    key = {};
}

// The account and the voucher of the row are named above the grid, its group is marked beside it.
void LedgerForm::row_chosen() {
    const int row = AdoQry_Main.RecNo();
    const bool any = row >= 0;
    AccountLabel.Caption = any ? text_of(AdoQry_Main, "KM_ID", row) + "  " +
                                     text_of(AdoQry_Main, "KM_NAME", row)
                               : "";
    const std::string voucher = any ? voucher_of_row() : "";
    VoucherLabel.Caption = voucher.empty() ? "" : "凭证 " + voucher;
    VoucherArrow.Visible = VoucherLabel.Visible = !voucher.empty();
    if (following_ || !any || group_rows_.empty()) return;
    following_ = true;
    Groups.GotoRow(static_cast<int>(group_of(row)));
    following_ = false;
}

void LedgerForm::group_chosen() {
    const auto group = static_cast<std::size_t>(Groups.RecNo());
    if (following_ || Groups.RecNo() < 0 || group >= group_rows_.size()) return;
    following_ = true;
    DBGridEh.set_row(group_rows_[group]);
    following_ = false;
    row_chosen();
}

} // namespace module
