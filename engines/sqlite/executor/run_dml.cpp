// INSERT, UPDATE and DELETE with their copies of rows and their triggers.
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

constexpr int deepest_nesting = 32;

StatementVerb verb_of(tsql::DmlKind kind) {
    switch (kind) {
    case tsql::DmlKind::Insert: return StatementVerb::insert;
    case tsql::DmlKind::Update: return StatementVerb::update;
    case tsql::DmlKind::Delete: return StatementVerb::remove;
    }
    return StatementVerb::other;
}

// Names of temporary tables and table variables begin with a mark of their own.
bool is_temporary(const std::string& table) {
    return table.starts_with('#') || table.starts_with('@');
}

bool is_duplicate(const Error& error) {
    return error.number == 2627 || error.number == 2601;
}

} // namespace

Flow Executor::dml(const tsql::SqlDml& dml) {
    if (!is_temporary(dml.table)) refuse_while_reading();
    if (parts_.transactions.doomed())
        raise_error(3930, "The current transaction cannot be committed and cannot support "
                          "operations that write to the log file. Roll back the transaction.");
    if (dml.repeatable && may_skip(dml)) {
        row_count_ = unchanged_->rows;
        if (triggers_ == 0) receiver_->affected(row_count_);
        return Flow::next;
    }
    unchanged_.reset();
    // Without TRY an error under XACT_ABORT undoes the transaction and needs no savepoint.
    const bool undoable = !(options_.xact_abort || contained_) || propagates();
    StatementScope scope(parts_.transactions, undoable);
    std::int64_t rows = 0;
    const Flow flow = write_and_fire(dml, rows);
    if (rows > 0 && !is_temporary(dml.table)) parts_.transactions.note_change();
    scope.done();
    if (flow == Flow::end_batch) {
        if (triggers_ == 0 && std::exchange(trigger_undone_, false))
            raise_error(3609, "The transaction ended in the trigger. The batch has been aborted.");
        return flow;
    }
    note_run(dml, rows);
    row_count_ = rows;
    last_error_ = 0;
    if (triggers_ == 0) {
        outcome_.affected += rows;
        receiver_->affected(rows);
    }
    return Flow::next;
}

Flow Executor::write_and_fire(const tsql::SqlDml& dml, std::int64_t& rows) {
    if (dml.triggers.empty()) {
        rows = write_rows(dml, verb_of(dml.kind));
        return Flow::next;
    }
    const auto table = parts_.catalog.find_table(dml.table);
    int& depth = capturing_[dml.table];
    std::optional<KeptCopies> kept;
    if (depth > 0 && table) kept.emplace(parts_.connection, *table, depth);
    Flow flow = Flow::next;
    {
        const Count capturing(depth);
        rows = write_rows(dml, verb_of(dml.kind));
        flow = fire_triggers(dml, rows);
    }
    if (kept && flow == Flow::next) kept->put_back();
    return flow;
}

std::int64_t Executor::write_rows(const tsql::SqlDml& dml, StatementVerb verb) {
    for (const tsql::SqlText& text : dml.prepare) run_text(text, verb);
    if (dml.row_mark) {
        const OwnedValue mark = cell_of_text(*dml.row_mark, tsql::Type::of(tsql::TypeKind::BigInt));
        frame_->row_mark = static_cast<std::int64_t>(mark.get().integer);
    }
    if (dml.resets_identity) {
        if (const auto table = parts_.catalog.find_table(dml.table))
            parts_.identities.reset(*table);
    }
    std::int64_t rows = run_main(dml, verb);
    changed_rows_ = rows;
    if (dml.count) {
        const OwnedValue count = cell_of_text(*dml.count, tsql::Type::of(tsql::TypeKind::BigInt));
        rows = static_cast<std::int64_t>(count.get().integer);
    }
    for (const tsql::SqlText& text : dml.collect) run_text(text, verb);
    if (dml.output) output_rows(dml);
    return rows;
}

std::int64_t Executor::run_main(const tsql::SqlDml& dml, StatementVerb verb) {
    try {
        return run_text(dml.main, verb);
    } catch (const Failure& failure) {
        if (dml.unique_retry.empty() || !is_duplicate(failure.error())) throw;
    }
    // Keys that change places meet each other on the way; the second form goes around that.
    std::int64_t rows = 0;
    for (const tsql::SqlText& text : dml.unique_retry) rows = run_text(text, verb);
    return rows;
}

void Executor::output_rows(const tsql::SqlDml& dml) {
    if (dml.assigned_slots.empty()) {
        run_query(*dml.output, sink());
        return;
    }
    KeepingSink kept;
    run_query(*dml.output, kept);
    if (kept.rows.empty()) return;
    const auto& last = kept.rows.back();
    for (std::size_t i = 0; i < dml.assigned_slots.size() && i < last.size(); ++i)
        frame_->variables[static_cast<std::size_t>(dml.assigned_slots[i])].set(last[i].value.get());
}

Flow Executor::fire_triggers(const tsql::SqlDml& dml, std::int64_t rows) {
    for (const std::string& trigger : dml.triggers) {
        // A trigger does not fire itself.
        if (frame_->trigger == trigger) continue;
        row_count_ = rows;
        if (fire(trigger, dml) == Flow::end_batch) return Flow::end_batch;
        if (parts_.transactions.depth() == 0) {
            trigger_undone_ = true;
            return Flow::end_batch;
        }
    }
    return Flow::next;
}

Flow Executor::fire(const std::string& trigger, const tsql::SqlDml& dml) {
    const auto routine = parts_.compiler.routine(trigger);
    if (!routine) return Flow::next;
    if (nesting_ >= deepest_nesting)
        raise_error(217, "Maximum stored procedure, function, trigger, or view nesting level "
                         "exceeded (limit 32).");
    Frame frame = frame_of(routine);
    frame.trigger = trigger;
    frame.updated_columns = &dml.updated_columns;
    const Count trigger_count(triggers_);
    const Flow flow = run_routine(routine, frame);
    return flow == Flow::end_batch ? flow : Flow::next;
}

std::vector<std::string> Executor::literals_of(const tsql::SqlDml& dml) const {
    std::vector<std::string> texts;
    for (const tsql::PlanParameter& parameter : dml.main.parameters) {
        const bool constant = parameter.source == tsql::ParameterSource::Constant;
        const auto& literals = constant ? frame_->plan->constants : *frame_->literals;
        texts.push_back(literals[static_cast<std::size_t>(parameter.index)].text);
    }
    return texts;
}

bool Executor::may_skip(const tsql::SqlDml& dml) const {
    return unchanged_ && parts_.transactions.depth() > 0 && unchanged_->text == dml.main.text &&
           unchanged_->literals == literals_of(dml);
}

void Executor::note_run(const tsql::SqlDml& dml, std::int64_t rows) {
    if (!dml.repeatable || changed_rows_ != 0 || parts_.transactions.depth() == 0) return;
    unchanged_ = Unchanged{dml.main.text, literals_of(dml), rows};
}

Flow Executor::insert_execute(const tsql::InsertExecute& insert) {
    StatementScope scope(parts_.transactions, true);
    KeepingSink kept;
    RowSink* const before = sink_;
    sink_ = &kept;
    Flow flow = Flow::next;
    try {
        flow = run_steps(insert.execute);
    } catch (...) {
        sink_ = before;
        throw;
    }
    sink_ = before;
    if (flow == Flow::end_batch) return flow;
    if (!kept.rows.empty() && kept.columns() != static_cast<std::size_t>(insert.columns))
        raise_error(213, "Column name or number of supplied values does not match table "
                         "definition.");
    std::int64_t rows = 0;
    const Count inner(catchers_);
    for (const auto& row : kept.rows) {
        frame_->row = &row;
        run_steps(insert.insert);
        rows += row_count_;
    }
    frame_->row = nullptr;
    scope.done();
    row_count_ = rows;
    return Flow::next;
}

} // namespace engines
