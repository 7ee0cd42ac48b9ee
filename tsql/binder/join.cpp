// Joins, APPLY, and functions that stand in FROM.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

bool is_apply(JoinKind kind) {
    return kind == JoinKind::CrossApply || kind == JoinKind::OuterApply;
}

const RangeTable* only_table(const BoundSelect& select) {
    if (select.from.size() != 1 || select.from[0]->kind != SourceKind::Table) {
        return nullptr;
    }
    return select.from[0]->table.get();
}

} // namespace

// A table of APPLY that reads the row before it. Its columns stand for expressions: over its one
// stored table when it is a plain query, as subqueries of their own when it always gives one row.
void Binder::lateral(RangeTable& range, SourceRange at) {
    if (!range.query->correlated) {
        return;
    }
    const bool plain =
        range.query->body->kind == BoundBodyKind::Select && range.query->with.empty();
    if (plain) {
        const auto& select = static_cast<const BoundSelect&>(*range.query->body);
        const RangeTable* inner = only_table(select);
        const bool one_row = select.grouped && select.group_by.empty() && !select.having;
        const bool stored = inner != nullptr && inner->kind == RangeKind::Table &&
                            !select.grouped && !select.distinct &&
                            !(select.top && (select.top->percent || select.top->with_ties));
        if (one_row || stored) {
            range.kind = RangeKind::Inline;
            return;
        }
    }
    throw Refusal(102, at,
                  "APPLY takes a query over one stored table, or one that gives a single row; "
                  "this query is neither.");
}

BoundSourcePtr Binder::bind_join(const Join& join, Scope& scope) {
    auto bound = std::make_unique<BoundSource>();
    bound->kind = SourceKind::Join;
    bound->join = join.type;
    bound->left = bind_source(*join.left, scope);
    if (!is_apply(join.type)) {
        bound->right = bind_source(*join.right, scope);
        if (join.on) {
            bound->on = bind_condition(*join.on, scope);
        }
        return bound;
    }
    std::shared_ptr<RangeTable> range;
    if (const auto* derived = as_if<DerivedTable>(join.right.get())) {
        range = bind_derived(*derived, scope, true);
    } else if (const auto* function = as_if<FunctionTable>(join.right.get())) {
        range = bind_function(*function, scope);
    } else {
        throw Refusal(102, join.right->at, "APPLY takes a query or a function.");
    }
    if (range->kind == RangeKind::Query) {
        lateral(*range, join.right->at);
    }
    scope.tables.push_back(range);
    bound->right = std::make_unique<BoundSource>();
    bound->right->table = std::move(range);
    return bound;
}

std::vector<BoundPtr> Binder::bind_parameters(const CreateFunction& function,
                                              const FunctionTable& table, Scope& scope) {
    std::vector<BoundPtr> arguments;
    for (std::size_t i = 0; i < table.arguments.size(); ++i) {
        const Parameter& parameter = function.parameters[i];
        const bool left_out = table.arguments[i]->kind == ExpressionKind::DefaultMark;
        if (left_out && !parameter.default_value) {
            throw Refusal(201, table.arguments[i]->at,
                          "The function expects parameter '" + parameter.name +
                              "', which has no default.");
        }
        const ExpressionPtr& value = left_out ? parameter.default_value : table.arguments[i];
        arguments.push_back(convert(bind_value(*value, scope), bind_type(parameter.type, 1)));
    }
    return arguments;
}

std::shared_ptr<RangeTable> Binder::bind_function(const FunctionTable& table, Scope& scope) {
    const std::string& name = table.name.object().text;
    const auto module = context_.catalog.find_module(CatalogKind::Function, name);
    const auto* function = module ? as_if<CreateFunction>(&module->syntax()) : nullptr;
    if (function == nullptr || function->type == FunctionKind::Scalar) {
        refuse_object(table.name);
    }
    if (function->parameters.size() != table.arguments.size()) {
        const bool few = table.arguments.size() < function->parameters.size();
        throw Refusal(few ? 313 : 8144, table.at,
                      "The function '" + name + "' takes " +
                          std::to_string(function->parameters.size()) + " argument(s).");
    }
    if (function->type == FunctionKind::MultiTable) {
        return bind_multi_function(*function, module->definition, table, scope);
    }
    auto& open = context_.views_open;
    if (open.size() > 32) {
        throw Refusal(217, table.at, "Maximum nesting level of views and functions exceeded.");
    }
    std::map<std::string, BoundPtr, NameLess> given;
    const std::vector<BoundPtr> arguments = bind_parameters(*function, table, scope);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        given[function->parameters[i].name] = arguments[i];
    }
    auto range = std::make_shared<RangeTable>();
    range->kind = RangeKind::Query;
    range->id = context_.next_id++;
    range->alias = table.alias.empty() ? name : table.alias.text;
    range->at = table.at;
    const bool of_text = context_.literals.of_text;
    context_.literals.of_text = false;
    std::swap(context_.substitutes, given);
    open.push_back(name);
    range->query = bind_query(*function->query, nullptr, false);
    open.pop_back();
    std::swap(context_.substitutes, given);
    context_.literals.of_text = of_text;
    // Its arguments may read the tables before it.
    range->query->correlated = scope.reached_out || !scope.tables.empty();
    columns_of_query(*range, table.columns, table.at);
    return range;
}

std::shared_ptr<RangeTable> Binder::bind_multi_function(const CreateFunction& function,
                                                        const std::string& definition,
                                                        const FunctionTable& table, Scope& scope) {
    Scope outside;
    outside.parent = scope.parent;
    BoundFill fill;
    fill.function = function.name.object().text;
    fill.arguments = bind_parameters(function, table, outside);
    if (outside.reached_out) {
        throw Refusal(102, table.at,
                      "The arguments of a function that fills a table may not depend on rows.");
    }
    const std::string alias = table.alias.empty() ? fill.function : table.alias.text;
    const std::string owner = fold_name(fill.function);
    const auto rows = bind_table(function.return_variable, function.return_table, definition);
    fill.source = variable_table_name(owner, *rows);
    rows->stored_name = fill.source + ":" + std::to_string(context_.next_id);
    rows->temporary = true;
    fill.table = rows;
    context_.fills.push_back(std::move(fill));
    return range_of_table(rows, alias, table.at);
}

} // namespace tsql
