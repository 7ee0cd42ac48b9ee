// Prepared statements kept beside the plans they belong to.
#pragma once

#include <memory>
#include <unordered_map>

#include "engines/sqlite/connection/connection.h"
#include "tsql/plan/plan.h"

namespace engines {

class StatementCache;

// A statement for the time of one run; given back reset and without values.
class StatementLease {
public:
    StatementLease(StatementCache& cache, const tsql::SqlText* key, StatementHandle statement)
        : cache_(&cache), key_(key), statement_(std::move(statement)) {}
    StatementLease(StatementLease&&) = default;
    StatementLease& operator=(StatementLease&&) = delete;
    ~StatementLease();
    sqlite3_stmt* get() const { return statement_.get(); }

private:
    StatementCache* cache_;
    const tsql::SqlText* key_;
    StatementHandle statement_;
};

// A text that runs inside its own run (a function that calls itself) gets a second statement.
class StatementCache {
public:
    explicit StatementCache(sqlite3* connection) : connection_(connection) {}

    // owner keeps the text alive as long as its statement is kept.
    StatementLease lease(const tsql::SqlText& text, const std::shared_ptr<const void>& owner);
    void clear() { kept_.clear(); }

private:
    friend class StatementLease;
    struct Kept {
        std::shared_ptr<const void> owner;
        StatementHandle statement;
    };
    static constexpr std::size_t most_kept = 4000;

    void give_back(const tsql::SqlText* key, StatementHandle statement);

    sqlite3* connection_;
    std::unordered_map<const tsql::SqlText*, Kept> kept_;
};

} // namespace engines
