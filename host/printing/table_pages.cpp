// Breaks the rows of a sheet into pages.
#include "host/printing/table_pages.h"

namespace host {

namespace {

bool begins_account(const Sheet& sheet, int row) {
    return sheet.carried && sheet.carried->begins_account && row < sheet.rows &&
           sheet.carried->begins_account(row);
}

// The first row that must not stand on the page of `row`.
int end_of_pages(const Sheet& sheet, int row) {
    if (!sheet.carried || !sheet.carried->a_page_each) return sheet.rows;
    for (++row; row < sheet.rows; ++row)
        if (begins_account(sheet, row)) break;
    return std::min(row, sheet.rows);
}

TablePage page_from(const Sheet& sheet, int row, bool carried_in, int lines) {
    TablePage page;
    page.first = row;
    page.carried_in = carried_in;
    const int room = lines - (carried_in ? 1 : 0);
    const int end = end_of_pages(sheet, row);
    const int left = end - row;
    page.footers = end == sheet.rows && !sheet.footers.empty();
    page.count = left;
    if (left + (page.footers ? 1 : 0) <= room) return page;
    page.footers = false;
    page.count = std::min(room, left - 1);
    if (!sheet.carried || begins_account(sheet, row + page.count)) return page;
    page.count = room - 1;
    page.carried_out = !begins_account(sheet, row + page.count);
    return page;
}

// Adds up as the rows go by.
class Running {
public:
    explicit Running(const Sheet& sheet) : sheet_(sheet) {
        if (!sheet.carried) return;
        for (const std::string& field : sheet.carried->added)
            columns_.push_back(sheet.column_of(field));
    }
    void clear() { sums_.reset(); }
    void pass(int row) {
        if (begins_account(sheet_, row)) clear();
        const BookRow kind = sheet_.carried->row ? sheet_.carried->row(row) : BookRow::Added;
        if (kind == BookRow::Opening) clear();
        if (kind != BookRow::Added) return;
        if (!sums_) sums_ = std::vector<Amount>(columns_.size());
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (columns_[i] < 0) continue;
            const Value value = sheet_.cell(row, columns_[i]).value;
            if (const auto* amount = std::get_if<Amount>(&value)) (*sums_)[i] += *amount;
        }
    }
    const SumsSoFar& sums() const { return sums_; }

private:
    const Sheet& sheet_;
    std::vector<int> columns_;
    SumsSoFar sums_;
};

} // namespace

std::vector<TablePage> break_into_pages(const Sheet& sheet, int lines) {
    std::vector<TablePage> pages;
    Running running(sheet);
    bool goes_on = false;
    int row = 0;
    do {
        TablePage page = page_from(sheet, row, goes_on, lines);
        if (goes_on) page.in = running.sums();
        else running.clear();
        for (int i = 0; sheet.carried && i < page.count; ++i) running.pass(page.first + i);
        if (page.carried_out) page.out = running.sums();
        goes_on = page.carried_out;
        row = page.first + page.count;
        pages.push_back(std::move(page));
    } while (row < sheet.rows);
    return pages;
}

} // namespace host
