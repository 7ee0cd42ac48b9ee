// A refusal of a T-SQL text: the server's error number, the place, a sentence, and a caret below
// it.
#pragma once

#include "tsql/source/position.h"

#include <stdexcept>
#include <string>

namespace tsql {

// Thrown by lexer, parser and binder when a text is not accepted; nothing of the batch has run.
// The place is a stretch of the batch; `diagnose` turns it into line and column.
//
//     throw Refusal(207, column.at, "Invalid column name 'KM_IDX'.");
class Refusal : public std::runtime_error {
public:
    Refusal(int error_number, SourceRange place, const std::string& sentence)
        : std::runtime_error(sentence), number(error_number), at(place) {}

    int number;     // as SQL Server numbers its errors: 102 syntax, 207 column, 208 object
    SourceRange at; // what the sentence is about
};

// A refusal made ready to be shown; independent of the text it came from.
struct Diagnostic {
    int number = 0;
    int line = 1;
    int column = 1;
    std::string message;
    std::string source_line; // the offending line, tabs as single blanks
    int caret_indent = 0;    // cells before the caret; a Chinese character takes two
    int caret_width = 1;     // cells underlined

    // "1:8 Invalid column name 'KM_IDX'." and below it the line with its caret.
    std::string text() const;
};

Diagnostic diagnose(std::string_view batch, const Refusal& refusal);

} // namespace tsql
