// SELECT, INSERT, UPDATE, DELETE: the main text and what goes before and after it.
#include "tsql/binder/table_builder.h"
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/definition.h"
#include "tsql/planner/planner.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

bool assigns(const QueryStatement& statement) {
    const auto* select = statement.query.body->kind == QueryBodyKind::Select
                             ? &as<Select>(*statement.query.body)
                             : nullptr;
    return select != nullptr && !select->items.empty() &&
           std::any_of(select->items.begin(), select->items.end(), [](const SelectItem& item) {
               return item.kind == SelectItemKind::Assignment;
           });
}

const Select* select_of(const QueryBody& body) {
    return body.kind == QueryBodyKind::Select ? &as<Select>(body)
                                              : select_of(*as<SetOperation>(body).branches.front());
}

bool in_unique_key(const CatalogTable& table, const std::vector<BoundSet>& set) {
    for (const CatalogIndex& index : table.indexes) {
        for (const int column : index.columns) {
            const bool changed = std::any_of(set.begin(), set.end(),
                                             [&](const BoundSet& s) { return s.column == column; });
            if (index.unique && changed) {
                return true;
            }
        }
    }
    return false;
}

std::vector<int> all_columns(const CatalogTable& table) {
    std::vector<int> ordinals;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        ordinals.push_back(static_cast<int>(i));
    }
    return ordinals;
}

} // namespace

SqlQuery Planner::query_of(const BoundQuery& query) {
    SqlQuery result;
    result.sql = emitter().query(query, result.order);
    for (const RangeColumn& column : query.columns) {
        result.columns.push_back(
            {column.name, column.type.is_null() ? Type::integer() : column.type, column.nullable});
    }
    return result;
}

void Planner::query(const QueryStatement& statement, Steps& out) {
    const Select* first = select_of(*statement.query.body);
    if (first->into) {
        select_into(statement, *first->into, out);
        return;
    }
    BindContext bind = context();
    Binder binder(bind);
    if (assigns(statement)) {
        const BoundAssign bound = binder.bind_assignment_query(statement.query);
        SqlAssign step;
        step.sql = emitter().query(*bound.query);
        step.slots = bound.slots;
        add_fills(bind, out);
        add(statement, std::move(step), out);
        return;
    }
    const auto bound = binder.bind_query(statement.query, nullptr, true);
    SqlQuery step = query_of(*bound);
    add_fills(bind, out);
    add(statement, std::move(step), out);
}

void Planner::select_into(const QueryStatement& statement, const ObjectName& into, Steps& out) {
    const std::string& name = into.object().text;
    if (catalog_.find(name)) {
        throw Refusal(2714, into.at,
                      "There is already an object named '" + name + "' in the database.");
    }
    BindContext bind = context();
    Binder binder(bind);
    literals_.exact_lengths = true;
    auto bound = binder.bind_query(statement.query, nullptr, true);
    literals_.exact_lengths = false;
    auto table = std::make_shared<CatalogTable>(name, std::string());
    table->temporary = name.starts_with('#');
    table->stored_name = name;
    BoundInsert insert;
    for (const RangeColumn& column : bound->columns) {
        if (column.name.empty() || table->find_column(column.name) >= 0) {
            throw Refusal(column.name.empty() ? 1038 : 2705, into.at,
                          "Every column of the new table needs a name of its own.");
        }
        CatalogColumn made;
        made.name = column.name;
        made.type = column.type.is_null() ? Type::integer() : column.type;
        made.nullable = true;
        insert.columns.push_back(static_cast<int>(table->columns.size()));
        table->columns.push_back(std::move(made));
    }
    table->definition = table_text(*table);
    Ddl ddl;
    ddl.sql = {sqlite::create_table(*table, binder, false)};
    ddl.change.temporary = table->temporary;
    ddl.change.put = {table};
    insert.table = table;
    insert.query = std::move(bound);
    SqlDml dml;
    dml.table = name;
    dml.main = emitter().insert(insert, false);
    add_fills(bind, out);
    add(statement, std::move(ddl), out);
    add(statement, std::move(dml), out);
    if (table->temporary) {
        variables_.tables[name] = table;
    } else {
        changes_catalog = true;
    }
}

void Planner::prepare_copies(const CatalogTable& table, SqlDml& dml) {
    for (const bool inserted : {true, false}) {
        dml.prepare.push_back({sqlite::create_copy(table, inserted), {}});
        dml.prepare.push_back({"DELETE FROM temp." + quoted_name(copy_name(table, inserted)), {}});
    }
}

SqlText Planner::collect_rows(const CatalogTable& table, const std::string& condition,
                              bool by_mark) {
    std::string names;
    for (const CatalogColumn& column : table.columns) {
        if (column.computed.empty()) {
            names += "," + quoted_name(column.name);
        }
    }
    SqlText text{"INSERT INTO temp." + quoted_name(copy_name(table, true)) + "(zf_rowid" + names +
                     ") SELECT rowid" + names + " FROM " + sqlite::stored_table(table) + " WHERE " +
                     condition,
                 {}};
    if (by_mark) {
        PlanParameter mark;
        mark.source = ParameterSource::RowMark;
        mark.type = Type::of(TypeKind::BigInt);
        mark.to = mark.type;
        text.parameters.push_back(mark);
    }
    return text;
}

void Planner::add_output(const BoundChange& change, SqlDml& dml) {
    if (!change.output) {
        return;
    }
    SqlText text = emitter().output(change, dml.kind);
    if (change.output_into) {
        dml.collect.push_back(std::move(text));
        return;
    }
    SqlQuery output;
    output.sql = std::move(text);
    for (const RangeColumn& column : change.output->columns) {
        output.columns.push_back({column.name, column.type, true});
    }
    dml.output = std::move(output);
}

void Planner::insert(const Insert& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    const BoundInsert bound = binder.bind_insert(statement);
    SqlDml dml;
    dml.table = bound.table->name;
    dml.triggers = bound.triggers;
    dml.updated_columns = all_columns(*bound.table);
    const bool captures = !bound.triggers.empty() || bound.output;
    if (captures) {
        prepare_copies(*bound.table, dml);
    }
    dml.main = emitter().insert(bound, bound.instead_of);
    if (captures && !bound.instead_of) {
        dml.row_mark =
            SqlText{"SELECT coalesce(max(rowid),0) FROM " + sqlite::stored_table(*bound.table), {}};
        dml.collect.push_back(collect_rows(*bound.table, "rowid>?1", true));
    }
    add_output(bound, dml);
    add_fills(bind, out);
    if (!bound.executes) {
        add(statement, std::move(dml), out);
        return;
    }
    if (captures) {
        throw Refusal(102, statement.at,
                      "INSERT … EXEC into a table with triggers or with OUTPUT is not supported; "
                      "insert into a temporary table first.");
    }
    InsertExecute step;
    step.columns = static_cast<int>(bound.columns.size());
    plan(*statement.execute, step.execute, false);
    add(statement, std::move(dml), step.insert);
    add(statement, std::move(step), out);
}

void Planner::update(const Update& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    const BoundUpdate bound = binder.bind_update(statement);
    if (bound.instead_of) {
        throw Refusal(102, statement.at,
                      "INSTEAD OF UPDATE triggers are not supported; use AFTER.");
    }
    SqlDml dml;
    dml.kind = DmlKind::Update;
    dml.table = bound.table->name;
    dml.triggers = bound.triggers;
    for (const BoundSet& set : bound.set) {
        dml.updated_columns.push_back(set.column);
    }
    const bool captures = !bound.triggers.empty() || bound.output;
    const bool skip = !captures && !exact_row_counts && !bound.top;
    sqlite::Emitter main = emitter();
    dml.main = main.update(bound, skip);
    dml.repeatable = skip && !main.is_volatile();
    if (captures) {
        prepare_copies(*bound.table, dml);
        dml.prepare.push_back(emitter().fill_old_rows(bound));
        dml.collect.push_back(collect_rows(*bound.table,
                                           "rowid IN (SELECT zf_rowid FROM temp." +
                                               quoted_name(copy_name(*bound.table, false)) + ")",
                                           false));
    }
    if (in_unique_key(*bound.table, bound.set)) {
        dml.unique_retry = emitter().update_in_turns(bound);
    }
    add_output(bound, dml);
    add_fills(bind, out);
    add(statement, std::move(dml), out);
}

void Planner::remove(const Delete& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    const BoundDelete bound = binder.bind_delete(statement);
    SqlDml dml;
    dml.kind = DmlKind::Delete;
    dml.table = bound.table->name;
    dml.triggers = bound.triggers;
    const bool captures = !bound.triggers.empty() || bound.output;
    if (captures) {
        prepare_copies(*bound.table, dml);
        dml.prepare.push_back(emitter().fill_old_rows(bound));
    }
    dml.main = emitter().remove(bound, captures);
    if (bound.instead_of) {
        dml.main = SqlText{"SELECT 1 WHERE 0", {}};
        dml.count =
            SqlText{"SELECT count(*) FROM temp." + quoted_name(copy_name(*bound.table, false)), {}};
    }
    add_output(bound, dml);
    add_fills(bind, out);
    add(statement, std::move(dml), out);
}

void Planner::truncate(const Truncate& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    const auto table = binder.table_named(statement.target);
    if (!table) {
        binder.refuse_object(statement.target);
    }
    for (const auto& [name, object] : catalog_.objects()) {
        if (object->kind != CatalogKind::Table) {
            continue;
        }
        for (const auto& key : static_cast<const CatalogTable&>(*object).foreign_keys) {
            if (same_name(key.parent, table->name)) {
                throw Refusal(4712, statement.at,
                              "Cannot truncate table '" + table->name +
                                  "' because it is being referenced by a FOREIGN KEY constraint.");
            }
        }
    }
    SqlDml dml;
    dml.kind = DmlKind::Delete;
    dml.table = table->name;
    dml.main = SqlText{"DELETE FROM " + sqlite::stored_table(*table), {}};
    dml.resets_identity = true;
    add(statement, std::move(dml), out);
}

} // namespace tsql
