// CREATE TABLE: columns with their types, keys and rules, as the catalogue keeps them.
#include "tsql/binder/binder.h"
#include "tsql/binder/table_builder.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

std::string cut(std::string_view text, const Expression& expression) {
    return std::string(expression.at.text(text));
}

int column_ordinal(const CatalogTable& table, const Name& name) {
    const int ordinal = table.find_column(name.text);
    if (ordinal < 0) {
        throw Refusal(1911, name.at,
                      "Column name '" + name.text +
                          "' does not exist in the target table or view.");
    }
    return ordinal;
}

// A name the server would make up; a number keeps it apart from those already there.
std::string chosen_name(const CatalogTable& table, const char* prefix, const std::string& rest) {
    const std::string base = std::string(prefix) + table.name + (rest.empty() ? "" : "_") + rest;
    std::string name = base;
    const auto taken = [&](const std::string& candidate) {
        const auto same = [&](const auto& object) { return same_name(object.name, candidate); };
        return std::any_of(table.indexes.begin(), table.indexes.end(), same) ||
               std::any_of(table.checks.begin(), table.checks.end(), same) ||
               std::any_of(table.foreign_keys.begin(), table.foreign_keys.end(), same);
    };
    for (int n = 2; taken(name); ++n) {
        name = base + std::to_string(n);
    }
    return name;
}

} // namespace

TableBuilder::TableBuilder(Binder& binder, CatalogTable& table, std::string_view text, bool trusted)
    : binder_(binder), table_(table), text_(text), trusted_(trusted) {}

void TableBuilder::add_key(const Constraint& constraint, int own_column) {
    CatalogIndex index;
    index.primary = constraint.kind == ConstraintKind::PrimaryKey;
    index.constraint = true;
    index.unique = true;
    std::string columns;
    if (own_column >= 0) {
        index.columns.push_back(own_column);
        index.descending.push_back(false);
    }
    for (const IndexColumn& column : constraint.columns) {
        index.columns.push_back(column_ordinal(table_, column.name));
        index.descending.push_back(column.descending);
    }
    for (const int ordinal : index.columns) {
        CatalogColumn& column = table_.columns[static_cast<std::size_t>(ordinal)];
        columns += (columns.empty() ? "" : "_") + column.name;
        if (index.primary) {
            column.nullable = false;
        }
    }
    const bool second = index.primary && std::any_of(table_.indexes.begin(), table_.indexes.end(),
                                                     [](const auto& i) { return i.primary; });
    if (second) {
        throw Refusal(1779, constraint.at,
                      "Table '" + table_.name + "' already has a primary key defined on it.");
    }
    index.name = !constraint.name.empty() ? constraint.name.text
                 : index.primary          ? chosen_name(table_, "PK_", "")
                                          : chosen_name(table_, "UQ_", columns);
    table_.indexes.push_back(std::move(index));
}

void TableBuilder::add_check(const Constraint& constraint) {
    table_.checks.push_back(
        {constraint.name.empty() ? chosen_name(table_, "CK_", "") : constraint.name.text,
         cut(text_, *constraint.expression)});
    if (trusted_) {
        return;
    }
    // Bound now, so that a bad column is refused here and not when rows come.
    Scope scope;
    scope.tables.push_back(
        binder_.range_of_table(std::make_shared<CatalogTable>(table_), table_.name, constraint.at));
    binder_.bind_condition(*constraint.expression, scope);
}

void TableBuilder::add_foreign_key(const Constraint& constraint, int own_column) {
    const std::string& parent_name = constraint.references.table.object().text;
    const bool itself = same_name(parent_name, table_.name);
    const auto stored = binder_.context().catalog.find_table(parent_name);
    const CatalogTable* parent = itself ? &table_ : stored.get();
    if (parent == nullptr && !trusted_) {
        throw Refusal(1767, constraint.references.table.at,
                      "Foreign key references invalid table '" + parent_name + "'.");
    }
    CatalogForeignKey key;
    key.parent = parent == nullptr ? parent_name : parent->name;
    if (own_column >= 0) {
        key.columns.push_back(own_column);
    }
    for (const IndexColumn& column : constraint.columns) {
        key.columns.push_back(column_ordinal(table_, column.name));
    }
    for (const Name& column : constraint.references.columns) {
        key.parent_columns.push_back(
            trusted_
                ? column.text
                : parent->columns[static_cast<std::size_t>(column_ordinal(*parent, column))].name);
    }
    if (key.parent_columns.empty() && parent != nullptr) {
        for (const CatalogIndex& index : parent->indexes) {
            for (std::size_t i = 0; index.primary && i < index.columns.size(); ++i) {
                key.parent_columns.push_back(
                    parent->columns[static_cast<std::size_t>(index.columns[i])].name);
            }
        }
    }
    if (key.parent_columns.size() != key.columns.size()) {
        throw Refusal(1776, constraint.at,
                      "There are no primary or candidate keys in the referenced table '" +
                          parent_name + "' that match the referencing column list.");
    }
    key.on_delete = static_cast<int>(constraint.references.on_delete);
    key.on_update = static_cast<int>(constraint.references.on_update);
    key.name =
        constraint.name.empty() ? chosen_name(table_, "FK_", parent->name) : constraint.name.text;
    table_.foreign_keys.push_back(std::move(key));
}

void TableBuilder::add_default(const Constraint& constraint, int own_column) {
    const int ordinal =
        own_column >= 0 ? own_column : column_ordinal(table_, constraint.default_for);
    CatalogColumn& column = table_.columns[static_cast<std::size_t>(ordinal)];
    if (!column.default_text.empty()) {
        throw Refusal(1781, constraint.at, "Column already has a DEFAULT bound to it.");
    }
    column.default_text = cut(text_, *constraint.expression);
    column.default_name =
        constraint.name.empty() ? "DF_" + table_.name + "_" + column.name : constraint.name.text;
}

void TableBuilder::add_constraint(const Constraint& constraint, int own_column) {
    switch (constraint.kind) {
    case ConstraintKind::PrimaryKey:
    case ConstraintKind::Unique: add_key(constraint, own_column); break;
    case ConstraintKind::Check: add_check(constraint); break;
    case ConstraintKind::ForeignKey: add_foreign_key(constraint, own_column); break;
    case ConstraintKind::Default: add_default(constraint, own_column); break;
    }
}

void TableBuilder::add_column(const ColumnDefinition& definition) {
    if (table_.find_column(definition.name.text) >= 0) {
        throw Refusal(2705, definition.name.at,
                      "Column names in each table must be unique. Column name '" +
                          definition.name.text + "' in table '" + table_.name +
                          "' is specified more than once.");
    }
    CatalogColumn column;
    column.name = definition.name.text;
    if (definition.computed) {
        column.computed = cut(text_, *definition.computed);
        Scope scope;
        scope.tables.push_back(binder_.range_of_table(std::make_shared<CatalogTable>(table_),
                                                      table_.name, definition.at));
        const BoundPtr value = binder_.bind_value(*definition.computed, scope);
        column.type = value->type;
    } else {
        column.type = binder_.bind_type(definition.type, 1);
        column.nullable = definition.nullable.value_or(true);
        if (definition.identity) {
            column.identity =
                IdentityColumn{definition.identity->seed, definition.identity->increment};
            column.nullable = false;
        }
        if (definition.collation) {
            column.collation = fold_name(definition.collation->text);
        }
    }
    table_.columns.push_back(std::move(column));
}

void TableBuilder::add(const TableDefinition& definition) {
    const std::size_t before = table_.columns.size();
    for (const ColumnDefinition& column : definition.columns) {
        add_column(column);
    }
    for (std::size_t i = 0; i < definition.columns.size(); ++i) {
        for (const Constraint& constraint : definition.columns[i].constraints) {
            add_constraint(constraint,
                           constraint.columns.empty() ? static_cast<int>(before + i) : -1);
        }
    }
    for (const Constraint& constraint : definition.constraints) {
        add_constraint(constraint, -1);
    }
}

// What the table is made of is part of the name: a variable of the same name in the next batch, or
// in a routine that was altered, is another table.
std::string Binder::variable_table_name(const std::string& owner, const CatalogTable& table) {
    return "@" + owner + table.name + ":" + mark_of(table_text(table));
}

std::shared_ptr<CatalogTable> Binder::bind_table(const std::string& name,
                                                 const TableDefinition& definition,
                                                 std::string_view text) {
    auto table = std::make_shared<CatalogTable>(name, std::string());
    table->temporary = name.starts_with('#') || name.starts_with('@');
    table->stored_name = name;
    TableBuilder(*this, *table, text).add(definition);
    if (name.starts_with('@')) {
        table->stored_name = variable_table_name(context_.variables.owner, *table);
    }
    if (!table->temporary) {
        table->definition = table_text(*table);
    }
    return table;
}

} // namespace tsql
