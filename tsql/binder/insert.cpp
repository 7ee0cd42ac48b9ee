// INSERT: every value is brought to its column, what is left out takes its default.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

[[noreturn]] void refuse_count(const Insert& insert, SourceRange at, std::size_t columns,
                               std::size_t values, bool query) {
    if (insert.columns.empty()) {
        throw Refusal(213, at,
                      "Column name or number of supplied values does not match table "
                      "definition.");
    }
    const bool more_columns = columns > values;
    if (query) {
        throw Refusal(more_columns ? 120 : 121, at,
                      more_columns ? "The select list for the INSERT statement contains fewer "
                                     "items than the insert list."
                                   : "The select list for the INSERT statement contains more "
                                     "items than the insert list.");
    }
    throw Refusal(more_columns ? 109 : 110, at,
                  more_columns ? "There are more columns in the INSERT statement than values "
                                 "specified in the VALUES clause."
                               : "There are fewer columns in the INSERT statement than values "
                                 "specified in the VALUES clause.");
}

} // namespace

void Binder::insert_columns(const Insert& insert, BoundInsert& bound) {
    if (insert.columns.empty()) {
        for (std::size_t i = 0; i < bound.table->columns.size(); ++i) {
            const CatalogColumn& column = bound.table->columns[i];
            if (column.computed.empty() && !column.identity) {
                bound.columns.push_back(static_cast<int>(i));
            }
        }
        return;
    }
    Scope scope;
    scope.tables.push_back(bound.target);
    for (const Name& name : insert.columns) {
        ObjectName column;
        column.parts.push_back(name);
        column.at = name.at;
        const int ordinal = target_column(column, scope, bound);
        if (!bound.table->columns[static_cast<std::size_t>(ordinal)].computed.empty()) {
            throw Refusal(271, name.at,
                          "The column \"" + name.text +
                              "\" cannot be modified because it is a "
                              "computed column.");
        }
        if (std::find(bound.columns.begin(), bound.columns.end(), ordinal) != bound.columns.end()) {
            throw Refusal(264, name.at,
                          "The column name '" + name.text +
                              "' is specified more than once in the "
                              "column list of an INSERT.");
        }
        bound.columns.push_back(ordinal);
    }
}

void Binder::insert_rows(const Insert& insert, BoundInsert& bound, Scope& scope) {
    for (const ValueRow& row : insert.rows) {
        if (row.size() != bound.columns.size()) {
            const SourceRange at = row.empty() ? insert.at : row.front()->at;
            refuse_count(insert, at, bound.columns.size(), row.size(), false);
        }
        std::vector<BoundPtr> values;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const CatalogColumn& column =
                bound.table->columns[static_cast<std::size_t>(bound.columns[i])];
            values.push_back(row[i]->kind == ExpressionKind::DefaultMark
                                 ? default_value(column)
                                 : assigned_value(column, bind_value(*row[i], scope)));
        }
        bound.rows.push_back(std::move(values));
    }
}

void Binder::insert_query(const Insert& insert, BoundInsert& bound, Scope& scope) {
    bound.query = bind_query(*insert.query, &scope, true);
    const std::size_t count = bound.query->columns.size();
    if (count != bound.columns.size()) {
        refuse_count(insert, insert.query->at, bound.columns.size(), count, true);
    }
    std::vector<Type> types;
    for (const int ordinal : bound.columns) {
        types.push_back(bound.table->columns[static_cast<std::size_t>(ordinal)].type);
    }
    convert_columns(*this, *bound.query->body, types, ConvertMode::Assign);
}

void Binder::insert_defaults(BoundInsert& bound) {
    for (std::size_t i = 0; i < bound.table->columns.size(); ++i) {
        const CatalogColumn& column = bound.table->columns[i];
        const bool given = std::find(bound.columns.begin(), bound.columns.end(),
                                     static_cast<int>(i)) != bound.columns.end();
        if (given || !column.computed.empty()) {
            continue;
        }
        if (column.identity) {
            auto next = std::make_shared<BoundFunction>();
            next->name = "NEXT_IDENTITY";
            next->part = bound.table->name;
            next->type = column.type;
            bound.defaults.emplace_back(static_cast<int>(i), std::move(next));
        } else if (!column.default_text.empty()) {
            bound.defaults.emplace_back(static_cast<int>(i), default_value(column));
        }
    }
}

BoundInsert Binder::bind_insert(const Insert& insert) {
    BoundInsert bound;
    Scope scope;
    bind_with(insert.with, scope, bound.with, std::nullopt);
    Scope target;
    std::vector<BoundSourcePtr> none;
    BoundPtr condition;
    find_target(insert.target, {}, target, bound, none, condition);
    auto stored = bound.target;
    bound.target = target.tables.front();
    insert_columns(insert, bound);
    bound.target = std::move(stored);
    switch (insert.source) {
    case InsertSource::Values: insert_rows(insert, bound, scope); break;
    case InsertSource::Query: insert_query(insert, bound, scope); break;
    case InsertSource::DefaultValues:
        bound.columns.clear();
        bound.rows.emplace_back();
        break;
    case InsertSource::Execute: {
        bound.executes = true;
        std::vector<BoundPtr> row;
        for (std::size_t i = 0; i < bound.columns.size(); ++i) {
            auto cell = std::make_shared<BoundValue>();
            cell->source = ParameterSource::Row;
            cell->index = static_cast<int>(i);
            cell->type = Type::varchar(8000);
            row.push_back(assigned_value(
                bound.table->columns[static_cast<std::size_t>(bound.columns[i])], cell));
        }
        bound.rows.push_back(std::move(row));
        break;
    }
    }
    insert_defaults(bound);
    bind_top(insert.top, scope, bound.top);
    find_triggers(bound, DmlKind::Insert);
    if (insert.output) {
        bind_output(*insert.output, bound);
    }
    return bound;
}

} // namespace tsql
