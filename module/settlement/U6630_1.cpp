// Enter, change or look at one receipt in any currency, split over money accounts.
#include "module/settlement/U6630_1.h"

#include "host/contract/U_linkedit.h"
#include "host/forms/parts/delete_guard.h"
#include "host/values/text.h"
#include "module/masterdata/Fqx_link_hb.h"
#include "module/refuse.h"
#include "module/settlement/currency_layout.h"

namespace module {

namespace {

constexpr const char* base_currency = "RM";
constexpr const char* base_currency_name = "RMB";
constexpr const char* every_currency = "全部";

} // namespace

// ---- opening ----

TF6630_1::TF6630_1(TForm* parent)
    : SettlementForm(parent, receipt_kind, {"630", "d631"}) {
    HB_ID.MaxLength = 2;
    HL.Hint = "非本位币请填汇率";
    for (MoneyEdit* amount : {&MONEY, &yh, &MONEY_RS}) amount->Visible = false;
    AccountHint.FontColor = clRed;
    OfferCodes(HB_ID, "SELECT HB_ID,HB_NAME,PYM FROM D1013 ORDER BY HB_ID");
    for (const char* text : {"JY_ID", "JY_NAME"}) cd_jy.DefineField(text, FieldType::Text);
    cd_jy.DefineField("MONEY", FieldType::Amount).DisplayFormat = "0.00";
    cd_jy.Open();
    define_amounts({"TOLSMONEY", "TOLMONEY", "YSW", "YSB", "SUMMONEY", "REMONEY", "MONEY"});
    AdoQry_Main.DefineField("HL", FieldType::Amount);
    AdoQry_Main.DefineField("SZLB", FieldType::Text);
    DBGridEh.Columns = open_item_columns();
    Accounts.Columns = account_columns();
    Accounts.AppendOnEnter = false;
    bind_own_events();
    layout = currency_receipt_layout(*this);
}

TF6630_1::~TF6630_1() = default;

void TF6630_1::bind_own_events() {
    HB_ID.OnExit = [this] { HB_IDExit(); };
    HB_ID.OnButtonClick = [this] { HB_IDButtonClick(); };
    HB_ID.OnChange = [this] { HB_ID.DisplayName = ""; }; // the name belongs to the code before
    CB2.OnChange = [this] { CB2CloseUp(); };
    MONEY.OnChange = [this] { MONEYChange(); };
    WBMONEY.OnChange = [this] { WBMONEYChange(); };
    HL.OnChange = [this] { HLChange(); };
    cd_jy.AfterPost = [this] { cd_jyAfterPost(); };
    cd_jy.OnDataChange = [this](TField*) { DS2DataChange(); };
    // An amount counts as soon as its cell is left, not only with its row.
    cd_jy.FieldByName("MONEY").OnSetText = [this](TField& field, const std::string& typed) {
        cd_jy.Edit();
        field.SetConverted(typed);
        field.SetValue(field.AsAmount().rounded(2));
        cd_jy.Post();
    };
    JY_ID.listen([this] { DS2DataChange(); });
}

void TF6630_1::load_accounts() {
    opensql(cd_jy, FunctionCode, select_accounts(Edit1.Text));
    Accounts.ReadOnly = read_only();
}

void TF6630_1::load_currencies() {
    TClientDataSet currencies;
    opensql(currencies, FunctionCode, "SELECT HB_NAME FROM D1013 ORDER BY HB_ID");
    std::vector<std::string> names = {every_currency};
    for (int row = 0; row < currencies.RecordCount(); ++row)
        names.push_back(currencies.text_at(row, 0));
    CB2.Items = names;
    CB2.set_index(0);
    AdoQry_Main.SetFilter(nullptr);
}

void TF6630_1::begin_amounts() {
    load_currencies();
    CB2.Enabled = true;
    currency_ = base_currency;
    HB_ID.Text = base_currency;
    HB_ID.DisplayName = base_currency_name;
    HL.Text = "1";
    MONEY.Text = WBMONEY.Text = yh.Text = "";
    MONEY_RS.Text = "0.00";
    foreign_typed_ = false;
    load_accounts();
}

void TF6630_1::show_amounts() {
    load_currencies();
    CB2.Enabled = false;
    const auto amount = [this](const char* field) {
        return AdoQry_Head.FieldByName(field).AsAmount();
    };
    currency_ = AdoQry_Head.FieldByName("HB_ID").AsText();
    show_code(HB_ID, AdoQry_Head, "HB_ID", "HB_NAME");
    HL.Text = amount("HL").to_plain_text();
    WBMONEY.set(amount("WBMONEY"));
    MONEY.set(amount("MONEY_SS"));
    yh.Text = "";
    MONEY_RS.Text = amount("MONEY_RS").to_plain_text();
    foreign_typed_ = false;
    load_accounts();
    // An advance, and a receipt made on one account, have no split of their own.
    if (split_sum().is_zero()) put_on_head_account();
}

// ---- leaving a field ----

void TF6630_1::HB_IDExit() {
    const std::string typed = trimmed(HB_ID.Text.get());
    if (leaving_by_cancel() || HB_ID.ReadOnly || same_text(typed, currency_)) return;
    TClientDataSet currency;
    opensql(currency, FunctionCode, select_currency(typed));
    if (currency.IsEmpty()) {
        HB_ID.SetFocus();
        refuse("币种“" + typed + "”不存在!请按 F4 选择币种。");
    }
    currency_ = currency.FieldByName("HB_ID").AsText();
    HB_ID.Text = currency_;
    HB_ID.DisplayName = currency.FieldByName("HB_NAME").AsText();
    HL.Text = currency.FieldByName("HB_HL").AsAmount().to_plain_text();
}

void TF6630_1::HB_IDButtonClick() {
    if (HB_ID.ReadOnly) return;
    if (!QX_LINK_HB) QX_LINK_HB = std::make_unique<TQX_LINK_HB>(this);
    QX_LINK_HB->FunctionCode = FunctionCode;
    QX_LINK_HB->init(HB_ID, "");
    QX_LINK_HB->ShowModal();
}

// A look at one currency moves no money: what was typed before stays, and what is typed now is
// spread over the items that are seen. Only these count when the receipt is checked and saved.
void TF6630_1::CB2CloseUp() {
    if (holding_ || !new_document()) return;
    AdoQry_Main.LeaveRow();
    show_items_of(CB2.Text);
    refresh_totals();
}

void TF6630_1::show_items_of(const std::string& currency) {
    if (currency == every_currency) return AdoQry_Main.SetFilter(nullptr);
    AdoQry_Main.SetFilter([currency](const TClientDataSet& items) {
        return items.FieldByName("HB_NAME").AsText() == currency;
    });
}

// ---- amounts ----

void TF6630_1::set_money(Amount money) {
    following_ = true;
    MONEY.set(money);
    following_ = false;
}

void TF6630_1::set_foreign() {
    if (HL.value().is_zero()) return;
    following_ = true;
    WBMONEY.set(MONEY.value().times(Amount::scale, HL.value().units()));
    following_ = false;
}

void TF6630_1::MONEYChange() {
    if (holding_ || following_) return;
    foreign_typed_ = false;
    set_foreign();
    spread_over_items();
    refresh_totals();
    Touch();
}

void TF6630_1::WBMONEYChange() {
    if (holding_ || following_) return;
    foreign_typed_ = true;
    set_money(WBMONEY.value().times(HL.value().units(), Amount::scale));
    put_on_head_account();
    spread_over_items();
    refresh_totals();
    Touch();
}

void TF6630_1::HLChange() {
    if (holding_ || following_) return;
    if (foreign_typed_) return WBMONEYChange();
    set_foreign();
    refresh_totals();
}

void TF6630_1::put_on_head_account() {
    const std::string account = trimmed(JY_ID.Text.get());
    int row_of_account = -1;
    for (int row = 0; row < cd_jy.RecordCount(); ++row) {
        const TClientDataSet::Peek at(cd_jy, row);
        if (same_text(cd_jy.FieldByName("JY_ID").AsText(), account)) row_of_account = row;
        else if (!cd_jy.FieldByName("MONEY").AsAmount().is_zero()) return;
    }
    if (row_of_account < 0) return;
    following_ = true; // the head has the amount already
    cd_jy.GotoRow(row_of_account);
    cd_jy.Edit();
    cd_jy.FieldByName("MONEY").SetValue(MONEY.value());
    cd_jy.Post();
    following_ = false;
}

void TF6630_1::cd_jyAfterPost() {
    if (holding_ || following_) return;
    MONEY.set(split_sum());
    Touch();
}

void TF6630_1::DS2DataChange() {
    Amount elsewhere = split_sum();
    for (const AccountShare& share : split())
        if (same_text(share.account, trimmed(JY_ID.Text.get()))) elsewhere -= share.money;
    AccountHint.Caption = writes_off() || elsewhere.is_zero()
                              ? ""
                              : "预收、退款整笔记入收款帐户，不按上表分帐户";
}

// The statements leave the order open among the categories, which have no day.
void TF6630_1::items_loaded() {
    AdoQry_Main.SortBy("BDATE,SZLB", false);
    AdoQry_Main.First();
}

void TF6630_1::refresh_totals() {
    SettlementForm::refresh_totals();
    OverReceipts.Caption = over_receipts().to_text();
    DS2DataChange();
}

Amount TF6630_1::over_receipts() const {
    Amount sum;
    for (const WriteOff& line : write_offs())
        if (!line.category.empty()) sum += line.share;
    return sum;
}

std::vector<AccountShare> TF6630_1::split() const {
    std::vector<AccountShare> split;
    for (int row = 0; row < cd_jy.RecordCount(); ++row) {
        const TClientDataSet::Peek at(cd_jy, row);
        split.push_back({cd_jy.FieldByName("JY_ID").AsText(),
                         cd_jy.FieldByName("MONEY").AsAmount()});
    }
    return split;
}

// ---- checking ----

void TF6630_1::check_amounts() {
    CheckBlank(HB_ID, "收款货币");
    const Amount total = sum_of_shares(write_offs());
    if (writes_off() && total <= Amount()) refuse(kind_.nothing_settled);
    if (!AdoQry_Main.IsEmpty() && total != split_sum()) refuse(kind_.sums_differ);
}

// ---- statements ----

std::string TF6630_1::open_items_query(const std::string& party) const {
    return select_currency_items(party);
}

std::string TF6630_1::head_query(const std::string& number) const {
    return select_currency_head(number);
}

std::string TF6630_1::lines_query_of(const std::string& number) const {
    return with_key(currency_lines, number);
}

CurrencyHead TF6630_1::head_to_save() const {
    CurrencyHead head;
    head.number = Edit1.Text;
    head.party = KH_GYS_ID.Text;
    head.purpose = std::to_string(CB1.item_index());
    head.date = BDATE.Text;
    head.account = JY_ID.Text;
    head.slip = PH.Text;
    head.user = G_UserId;
    head.paid = split_sum().to_text();
    head.over_receipt = MONEY_RS.sent_text();
    head.foreign = WBMONEY.sent_text();
    head.currency = HB_ID.Text;
    head.rate = HL.sent_text();
    return head;
}

std::string TF6630_1::batch_to_save() {
    const CurrencyHead head = head_to_save();
    const std::string written =
        new_document() ? insert_currency_head(head) : update_currency_head(head);
    if (!writes_off()) return written;
    const std::vector<WriteOff> lines = write_offs();
    Amount over_receipt;
    for (const WriteOff& line : lines)
        if (!line.category.empty()) over_receipt = over_receipt_with(over_receipt, line.share);
    holding_ = true;
    MONEY_RS.Text = over_receipt.to_plain_text();
    holding_ = false;
    return written + insert_currency_lines(head, lines) +
           update_over_receipt(head.number, over_receipt) + insert_split(head.number, split());
}

// ---- saving ----

void TF6630_1::Act_SaveExecute() {
    CommitActive();
    cd_jy.LeaveRow();
    SettlementForm::Act_SaveExecute();
}

} // namespace module
