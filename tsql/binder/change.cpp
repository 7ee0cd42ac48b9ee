// What INSERT, UPDATE and DELETE share: the rows that change, values for columns, OUTPUT, triggers.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

// A view whose rows are rows of one stored table.
RangeTable* row_of_view(const RangeTable& view) {
    if (!view.query || view.query->body->kind != BoundBodyKind::Select) {
        return nullptr;
    }
    auto& select = static_cast<BoundSelect&>(*view.query->body);
    const bool plain = !select.grouped && !select.distinct && !select.top &&
                       view.query->with.empty() && select.from.size() == 1 &&
                       select.from[0]->kind == SourceKind::Table &&
                       select.from[0]->table->kind == RangeKind::Table;
    return plain ? select.from[0]->table.get() : nullptr;
}

} // namespace

bool Binder::find_target(const ObjectName& name, const std::vector<TableSourcePtr>& from,
                         Scope& scope, BoundChange& change, std::vector<BoundSourcePtr>& sources,
                         BoundPtr& view_condition) {
    for (const TableSourcePtr& source : from) {
        sources.push_back(bind_source(*source, scope));
    }
    const std::string& text = name.object().text;
    std::shared_ptr<RangeTable> found;
    int of_that_name = 0;
    for (const auto& table : scope.tables) {
        if (same_name(table->alias, text)) {
            found = table;
            of_that_name = 1;
            break;
        }
        if (table->table && same_name(table->table->name, text)) {
            found = table;
            ++of_that_name;
        }
    }
    if (of_that_name == 1) {
        if (found->kind != RangeKind::Table) {
            throw Refusal(4406, name.at,
                          "'" + text + "' cannot be updated: it is not a stored table.");
        }
        change.target = found;
        change.table = found->table;
        return true;
    }
    if (auto stored = table_named(name)) {
        change.table = stored;
        change.target = range_of_table(std::move(stored), text, name.at);
        scope.tables.insert(scope.tables.begin(), change.target);
        return false;
    }
    const auto module = context_.catalog.find_module(CatalogKind::View, text);
    if (!module) {
        refuse_object(name);
    }
    auto view = bind_view(*module, text, name.at);
    RangeTable* row = row_of_view(*view);
    if (row == nullptr || !from.empty()) {
        throw Refusal(4405, name.at,
                      "View '" + text +
                          "' is not updatable because the modification affects "
                          "more than one base table or its rows are no rows of a table.");
    }
    view->kind = RangeKind::Inline;
    auto& select = static_cast<BoundSelect&>(*view->query->body);
    change.target = select.from[0]->table;
    change.table = row->table;
    change.view = view;
    view_condition = select.where;
    scope.tables.insert(scope.tables.begin(), view);
    return false;
}

// The column of the stored table that a SET target or an INSERT column means.
int Binder::target_column(const ObjectName& name, Scope& scope, const BoundChange& change) {
    const std::string& column = name.object().text;
    RangeTable& seen = *scope.tables.front();
    if (seen.kind != RangeKind::Inline) {
        const int ordinal = change.table->find_column(column);
        if (ordinal < 0) {
            std::vector<std::string_view> candidates;
            for (const CatalogColumn& candidate : change.table->columns) {
                candidates.push_back(candidate.name);
            }
            throw Refusal(207, name.at,
                          "Invalid column name '" + column + "'" + near_misses(column, candidates) +
                              ".");
        }
        return ordinal;
    }
    const FoundColumn found = find_column(scope, name);
    const auto& select = static_cast<const BoundSelect&>(*seen.query->body);
    const BoundExpression& item = *select.items[static_cast<std::size_t>(found.ordinal)].expression;
    if (item.kind != BoundKind::Column) {
        throw Refusal(4406, name.at,
                      "Update or insert of view '" + seen.alias +
                          "' failed because it contains a "
                          "derived or constant field.");
    }
    return static_cast<const BoundColumn&>(item).ordinal;
}

BoundPtr Binder::assigned_value(const CatalogColumn& column, BoundPtr value) {
    if (value->type.is_null()) {
        return convert(std::move(value), column.type);
    }
    return convert(std::move(value), column.type, ConvertMode::Assign);
}

BoundPtr Binder::default_value(const CatalogColumn& column) {
    if (column.default_text.empty()) {
        return convert(null_value({}), column.type);
    }
    Scope none;
    return assigned_value(column, bind_text(column.default_text, none, false));
}

BoundPtr Binder::both(BoundPtr left, BoundPtr right) {
    if (!left || !right) {
        return left ? left : right;
    }
    auto bound = std::make_shared<BoundLogical>();
    bound->at = left->at;
    bound->operands = {std::move(left), std::move(right)};
    return bound;
}

void Binder::find_triggers(BoundChange& change, DmlKind event) {
    const auto& surroundings = context_.surroundings;
    for (const auto& trigger : context_.catalog.triggers_of(change.table->name)) {
        const bool fires = event == DmlKind::Insert   ? trigger->on_insert
                           : event == DmlKind::Update ? trigger->on_update
                                                      : trigger->on_delete;
        const bool itself = same_name(trigger->name, surroundings.trigger);
        if (!fires || trigger->disabled || itself || change.table->temporary) {
            continue;
        }
        if (trigger->instead_of && !change.instead_of) {
            change.triggers.clear();
            change.instead_of = true;
        }
        if (trigger->instead_of == change.instead_of) {
            change.triggers.push_back(trigger->name);
        }
    }
}

void Binder::bind_output(const OutputClause& clause, BoundChange& change) {
    // Inside OUTPUT the names inserted and deleted mean this statement's rows.
    auto outer = context_.surroundings.trigger_table;
    context_.surroundings.trigger_table = change.table;
    auto query = std::make_unique<BoundQuery>();
    auto select = std::make_unique<BoundSelect>();
    Scope scope;
    scope.tables = {bind_copy(true, "inserted", clause.at), bind_copy(false, "deleted", clause.at)};
    for (const SelectItem& item : clause.items) {
        if (item.kind == SelectItemKind::Star) {
            bind_star(item, scope, *select, query->columns);
            continue;
        }
        BoundItem bound;
        bound.expression = bind_value(*item.expression, scope);
        const auto* column = as_if<ColumnReference>(item.expression.get());
        bound.name = !item.alias.empty() ? item.alias.text
                     : column != nullptr ? column->name.object().text
                                         : std::string();
        query->columns.push_back(
            {bound.name, bound.expression->type, true, Collation::Database, false, nullptr});
        select->items.push_back(std::move(bound));
    }
    context_.surroundings.trigger_table = std::move(outer);
    for (const auto& table : scope.tables) {
        auto leaf = std::make_unique<BoundSource>();
        leaf->table = table;
        select->from.push_back(std::move(leaf));
    }
    query->body = std::move(select);
    change.output = std::move(query);
    if (clause.into) {
        change.output_into = table_named(*clause.into);
        if (!change.output_into) {
            refuse_object(*clause.into);
        }
        for (std::size_t i = 0; i < change.output->columns.size(); ++i) {
            const int ordinal =
                clause.into_columns.empty()
                    ? static_cast<int>(i)
                    : change.output_into->find_column(clause.into_columns.at(i).text);
            if (ordinal < 0 || ordinal >= static_cast<int>(change.output_into->columns.size())) {
                throw Refusal(213, clause.at,
                              "Column name or number of supplied values does not match table "
                              "definition.");
            }
            change.output_columns.push_back(ordinal);
        }
        std::vector<Type> types;
        for (const int ordinal : change.output_columns) {
            types.push_back(change.output_into->columns[static_cast<std::size_t>(ordinal)].type);
        }
        convert_columns(*this, *change.output->body, types, ConvertMode::Assign);
    }
}

} // namespace tsql
