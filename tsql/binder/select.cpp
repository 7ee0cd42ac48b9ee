// One SELECT: tables first, then conditions, groups, the list, the order.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

// Which rows tie is a question of their order.
void check_ties(const std::optional<Top>& top, const Query* owner) {
    if (!top || !top->with_ties || (owner != nullptr && !owner->order.empty())) {
        return;
    }
    throw Refusal(1062, top->at,
                  "The TOP N WITH TIES clause is not allowed without a corresponding ORDER BY "
                  "clause.");
}

} // namespace

std::unique_ptr<BoundBody> Binder::bind_select(const Select& node, Scope& scope, const Query* owner,
                                               BoundQuery& result) {
    auto select = std::make_unique<BoundSelect>();
    for (const TableSourcePtr& source : node.from) {
        select->from.push_back(bind_source(*source, scope));
    }
    if (node.where) {
        select->where = bind_condition(*node.where, scope);
    }
    bind_grouping(node, scope, *select);
    select->distinct = node.distinct;
    check_ties(node.top, owner);
    bind_top(node.top, scope, select->top);
    scope.aggregates_allowed = true;
    if (node.having) {
        select->having = bind_condition(*node.having, scope);
    }
    scope.windows_allowed = true;
    bind_items(node, scope, *select, result);
    if (owner != nullptr && !owner->order.empty()) {
        order_select(*owner, scope, *select, result);
    }
    scope.windows_allowed = false;
    scope.aggregates_allowed = false;
    select->grouped = !select->group_by.empty() || scope.saw_aggregate || select->having;
    if (select->grouped) {
        if (select->grouping_sets.empty()) {
            select->grouping_sets.emplace_back(select->group_by.size(), true);
        }
        for (const BoundItem& item : select->items) {
            check_grouping(*select, scope, item.expression, 8120);
        }
        if (select->having) {
            check_grouping(*select, scope, select->having, 8121);
        }
        for (const BoundOrder& order : result.order) {
            if (order.expression) {
                check_grouping(*select, scope, order.expression, 8127);
            }
        }
    }
    return select;
}

void Binder::bind_top(const std::optional<Top>& top, Scope& scope, std::optional<BoundTop>& out) {
    if (!top) {
        return;
    }
    Scope alone;
    alone.parent = scope.parent;
    BoundTop bound;
    bound.percent = top->percent;
    bound.with_ties = top->with_ties;
    bound.count = convert(bind_value(*top->count, alone),
                          Type::of(top->percent ? TypeKind::Float : TypeKind::BigInt));
    out = std::move(bound);
}

void Binder::bind_items(const Select& node, Scope& scope, BoundSelect& select, BoundQuery& result) {
    bool assigns = false;
    bool selects = false;
    for (const SelectItem& item : node.items) {
        assigns = assigns || item.kind == SelectItemKind::Assignment;
        selects = selects || item.kind != SelectItemKind::Assignment;
        if (item.kind == SelectItemKind::Star) {
            bind_star(item, scope, select, result.columns);
            continue;
        }
        BoundItem bound;
        if (item.kind == SelectItemKind::Assignment) {
            bound.expression = bind_assigned(item, scope);
        } else {
            bound.expression = bind_value(*item.expression, scope);
            const auto* column = as_if<ColumnReference>(item.expression.get());
            bound.name = !item.alias.empty() ? item.alias.text
                         : column != nullptr ? column->name.object().text
                                             : std::string();
        }
        const BoundExpression& value = *bound.expression;
        result.columns.push_back(
            {bound.name, value.type, value.nullable, value.collation, false, nullptr});
        select.items.push_back(std::move(bound));
    }
    if (assigns && selects) {
        throw Refusal(141, node.at,
                      "A SELECT statement that assigns a value to a variable must not be combined "
                      "with data-retrieval operations.");
    }
}

void Binder::bind_star(const SelectItem& item, Scope& scope, BoundSelect& select,
                       std::vector<RangeColumn>& columns) {
    bool found = false;
    for (const auto& table : scope.tables) {
        if (!item.star_of.parts.empty() && !same_name(table->alias, item.star_of.object().text)) {
            continue;
        }
        found = true;
        for (std::size_t i = 0; i < table->columns.size(); ++i) {
            RangeColumn& column = table->columns[i];
            column.used = true;
            BoundItem bound;
            bound.name = column.name;
            if (column.computed) {
                bound.expression = column.computed;
            } else {
                auto value = std::make_shared<BoundColumn>();
                value->at = item.at;
                value->table = table.get();
                value->ordinal = static_cast<int>(i);
                value->type = column.type;
                value->nullable = column.nullable;
                value->collation = column.collation;
                bound.expression = std::move(value);
            }
            columns.push_back(
                {column.name, column.type, column.nullable, column.collation, false, nullptr});
            select.items.push_back(std::move(bound));
        }
    }
    if (!found && !item.star_of.parts.empty()) {
        throw Refusal(107, item.at,
                      "The column prefix '" + item.star_of.object().text +
                          "' does not match with a table name or alias name used in the query.");
    }
    if (!found) {
        throw Refusal(263, item.at, "Must specify table to select from.");
    }
}

BoundPtr Binder::bind_assigned(const SelectItem& item, Scope& scope) {
    const int slot = context_.variables.find(item.variable);
    if (slot < 0) {
        throw Refusal(137, item.at, "Must declare the scalar variable \"" + item.variable + "\".");
    }
    BoundPtr value = bind_value(*item.expression, scope);
    const Type& type = context_.variables.slots[static_cast<std::size_t>(slot)].type;
    if (item.assign != AssignOperator::Assign) {
        Variable variable;
        variable.name = item.variable;
        variable.at = item.at;
        const auto op = static_cast<BinaryOperator>(static_cast<int>(item.assign) - 1);
        value = arithmetic(op, bind_variable(variable), std::move(value), item.at);
    }
    assigned_slots_.push_back(slot);
    return convert(std::move(value), type);
}

BoundAssign Binder::bind_assignment_query(const Query& query) {
    const auto& select = as<Select>(*query.body);
    for (const SelectItem& item : select.items) {
        context_.assigned_variables.insert(fold_name(item.variable));
    }
    BoundAssign bound;
    bound.query = bind_query(query, nullptr, true);
    bound.slots = std::move(assigned_slots_);
    return bound;
}

BoundPtr Binder::bind_scalar_subquery(const ScalarSubquery& subquery, Scope& scope) {
    auto bound = std::make_shared<BoundSubquery>(BoundKind::Subquery);
    bound->at = subquery.at;
    bound->query = bind_query(*subquery.query, &scope, false);
    expect_one_column(*bound->query, subquery.query->at);
    const RangeColumn& column = bound->query->columns[0];
    bound->type = column.type;
    bound->collation = column.collation;
    if (bound->query->body->kind == BoundBodyKind::Select) {
        const auto& select = static_cast<const BoundSelect&>(*bound->query->body);
        const auto one =
            select.top ? constant_integer(
                             select.top->count->kind == BoundKind::Convert
                                 ? static_cast<const BoundConvert&>(*select.top->count).operand
                                 : select.top->count)
                       : std::nullopt;
        bound->one_row = (select.grouped && select.group_by.empty()) || select.from.empty() ||
                         (one && *one <= 1 && !select.top->with_ties && !select.top->percent);
    }
    return bound;
}

} // namespace tsql
