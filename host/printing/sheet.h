// A table as a person sees it, ready for paper and for spreadsheets.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/controls/alignment.h"
#include "host/values/value.h"

namespace host {

struct SheetColumn {
    std::string field; // names the column where rules speak of it; "" for none
    std::string title; // "upper|lower": neighbours with the same upper part are grouped
    int width = 0;     // characters of ordinary type; 0 by content; -1 takes what is left
    Alignment align = Alignment::Left;
    bool amount = false;    // money: negative red, thousands parted on paper
    bool check_box = false; // a flag, shown as a check mark
    // Says of each row in a file what paper tells above the rows: the account of a ledger's line.
    bool in_files_only = false;
    std::string format;     // of numbers and days, as TField::DisplayFormat
};

// What stands in one cell, as a value with its type and as the text a person reads.
struct SheetCell {
    Value value;
    std::string text;
    bool red = false;
    bool bold = false; // openings, totals
};

// What a row is to the sums that an account book carries from page to page.
enum class BookRow {
    Added,  // a movement: added up
    Opening,// begins the sums anew and is not added: an opening balance, a month's total
    Neutral // neither
};

// The rule of account books: a page that does not end its account closes with 过次页, the next
// begins with 承前页. Both show what was added up since the last opening and the balance reached.
struct CarriedSums {
    std::string label;               // field of the column that says 过次页
    std::vector<std::string> added;  // fields added up: debit and credit
    std::vector<std::string> copied; // fields repeated from the last row: side and balance
    std::function<BookRow(int row)> row;
    // Does `row` begin an account? Nothing is carried into it. Absent: one account throughout.
    std::function<bool(int row)> begins_account;
    bool a_page_each = true; // an account begins a page
    std::function<std::string(int row)> account; // "1001  现金", told above the page's lines
};

// Reads the form's own data while it is used: not to be kept longer than the form stands still.
struct Sheet {
    std::string title; // "试算平衡表"
    std::vector<std::string> conditions; // what the rows were asked for, a line each
    std::vector<SheetColumn> columns;    // from left to right
    int rows = 0;
    std::function<SheetCell(int row, int column)> cell;
    std::vector<SheetCell> footers; // one a column; empty when there are none
    std::optional<CarriedSums> carried;
    bool one_page = false;               // a statement: set smaller rather than parted
    std::vector<std::string> signatures; // of those who answer for it, below the table

    int column_of(const std::string& field) const; // -1 when it is not there
    // The levels of titles: 2 when any of them is grouped.
    int title_levels() const;
};

// The sheet without the columns that only files have.
Sheet for_paper(Sheet sheet);

// The part of a title above the bar, "" when there is none; the part below it, or all of it.
std::string upper_title(const SheetColumn& column);
std::string lower_title(const SheetColumn& column);

} // namespace host
