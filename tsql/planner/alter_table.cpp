// ALTER TABLE: new columns and keys are added in place; checks, foreign keys and types change the
// table's declaration after its rows were tested or converted.
#include "tsql/binder/table_builder.h"
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/definition.h"
#include "tsql/emit/sqlite/fragment.h"
#include "tsql/planner/planner.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

void append(std::vector<std::string>& to, std::vector<std::string> from) {
    for (std::string& text : from) {
        to.push_back(std::move(text));
    }
}

bool part_of_key(const CatalogTable& table, int column) {
    const auto holds = [&](const auto& key) {
        return std::find(key.columns.begin(), key.columns.end(), column) != key.columns.end();
    };
    return std::any_of(table.indexes.begin(), table.indexes.end(), holds) ||
           std::any_of(table.foreign_keys.begin(), table.foreign_keys.end(), holds);
}

template <typename List> bool erase_named(List& list, const std::string& name) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const auto& item) { return same_name(item.name, name); });
    if (found == list.end()) {
        return false;
    }
    list.erase(found);
    return true;
}

} // namespace

void Planner::add_to_table(const AlterTable& statement, CatalogTable& table, Ddl& ddl) {
    const std::size_t columns = table.columns.size();
    const std::size_t indexes = table.indexes.size();
    const std::size_t rules = table.checks.size() + table.foreign_keys.size();
    BindContext bind = context();
    Binder binder(bind);
    TableBuilder(binder, table, *text).add(statement.add);
    const std::string name = quoted_name(table.stored_name);
    for (std::size_t i = columns; i < table.columns.size(); ++i) {
        const CatalogColumn& column = table.columns[i];
        if (!column.computed.empty()) {
            continue;
        }
        if (column.identity) {
            throw Refusal(102, statement.at,
                          "An identity column can only be made by CREATE TABLE.");
        }
        std::string text = "ALTER TABLE " + name + " ADD COLUMN " + sqlite::declared_column(column);
        if (!column.nullable && column.default_text.empty()) {
            throw Refusal(4901, statement.at,
                          "ALTER TABLE only allows columns to be added that can contain nulls, or "
                          "have a DEFAULT definition specified.");
        }
        if (!column.default_text.empty() && !column.nullable) {
            Scope none;
            const BoundPtr value =
                binder.convert(binder.bind_text(column.default_text, none, false), column.type,
                               ConvertMode::Assign);
            SqlQuery constant;
            constant.sql = emitter().values({value});
            constant.columns.push_back({"", column.type, true});
            text += " NOT NULL DEFAULT {" + std::to_string(ddl.constants.size()) + "}";
            ddl.constants.push_back(std::move(constant));
        }
        ddl.sql.push_back(std::move(text));
    }
    for (std::size_t i = indexes; i < table.indexes.size(); ++i) {
        append(ddl.sql, sqlite::create_index(table, table.indexes[i], binder));
    }
    const bool new_primary =
        std::any_of(table.indexes.begin() + static_cast<std::ptrdiff_t>(indexes),
                    table.indexes.end(), [](const CatalogIndex& index) { return index.primary; });
    if (table.checks.size() + table.foreign_keys.size() > rules || new_primary) {
        // Rows that are there already must obey: writing them unchanged tests them.
        append(ddl.sql, sqlite::redeclare(table, binder));
        for (const CatalogColumn& column : table.columns) {
            if (column.computed.empty()) {
                const std::string quoted = quoted_name(column.name);
                ddl.sql.push_back("UPDATE " + name + " SET " + quoted + "=" + quoted);
                break;
            }
        }
    }
}

void Planner::alter_column(const AlterTable& statement, CatalogTable& table, Ddl& ddl) {
    const ColumnDefinition& definition = statement.add.columns.front();
    const int ordinal = table.find_column(definition.name.text);
    if (ordinal < 0) {
        throw Refusal(4924, definition.name.at,
                      "ALTER TABLE ALTER COLUMN failed because column '" + definition.name.text +
                          "' does not exist in table '" + table.name + "'.");
    }
    CatalogColumn& column = table.columns[static_cast<std::size_t>(ordinal)];
    BindContext bind = context();
    Binder binder(bind);
    const Type from = column.type;
    column.type = binder.bind_type(definition.type, 1);
    column.nullable = definition.nullable.value_or(true);
    append(ddl.sql, sqlite::redeclare(table, binder));
    const std::string name = quoted_name(column.name);
    std::string value = name;
    if (from != column.type) {
        value = "zf_assign(" + name + "," + std::to_string(from.packed()) + "," +
                std::to_string(column.type.packed()) + ")";
    }
    ddl.sql.push_back("UPDATE " + quoted_name(table.stored_name) + " SET " + name + "=" + value);
}

void Planner::drop_columns(const AlterTable& statement, CatalogTable& table, Ddl& ddl) {
    for (const Name& name : statement.names) {
        const int ordinal = table.find_column(name.text);
        if (ordinal < 0) {
            if (statement.if_exists) {
                continue;
            }
            throw Refusal(4924, name.at,
                          "ALTER TABLE DROP COLUMN failed because column '" + name.text +
                              "' does not exist in table '" + table.name + "'.");
        }
        if (part_of_key(table, ordinal)) {
            throw Refusal(5074, name.at,
                          "A key or an index is dependent on column '" + name.text + "'.");
        }
        const bool stored = table.columns[static_cast<std::size_t>(ordinal)].computed.empty();
        if (stored) {
            ddl.sql.push_back("ALTER TABLE " + quoted_name(table.stored_name) + " DROP COLUMN " +
                              quoted_name(name.text));
        }
        table.columns.erase(table.columns.begin() + ordinal);
        const auto shift = [&](auto& keys) {
            for (auto& key : keys) {
                for (int& column : key.columns) {
                    column -= column > ordinal ? 1 : 0;
                }
            }
        };
        shift(table.indexes);
        shift(table.foreign_keys);
    }
}

void Planner::drop_constraints(const AlterTable& statement, CatalogTable& table, Ddl& ddl) {
    BindContext bind = context();
    Binder binder(bind);
    for (const Name& name : statement.names) {
        const auto index = std::find_if(
            table.indexes.begin(), table.indexes.end(),
            [&](const CatalogIndex& candidate) { return same_name(candidate.name, name.text); });
        if (index != table.indexes.end() && index->constraint) {
            append(ddl.sql, sqlite::drop_index(table, *index));
            table.indexes.erase(index);
            continue;
        }
        const auto column = std::find_if(table.columns.begin(), table.columns.end(),
                                         [&](const CatalogColumn& candidate) {
                                             return !candidate.default_text.empty() &&
                                                    same_name(candidate.default_name, name.text);
                                         });
        if (column != table.columns.end()) {
            column->default_text.clear();
            column->default_name.clear();
            continue;
        }
        if (!erase_named(table.checks, name.text) && !erase_named(table.foreign_keys, name.text)) {
            throw Refusal(3728, name.at, "'" + name.text + "' is not a constraint.");
        }
        append(ddl.sql, sqlite::redeclare(table, binder));
    }
}

void Planner::switch_triggers(const AlterTable& statement, const CatalogTable& table, Ddl& ddl) {
    for (const auto& trigger : catalog_.triggers_of(table.name)) {
        const bool named =
            std::any_of(statement.names.begin(), statement.names.end(),
                        [&](const Name& name) { return same_name(name.text, trigger->name); });
        if (statement.all || named) {
            auto changed = std::make_shared<CatalogTrigger>(*trigger);
            changed->disabled = statement.action == AlterTableAction::DisableTrigger;
            ddl.change.put.push_back(std::move(changed));
        }
    }
}

void Planner::alter_table(const AlterTable& statement, Steps& out) {
    const auto old = catalog_.find_table(statement.name.object().text);
    if (!old) {
        throw Refusal(4902, statement.name.at,
                      "Cannot find the object \"" + statement.name.object().text +
                          "\" because it does not exist or you do not have permissions.");
    }
    auto table = std::make_shared<CatalogTable>(*old);
    const bool of_text = literals_.of_text;
    literals_.of_text = false;
    Ddl ddl;
    switch (statement.action) {
    case AlterTableAction::Add: add_to_table(statement, *table, ddl); break;
    case AlterTableAction::AlterColumn: alter_column(statement, *table, ddl); break;
    case AlterTableAction::DropColumn: drop_columns(statement, *table, ddl); break;
    case AlterTableAction::DropConstraint: drop_constraints(statement, *table, ddl); break;
    case AlterTableAction::EnableTrigger:
    case AlterTableAction::DisableTrigger: switch_triggers(statement, *table, ddl); break;
    case AlterTableAction::CheckConstraint: break; // constraints are never off
    case AlterTableAction::NoCheckConstraint:
        throw Refusal(102, statement.at,
                      "NOCHECK CONSTRAINT is not supported; drop the constraint instead.");
    }
    literals_.of_text = of_text;
    ddl.change.temporary = table->temporary;
    if (!table->temporary) {
        table->definition = table_text(*table);
        changes_catalog = true;
    }
    ddl.change.put.push_back(std::move(table));
    add(statement, std::move(ddl), out);
}

} // namespace tsql
