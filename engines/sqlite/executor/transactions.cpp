// BEGIN IMMEDIATE for every writer, so that two never both read what only one may change.
#include "engines/sqlite/executor/transactions.h"

#include "engines/sqlite/raise.h"
#include "tsql/binder/scope.h"

namespace engines {
namespace {

constexpr std::array<const char*, 3> words = {"SAVEPOINT zf_", "ROLLBACK TO zf_", "RELEASE zf_"};

} // namespace

void Transactions::run(StatementHandle& statement, const std::string& text) {
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

void Transactions::tell(Word word, int number) {
    const auto which = static_cast<std::size_t>(word);
    const auto place = static_cast<std::size_t>(number);
    StatementHandle once;
    StatementHandle& statement = number < kept_numbers ? words_[place][which] : once;
    run(statement, statement ? "" : words[which] + std::to_string(number));
    if (word == Word::release && number == numbers_) --numbers_;
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
    changed_books_ = false;
    savepoints_.clear();
    if (open_scopes_ == 0) numbers_ = 0;
}

void Transactions::start_writing() {
    start(begin_, read_only_ ? "BEGIN" : "BEGIN IMMEDIATE");
}

void Transactions::finish() {
    if (!reading_) {
        if (before_commit_) before_commit_();
        identities_.flush();
    }
    run(commit_, "COMMIT");
    depth_ = 0;
    reading_ = false;
    savepoints_.clear();
}

void Transactions::begin() {
    if (depth_ == 0) start_writing();
    ++depth_;
}

void Transactions::begin_reading() {
    if (depth_ == 0) {
        start(begin_reading_, "BEGIN");
        reading_ = true;
    }
    ++depth_;
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
    reading_ = false;
    savepoints_.clear();
    if (sqlite3_get_autocommit(connection_) == 0) run(rollback_, "ROLLBACK");
    identities_.forget();
    catalog_.restore(at_begin_);
}

void Transactions::save(const std::string& name) {
    const int number = new_number();
    tell(Word::set, number);
    savepoints_.push_back({name, number, catalog_.state()});
}

bool Transactions::rollback_to(const std::string& name) {
    for (std::size_t i = savepoints_.size(); i-- > 0;) {
        if (!tsql::same_name(savepoints_[i].name, name)) continue;
        tell(Word::undo, savepoints_[i].number);
        identities_.forget();
        catalog_.restore(savepoints_[i].catalog);
        if (open_scopes_ == 0) numbers_ = savepoints_[i].number;
        forget_savepoints(i + 1);
        return true;
    }
    return false;
}

void Transactions::release(const std::string& name) {
    for (std::size_t i = savepoints_.size(); i-- > 0;) {
        if (!tsql::same_name(savepoints_[i].name, name)) continue;
        tell(Word::release, savepoints_[i].number);
        if (open_scopes_ == 0) numbers_ = savepoints_[i].number - 1;
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
    number_ = transactions.new_number();
    transactions.tell(Transactions::Word::set, number_);
    catalog_ = transactions.catalog_.state();
    savepoint_ = true;
    ++transactions.open_scopes_;
}

void StatementScope::done() {
    finished_ = true;
    if (savepoint_) --transactions_.open_scopes_;
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
        transactions_.tell(Transactions::Word::release, number_);
    }
}

StatementScope::~StatementScope() {
    if (finished_) return;
    if (savepoint_) --transactions_.open_scopes_;
    if (transactions_.depth_ == 0) return;
    if (transactions_.lost()) return;
    try {
        if (implicit_) {
            transactions_.rollback();
        } else if (savepoint_) {
            transactions_.tell(Transactions::Word::undo, number_);
            transactions_.tell(Transactions::Word::release, number_);
            transactions_.identities_.forget();
            transactions_.catalog_.restore(catalog_);
        }
    } catch (const SqliteFailure&) {
        // The savepoint went with the transaction that held it.
    }
}

} // namespace engines
