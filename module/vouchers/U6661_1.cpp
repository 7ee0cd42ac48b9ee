// Enter, change or look at one voucher; saves only when debits equal credits.
#include "module/vouchers/U6661_1.h"

#include "host/ports/host.h"
#include "host/values/period.h"
#include "host/values/sql_text.h"
#include "module/refuse.h"
#include "module/vouchers/U6661_2.h"
#include "module/vouchers/U6661_3.h"
#include "module/vouchers/U6661_4.h"
#include "module/vouchers/U6661_5.h"
#include "module/vouchers/capital_numerals.h"
#include "module/vouchers/cash_allocation.h"
#include "module/vouchers/voucher_layout.h"
#include "module/vouchers/voucher_number.h"
#include "module/vouchers/voucher_paper.h"
#include "module/vouchers/voucher_template.h"
#include "module/vouchers/voucher_words.h"

namespace module {
namespace {

std::string rows_in_one_text(const TClientDataSet& rows,
                             std::initializer_list<const char*> fields) {
    std::string text;
    for (int row = 0; row < rows.RecordCount(); ++row) {
        for (const char* field : fields) {
            text += rows.text_at(row, rows.FieldByName(field).index()) + '\x1f';
        }
    }
    return text;
}

// All of a voucher that somebody else may change, to tell whether somebody did.
std::string voucher_in_one_text(const TClientDataSet& head, const TClientDataSet& lines) {
    return rows_in_one_text(head, {"PZQJ", "PZZ", "PZZ_H", "PZZ_Z", "BDATE", "USER_ID", "T", "D"}) +
           rows_in_one_text(lines, {"ZY", "KM_ID", "J", "D"});
}

} // namespace

// ---- opening ----

TF6661_1::TF6661_1(TForm* parent) : Tfrm_Base_Entry_Body(parent) {
    Caption = "记帐凭证";
    PZZ_H.Min = Amount::from_whole(1);
    PZZ_Z.Min = Amount();
    DateHint.FontColor = clRed;
    DateHint.Visible = false;
    PZZ_H.Max = PZZ_Z.Max = Amount::from_whole(99'999);
    Act_Other.Caption = "模板";
    N2.Icon = "copy-plus";
    Difference.FontColor = clRed;
    grid_.define_fields();
    AdoQry_Main.Open();
    F6661_2 = std::make_unique<TF6661_2>(this);
    F6661_3 = std::make_unique<TF6661_3>(this);
    build_columns();
    bind_events();
    layout = voucher_layout(*this);
}

TF6661_1::~TF6661_1() = default;

void TF6661_1::build_columns() {
    DBGridEh.Columns = voucher_columns();
    DBGridEh.PopupMenu = &PoPMenu;
    PoPMenu.Items = {&Act_AddLine, &Act_DeleteLine, nullptr, &N2};
}

void TF6661_1::bind_events() {
    AdoQry_Main.FieldByName("KM_ID").OnSetText = [this](TField& field, const std::string& typed) {
        WL_IDSetText(field, typed);
    };
    for (const char* side : {"J", "D"}) {
        AdoQry_Main.FieldByName(side).OnSetText = [this](TField& field, const std::string& typed) {
            SetFloatText(field, typed);
        };
    }
    const auto touched = AdoQry_Main.OnDataChange;
    AdoQry_Main.OnDataChange = [this, touched](TField* field) {
        if (touched) touched(field);
        refresh_totals();
    };
    DBGridEh.OnSuggest = [this](const GridColumn& column, const std::string& typed) {
        return suggest(column, typed);
    };
    BDATE.OnChange = [this] { refresh_date_hint(); };
    Act_xj.OnExecute = [this] { Act_xjExecute(); };
    N2.OnExecute = [this] { N2Click(); };
    N2.Right = "add"; // a template is something new
    PoPMenu.OnPopup = [this] { PoPMenuPopup(); };
}

void TF6661_1::InitForm(const std::string& key, TClientDataSet* list, bool read_only, bool copy,
                        bool modal, int number) {
    leaf_accounts_.forget();
    opened_anew_ = true;
    Tfrm_Base_Entry_Body::InitForm(key, list, read_only, copy, modal, number);
}

void TF6661_1::OpenNoid(const std::string& key) {
    opensql(AdoQry_Head, FunctionCode, select_voucher_head(key));
    opensql(AdoQry_Main, FunctionCode, select_voucher_lines(key));
    as_opened_ = voucher_in_one_text(AdoQry_Head, AdoQry_Main);
    Tfrm_Base_Entry_Body::OpenNoid(key);
}

void TF6661_1::read_books() {
    const VoucherWords words = read_voucher_words(FunctionCode);
    period_ = read_current_period(FunctionCode);
    single_word_ = words.fixed;
    PZZ.Items = words.words;
    if (Mode == "CopyAdd") PZZ.Text = AdoQry_Head.FieldByName("PZZ").AsText();
    const bool first_word = std::exchange(opened_anew_, false) && Mode == "Add";
    if (first_word || PZZ.item_index() < 0) PZZ.set_index(0);
    F6661_2->init(AdoQry_Main, FunctionCode);
    F6661_3->init(AdoQry_Main, nullptr, FunctionCode, "KM_ID", "KM_NAME_NEW", "202");
}

void TF6661_1::RefreshData() {
    PZZ.OnChange = nullptr; // the number is read below, once
    read_books();
    if (new_voucher()) {
        number_new_voucher();
    } else {
        show_stored_head();
    }
    Tfrm_Base_Entry_Body::RefreshData();
    PZZ.Enabled = !read_only() && !single_word_;
    grid_.fill_up();
    refresh_totals();
    refresh_title();
    refresh_date_hint();
    PZZ.OnChange = [this] { PZZChange(); };
    Act_Save.Enabled = false;
    PoPMenuPopup();
    Act_Other.Enabled = FunctionCode == "661" && new_voucher();
    prepare_allocation();
}

// The allocation of a saved voucher is read with it and saved with it, so that it follows a
// changed number. A new voucher has none until the person asks for it.
void TF6661_1::prepare_allocation() {
    if (!F6661_5) {
        F6661_5 = std::make_unique<TF6661_5>(this);
        F6661_5->enable_on_edit(Act_Save);
    }
    if (new_voucher()) {
        F6661_5->forget();
    } else {
        F6661_5->initnoid(Key, Mode);
    }
}

void TF6661_1::number_new_voucher() {
    PZZ_H.set(next_voucher_number(FunctionCode, period_, PZZ.Text));
    PZZ_Z.set(std::int64_t{0});
    BDATE.set(the_host().clock->today());
    USER_ID.Caption = G_UserName;
    PZQJ.Caption = period_;
    EDATE.Caption = "";
    AuditState.Caption = "未审核";
}

void TF6661_1::show_stored_head() {
    const TClientDataSet& head = AdoQry_Head;
    const TField& audited_on = head.FieldByName("SDATE");
    const bool audited = head.FieldByName("T").AsBoolean();
    PZZ.Text = head.FieldByName("PZZ").AsText();
    PZZ_H.set(head.FieldByName("PZZ_H").AsInteger());
    PZZ_Z.set(head.FieldByName("PZZ_Z").AsInteger());
    BDATE.set(head.FieldByName("BDATE").AsDateTime().date);
    USER_ID.Caption = head.FieldByName("USER_NAME").AsText();
    PZQJ.Caption = head.FieldByName("PZQJ").AsText();
    EDATE.Caption = audited_on.IsNull() ? "" : audited_on.AsDateTime().date.to_text();
    AuditState.Caption = !audited ? "未审核" : "已审核 " + head.FieldByName("sk").AsText();
}

// ---- leaving a field ----

void TF6661_1::PZZChange() {
    if (new_voucher() && !period_.empty()) {
        PZZ_H.set(next_voucher_number(FunctionCode, period_, PZZ.Text));
    }
    refresh_title();
}

// ---- lines ----

void TF6661_1::ColumnClick(GridColumn& column) {
    if (column.FieldName == "ZY") F6661_2->ShowModal();
    if (column.FieldName == "KM_ID") F6661_3->ShowModal();
}

std::vector<TDBGridEh::Suggestion> TF6661_1::suggest(const GridColumn& column,
                                                     const std::string& typed) {
    if (column.FieldName == "KM_ID") return suggest_accounts(leaf_accounts(), typed);
    if (column.FieldName == "ZY") return suggest_summaries(FunctionCode, typed);
    return {};
}

const LeafAccounts& TF6661_1::leaf_accounts() {
    if (!leaf_accounts_.loaded()) leaf_accounts_.load(FunctionCode, period_);
    return leaf_accounts_;
}

void TF6661_1::WL_IDSetText(TField&, const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty()) return take_account({});
    const LeafAccount* exact = leaf_accounts().find(text);
    if (!exact) {
        leaf_accounts_.load(FunctionCode, period_); // the chart may have grown since
        exact = leaf_accounts_.find(text);
    }
    take_account(exact ? *exact : account_meant_by(text));
}

void TF6661_1::take_account(const LeafAccount& account) {
    AdoQry_Main.Edit();
    AdoQry_Main.FieldByName("KM_ID").SetValue(account.code);
    AdoQry_Main.FieldByName("KM_NAME_NEW").SetValue(account.name);
    AdoQry_Main.FieldByName("KM_K").SetValue(account.cash_flow);
}

// The books know a code in whatever width its digits were typed. A text that is no code stands for
// the account of exactly that name, or for the only one that it fits by name or pinyin.
const LeafAccount& TF6661_1::account_meant_by(const std::string& typed) {
    TClientDataSet same;
    opensql(same, FunctionCode, "SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID=" + quoted(typed));
    if (!same.IsEmpty()) {
        const std::string code = same.FieldByName("KM_ID").AsText();
        if (const LeafAccount* leaf = leaf_accounts_.find(code)) return *leaf;
        refuse("科目 " + code + " " + same.FieldByName("KM_NAME_NEW").AsText() +
               " 还有下级科目,不能直接记帐!请录入它的末级科目。");
    }
    const auto found = leaf_accounts_.matching(typed);
    for (const LeafAccount* account : found) {
        if (account->name == typed) return *account;
    }
    if (found.size() == 1) return *found.front();
    if (found.empty()) refuse("科目 " + typed + " 不存在!请按 F4 选择科目,或先在会计科目中新增。");
    refuse("有 " + std::to_string(found.size()) + " 个科目与“" + typed +
           "”相符!请录入完整的科目代号,或按 F4 选择。");
}

void TF6661_1::SetFloatText(TField& field, const std::string& typed) {
    AdoQry_Main.Edit();
    if (trimmed(typed) == "=") {
        field.SetValue(grid_.balancing_amount(field.FieldName));
        return grid_.clear_opposite(field.FieldName);
    }
    Tfrm_Base_Entry_Body::SetFloatText(field, typed);
    const Amount entered = field.AsAmount().rounded(2);
    if (!field.IsNull()) field.SetValue(entered);
    if (entered > Amount()) grid_.clear_opposite(field.FieldName);
}

// The last line gets a blank one below it as soon as it is begun, so the walk never ends there.
void TF6661_1::FormKeyPress(char32_t& character) {
    const GridColumn* column = DBGridEh.current_column();
    const bool in_summary = ActiveControl() == &DBGridEh && column && column->FieldName == "ZY";
    if (character == '\r' && !read_only() && in_summary) {
        if (!DBGridEh.commit_edit()) Abort();
        grid_.repeat_summary_of_line_above();
        grid_.post_current();
        const VoucherLine line = grid_.current();
        if (grid_.stands_on_last_line() && (line.has_summary() || line.has_account())) {
            const int row = AdoQry_Main.RecNo();
            grid_.append_blank_line();
            AdoQry_Main.GotoRow(row);
        }
    }
    Tfrm_Base_Entry_Body::FormKeyPress(character);
}

void TF6661_1::DBGridEhKeyPress(char32_t& character) {
    const GridColumn* column = DBGridEh.current_column();
    const bool in_amount = column && (column->FieldName == "J" || column->FieldName == "D");
    if (character != ' ' || !in_amount || read_only() || AdoQry_Main.IsEmpty()) {
        return Tfrm_Base_Entry_Body::DBGridEhKeyPress(character);
    }
    if (!DBGridEh.commit_edit()) Abort();
    grid_.swap_sides();
    character = 0;
}

void TF6661_1::DBGridEhGetCellParams(TField& field, CellParams& params) {
    Tfrm_Base_Entry_Body::DBGridEhGetCellParams(field, params);
    const bool amount = field.FieldName == "J" || field.FieldName == "D";
    if (amount && field.AsAmount().is_negative()) params.Font = clRed;
}

void TF6661_1::refresh_totals() {
    const std::pair sums{grid_.debit(), grid_.credit()};
    if (shown_sums_ == sums) return;
    shown_sums_ = sums;
    const Amount difference = grid_.difference();
    DebitTotal.Caption = grid_.debit().to_text();
    CreditTotal.Caption = grid_.credit().to_text();
    Difference.Caption = difference.is_zero() ? "" : "差额 " + difference_text(difference);
    Difference.Visible = !difference.is_zero();
    GridColumn& name =
        DBGridEh.Columns[static_cast<std::size_t>(DBGridEh.column_index("KM_NAME_NEW"))];
    const std::string words = grid_.debit().is_zero() ? "" : capital_numerals(grid_.debit());
    if (name.FooterText == words) return;
    name.FooterText = words;
    DBGridEh.changed();
}

// The last month's vouchers are often written in the first days of the next: a date outside the
// period is taken as typed, and pointed out.
void TF6661_1::refresh_date_hint() {
    const auto period = Period::parse(PZQJ.Caption.get());
    const auto day = BDATE.date();
    DateHint.Visible = period && day && !period->contains(*day);
}

void TF6661_1::refresh_title() {
    SetTabTitle(Caption.get() + " " + PZZ.Text.get() + "-" + PZZ_H.Text.get());
}

void TF6661_1::Act_OtherExecute() {
    CommitActive();
    if (!F6661_4) F6661_4 = std::make_unique<TF6661_4>(this);
    F6661_4->INIT(AdoQry_Main);
    if (F6661_4->ShowModal() != mrOk) return;
    mark_cash_lines();
    Touch();
}

// A template does not know which accounts take part in the cash-flow allocation; the chart does.
void TF6661_1::mark_cash_lines() {
    for (AdoQry_Main.First(); !AdoQry_Main.Eof(); AdoQry_Main.Next()) {
        const LeafAccount* account = leaf_accounts().find(grid_.current().account);
        AdoQry_Main.Edit();
        AdoQry_Main.FieldByName("KM_K").SetValue(account && account->cash_flow);
        AdoQry_Main.Post();
    }
    AdoQry_Main.First();
}

void TF6661_1::Act_xjExecute() {
    CommitActive();
    const std::optional<Amount> cash_change = grid_.cash_change();
    if (!cash_change) {
        refuse("当前凭证没有现金流量核算的科目存在!不需要进行现金流量的分配!");
    }
    const std::string key = new_voucher() ? voucher_key(period_, PZZ.Text, PZZ_H.Text) : Key;
    if (!F6661_5->loaded()) F6661_5->initnoid(key, Mode);
    if (F6661_5->allocate(*cash_change)) Touch();
}

void TF6661_1::PoPMenuPopup() {
    N2.Enabled = !Key.empty() && !AdoQry_Main.IsEmpty();
}

void TF6661_1::N2Click() {
    if (AdoQry_Main.IsEmpty()) return;
    if (Key.empty()) refuse("请先保存凭证,再存为模板!");
    save_as_template(FunctionCode, Key);
}

// ---- checking ----

bool TF6661_1::AllCheck() {
    if (!Tfrm_Base_Entry_Body::AllCheck()) return false;
    const std::vector<VoucherLine> lines = grid_.read();
    if (const auto refusal = why_not_saved(lines)) {
        if (refusal->line >= 0) DBGridEh.set_row(refusal->line);
        refuse(refusal->message);
    }
    check_head();
    check_accounts_take_entries(lines);
    return true;
}

void TF6661_1::check_head() {
    CheckBlank(PZZ_H, "号");
    CheckDate(BDATE, "日期");
}

// A copied voucher may name accounts that were closed or divided since.
void TF6661_1::check_accounts_take_entries(const std::vector<VoucherLine>& lines) {
    bool fresh = false;
    for (const VoucherLine& line : lines) {
        if (!line.is_booked() || leaf_accounts().find(line.account)) continue;
        if (!fresh) leaf_accounts_.load(FunctionCode, period_);
        fresh = true;
        if (leaf_accounts_.find(line.account)) continue;
        refuse("科目 " + line.account + " 不存在或还有下级科目,不能记帐!请改为末级科目。");
    }
}

std::string TF6661_1::why_changed_meanwhile() {
    TClientDataSet head, lines;
    opensql(head, FunctionCode, select_voucher_head(Key));
    if (head.IsEmpty()) return "凭证已被他人删除,不能保存!请退出后刷新凭证列表。";
    opensql(lines, FunctionCode, select_voucher_lines(Key));
    if (voucher_in_one_text(head, lines) == as_opened_ && !F6661_5->stored_meanwhile()) return "";
    return "凭证在打开之后已被他人修改、审核或登帐,不能保存!请退出后重新打开该凭证。";
}

// ---- statements ----

VoucherHead TF6661_1::head_to_save(const std::string& period) const {
    const std::string key = voucher_key(period, PZZ.Text, PZZ_H.Text);
    const std::string attachments = PZZ_Z.Text->empty() ? "0" : PZZ_Z.Text.get();
    return {key, period, PZZ.Text, PZZ_H.Text, attachments, BDATE.Text, G_UserId};
}

// What nobody looked at stays with the number it has. Once the cash lines are gone the allocation
// cannot be opened any more, so it goes with them.
std::string TF6661_1::save_allocation(const std::string& key) const {
    if (!F6661_5->has_amounts()) return "";
    const bool edits = Mode == "Edit";
    if (!grid_.cash_change()) return edits ? delete_allocation(key) : "";
    const std::string rows = F6661_5->getsql(key);
    if (rows.empty()) return edits && key != Key ? move_allocation(Key, key) : ""; // a red one
    const bool stays = edits && key == Key && !F6661_5->confirmed();
    return stays ? "" : rows;
}

// ---- printing ----

std::unique_ptr<PaperDocument> TF6661_1::MakeDocument() {
    RequireSaved();
    return paper_of_vouchers(FunctionCode, {Key});
}

// ---- saving ----

// A changed voucher is looked at once more when nobody else can write: two who change it at the
// same moment must not both be told that it was saved.
std::string TF6661_1::save(const std::string& key, const std::string& batch) {
    if (Mode != "Edit")
        return ExecSql(FunctionCode, key, Mode, batch, 65535, false, true, false, true);
    const WhyNot why_not = [this] { return why_changed_meanwhile(); };
    return ExecSqlUnless(why_not, FunctionCode, key, Mode, batch);
}

void TF6661_1::SaveData() {
    const std::string period = read_current_period(FunctionCode);
    if (period.empty()) refuse(no_current_period);
    if (period != period_) {
        refuse("会计期间已由 " + period_ + " 变为 " + period + "!请退出后重新打开凭证,再保存。");
    }
    const VoucherHead head = head_to_save(period);
    const std::string own_key = Mode == "Edit" ? Key : "";
    if (voucher_key_taken(FunctionCode, head.key, own_key)) {
        refuse("凭证:" + head.word + "-" + head.number + "已存在!");
    }
    Tfrm_Base_Entry_Body::SaveData();
    const std::string batch =
        (own_key.empty() ? "" : delete_voucher(own_key)) + insert_voucher_head(head) +
        insert_voucher_lines(head.key, grid_.read()) + save_allocation(head.key);
    if (save(head.key, batch) == "Y") Saved(head.key);
}

} // namespace module
