// Functions whose type is a rule of its own: ISNULL, COALESCE, NULLIF, IIF, CHOOSE, CONCAT, dates,
// and the values of the session.
#include "tsql/binder/binder.h"
#include "tsql/functions/function_table.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

struct SystemFunction {
    std::string_view name;
    SystemValue value;
    Type type;
};

const SystemFunction* system_function(std::string_view name) {
    static const Type name_type = Type::nvarchar(128);
    static const SystemFunction functions[] = {
        {"GETDATE", SystemValue::Now, Type::of(TypeKind::DateTime)},
        {"SYSDATETIME", SystemValue::Now, Type::of(TypeKind::DateTime)},
        {"CURRENT_TIMESTAMP", SystemValue::Now, Type::of(TypeKind::DateTime)},
        {"SCOPE_IDENTITY", SystemValue::ScopeIdentity, Type::decimal(38, 0)},
        {"ERROR_NUMBER", SystemValue::ErrorNumber, Type::integer()},
        {"ERROR_MESSAGE", SystemValue::ErrorMessage, Type::nvarchar(4000)},
        {"ERROR_SEVERITY", SystemValue::ErrorSeverity, Type::integer()},
        {"ERROR_STATE", SystemValue::ErrorState, Type::integer()},
        {"ERROR_LINE", SystemValue::ErrorLine, Type::integer()},
        {"ERROR_PROCEDURE", SystemValue::ErrorProcedure, name_type},
        {"XACT_STATE", SystemValue::XactState, Type::of(TypeKind::SmallInt)},
        {"SYSTEM_USER", SystemValue::UserName, name_type},
        {"SUSER_SNAME", SystemValue::UserName, name_type},
        {"SUSER_NAME", SystemValue::UserName, name_type},
        {"CURRENT_USER", SystemValue::UserName, name_type},
        {"USER_NAME", SystemValue::UserName, name_type},
        {"ORIGINAL_LOGIN", SystemValue::UserName, name_type},
        {"HOST_NAME", SystemValue::HostName, name_type},
        {"DB_NAME", SystemValue::DatabaseName, name_type},
    };
    for (const SystemFunction& function : functions) {
        if (function.name == name) {
            return &function;
        }
    }
    return nullptr;
}

std::shared_ptr<BoundFunction> make_function(std::string name, SourceRange at, Type type,
                                             std::vector<BoundPtr> arguments) {
    auto bound = std::make_shared<BoundFunction>();
    bound->name = std::move(name);
    bound->at = at;
    bound->type = type;
    bound->arguments = std::move(arguments);
    if (!bound->arguments.empty()) {
        bound->collation = bound->arguments.front()->collation;
    }
    return bound;
}

void expect_count(const FunctionCall& call, const std::string& name, bool holds, int count) {
    if (!holds) {
        throw Refusal(174, call.at,
                      "The " + name + " function requires " + std::to_string(count) +
                          " argument(s).");
    }
}

} // namespace

BoundPtr Binder::bind_typed_function(const FunctionCall& call, const std::string& name,
                                     Scope& scope) {
    if (const SystemFunction* function = system_function(name)) {
        auto bound = std::make_shared<BoundValue>();
        bound->at = call.at;
        bound->source = ParameterSource::System;
        bound->system = function->value;
        bound->type = function->type;
        return bound;
    }
    if (name == "IIF" || name == "CHOOSE") {
        return bind_choice(call, name, scope);
    }
    if (name == "ISNULL" || name == "COALESCE") {
        return bind_first_value(call, name, scope);
    }
    if (name == "NULLIF") {
        return bind_null_if(call, scope);
    }
    if (name == "CONCAT") {
        return bind_concat(call, scope);
    }
    return nullptr;
}

BoundPtr Binder::bind_choice(const FunctionCall& call, const std::string& name, Scope& scope) {
    auto bound = std::make_shared<BoundCase>();
    bound->at = call.at;
    std::vector<BoundPtr*> values;
    if (name == "IIF") {
        expect_count(call, name, call.arguments.size() == 3, 3);
        bound->branches.push_back(
            {bind_condition(*call.arguments[0], scope), bind_value(*call.arguments[1], scope)});
        bound->otherwise = bind_value(*call.arguments[2], scope);
        values = {&bound->branches[0].then, &bound->otherwise};
    } else {
        expect_count(call, name, call.arguments.size() >= 2, 2);
        bound->subject = convert(bind_value(*call.arguments[0], scope), Type::integer());
        for (std::size_t i = 1; i < call.arguments.size(); ++i) {
            bound->branches.push_back({literal_int(static_cast<std::int64_t>(i), call.at),
                                       bind_value(*call.arguments[i], scope)});
        }
        for (BoundCaseBranch& branch : bound->branches) {
            values.push_back(&branch.then);
        }
    }
    bound->type = unify(values);
    return bound;
}

// ISNULL has the type of its first argument, COALESCE the highest of all.
BoundPtr Binder::bind_first_value(const FunctionCall& call, const std::string& name, Scope& scope) {
    const bool two = name == "ISNULL";
    expect_count(call, name, two ? call.arguments.size() == 2 : call.arguments.size() >= 2, 2);
    std::vector<BoundPtr> arguments = bind_arguments(call, scope);
    Type type;
    if (two) {
        type = arguments[0]->type.is_null() ? arguments[1]->type : arguments[0]->type;
        type = type.is_null() ? Type::integer() : type;
        arguments[0] = convert(arguments[0], type);
        arguments[1] = convert(arguments[1], type);
    } else {
        std::vector<BoundPtr*> values;
        for (BoundPtr& argument : arguments) {
            values.push_back(&argument);
        }
        type = unify(values);
    }
    if (type.is_null()) {
        throw Refusal(4127, call.at,
                      "At least one of the arguments to COALESCE must be an expression that is "
                      "not the NULL constant.");
    }
    auto bound = make_function("COALESCE", call.at, type, std::move(arguments));
    bound->nullable = bound->arguments.back()->nullable;
    return bound;
}

BoundPtr Binder::bind_null_if(const FunctionCall& call, Scope& scope) {
    expect_count(call, "NULLIF", call.arguments.size() == 2, 2);
    std::vector<BoundPtr> arguments = bind_arguments(call, scope);
    auto bound = std::make_shared<BoundCase>();
    bound->at = call.at;
    bound->type = arguments[0]->type;
    bound->collation = arguments[0]->collation;
    bound->branches.push_back(
        {compare(ComparisonOperator::Equal, arguments[0], arguments[1], call.at),
         convert(null_value(call.at), bound->type)});
    bound->otherwise = arguments[0];
    return bound;
}

BoundPtr Binder::bind_concat(const FunctionCall& call, Scope& scope) {
    expect_count(call, "CONCAT", call.arguments.size() >= 2, 2);
    auto bound = std::make_shared<BoundConcatenation>();
    bound->at = call.at;
    bool national = false;
    for (BoundPtr& argument : bind_arguments(call, scope)) {
        national = national || argument->type.is_national();
        if (argument->type.is_null()) {
            continue;
        }
        BoundPtr text =
            argument->type.is_text() ? argument : convert(argument, Type::varchar(8000));
        bound->parts.push_back(make_function("BLANK_IF_NULL", call.at, text->type, {text}));
    }
    if (bound->parts.empty()) {
        bound->parts.push_back(
            make_function("SPACE", call.at, Type::varchar(1), {literal_int(0, call.at)}));
    }
    bound->nullable = false;
    bound->type = national ? Type::nvarchar(4000) : Type::varchar(8000);
    return bound;
}

BoundPtr Binder::bind_date_function(const FunctionCall& call, const std::string& name,
                                    Scope& scope) {
    const bool adds = name == "DATEADD";
    const bool counts = name == "DATEDIFF";
    if (!adds && !counts && name != "DATEPART" && name != "DATENAME") {
        return nullptr;
    }
    const std::size_t expected = adds || counts ? 3 : 2;
    expect_count(call, name, call.arguments.size() == expected, static_cast<int>(expected));
    const auto* word = as_if<ColumnReference>(call.arguments[0].get());
    const std::string_view part = word ? date_part(word->name.object().text) : std::string_view();
    if (part.empty()) {
        throw Refusal(155, call.arguments[0]->at,
                      "This is not a recognized " + name +
                          " option: year, quarter, month, "
                          "dayofyear, day, week, weekday, hour, minute, second, millisecond are.");
    }
    const Type datetime = Type::of(TypeKind::DateTime);
    std::vector<BoundPtr> arguments;
    Type type = name == "DATENAME" ? Type::nvarchar(30) : Type::integer();
    for (std::size_t i = 1; i < expected; ++i) {
        BoundPtr value = bind_value(*call.arguments[i], scope);
        if (adds && i == 1) {
            arguments.push_back(convert(value, Type::integer()));
            continue;
        }
        // DATEADD keeps the type of a date; of a text it makes a datetime.
        if (adds) {
            type = value->type.is_date() ? value->type : datetime;
        }
        arguments.push_back(convert(value, datetime));
    }
    auto bound = make_function(name, call.at, adds ? datetime : type, std::move(arguments));
    bound->part = part;
    return adds ? convert(bound, type) : BoundPtr(bound);
}

} // namespace tsql
