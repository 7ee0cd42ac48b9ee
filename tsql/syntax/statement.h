// The base of all statements, and the batch: the statements of one text.
#pragma once

#include "tsql/syntax/query.h"

namespace tsql {

enum class StatementKind : std::uint8_t {
    // Rows (dml.h).
    Query,
    Insert,
    Update,
    Delete,
    Truncate,
    // Definitions (ddl.h, routine.h).
    CreateTable,
    AlterTable,
    CreateIndex,
    DropIndex,
    Drop,
    CreateView,
    CreateFunction,
    CreateProcedure,
    CreateTrigger,
    // Flow (control.h).
    Block,
    If,
    While,
    Break,
    Continue,
    Return,
    Try,
    Print,
    RaiseError,
    Throw,
    Declare,
    DeclareTable,
    SetVariable,
    SetOption,
    // Cursors (cursor.h).
    DeclareCursor,
    OpenCursor,
    FetchCursor,
    CloseCursor,
    DeallocateCursor,
    // Calls (execute.h).
    Execute,
    ExecuteText,
    // Transactions (transaction.h).
    BeginTransaction,
    Commit,
    Rollback,
    SaveTransaction,
};

// `at` is the statement's own stretch of the text, without a closing semicolon: the definition of
// a view or procedure is kept by cutting it out.
struct Statement : Node<StatementKind> {
    using Node::Node;
};
using StatementPtr = std::unique_ptr<Statement>;

// The statements of one text in order; empty when it holds nothing but blanks and comments. The
// tree keeps no reference to the text it came from.
struct Batch {
    std::vector<StatementPtr> statements;
    // Ordinals of the literals that are no Literal node but part of the tree's shape: the 18 and 2
    // of decimal(18,2), an alias in quotes, the seed of an identity. Texts that differ in one of
    // them are different statements, however alike they look.
    std::vector<int> shaping_literals;
};

} // namespace tsql
