// One statement to its steps.
#include "tsql/planner/planner.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

const Type message_type = Type::nvarchar(4000);

} // namespace

void Planner::plan_now(const Statement& statement, Steps& out) {
    switch (statement.kind) {
    case StatementKind::Query: return query(as<QueryStatement>(statement), out);
    case StatementKind::Insert: return insert(as<Insert>(statement), out);
    case StatementKind::Update: return update(as<Update>(statement), out);
    case StatementKind::Delete: return remove(as<Delete>(statement), out);
    case StatementKind::Truncate: return truncate(as<Truncate>(statement), out);
    case StatementKind::Block: return add(statement, BlockStep{body(statement)}, out);
    case StatementKind::If: return plan_if(as<If>(statement), out);
    case StatementKind::While: return plan_while(as<While>(statement), out);
    case StatementKind::Break: return add(statement, BreakStep{}, out);
    case StatementKind::Continue: return add(statement, ContinueStep{}, out);
    case StatementKind::Return: return plan_return(as<Return>(statement), out);
    case StatementKind::Try: return plan_try(as<Try>(statement), out);
    case StatementKind::Print:
        return add(statement, PrintStep{value_text(*as<Print>(statement).message, &message_type)},
                   out);
    case StatementKind::RaiseError: return raise_error(as<RaiseError>(statement), out);
    case StatementKind::Throw: return plan_throw(as<Throw>(statement), out);
    case StatementKind::Declare: return declare_variables(as<Declare>(statement), out);
    case StatementKind::DeclareTable: {
        const auto& table = as<DeclareTable>(statement);
        return add(statement, declare_table(table.name, table.definition, *text), out);
    }
    case StatementKind::SetVariable: return set_variable(as<SetVariable>(statement), out);
    case StatementKind::SetOption: return set_option(as<SetOption>(statement), out);
    case StatementKind::DeclareCursor: {
        const auto& cursor = as<DeclareCursor>(statement);
        BindContext bind = context();
        const auto bound = Binder(bind).bind_query(*cursor.query, nullptr, true);
        return add(statement, DeclareCursorStep{cursor.name.text, query_of(*bound)}, out);
    }
    case StatementKind::OpenCursor:
        return add(statement, OpenCursorStep{as<OpenCursor>(statement).name.text}, out);
    case StatementKind::FetchCursor: return fetch(as<FetchCursor>(statement), out);
    case StatementKind::CloseCursor:
        return add(statement, CloseCursorStep{as<CloseCursor>(statement).name.text}, out);
    case StatementKind::DeallocateCursor:
        return add(statement, DeallocateCursorStep{as<DeallocateCursor>(statement).name.text}, out);
    case StatementKind::Execute: return execute(as<Execute>(statement), out);
    case StatementKind::ExecuteText:
        return add(statement,
                   ExecuteTextStep{value_text(*as<ExecuteText>(statement).text, &message_type)},
                   out);
    case StatementKind::BeginTransaction:
        return add(statement, BeginTransactionStep{as<BeginTransaction>(statement).name.text}, out);
    case StatementKind::Commit: return add(statement, CommitStep{}, out);
    case StatementKind::Rollback:
        return add(statement, RollbackStep{as<Rollback>(statement).name.text}, out);
    case StatementKind::SaveTransaction:
        return add(statement, SaveTransactionStep{as<SaveTransaction>(statement).name.text}, out);
    default: return plan_definition(statement, out);
    }
}

void Planner::plan_if(const If& statement, Steps& out) {
    IfStep step;
    const LineColumn at = at_;
    step.condition = condition_text(*statement.condition, out);
    step.then = body(*statement.then);
    if (statement.otherwise) {
        step.otherwise = body(*statement.otherwise);
    }
    at_ = at;
    add(statement, std::move(step), out);
}

void Planner::plan_while(const While& statement, Steps& out) {
    WhileStep step;
    const LineColumn at = at_;
    step.condition = condition_text(*statement.condition, out);
    step.body = body(*statement.body);
    at_ = at;
    add(statement, std::move(step), out);
}

void Planner::plan_try(const Try& statement, Steps& out) {
    TryStep step;
    const LineColumn at = at_;
    plan_all(statement.body, step.body);
    plan_all(statement.handler, step.handler);
    at_ = at;
    add(statement, std::move(step), out);
}

void Planner::plan_return(const Return& statement, Steps& out) {
    ReturnStep step;
    if (statement.value) {
        const Type type = surroundings.in_function ? surroundings.return_type : Type::integer();
        step.value = value_text(*statement.value, &type);
    }
    add(statement, std::move(step), out);
}

void Planner::plan_throw(const Throw& statement, Steps& out) {
    ThrowStep step;
    if (statement.number) {
        BindContext bind = context();
        Binder binder(bind);
        Scope none;
        step.values = emitter().values(
            {binder.convert(binder.bind_value(*statement.number, none), Type::integer()),
             binder.convert(binder.bind_value(*statement.message, none), message_type),
             binder.convert(binder.bind_value(*statement.state, none), Type::integer())});
    }
    add(statement, std::move(step), out);
}

} // namespace tsql
