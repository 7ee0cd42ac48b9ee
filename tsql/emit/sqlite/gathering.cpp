// A grouped table that an UPDATE joins. SQLite groups by sorting every row; here one pass adds the
// rows up by the bytes of their keys, and only the sums, one a key, are grouped by the collation.
#include "tsql/binder/same_expression.h"
#include "tsql/emit/sqlite/emitter.h"
#include "tsql/emit/sqlite/runtime_functions.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

// The place among the grouping expressions, -1 when it is none of them.
int key_place(const BoundSelect& select, const BoundPtr& value) {
    for (std::size_t i = 0; i < select.group_by.size(); ++i) {
        if (same_expression(select.group_by[i], value, nullptr)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

// A sum of sums is the sum; with DISTINCT or over a window it is not, nor exactly so for float.
bool is_plain_sum(const BoundPtr& value) {
    if (value->kind != BoundKind::Aggregate) {
        return false;
    }
    const auto& aggregate = static_cast<const BoundAggregate&>(*value);
    return aggregate.name == "SUM" && !aggregate.distinct && !aggregate.window &&
           aggregate.arguments[0]->type.is_exact();
}

bool is_keys_and_sums(const BoundSelect& select) {
    if (!select.grouped || select.group_by.empty() || select.grouping_sets.size() != 1 ||
        select.having || select.distinct || select.top || select.from.empty()) {
        return false;
    }
    if (select.group_by.size() + select.items.size() > most_group_columns) {
        return false;
    }
    bool sums = false;
    for (const BoundItem& item : select.items) {
        const bool sum = is_plain_sum(item.expression);
        if (!sum && key_place(select, item.expression) < 0) {
            return false;
        }
        sums = sums || sum;
    }
    return sums;
}

} // namespace

std::string Emitter::gathered_query(const BoundQuery& query, const std::vector<bool>& used,
                                    std::vector<ColumnForm>& forms) {
    if (query.body->kind != BoundBodyKind::Select || !query.with.empty() || !query.order.empty() ||
        query.offset || query.fetch) {
        return "";
    }
    const auto& select = static_cast<const BoundSelect&>(*query.body);
    if (!is_keys_and_sums(select)) {
        return "";
    }
    // Tables first: what derived tables give decides how their columns are read.
    const std::string rows =
        from_text(select.from) + (select.where ? " WHERE " + condition(select.where) : "");
    std::string values = std::to_string(select.group_by.size());
    std::string groups;
    std::vector<Fragment> keys;
    const auto column = [](std::size_t place) { return "g.c" + std::to_string(place); };
    for (const BoundPtr& group : select.group_by) {
        Fragment key = value_of(group);
        values += "," + key.text;
        key.text = column(keys.size() + 1);
        key.collated = key.is_parameter = false;
        groups += (keys.empty() ? " GROUP BY " : ", ") + collated(key, *group);
        keys.push_back(std::move(key));
    }
    std::vector<Fragment> items;
    std::size_t place = keys.size();
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const BoundPtr& item = select.items[i].expression;
        if (!used[i]) {
            items.emplace_back();
        } else if (const int key = key_place(select, item); key >= 0) {
            items.push_back(keys[static_cast<std::size_t>(key)]);
        } else {
            const auto& sum = static_cast<const BoundAggregate&>(*item);
            const Fragment value = value_of(sum.arguments[0]);
            if (value.form == Form::Wide) {
                return "";
            }
            values += "," + value.text;
            items.push_back(narrow_sum(sum.type, "sum(" + column(++place) + ")"));
        }
        forms.push_back({items.back().form, items.back().bound});
    }
    return list_text(items, select, false, true) + " FROM zf_groups((SELECT zf_group_sums(" +
           values + ")" + rows + ")) AS g" + groups;
}

} // namespace tsql::sqlite
