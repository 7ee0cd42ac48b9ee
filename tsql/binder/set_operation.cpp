// UNION, EXCEPT, INTERSECT: every column gets one type for all branches.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

const BoundSelect& first_select(const BoundBody& body) {
    if (body.kind == BoundBodyKind::Select) {
        return static_cast<const BoundSelect&>(body);
    }
    return first_select(*static_cast<const BoundSetOperation&>(body).branches.front());
}

// The type a branch brings to a column: a whole number written down counts its digits.
Type branch_type(const BoundBody& body, std::size_t column, const Type& type) {
    if (body.kind != BoundBodyKind::Select || type.kind != TypeKind::Int) {
        return type;
    }
    const BoundPtr& item = static_cast<const BoundSelect&>(body).items[column].expression;
    if (item->kind != BoundKind::Literal) {
        return type;
    }
    return Type::decimal(static_cast<const BoundLiteral&>(*item).digits(), 0);
}

} // namespace

void convert_columns(Binder& binder, BoundBody& body, const std::vector<Type>& types,
                     ConvertMode mode) {
    if (body.kind == BoundBodyKind::SetOperation) {
        for (auto& branch : static_cast<BoundSetOperation&>(body).branches) {
            convert_columns(binder, *branch, types, mode);
        }
        return;
    }
    auto& items = static_cast<BoundSelect&>(body).items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].expression = binder.convert(items[i].expression, types[i], mode);
    }
}

std::unique_ptr<BoundBody> Binder::bind_set_operation(const SetOperation& node, Scope& scope,
                                                      BoundQuery& result) {
    auto bound = std::make_unique<BoundSetOperation>();
    bound->op = node.op;
    std::vector<std::vector<RangeColumn>> columns;
    for (const QueryBodyPtr& branch : node.branches) {
        Scope inner;
        inner.parent = &scope;
        BoundQuery part;
        bound->branches.push_back(bind_body(*branch, inner, nullptr, part));
        columns.push_back(std::move(part.columns));
        if (columns.back().size() != columns.front().size()) {
            throw Refusal(205, branch->at,
                          "All queries combined using a UNION, INTERSECT or EXCEPT operator must "
                          "have an equal number of expressions in their target lists.");
        }
    }
    result.columns = columns.front();
    std::vector<Type> types;
    for (std::size_t i = 0; i < result.columns.size(); ++i) {
        Type type;
        bool decimal = false;
        for (const auto& branch : columns) {
            decimal = decimal || branch[i].type.is_decimal();
        }
        for (std::size_t b = 0; b < columns.size(); ++b) {
            const Type own = decimal ? branch_type(*bound->branches[b], i, columns[b][i].type)
                                     : columns[b][i].type;
            type = common_type(type, own);
            result.columns[i].nullable = result.columns[i].nullable || columns[b][i].nullable;
        }
        types.push_back(type.is_null() ? Type::integer() : type);
        result.columns[i].type = types.back();
    }
    convert_columns(*this, *bound, types, ConvertMode::Cast);
    return bound;
}

// The order of a set operation names its columns: by number, by the first branch's names, or by a
// column of the first branch with its table.
void Binder::order_set_operation(const Query& query, BoundQuery& result) {
    const BoundSelect& first = first_select(*result.body);
    for (const OrderItem& item : query.order) {
        BoundOrder order;
        order.descending = item.descending;
        if (const auto* column = as_if<ColumnReference>(item.expression.get())) {
            const Name* qualifier = column->name.schema();
            for (std::size_t i = 0; i < result.columns.size() && order.item < 0; ++i) {
                const BoundExpression* value = first.items[i].expression.get();
                if (value->kind == BoundKind::Convert) {
                    value = static_cast<const BoundConvert*>(value)->operand.get();
                }
                const auto* source = value->kind == BoundKind::Column
                                         ? static_cast<const BoundColumn*>(value)
                                         : nullptr;
                const bool named =
                    qualifier == nullptr
                        ? same_name(result.columns[i].name, column->name.object().text)
                        : source != nullptr && same_name(source->table->alias, qualifier->text) &&
                              same_name(
                                  source->table->columns[static_cast<std::size_t>(source->ordinal)]
                                      .name,
                                  column->name.object().text);
                if (named) {
                    order.item = static_cast<int>(i);
                }
            }
            if (order.item < 0) {
                throw Refusal(qualifier == nullptr ? 207 : 4104, item.expression->at,
                              "Invalid column name '" + column->name.object().text + "'.");
            }
        } else {
            Scope none;
            const auto ordinal = constant_integer(bind_value(*item.expression, none));
            if (!ordinal) {
                throw Refusal(104, item.expression->at,
                              "ORDER BY items must appear in the select list if the statement "
                              "contains a UNION, INTERSECT or EXCEPT operator.");
            }
            if (*ordinal < 1 || *ordinal > static_cast<std::int64_t>(result.columns.size())) {
                throw Refusal(108, item.expression->at,
                              "The ORDER BY position number " + std::to_string(*ordinal) +
                                  " is out of range of the number of items in the select list.");
            }
            order.item = static_cast<int>(*ordinal) - 1;
        }
        result.order.push_back(std::move(order));
    }
}

} // namespace tsql
