// Aggregates and window functions: where they may stand and which type they give.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

struct AggregateRule {
    std::string_view name;
    bool window_only;
    int least;
    int most;
};

constexpr AggregateRule rules[] = {
    {"COUNT", false, 1, 1},       {"COUNT_BIG", false, 1, 1},  {"SUM", false, 1, 1},
    {"AVG", false, 1, 1},         {"MIN", false, 1, 1},        {"MAX", false, 1, 1},
    {"STDEV", false, 1, 1},       {"STDEVP", false, 1, 1},     {"VAR", false, 1, 1},
    {"VARP", false, 1, 1},        {"STRING_AGG", false, 2, 2}, {"CHECKSUM_AGG", false, 1, 1},
    {"GROUPING", false, 1, 1},    {"ROW_NUMBER", true, 0, 0},  {"RANK", true, 0, 0},
    {"DENSE_RANK", true, 0, 0},   {"NTILE", true, 1, 1},       {"LAG", true, 1, 3},
    {"LEAD", true, 1, 3},         {"FIRST_VALUE", true, 1, 1}, {"LAST_VALUE", true, 1, 1},
    {"PERCENT_RANK", true, 0, 0}, {"CUME_DIST", true, 0, 0},
};

const AggregateRule* aggregate_rule(std::string_view name) {
    const auto* found = std::find_if(std::begin(rules), std::end(rules),
                                     [&](const auto& rule) { return rule.name == name; });
    return found == std::end(rules) ? nullptr : found;
}

[[noreturn]] void refuse_operand(const std::string& name, const BoundPtr& argument) {
    throw Refusal(8117, argument->at,
                  "Operand data type " + argument->type.text() + " is invalid for " + name +
                      " operator.");
}

Type sum_type(const std::string& name, const BoundPtr& argument) {
    const Type& type = argument->type;
    if (type.kind == TypeKind::Bit || !type.is_number()) {
        refuse_operand(name, argument);
    }
    if (type.is_decimal()) {
        return Type::decimal(38, name == "AVG" ? std::max<int>(type.scale, 6) : type.scale);
    }
    if (type.is_money()) {
        return Type::of(TypeKind::Money);
    }
    if (type.is_float()) {
        return Type::of(TypeKind::Float);
    }
    return type.kind == TypeKind::BigInt ? type : Type::integer();
}

Type aggregate_type(const std::string& name, const std::vector<BoundPtr>& arguments) {
    if (name == "SUM" || name == "AVG") {
        return sum_type(name, arguments[0]);
    }
    if (name == "MIN" || name == "MAX" || name == "LAG" || name == "LEAD" ||
        name == "FIRST_VALUE" || name == "LAST_VALUE") {
        return arguments[0]->type;
    }
    if (name == "STRING_AGG") {
        return arguments[0]->type.is_national() ? Type::nvarchar(4000) : Type::varchar(8000);
    }
    const bool floating = name.starts_with("STDEV") || name.starts_with("VAR") ||
                          name == "PERCENT_RANK" || name == "CUME_DIST";
    if (floating) {
        return Type::of(TypeKind::Float);
    }
    const bool big = name == "COUNT_BIG" || name == "ROW_NUMBER" || name == "NTILE" ||
                     name == "RANK" || name == "DENSE_RANK";
    return big ? Type::of(TypeKind::BigInt) : Type::integer();
}

void check_place(const FunctionCall& call, const std::string& name, const Scope& scope) {
    if (call.over) {
        if (!scope.windows_allowed) {
            throw Refusal(4108, call.at,
                          "Windowed functions can only appear in the SELECT or ORDER BY clauses.");
        }
        return;
    }
    if (scope.inside_aggregate) {
        throw Refusal(130, call.at,
                      "Cannot perform an aggregate function on an expression containing an "
                      "aggregate or a subquery.");
    }
    if (!scope.aggregates_allowed) {
        throw Refusal(147, call.at,
                      "An aggregate (" + name +
                          ") may not appear in the WHERE clause unless it "
                          "is in a subquery contained in a HAVING clause or a select list.");
    }
}

} // namespace

BoundPtr Binder::bind_aggregate(const FunctionCall& call, const std::string& name, Scope& scope) {
    const AggregateRule* rule = aggregate_rule(name);
    if (rule == nullptr) {
        return nullptr;
    }
    if (rule->window_only && !call.over) {
        throw Refusal(10753, call.at, "The function '" + name + "' must have an OVER clause.");
    }
    check_place(call, name, scope);
    auto bound = std::make_shared<BoundAggregate>();
    bound->at = call.at;
    bound->name = name;
    bound->distinct = call.distinct;
    const auto count = static_cast<int>(call.arguments.size());
    if (!call.star && (count < rule->least || count > rule->most)) {
        throw Refusal(174, call.at,
                      "The " + name + " function requires " + std::to_string(rule->least) +
                          " argument(s).");
    }
    const bool outer_inside = scope.inside_aggregate;
    scope.inside_aggregate = call.over == nullptr;
    bound->arguments = bind_arguments(call, scope);
    for (const OrderItem& item : call.within_group) {
        bound->within.push_back({bind_value(*item.expression, scope), item.descending, -1});
    }
    scope.inside_aggregate = outer_inside;
    if (name == "STRING_AGG") {
        for (BoundPtr& argument : bound->arguments) {
            argument = argument->type.is_text() ? argument : convert(argument, Type::varchar(8000));
        }
    }
    if ((name == "LAG" || name == "LEAD") && count == 3) {
        bound->arguments[2] = convert(bound->arguments[2], bound->arguments[0]->type);
    }
    bound->type = call.star ? (name == "COUNT_BIG" ? Type::of(TypeKind::BigInt) : Type::integer())
                            : aggregate_type(name, bound->arguments);
    if (bound->type.is_float() && !bound->arguments.empty()) {
        bound->arguments[0] = convert(bound->arguments[0], bound->type);
    }
    if (!bound->arguments.empty()) {
        bound->collation = bound->arguments[0]->collation;
    }
    bound->nullable = !name.starts_with("COUNT");
    if (call.over) {
        bound->window = bind_window(*call.over, scope);
    } else {
        scope.saw_aggregate = true;
    }
    return bound;
}

std::shared_ptr<const BoundWindow> Binder::bind_window(const Over& over, Scope& scope) {
    auto window = std::make_shared<BoundWindow>();
    for (const ExpressionPtr& expression : over.partition) {
        window->partition.push_back(bind_value(*expression, scope));
    }
    for (const OrderItem& item : over.order) {
        window->order.push_back({bind_value(*item.expression, scope), item.descending, -1});
    }
    if (over.frame) {
        BoundFrame frame;
        frame.unit = over.frame->unit;
        frame.start = over.frame->start.kind;
        frame.end = over.frame->end.kind;
        if (over.frame->start.offset) {
            frame.start_offset =
                convert(bind_value(*over.frame->start.offset, scope), Type::integer());
        }
        if (over.frame->end.offset) {
            frame.end_offset = convert(bind_value(*over.frame->end.offset, scope), Type::integer());
        }
        window->frame = std::move(frame);
    }
    return window;
}

} // namespace tsql
