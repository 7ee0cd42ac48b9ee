// Statements that steer a batch: variables, branches, loops, errors, options.
#pragma once

#include "tsql/syntax/ddl.h"

namespace tsql {

struct Block : Statement { // BEGIN … END
    static constexpr auto own_kind = StatementKind::Block;
    Block() : Statement(own_kind) {}
    std::vector<StatementPtr> statements;
};

struct If : Statement {
    static constexpr auto own_kind = StatementKind::If;
    If() : Statement(own_kind) {}
    ExpressionPtr condition;
    StatementPtr then;
    StatementPtr otherwise; // null when there is no ELSE
};

struct While : Statement {
    static constexpr auto own_kind = StatementKind::While;
    While() : Statement(own_kind) {}
    ExpressionPtr condition;
    StatementPtr body;
};

struct Break : Statement {
    static constexpr auto own_kind = StatementKind::Break;
    Break() : Statement(own_kind) {}
};

struct Continue : Statement {
    static constexpr auto own_kind = StatementKind::Continue;
    Continue() : Statement(own_kind) {}
};

struct Return : Statement {
    static constexpr auto own_kind = StatementKind::Return;
    Return() : Statement(own_kind) {}
    ExpressionPtr value; // null for a plain RETURN
};

struct Try : Statement { // BEGIN TRY … END TRY BEGIN CATCH … END CATCH
    static constexpr auto own_kind = StatementKind::Try;
    Try() : Statement(own_kind) {}
    std::vector<StatementPtr> body;
    std::vector<StatementPtr> handler;
};

struct Print : Statement {
    static constexpr auto own_kind = StatementKind::Print;
    Print() : Statement(own_kind) {}
    ExpressionPtr message;
};

struct RaiseError : Statement { // RAISERROR(message or number, severity, state, arguments…)
    static constexpr auto own_kind = StatementKind::RaiseError;
    RaiseError() : Statement(own_kind) {}
    ExpressionPtr message;
    ExpressionPtr severity;
    ExpressionPtr state;
    std::vector<ExpressionPtr> arguments;
    std::vector<Name> options; // WITH NOWAIT, LOG, SETERROR
};

struct Throw : Statement { // THROW, or THROW number, message, state: all three or none
    static constexpr auto own_kind = StatementKind::Throw;
    Throw() : Statement(own_kind) {}
    ExpressionPtr number;
    ExpressionPtr message;
    ExpressionPtr state;
};

struct VariableDeclaration { // @a int = 3
    std::string name;
    TypeName type;
    ExpressionPtr initial; // null when none
    SourceRange at;
};

struct Declare : Statement {
    static constexpr auto own_kind = StatementKind::Declare;
    Declare() : Statement(own_kind) {}
    std::vector<VariableDeclaration> variables;
};

struct DeclareTable : Statement { // DECLARE @t TABLE (…)
    static constexpr auto own_kind = StatementKind::DeclareTable;
    DeclareTable() : Statement(own_kind) {}
    std::string name;
    SourceRange name_at;
    TableDefinition definition;
};

struct SetVariable : Statement { // SET @a = x, SET @a += x
    static constexpr auto own_kind = StatementKind::SetVariable;
    SetVariable() : Statement(own_kind) {}
    std::string name;
    SourceRange name_at;
    AssignOperator op = AssignOperator::Assign;
    ExpressionPtr value;
};

// SET NOCOUNT ON; SET ANSI_NULLS, QUOTED_IDENTIFIER OFF; SET DATEFORMAT ymd; SET IDENTITY_INSERT
// T ON; SET TRANSACTION ISOLATION LEVEL READ COMMITTED (one option of that name).
struct SetOption : Statement {
    static constexpr auto own_kind = StatementKind::SetOption;
    SetOption() : Statement(own_kind) {}
    std::vector<Name> options;       // upper case
    std::optional<bool> on;          // of switches
    std::string value;               // of options that take one: ymd, 50, READ COMMITTED
    std::optional<ObjectName> table; // of IDENTITY_INSERT
};

} // namespace tsql
