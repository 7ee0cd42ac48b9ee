// Variables, branches, loops, messages, options and cursors as forms.
#include "tsql/syntax/form.h"

namespace tsql {

namespace {

Form declare_form(const Declare& declare) {
    Form form = list_of("declare");
    for (const VariableDeclaration& variable : declare.variables)
        form.parts.push_back(list_of(
            variable.name, {form_of(variable.type), wrapped("=", form_of(variable.initial))}));
    return form;
}

Form raise_form(const RaiseError& raise) {
    Form form = list_of("raiserror",
                        {form_of(raise.message), form_of(raise.severity), form_of(raise.state)});
    for (const ExpressionPtr& argument : raise.arguments) form.parts.push_back(form_of(argument));
    if (!raise.options.empty()) form.parts.push_back(names_form("with", raise.options));
    return form;
}

Form option_form(const SetOption& set) {
    Form form = list_of("set-option");
    for (const Name& option : set.options) form.parts.push_back(form_of(option));
    if (set.table) form.parts.push_back(form_of(*set.table));
    if (set.on) form.parts.push_back(Form::atom(*set.on ? "on" : "off"));
    if (!set.value.empty()) form.parts.push_back(Form::atom(set.value));
    return form;
}

Form fetch_form(const FetchCursor& fetch) {
    constexpr const char* directions[] = {"next", "prior", "first", "last", "absolute", "relative"};
    Form form = list_of("fetch", {Form::atom(directions[static_cast<std::size_t>(fetch.direction)]),
                                  form_of(fetch.position), form_of(fetch.name)});
    for (const std::string& variable : fetch.into) form.parts.push_back(Form::atom(variable));
    return form;
}

Form cursor_form(const Statement& statement) {
    switch (statement.kind) {
    case StatementKind::DeclareCursor: {
        const auto& declare = as<DeclareCursor>(statement);
        return list_of("declare-cursor",
                       {form_of(declare.name), names_form("options", declare.options),
                        form_of(*declare.query)});
    }
    case StatementKind::OpenCursor:
        return list_of("open", {form_of(as<OpenCursor>(statement).name)});
    case StatementKind::FetchCursor: return fetch_form(as<FetchCursor>(statement));
    case StatementKind::CloseCursor:
        return list_of("close", {form_of(as<CloseCursor>(statement).name)});
    case StatementKind::DeallocateCursor:
        return list_of("deallocate", {form_of(as<DeallocateCursor>(statement).name)});
    default: return {};
    }
}

Form variable_form(const Statement& statement) {
    switch (statement.kind) {
    case StatementKind::Declare: return declare_form(as<Declare>(statement));
    case StatementKind::DeclareTable: {
        Form form = form_of(as<DeclareTable>(statement).definition);
        form.head = "declare-table " + as<DeclareTable>(statement).name;
        return form;
    }
    case StatementKind::SetVariable: {
        const auto& set = as<SetVariable>(statement);
        return list_of("set",
                       {Form::atom(set.name + " " + assign_sign(set.op)), form_of(set.value)});
    }
    case StatementKind::SetOption: return option_form(as<SetOption>(statement));
    default: return cursor_form(statement);
    }
}

} // namespace

Form flow_form(const Statement& statement) {
    switch (statement.kind) {
    case StatementKind::Block: return body_form("block", as<Block>(statement).statements);
    case StatementKind::If: {
        const auto& branch = as<If>(statement);
        return list_of("if",
                       {form_of(branch.condition), form_of(*branch.then),
                        branch.otherwise ? wrapped("else", form_of(*branch.otherwise)) : Form{}});
    }
    case StatementKind::While:
        return list_of("while", {form_of(as<While>(statement).condition),
                                 form_of(*as<While>(statement).body)});
    case StatementKind::Break: return list_of("break");
    case StatementKind::Continue: return list_of("continue");
    case StatementKind::Return: return list_of("return", {form_of(as<Return>(statement).value)});
    case StatementKind::Try:
        return list_of("try", {body_form("body", as<Try>(statement).body),
                               body_form("catch", as<Try>(statement).handler)});
    case StatementKind::Print: return list_of("print", {form_of(as<Print>(statement).message)});
    case StatementKind::RaiseError: return raise_form(as<RaiseError>(statement));
    case StatementKind::Throw: {
        const auto& raise = as<Throw>(statement);
        return list_of("throw",
                       {form_of(raise.number), form_of(raise.message), form_of(raise.state)});
    }
    default: return variable_form(statement);
    }
}

} // namespace tsql
