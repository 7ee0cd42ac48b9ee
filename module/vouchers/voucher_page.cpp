// Draws the form of a voucher and writes its lines into it.
#include "module/vouchers/voucher_page.h"

#include "host/contract/U_function.h"
#include "host/values/text.h"
#include "module/vouchers/capital_numerals.h"
#include "module/vouchers/ruled_amounts.h"

namespace module {

namespace {

// Places, in hundredths of a millimetre.
constexpr int left = 1510, right = 19510, paper_width = 21000;
constexpr int table_top = 3800, title_row = 640, line_row = 960;
constexpr int frame = 36, rule = 14;
constexpr int column_widths[] = {4060, 2560, 3200, 3740, 3740, 700};
enum Column { Summary, Account, Detail, Debit, Credit, Posted, AllColumns };

constexpr int head_bottom = table_top + 2 * title_row;
constexpr int total_top = head_bottom + lines_a_voucher_page * line_row;
constexpr int table_bottom = total_top + line_row;

int left_of(int column) {
    int x = left;
    for (int i = 0; i < column; ++i) x += column_widths[i];
    return x;
}

PaperBox cell(int column, int top, int height) {
    return {left_of(column), top, column_widths[column], height};
}

PaperBox inside(PaperBox box) { return {box.left + 120, box.top, box.width - 240, box.height}; }

class Page {
public:
    Page(const PaperVoucher& voucher, int page, int pages)
        : voucher_(voucher), number_(page), pages_(pages) {}

    PaperPage drawn(const std::string& company, const std::string& moment) {
        draw_head(company);
        draw_form();
        draw_lines();
        draw_total();
        draw_sides(moment);
        return std::move(page_);
    }

private:
    bool last() const { return number_ + 1 == pages_; }
    std::size_t first_line() const {
        return static_cast<std::size_t>(number_ * lines_a_voucher_page);
    }
    std::size_t lines_here() const {
        const std::size_t all = voucher_.lines.size();
        return std::min<std::size_t>(lines_a_voucher_page, all - std::min(all, first_line()));
    }

    // What is printed on the form, and what is written into it.
    PaperText& form(PaperBox box, std::string text, Alignment align, int size) {
        PaperText& placed = written(box, std::move(text), align, size);
        placed.serif = true;
        return placed;
    }
    PaperText& written(PaperBox box, std::string text, Alignment align, int size) {
        page_.texts.push_back({.box = box, .text = std::move(text), .align = align, .size = size});
        return page_.texts.back();
    }

    void draw_head(const std::string& company);
    void draw_form();
    void draw_titles();
    void draw_lines();
    void draw_total();
    void cross_out_unused();
    void draw_sides(const std::string& moment);

    const PaperVoucher& voucher_;
    int number_, pages_;
    PaperPage page_;
};

std::string two_digits(int number) { return getno("", std::to_string(number), 2); }

void Page::draw_head(const std::string& company) {
    PaperText& title =
        form({0, 880, paper_width, 900}, voucher_.title, Alignment::Center, 190);
    title.bold = true;
    title.spacing = 260;
    const int half = static_cast<int>(character_count(voucher_.title)) * 470 + 200;
    for (const int y : {1840, 1900})
        page_.across(paper_width / 2 - half, paper_width / 2 + half, y, 18);
    const Date day = voucher_.date;
    written({0, 2080, paper_width, 480},
            std::to_string(day.year()) + " 年 " + two_digits(day.month()) + " 月 " +
                two_digits(day.day()) + " 日",
            Alignment::Center, 100);
    written({left, 3120, 11000, 500}, "单位：" + company, Alignment::Left, 95);
    const PaperBox above{left, 2480, right - left, 500}, beside{left, 3120, right - left, 500};
    written(above, "第 " + std::to_string(number_ + 1) + " / " + std::to_string(pages_) + " 页",
            Alignment::Right, 95);
    written(beside, voucher_.word + " 字  第 " + getno("", voucher_.number, 3) + " 号",
            Alignment::Right, 95);
}

void Page::draw_titles() {
    const int high = 2 * title_row;
    form(cell(Summary, table_top, high), "摘      要", Alignment::Center, 90);
    form(cell(Account, table_top, high), "总帐科目", Alignment::Center, 90);
    form(cell(Detail, table_top, high), "明细科目", Alignment::Center, 90);
    form(cell(Debit, table_top, title_row), "借  方  金  额", Alignment::Center, 90);
    form(cell(Credit, table_top, title_row), "贷  方  金  额", Alignment::Center, 90);
    form(cell(Posted, table_top, high), "记帐", Alignment::Center, 80).upright = true;
    for (const int column : {Debit, Credit})
        draw_units(page_, cell(column, table_top + title_row, title_row), 70);
}

void Page::draw_form() {
    draw_titles();
    for (const int column : {Debit, Credit}) {
        rule_boxes(page_, {left_of(column), table_top + title_row, column_widths[column],
                           table_bottom - table_top - title_row});
        page_.across(left_of(column), left_of(column + 1), table_top + title_row, rule);
    }
    for (int line = 0; line <= lines_a_voucher_page; ++line)
        page_.across(left, right, head_bottom + line * line_row, rule);
    for (int column = Account; column < AllColumns; ++column)
        page_.down(left_of(column), table_top, column <= Detail ? total_top : table_bottom, rule);
    for (const int y : {table_top, table_bottom}) page_.across(left, left_of(AllColumns), y, frame);
    for (const int x : {left, left_of(AllColumns)}) page_.down(x, table_top, table_bottom, frame);
}

void Page::draw_lines() {
    for (std::size_t i = 0; i < lines_here(); ++i) {
        const VoucherLine& line = voucher_.lines[first_line() + i];
        const int top = head_bottom + static_cast<int>(i) * line_row;
        const std::size_t bar = line.account.find('-');
        written(inside(cell(Summary, top, line_row)), line.summary, Alignment::Left, 85);
        written(inside(cell(Account, top, line_row)), line.account.substr(0, bar),
                Alignment::Left, 85);
        if (bar != std::string::npos)
            written(inside(cell(Detail, top, line_row)), line.account.substr(bar + 1),
                    Alignment::Left, 85);
        draw_amount(page_, cell(Debit, top, line_row), line.debit, 95, false);
        draw_amount(page_, cell(Credit, top, line_row), line.credit, 95, false);
        if (voucher_.posted)
            written(cell(Posted, top, line_row), "√", Alignment::Center, 95);
    }
}

void Page::draw_total() {
    const PaperBox words{left, total_top, left_of(Debit) - left, line_row};
    if (!last()) {
        form(inside(words), "续下页", Alignment::Left, 90);
        return;
    }
    Amount debit, credit;
    for (const VoucherLine& line : voucher_.lines) {
        debit += line.debit;
        credit += line.credit;
    }
    form({words.left + 120, words.top, 2000, words.height}, "合计（大写）", Alignment::Left, 90);
    PaperText& numerals = form({words.left + 2180, words.top, words.width - 2300, words.height},
                               "人民币" + capital_numerals(debit), Alignment::Left, 100);
    numerals.bold = true;
    draw_amount(page_, cell(Debit, total_top, line_row), debit, 95, true);
    draw_amount(page_, cell(Credit, total_top, line_row), credit, 95, true);
    cross_out_unused();
}

void Page::cross_out_unused() {
    const int used = static_cast<int>(lines_here());
    if (used == lines_a_voucher_page) return;
    const int top = head_bottom + used * line_row + 110;
    for (const int column : {Debit, Credit})
        page_.lines.push_back({left_of(column) + 120, total_top - 110, left_of(column + 1) - 120,
                               top, rule});
}

void Page::draw_sides(const std::string& moment) {
    const int beside = left_of(AllColumns) + 150;
    const int middle = (head_bottom + total_top) / 2;
    const std::string count = std::to_string(voucher_.attachments);
    form({beside, middle - 2100, 500, 1900}, "附单据", Alignment::Center, 95).upright = true;
    written({beside - 100, middle - 250, 700, 500}, count, Alignment::Center, 95);
    form({beside, middle + 200, 500, 600}, "张", Alignment::Center, 95);
    const std::string people[] = {"财务主管", "记帐", "审核", "出纳", "制单"};
    const std::string names[] = {"", "", voucher_.checker, "", voucher_.maker};
    const int label_widths[] = {1500, 850, 850, 850, 850};
    const int room = (right - left) / 5;
    for (int i = 0; i < 5; ++i) {
        const int x = left + i * room + (i == 4 ? 500 : 0);
        form({x, table_bottom + 300, label_widths[i], 500}, people[i], Alignment::Left, 95);
        if (!names[i].empty())
            written({x + label_widths[i], table_bottom + 300, 2200, 500}, names[i],
                    Alignment::Left, 95);
    }
    const PaperBox foot{left, table_bottom + 1250, left_of(AllColumns) - left, 360};
    written(foot, "会计期间 " + voucher_.period, Alignment::Left, 70).ink = Ink::Grey;
    written(foot, "打印 " + moment, Alignment::Right, 70).ink = Ink::Grey;
}

} // namespace

PaperPage voucher_page(const PaperVoucher& voucher, int page, int pages,
                       const std::string& company, const std::string& moment) {
    return Page(voucher, page, pages).drawn(company, moment);
}

} // namespace module
