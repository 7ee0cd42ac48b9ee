// Transactions; names are kept because ROLLBACK may name a savepoint.
#pragma once

#include "tsql/syntax/statement.h"

namespace tsql {

struct BeginTransaction : Statement {
    static constexpr auto own_kind = StatementKind::BeginTransaction;
    BeginTransaction() : Statement(own_kind) {}
    Name name; // empty when none; @v when given by a variable, here and below
};

struct Commit : Statement { // COMMIT [TRAN|TRANSACTION|WORK] [name]
    static constexpr auto own_kind = StatementKind::Commit;
    Commit() : Statement(own_kind) {}
    Name name;
};

struct Rollback : Statement { // to the outermost BEGIN, or to the savepoint named
    static constexpr auto own_kind = StatementKind::Rollback;
    Rollback() : Statement(own_kind) {}
    Name name;
};

struct SaveTransaction : Statement {
    static constexpr auto own_kind = StatementKind::SaveTransaction;
    SaveTransaction() : Statement(own_kind) {}
    Name name;
};

} // namespace tsql
