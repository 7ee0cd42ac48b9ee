// Definitions, and tables that live as long as a routine or the connection.
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/numbers/decimal.h"
#include "tsql/emit/common/quote.h"

namespace engines {
namespace {

// A value as a literal of SQLite.
std::string sql_literal(const Stored& value, const tsql::Type& type) {
    switch (value.form) {
    case Stored::Form::null: return "NULL";
    case Stored::Form::integer: {
        if (!is_wide(type)) return std::to_string(static_cast<std::int64_t>(value.integer));
        static constexpr char digits[] = "0123456789ABCDEF";
        std::string text = "x'";
        for (const char byte : to_wide(value.integer)) {
            text += digits[static_cast<unsigned char>(byte) >> 4];
            text += digits[byte & 15];
        }
        return text + "'";
    }
    case Stored::Form::real: return std::to_string(value.real);
    default: break;
    }
    std::string text = "'";
    for (const char c : value.text) {
        text += c;
        if (c == '\'') text += c;
    }
    return text + "'";
}

std::string with_constants(std::string text, const std::vector<std::string>& constants) {
    for (std::size_t i = 0; i < constants.size(); ++i) {
        const std::string mark = "{" + std::to_string(i) + "}";
        for (std::size_t place = text.find(mark); place != std::string::npos;
             place = text.find(mark, place + constants[i].size()))
            text.replace(place, mark.size(), constants[i]);
    }
    return text;
}

} // namespace

Flow Executor::ddl(const tsql::Ddl& ddl) {
    unchanged_.reset();
    if (!ddl.change.temporary) refuse_while_reading();
    StatementScope scope(parts_.transactions, true);
    if (!ddl.change.temporary) parts_.transactions.note_change();
    std::vector<std::string> constants;
    for (const tsql::SqlQuery& query : ddl.constants) {
        const tsql::Type& type = query.columns.front().type;
        constants.push_back(sql_literal(cell_of_text(query.sql, type).get(), type));
    }
    for (const std::string& text : ddl.sql)
        engines::run_text(parts_.connection, with_constants(text, constants));
    parts_.catalog.apply(ddl.change);
    parts_.objects.save(ddl.change);
    if (ddl.change.temporary && !frame_->routine.empty())
        for (const auto& object : ddl.change.put) frame_->temporary_tables.push_back(object->name);
    scope.done();
    row_count_ = 0;
    last_error_ = 0;
    return Flow::next;
}

Flow Executor::prepare_table(const tsql::PrepareTable& table) {
    // The table mostly is there from an earlier run; then its prepared statement is, too.
    try {
        run_text(table.clear, StatementVerb::other);
        return Flow::next;
    } catch (const SqliteFailure&) { // when the statement is made
    } catch (const Failure&) {       // when one made before finds the table gone
    }
    engines::run_text(parts_.connection, table.create);
    run_text(table.clear, StatementVerb::other);
    return Flow::next;
}

Flow Executor::fill_function_table(const tsql::FillFunctionTable& fill) {
    const auto routine = parts_.compiler.routine(fill.function);
    if (!routine) throw tsql::Refusal(208, {}, "Invalid object name '" + fill.function + "'.");
    Frame frame = frame_of(routine);
    {
        const StatementLease lease = parts_.statements.lease(fill.arguments, frame_->owner);
        bind(lease.get(), fill.arguments);
        if (step(lease.get(), StatementVerb::other) == SQLITE_ROW)
            for (std::size_t i = 0; i < routine->parameters.size(); ++i)
                frame.variables[i].set(
                    read_column(lease.get(), static_cast<int>(i), routine->parameters[i].type));
    }
    {
        const Count catcher(catchers_);
        run_routine(routine, frame);
    }
    engines::run_text(parts_.connection, fill.create);
    engines::run_text(parts_.connection, fill.clear);
    engines::run_text(parts_.connection, fill.insert);
    return Flow::next;
}

void Executor::drop_temporary_tables(Frame& frame) {
    for (const std::string& name : frame.temporary_tables) {
        const auto table = parts_.catalog.find_table(name);
        if (!table || !table->temporary) continue;
        engines::run_text(parts_.connection,
                          "DROP TABLE IF EXISTS temp." + tsql::quoted_name(table->stored_name));
        tsql::CatalogChange change;
        change.drop.push_back(name);
        change.temporary = true;
        parts_.catalog.apply(change);
    }
    frame.temporary_tables.clear();
}

} // namespace engines
