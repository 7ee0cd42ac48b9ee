// Batches, transactions of the caller, and the state of one connection.
#include "engines/sqlite/session.h"

#include <utility>

#include "engines/sqlite/connection/backup.h"
#include "engines/sqlite/connection/open_file.h"
#include "engines/sqlite/functions/families.h"

namespace engines {
namespace {

Error error_of(std::string_view batch, const tsql::Refusal& refusal) {
    const tsql::Diagnostic diagnostic = tsql::diagnose(batch, refusal);
    Error error;
    error.number = diagnostic.number;
    error.category = category_of(diagnostic.number);
    error.line = diagnostic.line;
    error.column = diagnostic.column;
    error.text = diagnostic.message;
    return error;
}

Error misunderstood_definition(const tsql::Refusal& refusal) {
    Error error;
    error.number = refusal.number;
    error.category = ErrorCategory::damaged;
    error.text = std::string("A definition in the books is not understood: ") + refusal.what();
    return error;
}

// A transaction that only reads, or none of its own inside the caller's; ended whatever way the
// block is left.
class ReadingScope {
public:
    ReadingScope(Transactions& transactions, Executor& executor)
        : transactions_(transactions), executor_(executor), options_(executor.options()),
          own_(transactions.depth() == 0) {
        if (own_) transactions_.begin_reading();
        executor_.set_reading(true);
    }
    ~ReadingScope() {
        executor_.set_reading(false);
        executor_.options() = options_;
        try {
            if (own_ && open_) transactions_.rollback();
        } catch (const SqliteFailure&) {
            // SQLite undid it already.
        }
    }
    ReadingScope(const ReadingScope&) = delete;
    ReadingScope& operator=(const ReadingScope&) = delete;

    void done() {
        if (own_) transactions_.commit();
        open_ = false;
    }

private:
    Transactions& transactions_;
    Executor& executor_;
    const SessionOptions options_;
    const bool own_;
    bool open_ = true;
};

// A mark of the running batch.
class WhileRunning {
public:
    WhileRunning(bool& mark, bool value) : mark_(mark), before_(std::exchange(mark, value)) {}
    ~WhileRunning() { mark_ = before_; }
    WhileRunning(const WhileRunning&) = delete;
    WhileRunning& operator=(const WhileRunning&) = delete;

private:
    bool& mark_;
    const bool before_;
};

} // namespace

SqliteSession::SqliteSession(const std::string& books, const OpenOptions& options)
    : options_(options), connection_(open_books(books, options)), compiler_(catalog_, {}),
      objects_(connection_.get()), identities_(connection_.get()),
      transactions_(connection_.get(), catalog_, identities_), statements_(connection_.get()),
      executor_({connection_.get(), catalog_, compiler_, statements_, objects_, identities_,
                 transactions_}) {
    register_everything(connection_.get(), executor_);
    transactions_.set_read_only(options.read_only);
    transactions_.set_after_begin([this] { transaction_begun(); });
    transactions_.set_before_commit([this] { run_before_commit(); });
    try {
        if (!options.read_only) objects_.prepare_tables();
        refresh_catalog();
    } catch (const SqliteFailure& failure) {
        throw Failure(explain(failure, nullptr));
    }
}

bool SqliteSession::refresh_catalog() {
    const std::int64_t version = objects_.version();
    if (version == known_version_) return false;
    const bool by_others = version != objects_.saved_version();
    try {
        if (by_others) objects_.load(catalog_);
    } catch (const tsql::Refusal& refusal) {
        throw Failure(misunderstood_definition(refusal));
    }
    known_version_ = version;
    return by_others;
}

// Nobody else changes definitions from here on: what is compiled now fits the tables it will meet.
// What was compiled before must not run on others.
void SqliteSession::transaction_begun() {
    if (!refresh_catalog() || !compiled_outside_) return;
    Error error;
    error.number = 2801;
    error.category = ErrorCategory::busy;
    error.text = "The definitions of the books were changed after the batch was compiled. Run it "
                 "again.";
    throw Failure(std::move(error));
}

void SqliteSession::run_before_commit() {
    const BeforeCommit& settling = options_.before_commit;
    if (!settling.procedure.empty() && executor_.has_rows(settling.pending_table))
        executor_.run_procedure(settling.procedure);
    if (!recorder_ || unrecorded_.empty() || !transactions_.changed_books()) return;
    const WhileRunning recording(recording_, true);
    recorder_(std::exchange(unrecorded_, {}));
}

void SqliteSession::remember_for_recorder(std::string_view batch) {
    if (!recorder_) return;
    if (transactions_.depth() == 0) unrecorded_.clear();
    if (!unrecorded_.empty()) unrecorded_ += "\nGO\n";
    unrecorded_ += batch;
}

Outcome SqliteSession::guarded(const std::function<void()>& action) {
    Outcome outcome;
    try {
        action();
    } catch (const Failure& failure) {
        outcome.error = failure.error();
    } catch (const SqliteFailure& failure) {
        auto raised = executor_.take_raised();
        outcome.error = raised ? *raised : explain(failure, &catalog_);
    }
    return outcome;
}

Outcome SqliteSession::compile_and_run(std::string_view batch, ResultReceiver& receiver,
                                       bool contained) {
    Outcome outcome;
    try {
        const bool outside = transactions_.depth() == 0;
        if (outside) refresh_catalog();
        const WhileRunning compiled_outside(compiled_outside_, outside);
        const tsql::CompiledBatch compiled = compiler_.compile(batch);
        if (recording_) {
            executor_.run_unseen(compiled, receiver);
            return outcome;
        }
        remember_for_recorder(batch);
        outcome = executor_.run(compiled, receiver, contained);
        return outcome;
    } catch (const tsql::Refusal& refusal) {
        outcome.error = error_of(batch, refusal);
    } catch (const Failure& failure) {
        outcome.error = failure.error();
    } catch (const SqliteFailure& failure) {
        outcome.error = explain(failure, &catalog_);
    }
    receiver.error(*outcome.error);
    return outcome;
}

Outcome SqliteSession::execute(std::string_view batch, ResultReceiver& receiver) {
    return compile_and_run(batch, receiver, false);
}

Outcome SqliteSession::execute_atomically(std::string_view batch, ResultReceiver& receiver) {
    const int outer = transactions_.depth();
    const std::string mark = "zf batch";
    if (Outcome started = guarded([&] {
            if (outer > 0)
                transactions_.save(mark);
            else
                transactions_.begin();
        });
        !started.ok()) {
        receiver.error(*started.error);
        return started;
    }
    Outcome outcome = compile_and_run(batch, receiver, true);
    // What waits for the end of a transaction does not wait for the batches after this one.
    if (outer > 0 && outcome.ok() && transactions_.depth() == outer)
        if (Outcome settled = guarded([&] { run_before_commit(); }); !settled.ok()) {
            outcome.error = settled.error;
            receiver.error(*outcome.error);
        }
    const int before_commit = outer > 0 ? outer : 1;
    if (outcome.ok() && transactions_.depth() != before_commit) {
        Error error;
        error.number = 266;
        error.category = ErrorCategory::transaction;
        error.text = "Transaction count after the batch does not match the count before it.";
        transactions_.rollback();
        outcome.error = error;
        receiver.error(error);
    }
    if (!outcome.ok()) {
        const Outcome undone = guarded([&] {
            if (transactions_.lost() || transactions_.depth() == 0) return;
            if (outer > 0 && transactions_.rollback_to(mark))
                transactions_.release(mark);
            else
                transactions_.rollback();
        });
        return outcome;
    }
    const Outcome committed = guarded([&] {
        if (outer > 0)
            transactions_.release(mark);
        else
            transactions_.commit();
    });
    if (!committed.ok()) {
        outcome.error = committed.error;
        receiver.error(*outcome.error);
    }
    return outcome;
}

Outcome SqliteSession::read(std::string_view batch, ResultReceiver& receiver) {
    Outcome outcome;
    const Outcome framed = guarded([&] {
        ReadingScope scope(transactions_, executor_);
        outcome = compile_and_run(batch, receiver, true);
        if (outcome.ok()) scope.done();
    });
    if (framed.ok()) return outcome;
    receiver.error(*framed.error);
    return framed;
}

Outcome SqliteSession::begin() {
    return guarded([&] { transactions_.begin(); });
}

Outcome SqliteSession::begin_reading() {
    return guarded([&] { transactions_.begin_reading(); });
}

Outcome SqliteSession::commit() {
    return guarded([&] { transactions_.commit(); });
}

void SqliteSession::rollback() {
    guarded([&] { transactions_.rollback(); });
}

void SqliteSession::interrupt() {
    executor_.interrupted() = true;
    sqlite3_interrupt(connection_.get());
}

void SqliteSession::set_progress(BatchProgress listener, std::chrono::milliseconds every) {
    executor_.progress().listen(std::move(listener), every);
}

void SqliteSession::backup_to(const std::string& file, const Progress& progress) {
    copy_books(connection_.get(), file, progress);
}

std::vector<std::string> SqliteSession::check_integrity() {
    return integrity_findings(connection_.get());
}

std::int64_t SqliteSession::change_count() {
    if (!data_version_) data_version_ = prepare(connection_.get(), "PRAGMA data_version");
    const int code = sqlite3_step(data_version_.get());
    const std::int64_t value =
        code == SQLITE_ROW ? sqlite3_column_int64(data_version_.get(), 0) : 0;
    sqlite3_reset(data_version_.get());
    return value;
}

} // namespace engines
