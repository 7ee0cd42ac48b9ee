// How a receipt in any currency stands on the screen.
#include "module/settlement/currency_layout.h"

#include "host/controls/amount_column.h"
#include "module/settlement/U6630_1.h"

namespace module {

namespace {

GridColumn shown(const char* field, const char* title, int width) {
    return {.FieldName = field, .Title = title, .Width = width, .ReadOnly = true};
}

// Twelve columns stand side by side on a small screen.
GridColumn amount_shown(const char* field, const char* title, int width,
                        FooterKind footer = FooterKind::None) {
    GridColumn column = amount_column(field, title, width, footer);
    column.ReadOnly = true;
    return column;
}

GridColumn hidden(const char* field, const char* title) {
    return {.FieldName = field, .Title = title, .ReadOnly = true, .Visible = false};
}

} // namespace

std::vector<GridColumn> account_columns() {
    GridColumn name = shown("JY_NAME", "帐户名称", 24);
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    return {shown("JY_ID", "帐户编号", 10), name, amount_column("MONEY", "本次收款", 16)};
}

std::vector<GridColumn> open_item_columns() {
    GridColumn rate = shown("HL", "汇率", 4);
    rate.Align = Alignment::Right;
    return {shown("C_NAME", "单据类型", 12),
            shown("D8102NOID", "单号", 12),
            shown("BDATE", "开单日期", 10),
            shown("HB_NAME", "结算货币", 7),
            rate,
            amount_shown("TOLSMONEY", "本单应收款|外币", 9),
            amount_shown("TOLMONEY", "本单应收款|本位币", 9),
            amount_shown("YSW", "应收款|外币", 10, FooterKind::Sum),
            amount_shown("YSB", "应收款|本位币", 10, FooterKind::Sum),
            amount_shown("SUMMONEY", "累计收款", 8),
            amount_shown("REMONEY", "累计退款", 7),
            amount_column("MONEY", "本次收款", 9),
            hidden("NOID", "销售单号"),
            hidden("HB_ID", "货币代号"),
            hidden("C", "类型"),
            hidden("SZLB", "收支代码"),
            hidden("COLORVALUE", "颜色")};
}

LayoutNode currency_receipt_layout(TF6630_1& form) {
    const LayoutNode head = Columns(
        {Title("销售收款"),
         Rows({Field("单    号", form.Edit1, 18), Field("客    户", form.KH_GYS_ID, 10),
               Field("单据类型", form.CB1, 18)}),
         Rows({Field("开单日期", form.BDATE, 14), Field("票    号", form.PH, 18),
               Field("收款帐户", form.JY_ID, 6)}),
         Rows({Field("收款货币", form.HB_ID, 6), Field("汇    率", form.HL, 12),
               Field("外币金额", form.WBMONEY, 14)})});
    return Rows(
        {ToolBar({&form.Act_Save, nullptr, &form.Act_Other, &form.Act_Clear, &form.Act_Refresh,
                  nullptr, &form.Act_Print, &form.Act_Preview, nullptr, &form.Act_Quit}),
         head, Control(form.LockReason), Control(form.AccountHint),
         Columns({Control(form.BalanceLine), Spring(),
                  Field("单据货币显示(仅制单时生效):", form.CB2, 12)}),
         Splitter(Rest(form.Accounts), Rest(form.DBGridEh), 28),
         Columns({Text("本次收款"), Control(form.ShareTotal), Space(2), Control(form.Difference),
                  Space(2), Text("其他应收合计:"), Control(form.OverReceipts), Spring(),
                  Text("更改日期"), Control(form.EDATE), Text("制单人"), Control(form.USER_NAME),
                  Text("分摊后未收"), Control(form.LeftOpen)}),
         StatusLine({Text("Enter 下一格"), Text("F4 选择客户、帐户、货币"),
                     Text("在上表填各帐户的收款，按开单日期先后自动分摊"), Spring(),
                     Text("多收的款填在收入类别的行上")})});
}

} // namespace module
