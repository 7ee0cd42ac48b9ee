// ORDER BY of one SELECT: a number or a bare alias means an item of the list, anything else is an
// expression over the tables, in which aliases are not seen.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

void Binder::order_select(const Query& query, Scope& scope, BoundSelect& select,
                          BoundQuery& result) {
    for (const OrderItem& item : query.order) {
        BoundOrder order;
        order.descending = item.descending;
        const auto* column = as_if<ColumnReference>(item.expression.get());
        if (column != nullptr && column->name.parts.size() == 1) {
            for (std::size_t i = 0; i < select.items.size(); ++i) {
                if (!same_name(select.items[i].name, column->name.object().text)) {
                    continue;
                }
                if (order.item >= 0 &&
                    !same(select.items[static_cast<std::size_t>(order.item)].expression,
                          select.items[i].expression)) {
                    throw Refusal(209, item.expression->at,
                                  "Ambiguous column name '" + column->name.object().text + "'.");
                }
                order.item = order.item >= 0 ? order.item : static_cast<int>(i);
            }
        }
        if (order.item < 0) {
            order.expression = bind_value(*item.expression, scope);
            if (const auto ordinal = constant_integer(order.expression)) {
                if (*ordinal < 1 || *ordinal > static_cast<std::int64_t>(select.items.size())) {
                    throw Refusal(108, item.expression->at,
                                  "The ORDER BY position number " + std::to_string(*ordinal) +
                                      " is out of range of the number of items in the select "
                                      "list.");
                }
                order.item = static_cast<int>(*ordinal) - 1;
                order.expression = nullptr;
            }
        }
        for (std::size_t i = 0; i < select.items.size() && order.item < 0; ++i) {
            if (same(select.items[i].expression, order.expression)) {
                order.item = static_cast<int>(i);
            }
        }
        if (order.item < 0 && select.distinct) {
            throw Refusal(145, item.expression->at,
                          "ORDER BY items must appear in the select list if SELECT DISTINCT is "
                          "specified.");
        }
        result.order.push_back(std::move(order));
    }
}

} // namespace tsql
