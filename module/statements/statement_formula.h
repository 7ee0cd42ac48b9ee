// The formula of a statement's cell, and the query it becomes.
#pragma once

#include <span>
#include <string>

#include "module/host_names.h"

namespace module {

// A word for a kind of amount and its period: 期末 stands for 0,'2024-03'.
struct PeriodWord {
    const char* written;
    int kind;                       // first argument of the database function
    bool beginning_of_year = false; // the period is then the year's opening, its month 00
};

// A function as it is written in a formula, and its name in the database.
struct StatementFunction {
    const char* written; // "fsum("
    const char* sent;    // "dbo.fsum("
    bool of_layout;      // reads lines of the statement: the layout is its first argument
};

// The words of one statement. They are replaced one after the other in this order, wherever they
// stand in what the words before them left; everything else is sent as it was written.
struct FormulaWords {
    std::span<const PeriodWord> periods;
    std::span<const StatementFunction> functions;
};

// What a formula is about to be reckoned for.
struct StatementMoment {
    std::string period; // as typed: "2024-03"
    int layout = 1;     // 1 to 3
};

// The query that answers the amount of one cell:
//
//     fsum(期末,1,5) → select dbo.fsum(3,0,'2024-03',1,5) as a      in layout 3
//
// A formula is an expression of the database; one that is none is found out there.
std::string cell_query(const std::string& formula, const FormulaWords& words,
                       const StatementMoment& moment);

// What of a query is more than one expression: a word that begins another statement, a semicolon,
// a comment. "" when there is none. A formula reckons an amount; it must not act on the books.
std::string what_is_no_expression(const std::string& query);

// Does the formula take amounts from other lines of the statement? Those are to be reckoned after
// the lines they look at.
bool refers_to_lines(const std::string& formula);

} // namespace module
