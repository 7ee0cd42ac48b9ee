// INSERT: one text with all columns that get a value, the defaults among them.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

const CatalogColumn& column_at(const BoundChange& change, int ordinal) {
    return change.table->columns[static_cast<std::size_t>(ordinal)];
}

} // namespace

std::string Emitter::insert_source(const BoundInsert& insert, const std::vector<int>& columns) {
    const auto given = [&](std::size_t i, const std::string& value) {
        const CatalogColumn& column = column_at(insert, columns[i]);
        if (!column.identity || insert.instead_of) {
            return value;
        }
        volatile_ = true;
        return "zf_identity_seen(" + quoted_text(insert.table->name) + "," + value + ")";
    };
    const auto rest = [&] {
        std::string text;
        for (const auto& [ordinal, value] : insert.defaults) {
            text += "," + stored_value(value, column_at(insert, ordinal).type);
        }
        return text;
    };
    if (!insert.query) {
        std::string rows;
        for (const auto& row : insert.rows) {
            std::string values;
            for (std::size_t i = 0; i < row.size(); ++i) {
                values += "," + given(i, stored_value(row[i], column_at(insert, columns[i]).type));
            }
            values += rest();
            rows += (rows.empty() ? "(" : ", (") + (values.empty() ? "" : values.substr(1)) + ")";
        }
        return " VALUES " + rows;
    }
    std::vector<ColumnForm> forms;
    const std::string text = query_text(*insert.query, nullptr, forms, true);
    bool direct = insert.defaults.empty() && !insert.top;
    std::string list;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const CatalogColumn& column = column_at(insert, columns[i]);
        const Form form = form_of(column.type);
        std::string value = "s.c" + std::to_string(i + 1);
        if (forms[i].form != form) {
            value = (form == Form::Wide ? "zf_wide(" : "zf_narrow(") + value + ")";
        }
        direct = direct && forms[i].form == form && !column.identity;
        list += (i == 0 ? "" : ",") + given(i, value);
    }
    if (direct) {
        return " " + text;
    }
    return " SELECT " + list + rest() + " FROM (" + text + ") AS s WHERE 1" +
           (insert.top ? " LIMIT " + value_of(insert.top->count).text : "");
}

SqlText Emitter::insert(const BoundInsert& insert, bool into_copy) {
    std::string text = with_clause(insert.with) + "INSERT INTO ";
    text += into_copy ? "temp." + quoted_name(copy_name(*insert.table, true))
                      : stored_table(*insert.table);
    std::string names;
    for (const int ordinal : insert.columns) {
        names += (names.empty() ? "" : ",") + quoted_name(column_at(insert, ordinal).name);
    }
    for (const auto& [ordinal, value] : insert.defaults) {
        names += (names.empty() ? "" : ",") + quoted_name(column_at(insert, ordinal).name);
    }
    if (names.empty()) {
        return finish(text + " DEFAULT VALUES");
    }
    text += "(" + names + ")" + insert_source(insert, insert.columns);
    return finish(std::move(text));
}

// OUTPUT: the new rows with the old ones beside them, in the order they were written.
SqlText Emitter::output(const BoundChange& change, DmlKind kind) {
    const auto& select = static_cast<const BoundSelect&>(*change.output->body);
    const RangeTable& inserted = *select.from[0]->table;
    const RangeTable& deleted = *select.from[1]->table;
    const RangeTable& first = kind == DmlKind::Delete ? deleted : inserted;
    const RangeTable& second = kind == DmlKind::Delete ? inserted : deleted;
    std::string list;
    std::string columns;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const BoundPtr& value = select.items[i].expression;
        list += (i == 0 ? "" : ",") +
                (change.output_into ? stored_value(value, value->type) : value_of(value).text);
        if (change.output_into) {
            const auto ordinal = static_cast<std::size_t>(change.output_columns[i]);
            columns += (i == 0 ? "" : ",") + quoted_name(change.output_into->columns[ordinal].name);
        }
    }
    std::string text = "SELECT " + list + " FROM " + table_text(first) + " LEFT JOIN " +
                       table_text(second) + " ON " + alias_of(first) +
                       ".zf_rowid=" + alias_of(second) + ".zf_rowid ORDER BY " + alias_of(first) +
                       ".zf_rowid";
    if (change.output_into) {
        text = "INSERT INTO " + stored_table(*change.output_into) + "(" + columns + ") " + text;
    }
    return finish(std::move(text));
}

} // namespace tsql::sqlite
