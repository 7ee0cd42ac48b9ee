// Whole queries: common table expressions, the body, its order and its limits.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

bool has_top(const QueryBody& body) {
    return body.kind == QueryBodyKind::Select && as<Select>(body).top.has_value();
}

} // namespace

std::unique_ptr<BoundQuery> Binder::bind_query(const Query& query, Scope* around, bool top_level) {
    if (!top_level && !query.order.empty() && !has_top(*query.body) && !query.offset) {
        throw Refusal(1033, query.order_at,
                      "The ORDER BY clause is invalid in views, inline functions, derived tables, "
                      "subqueries, and common table expressions, unless TOP or OFFSET is also "
                      "specified.");
    }
    auto result = std::make_unique<BoundQuery>();
    Scope scope;
    scope.parent = around;
    bind_with(query.with, scope, result->with, query.max_recursion);
    result->body = bind_body(*query.body, scope, &query, *result);
    bind_limits(query, scope, *result);
    result->correlated = scope.reached_out;
    result->force_order = query.force_order;
    return result;
}

std::unique_ptr<BoundBody> Binder::bind_body(const QueryBody& body, Scope& scope,
                                             const Query* owner, BoundQuery& result) {
    if (body.kind == QueryBodyKind::Select) {
        return bind_select(as<Select>(body), scope, owner, result);
    }
    auto bound = bind_set_operation(as<SetOperation>(body), scope, result);
    if (owner != nullptr && !owner->order.empty()) {
        result.body = std::move(bound);
        order_set_operation(*owner, result);
        bound = std::move(result.body);
    }
    return bound;
}

void Binder::bind_limits(const Query& query, Scope& scope, BoundQuery& result) {
    Scope alone;
    alone.parent = scope.parent;
    if (query.offset) {
        result.offset = convert(bind_value(*query.offset, alone), Type::of(TypeKind::BigInt));
    }
    if (query.fetch) {
        result.fetch = convert(bind_value(*query.fetch, alone), Type::of(TypeKind::BigInt));
    }
}

namespace {

void name_columns(BoundCommonTable& bound, const CommonTable& common) {
    bound.columns = bound.query->columns;
    if (!common.columns.empty() && common.columns.size() != bound.columns.size()) {
        throw Refusal(common.columns.size() > bound.columns.size() ? 8158 : 8159, common.at,
                      "'" + common.name.text + "' does not have as many columns as its list.");
    }
    for (std::size_t i = 0; i < bound.columns.size(); ++i) {
        if (!common.columns.empty()) {
            bound.columns[i].name = common.columns[i].text;
        }
        if (bound.columns[i].name.empty()) {
            throw Refusal(8155, common.at,
                          "No column name was specified for column " + std::to_string(i + 1) +
                              " of '" + common.name.text + "'.");
        }
    }
}

} // namespace

void Binder::bind_with(const std::vector<CommonTable>& with, Scope& scope,
                       std::vector<std::shared_ptr<BoundCommonTable>>& out,
                       std::optional<int> max_recursion) {
    for (const CommonTable& common : with) {
        auto bound = std::make_shared<BoundCommonTable>();
        bound->id = context_.next_id++;
        bound->name = common.name.text;
        bound->max_recursion = max_recursion.value_or(100);
        const auto* body = common.query->body->kind == QueryBodyKind::SetOperation
                               ? &as<SetOperation>(*common.query->body)
                               : nullptr;
        if (body != nullptr && body->op == SetOperator::UnionAll) {
            bind_recursive(common, *bound, scope);
        }
        if (!bound->recursive) {
            Scope around;
            around.parent = scope.parent;
            around.with = scope.with;
            bound->query = bind_query(*common.query, &around, false);
            name_columns(*bound, common);
        }
        scope.with.push_back(bound);
        out.push_back(std::move(bound));
    }
}

// Binds the first branch for the columns, then the others with the table itself in sight. When
// none of them reads it, the table is an ordinary one and is bound again as such.
void Binder::bind_recursive(const CommonTable& common, BoundCommonTable& bound, Scope& scope) {
    const auto& body = as<SetOperation>(*common.query->body);
    auto query = std::make_shared<BoundQuery>();
    auto whole = std::make_unique<BoundSetOperation>();
    whole->op = SetOperator::UnionAll;
    Scope first;
    first.parent = scope.parent;
    first.with = scope.with;
    whole->branches.push_back(bind_body(*body.branches[0], first, nullptr, *query));
    bound.query = query;
    name_columns(bound, common);
    query->columns = bound.columns;
    std::vector<Type> types;
    for (const RangeColumn& column : bound.columns) {
        types.push_back(column.type);
    }
    // The branches see the table under its name while they are bound.
    auto self = std::make_shared<BoundCommonTable>();
    self->id = bound.id;
    self->name = bound.name;
    self->columns = bound.columns;
    for (std::size_t i = 1; i < body.branches.size(); ++i) {
        Scope inner;
        inner.parent = scope.parent;
        inner.with = scope.with;
        inner.with.push_back(self);
        BoundQuery ignored;
        whole->branches.push_back(bind_body(*body.branches[i], inner, nullptr, ignored));
        if (ignored.columns.size() != types.size()) {
            throw Refusal(205, body.branches[i]->at,
                          "All queries combined using a UNION, INTERSECT or EXCEPT operator must "
                          "have an equal number of expressions in their target lists.");
        }
        convert_columns(*this, *whole->branches.back(), types, ConvertMode::Cast);
    }
    bound.recursive = self->recursive;
    if (bound.recursive) {
        query->body = std::move(whole);
        for (RangeColumn& column : bound.columns) {
            column.nullable = true;
            column.used = true;
        }
    }
}

} // namespace tsql
