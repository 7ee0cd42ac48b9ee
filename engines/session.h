// One connection to a set of books: T-SQL batches, transactions, clock, interruption, backup.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engines/statement.h"

namespace engines {

// Who uses the connection; shown by the T-SQL functions of the same meaning.
struct Person {
    std::string user; // SYSTEM_USER, SUSER_SNAME()
    std::string host; // HOST_NAME()
};

// A connection. One thread uses it at a time; only interrupt() may be called from another.
//
// Example: all of it or nothing
//   Outcome outcome = session.execute_atomically("INSERT INTO …; UPDATE …", receiver);
//   if (!outcome.ok()) show(outcome.error->text);   // the books are as they were
class Session {
public:
    virtual ~Session() = default;

    // Runs one batch as a SQL Server does on one connection: outside BEGIN TRAN each statement
    // commits on its own, and an error ends its statement, the batch, or all of it by its kind.
    virtual Outcome execute(std::string_view batch, ResultReceiver& receiver) = 0;
    // Runs one batch in one transaction: with the first error nothing of it stays. Inside begin()
    // the batch joins that transaction, and an error undoes the batch alone.
    virtual Outcome execute_atomically(std::string_view batch, ResultReceiver& receiver) = 0;
    // Runs one batch that may only read, on the state of one instant; its first error ends it. A
    // statement that would change the books, or begin or end a transaction, is error 3906
    // (ErrorCategory::read_only) and is not run; temporary tables of the batch may be written.
    virtual Outcome read(std::string_view batch, ResultReceiver& receiver) = 0;

    // A transaction of the caller that spans batches; takes the right to write at once, so that
    // two sessions cannot both have read what only one may change. rollback() undoes all of it.
    virtual Outcome begin() = 0;
    // A transaction of the caller in which everything is as read() has it: all its batches see one
    // instant, none may write, and others go on writing. Ended by commit() or rollback().
    virtual Outcome begin_reading() = 0;
    virtual Outcome commit() = 0;
    virtual void rollback() = 0;
    // @@TRANCOUNT: 0 outside a transaction.
    virtual int transaction_depth() const = 0;

    // Writes down who changed the books: called in every transaction that changed them, just before
    // its commit, with the batches of it that were not told yet, joined by GO. What it executes on
    // this session belongs to the transaction, and the batch sees nothing of it: neither rows nor
    // @@ROWCOUNT nor identities. A Failure that it throws undoes the transaction.
    using Recorder = std::function<void(std::string_view batches)>;
    virtual void set_recorder(Recorder recorder) = 0;

    // Ends the statement that runs, from any thread; the batch reports ErrorCategory::interrupted.
    virtual void interrupt() = 0;
    // Hears how far a batch has come: statements of it that are done, and all of them. Called from
    // inside the batch whenever `every` has passed; may not use the session. false ends the batch
    // as interrupt() does. An empty function ends the listening.
    using BatchProgress = std::function<bool(std::int64_t done, std::int64_t all)>;
    virtual void set_progress(BatchProgress listener, std::chrono::milliseconds every) = 0;
    // Fixes GETDATE() to this day (days since 1900-01-01) with the time of the real clock; nullopt
    // gives the real clock back.
    virtual void set_clock(std::optional<std::int64_t> day) = 0;
    virtual void set_person(Person person) = 0;

    // A consistent copy while others work, into a file that does not exist. progress gets pages
    // left and pages in all; returning false stops and removes the copy. Throws Failure.
    using Progress = std::function<bool(std::int64_t left, std::int64_t all)>;
    virtual void backup_to(const std::string& file, const Progress& progress) = 0;
    // Findings of the storage check; empty when the books are sound. Reads the whole file.
    virtual std::vector<std::string> check_integrity() = 0;

    // Counts changes of the books made by other sessions; equal numbers mean nothing changed.
    virtual std::int64_t change_count() = 0;
};

} // namespace engines
