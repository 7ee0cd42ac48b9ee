// BEGIN IMMEDIATE for every writer, so that two never both read what only one may change.
#include "engines/sqlite/executor/transactions.h"

#include "engines/sqlite/raise.h"
#include "tsql/binder/scope.h"

namespace engines {
namespace {

std::string savepoint_name(int number) {
    return "zf_" + std::to_string(number);
}

} // namespace

void Transactions::run(StatementHandle& statement, const char* text) {
    if (!statement) statement = prepare(connection_, text);
    const int code = sqlite3_step(statement.get());
    // The error is read before the reset, which would clear it.
    if (code != SQLITE_DONE) {
        const SqliteFailure failure = last_failure(connection_);
        sqlite3_reset(statement.get());
        throw failure;
    }
    sqlite3_reset(statement.get());
}

void Transactions::start(StatementHandle& statement, const char* text) {
    run(statement, text);
    // Another connection may have given numbers meanwhile.
    identities_.forget();
    try {
        if (after_begin_) after_begin_();
    } catch (...) {
        run(rollback_, "ROLLBACK");
        throw;
    }
    at_begin_ = catalog_.state();
    doomed_ = false;
    savepoints_.clear();
}

void Transactions::start_writing() {
    start(begin_, read_only_ ? "BEGIN" : "BEGIN IMMEDIATE");
}

void Transactions::finish() {
    if (before_commit_) before_commit_();
    identities_.flush();
    run(commit_, "COMMIT");
    depth_ = 0;
    savepoints_.clear();
}

void Transactions::begin() {
    if (depth_ == 0) start_writing();
    ++depth_;
}

void Transactions::begin_reading() {
    start(begin_reading_, "BEGIN");
    depth_ = 1;
}

void Transactions::end_reading() {
    run(commit_, "COMMIT");
    depth_ = 0;
    savepoints_.clear();
}

void Transactions::commit() {
    if (depth_ == 0)
        raise_error(3902, "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION.");
    if (doomed_)
        raise_error(3930, "The current transaction cannot be committed and cannot support "
                          "operations that write to the log file. Roll back the transaction.");
    if (depth_ > 1) {
        --depth_;
        return;
    }
    try {
        finish();
    } catch (...) {
        rollback();
        throw;
    }
}

void Transactions::rollback() {
    if (depth_ == 0) return;
    depth_ = 0;
    doomed_ = false;
    savepoints_.clear();
    if (sqlite3_get_autocommit(connection_) == 0) run(rollback_, "ROLLBACK");
    identities_.forget();
    catalog_.restore(at_begin_);
}

void Transactions::save(const std::string& name) {
    const int number = ++numbers_;
    run_text(connection_, "SAVEPOINT " + savepoint_name(number));
    savepoints_.push_back({name, number, catalog_.state()});
}

bool Transactions::rollback_to(const std::string& name) {
    for (std::size_t i = savepoints_.size(); i-- > 0;) {
        if (!tsql::same_name(savepoints_[i].name, name)) continue;
        run_text(connection_, "ROLLBACK TO " + savepoint_name(savepoints_[i].number));
        identities_.forget();
        catalog_.restore(savepoints_[i].catalog);
        forget_savepoints(i + 1);
        return true;
    }
    return false;
}

void Transactions::release(const std::string& name) {
    for (std::size_t i = savepoints_.size(); i-- > 0;) {
        if (!tsql::same_name(savepoints_[i].name, name)) continue;
        run_text(connection_, "RELEASE " + savepoint_name(savepoints_[i].number));
        forget_savepoints(i);
        return;
    }
}

bool Transactions::lost() {
    if (depth_ == 0 || sqlite3_get_autocommit(connection_) == 0) return false;
    rollback();
    return true;
}

StatementScope::StatementScope(Transactions& transactions, bool undoable)
    : transactions_(transactions) {
    if (transactions.depth_ == 0) {
        transactions.start_writing();
        transactions.depth_ = 1;
        implicit_ = true;
        return;
    }
    if (!undoable) return;
    number_ = ++transactions.numbers_;
    run_text(transactions.connection_, "SAVEPOINT " + savepoint_name(number_));
    catalog_ = transactions.catalog_.state();
    savepoint_ = true;
}

void StatementScope::done() {
    finished_ = true;
    // A trigger may have undone everything already.
    if (transactions_.depth_ == 0) return;
    if (implicit_) {
        try {
            transactions_.commit();
        } catch (...) {
            transactions_.rollback();
            throw;
        }
    } else if (savepoint_) {
        run_text(transactions_.connection_, "RELEASE " + savepoint_name(number_));
    }
}

StatementScope::~StatementScope() {
    if (finished_ || transactions_.depth_ == 0) return;
    if (transactions_.lost()) return;
    try {
        if (implicit_) {
            transactions_.rollback();
        } else if (savepoint_) {
            const std::string name = savepoint_name(number_);
            run_text(transactions_.connection_, "ROLLBACK TO " + name + "; RELEASE " + name);
            transactions_.identities_.forget();
            transactions_.catalog_.restore(catalog_);
        }
    } catch (const SqliteFailure&) {
        // The savepoint went with the transaction that held it.
    }
}

} // namespace engines
