// Calls of procedures and of text that is itself a batch.
#pragma once

#include "tsql/syntax/statement.h"

namespace tsql {

struct Argument {        // 5, @o OUTPUT, @p = 'x', @p = DEFAULT
    std::string name;    // parameter it is for, with its mark; empty when given by place
    ExpressionPtr value; // a Literal (with its sign as Unary), Variable or DefaultMark; a bare word
                         // comes as a text literal
    bool output = false;
    SourceRange at;
};

// EXEC [@r =] procedure arguments; the word EXEC may be missing at the start of a batch.
// sp_executesql is a procedure like any other here.
struct Execute : Statement {
    static constexpr auto own_kind = StatementKind::Execute;
    Execute() : Statement(own_kind) {}
    std::string return_variable; // empty when the value is not wanted
    ObjectName procedure;
    std::vector<Argument> arguments;
};

struct ExecuteText : Statement { // EXEC ('SELECT … ' + @where)
    static constexpr auto own_kind = StatementKind::ExecuteText;
    ExecuteText() : Statement(own_kind) {}
    ExpressionPtr text;
};

} // namespace tsql
