// Statements that read and write rows, call, and end transactions, as forms.
#include "tsql/syntax/form.h"

namespace tsql {

namespace {

Form output_form(const std::optional<OutputClause>& output) {
    if (!output) return {};
    Form form = list_of("output");
    for (const SelectItem& item : output->items) form.parts.push_back(form_of(item));
    if (output->into) form.parts.push_back(wrapped("into", form_of(*output->into)));
    if (!output->into_columns.empty())
        form.parts.push_back(names_form("columns", output->into_columns));
    return form;
}

Form insert_form(const Insert& insert) {
    Form source = Form::atom("default-values");
    if (insert.source == InsertSource::Values) source = rows_form(insert.rows);
    if (insert.source == InsertSource::Query) source = form_of(*insert.query);
    if (insert.source == InsertSource::Execute) source = form_of(*insert.execute);
    return list_of("insert", {with_form(insert.with), top_form(insert.top), form_of(insert.target),
                              names_form("columns", insert.columns), output_form(insert.output),
                              std::move(source)});
}

Form assignment_form(const Assignment& assignment) {
    std::string target = assignment.variable;
    if (!assignment.column.parts.empty())
        target += (target.empty() ? "" : " = ") + form_of(assignment.column).head;
    return list_of(
        "set", {Form::atom(target + " " + assign_sign(assignment.op)), form_of(assignment.value)});
}

Form update_form(const Update& update) {
    Form form =
        list_of("update", {with_form(update.with), top_form(update.top), form_of(update.target)});
    for (const Assignment& assignment : update.set)
        form.parts.push_back(assignment_form(assignment));
    for (Form& part : std::vector<Form>{output_form(update.output), from_form(update.from),
                                        wrapped("where", form_of(update.where))})
        if (part) form.parts.push_back(std::move(part));
    return form;
}

Form delete_form(const Delete& statement) {
    return list_of("delete",
                   {with_form(statement.with), top_form(statement.top), form_of(statement.target),
                    output_form(statement.output), from_form(statement.from),
                    wrapped("where", form_of(statement.where))});
}

Form execute_form(const Execute& execute) {
    Form form = list_of("exec");
    if (!execute.return_variable.empty())
        form.parts.push_back(Form::atom(execute.return_variable + " ="));
    form.parts.push_back(form_of(execute.procedure));
    for (const Argument& argument : execute.arguments) {
        const Form value = form_of(argument.value);
        if (argument.name.empty() && !argument.output)
            form.parts.push_back(value);
        else
            form.parts.push_back(
                list_of("argument", {Form::atom(argument.name), value,
                                     Form::atom(argument.output ? "output" : "")}));
    }
    return form;
}

} // namespace

Form body_form(const std::string& head, const std::vector<StatementPtr>& statements) {
    Form form = list_of(head);
    for (const StatementPtr& statement : statements) form.parts.push_back(form_of(*statement));
    return form;
}

Form form_of(const Statement& statement) {
    switch (statement.kind) {
    case StatementKind::Query: return form_of(as<QueryStatement>(statement).query);
    case StatementKind::Insert: return insert_form(as<Insert>(statement));
    case StatementKind::Update: return update_form(as<Update>(statement));
    case StatementKind::Delete: return delete_form(as<Delete>(statement));
    case StatementKind::Truncate:
        return list_of("truncate", {form_of(as<Truncate>(statement).target)});
    case StatementKind::Execute: return execute_form(as<Execute>(statement));
    case StatementKind::ExecuteText:
        return list_of("exec-text", {form_of(as<ExecuteText>(statement).text)});
    case StatementKind::BeginTransaction:
        return list_of("begin-transaction", {form_of(as<BeginTransaction>(statement).name)});
    case StatementKind::Commit: return list_of("commit", {form_of(as<Commit>(statement).name)});
    case StatementKind::Rollback:
        return list_of("rollback", {form_of(as<Rollback>(statement).name)});
    case StatementKind::SaveTransaction:
        return list_of("save", {form_of(as<SaveTransaction>(statement).name)});
    default: break;
    }
    Form form = definition_form(statement);
    return form ? form : flow_form(statement);
}

} // namespace tsql
