// What a sales document chooses from: goods, their units, order lines, earlier documents.
#include "module/invoicing/invoice_pickers.h"

#include "host/forms/parts/code_picker.h"
#include "module/invoicing/invoice_statements.h"

namespace module {

namespace {

// Codes and names for a picker.
class Offered {
public:
    Offered() {
        rows_.DefineField("CODE", FieldType::Text);
        rows_.DefineField("NAME", FieldType::Text);
        rows_.Open();
    }
    void add(const std::string& code, const std::string& name) {
        rows_.Append();
        rows_.FieldByName("CODE").SetValue(code);
        rows_.FieldByName("NAME").SetValue(name);
        rows_.Post();
    }
    // The code chosen and its name.
    std::optional<std::pair<std::string, std::string>> pick(TForm& form, const char* code_title,
                                                            const char* caption,
                                                            const std::string& current) const {
        CodePicker picker(&form);
        picker.init(rows_, code_title, caption, current);
        if (picker.ShowModal() != mrOk) return std::nullopt;
        return std::pair{picker.chosen_code(), picker.chosen_name()};
    }

private:
    TClientDataSet rows_;
};

std::optional<std::string> code_of(const std::optional<std::pair<std::string, std::string>>& row) {
    return row ? std::optional(row->first) : std::nullopt;
}

} // namespace

std::optional<std::string> pick_good(TForm& form, const Goods& goods, const std::string& current) {
    Offered offered;
    for (const Good* good : goods.all())
        offered.add(good->code, good->name + (good->size.empty() ? "" : "  " + good->size));
    return code_of(offered.pick(form, "商品编号", "商品", current));
}

std::optional<std::string> pick_unit(TForm& form, const Goods& goods, const std::string& good,
                                     const std::string& current) {
    Offered offered;
    for (const Good* unit : goods.units_of(good)) offered.add(unit->unit, unit->unit_name);
    return code_of(offered.pick(form, "代号", "单位", current));
}

std::optional<OrderLine> pick_order_line(TForm& form, const std::string& function) {
    TClientDataSet rows;
    opensql(rows, function, select_order_lines());
    Offered offered;
    for (rows.First(); !rows.Eof(); rows.Next())
        offered.add(rows.FieldByName("ID").AsText(), rows.FieldByName("NOID").AsText());
    const auto chosen = offered.pick(form, "订单行", "订单编号", "");
    return chosen ? std::optional(OrderLine{chosen->first, chosen->second}) : std::nullopt;
}

std::optional<std::string> pick_invoice(TForm& form, const std::string& function) {
    TClientDataSet rows;
    opensql(rows, function, select_invoices());
    Offered offered;
    for (rows.First(); !rows.Eof(); rows.Next())
        offered.add(rows.FieldByName("NOID").AsText(),
                    rows.FieldByName("BDATE").AsDateTime().date.to_text() + "  " +
                        rows.FieldByName("KG_NAME").AsText() + "  " +
                        rows.FieldByName("TOLMONEY").AsAmount().to_text());
    return code_of(offered.pick(form, "销售单号", "销售单", ""));
}

} // namespace module
