// UPDATE: written so that every right side reads the rows as they were before the statement.
#include "tsql/binder/same_expression.h"
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

// Whether the expression reads other rows: SQLite would see those already changed.
bool reads_rows(const BoundPtr& value) {
    if (!value) {
        return false;
    }
    switch (value->kind) {
    case BoundKind::Subquery:
    case BoundKind::Exists:
    case BoundKind::InQuery:
    case BoundKind::Quantified:
    case BoundKind::UserFunction: return true;
    default: break;
    }
    const std::vector<BoundPtr> parts = parts_of(*value);
    return std::any_of(parts.begin(), parts.end(), reads_rows);
}

bool calls_function(const BoundPtr& value) {
    if (!value) {
        return false;
    }
    if (value->kind == BoundKind::UserFunction) {
        return true;
    }
    const std::vector<BoundPtr> parts = parts_of(*value);
    return std::any_of(parts.begin(), parts.end(), calls_function);
}

// The leaves and conditions of a tree of inner joins; false when there is another join.
bool flatten(const BoundSource& source, std::vector<const BoundSource*>& leaves,
             std::vector<BoundPtr>& conditions) {
    if (source.kind == SourceKind::Table) {
        leaves.push_back(&source);
        return source.table->kind != RangeKind::Inline;
    }
    if (source.join != JoinKind::Inner && source.join != JoinKind::Cross) {
        return false;
    }
    if (source.on) {
        conditions.push_back(source.on);
    }
    return flatten(*source.left, leaves, conditions) && flatten(*source.right, leaves, conditions);
}

} // namespace

// FROM … WHERE … of the rows that change, the target among the tables.
std::string Emitter::rows_of(const BoundChange& change, const std::vector<BoundSourcePtr>& from,
                             bool target_in_from, const BoundPtr& where) {
    std::string text = from_text(from);
    if (!target_in_from) {
        text = " FROM " + table_text(*change.target) + (text.empty() ? "" : ", " + text.substr(6));
    }
    if (where) {
        text += " WHERE " + condition(where);
    }
    if (change.top) {
        text += change.top->percent
                    ? " LIMIT zf_percent(" + value_of(change.top->count).text +
                          ",(SELECT count(*) FROM " + stored_table(*change.table) + "))"
                    : " LIMIT " + value_of(change.top->count).text;
    }
    return text;
}

SqlText Emitter::update(const BoundUpdate& update, bool skip_unchanged) {
    const std::string alias = alias_of(*update.target);
    const auto name = [&](const BoundSet& set) {
        return quoted_name(update.table->columns[static_cast<std::size_t>(set.column)].name);
    };
    const auto type = [&](const BoundSet& set) -> const Type& {
        return update.table->columns[static_cast<std::size_t>(set.column)].type;
    };
    bool collect = update.top.has_value() || calls_function(update.where);
    for (const BoundSet& set : update.set) {
        collect = collect || reads_rows(set.value);
    }
    std::vector<const BoundSource*> leaves;
    std::vector<BoundPtr> conditions;
    bool inner = true;
    for (const BoundSourcePtr& source : update.from) {
        inner = flatten(*source, leaves, conditions) && inner;
    }
    collect = collect || (update.target_in_from && !inner);
    std::string text = with_clause(update.with) + "UPDATE " + stored_table(*update.table) + " AS ";
    std::string assignments;
    std::string changes;
    if (collect) {
        std::string list = alias + ".rowid AS r";
        for (std::size_t i = 0; i < update.set.size(); ++i) {
            const BoundSet& set = update.set[i];
            const std::string number = std::to_string(i + 1);
            list += ", " + stored_value(set.value, type(set)) + " AS c" + number;
            assignments += (i == 0 ? "" : ", ") + name(set) + "=s.c" + number;
            changes += (i == 0 ? "" : " OR ") + ("u." + name(set)) + " IS NOT s.c" + number +
                       (type(set).is_text() ? " COLLATE BINARY" : "");
        }
        const std::string rows =
            "SELECT " + list + rows_of(update, update.from, update.target_in_from, update.where);
        text += "u SET " + assignments + " FROM (" + rows + ") AS s WHERE u.rowid=s.r";
        return finish(skip_unchanged ? text + " AND (" + changes + ")" : text);
    }
    // Tables first: what derived tables give decides how their columns are read.
    std::string from;
    std::string where;
    gathers_ = conditions.empty() || update.target_in_from;
    for (const BoundSource* leaf : leaves) {
        if (!update.target_in_from || leaf->table != update.target) {
            from += (from.empty() ? " FROM " : ", ") + table_text(*leaf->table);
        }
    }
    if (!update.target_in_from) {
        from = from_text(update.from);
        conditions.clear();
    }
    gathers_ = false;
    for (const BoundPtr& joined : conditions) {
        where += (where.empty() ? "" : " AND ") + condition(joined);
    }
    if (update.where) {
        where += (where.empty() ? "" : " AND ") + condition(update.where);
    }
    for (std::size_t i = 0; i < update.set.size(); ++i) {
        const BoundSet& set = update.set[i];
        const std::string value = stored_value(set.value, type(set));
        assignments += (i == 0 ? "" : ", ") + name(set) + "=" + value;
        changes += (i == 0 ? "" : " OR ") + (alias + "." + name(set)) + " IS NOT " + value +
                   (type(set).is_text() ? " COLLATE BINARY" : "");
    }
    if (skip_unchanged) {
        where += (where.empty() ? "(" : " AND (") + changes + ")";
    }
    text += alias + " SET " + assignments + from + (where.empty() ? "" : " WHERE " + where);
    return finish(std::move(text));
}

std::vector<SqlText> Emitter::update_in_turns(const BoundUpdate& update) {
    const std::string alias = alias_of(*update.target);
    const std::string target = stored_table(*update.table);
    std::string list = alias + ".rowid";
    std::string columns = "r INTEGER PRIMARY KEY";
    std::string aside;
    std::string back;
    for (std::size_t i = 0; i < update.set.size(); ++i) {
        const CatalogColumn& column =
            update.table->columns[static_cast<std::size_t>(update.set[i].column)];
        const std::string number = std::to_string(i + 1);
        list += ", " + stored_value(update.set[i].value, column.type);
        columns += ", c" + number;
        aside += (i == 0 ? "" : ", ") + quoted_name(column.name) + "=zf_tombstone(rowid)";
        back += (i == 0 ? "" : ", ") + quoted_name(column.name) + "=s.c" + number;
    }
    std::vector<SqlText> texts;
    // Without parameters: those gathered so far belong to the text that reads the rows.
    texts.push_back({"DROP TABLE IF EXISTS temp.\"turns\"", {}});
    texts.push_back({"CREATE TEMP TABLE \"turns\" (" + columns + ")", {}});
    const std::string rows = with_clause(update.with) + "SELECT " + list +
                             rows_of(update, update.from, update.target_in_from, update.where);
    texts.push_back(finish("INSERT OR IGNORE INTO temp.\"turns\" " + rows));
    texts.push_back(finish("UPDATE " + target + " SET " + aside +
                           " WHERE rowid IN (SELECT r FROM temp.\"turns\")"));
    texts.push_back(finish("UPDATE " + target + " AS u SET " + back +
                           " FROM temp.\"turns\" AS s WHERE u.rowid=s.r"));
    return texts;
}

std::string Emitter::old_rows(const BoundChange& change, const std::vector<BoundSourcePtr>& from,
                              bool target_in_from, const BoundPtr& where) {
    const std::string alias = alias_of(*change.target);
    std::string names = "zf_rowid";
    std::string values = alias + ".rowid";
    for (const CatalogColumn& column : change.table->columns) {
        if (column.computed.empty()) {
            names += "," + quoted_name(column.name);
            values += "," + alias + "." + quoted_name(column.name);
        }
    }
    const bool joined = !from.empty();
    const std::string rows = rows_of(change, from, target_in_from, where);
    // A row met several times changes once.
    std::string select = "SELECT " + values + rows;
    if (joined) {
        select = "SELECT " + values + " FROM " + table_text(*change.target) + " WHERE " + alias +
                 ".rowid IN (SELECT " + alias + ".rowid" + rows + ")";
    }
    return with_clause(change.with) + "INSERT INTO temp." +
           quoted_name(copy_name(*change.table, false)) + "(" + names + ") " + select;
}

SqlText Emitter::fill_old_rows(const BoundUpdate& update) {
    return finish(old_rows(update, update.from, update.target_in_from, update.where));
}

SqlText Emitter::fill_old_rows(const BoundDelete& statement) {
    return finish(old_rows(statement, statement.from, statement.target_in_from, statement.where));
}

} // namespace tsql::sqlite
