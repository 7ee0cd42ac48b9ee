// A ledger of some 200 pages as a PDF file.
#include <filesystem>

#include "bench/measures/all.h"
#include "desktop/printing/pdf_file.h"
#include "host/printing/table_document.h"

namespace bench {

namespace {

constexpr int rows = 8'000; // 39 a page, one of them carried over
constexpr double budget = 5'000;

host::Sheet ledger() {
    host::Sheet sheet;
    sheet.title = "明细分类帐";
    sheet.columns = {{.field = "BDATE", .title = "凭证日期", .width = 11},
                     {.field = "PZZ", .title = "凭证字", .width = 10},
                     {.field = "ZY", .title = "摘要", .width = -1}};
    for (const char* title : {"借方金额", "贷方金额", "余额"})
        sheet.columns.push_back({.field = title, .title = title, .width = 14,
                                 .align = host::Alignment::Right, .amount = true,
                                 .format = "0.00"});
    sheet.rows = rows;
    sheet.cell = [](int row, int column) {
        if (column == 0) return host::SheetCell{{}, "2016-06-22"};
        if (column == 1) return host::SheetCell{{}, "记-" + std::to_string(row)};
        if (column == 2) return host::SheetCell{{}, "收常熟盛源建材货款" + std::to_string(row)};
        const host::Amount amount = host::Amount::from_cents(row * 1'237 * column);
        return host::SheetCell{host::Value{amount}, amount.to_text()};
    };
    sheet.carried = host::CarriedSums{
        .label = "ZY", .added = {"借方金额", "贷方金额"}, .copied = {"余额"}};
    return sheet;
}

} // namespace

std::vector<Row> printing(const BigBooks&) {
    const std::string file =
        (std::filesystem::temp_directory_path() / "zf_bench_ledger.pdf").string();
    int pages = 0;
    Row row = measure_ours("ledger to PDF", 3, {[&] {
        const host::TableDocument document(ledger(), {"示例公司", "李敏", "2016-06-28 17:20"});
        pages = document.page_count();
        desktop::write_pdf(document, file);
    }});
    row.budget_ms = budget;
    row.note = std::to_string(pages) + " pages, " +
               std::to_string(std::filesystem::file_size(file) / 1024) + " KB";
    std::filesystem::remove(file);
    return {row};
}

} // namespace bench
