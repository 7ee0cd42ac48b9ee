// Rows made as they are asked for.
#include "tests/support/long_ledger.h"

namespace tests {

host::Sheet long_ledger(int rows) {
    host::Sheet sheet;
    sheet.title = "明细分类帐";
    sheet.conditions = {"●会计年度:2016"};
    sheet.columns = {{.field = "BDATE", .title = "凭证日期", .width = 11},
                     {.field = "PZZ", .title = "凭证字", .width = 10},
                     {.field = "ZY", .title = "摘要", .width = -1}};
    for (const char* side : {"J", "D", "E"})
        sheet.columns.push_back({.field = side, .title = side, .width = 14,
                                 .align = host::Alignment::Right, .amount = true,
                                 .format = "0.00"});
    sheet.rows = rows;
    sheet.cell = [](int row, int column) {
        if (column == 0) return host::SheetCell{{}, "2016-06-22"};
        if (column == 1) return host::SheetCell{{}, "记-" + std::to_string(row)};
        if (column == 2) return host::SheetCell{{}, "收常熟盛源建材货款" + std::to_string(row)};
        const host::Amount amount = host::Amount::from_cents(123'456 + row * 1'237 * column);
        return host::SheetCell{host::Value{amount}, amount.to_text()};
    };
    sheet.carried = host::CarriedSums{.label = "ZY", .added = {"J", "D"}, .copied = {"E"}};
    return sheet;
}

} // namespace tests
