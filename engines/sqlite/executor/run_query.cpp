// Queries and the values that flow into them.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/executor/literal.h"
#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"

namespace engines {

int Executor::step(sqlite3_stmt* statement, StatementVerb verb) {
    const int code = sqlite3_step(statement);
    if (code == SQLITE_ROW || code == SQLITE_DONE) return code;
    const SqliteFailure failure = last_failure(parts_.connection);
    if (auto raised = take_raised()) throw Failure(std::move(*raised));
    Error error = explain(failure, &parts_.catalog, verb);
    if (const char* text = sqlite3_sql(statement); text != nullptr && error.statement.empty())
        error.statement = std::string(text).substr(0, 400);
    throw Failure(std::move(error));
}

void Executor::bind(sqlite3_stmt* statement, const tsql::SqlText& text) {
    int index = 0;
    for (const tsql::PlanParameter& parameter : text.parameters)
        bind_parameter(statement, ++index, parameter);
}

void Executor::bind_parameter(sqlite3_stmt* statement, int index,
                              const tsql::PlanParameter& parameter) {
    tsql::Type type = parameter.type;
    std::string raw;
    Stored value;
    switch (parameter.source) {
    case tsql::ParameterSource::Literal:
        value = literal_value((*frame_->literals)[static_cast<std::size_t>(parameter.index)], type,
                              raw);
        break;
    case tsql::ParameterSource::Constant:
        value = literal_value(frame_->plan->constants[static_cast<std::size_t>(parameter.index)],
                              type, raw);
        break;
    case tsql::ParameterSource::System: value = system_value(parameter, raw); break;
    default: value = parameter_value(parameter, type); break;
    }
    if (parameter.how == tsql::Conversion::None) {
        bind_stored(statement, index, value, type);
        return;
    }
    std::string buffer;
    const Fit fit = parameter.how == tsql::Conversion::Assign ? Fit::refuse : Fit::cut;
    bind_stored(statement, index, convert(value, type, parameter.to, parameter.style, fit, buffer),
                parameter.to);
}

Stored Executor::parameter_value(const tsql::PlanParameter& parameter, tsql::Type& type) {
    const auto index = static_cast<std::size_t>(parameter.index);
    switch (parameter.source) {
    case tsql::ParameterSource::Variable: return frame_->variables[index].get();
    case tsql::ParameterSource::Row:
        type = (*frame_->row)[index].type;
        return (*frame_->row)[index].value.get();
    case tsql::ParameterSource::RowMark: return Stored::of(frame_->row_mark);
    default: return Stored::null();
    }
}

std::int64_t Executor::run_query(const tsql::SqlText& text,
                                 std::span<const tsql::PlanColumn> columns, RowSink& sink) {
    const StatementLease lease = parts_.statements.lease(text, frame_->owner);
    bind(lease.get(), text);
    std::int64_t rows = 0;
    int code = step(lease.get(), StatementVerb::other);
    sink.begin(columns);
    for (; code == SQLITE_ROW; code = step(lease.get(), StatementVerb::other)) {
        ++rows;
        if (!sink.row(lease.get())) break;
    }
    sink.end();
    return rows;
}

std::int64_t Executor::run_text(const tsql::SqlText& text, StatementVerb verb) {
    const StatementLease lease = parts_.statements.lease(text, frame_->owner);
    bind(lease.get(), text);
    const bool reads = sqlite3_stmt_readonly(lease.get()) != 0;
    while (step(lease.get(), verb) == SQLITE_ROW) {
    }
    return reads ? 0 : sqlite3_changes64(parts_.connection);
}

OwnedValue Executor::cell_of_text(const tsql::SqlText& text, const tsql::Type& type) {
    const StatementLease lease = parts_.statements.lease(text, frame_->owner);
    bind(lease.get(), text);
    OwnedValue value;
    if (step(lease.get(), StatementVerb::other) == SQLITE_ROW)
        value.set(read_column(lease.get(), 0, type));
    return value;
}

bool Executor::is_true(const tsql::SqlText& condition) {
    const StatementLease lease = parts_.statements.lease(condition, frame_->owner);
    bind(lease.get(), condition);
    return step(lease.get(), StatementVerb::other) == SQLITE_ROW &&
           sqlite3_column_int64(lease.get(), 0) != 0;
}

Flow Executor::query(const tsql::SqlQuery& query) {
    row_count_ = run_query(query.sql, query.columns, sink());
    last_error_ = 0;
    return Flow::next;
}

Flow Executor::assign(const tsql::SqlAssign& assign) {
    const StatementLease lease = parts_.statements.lease(assign.sql, frame_->owner);
    bind(lease.get(), assign.sql);
    std::int64_t rows = 0;
    while (step(lease.get(), StatementVerb::other) == SQLITE_ROW) {
        ++rows;
        int column = 0;
        for (const int slot : assign.slots) {
            const auto place = static_cast<std::size_t>(slot);
            const tsql::Type& type = frame_->plan->variables[place].type;
            frame_->variables[place].set(read_column(lease.get(), column++, type));
        }
    }
    row_count_ = assign.counts_rows ? rows : 1;
    last_error_ = 0;
    return Flow::next;
}

} // namespace engines
