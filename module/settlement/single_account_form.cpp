// A receipt or payment on one money account, with discount and returns; two sides, one form.
#include "module/settlement/single_account_form.h"

#include "host/controls/amount_column.h"
#include "host/forms/parts/delete_guard.h"
#include "host/values/sql_text.h"
#include "module/refuse.h"

namespace module {

namespace {

GridColumn hidden(const std::string& field, const std::string& title) {
    return {.FieldName = field, .Title = title, .ReadOnly = true, .Visible = false};
}

} // namespace

// ---- opening ----

SingleAccountForm::SingleAccountForm(TForm* parent, const SettlementKind& kind)
    : SettlementForm(parent, kind, kind.numbers),
      MONEY(this, "MONEY", kind.paid_caption) {
    MONEY.OnChange = YH.OnChange = [this] { MONEYChange(); };
    define_amounts({"TOLMONEY", "SUMMONEY", "REMONEY", "MONEY"});
    build_columns();
    build_layout();
}

void SingleAccountForm::build_columns() {
    GridColumn name{.FieldName = "C_NAME", .Title = "单据类型", .Width = 14, .ReadOnly = true};
    GridColumn number{.FieldName = std::string(kind_.documents) + "NOID",
                      .Title = "单号",
                      .Width = -1,
                      .ReadOnly = true};
    GridColumn date{.FieldName = "BDATE", .Title = "开单日期", .Width = 12, .ReadOnly = true};
    GridColumn total = amount_column("TOLMONEY", kind_.total_title, 16);
    GridColumn settled = amount_column("SUMMONEY", kind_.settled_title, 16);
    GridColumn returned = amount_column("REMONEY", "累计退款", 16);
    for (GridColumn* column : {&total, &settled, &returned}) column->ReadOnly = true;
    date.Footer = FooterKind::Text;
    date.FooterText = "合计";
    DBGridEh.Columns = {name,     number,
                        date,     total,
                        settled,  returned,
                        amount_column("MONEY", kind_.share_title, 16),
                        hidden("NOID", kind_.number_title),
                        hidden("C", "类型"),
                        hidden("COLORVALUE", "颜色")};
}

void SingleAccountForm::build_layout() {
    layout = Rows(
        {ToolBar({&Act_Save, nullptr, &Act_Other, &Act_Clear, &Act_Refresh, nullptr, &Act_Print,
                  &Act_Preview, nullptr, &Act_Quit}),
         Columns({Title(kind_.caption),
                  Rows({Field("单    号", Edit1, 18), Field(kind_.party_caption, KH_GYS_ID, 10),
                        Field("单据类型", CB1, 18)}),
                  Rows({Field("开单日期", BDATE, 14), Field("票    号", PH, 18),
                        Field(kind_.account_caption, JY_ID, 6)}),
                  Rows({Field(kind_.paid_caption, MONEY, 14), Field("优惠金额", YH, 14),
                        Field("核销合计", Credited, 16)})}),
         Control(LockReason), Columns({Control(BalanceLine), Spring()}), Rest(DBGridEh),
         Columns({Text(kind_.share_title), Control(ShareTotal), Space(2), Control(Difference),
                  Spring(), Text("更改日期"), Control(EDATE), Space(2), Text("制单人"),
                  Control(USER_NAME), Space(2), Text(kind_.left_open), Control(LeftOpen)}),
         StatusLine({Text("Enter 下一格"),
                     Text("F4 选择" + std::string(kind_.party.what) + "、帐户"),
                     Text("按开单日期先后自动分摊，可逐行改动"), Spring(),
                     Text("退回的行请填负数")})});
}

void SingleAccountForm::begin_amounts() {
    MONEY.Text = YH.Text = "";
    Credited.Caption = "";
}

void SingleAccountForm::show_amounts() {
    MONEY.set(AdoQry_Head.FieldByName("MONEY_SS").AsAmount());
    YH.set(AdoQry_Head.FieldByName("MONEY_YH").AsAmount());
    Credited.Caption = money_to_spread().to_text();
}

// ---- leaving a field ----

void SingleAccountForm::MONEYChange() {
    if (holding_) return;
    Credited.Caption = money_to_spread().to_text();
    spread_over_items();
    refresh_totals();
    Touch();
}

// ---- checking ----

void SingleAccountForm::check_amounts() {
    if (!writes_off()) return;
    const std::vector<WriteOff> lines = write_offs();
    const int wrong = first_wrong_sign(lines);
    if (wrong >= 0) {
        DBGridEh.set_row(wrong);
        refuse(sign_refusal);
    }
    const Amount total = sum_of_shares(lines);
    if (total <= Amount()) refuse(kind_.nothing_settled);
    if (MONEY.value().is_zero()) {
        MONEY.SetFocus();
        refuse(kind_.nothing_paid);
    }
    if (!AdoQry_Main.IsEmpty() && total != money_to_spread()) refuse(kind_.sums_differ);
}

// The party may have changed its mind while the window stood open: its balances are read again
// before money is taken without a document.
void SingleAccountForm::prepare_advance() {
    read_party();
    if (!YH.value().is_zero()) {
        YH.SetFocus();
        refuse(kind_.discount_on_advance);
    }
    SettlementForm::prepare_advance();
}

// ---- statements ----

std::string SingleAccountForm::open_items_query(const std::string& party) const {
    return select_open_items(kind_, party);
}

std::string SingleAccountForm::head_query(const std::string& number) const {
    return select_head(kind_, number);
}

std::string SingleAccountForm::lines_query_of(const std::string& number) const {
    return with_key(lines_query(kind_), number);
}

SettlementHead SingleAccountForm::head_to_save() const {
    return {.number = Edit1.Text,
            .party = KH_GYS_ID.Text,
            .purpose = std::to_string(CB1.item_index()),
            .date = BDATE.Text,
            .account = JY_ID.Text,
            .slip = PH.Text,
            .user = G_UserId,
            .paid = MONEY.sent_text(),
            .discount = YH.sent_text()};
}

std::string SingleAccountForm::batch_to_save() {
    const SettlementHead head = head_to_save();
    const std::string written =
        new_document() ? insert_head(kind_, head)
                       : update_head(kind_, head) + delete_lines(kind_, head.number);
    return written + (writes_off() ? insert_write_offs(kind_, head, write_offs()) : "");
}

} // namespace module
