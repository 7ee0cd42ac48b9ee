// Tables, indexes and routines as forms.
#include "tsql/syntax/form.h"

namespace tsql {

namespace {

Form flag(bool set, const char* word) {
    return Form::atom(set ? word : "");
}

Form index_columns_form(const std::vector<IndexColumn>& columns) {
    if (columns.empty()) return {};
    Form form = list_of("columns");
    for (const IndexColumn& column : columns)
        form.parts.push_back(column.descending ? wrapped("desc", form_of(column.name))
                                               : form_of(column.name));
    return form;
}

Form references_form(const ForeignKey& key) {
    constexpr const char* actions[] = {"", "cascade", "set-null", "set-default"};
    const auto action = [&](ReferentialAction a) {
        return Form::atom(actions[static_cast<std::size_t>(a)]);
    };
    return list_of("references", {form_of(key.table), names_form("columns", key.columns),
                                  wrapped("on-delete", action(key.on_delete)),
                                  wrapped("on-update", action(key.on_update))});
}

Form column_form(const ColumnDefinition& column) {
    Form form = list_of("column", {form_of(column.name)});
    if (column.computed)
        form.parts.push_back(wrapped("computed", form_of(column.computed)));
    else
        form.parts.push_back(form_of(column.type));
    for (Form& part : std::vector<Form>{
             flag(column.persisted, "persisted"),
             column.nullable ? Form::atom(*column.nullable ? "null" : "not-null") : Form{},
             column.identity
                 ? list_of("identity", {Form::atom(std::to_string(column.identity->seed)),
                                        Form::atom(std::to_string(column.identity->increment))})
                 : Form{},
             column.collation ? wrapped("collate", form_of(*column.collation)) : Form{},
             flag(column.rowguidcol, "rowguidcol")})
        if (part) form.parts.push_back(std::move(part));
    for (const Constraint& constraint : column.constraints)
        form.parts.push_back(form_of(constraint));
    return form;
}

Form alter_form(const AlterTable& alter) {
    constexpr const char* actions[] = {"add",
                                       "alter-column",
                                       "drop-column",
                                       "drop-constraint",
                                       "check-constraint",
                                       "nocheck-constraint",
                                       "enable-trigger",
                                       "disable-trigger"};
    Form action = list_of(actions[static_cast<std::size_t>(alter.action)]);
    if (alter.if_exists) action.parts.push_back(Form::atom("if-exists"));
    if (alter.all) action.parts.push_back(Form::atom("all"));
    for (Form& part : form_of(alter.add).parts) action.parts.push_back(std::move(part));
    for (const Name& name : alter.names) action.parts.push_back(form_of(name));
    return list_of("alter-table", {form_of(alter.name), std::move(action)});
}

Form create_index_form(const CreateIndex& index) {
    return list_of("create-index",
                   {form_of(index.name), flag(index.unique, "unique"),
                    flag(index.clustered, "clustered"), wrapped("on", form_of(index.table)),
                    index_columns_form(index.columns), names_form("include", index.include),
                    wrapped("where", form_of(index.where))});
}

Form drop_index_form(const DropIndex& drop) {
    Form form = list_of("drop-index", {flag(drop.if_exists, "if-exists")});
    for (const DropIndex::Target& target : drop.targets)
        form.parts.push_back(list_of("on", {form_of(target.table), form_of(target.index)}));
    return form;
}

Form drop_form(const Drop& drop) {
    constexpr const char* heads[] = {"drop-table", "drop-view", "drop-function", "drop-procedure",
                                     "drop-trigger"};
    Form form =
        list_of(heads[static_cast<std::size_t>(drop.object)], {flag(drop.if_exists, "if-exists")});
    for (const ObjectName& name : drop.names) form.parts.push_back(form_of(name));
    return form;
}

std::string mode_head(DefinitionMode mode, const char* object) {
    constexpr const char* modes[] = {"create-", "alter-", "create-or-alter-"};
    return modes[static_cast<std::size_t>(mode)] + std::string(object);
}

Form parameters_form(const std::vector<Parameter>& parameters) {
    if (parameters.empty()) return {};
    Form form = list_of("parameters");
    for (const Parameter& parameter : parameters)
        form.parts.push_back(
            list_of(parameter.name,
                    {form_of(parameter.type), wrapped("default", form_of(parameter.default_value)),
                     flag(parameter.output, "output")}));
    return form;
}

Form function_form(const CreateFunction& function) {
    Form result;
    switch (function.type) {
    case FunctionKind::Scalar: result = form_of(function.return_type); break;
    case FunctionKind::InlineTable: result = Form::atom("table"); break;
    case FunctionKind::MultiTable:
        result = form_of(function.return_table);
        result.head = function.return_variable;
        break;
    }
    return list_of(mode_head(function.mode, "function"),
                   {form_of(function.name), parameters_form(function.parameters),
                    wrapped("returns", std::move(result)),
                    function.query ? form_of(*function.query) : body_form("body", function.body)});
}

Form trigger_form(const CreateTrigger& trigger) {
    return list_of(mode_head(trigger.mode, "trigger"),
                   {form_of(trigger.name), wrapped("on", form_of(trigger.table)),
                    list_of(trigger.instead_of ? "instead-of" : "after",
                            {flag(trigger.on_insert, "insert"), flag(trigger.on_update, "update"),
                             flag(trigger.on_delete, "delete")}),
                    body_form("body", trigger.body)});
}

} // namespace

Form form_of(const Constraint& constraint) {
    constexpr const char* heads[] = {"primary-key", "unique", "check", "foreign-key", "default"};
    return list_of(heads[static_cast<std::size_t>(constraint.kind)],
                   {wrapped("name", form_of(constraint.name)),
                    flag(constraint.clustered, "clustered"), index_columns_form(constraint.columns),
                    form_of(constraint.expression), wrapped("for", form_of(constraint.default_for)),
                    constraint.kind == ConstraintKind::ForeignKey
                        ? references_form(constraint.references)
                        : Form{}});
}

Form form_of(const TableDefinition& definition) {
    Form form = list_of("");
    for (const ColumnDefinition& column : definition.columns)
        form.parts.push_back(column_form(column));
    for (const Constraint& constraint : definition.constraints)
        form.parts.push_back(form_of(constraint));
    return form;
}

Form definition_form(const Statement& statement) {
    switch (statement.kind) {
    case StatementKind::CreateTable: {
        const auto& table = as<CreateTable>(statement);
        Form form = form_of(table.definition);
        form.head = "create-table " + form_of(table.name).head;
        return form;
    }
    case StatementKind::AlterTable: return alter_form(as<AlterTable>(statement));
    case StatementKind::CreateIndex: return create_index_form(as<CreateIndex>(statement));
    case StatementKind::DropIndex: return drop_index_form(as<DropIndex>(statement));
    case StatementKind::Drop: return drop_form(as<Drop>(statement));
    case StatementKind::CreateView: {
        const auto& view = as<CreateView>(statement);
        return list_of(
            mode_head(view.mode, "view"),
            {form_of(view.name), names_form("columns", view.columns), form_of(*view.query)});
    }
    case StatementKind::CreateFunction: return function_form(as<CreateFunction>(statement));
    case StatementKind::CreateProcedure: {
        const auto& procedure = as<CreateProcedure>(statement);
        return list_of(mode_head(procedure.mode, "procedure"),
                       {form_of(procedure.name), parameters_form(procedure.parameters),
                        body_form("body", procedure.body)});
    }
    case StatementKind::CreateTrigger: return trigger_form(as<CreateTrigger>(statement));
    default: return {};
    }
}

} // namespace tsql
