// A ledger of some 200 pages as a PDF file.
#include <filesystem>

#include "bench/measures/all.h"
#include "desktop/printing/pdf_file.h"
#include "host/printing/table_document.h"
#include "tests/support/long_ledger.h"

namespace bench {

namespace {

constexpr int rows = 8'000; // 39 a page, one of them carried over
constexpr double budget = 5'000;

} // namespace

std::vector<Row> printing(const BigBooks&) {
    const std::string file =
        (std::filesystem::temp_directory_path() / "zf_bench_ledger.pdf").string();
    int pages = 0;
    Row row = measure_ours("ledger to PDF", 3, {[&] {
        const host::TableDocument document(tests::long_ledger(rows),
                                           {"示例公司", "李敏", "2016-06-28 17:20"});
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
