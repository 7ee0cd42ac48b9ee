// Calls of functions: built-in ones by their table, the few whose type needs a rule of its own,
// and scalar functions of the database.
#include "tsql/binder/binder.h"
#include "tsql/functions/function_table.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

Type text_type(const std::vector<BoundPtr>& arguments, bool same_length) {
    bool national = false;
    for (const BoundPtr& argument : arguments) {
        national = national || argument->type.is_national();
    }
    const int longest = national ? 4000 : 8000;
    const int length = same_length ? arguments.front()->type.length : longest;
    return national ? Type::nvarchar(length) : Type::varchar(length);
}

Type number_type(const Type& first) {
    return first.kind == TypeKind::Bit || !first.is_number() ? Type::of(TypeKind::Float) : first;
}

Type result_type(const FunctionRule& rule, const std::vector<BoundPtr>& arguments) {
    switch (rule.result) {
    case FunctionResult::SameText: return text_type(arguments, true);
    case FunctionResult::LongText: return text_type(arguments, false);
    case FunctionResult::Int: return Type::integer();
    case FunctionResult::BigInt: return Type::decimal(38, 0);
    case FunctionResult::Float: return Type::of(TypeKind::Float);
    case FunctionResult::DateTime: return Type::of(TypeKind::DateTime);
    case FunctionResult::Date: return Type::of(TypeKind::Date);
    case FunctionResult::Guid: return Type::of(TypeKind::UniqueIdentifier);
    case FunctionResult::National: return Type::nvarchar(4000);
    case FunctionResult::NationalMax: return Type::nvarchar(Type::max_length);
    case FunctionResult::SameNumber: return arguments.front()->type;
    case FunctionResult::ScaleZero: break;
    }
    const Type& first = arguments.front()->type;
    return first.is_decimal() ? Type::decimal(first.precision, 0) : first;
}

std::string dotted(const ObjectName& name) {
    std::string text;
    for (const Name& part : name.parts) text += (text.empty() ? "" : ".") + part.text;
    return text;
}

[[noreturn]] void refuse_count(const FunctionCall& call, const std::string& name,
                               std::string_view kinds) {
    const auto required = std::min(kinds.find('?'), kinds.size());
    throw Refusal(174, call.at,
                  "The " + name + " function requires " + std::to_string(required) +
                      " argument(s).");
}

} // namespace

std::vector<BoundPtr> Binder::bind_arguments(const FunctionCall& call, Scope& scope) {
    std::vector<BoundPtr> arguments;
    for (const ExpressionPtr& argument : call.arguments) {
        arguments.push_back(bind_value(*argument, scope));
    }
    return arguments;
}

BoundPtr Binder::bind_call(const FunctionCall& call, Scope& scope) {
    if (call.name.parts.size() > 1) {
        return bind_user_function(call, scope);
    }
    const std::string name = fold_name(call.name.object().text);
    if (BoundPtr special = bind_typed_function(call, name, scope)) {
        return special;
    }
    if (BoundPtr date = bind_date_function(call, name, scope)) {
        return date;
    }
    if (BoundPtr aggregate = bind_aggregate(call, name, scope)) {
        return aggregate;
    }
    const FunctionRule* rule = function_rule(name);
    if (rule == nullptr) {
        throw Refusal(195, call.name.at,
                      "'" + call.name.object().text +
                          "' is not a recognized built-in function "
                          "name.");
    }
    auto bound = std::make_shared<BoundFunction>();
    bound->at = call.at;
    bound->name = name;
    bound->arguments = bind_arguments(call, scope);
    const auto required = std::min(rule->arguments.find('?'), rule->arguments.size());
    std::string kinds(rule->arguments);
    std::erase(kinds, '?');
    if (bound->arguments.size() < required || bound->arguments.size() > kinds.size()) {
        refuse_count(call, name, rule->arguments);
    }
    for (std::size_t i = 0; i < bound->arguments.size(); ++i) {
        BoundPtr& argument = bound->arguments[i];
        switch (kinds[i]) {
        case 't':
            argument = argument->type.is_text() ? argument : convert(argument, Type::varchar(8000));
            break;
        case 'i':
            argument = argument->type.is_integer() ? argument : convert(argument, Type::integer());
            break;
        case 'f': argument = convert(argument, Type::of(TypeKind::Float)); break;
        case 'd': argument = convert(argument, Type::of(TypeKind::DateTime)); break;
        case 'n': argument = convert(argument, number_type(argument->type)); break;
        default: break;
        }
    }
    bound->type = result_type(*rule, bound->arguments);
    if (!bound->arguments.empty()) {
        bound->collation = bound->arguments.front()->collation;
    }
    return bound;
}

BoundPtr Binder::bind_user_function(const FunctionCall& call, Scope& scope) {
    const std::string& name = call.name.object().text;
    const auto module = context_.catalog.find_module(CatalogKind::Function, name);
    const auto* function = module ? as_if<CreateFunction>(&module->syntax()) : nullptr;
    // dbo.dbo.F means the function of a database named dbo, and functions are never looked for
    // outside the books.
    const bool elsewhere = call.name.parts.size() > 2;
    if (elsewhere || function == nullptr || function->type != FunctionKind::Scalar) {
        throw Refusal(4121, call.name.at,
                      "Cannot find either column \"" + call.name.parts.front().text +
                          "\" or the user-defined function or aggregate \"" +
                          dotted(call.name) + "\", or the name is ambiguous.");
    }
    if (call.arguments.size() != function->parameters.size()) {
        const bool few = call.arguments.size() < function->parameters.size();
        throw Refusal(few ? 313 : 8144, call.at,
                      "The function '" + name + "' takes " +
                          std::to_string(function->parameters.size()) + " argument(s).");
    }
    auto bound = std::make_shared<BoundUserFunction>();
    bound->at = call.at;
    bound->name = module->name;
    bound->type = bind_type(function->return_type, 1);
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const Parameter& parameter = function->parameters[i];
        const Type type = bind_type(parameter.type, 1);
        if (call.arguments[i]->kind != ExpressionKind::DefaultMark) {
            bound->arguments.push_back(convert(bind_value(*call.arguments[i], scope), type));
            continue;
        }
        if (!parameter.default_value) {
            throw Refusal(201, call.arguments[i]->at,
                          "The function '" + name + "' expects parameter '" + parameter.name +
                              "', which has no default.");
        }
        const bool of_text = context_.literals.of_text;
        context_.literals.of_text = false;
        bound->arguments.push_back(convert(bind_value(*parameter.default_value, scope), type));
        context_.literals.of_text = of_text;
    }
    return bound;
}

} // namespace tsql
