// Windows that follow the order in which the rows are shown. SQLite would keep every row of a
// partition in a table of its own and sort once more; here the text gives the rows as it finds them
// and the engine orders them once and lets the values run along.
#include "tsql/emit/sqlite/running.h"

#include "tsql/binder/same_expression.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>
#include <string>

namespace tsql::sqlite {

namespace {

bool same_column(const BoundPtr& left, const BoundPtr& right) {
    const auto& a = static_cast<const BoundColumn&>(*left);
    const auto& b = static_cast<const BoundColumn&>(*right);
    return a.table == b.table && a.ordinal == b.ordinal;
}

// Columns whose order the engine knows: whole numbers, dates and texts of the database's collation.
bool may_be_key(const BoundPtr& value) {
    if (!value || value->kind != BoundKind::Column) {
        return false;
    }
    const Type& type = value->type;
    const bool known = type.is_exact() || type.is_date() ||
                       (type.is_text() && value->collation == Collation::Database);
    return known && static_cast<const BoundColumn&>(*value).table->kind != RangeKind::Inline;
}

int place_of(const BoundPtr& column, const std::vector<RunningKey>& keys) {
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const RunningKey& key) {
        return same_column(key.column, column);
    });
    return found == keys.end() ? -1 : static_cast<int>(found - keys.begin());
}

bool is_column_of(const BoundPtr& value, const RangeTable* table) {
    return value && value->kind == BoundKind::Column &&
           static_cast<const BoundColumn&>(*value).table == table;
}

// The order of the query; a column named again changes nothing. Steps come last and upwards.
bool keys_of(const BoundQuery& query, const BoundSelect& select, RunningRows& rows) {
    for (const BoundOrder& order : query.order) {
        const BoundPtr& named =
            order.item >= 0 ? select.items[static_cast<std::size_t>(order.item)].expression
                            : order.expression;
        if (rows.steps != nullptr && &order == &query.order.back()) {
            return is_column_of(named, rows.steps) && !order.descending;
        }
        if (rows.steps != nullptr && !is_column_of(named, rows.table)) {
            return false;
        }
        const BoundPtr& value = behind(named, rows.table);
        if (!may_be_key(value)) {
            return false;
        }
        if (place_of(value, rows.keys) < 0) {
            rows.keys.push_back({value, order.descending});
        }
    }
    return rows.steps == nullptr;
}

// The first keys must be the columns of the partition in any order; where there are fewer keys the
// partition adds its own behind them, which any order of the rows allows.
bool join_partition(const BoundWindow& window, std::vector<RunningKey>& keys) {
    std::size_t count = 0;
    std::vector<BoundPtr> missing;
    std::vector<RunningKey> seen;
    for (const BoundPtr& column : window.partition) {
        if (!may_be_key(column)) {
            return false;
        }
        if (place_of(column, seen) >= 0) {
            continue;
        }
        seen.push_back({column, false});
        ++count;
        if (place_of(column, keys) < 0) {
            missing.push_back(column);
        }
    }
    const std::size_t known = keys.size();
    for (const BoundPtr& column : missing) {
        keys.push_back({column, false});
    }
    if (!missing.empty() && known + missing.size() != count) {
        return false;
    }
    return partition_keys(window, keys) >= 0;
}

// The order within the partition must go on where the partition's keys end.
bool join_order(const BoundWindow& window, std::vector<RunningKey>& keys) {
    auto place = static_cast<std::size_t>(partition_keys(window, keys));
    for (const BoundOrder& order : window.order) {
        if (order.expression->kind == BoundKind::Subquery) {
            continue; // a constant says that the order does not matter
        }
        if (!may_be_key(order.expression)) {
            return false;
        }
        const int known = place_of(order.expression, keys);
        if (known >= 0 && static_cast<std::size_t>(known) < place) {
            continue;
        }
        if (place == keys.size()) {
            keys.push_back({order.expression, order.descending});
        } else if (static_cast<std::size_t>(known) != place ||
                   keys[place].descending != order.descending) {
            return false;
        }
        ++place;
    }
    return true;
}

bool runs_to_here(const BoundAggregate& node) {
    const auto& frame = node.window->frame;
    return frame && frame->unit == FrameUnit::Rows &&
           frame->start == FrameBoundKind::UnboundedPreceding &&
           frame->end == FrameBoundKind::CurrentRow;
}

// Functions that need nothing but the rows before. LAG by another number of rows does not.
bool runs_along(const BoundAggregate& node) {
    if (node.distinct) {
        return false;
    }
    if (node.name == "ROW_NUMBER") {
        return true;
    }
    if (node.name == "LAG") {
        if (node.arguments.size() < 2) {
            return true;
        }
        const BoundPtr& rows = node.arguments[1];
        const auto* literal = rows->kind == BoundKind::Literal
                                  ? static_cast<const BoundLiteral*>(rows.get())
                                  : nullptr;
        return literal != nullptr && literal->constant >= 0 && literal->text == "1";
    }
    if (node.name == "COUNT" || node.name == "COUNT_BIG") {
        return runs_to_here(node);
    }
    return node.name == "SUM" && node.arguments[0]->type.is_exact() &&
           node.type.kind != TypeKind::Int && runs_to_here(node);
}

// A list of numbers that grow from row to row and are the plan's own.
bool are_steps(const RangeTable& table, std::vector<std::int64_t>& steps) {
    if (table.kind != RangeKind::Values || table.columns.size() != 1) {
        return false;
    }
    for (const auto& row : table.rows) {
        const auto* literal = row[0]->kind == BoundKind::Literal
                                  ? static_cast<const BoundLiteral*>(row[0].get())
                                  : nullptr;
        if (literal == nullptr || literal->constant < 0 || literal->digits() > 9 ||
            literal->literal != LiteralKind::Integer) {
            return false;
        }
        const std::int64_t step = std::stoll(literal->text);
        if (!steps.empty() && step <= steps.back()) {
            return false;
        }
        steps.push_back(step);
    }
    return true;
}

bool is_plain(const BoundQuery& query) {
    if (query.body->kind != BoundBodyKind::Select || query.offset || query.fetch) {
        return false;
    }
    const auto& select = static_cast<const BoundSelect&>(*query.body);
    return !select.distinct && !select.top && !select.grouped && !select.from.empty();
}

const BoundQuery* query_behind(const RangeTable& table) {
    if (table.kind == RangeKind::Query) {
        return table.query.get();
    }
    return table.kind == RangeKind::Common && !table.common->recursive ? table.common->query.get()
                                                                       : nullptr;
}

// FROM a table with windows CROSS JOIN a list of steps: answers the query of the table. The table
// must be the only one of its statement, since its text is not read as a table any more.
const BoundQuery* stepped_query(const BoundQuery& query, RunningRows& rows) {
    const auto& select = static_cast<const BoundSelect&>(*query.body);
    const BoundSource& source = *select.from[0];
    if (select.from.size() != 1 || source.kind != SourceKind::Join ||
        source.join != JoinKind::Cross || source.left->kind != SourceKind::Table ||
        source.right->kind != SourceKind::Table) {
        return nullptr;
    }
    const RangeTable& table = *source.left->table;
    const BoundQuery* inner = query_behind(table);
    const std::size_t named = table.kind == RangeKind::Common ? 1 : 0;
    if (inner == nullptr || query.with.size() != named || !inner->with.empty() ||
        !inner->order.empty() || !is_plain(*inner) ||
        !are_steps(*source.right->table, rows.order.steps)) {
        return nullptr;
    }
    rows.table = &table;
    rows.steps = source.right->table.get();
    return inner;
}

void windows_of(const BoundSelect& select, std::vector<const BoundAggregate*>& out) {
    for (const BoundItem& item : select.items) {
        collect_windows(item.expression, out);
    }
}

} // namespace

const BoundPtr& behind(const BoundPtr& value, const RangeTable* table) {
    if (table == nullptr || !is_column_of(value, table)) {
        return value;
    }
    const auto place = static_cast<std::size_t>(static_cast<const BoundColumn&>(*value).ordinal);
    return static_cast<const BoundSelect&>(*query_behind(*table)->body).items[place].expression;
}

void collect_windows(const BoundPtr& value, std::vector<const BoundAggregate*>& out) {
    if (!value) {
        return;
    }
    if (value->kind == BoundKind::Aggregate) {
        const auto& node = static_cast<const BoundAggregate&>(*value);
        if (node.window) {
            out.push_back(&node);
            return;
        }
    }
    for (const BoundPtr& part : parts_of(*value)) {
        collect_windows(part, out);
    }
}

int partition_keys(const BoundWindow& window, const std::vector<RunningKey>& keys) {
    int last = -1;
    std::vector<RunningKey> seen;
    for (const BoundPtr& column : window.partition) {
        const int place = place_of(column, keys);
        if (place < 0) {
            return -1;
        }
        last = std::max(last, place);
        if (place_of(column, seen) < 0) {
            seen.push_back({column, false});
        }
    }
    return last + 1 == static_cast<int>(seen.size()) ? last + 1 : -1;
}

bool Emitter::running_query(const BoundQuery& query, RowOrder& order, std::string& text) {
    if (!is_plain(query)) {
        return false;
    }
    RunningRows rows;
    const auto& shown = static_cast<const BoundSelect&>(*query.body);
    const BoundQuery* inner = stepped_query(query, rows);
    const auto& select =
        inner == nullptr ? shown : static_cast<const BoundSelect&>(*inner->body);
    std::vector<const BoundAggregate*> outside;
    std::vector<const BoundAggregate*> windows;
    windows_of(shown, inner == nullptr ? windows : outside);
    if (inner != nullptr) {
        windows_of(select, windows);
    }
    if (windows.empty() || !outside.empty() || !keys_of(query, shown, rows)) {
        return false;
    }
    for (const BoundAggregate* node : windows) {
        if (!runs_along(*node) || !join_partition(*node->window, rows.keys) ||
            !join_order(*node->window, rows.keys)) {
            return false;
        }
    }
    force_order_ = query.force_order;
    // Tables first: what derived tables give decides how their columns are read.
    const std::string with = inner == nullptr ? with_clause(query.with) : "";
    const std::string tail =
        from_text(select.from) + (select.where ? " WHERE " + condition(select.where) : "");
    if (!shown_columns(shown, rows)) {
        return false;
    }
    std::string list;
    for (const Fragment& cell : rows.cells) {
        list += (list.empty() ? "SELECT " : ", ") + cell.text;
    }
    for (ShownValue& value : rows.order.values) {
        if (value.kind == ShownValue::Kind::Cell && value.place < 0) {
            value.place = static_cast<int>(rows.cells.size()) - 1 - value.place;
        }
    }
    order = std::move(rows.order);
    text = with + list + tail;
    return true;
}

bool Emitter::shown_columns(const BoundSelect& select, RunningRows& rows) {
    for (const RunningKey& key : rows.keys) {
        if (narrow_cell(key.column, rows) < 0) {
            return false;
        }
        rows.order.descending.push_back(key.descending);
    }
    rows.outside = rows.table != nullptr;
    for (const BoundItem& item : select.items) {
        const int number = shown_value(item.expression, rows);
        if (number < 0) {
            return false;
        }
        rows.order.shown.push_back(number);
    }
    if (rows.outside && select.where) {
        const int yes = rows.add(ShownValue::Kind::Number, 1);
        const int no = rows.add(ShownValue::Kind::Number, 0);
        rows.order.condition = shown_condition(select.where, yes, no, rows);
        return rows.order.condition >= 0;
    }
    return true;
}

SqlText Emitter::query(const BoundQuery& query, std::optional<RowOrder>& order) {
    RowOrder found;
    std::string text;
    if (!inline_literals_ && running_query(query, found, text)) {
        order = std::move(found);
        return finish(std::move(text));
    }
    parameters_.clear();
    forms_.clear();
    force_order_ = false;
    order.reset();
    return this->query(query);
}

} // namespace tsql::sqlite
