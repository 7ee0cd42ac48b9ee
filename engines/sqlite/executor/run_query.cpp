// Queries and the values that flow into them.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/executor/literal.h"
#include "engines/sqlite/executor/shown_row.h"
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
    use_parameter(parameter, [&](const Stored& value, const tsql::Type& type) {
        bind_stored(statement, index, value, type);
    });
}

void Executor::use_parameter(
    const tsql::PlanParameter& parameter,
    const std::function<void(const Stored&, const tsql::Type&)>& use) {
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
        use(value, type);
        return;
    }
    std::string buffer;
    const Fit fit = parameter.how == tsql::Conversion::Assign ? Fit::refuse : Fit::cut;
    use(convert(value, type, parameter.to, parameter.style, fit, buffer), parameter.to);
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

std::int64_t Executor::run_query(const tsql::SqlQuery& query, RowSink& sink) {
    return query.order ? run_ordered(query, sink) : run_query(query.sql, query.columns, sink);
}

std::int64_t Executor::run_query(const tsql::SqlText& text,
                                 std::span<const tsql::PlanColumn> columns, RowSink& sink) {
    const StatementLease lease = parts_.statements.lease(text, frame_->owner);
    bind(lease.get(), text);
    std::vector<Stored> cells(columns.size());
    std::int64_t rows = 0;
    int code = step(lease.get(), StatementVerb::other);
    sink.begin(columns);
    for (; code == SQLITE_ROW; code = step(lease.get(), StatementVerb::other)) {
        ++rows;
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = read_column(lease.get(), static_cast<int>(i), columns[i].type);
        if (!sink.row(cells)) break;
    }
    sink.end();
    return rows;
}

namespace {

// The connection has no mutex, so that a value may be looked at where it lies.
void take_row(sqlite3_stmt* statement, int columns, OrderedRows& rows) {
    for (int i = 0; i < columns; ++i) {
        sqlite3_value* const value = sqlite3_column_value(statement, i);
        switch (sqlite3_value_type(value)) {
        case SQLITE_NULL: rows.add_null(); break;
        case SQLITE_INTEGER: rows.add(sqlite3_value_int64(value)); break;
        case SQLITE_FLOAT: rows.add_real(sqlite3_value_double(value)); break;
        case SQLITE_TEXT: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
            const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
            rows.add_text(RowCell::Kind::text, {text, size});
            break;
        }
        default: {
            const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
            const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
            rows.add_text(RowCell::Kind::bytes, {bytes, size});
        }
        }
    }
    rows.end_row();
}

} // namespace

std::int64_t Executor::run_ordered(const tsql::SqlQuery& query, RowSink& sink) {
    std::unique_ptr<OrderedRows> rows =
        spare_rows_ ? std::move(spare_rows_) : std::make_unique<OrderedRows>();
    {
        const StatementLease lease = parts_.statements.lease(query.sql, frame_->owner);
        bind(lease.get(), query.sql);
        const int columns = sqlite3_column_count(lease.get());
        rows->begin(*query.order, static_cast<std::size_t>(columns));
        while (step(lease.get(), StatementVerb::other) == SQLITE_ROW)
            take_row(lease.get(), columns, *rows);
    }
    rows->finish();
    std::vector<OwnedValue> constants;
    for (const tsql::PlanParameter& parameter : query.order->constants)
        use_parameter(parameter, [&](const Stored& value, const tsql::Type&) {
            constants.emplace_back(value);
        });
    sink.begin(query.columns);
    const std::int64_t count = show_rows(query, *rows, constants, sink);
    sink.end();
    if (rows->bytes() <= most_spare_bytes) spare_rows_ = std::move(rows);
    return count;
}

std::int64_t Executor::show_rows(const tsql::SqlQuery& query, const OrderedRows& rows,
                                 const std::vector<OwnedValue>& constants, RowSink& sink) {
    ShownRow shown(*query.order, rows, constants);
    std::vector<Stored> cells(query.columns.size());
    std::int64_t count = 0;
    for (std::size_t first = 0, last = 0; first < rows.rows(); first = last) {
        // Rows with equal keys take each step together.
        for (last = first + 1; shown.steps() > 1 && last < rows.rows() && rows.continues(last);)
            ++last;
        for (std::size_t step = 0; step < shown.steps(); ++step) {
            shown.take(step);
            for (std::size_t row = first; row < last; ++row) {
                if (!shown.is_wanted(row)) continue;
                check_interrupted();
                for (std::size_t i = 0; i < cells.size(); ++i)
                    cells[i] = shown.value(row, i, query.columns[i].type);
                ++count;
                if (!sink.row(cells)) return count;
            }
        }
    }
    return count;
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
    row_count_ = run_query(query, sink());
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
