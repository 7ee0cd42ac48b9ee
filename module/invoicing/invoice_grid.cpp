// The lines of a sales document while they are typed: each figure follows from the others.
#include "module/invoicing/invoice_grid.h"

#include "host/contract/U_glo.h"
#include "host/controls/amount_column.h"
#include "module/invoicing/invoice_line.h"

namespace module {

namespace {

const Amount one = Amount::from_whole(1);

GridColumn figure(const char* field, const char* title, int width,
                  FooterKind footer = FooterKind::None) {
    return amount_column(field, title, width, footer);
}

GridColumn shown(const char* field, const char* title, int width) {
    return {.FieldName = field, .Title = title, .Width = width, .ReadOnly = true};
}

GridColumn looked_up(const char* field, const char* title, int width) {
    GridColumn column{.FieldName = field, .Title = title, .Width = width};
    column.Button = true;
    return column;
}

} // namespace

std::vector<GridColumn> invoice_columns() {
    GridColumn name = shown("WL_NAME", "商品名称", 13);
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    GridColumn returned = figure("SL_RETURN", "退货数量", 7);
    returned.ReadOnly = true;
    return {looked_up("WL_ID", "商品编号", 9),
            name,
            shown("WL_GG", "规格", 7),
            looked_up("DW_NAME", "单位", 6),
            figure("SL", "数量", 7, FooterKind::Sum),
            figure("DW_J", "数量|件", 5),
            figure("DW_L", "数量|零数", 5),
            figure("SJ", "售价", 7),
            figure("SMONEY", "售价金额", 10, FooterKind::Sum),
            figure("DJ", "成本价", 7),
            figure("MONEY", "成本金额", 10, FooterKind::Sum),
            returned,
            {.FieldName = "NOTE", .Title = "备注", .Width = 8},
            shown("TM", "条码", 10),
            looked_up("NOID", "订单编号", 10)};
}

void InvoiceGrid::define_fields() {
    for (const char* text : {"WL_ID", "WL_NAME", "WL_GG", "DW_NAME", "TM", "NOID", "D8101AID",
                             "ADW", "DW_ID"})
        rows_.DefineField(text, FieldType::Text);
    rows_.DefineField("NOTE", FieldType::Text, 200);
    for (const char* quantity : {"SL", "DW_J", "DW_L", "DW_ZH", "SL_RETURN"})
        rows_.DefineField(quantity, FieldType::Amount).DisplayFormat = G_QtyFormat;
    for (const char* price : {"SJ", "DJ"})
        rows_.DefineField(price, FieldType::Amount).DisplayFormat = G_PriceFormat;
    for (const char* amount : {"SMONEY", "MONEY"})
        rows_.DefineField(amount, FieldType::Amount).DisplayFormat = G_AmountFormat;
}

Amount InvoiceGrid::number(const char* field) const { return rows_.FieldByName(field).AsAmount(); }

void InvoiceGrid::put(const char* field, Amount value) {
    rows_.FieldByName(field).SetValue(value);
}

InvoiceLine InvoiceGrid::current() const {
    const auto text = [this](const char* field) { return rows_.FieldByName(field).AsText(); };
    const Amount conversion = number("DW_ZH");
    return {.order = text("NOID"),
            .order_line = text("D8101AID"),
            .good = text("WL_ID"),
            .unit = text("ADW"),
            .quantity = number("SL"),
            .pieces = number("DW_J"),
            .rest = number("DW_L"),
            .conversion = conversion.is_zero() ? one : conversion,
            .price = number("SJ"),
            .amount = number("SMONEY"),
            .cost_price = number("DJ"),
            .cost = number("MONEY"),
            .note = text("NOTE")};
}

std::vector<InvoiceLine> InvoiceGrid::read() const {
    std::vector<InvoiceLine> lines;
    for (int row = 0; row < rows_.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(rows_, row);
        lines.push_back(current());
    }
    return lines;
}

void InvoiceGrid::take_good(const Good& good) {
    rows_.Edit();
    rows_.FieldByName("WL_ID").SetValue(good.code);
    rows_.FieldByName("WL_NAME").SetValue(good.name);
    rows_.FieldByName("WL_GG").SetValue(good.size);
    take_unit(good);
}

// No table says how many of its smaller units a larger one holds: it counts as one, unless the
// line came with a conversion of its own.
void InvoiceGrid::take_unit(const Good& good) {
    rows_.Edit();
    rows_.FieldByName("ADW").SetValue(good.unit_key);
    rows_.FieldByName("DW_ID").SetValue(good.unit);
    rows_.FieldByName("DW_NAME").SetValue(good.unit_name);
    rows_.FieldByName("TM").SetValue(good.bar_code);
    put("DW_ZH", one);
    follow_quantity();
}

void InvoiceGrid::take_order(const std::string& order, const std::string& order_line) {
    rows_.Edit();
    rows_.FieldByName("NOID").SetValue(order);
    rows_.FieldByName("D8101AID").SetValue(order_line);
}

void InvoiceGrid::follow_quantity() {
    const int decimals = decimals_of(G_AmountFormat);
    const Packed parts = packed(number("SL"), number("DW_ZH"));
    put("DW_J", parts.pieces);
    put("DW_L", parts.rest);
    put("SMONEY", line_amount(number("SL"), number("SJ"), decimals));
    put("MONEY", line_amount(number("SL"), number("DJ"), decimals));
}

void InvoiceGrid::follow(const std::string& field) {
    const int decimals = decimals_of(G_AmountFormat);
    if (field == "DW_J" || field == "DW_L")
        put("SL", unpacked({number("DW_J"), number("DW_L")}, number("DW_ZH")));
    if (field == "SL" || field == "DW_J" || field == "DW_L") return follow_quantity();
    if (field == "SJ") put("SMONEY", line_amount(number("SL"), number("SJ"), decimals));
    if (field == "DJ") put("MONEY", line_amount(number("SL"), number("DJ"), decimals));
    if (field == "SMONEY")
        put("SJ", line_price(number("SMONEY"), number("SL"), decimals_of(G_PriceFormat)));
    if (field == "MONEY")
        put("DJ", line_price(number("MONEY"), number("SL"), decimals_of(G_PriceFormat)));
}

} // namespace module
