// A sheet on paper: title, conditions, ruled table, page numbers.
#pragma once

#include "host/printing/table_columns.h"
#include "host/printing/table_pages.h"

namespace host {

// What is told beside the rows of every list.
struct PaperWords {
    std::string company;
    std::string maker;  // who printed it
    std::string moment; // "2024-03-15 09:00"
};

class TableDocument final : public PaperDocument {
public:
    TableDocument(Sheet sheet, PaperWords words);

    std::string title() const override { return sheet_.title; }
    PaperSize size() const override { return columns_.paper; }
    int page_count() const override { return static_cast<int>(pages_.size()); }
    PaperPage page(int number) const override;

private:
    int table_top() const;
    int head_height() const;
    int lines_a_page() const;
    int left_of(int column) const;
    int foot_top() const;
    void fit_one_page();

    void draw_words(PaperPage& page, const TablePage& shown) const;
    void draw_foot(PaperPage& page, int number) const;
    void draw_signatures(PaperPage& page, int lines) const;
    void draw_titles(PaperPage& page) const;
    void draw_rows(PaperPage& page, const TablePage& shown) const;
    void draw_rules(PaperPage& page, const TablePage& shown) const;
    void draw_cell(PaperPage& page, int line, int column, const SheetCell& cell) const;
    void draw_carried(PaperPage& page, int line, const char* words, const SumsSoFar& sums,
                      int last_row) const;

    Sheet sheet_;
    PaperWords words_;
    TableColumns columns_;
    std::vector<TablePage> pages_;
};

} // namespace host
