// List the receipts from customers in any currency: enter, copy, change, delete them.
#include "module/settlement/U6630.h"

#include "host/controls/amount_column.h"
#include "host/values/sql_text.h"
#include "module/settlement/U6630_1.h"
#include "module/settlement/U6630f.h"
#include "module/settlement/currency_layout.h"

namespace module {

TF6630* F6630 = nullptr;

// ---- opening ----

TF6630::TF6630(TForm* parent) : SettlementList(parent, receipt_kind) {
    add_head_columns(opening_columns());
    GridColumn rate{
        .FieldName = "HL", .Title = "汇率", .Width = 8, .Align = Alignment::Right};
    add_head_columns({{.FieldName = "HB_NAME", .Title = "货币", .Width = 7},
                      rate,
                      amount_column("WBMONEY", "收款金额|外币", 13, FooterKind::None),
                      amount_column("MONEY", "收款金额|本位币", 13),
                      amount_column("MONEY_RS", "其他应收", 10)});
    AdoQry_Main.DefineField("MONEY_RS", FieldType::Amount).DisplayFormat = "";
    for (TClientDataSet* rows : {&AdoQry_Main, &AdoQry_Line})
        rows->DefineField("HL", FieldType::Amount); // in its shortest form
    add_head_columns(closing_columns());
    add_line_columns(open_item_columns());
}

EntryHeadSettings TF6630::settings() const {
    return {.table = "D631",
            .key_field = "NOID",
            .lookup_field = "NOID",
            .amount_fields = "MONEY",
            .head_query = currency_heads,
            .head_order = " ORDER BY D631.BDATE,D631.NOID",
            .line_query = currency_lines,
            .delete_statement = receipt_kind.delete_head,
            .period_field = "",
            .audited_field = "",
            .posted_field = ""};
}

std::unique_ptr<TFrm_Sys_Filter> TF6630::make_filter() {
    return std::make_unique<TF6630F>(this);
}

std::unique_ptr<Tfrm_Base_Entry_Body> TF6630::make_entry_form() {
    return std::make_unique<TF6630_1>(this);
}

// ---- documents ----

// Saved here, the discount would be gone and the returns named as sales.
std::string TF6630::why_changed_elsewhere() {
    const std::string number = AdoQry_Main.FieldByName("NOID").AsText();
    const bool discount = !AdoQry_Main.FieldByName("MONEY_YH").AsAmount().is_zero();
    TClientDataSet returns;
    if (!discount)
        opensql(returns, FunctionCode,
                "SELECT TOP 1 NOID FROM D631A WHERE C=6 AND NOID=" + quoted(number));
    if (!discount && returns.IsEmpty()) return "";
    return "“" + DocumentName() + "”含有优惠或销售退回，请在“销售收款”（功能 631）中修改!";
}

} // namespace module
