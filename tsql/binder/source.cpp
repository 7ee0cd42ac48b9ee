// The tables of FROM: stored tables, views, derived tables, common table expressions, joins.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

int Variables::find(std::string_view name) const {
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (same_name(slots[i].name, name)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void Binder::refuse_object(const ObjectName& name) {
    std::vector<std::string_view> candidates;
    for (const auto& [key, object] : context_.catalog.objects()) {
        if (object->kind == CatalogKind::Table || object->kind == CatalogKind::View) {
            candidates.push_back(object->name);
        }
    }
    const std::string& text = name.object().text;
    throw Refusal(208, name.at,
                  "Invalid object name '" + text + "'" + near_misses(text, candidates) + ".");
}

std::shared_ptr<const CatalogTable> Binder::table_named(const ObjectName& name) {
    const std::string& text = name.object().text;
    if (name.is_variable()) {
        const auto found = context_.variables.tables.find(text);
        if (found == context_.variables.tables.end()) {
            throw Refusal(1087, name.at, "Must declare the table variable \"" + text + "\".");
        }
        return found->second;
    }
    if (name.is_temporary()) {
        const auto local = context_.variables.tables.find(text);
        if (local != context_.variables.tables.end()) {
            return local->second;
        }
    }
    return context_.catalog.find_table(text);
}

std::shared_ptr<RangeTable> Binder::range_of_table(std::shared_ptr<const CatalogTable> table,
                                                   const std::string& alias, SourceRange at) {
    auto range = std::make_shared<RangeTable>();
    range->id = context_.next_id++;
    range->alias = alias;
    range->at = at;
    range->stored_name = table->stored_name;
    range->temporary = table->temporary;
    for (const CatalogColumn& column : table->columns) {
        const Collation collation =
            column.collation.find("_BIN") != std::string::npos   ? Collation::Binary
            : column.collation.find("_CS_") != std::string::npos ? Collation::CaseSensitive
                                                                 : Collation::Database;
        range->columns.push_back(
            {column.name, column.type, column.nullable, collation, false, nullptr});
    }
    // A computed column is its expression over the same row.
    for (std::size_t i = 0; i < table->columns.size(); ++i) {
        if (!table->columns[i].computed.empty()) {
            Scope row;
            row.tables.push_back(range);
            range->columns[i].computed = bind_text(table->columns[i].computed, row, false);
        }
    }
    range->table = std::move(table);
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_copy(bool inserted, const std::string& alias,
                                              SourceRange at) {
    auto range = range_of_table(context_.surroundings.trigger_table, alias, at);
    range->stored_name = copy_name(*range->table, inserted);
    range->temporary = true;
    for (RangeColumn& column : range->columns) {
        column.nullable = true;
    }
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_common(std::shared_ptr<BoundCommonTable> common,
                                                const std::string& alias, SourceRange at) {
    if (!common->query) {
        common->recursive = true; // it is being bound: this is its own mention
    }
    auto range = std::make_shared<RangeTable>();
    range->kind = RangeKind::Common;
    range->id = context_.next_id++;
    range->alias = alias;
    range->at = at;
    range->columns = common->columns;
    for (RangeColumn& column : range->columns) {
        column.used = false;
    }
    range->common = std::move(common);
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_named(const NamedTable& table, Scope& scope) {
    const std::string& name = table.name.object().text;
    const std::string& alias = table.alias.empty() ? name : table.alias.text;
    const bool plain = table.name.parts.size() == 1;
    if (plain && context_.surroundings.trigger_table) {
        if (same_name(name, "inserted")) {
            return bind_copy(true, alias, table.at);
        }
        if (same_name(name, "deleted")) {
            return bind_copy(false, alias, table.at);
        }
    }
    if (plain) {
        if (auto common = find_common(&scope, name)) {
            return bind_common(std::move(common), alias, table.at);
        }
    }
    if (auto stored = table_named(table.name)) {
        return range_of_table(std::move(stored), alias, table.at);
    }
    const auto view = context_.catalog.find_module(CatalogKind::View, name);
    if (!view) {
        refuse_object(table.name);
    }
    return bind_view(*view, alias, table.at);
}

void Binder::columns_of_query(RangeTable& range, const std::vector<Name>& names, SourceRange at) {
    range.columns = range.query->columns;
    if (!names.empty() && names.size() != range.columns.size()) {
        throw Refusal(names.size() > range.columns.size() ? 8158 : 8159, at,
                      "'" + range.alias + "' does not have as many columns as its list.");
    }
    for (std::size_t i = 0; i < range.columns.size(); ++i) {
        if (!names.empty()) {
            range.columns[i].name = names[i].text;
        }
        const std::string& name = range.columns[i].name;
        if (name.empty()) {
            throw Refusal(8155, at,
                          "No column name was specified for column " + std::to_string(i + 1) +
                              " of '" + range.alias + "'.");
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (same_name(range.columns[j].name, name)) {
                throw Refusal(8156, at,
                              "The column '" + name + "' was specified multiple times for '" +
                                  range.alias + "'.");
            }
        }
        range.columns[i].used = false;
        if (range.columns[i].type.is_null()) {
            range.columns[i].type = Type::integer();
        }
    }
}

std::shared_ptr<RangeTable> Binder::bind_view(const CatalogModule& view, const std::string& alias,
                                              SourceRange at) {
    auto& open = context_.views_open;
    if (std::any_of(open.begin(), open.end(),
                    [&](const std::string& name) { return same_name(name, view.name); })) {
        throw Refusal(4429, at, "View '" + view.name + "' contains a self-reference.");
    }
    const auto& definition = as<CreateView>(view.syntax());
    auto range = std::make_shared<RangeTable>();
    range->kind = RangeKind::Query;
    range->id = context_.next_id++;
    range->alias = alias;
    range->at = at;
    const bool of_text = context_.literals.of_text;
    context_.literals.of_text = false;
    open.push_back(view.name);
    auto substitutes = std::move(context_.substitutes);
    context_.substitutes.clear();
    try {
        range->query = bind_query(*definition.query, nullptr, false);
    } catch (const Refusal& refusal) {
        // The place lies in the view's text; the reader of this text is shown where it is used.
        throw Refusal(refusal.number, at, "View '" + view.name + "': " + refusal.what());
    }
    context_.substitutes = std::move(substitutes);
    open.pop_back();
    context_.literals.of_text = of_text;
    columns_of_query(*range, definition.columns, at);
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_derived(const DerivedTable& table, Scope& scope,
                                                 bool sees_siblings) {
    Scope barrier;
    barrier.parent = scope.parent;
    barrier.with = scope.with;
    auto range = std::make_shared<RangeTable>();
    range->kind = RangeKind::Query;
    range->id = context_.next_id++;
    range->alias = table.alias.text;
    range->at = table.at;
    range->query = bind_query(*table.query, sees_siblings ? &scope : &barrier, false);
    if (range->query->correlated && !sees_siblings) {
        scope.reached_out = true;
    }
    columns_of_query(*range, table.columns, table.at);
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_values(const ValuesTable& table, Scope& scope) {
    Scope barrier;
    barrier.parent = scope.parent;
    auto range = std::make_shared<RangeTable>();
    range->kind = RangeKind::Values;
    range->id = context_.next_id++;
    range->alias = table.alias.text;
    range->at = table.at;
    for (const ValueRow& row : table.rows) {
        std::vector<BoundPtr> values;
        for (const ExpressionPtr& value : row) {
            values.push_back(bind_value(*value, barrier));
        }
        if (values.size() != table.columns.size()) {
            throw Refusal(10709, table.at,
                          "The number of columns for each row in a table value constructor must "
                          "be the same.");
        }
        range->rows.push_back(std::move(values));
    }
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        std::vector<BoundPtr*> column;
        for (auto& row : range->rows) {
            column.push_back(&row[i]);
        }
        Type type = unify(column);
        type = type.is_null() ? Type::integer() : type;
        range->columns.push_back(
            {table.columns[i].text, type, true, Collation::Database, false, nullptr});
    }
    return range;
}

BoundSourcePtr Binder::bind_source(const TableSource& source, Scope& scope) {
    if (source.kind == TableSourceKind::Join) {
        return bind_join(as<Join>(source), scope);
    }
    std::shared_ptr<RangeTable> range;
    switch (source.kind) {
    case TableSourceKind::NamedTable: range = bind_named(as<NamedTable>(source), scope); break;
    case TableSourceKind::DerivedTable:
        range = bind_derived(as<DerivedTable>(source), scope, false);
        break;
    case TableSourceKind::ValuesTable: range = bind_values(as<ValuesTable>(source), scope); break;
    default: range = bind_function(as<FunctionTable>(source), scope); break;
    }
    for (const auto& other : scope.tables) {
        if (same_name(other->alias, range->alias)) {
            throw Refusal(1013, source.at,
                          "The objects \"" + range->alias + "\" and \"" + other->alias +
                              "\" in the FROM clause have the same exposed names. Use "
                              "correlation names to distinguish them.");
        }
    }
    scope.tables.push_back(range);
    auto leaf = std::make_unique<BoundSource>();
    leaf->table = std::move(range);
    return leaf;
}

} // namespace tsql
