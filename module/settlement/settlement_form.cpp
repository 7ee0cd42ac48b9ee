// What every receipt and payment shares: the party, what stands open with it, what it is for.
#include "module/settlement/settlement_form.h"

#include "host/contract/U_linkedit.h"
#include "host/ports/host.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/settlement/settlement_statements.h"
#include "module/settlement/spreading.h"

namespace module {

namespace {

constexpr int longest_number = 20;
constexpr int longest_slip = 50;

} // namespace

// ---- opening ----

SettlementForm::SettlementForm(TForm* parent, const SettlementKind& kind, NumberSeries numbers)
    : Tfrm_Base_Entry_Body(parent), KH_GYS_ID(this, "KH_GYS_ID", kind.party_caption),
      JY_ID(this, "JY_ID", kind.account_caption), kind_(kind), numbers_(numbers) {
    Caption = kind.caption;
    FunctionCode = numbers.code;
    Edit1.MaxLength = longest_number;
    PH.MaxLength = longest_slip;
    CB1.Items = std::vector<std::string>(std::begin(kind.purposes), std::end(kind.purposes));
    BDATE.Hint = "单据日期";
    Act_Other.Caption = "重新分摊";
    Act_Refresh.Caption = "刷新未结";
    Act_Refresh.Visible = true;
    hide({&Act_AddLine, &Act_DeleteLine}); // open items come from the books alone
    DBGridEh.AppendOnEnter = false;
    DBGridEh.OnTitleClick = [](int) {}; // money is spread in the order shown: the oldest first
    bind_trade_code(*this, JY_ID, money_accounts);
    offer_trade_codes(KH_GYS_ID, kind.party);
    bind_events();
}

void SettlementForm::bind_events() {
    Edit1.OnExit = [this] { Edit1Exit(); };
    KH_GYS_ID.OnExit = [this] { KH_GYS_IDExit(); };
    CB1.OnChange = [this] {
        if (!holding_) CB1Change();
    };
    Act_Clear.OnExecute = [this] { Act_ClearExecute(); };
    AdoQry_Main.OnDataChange = [this](TField*) {
        if (!writing_shares_) refresh_totals();
    };
}

void SettlementForm::define_amounts(std::initializer_list<const char*> fields) {
    for (const char* field : fields) {
        TField& amount = AdoQry_Main.DefineField(field, FieldType::Amount);
        amount.DisplayFormat = "0.00";
    }
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("C", FieldType::Integer);
    AdoQry_Main.DefineField("COLORVALUE", FieldType::Integer);
    for (const char* text : {"NOID", "C_NAME"}) AdoQry_Main.DefineField(text, FieldType::Text);
    AdoQry_Main.FieldByName("MONEY").OnSetText = [this](TField& field, const std::string& typed) {
        SetFloatText(field, typed);
    };
    AdoQry_Main.Open();
}

// The number is there already: who types all day begins with the party.
void SettlementForm::FormShow() {
    Tfrm_Base_Entry_Body::FormShow();
    go_to_first_field();
}

void SettlementForm::go_to_first_field() {
    if (new_document() && KH_GYS_ID.usable()) SetFocusTo(KH_GYS_ID);
}

void SettlementForm::OpenNoid(const std::string& key) {
    const std::string head = head_query(key), lines = lines_query_of(key);
    opensql(AdoQry_Head, FunctionCode, head);
    if (AdoQry_Head.IsEmpty()) refuse("单据 " + key + " 已不存在，请按 F5 刷新!");
    opensql(AdoQry_Main, FunctionCode, lines);
    opened_.remember(AdoQry_Head, AdoQry_Main, head, lines);
    items_loaded();
    Tfrm_Base_Entry_Body::OpenNoid(key);
}

void SettlementForm::RefreshData() {
    Tfrm_Base_Entry_Body::RefreshData();
    holding_ = true;
    try {
        if (new_document()) begin_document();
        else show_document();
    } catch (...) {
        holding_ = false;
        throw;
    }
    holding_ = false;
    const bool changing = Mode == "Edit";
    for (TWinControl* fixed : {static_cast<TWinControl*>(&Edit1),
                               static_cast<TWinControl*>(&KH_GYS_ID),
                               static_cast<TWinControl*>(&CB1)})
        fixed->ReadOnly = changing;
    for (TAction* action : {&Act_Other, &Act_Clear}) action->Enabled = !read_only();
    Act_Refresh.Enabled = new_document();
    SetTabTitle(Caption.get() + " " + (new_document() ? "新单" : Edit1.Text.get()));
    refresh_lines_access();
    refresh_totals();
}

void SettlementForm::begin_document() {
    const std::string party =
        Mode == "CopyAdd" ? AdoQry_Head.FieldByName("KH_GYS_ID").AsText() : "";
    AdoQry_Main.EmptyDataSet();
    Edit1.Text = fresh_number(numbers_);
    BDATE.set(the_host().clock->today());
    EDATE.Caption = "新单";
    USER_NAME.Caption = G_UserName;
    PH.Text = "";
    CB1.set_index(static_cast<int>(Purpose::settles));
    show_cash(JY_ID);
    begin_amounts();
    KH_GYS_ID.Text = party;
    KH_GYS_ID.DisplayName = "";
    party_.clear();
    balance_text_.clear();
    advance_at_hand_ = Amount();
    if (party.empty()) return;
    read_party();
    load_open_items();
}

void SettlementForm::show_document() {
    const auto text = [this](const char* field) { return AdoQry_Head.FieldByName(field).AsText(); };
    const TField& changed_on = AdoQry_Head.FieldByName("EDATE");
    Edit1.Text = text("NOID");
    BDATE.set(AdoQry_Head.FieldByName("BDATE").AsDateTime().date);
    EDATE.Caption = changed_on.IsNull() ? "" : changed_on.AsDateTime().date.to_text();
    USER_NAME.Caption = text("USER_NAME");
    PH.Text = text("PH");
    CB1.set_index(static_cast<int>(AdoQry_Head.FieldByName("JY_KM").AsInteger()));
    show_code(JY_ID, AdoQry_Head, "JY_ID", "JY_NAME");
    show_amounts();
    KH_GYS_ID.Text = text("KH_GYS_ID");
    read_party();
}

// ---- leaving a field ----

void SettlementForm::Edit1Exit() {
    settle_number(*this, Edit1, numbers_);
}

void SettlementForm::KH_GYS_IDExit() {
    if (leaving_by_cancel() || KH_GYS_ID.ReadOnly) return;
    const std::string typed = trimmed(KH_GYS_ID.Text.get());
    if (same_text(typed, party_)) return;
    read_party();
    load_open_items();
}

void SettlementForm::read_party() {
    const std::string typed = trimmed(KH_GYS_ID.Text.get());
    TClientDataSet party;
    opensql(party, FunctionCode, select_party(kind_, typed));
    if (party.IsEmpty()) {
        KH_GYS_ID.SetFocus();
        refuse(kind_.unknown_party);
    }
    party_ = party.FieldByName("KH_GYS_ID").AsText();
    KH_GYS_ID.Text = party_;
    KH_GYS_ID.DisplayName = party.FieldByName("KG_NAME").AsText();
    const auto amount = [&party](const char* field) {
        const TField& balance = party.FieldByName(field);
        return balance.IsNull() ? "" : balance.AsAmount().to_text();
    };
    const auto& words = kind_.balance_words;
    balance_text_ = words[0] + amount("YSM") + words[1] + amount("YM") + words[2] +
                    amount("XJYS") + words[3];
    advance_at_hand_ = party.FieldByName("YSM").AsAmount();
    if (Mode != "Edit") return;
    // What this document took from the advance before it was opened is there for it again.
    const auto before = static_cast<Purpose>(AdoQry_Head.FieldByName("JY_KM").AsInteger());
    if (before == Purpose::refund || before == Purpose::set_off)
        advance_at_hand_ += AdoQry_Head.FieldByName("MONEY_SS").AsAmount();
}

void SettlementForm::CB1Change() {
    if (new_document() && !party_.empty()) load_open_items();
    refresh_lines_access();
    refresh_totals();
}

// ---- lines ----

bool SettlementForm::writes_off_at(int purpose) {
    return purpose == static_cast<int>(Purpose::settles) ||
           purpose == static_cast<int>(Purpose::set_off);
}

void SettlementForm::load_open_items() {
    DBGridEh.cancel_edit();
    if (writes_off()) {
        opensql(AdoQry_Main, FunctionCode, open_items_query(party_));
        items_loaded();
    } else {
        AdoQry_Main.EmptyDataSet();
    }
    refresh_lines_access();
    refresh_totals();
}

void SettlementForm::refresh_lines_access() {
    DBGridEh.ReadOnly = read_only() || !writes_off();
    DBGridEh.EmptyText = !writes_off()      ? "预收、预付及其退款不核销单据"
                         : party_.empty()   ? "请先录入" + std::string(kind_.party.what)
                                            : "没有未结清的单据";
    DBGridEh.changed();
}

void SettlementForm::Act_RefreshExecute() {
    CommitActive();
    if (!new_document() || party_.empty()) return;
    read_party();
    load_open_items();
}

void SettlementForm::SetFloatText(TField& field, const std::string& typed) {
    AdoQry_Main.Edit();
    Tfrm_Base_Entry_Body::SetFloatText(field, typed);
    field.SetValue(field.AsAmount().rounded(2)); // a blank counts as nothing
}

// Nothing forbids to write off more than is open; it does not go unseen.
void SettlementForm::DBGridEhColorLine(TField& field, CellParams& params) {
    if (field.FieldName != "MONEY" || !writes_off()) return;
    const auto amount = [this](const char* name) {
        return AdoQry_Main.FieldByName(name).AsAmount();
    };
    const OpenItem item{amount("TOLMONEY"), amount("SUMMONEY"), amount("REMONEY")};
    const Amount share = field.AsAmount(), open = item.open();
    const bool too_much = item.total > Amount() ? share > open
                                                : item.total < Amount() && share < open;
    if (!too_much) return;
    params.Font = clRed;
    params.Bold = true;
}

void SettlementForm::spread_over_items() {
    if (read_only() || !writes_off() || AdoQry_Main.IsEmpty()) return;
    DBGridEh.cancel_edit();
    const auto column = [this](const char* field) {
        return AdoQry_Main.FieldByName(field).AsAmount();
    };
    std::vector<OpenItem> items;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek at(AdoQry_Main, row);
        items.push_back({column("TOLMONEY"), column("SUMMONEY"), column("REMONEY")});
    }
    write_shares(spread(money_to_spread(), items));
}

void SettlementForm::clear_shares() {
    if (AdoQry_Main.IsEmpty()) return;
    DBGridEh.cancel_edit();
    write_shares(std::vector<Amount>(static_cast<std::size_t>(AdoQry_Main.RecordCount())));
}

// The person sees the result, not each step; the totals are made once, by the caller.
void SettlementForm::write_shares(const std::vector<Amount>& shares) {
    writing_shares_ = true;
    AdoQry_Main.DisableControls();
    const int before = AdoQry_Main.RecNo();
    for (std::size_t row = 0; row < shares.size(); ++row) {
        AdoQry_Main.GotoRow(static_cast<int>(row));
        AdoQry_Main.Edit();
        AdoQry_Main.FieldByName("MONEY").SetValue(shares[row]);
        AdoQry_Main.Post();
    }
    AdoQry_Main.GotoRow(before);
    AdoQry_Main.EnableControls();
    writing_shares_ = false;
}

void SettlementForm::Act_OtherExecute() {
    CommitActive();
    spread_over_items();
    refresh_totals();
}

void SettlementForm::Act_ClearExecute() {
    CommitActive();
    if (read_only() || !writes_off()) return;
    clear_shares();
    refresh_totals();
}

std::vector<WriteOff> SettlementForm::write_offs() const {
    std::vector<WriteOff> lines;
    const TField* category = AdoQry_Main.FindField("SZLB");
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek at(AdoQry_Main, row);
        lines.push_back({AdoQry_Main.FieldByName("NOID").AsText(),
                         static_cast<int>(AdoQry_Main.FieldByName("C").AsInteger()),
                         AdoQry_Main.FieldByName("TOLMONEY").AsAmount(),
                         AdoQry_Main.FieldByName("MONEY").AsAmount(),
                         category == nullptr ? "" : category->AsText()});
    }
    return lines;
}

void SettlementForm::refresh_totals() {
    const Amount shares = share_sum();
    const Amount difference = writes_off() ? money_to_spread() - shares : Amount();
    const Amount open =
        AdoQry_Main.Sum("TOLMONEY") - AdoQry_Main.Sum("SUMMONEY") - AdoQry_Main.Sum("REMONEY");
    ShareTotal.Caption = shares.to_text();
    LeftOpen.Caption = writes_off() ? (open - document_shares()).to_text() : "";
    Difference.Caption = "误差: " + difference.to_text();
    Difference.FontColor = difference.is_zero() ? clDefault : clRed;
    refresh_balance();
}

// Whoever uses up or pays back more than was paid in advance sees it at once.
void SettlementForm::refresh_balance() {
    const bool takes_advance = purpose() == Purpose::refund || purpose() == Purpose::set_off;
    const bool too_much = takes_advance && money_moved() > advance_at_hand_;
    BalanceLine.Caption = balance_text_;
    BalanceLine.FontColor = too_much ? clRed : clDefault;
}

// ---- checking ----

bool SettlementForm::AllCheck() {
    if (!Tfrm_Base_Entry_Body::AllCheck()) return false;
    check_head();
    check_amounts();
    check_advance();
    return true;
}

void SettlementForm::check_head() {
    CheckBlank(KH_GYS_ID, kind_.party.what);
    CheckDate(BDATE, "开单日期");
    CheckBlank(JY_ID, kind_.account_caption);
}

// Books may forbid to use up more than was paid in advance; others only show it.
void SettlementForm::check_advance() {
    if (BalanceLine.FontColor != clRed) return;
    TClientDataSet setting;
    opensql(setting, FunctionCode, "SELECT VALUE FROM SYS_SETTING WHERE NAME='advance_limit'");
    if (!setting.IsEmpty() && setting.FieldByName("VALUE").AsText() == "1")
        refuse(kind_.advance_too_small);
}

// Between listing the items and saving, somebody else may have settled one of them.
std::string SettlementForm::why_items_changed() const {
    TClientDataSet now;
    opensql(now, FunctionCode, open_items_query(party_));
    const auto at = [](const TClientDataSet& rows, int row) {
        std::string text;
        for (const char* field : {"NOID", "C", "TOLMONEY", "SUMMONEY", "REMONEY"})
            text += rows.text_at(row, rows.FieldByName(field).index()) + ' ';
        return text;
    };
    std::vector<std::string> open;
    for (int row = 0; row < now.RecordCount(); ++row) open.push_back(at(now, row));
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek line(AdoQry_Main, row);
        const bool document = !AdoQry_Main.FieldByName("NOID").AsText().empty();
        if (!document || AdoQry_Main.FieldByName("MONEY").AsAmount().is_zero()) continue;
        if (std::find(open.begin(), open.end(), at(AdoQry_Main, row)) != open.end()) continue;
        return "“" + AdoQry_Main.FieldByName("C_NAME").AsText() + " " +
               AdoQry_Main.FieldByName("NOID").AsText() +
               "”已被他人核销或更改,不能保存!请按 F5 刷新未结单据后再保存。";
    }
    return "";
}

// ---- saving ----

// An advance has no document yet: the grid shows its whole amount as one row, which is not kept.
void SettlementForm::prepare_advance() {
    DBGridEh.cancel_edit();
    AdoQry_Main.EmptyDataSet();
    AdoQry_Main.Append();
    AdoQry_Main.FieldByName("MONEY").SetValue(money_moved());
    AdoQry_Main.Post();
}

void SettlementForm::Act_SaveExecute() {
    if (read_only()) return;
    CommitActive();
    if (!writes_off()) prepare_advance();
    Tfrm_Base_Entry_Body::Act_SaveExecute();
    if (!Closed()) go_to_first_field();
}

std::string SettlementForm::save(const std::string& number, const std::string& batch) {
    if (!new_document() || !writes_off())
        return opened_.save(FunctionCode, number, Mode, batch);
    const WhyNot why_not = [this] { return why_items_changed(); };
    return ExecSqlUnless(why_not, FunctionCode, number, Mode, batch);
}

void SettlementForm::SaveData() {
    Tfrm_Base_Entry_Body::SaveData();
    const std::string number = Edit1.Text;
    if (save(number, batch_to_save()) == "Y") Saved(number);
}

} // namespace module
