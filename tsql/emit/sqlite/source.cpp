// FROM: every table under a name of our own, so that no alias of the text can hide another.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

bool has_outer_right(const BoundSource& source) {
    return source.kind == SourceKind::Join &&
           (source.join == JoinKind::Right || source.join == JoinKind::Full ||
            has_outer_right(*source.left) || has_outer_right(*source.right));
}

// SQLite takes the tables of a CROSS JOIN in the order they are written, others as it likes.
constexpr const char* fixed_join = " CROSS JOIN ";

bool is_inner(JoinKind kind) {
    return kind == JoinKind::Inner || kind == JoinKind::Cross;
}

const char* join_word(JoinKind kind) {
    switch (kind) {
    case JoinKind::Left: return " LEFT JOIN ";
    case JoinKind::Right: return " RIGHT JOIN ";
    case JoinKind::Full: return " FULL JOIN ";
    default: return " JOIN ";
    }
}

} // namespace

std::string Emitter::from_text(const std::vector<BoundSourcePtr>& from) {
    std::string text;
    for (const BoundSourcePtr& source : from) {
        const bool enclosed = from.size() > 1 && has_outer_right(*source);
        text += (text.empty() ? " FROM " : force_order_ ? fixed_join : ", ") +
                (enclosed ? "(" + source_text(*source) + ")" : source_text(*source));
    }
    return text;
}

std::string Emitter::source_text(const BoundSource& source) {
    if (source.kind == SourceKind::Table) {
        return table_text(*source.table);
    }
    if (source.join == JoinKind::CrossApply || source.join == JoinKind::OuterApply) {
        return apply_text(source);
    }
    std::string left = source_text(*source.left);
    std::string right = source_text(*source.right);
    if (source.right->kind == SourceKind::Join) {
        right = "(" + right + ")";
    }
    const bool fixed = force_order_ && is_inner(source.join);
    std::string text = std::move(left) + (fixed ? fixed_join : join_word(source.join)) + right;
    if (source.on) {
        text += " ON " + condition(source.on);
    }
    return text;
}

std::string Emitter::table_text(const RangeTable& table) {
    const std::string alias = " AS " + alias_of(table);
    switch (table.kind) {
    case RangeKind::Table:
        return (table.temporary ? "temp." : "") + quoted_name(table.stored_name) + alias;
    case RangeKind::Common: return "w" + std::to_string(table.common->id) + alias;
    case RangeKind::Values: return values_text(table) + alias;
    case RangeKind::Query:
    case RangeKind::Inline: break;
    }
    std::vector<bool> used;
    for (const RangeColumn& column : table.columns) {
        used.push_back(column.used);
    }
    std::vector<ColumnForm> forms;
    const bool gathers = std::exchange(gathers_, false); // not the tables inside
    std::string text = gathers ? gathered_query(*table.query, used, forms) : "";
    if (text.empty()) {
        forms.clear();
        text = query_text(*table.query, &used, forms, true);
    }
    gathers_ = gathers;
    forms_[table.id] = std::move(forms);
    return "(" + text + ")" + alias;
}

std::string Emitter::values_text(const RangeTable& table) {
    const std::size_t count = table.columns.size();
    std::vector<std::vector<Fragment>> columns(count);
    for (const auto& row : table.rows) {
        for (std::size_t i = 0; i < count; ++i) {
            columns[i].push_back(value_of(row[i]));
        }
    }
    std::vector<ColumnForm> forms(count);
    for (std::size_t i = 0; i < count; ++i) {
        columns[i] = same_form(std::move(columns[i]));
        for (const Fragment& value : columns[i]) {
            forms[i].form = value.form;
            forms[i].bound = std::max(forms[i].bound, value.bound);
        }
    }
    std::string rows;
    for (std::size_t r = 0; r < table.rows.size(); ++r) {
        rows += r == 0 ? "(" : ", (";
        for (std::size_t i = 0; i < count; ++i) {
            rows += (i == 0 ? "" : ",") + columns[i][r].text;
        }
        rows += ")";
    }
    std::string names;
    for (std::size_t i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        names += (i == 1 ? "column" : ", column") + number + " AS c" + number;
    }
    forms_[table.id] = std::move(forms);
    return "(SELECT " + names + " FROM (VALUES " + rows + "))";
}

// APPLY of a query that reads the row before it: its stored table joins by the rows the query
// picks; a query that always gives one row needs no table, its columns are subqueries.
std::string Emitter::apply_text(const BoundSource& source) {
    const std::string left = source_text(*source.left);
    const RangeTable& table = *source.right->table;
    const char* word = source.join == JoinKind::OuterApply ? " LEFT JOIN " : " JOIN ";
    if (table.kind != RangeKind::Inline) {
        return left + word + table_text(table) + " ON 1";
    }
    const auto& select = static_cast<const BoundSelect&>(*table.query->body);
    if (select.grouped) {
        return left;
    }
    const RangeTable& inner = *select.from[0]->table;
    std::string text = left + word + table_text(inner) + " ON ";
    if (!select.top) {
        return text + (select.where ? condition(select.where) : "1");
    }
    return text + alias_of(inner) + ".rowid IN (SELECT " + alias_of(inner) + ".rowid FROM " +
           table_text(inner) + (select.where ? " WHERE " + condition(select.where) : "") +
           order_by_value(*table.query, select) + " LIMIT " + value_of(select.top->count).text +
           ")";
}

} // namespace tsql::sqlite
