// IF, WHILE, RETURN, TRY, ROLLBACK, SET and statements bound late.
#include "engines/sqlite/executor/error_rules.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/raise.h"

namespace engines {

Flow Executor::choose(const tsql::IfStep& step) {
    const bool holds = is_true(step.condition);
    row_count_ = 0;
    return run_steps(holds ? step.then : step.otherwise);
}

Flow Executor::loop(const tsql::WhileStep& step) {
    while (true) {
        check_interrupted();
        if (functions_ == 0) now_.reset();
        if (!is_true(step.condition)) return Flow::next;
        const Flow flow = run_steps(step.body);
        if (flow == Flow::leave_loop) return Flow::next;
        if (flow == Flow::leave_routine || flow == Flow::end_batch) return flow;
    }
}

Flow Executor::leave(const tsql::ReturnStep& step) {
    if (step.value) frame_->return_value = cell_of_text(*step.value, frame_->return_type);
    return Flow::leave_routine;
}

Flow Executor::attempt(const tsql::TryStep& step) {
    Error error;
    try {
        const Count catcher(catchers_);
        return run_steps(step.body);
    } catch (const Failure& failure) {
        error = failure.error();
        if (!can_be_caught(error)) throw;
    }
    const auto outer = std::exchange(caught_, error);
    const auto outer_procedure = std::exchange(caught_procedure_, frame_->routine);
    last_error_ = error.number;
    Flow flow = Flow::next;
    try {
        flow = run_steps(step.handler);
    } catch (...) {
        caught_ = outer;
        caught_procedure_ = outer_procedure;
        throw;
    }
    caught_ = outer;
    caught_procedure_ = outer_procedure;
    return flow;
}

Flow Executor::transaction(const tsql::RollbackStep& step) {
    Transactions& transactions = parts_.transactions;
    unchanged_.reset();
    refuse_while_reading();
    if (transactions.depth() == 0)
        raise_error(3903,
                    "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION.");
    if (step.name.empty() || !transactions.rollback_to(step.name)) transactions.rollback();
    row_count_ = 0;
    last_error_ = 0;
    return Flow::next;
}

Flow Executor::set_option(const tsql::SetOptionStep& step) {
    if (step.option == "XACT_ABORT") options_.xact_abort = step.on;
    if (step.option == "IDENTITY_INSERT") options_.identity_insert = step.on ? step.table : "";
    return Flow::next;
}

Flow Executor::deferred(const tsql::DeferredStep& step) {
    const auto plan = parts_.compiler.compile_deferred(*step.statement);
    const auto owner = std::exchange(frame_->owner, plan);
    const auto* outer = std::exchange(frame_->plan, plan.get());
    const std::size_t variables = plan->variables.size();
    if (frame_->variables.size() < variables) frame_->variables.resize(variables);
    const auto restore = [&] {
        frame_->owner = owner;
        frame_->plan = outer;
    };
    Flow flow = Flow::next;
    try {
        flow = run_steps(plan->steps);
    } catch (...) {
        restore();
        throw;
    }
    restore();
    return flow;
}

} // namespace engines
