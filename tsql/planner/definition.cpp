// CREATE and DROP of everything; ALTER of modules.
#include "tsql/emit/sqlite/definition.h"
#include "tsql/binder/table_builder.h"
#include "tsql/emit/common/quote.h"
#include "tsql/planner/planner.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

[[noreturn]] void refuse_existing(const ObjectName& name) {
    throw Refusal(2714, name.at,
                  "There is already an object named '" + name.object().text + "' in the database.");
}

CatalogKind catalog_kind(ObjectKind kind) {
    switch (kind) {
    case ObjectKind::Table: return CatalogKind::Table;
    case ObjectKind::View: return CatalogKind::View;
    case ObjectKind::Function: return CatalogKind::Function;
    case ObjectKind::Procedure: return CatalogKind::Procedure;
    case ObjectKind::Trigger: return CatalogKind::Trigger;
    }
    return CatalogKind::Table;
}

const char* kind_word(ObjectKind kind) {
    switch (kind) {
    case ObjectKind::Table: return "table";
    case ObjectKind::View: return "view";
    case ObjectKind::Function: return "function";
    case ObjectKind::Procedure: return "procedure";
    case ObjectKind::Trigger: return "trigger";
    }
    return "object";
}

} // namespace

void Planner::create_table(const CreateTable& statement, Steps& out) {
    const std::string& name = statement.name.object().text;
    const bool temporary = statement.name.is_temporary();
    if (catalog_.find(name)) {
        refuse_existing(statement.name);
    }
    BindContext bind = context();
    // Expressions of a definition are kept as text; nothing of them becomes a parameter.
    const bool of_text = literals_.of_text;
    literals_.of_text = false;
    Binder binder(bind);
    const auto table = binder.bind_table(name, statement.definition, *text);
    Ddl ddl;
    ddl.sql.push_back(sqlite::create_table(*table, binder, false));
    for (const CatalogIndex& index : table->indexes) {
        for (std::string& made : sqlite::create_index(*table, index, binder)) {
            ddl.sql.push_back(std::move(made));
        }
    }
    literals_.of_text = of_text;
    ddl.change.temporary = temporary;
    ddl.change.put.push_back(table);
    if (temporary) {
        variables_.tables[name] = table;
    } else {
        changes_catalog = true;
    }
    add(statement, std::move(ddl), out);
}

void Planner::create_index(const CreateIndex& statement, Steps& out) {
    BindContext bind = context();
    const bool of_text = literals_.of_text;
    literals_.of_text = false;
    Binder binder(bind);
    const auto old = binder.table_named(statement.table);
    if (!old) {
        throw Refusal(1088, statement.table.at,
                      "Cannot find the object \"" + statement.table.object().text +
                          "\" because it does not exist or you do not have permissions.");
    }
    auto table = std::make_shared<CatalogTable>(*old);
    CatalogIndex index;
    index.name = statement.name.text;
    index.unique = statement.unique;
    for (const CatalogIndex& other : table->indexes) {
        if (same_name(other.name, index.name)) {
            throw Refusal(1913, statement.name.at,
                          "The operation failed because an index or statistics with name '" +
                              index.name + "' already exists on table '" + table->name + "'.");
        }
    }
    for (const IndexColumn& column : statement.columns) {
        const int ordinal = table->find_column(column.name.text);
        if (ordinal < 0) {
            throw Refusal(1911, column.name.at,
                          "Column name '" + column.name.text +
                              "' does not exist in the target table or view.");
        }
        index.columns.push_back(ordinal);
        index.descending.push_back(column.descending);
    }
    if (statement.where) {
        index.filter = std::string(source(statement.where->at));
    }
    Ddl ddl;
    ddl.sql = sqlite::create_index(*table, index, binder);
    literals_.of_text = of_text;
    table->indexes.push_back(std::move(index));
    ddl.change.temporary = table->temporary;
    if (!table->temporary) {
        table->definition = table_text(*table);
        changes_catalog = true;
    }
    ddl.change.put.push_back(std::move(table));
    add(statement, std::move(ddl), out);
}

void Planner::drop_index(const DropIndex& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    for (const DropIndex::Target& target : statement.targets) {
        const auto old = binder.table_named(target.table);
        const auto found = old ? std::find_if(old->indexes.begin(), old->indexes.end(),
                                              [&](const CatalogIndex& index) {
                                                  return same_name(index.name, target.index.text);
                                              })
                               : std::vector<CatalogIndex>::const_iterator();
        if (!old || found == old->indexes.end()) {
            if (statement.if_exists) {
                continue;
            }
            throw Refusal(3701, target.index.at,
                          "Cannot drop the index '" + target.index.text +
                              "', because it does not exist or you do not have permission.");
        }
        if (found->constraint) {
            throw Refusal(3723, target.index.at,
                          "An explicit DROP INDEX is not allowed on index '" + found->name +
                              "'. It is being used for constraint enforcement.");
        }
        auto table = std::make_shared<CatalogTable>(*old);
        Ddl ddl;
        ddl.sql = sqlite::drop_index(*old, *found);
        table->indexes.erase(table->indexes.begin() + (found - old->indexes.begin()));
        ddl.change.temporary = table->temporary;
        table->definition = table->temporary ? std::string() : table_text(*table);
        ddl.change.put.push_back(std::move(table));
        changes_catalog = true;
        add(statement, std::move(ddl), out);
    }
}

void Planner::drop(const Drop& statement, Steps& out) {
    for (const ObjectName& name : statement.names) {
        const std::string& written = name.object().text;
        if (name.is_temporary()) {
            const auto local = variables_.tables.find(written);
            const bool known = local != variables_.tables.end() || catalog_.find(written);
            if (!known && !statement.if_exists) {
                throw Refusal(3701, name.at,
                              "Cannot drop the table '" + written +
                                  "', because it does not exist "
                                  "or you do not have permission.");
            }
            Ddl ddl;
            ddl.sql = {"DROP TABLE " + std::string(statement.if_exists ? "IF EXISTS " : "") +
                       "temp." + quoted_name(written)};
            ddl.change.temporary = true;
            ddl.change.drop = {written};
            variables_.tables.erase(written);
            add(statement, std::move(ddl), out);
            continue;
        }
        const auto object = catalog_.find(written);
        if (!object || object->kind != catalog_kind(statement.object)) {
            changes_catalog = true;
            if (statement.if_exists) {
                continue;
            }
            throw Refusal(3701, name.at,
                          std::string("Cannot drop the ") + kind_word(statement.object) + " '" +
                              written +
                              "', because it does not exist or you do not have "
                              "permission.");
        }
        Ddl ddl;
        ddl.change.drop = {object->name};
        if (object->kind == CatalogKind::Table) {
            for (const auto& [key, other] : catalog_.objects()) {
                if (other->kind != CatalogKind::Table || other == object) {
                    continue;
                }
                for (const auto& foreign : static_cast<const CatalogTable&>(*other).foreign_keys) {
                    if (same_name(foreign.parent, object->name)) {
                        throw Refusal(3726, name.at,
                                      "Could not drop object '" + written +
                                          "' because it is referenced by a FOREIGN KEY "
                                          "constraint.");
                    }
                }
            }
            ddl.sql = {"DROP TABLE " +
                       quoted_name(static_cast<const CatalogTable&>(*object).stored_name)};
            for (const auto& trigger : catalog_.triggers_of(object->name)) {
                ddl.change.drop.push_back(trigger->name);
            }
        }
        changes_catalog = true;
        add(statement, std::move(ddl), out);
    }
}

void Planner::create_module(const Statement& statement, CatalogKind kind, DefinitionMode mode,
                            const ObjectName& name, Steps& out) {
    const std::string& written = name.object().text;
    const auto old = catalog_.find(written);
    if (old && (mode == DefinitionMode::Create || old->kind != kind)) {
        refuse_existing(name);
    }
    if (!old && mode == DefinitionMode::Alter) {
        throw Refusal(208, name.at, "Invalid object name '" + written + "'.");
    }
    const std::string definition(source(statement.at));
    std::shared_ptr<CatalogModule> module;
    if (kind == CatalogKind::Trigger) {
        const auto& trigger = as<CreateTrigger>(statement);
        auto made = std::make_shared<CatalogTrigger>(old ? old->name : written, definition);
        const auto table = catalog_.find_table(trigger.table.object().text);
        if (!table) {
            throw Refusal(8197, trigger.table.at,
                          "The object '" + trigger.table.object().text +
                              "' does not exist or is invalid for this operation.");
        }
        made->table = table->name;
        made->instead_of = trigger.instead_of;
        made->on_insert = trigger.on_insert;
        made->on_update = trigger.on_update;
        made->on_delete = trigger.on_delete;
        module = std::move(made);
    } else {
        module = std::make_shared<CatalogModule>(kind, old ? old->name : written, definition);
    }
    if (kind == CatalogKind::View) {
        // Bound once now, so that a bad column is refused here; and its columns need names.
        BindContext bind = context();
        const bool of_text = literals_.of_text;
        literals_.of_text = false;
        bind.views_open.push_back(written);
        NamedTable use;
        const auto& view = as<CreateView>(statement);
        const auto query = Binder(bind).bind_query(*view.query, nullptr, false);
        for (std::size_t i = 0; i < query->columns.size(); ++i) {
            if (view.columns.empty() && query->columns[i].name.empty()) {
                throw Refusal(4511, view.name.at,
                              "Create View or Function failed because no column name was "
                              "specified for column " +
                                  std::to_string(i + 1) + ".");
            }
        }
        literals_.of_text = of_text;
    }
    Ddl ddl;
    ddl.change.put.push_back(std::move(module));
    changes_catalog = true;
    add(statement, std::move(ddl), out);
}

} // namespace tsql
