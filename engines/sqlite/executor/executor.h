// Runs plans: steps, errors, transactions, triggers, routines.
#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <map>

#include "engines/session.h"
#include "engines/sqlite/catalogue/identities.h"
#include "engines/sqlite/catalogue/object_store.h"
#include "engines/sqlite/connection/sqlite_error.h"
#include "engines/sqlite/connection/statement_cache.h"
#include "engines/sqlite/executor/cursors.h"
#include "engines/sqlite/executor/frame.h"
#include "engines/sqlite/executor/kept_copies.h"
#include "engines/sqlite/executor/ordered_rows.h"
#include "engines/sqlite/executor/progress_meter.h"
#include "engines/sqlite/executor/sink.h"
#include "engines/sqlite/executor/transactions.h"
#include "engines/sqlite/functions/runtime.h"
#include "tsql/compiler.h"

namespace engines {

// The options of a session that a batch can set.
struct SessionOptions {
    bool xact_abort = false;
    std::string identity_insert; // table, empty when off
};

// Interprets plans on one connection. An error inside TRY or inside a function called by SQL
// travels as Failure; elsewhere it is reported and the batch goes on or ends.
class Executor : public Runtime {
public:
    // Everything outlives the executor.
    struct Parts {
        sqlite3* connection;
        tsql::Catalog& catalog;
        tsql::Compiler& compiler;
        StatementCache& statements;
        ObjectStore& objects;
        Identities& identities;
        Transactions& transactions;
    };
    explicit Executor(const Parts& parts)
        : parts_(parts), progress_(parts.connection, interrupted_) {}

    // Runs a compiled batch and tells how it ended. contained: the first error ends it, and the
    // caller undoes what it did.
    Outcome run(const tsql::CompiledBatch& batch, ResultReceiver& receiver, bool contained);
    // Runs a procedure without arguments inside the present transaction, unseen by the batch;
    // errors travel as Failure.
    void run_procedure(const std::string& name);
    // The same for a batch whose rows go to a receiver of its own.
    void run_unseen(const tsql::CompiledBatch& batch, ResultReceiver& receiver);
    // Whether the table is there and holds anything.
    bool has_rows(const std::string& table);

    SessionOptions& options() { return options_; }
    std::atomic<bool>& interrupted() { return interrupted_; }
    ProgressMeter& progress() { return progress_; }
    // While set, statements that would change the books or end the transaction are refused.
    void set_reading(bool reading) { reading_ = reading; }
    void set_clock(std::optional<std::int64_t> day) { clock_day_ = day; }
    void set_person(Person person) { person_ = std::move(person); }

    // Runtime
    Stored variable(int slot, tsql::Type& type) override;
    std::int64_t next_identity(std::string_view table) override;
    void identity_seen(std::string_view table, std::int64_t value) override;
    std::optional<std::int64_t> current_identity(std::string_view table) override;
    Stored call(std::string_view function, std::span<sqlite3_value* const> arguments,
                tsql::Type& type) override;
    std::optional<std::int64_t> object_id(std::string_view name, std::string_view kind) override;
    std::optional<std::string> object_name(std::int64_t id) override;
    std::optional<std::string> object_definition(std::int64_t id) override;
    std::optional<std::int64_t> index_property(std::int64_t table, std::string_view index,
                                               std::string_view property) override;

private:
    // run_steps.cpp
    Flow run_unit(const tsql::CompiledUnit& unit, const std::string& routine);
    Flow run_steps(const tsql::Steps& steps);
    Flow run_step(const tsql::Step& step);
    Flow dispatch(const tsql::Step& step);
    Flow on_error(const tsql::Step& step, Error error);
    void report(const Error& error);
    Error explained(const SqliteFailure& failure);
    void check_interrupted();
    void refuse_while_reading() const;
    bool propagates() const { return catchers_ > 0; }

    // run_query.cpp
    std::int64_t run_query(const tsql::SqlQuery& query, RowSink& sink);
    std::int64_t run_query(const tsql::SqlText& text, std::span<const tsql::PlanColumn> columns,
                           RowSink& sink);
    // The same for rows that are ordered here and not by SQLite.
    std::int64_t run_ordered(const tsql::SqlQuery& query, RowSink& sink);
    std::int64_t show_rows(const tsql::SqlQuery& query, const OrderedRows& rows,
                           const std::vector<OwnedValue>& constants, RowSink& sink);
    // Runs a text that gives no rows wanted and returns the rows it changed.
    std::int64_t run_text(const tsql::SqlText& text, StatementVerb verb);
    // The single cell of a text, null when there is no row.
    OwnedValue cell_of_text(const tsql::SqlText& text, const tsql::Type& type);
    bool is_true(const tsql::SqlText& condition);
    int step(sqlite3_stmt* statement, StatementVerb verb);
    void bind(sqlite3_stmt* statement, const tsql::SqlText& text);
    void bind_parameter(sqlite3_stmt* statement, int index, const tsql::PlanParameter& parameter);
    // Hands over the parameter's value, converted as it asks for, for the time of the call.
    void use_parameter(const tsql::PlanParameter& parameter,
                       const std::function<void(const Stored&, const tsql::Type&)>& use);
    Stored parameter_value(const tsql::PlanParameter& parameter, tsql::Type& type);
    Stored system_value(const tsql::PlanParameter& parameter, std::string& buffer);
    std::int64_t now();
    Flow query(const tsql::SqlQuery& query);
    Flow assign(const tsql::SqlAssign& assign);

    // run_dml.cpp
    Flow dml(const tsql::SqlDml& dml);
    Flow write_and_fire(const tsql::SqlDml& dml, std::int64_t& rows);
    std::int64_t write_rows(const tsql::SqlDml& dml, StatementVerb verb);
    std::int64_t run_main(const tsql::SqlDml& dml, StatementVerb verb);
    Flow fire_triggers(const tsql::SqlDml& dml, std::int64_t rows);
    Flow fire(const std::string& trigger, const tsql::SqlDml& dml);
    std::vector<std::string> literals_of(const tsql::SqlDml& dml) const;
    bool may_skip(const tsql::SqlDml& dml) const;
    void note_run(const tsql::SqlDml& dml, std::int64_t rows);
    void output_rows(const tsql::SqlDml& dml);
    Flow insert_execute(const tsql::InsertExecute& insert);

    // run_ddl.cpp
    Flow ddl(const tsql::Ddl& ddl);
    Flow prepare_table(const tsql::PrepareTable& table);
    Flow fill_function_table(const tsql::FillFunctionTable& fill);
    void drop_temporary_tables(Frame& frame);

    // run_control.cpp
    Flow choose(const tsql::IfStep& step);
    Flow loop(const tsql::WhileStep& step);
    Flow leave(const tsql::ReturnStep& step);
    Flow attempt(const tsql::TryStep& step);
    Flow transaction(const tsql::RollbackStep& step);
    Flow set_option(const tsql::SetOptionStep& step);
    Flow deferred(const tsql::DeferredStep& step);

    // run_message.cpp
    Flow print(const tsql::PrintStep& step);
    Flow raise_error_step(const tsql::RaiseErrorStep& step);
    Flow throw_step(const tsql::ThrowStep& step);

    // run_routine.cpp
    class Unseen;
    Flow execute(const tsql::ExecuteStep& step);
    Flow execute_text(const tsql::ExecuteTextStep& step);
    Flow run_batch_text(const std::string& text);
    Flow run_routine(const std::shared_ptr<const tsql::CompiledRoutine>& routine, Frame& frame);
    Frame frame_of(const std::shared_ptr<const tsql::CompiledRoutine>& routine);
    void pass_arguments(const tsql::ExecuteStep& step, const tsql::CompiledRoutine& routine,
                        Frame& frame, std::size_t skip, std::vector<int>& slots);
    void fill_defaults(const tsql::CompiledRoutine& routine, Frame& frame,
                       const std::vector<int>& slots);
    void return_values(const tsql::ExecuteStep& step, const tsql::CompiledRoutine& routine,
                       Frame& frame, std::size_t skip, const std::vector<int>& slots);

    // run_cursor.cpp
    Flow declare_cursor(const tsql::DeclareCursorStep& step);
    Flow open_cursor(const tsql::OpenCursorStep& step);
    Flow fetch(const tsql::FetchCursorStep& step);

    RowSink& sink() { return *sink_; }
    std::string system_text(tsql::SystemValue value) const;

    Parts parts_;
    SessionOptions options_;
    std::atomic<bool> interrupted_{false};
    ProgressMeter progress_;
    std::optional<std::int64_t> clock_day_;
    Person person_;

    // Of the running batch.
    ResultReceiver* receiver_ = nullptr;
    RowSink* sink_ = nullptr;
    Outcome outcome_;
    Frame* frame_ = nullptr;
    int nesting_ = 0;   // of routines
    int catchers_ = 0;  // TRY blocks and functions around the running step
    int triggers_ = 0;  // triggers around the running step
    int functions_ = 0; // functions around the running step
    std::map<std::string, int, tsql::NameLess> capturing_; // tables whose triggers are running
    bool trigger_undone_ = false;                          // a trigger rolled the transaction back
    bool contained_ = false; // an error ends the batch and leaves the undoing to the caller
    bool reading_ = false;   // see set_reading
    tsql::LineColumn at_;    // of the running step
    std::optional<std::int64_t> now_;

    // Of the session.
    std::int64_t row_count_ = 0;
    int last_error_ = 0;
    int fetch_status_ = -1;
    std::optional<std::int64_t> identity_;
    std::optional<std::int64_t> scope_identity_;
    std::optional<Error> caught_;
    std::string caught_procedure_;
    Cursors cursors_;
    OwnedValue call_result_;
    // The last writing statement when it may be repeated without effect, with its values.
    struct Unchanged {
        std::string text;
        std::vector<std::string> literals;
        std::int64_t rows = 0;
    };
    std::optional<Unchanged> unchanged_;
    std::int64_t changed_rows_ = 0; // by the main text of the last writing statement
    tsql::SqlText pending_rows_;    // see has_rows
    // The memory of the last ordered rows, so that a ledger opened again asks the system for none.
    static constexpr std::size_t most_spare_bytes = 4 << 20;
    std::unique_ptr<OrderedRows> spare_rows_;
};

// Puts a frame in place for the time of a scope.
class FrameScope {
public:
    FrameScope(Frame*& current, Frame& frame) : current_(current), before_(current) {
        current = &frame;
    }
    ~FrameScope() { current_ = before_; }
    FrameScope(const FrameScope&) = delete;
    FrameScope& operator=(const FrameScope&) = delete;

private:
    Frame*& current_;
    Frame* before_;
};

// Counts up for the time of a scope.
class Count {
public:
    explicit Count(int& counter) : counter_(counter) { ++counter_; }
    ~Count() { --counter_; }
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

private:
    int& counter_;
};

} // namespace engines
