// Batches, transactions of the caller, and the state of one connection.
#include "engines/sqlite/session.h"

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

} // namespace

SqliteSession::SqliteSession(const std::string& books, const OpenOptions& options)
    : options_(options), connection_(open_books(books, options)), compiler_(catalog_, {}),
      objects_(connection_.get()), identities_(connection_.get()),
      transactions_(connection_.get(), catalog_, identities_), statements_(connection_.get()),
      executor_({connection_.get(), catalog_, compiler_, statements_, objects_, identities_,
                 transactions_}) {
    register_everything(connection_.get(), executor_);
    transactions_.set_read_only(options.read_only);
    transactions_.set_before_commit([this] { run_before_commit(); });
    try {
        if (!options.read_only) objects_.prepare_tables();
        refresh_catalog();
    } catch (const SqliteFailure& failure) {
        throw Failure(explain(failure, nullptr));
    } catch (const tsql::Refusal& refusal) {
        Error error;
        error.number = refusal.number;
        error.category = ErrorCategory::damaged;
        error.text = std::string("A definition in the books is not understood: ") + refusal.what();
        throw Failure(std::move(error));
    }
}

void SqliteSession::refresh_catalog() {
    const std::int64_t version = objects_.version();
    if (version == known_version_) return;
    if (version != objects_.saved_version()) objects_.load(catalog_);
    known_version_ = version;
}

void SqliteSession::run_before_commit() {
    if (options_.before_commit.procedure.empty()) return;
    if (executor_.has_rows(options_.before_commit.pending_table))
        executor_.run_procedure(options_.before_commit.procedure);
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
        if (transactions_.depth() == 0) refresh_catalog();
        const tsql::CompiledBatch compiled = compiler_.compile(batch);
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

Outcome SqliteSession::begin() {
    return guarded([&] { transactions_.begin(); });
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
