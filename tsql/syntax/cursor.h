// Cursors: rows of a query taken one at a time.
#pragma once

#include "tsql/syntax/statement.h"

namespace tsql {

struct DeclareCursor : Statement { // DECLARE c CURSOR [LOCAL FAST_FORWARD …] FOR SELECT …
    static constexpr auto own_kind = StatementKind::DeclareCursor;
    DeclareCursor() : Statement(own_kind) {}
    Name name;
    std::vector<Name> options; // upper case
    std::unique_ptr<Query> query;
};

struct OpenCursor : Statement {
    static constexpr auto own_kind = StatementKind::OpenCursor;
    OpenCursor() : Statement(own_kind) {}
    Name name;
};

enum class FetchDirection : std::uint8_t { Next, Prior, First, Last, Absolute, Relative };

struct FetchCursor : Statement { // FETCH [NEXT FROM] c [INTO @a, @b]
    static constexpr auto own_kind = StatementKind::FetchCursor;
    FetchCursor() : Statement(own_kind) {}
    FetchDirection direction = FetchDirection::Next;
    ExpressionPtr position; // of Absolute and Relative
    Name name;
    std::vector<std::string> into; // with their marks; empty sends the row to the client
};

struct CloseCursor : Statement {
    static constexpr auto own_kind = StatementKind::CloseCursor;
    CloseCursor() : Statement(own_kind) {}
    Name name;
};

struct DeallocateCursor : Statement {
    static constexpr auto own_kind = StatementKind::DeallocateCursor;
    DeallocateCursor() : Statement(own_kind) {}
    Name name;
};

} // namespace tsql
