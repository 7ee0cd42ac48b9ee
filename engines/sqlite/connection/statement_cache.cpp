// Keeps at most some thousand statements; beyond that it starts anew.
#include "engines/sqlite/connection/statement_cache.h"

namespace engines {

StatementLease::~StatementLease() {
    if (statement_) cache_->give_back(key_, std::move(statement_));
}

StatementLease StatementCache::lease(const tsql::SqlText& text,
                                     const std::shared_ptr<const void>& owner) {
    auto found = kept_.find(&text);
    if (found == kept_.end()) {
        if (kept_.size() >= most_kept) kept_.clear();
        found = kept_.emplace(&text, Kept{owner, nullptr}).first;
    }
    StatementHandle statement = std::move(found->second.statement);
    if (!statement) statement = prepare(connection_, text.text);
    return StatementLease(*this, &text, std::move(statement));
}

void StatementCache::give_back(const tsql::SqlText* key, StatementHandle statement) {
    sqlite3_reset(statement.get());
    sqlite3_clear_bindings(statement.get());
    const auto found = kept_.find(key);
    if (found != kept_.end() && !found->second.statement)
        found->second.statement = std::move(statement);
}

} // namespace engines
