// The lines of a balance sheet, worked out from its formulas with some of them replaced.
#pragma once

#include <map>
#include <string>

#include "tests/scenarios/formula_reckoning.h"
#include "tests/scenarios/naive_ledger.h"
#include "tests/support/books.h"

namespace tests {

// What a user gets who rewrites formulas, without changing the layouts of the books. Figures of
// accounts come from the database's functions; sums of lines and references to other lines (fsum,
// fd) are worked out here.
//
//     StatementSheet sheet(books, 1, "2024-01");
//     sheet.replace("8", "fjf(%C,'2121','2121')");
//     sheet.value("31", "期末");
class StatementSheet {
public:
    StatementSheet(Books& books, int layout, std::string period);
    // In place of both formulas of a line; %C is the word of the column, 年初 or 期末.
    void replace(const std::string& line, const std::string& formula);
    Cents value(const std::string& line, const std::string& column);

private:
    struct Cell {
        std::string formula;
        bool known = false;
        Cents amount = 0;
    };
    void take_half(const Row& row, const char* line, const char* year_begin, const char* closing);
    Cents evaluate(const std::string& formula);
    Cents amount_of(const FormulaCall& call);
    Cents sum_of_lines(const std::string& column, int from, int to);
    Cents from_ledger(const FormulaCall& call);

    Books& books_;
    std::string period_;
    std::map<std::string, std::map<std::string, Cell>> lines_; // by number, then column
};

} // namespace tests
