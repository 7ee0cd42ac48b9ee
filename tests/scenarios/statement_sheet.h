// The lines of a financial statement, worked out from its formulas.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/scenarios/naive_ledger.h"
#include "tests/support/books.h"

namespace tests {

// Where a statement keeps its lines and formulas, and what its period words mean. `words` are
// replaced in this order; %P stands for the period, %Y for the opening of its year.
struct StatementKind {
    struct Column {
        const char* name;    // "期末"
        const char* line;    // field of the line number: "A2"
        const char* formula; // field of the formula: "A6"
    };
    struct Word {
        const char* word;
        const char* meaning; // "0,'%P'"
        const char* column;  // where a reference to another line of this statement is looked up
    };
    const char* table;
    bool layouts; // the table holds three, told apart by G
    std::vector<Column> columns;
    std::vector<Word> words;
};

const StatementKind& balance_sheet();
const StatementKind& income_statement();
const StatementKind& cash_flow_statement();

// Figures of accounts and cash-flow items come from the database's functions; sums and references
// to other lines (fsum, fd) are worked out here.
class StatementSheet {
public:
    StatementSheet(Books& books, const StatementKind& kind, int layout, std::string period);
    // In place of the formulas of a line, written for %C, the column's period word.
    void replace(const std::string& line, const std::string& formula);
    Cents value(const std::string& line, const std::string& column);

private:
    struct Cell {
        std::string formula;
        bool known = false;
        Cents amount = 0;
    };
    Cents evaluate(const std::string& formula);
    Cents term(const std::string& text);
    Cents sum_of_lines(const std::string& column, int from, int to);
    Cents from_ledger(std::string call);
    const StatementKind::Word* first_word(const std::string& text) const;

    Books& books_;
    const StatementKind& kind_;
    std::string period_;
    std::map<std::string, std::map<std::string, Cell>> lines_; // by number, then column
};

} // namespace tests
