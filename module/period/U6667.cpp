// Carry the period's profit and loss into the profit of the year by one voucher.
#include "module/period/U6667.h"

#include "host/contract/U_linkedit.h"
#include "host/controls/amount_column.h"
#include "host/ports/host.h"
#include "host/values/period.h"
#include "host/values/sql_text.h"
#include "module/refuse.h"
#include "module/vouchers/voucher_number.h"

namespace module {

TF6667* F6667 = nullptr;

namespace {

// Leaf accounts of the category profit and loss. 5801 corrects former years: it belongs to the
// distribution of profit, not to the profit of this year.
const std::string carried_accounts =
    "SELECT KM_ID AS A1,KM_NAME2 A2 ,'3131' as A3,'本年利润' AS A4,FX,0.00 AS E FROM V6801 LEFT "
    "JOIN (SELECT OID AS ID FROM D6801 WHERE OID<>'Z' GROUP BY OID ) A ON KM_ID=A.ID WHERE ID IS "
    "NULL and km_fl=5  AND KM_ID<>'5801'";
const std::string select_accounts = carried_accounts + " order by km_id ";

std::string select_balance(const std::string& period, const std::string& account) {
    return "SELECT DBO.FASC(0," + quoted(period) + "," + quoted(account) + "," + quoted(account) +
           ") AS A";
}

// All of them with their balances, in the order in which they are shown.
std::string select_balances(const std::string& period) {
    return "SELECT A1,A3,FX,DBO.FASC(0," + quoted(period) + ",A1,A1) AS E FROM (" +
           carried_accounts + ") T ORDER BY A1";
}

CarriedAccount account_in(const TClientDataSet& rows, int row) {
    const auto text = [&](const char* field) {
        return rows.text_at(row, rows.FieldByName(field).index());
    };
    return {text("A1"), text("A3"), text("FX") == "借", Amount::parse(text("E")).value_or(Amount())};
}

std::vector<CarriedAccount> accounts_in(const TClientDataSet& rows) {
    std::vector<CarriedAccount> all;
    for (int row = 0; row < rows.RecordCount(); ++row) all.push_back(account_in(rows, row));
    return all;
}

const char* const distribution_accounts = "  (km_id>'3141') and  (km_id like '3141%')";

std::string select_distribution_account(const std::string& code) {
    return "select km_name from d6801 where (km_id=" + quoted(code) +
           ") and" + distribution_accounts;
}

} // namespace

// ---- opening ----

TF6667::TF6667(TForm* parent) : TFrm_Base_Dialog(parent) {
    Caption = "结转损溢";
    PreferredWidth = 110;
    btn_ok.Caption = "结转 F2";
    btn_Cancel.Caption = "关闭";
    Edit1.Text = "结转本期损益";
    Edit1.MaxLength = 100;
    KM_ID.MaxLength = 18;
    DateHint.FontColor = clRed;
    DateHint.Visible = false;
    bdate.OnChange = [this] { refresh_date_hint(); };
    KM_ID.OnExit = [this] { KM_IDExit(KM_ID); };
    KM_ID.OnChange = [this] { show_account_name(""); };
    KM_ID.OnButtonClick = [this] { KM_IDButtonClick(); };
    OfferHint(KM_ID, "d6801", "km_id", "km_name", distribution_accounts);
    cds1.DefineField("E", FieldType::Amount).DisplayFormat = "0.00";
    DBGridEh.ReadOnly = true;
    DBGridEh.Columns = {
        {.FieldName = "A1", .Title = "代码", .Width = 10},
        {.FieldName = "A2", .Title = "名称", .Width = -1},
        {.FieldName = "A3", .Title = "结转科目", .Width = 9},
        {.FieldName = "A4", .Title = "科目名称", .Width = 10},
        {.FieldName = "FX", .Title = "方向", .Width = 6, .Align = Alignment::Center},
        amount_column("E", "期末余额", 15, FooterKind::None)};
    build_layout();
}

void TF6667::build_layout() {
    layout = Rows(
        {Columns({Field("凭证日期", bdate, 14), Control(DateHint), Spring()}),
         Columns({Field("凭证摘要", Edit1, 40), Spring()}),
         Columns({Field("会计科目", KM_ID, 18), Text("5801         以前年度损益调整"), Spring()}),
         Rest(DBGridEh), Columns({Control(Totals), Spring(), Control(Made)}), Rule(),
         Text("1、损益类科目的余额结转到“本年利润”，其中“以前年度损益调整”属于“利润分配”。"),
         Text("2、在开始结转本期损益之前，应当将所有的凭证过帐，否则可能会出现不正确的结果。"),
         Buttons({&btn_ok, &btn_Cancel})});
}

void TF6667::InitForm(const Trecord& record) { OpenFunction(record); }

void TF6667::FormActivate() {
    totals_ = {};
    bdate.set(the_host().clock->today());
    opensql(cds1, FunctionCode, select_accounts);
    period_ = read_current_period(FunctionCode);
    btn_ok.Enabled = !period_.empty();
    refresh_date_hint();
    if (period_.empty()) {
        DISPINFO(no_current_period, 5);
        return;
    }
    load_accounts();
}

void TF6667::load_accounts() {
    cds1.DisableControls();
    for (cds1.First(); !cds1.Eof(); cds1.Next()) {
        read_balance_of_row();
        totals_.add(account_in(cds1, cds1.RecNo()));
    }
    cds1.First();
    cds1.MarkSaved();
    cds1.EnableControls();
    show_totals();
}

void TF6667::read_balance_of_row() {
    TClientDataSet balance;
    opensql(balance, FunctionCode, select_balance(period_, cds1.FieldByName("A1").AsText()));
    cds1.Edit();
    cds1.FieldByName("E").SetText(balance.FieldByName("A").AsText());
    cds1.Post();
}

void TF6667::show_totals() {
    const Amount profit = totals_.credit - totals_.debit;
    Totals.Caption = "收入 " + totals_.credit.to_text() + "    费用 " + totals_.debit.to_text() +
                     (profit.is_negative() ? "    亏损 " + (-profit).to_text()
                                           : "    利润 " + profit.to_text());
}

// ---- leaving a field ----

// A voucher of a period that is closed late bears a day of that period.
void TF6667::refresh_date_hint() {
    const auto period = Period::parse(period_);
    const auto day = bdate.date();
    DateHint.Visible = period && day && !period->contains(*day);
    DateHint.Caption = "不在当前会计期间 " + period_ + " 内";
}

// The account is asked for and checked, though no line uses it: the balance of 5801 is distributed
// by a voucher typed by hand.
void TF6667::KM_IDExit(TWinControl& sender) {
    if (leaving_by_cancel()) return;
    CheckBlankInstr(Edit1, "会计科目");
    CheckBlank(Edit1, "会计科目");
    CheckText(Edit1, "会计科目");
    TClientDataSet account;
    opensql(account, FunctionCode, select_distribution_account(KM_ID.Text));
    if (account.IsEmpty()) {
        DISPINFO("请填写<利润分配3141>类的科目!", 5);
        sender.SetFocus();
        Abort();
    }
    show_account_name(account.FieldByName("km_name").AsText());
}

void TF6667::show_account_name(const std::string& name) {
    KM_NAME.Caption = name;
    KM_ID.DisplayName = name;
}

void TF6667::KM_IDButtonClick() {
    TClientDataSet offered;
    CommonHint(KM_ID, offered, "d6801", "km_id", "科目编号", "km_name", "科目",
               distribution_accounts);
    KM_NAME.Caption = KM_ID.DisplayName;
}

// ---- checking ----

void TF6667::require_same_period() {
    const std::string now = read_current_period(FunctionCode);
    if (now == period_) return;
    refuse("会计期间已由 " + period_ + " 变为 " + now + "!请关闭后重新打开本功能。");
}

// The balances were read when the dialog opened; what was posted since would stay behind.
std::string TF6667::why_changed_meanwhile() {
    TClientDataSet now;
    opensql(now, FunctionCode, select_balances(period_));
    if (accounts_in(now) == accounts_in(cds1)) return "";
    return "损益科目的余额在打开之后已改变,没有结转!请关闭后重新打开本功能。";
}

// ---- saving ----

void TF6667::btn_okClick() {
    RequireRight("add", "结转损溢");
    KM_IDExit(KM_ID);
    CheckDate(bdate, "凭证日期");
    // A loss and a profit that cancel each other leave nothing to carry.
    if (totals_.sum().is_zero()) refuse("没有可结转的数据!");
    require_same_period();
    CarryForwardVoucher voucher{period_, "", bdate.Text, G_UserId, Edit1.Text};
    voucher.number = std::to_string(next_voucher_number(FunctionCode, period_, "记"));
    const std::string batch = carry_forward_batch(voucher, accounts_in(cds1), totals_);
    const std::string answer = ExecSqlUnless([this] { return why_changed_meanwhile(); },
                                             FunctionCode, voucher.key(), "Add", batch);
    if (answer != "Y") return;
    Made.Caption = "已生成凭证 记-" + voucher.number + "，请审核、登帐。";
}

} // namespace module
