// Variables, branches, loops, errors, calls, cursors, transactions.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/definition.h"
#include "tsql/planner/planner.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

PlanVariable& Planner::declare(const std::string& name, const Type& type, SourceRange at) {
    if (variables_.find(name) >= 0) {
        throw Refusal(134, at,
                      "The variable name '" + name +
                          "' has already been declared. Variable names "
                          "must be unique within a query batch or stored procedure.");
    }
    variables_.slots.push_back({name, type});
    return variables_.slots.back();
}

Type Planner::type_of(const TypeName& name, int default_length) {
    BindContext bind = context();
    return Binder(bind).bind_type(name, default_length);
}

SqlText Planner::value_text(const Expression& expression, const Type* type) {
    BindContext bind = context();
    Binder binder(bind);
    Scope none;
    BoundPtr value = binder.bind_value(expression, none);
    if (type != nullptr) {
        value = binder.convert(std::move(value), *type);
    }
    return emitter().values({value});
}

SqlText Planner::condition_text(const Expression& condition, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    Scope none;
    const BoundPtr bound = binder.bind_condition(condition, none);
    SqlText text = emitter().values({bound});
    add_fills(bind, out);
    return text;
}

PrepareTable Planner::declare_table(const std::string& name, const TableDefinition& definition,
                                    std::string_view from) {
    BindContext bind = context();
    Binder binder(bind);
    const auto table = binder.bind_table(name, definition, from);
    PrepareTable step;
    step.create = sqlite::create_table(*table, binder, true);
    step.clear.text = "DELETE FROM temp." + quoted_name(table->stored_name);
    variables_.tables[name] = table;
    return step;
}

void Planner::declare_variables(const Declare& statement, Steps& out) {
    for (const VariableDeclaration& variable : statement.variables) {
        declare(variable.name, type_of(variable.type, 1), variable.at);
        if (variable.initial) {
            const int slot = static_cast<int>(variables_.slots.size()) - 1;
            const Type type = variables_.slots.back().type;
            add(statement, SqlAssign{value_text(*variable.initial, &type), {slot}, false}, out);
        }
    }
}

void Planner::set_variable(const SetVariable& statement, Steps& out) {
    const int slot = variables_.find(statement.name);
    if (slot < 0) {
        throw Refusal(137, statement.name_at,
                      "Must declare the scalar variable \"" + statement.name + "\".");
    }
    BindContext bind = context();
    Binder binder(bind);
    Scope none;
    BoundPtr value = binder.bind_value(*statement.value, none);
    const Type type = variables_.slots[static_cast<std::size_t>(slot)].type;
    if (statement.op != AssignOperator::Assign) {
        Variable old;
        old.name = statement.name;
        old.at = statement.name_at;
        const auto op = static_cast<BinaryOperator>(static_cast<int>(statement.op) - 1);
        value = binder.combine(op, binder.bind_value(old, none), std::move(value), statement.at);
    }
    SqlAssign step{emitter().values({binder.convert(std::move(value), type)}), {slot}, false};
    add_fills(bind, out);
    add(statement, std::move(step), out);
}

void Planner::raise_error(const RaiseError& statement, Steps& out) {
    BindContext bind = context();
    Binder binder(bind);
    Scope none;
    std::vector<BoundPtr> values{binder.bind_value(*statement.message, none),
                                 binder.bind_value(*statement.severity, none),
                                 binder.bind_value(*statement.state, none)};
    for (const ExpressionPtr& argument : statement.arguments) {
        values.push_back(binder.bind_value(*argument, none));
    }
    RaiseErrorStep step;
    for (const BoundPtr& value : values) {
        step.columns.push_back({"", value->type, value->nullable});
    }
    step.values = emitter().values(values);
    add(statement, std::move(step), out);
}

void Planner::execute(const Execute& statement, Steps& out) {
    ExecuteStep step;
    step.procedure = statement.procedure.object().text;
    const auto slot_of = [&](const std::string& name, SourceRange at) {
        const int slot = variables_.find(name);
        if (slot < 0) {
            throw Refusal(137, at, "Must declare the scalar variable \"" + name + "\".");
        }
        return slot;
    };
    if (!statement.return_variable.empty()) {
        step.return_slot = slot_of(statement.return_variable, statement.at);
        step.return_type = variables_.slots[static_cast<std::size_t>(step.return_slot)].type;
    }
    for (const Argument& argument : statement.arguments) {
        ExecuteArgument given;
        given.parameter = argument.name;
        if (argument.value->kind != ExpressionKind::DefaultMark) {
            BindContext bind = context();
            Binder binder(bind);
            Scope none;
            const BoundPtr value = binder.bind_value(*argument.value, none);
            given.value = SqlQuery{emitter().values({value}), {{"", value->type, value->nullable}}};
        }
        if (argument.output) {
            const auto* variable = as_if<Variable>(argument.value.get());
            if (variable == nullptr) {
                throw Refusal(179, argument.at,
                              "Cannot use the OUTPUT option when passing a constant to a stored "
                              "procedure.");
            }
            given.output_slot = slot_of(variable->name, argument.at);
            given.type = variables_.slots[static_cast<std::size_t>(given.output_slot)].type;
        }
        step.arguments.push_back(std::move(given));
    }
    add(statement, std::move(step), out);
}

void Planner::set_option(const SetOption& statement, Steps& out) {
    for (const Name& option : statement.options) {
        SetOptionStep step;
        step.option = option.text;
        step.on = statement.on.value_or(false);
        step.value = statement.value;
        if (statement.table) {
            const auto table = catalog_.find_table(statement.table->object().text);
            if (!table) {
                throw Refusal(1088, statement.table->at,
                              "Cannot find the object '" + statement.table->object().text + "'.");
            }
            step.table = table->name;
        }
        add(statement, std::move(step), out);
    }
}

void Planner::fetch(const FetchCursor& statement, Steps& out) {
    FetchCursorStep step;
    step.direction = statement.direction;
    step.name = statement.name.text;
    if (statement.position) {
        const Type type = Type::integer();
        step.position = value_text(*statement.position, &type);
    }
    for (const std::string& name : statement.into) {
        const int slot = variables_.find(name);
        if (slot < 0) {
            throw Refusal(137, statement.at, "Must declare the scalar variable \"" + name + "\".");
        }
        step.slots.push_back(slot);
        step.types.push_back(variables_.slots[static_cast<std::size_t>(slot)].type);
    }
    add(statement, std::move(step), out);
}

Steps Planner::body(const Statement& statement) {
    Steps steps;
    if (statement.kind == StatementKind::Block) {
        plan_all(as<Block>(statement).statements, steps);
    } else {
        plan(statement, steps, true);
    }
    return steps;
}

} // namespace tsql
