// Queries and tables as forms.
#include "tsql/syntax/form.h"

namespace tsql {

namespace {

Form alias_form(const Name& alias) {
    return alias.empty() ? Form{} : Form::atom("as " + form_of(alias).head);
}

Form join_form(const Join& join) {
    constexpr const char* heads[] = {"join",       "left-join",   "right-join", "full-join",
                                     "cross-join", "cross-apply", "outer-apply"};
    return list_of(heads[static_cast<std::size_t>(join.type)],
                   {form_of(*join.left), form_of(*join.right), wrapped("on", form_of(join.on))});
}

Form named_form(const NamedTable& table) {
    if (table.alias.empty() && table.hints.empty()) return form_of(table.name);
    return list_of(
        "table", {form_of(table.name), alias_form(table.alias), names_form("hints", table.hints)});
}

Form function_form(const FunctionTable& table) {
    Form form = list_of("table-call", {form_of(table.name)});
    for (const ExpressionPtr& argument : table.arguments) form.parts.push_back(form_of(argument));
    if (!table.alias.empty()) form.parts.push_back(alias_form(table.alias));
    if (!table.columns.empty()) form.parts.push_back(names_form("columns", table.columns));
    return form;
}

Form select_form(const Select& select) {
    Form form = list_of("select");
    if (select.distinct) form.parts.push_back(Form::atom("distinct"));
    if (select.top) form.parts.push_back(top_form(select.top));
    for (const SelectItem& item : select.items) form.parts.push_back(form_of(item));
    if (select.into) form.parts.push_back(wrapped("into", form_of(*select.into)));
    if (!select.from.empty()) form.parts.push_back(from_form(select.from));
    if (select.where) form.parts.push_back(wrapped("where", form_of(select.where)));
    if (!select.group_by.empty()) {
        constexpr const char* heads[] = {"group", "group-rollup", "group-cube"};
        Form group = list_of(heads[static_cast<std::size_t>(select.grouping)]);
        for (const ExpressionPtr& part : select.group_by) group.parts.push_back(form_of(part));
        form.parts.push_back(std::move(group));
    }
    if (select.having) form.parts.push_back(wrapped("having", form_of(select.having)));
    return form;
}

} // namespace

std::string assign_sign(AssignOperator op) {
    constexpr const char* signs[] = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^="};
    return signs[static_cast<std::size_t>(op)];
}

Form top_form(const std::optional<Top>& top) {
    if (!top) return {};
    return list_of("top", {form_of(top->count), Form::atom(top->percent ? "percent" : ""),
                           Form::atom(top->with_ties ? "with-ties" : "")});
}

Form form_of(const SelectItem& item) {
    switch (item.kind) {
    case SelectItemKind::Star:
        return Form::atom(item.star_of.parts.empty() ? "*" : form_of(item.star_of).head + ".*");
    case SelectItemKind::Assignment:
        return list_of("assign", {Form::atom(item.variable + " " + assign_sign(item.assign)),
                                  form_of(item.expression)});
    case SelectItemKind::Expression: break;
    }
    if (item.alias.empty()) return form_of(item.expression);
    return list_of("item", {form_of(item.expression), alias_form(item.alias)});
}

Form rows_form(const std::vector<ValueRow>& rows) {
    Form form = list_of("values");
    for (const ValueRow& row : rows) {
        Form row_form = list_of("");
        for (const ExpressionPtr& value : row) row_form.parts.push_back(form_of(value));
        form.parts.push_back(std::move(row_form));
    }
    return form;
}

Form from_form(const std::vector<TableSourcePtr>& tables) {
    if (tables.empty()) return {};
    Form form = list_of("from");
    for (const TableSourcePtr& table : tables) form.parts.push_back(form_of(*table));
    return form;
}

Form form_of(const TableSource& table) {
    switch (table.kind) {
    case TableSourceKind::NamedTable: return named_form(as<NamedTable>(table));
    case TableSourceKind::Join: return join_form(as<Join>(table));
    case TableSourceKind::FunctionTable: return function_form(as<FunctionTable>(table));
    case TableSourceKind::DerivedTable: {
        const auto& derived = as<DerivedTable>(table);
        return list_of("derived", {form_of(*derived.query), alias_form(derived.alias),
                                   names_form("columns", derived.columns)});
    }
    case TableSourceKind::ValuesTable: {
        const auto& values = as<ValuesTable>(table);
        return list_of("derived", {rows_form(values.rows), alias_form(values.alias),
                                   names_form("columns", values.columns)});
    }
    }
    return {};
}

Form form_of(const QueryBody& body) {
    if (const auto* select = as_if<Select>(&body)) return select_form(*select);
    constexpr const char* heads[] = {"union", "union-all", "except", "intersect"};
    const auto& operation = as<SetOperation>(body);
    Form form = list_of(heads[static_cast<std::size_t>(operation.op)]);
    for (const QueryBodyPtr& branch : operation.branches) form.parts.push_back(form_of(*branch));
    return form;
}

Form with_form(const std::vector<CommonTable>& tables) {
    if (tables.empty()) return {};
    Form form = list_of("with");
    for (const CommonTable& table : tables)
        form.parts.push_back(
            list_of(form_of(table.name).head,
                    {names_form("columns", table.columns), form_of(*table.query)}));
    return form;
}

Form form_of(const Query& query) {
    Form body = form_of(*query.body);
    const bool plain = query.with.empty() && query.order.empty() && !query.max_recursion &&
                       !query.force_order;
    if (plain) return body;
    return list_of(
        "query", {with_form(query.with), std::move(body), form_of(query.order),
                  wrapped("offset", form_of(query.offset)), wrapped("fetch", form_of(query.fetch)),
                  query.max_recursion
                      ? wrapped("max-recursion", Form::atom(std::to_string(*query.max_recursion)))
                      : Form{},
                  query.force_order ? Form::atom("force-order") : Form{}});
}

} // namespace tsql
