// Whole queries: WITH, set operations, order and limits.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

namespace {

const char* operator_text(SetOperator op) {
    switch (op) {
    case SetOperator::Union: return " UNION ";
    case SetOperator::UnionAll: return " UNION ALL ";
    case SetOperator::Except: return " EXCEPT ";
    case SetOperator::Intersect: return " INTERSECT ";
    }
    return "";
}

bool drops_duplicates(const BoundBody& body) {
    if (body.kind == BoundBodyKind::Select) {
        return false;
    }
    const auto& node = static_cast<const BoundSetOperation&>(body);
    bool found = node.op != SetOperator::UnionAll;
    for (const auto& branch : node.branches) {
        found = found || drops_duplicates(*branch);
    }
    return found;
}

} // namespace

SqlText Emitter::query(const BoundQuery& query) {
    std::vector<ColumnForm> forms;
    std::string text = query_text(query, nullptr, forms, false);
    return finish(std::move(text));
}

SqlText Emitter::values(const std::vector<BoundPtr>& values) {
    std::string text;
    for (const BoundPtr& value : values) {
        text += (text.empty() ? "SELECT " : ", ") +
                (value->is_condition() ? condition(value) : stored_value(value, value->type));
    }
    return finish(std::move(text));
}

std::string Emitter::query_text(const BoundQuery& query, const std::vector<bool>* used,
                                std::vector<ColumnForm>& forms, bool named) {
    force_order_ = force_order_ || query.force_order;
    const bool limited = !query.order.empty() || query.offset || query.fetch;
    const std::string with = with_clause(query.with);
    return with + body_text(*query.body, &query, limited ? nullptr : used, forms, named);
}

std::string Emitter::body_text(const BoundBody& body, const BoundQuery* owner,
                               const std::vector<bool>* used, std::vector<ColumnForm>& forms,
                               bool named) {
    if (body.kind == BoundBodyKind::Select) {
        return select_text(static_cast<const BoundSelect&>(body), owner, used, forms, named);
    }
    std::string text = set_operation_text(static_cast<const BoundSetOperation&>(body),
                                          drops_duplicates(body) ? nullptr : used, forms, named);
    if (owner != nullptr) {
        text += order_text(*owner, nullptr, true) + limit_text(*owner, nullptr);
    }
    return text;
}

std::string Emitter::with_clause(const std::vector<std::shared_ptr<BoundCommonTable>>& with) {
    std::string text;
    bool recursive = false;
    for (const auto& common : with) {
        recursive = recursive || common->recursive;
        text += (text.empty() ? "" : ", ") + common_table(*common);
    }
    return text.empty() ? "" : (recursive ? "WITH RECURSIVE " : "WITH ") + text + " ";
}

std::string Emitter::common_table(const BoundCommonTable& common) {
    std::string head = "w" + std::to_string(common.id) + "(";
    for (std::size_t i = 0; i < common.columns.size(); ++i) {
        head += (i == 0 ? "c" : ", c") + std::to_string(i + 1);
    }
    std::vector<ColumnForm> forms;
    if (!common.recursive) {
        const std::string text = query_text(*common.query, nullptr, forms, true);
        forms_[common.id] = std::move(forms);
        return head + ") AS (" + text + ")";
    }
    // Every column keeps one form through all rounds: that of its type. The last column counts the
    // rounds, so that a circle in the data ends in an error and not never.
    for (const RangeColumn& column : common.columns) {
        forms.push_back({form_of(column.type), bound_of(column.type)});
    }
    forms_[common.id] = forms;
    const auto& body = static_cast<const BoundSetOperation&>(*common.query->body);
    std::string text;
    for (std::size_t b = 0; b < body.branches.size(); ++b) {
        const auto& select = static_cast<const BoundSelect&>(*body.branches[b]);
        SelectParts parts = select_parts(select, 0, nullptr);
        for (std::size_t i = 0; i < parts.items.size(); ++i) {
            Fragment& item = parts.items[i];
            if (item.form != forms[i].form && item.text != "NULL") {
                item.text =
                    (forms[i].form == Form::Wide ? "zf_wide(" : "zf_narrow(") + item.text + ")";
            }
        }
        std::string round = "0";
        for (std::size_t at = parts.tail.find("w" + std::to_string(common.id) + " AS t");
             at != std::string::npos && round == "0"; at = std::string::npos) {
            const std::size_t alias = parts.tail.find(" AS t", at) + 4;
            std::size_t end = alias + 1;
            while (end < parts.tail.size() && parts.tail[end] >= '0' && parts.tail[end] <= '9') {
                ++end;
            }
            round = parts.tail.substr(alias, end - alias) + ".c0+1";
        }
        if (round != "0" && common.max_recursion > 0) {
            parts.tail += (select.where ? " AND (" : " WHERE (") + round +
                          "<=" + std::to_string(common.max_recursion) +
                          " OR zf_raise(530,'The statement terminated. The maximum recursion " +
                          std::to_string(common.max_recursion) +
                          " has been exhausted before statement completion.'))";
        }
        Fragment counter;
        counter.text = round;
        parts.items.push_back(counter);
        text += (b == 0 ? "" : " UNION ALL ") + list_text(parts.items, select, false, false) +
                parts.tail;
    }
    return head + ", c0) AS (" + text + ")";
}

void Emitter::branches_of(const BoundBody& body, const std::vector<bool>* used,
                          std::vector<std::pair<const BoundSelect*, SelectParts>>& out) {
    if (body.kind == BoundBodyKind::SetOperation) {
        for (const auto& branch : static_cast<const BoundSetOperation&>(body).branches) {
            branches_of(*branch, used, out);
        }
        return;
    }
    const auto& select = static_cast<const BoundSelect&>(body);
    if (!select.top && select.grouping_sets.size() <= 1) {
        out.emplace_back(&select, select_parts(select, 0, used));
        return;
    }
    // A branch with a limit of its own, or with several groupings, becomes a table of its own.
    std::vector<ColumnForm> forms;
    SelectParts parts;
    parts.tail = " FROM (" + select_text(select, nullptr, nullptr, forms, true) + ")";
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        Fragment item;
        item.text = "c" + std::to_string(i + 1);
        item.form = forms[i].form;
        item.bound = forms[i].bound;
        parts.items.push_back(std::move(item));
    }
    out.emplace_back(&select, std::move(parts));
}

namespace {

// Joins the texts of leaf selects by the operators of the tree. SQLite reads a compound from the
// left with one precedence, so only a branch further right that is itself a compound needs a
// table around it.
std::string joined(const BoundBody& body, const std::vector<std::string>& leaves,
                   std::size_t& next) {
    if (body.kind == BoundBodyKind::Select) {
        return leaves[next++];
    }
    const auto& node = static_cast<const BoundSetOperation&>(body);
    std::string text;
    for (std::size_t i = 0; i < node.branches.size(); ++i) {
        const bool compound = node.branches[i]->kind == BoundBodyKind::SetOperation;
        const std::string branch = joined(*node.branches[i], leaves, next);
        if (i > 0) {
            text += operator_text(node.op);
        }
        text += compound && i > 0 ? "SELECT * FROM (" + branch + ")" : branch;
    }
    return text;
}

} // namespace

std::string Emitter::set_operation_text(const BoundSetOperation& node,
                                        const std::vector<bool>* used,
                                        std::vector<ColumnForm>& forms, bool named) {
    std::vector<std::pair<const BoundSelect*, SelectParts>> branches;
    branches_of(node, used, branches);
    const std::size_t count = branches.front().second.items.size();
    forms.assign(count, {});
    for (std::size_t i = 0; i < count; ++i) {
        std::vector<Fragment> column;
        for (auto& branch : branches) {
            column.push_back(std::move(branch.second.items[i]));
        }
        column = same_form(std::move(column));
        for (std::size_t b = 0; b < branches.size(); ++b) {
            forms[i].form = column[b].form;
            forms[i].bound = std::max(forms[i].bound, column[b].bound);
            branches[b].second.items[i] = std::move(column[b]);
        }
    }
    std::vector<std::string> leaves;
    const bool distinct = drops_duplicates(node);
    for (auto& [select, parts] : branches) {
        leaves.push_back(list_text(parts.items, *select, distinct, named) + parts.tail);
    }
    std::size_t next = 0;
    return joined(node, leaves, next);
}

std::string Emitter::order_text(const BoundQuery& query, const BoundSelect* select,
                                bool by_number) {
    std::string text;
    for (const BoundOrder& order : query.order) {
        std::string item;
        if (order.item >= 0) {
            const auto number = static_cast<std::size_t>(order.item);
            item = std::to_string(order.item + 1);
            const RangeColumn& column = query.columns[number];
            const bool column_itself =
                select != nullptr && !by_number &&
                select->items[number].expression->kind == BoundKind::Column &&
                column.collation == Collation::Database &&
                static_cast<const BoundColumn&>(*select->items[number].expression).table->kind ==
                    RangeKind::Table;
            if (column.type.is_text() && !column_itself) {
                Fragment fragment;
                fragment.text = item;
                BoundLiteral shown;
                shown.type = column.type;
                shown.collation = column.collation;
                item = collated(fragment, shown);
            }
        } else {
            item = collated(order.expression);
        }
        text += (text.empty() ? " ORDER BY " : ", ") + item + (order.descending ? " DESC" : "");
    }
    return text;
}

std::string Emitter::limit_text(const BoundQuery& query, const BoundSelect* select) {
    if (select != nullptr && select->top && !select->top->percent && !select->top->with_ties) {
        return " LIMIT " + value_of(select->top->count).text;
    }
    if (!query.offset && !query.fetch) {
        return "";
    }
    return " LIMIT " + (query.fetch ? value_of(query.fetch).text : std::string("-1")) +
           (query.offset ? " OFFSET " + value_of(query.offset).text : "");
}

} // namespace tsql::sqlite
