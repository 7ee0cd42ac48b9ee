// Steps in order, and what becomes of an error.
#include "engines/sqlite/executor/error_rules.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

template <typename... Handlers> struct Overload : Handlers... { using Handlers::operator()...; };

Error error_of(const tsql::Refusal& refusal) {
    Error error;
    error.number = refusal.number;
    error.category = category_of(refusal.number);
    error.text = refusal.what();
    return error;
}

} // namespace

Outcome Executor::run(const tsql::CompiledBatch& batch, ResultReceiver& receiver, bool contained) {
    ClientSink client(receiver);
    receiver_ = &receiver;
    sink_ = &client;
    outcome_ = {};
    contained_ = contained;
    interrupted_ = false;
    unchanged_.reset();
    progress_.begin(static_cast<std::int64_t>(batch.units.size()));
    for (const tsql::CompiledUnit& unit : batch.units) {
        const Flow flow = run_unit(unit, "");
        if (flow == Flow::end_batch || flow == Flow::leave_routine) break;
        progress_.statement_done();
    }
    if (parts_.transactions.doomed()) {
        parts_.transactions.rollback();
        Error error;
        error.number = 3998;
        error.category = ErrorCategory::transaction;
        error.text = "Uncommittable transaction is detected at the end of the batch. The "
                     "transaction is rolled back.";
        report(error);
    }
    sink_ = nullptr;
    receiver_ = nullptr;
    return std::move(outcome_);
}

Flow Executor::run_unit(const tsql::CompiledUnit& unit, const std::string& routine) {
    Frame frame;
    frame.owner = unit.plan;
    frame.plan = unit.plan.get();
    frame.literals = &unit.literals;
    frame.base = unit.at;
    frame.routine = routine;
    frame.variables.resize(unit.plan->variables.size());
    const FrameScope scope(frame_, frame);
    return run_steps(unit.plan->steps);
}

void Executor::check_interrupted() {
    if (!interrupted_) return;
    Error error;
    error.number = 3617;
    error.category = ErrorCategory::interrupted;
    error.text = "The query was cancelled.";
    throw Failure(error);
}

void Executor::refuse_while_reading() const {
    if (reading_ || parts_.transactions.reading())
        raise_error(3906, "The batch may only read; a statement that changes the books or their "
                          "transaction is not run.");
}

Flow Executor::run_steps(const tsql::Steps& steps) {
    for (const tsql::Step& step : steps) {
        const Flow flow = run_step(step);
        if (flow != Flow::next) return flow;
    }
    return Flow::next;
}

Flow Executor::run_step(const tsql::Step& step) {
    try {
        check_interrupted();
        if (functions_ == 0) now_.reset();
        at_ = step.at;
        return dispatch(step);
    } catch (const Failure& failure) {
        return on_error(step, failure.error());
    } catch (const SqliteFailure& failure) {
        return on_error(step, explained(failure));
    } catch (const tsql::Refusal& refusal) {
        return on_error(step, error_of(refusal));
    }
}

Error Executor::explained(const SqliteFailure& failure) {
    // An error that a function raised says more than SQLite does.
    if (auto raised = take_raised()) return *raised;
    return explain(failure, &parts_.catalog);
}

Flow Executor::on_error(const tsql::Step& step, Error error) {
    set_place(error, frame_->base, step.at);
    last_error_ = error.number;
    unchanged_.reset();
    parts_.transactions.lost();
    // Inside a trigger every error counts as under XACT_ABORT.
    const bool strict = options_.xact_abort || triggers_ > 0;
    const bool undoes_all = strict || ends_batch(error);
    if (propagates() && can_be_caught(error)) {
        if (strict || (undoes_all && error.category != ErrorCategory::user))
            parts_.transactions.doom();
        throw Failure(std::move(error));
    }
    const bool anything_to_undo = !contained_ && !parts_.transactions.reading();
    if (undoes_all && functions_ == 0 && anything_to_undo) parts_.transactions.rollback();
    if (propagates()) throw Failure(std::move(error));
    report(error);
    return undoes_all || contained_ ? Flow::end_batch : Flow::next;
}

void Executor::report(const Error& error) {
    last_error_ = error.number;
    if (!outcome_.error) outcome_.error = error;
    receiver_->error(error);
}

Flow Executor::dispatch(const tsql::Step& step) {
    Transactions& transactions = parts_.transactions;
    const auto quiet = [&](const auto& action) {
        refuse_while_reading();
        action();
        row_count_ = 0;
        last_error_ = 0;
        return Flow::next;
    };
    return std::visit(
        Overload{
            [&](const tsql::SqlQuery& s) { return query(s); },
            [&](const tsql::SqlAssign& s) { return assign(s); },
            [&](const tsql::SqlDml& s) { return dml(s); },
            [&](const tsql::InsertExecute& s) { return insert_execute(s); },
            [&](const tsql::Ddl& s) { return ddl(s); },
            [&](const tsql::PrepareTable& s) { return prepare_table(s); },
            [&](const tsql::FillFunctionTable& s) { return fill_function_table(s); },
            [&](const tsql::IfStep& s) { return choose(s); },
            [&](const tsql::WhileStep& s) { return loop(s); },
            [&](const tsql::BlockStep& s) { return run_steps(s.body); },
            [&](const tsql::BreakStep&) { return Flow::leave_loop; },
            [&](const tsql::ContinueStep&) { return Flow::next_round; },
            [&](const tsql::ReturnStep& s) { return leave(s); },
            [&](const tsql::TryStep& s) { return attempt(s); },
            [&](const tsql::PrintStep& s) { return print(s); },
            [&](const tsql::RaiseErrorStep& s) { return raise_error_step(s); },
            [&](const tsql::ThrowStep& s) { return throw_step(s); },
            [&](const tsql::ExecuteStep& s) { return execute(s); },
            [&](const tsql::ExecuteTextStep& s) { return execute_text(s); },
            [&](const tsql::BeginTransactionStep&) { return quiet([&] { transactions.begin(); }); },
            [&](const tsql::CommitStep&) { return quiet([&] { transactions.commit(); }); },
            [&](const tsql::RollbackStep& s) { return transaction(s); },
            [&](const tsql::SaveTransactionStep& s) {
                return quiet([&] {
                    if (transactions.depth() == 0)
                        raise_error(628, "Cannot issue SAVE TRANSACTION when there is no active "
                                         "transaction.");
                    transactions.save(s.name);
                });
            },
            [&](const tsql::SetOptionStep& s) { return set_option(s); },
            [&](const tsql::DeclareCursorStep& s) { return declare_cursor(s); },
            [&](const tsql::OpenCursorStep& s) { return open_cursor(s); },
            [&](const tsql::FetchCursorStep& s) { return fetch(s); },
            [&](const tsql::CloseCursorStep& s) {
                const auto found = cursors_.find(s.name);
                if (found == cursors_.end())
                    raise_error(16916, "A cursor with the name '" + s.name + "' does not exist.");
                found->second.open = false;
                found->second.rows.clear();
                return Flow::next;
            },
            [&](const tsql::DeallocateCursorStep& s) {
                cursors_.erase(s.name);
                return Flow::next;
            },
            [&](const tsql::DeferredStep& s) { return deferred(s); },
        },
        step.action);
}

} // namespace engines
