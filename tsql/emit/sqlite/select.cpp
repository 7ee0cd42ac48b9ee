// One SELECT: list, tables, conditions, groups.
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

Emitter::SelectParts Emitter::select_parts(const BoundSelect& select, std::size_t grouping_set,
                                           const std::vector<bool>* used) {
    SelectParts parts;
    parts.tail = from_text(select.from);
    if (select.where) {
        parts.tail += " WHERE " + condition(select.where);
    }
    const std::vector<BoundPtr> outer_absent = absent_;
    if (select.grouped) {
        const auto& set = select.grouping_sets[grouping_set];
        std::string groups;
        for (std::size_t i = 0; i < select.group_by.size(); ++i) {
            if (set[i]) {
                groups += (groups.empty() ? " GROUP BY " : ", ") + collated(select.group_by[i]);
            } else {
                absent_.push_back(select.group_by[i]);
            }
        }
        parts.tail += groups;
    }
    if (select.having) {
        parts.tail += " HAVING " + condition(select.having);
    }
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const bool wanted = used == nullptr || (*used)[i];
        parts.items.push_back(wanted ? value_of(select.items[i].expression) : Fragment{});
    }
    absent_ = outer_absent;
    return parts;
}

std::string Emitter::list_text(const std::vector<Fragment>& items, const BoundSelect& select,
                               bool collate, bool named) {
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].text.empty()) {
            continue; // nobody reads it
        }
        text += text.empty() ? "" : ", ";
        text += collate && i < select.items.size() ? collated(items[i], *select.items[i].expression)
                                                   : items[i].text;
        if (named) {
            text += " AS c" + std::to_string(i + 1);
        }
    }
    if (text.empty()) {
        text = select.grouped ? "count(*) AS c0" : "1 AS c0";
    }
    return (select.distinct ? "SELECT DISTINCT " : "SELECT ") + text;
}

std::string Emitter::select_text(const BoundSelect& select, const BoundQuery* owner,
                                 const std::vector<bool>* used, std::vector<ColumnForm>& forms,
                                 bool named) {
    if (select.distinct || select.top) {
        used = select.distinct ? nullptr : used;
    }
    if (select.top && select.top->with_ties && owner != nullptr) {
        return ties_text(select, *owner, forms, named);
    }
    std::vector<SelectParts> parts;
    const std::size_t sets = select.grouped ? select.grouping_sets.size() : 1;
    for (std::size_t i = 0; i < sets; ++i) {
        parts.push_back(select_parts(select, i, used));
    }
    forms.assign(select.items.size(), {});
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        std::vector<Fragment> column;
        for (SelectParts& part : parts) {
            column.push_back(std::move(part.items[i]));
        }
        if (sets > 1) {
            column = same_form(std::move(column));
        }
        for (std::size_t s = 0; s < sets; ++s) {
            forms[i].form = column[s].form;
            forms[i].bound = std::max(forms[i].bound, column[s].bound);
            parts[s].items[i] = std::move(column[s]);
        }
    }
    std::string text;
    for (const SelectParts& part : parts) {
        text += (text.empty() ? "" : " UNION ALL ") +
                list_text(part.items, select, select.distinct, named) + part.tail;
    }
    if (owner == nullptr) {
        return select.top ? text + " LIMIT " + value_of(select.top->count).text : text;
    }
    const bool whole = used == nullptr;
    if (!owner->order.empty() && (whole || sets == 1)) {
        text += order_text(*owner, &select, sets > 1);
    }
    if (select.top && select.top->percent) {
        return text + " LIMIT zf_percent(" + value_of(select.top->count).text +
               ",(SELECT count(*) FROM (" +
               list_text(parts[0].items, select, select.distinct, true) + parts[0].tail + ")))";
    }
    return text + limit_text(*owner, &select);
}

std::string Emitter::order_by_value(const BoundQuery& query, const BoundSelect& select) {
    std::string text;
    for (const BoundOrder& item : query.order) {
        const BoundPtr& value = item.item >= 0
                                    ? select.items[static_cast<std::size_t>(item.item)].expression
                                    : item.expression;
        text += (text.empty() ? " ORDER BY " : ", ") + collated(value) +
                (item.descending ? " DESC" : "");
    }
    return text;
}

// TOP n WITH TIES: the rows whose rank by the order is at most n.
std::string Emitter::ties_text(const BoundSelect& select, const BoundQuery& owner,
                               std::vector<ColumnForm>& forms, bool named) {
    SelectParts parts = select_parts(select, 0, nullptr);
    const std::string order = order_by_value(owner, select);
    std::string columns;
    for (std::size_t i = 0; i < parts.items.size(); ++i) {
        forms.push_back({parts.items[i].form, parts.items[i].bound});
        const std::string name = "c" + std::to_string(i + 1);
        columns += (i == 0 ? "" : ", ") + name + (named ? " AS " + name : "");
    }
    std::string list = list_text(parts.items, select, select.distinct, true);
    const std::string by = order.empty() ? "" : order.substr(1); // without the blank before it
    return "SELECT " + columns + " FROM (" + list + ", rank() OVER (" + by + ") AS c0" +
           parts.tail + ") WHERE c0<=" + value_of(select.top->count).text + " ORDER BY c0";
}

} // namespace tsql::sqlite
