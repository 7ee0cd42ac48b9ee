// Operators: what + means for texts, numbers and dates, and which type comes out.
#include "tsql/binder/binder.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

ArithmeticKind arithmetic_kind(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Subtract: return ArithmeticKind::Subtract;
    case BinaryOperator::Multiply: return ArithmeticKind::Multiply;
    case BinaryOperator::Divide: return ArithmeticKind::Divide;
    case BinaryOperator::Modulo: return ArithmeticKind::Modulo;
    default: return ArithmeticKind::Add;
    }
}

const char* operator_name(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Add: return "add";
    case BinaryOperator::Subtract: return "subtract";
    case BinaryOperator::Multiply: return "multiply";
    case BinaryOperator::Divide: return "divide";
    case BinaryOperator::Modulo: return "modulo";
    case BinaryOperator::BitAnd: return "'&'";
    case BinaryOperator::BitOr: return "'|'";
    case BinaryOperator::BitXor: return "'^'";
    }
    return "";
}

bool is_bitwise(BinaryOperator op) {
    return op >= BinaryOperator::BitAnd;
}

// An operand of decimal arithmetic: a whole number written down has the digits it has.
Type digits_of(const BoundExpression& value) {
    if (value.kind == BoundKind::Literal && value.type.kind == TypeKind::Int) {
        return Type::decimal(static_cast<const BoundLiteral&>(value).digits(), 0);
    }
    if (value.kind == BoundKind::Negate) {
        return digits_of(*static_cast<const BoundUnary&>(value).operand);
    }
    return as_decimal(value.type);
}

BoundPtr concatenate(BoundPtr left, BoundPtr right, SourceRange at) {
    auto bound = std::make_shared<BoundConcatenation>();
    bound->at = at;
    const auto add = [&](const BoundPtr& part) {
        if (part->kind == BoundKind::Concatenation) {
            const auto& inner = static_cast<const BoundConcatenation&>(*part);
            bound->parts.insert(bound->parts.end(), inner.parts.begin(), inner.parts.end());
        } else {
            bound->parts.push_back(part);
        }
        bound->nullable = bound->nullable || part->nullable;
        if (part->collation != Collation::Database) {
            bound->collation = part->collation;
        }
    };
    bound->nullable = false;
    add(left);
    add(right);
    const bool national = left->type.is_national() || right->type.is_national();
    const bool unlimited = left->type.length < 0 || right->type.length < 0;
    const int length = std::min(national ? 4000 : 8000, left->type.length + right->type.length);
    bound->type = national ? Type::nvarchar(unlimited ? -1 : std::max(1, length))
                           : Type::varchar(unlimited ? -1 : std::max(1, length));
    return bound;
}

} // namespace

BoundPtr Binder::bind_unary(const Unary& unary, Scope& scope) {
    BoundPtr operand = bind_value(*unary.operand, scope);
    if (unary.op == UnaryOperator::Plus) {
        return operand;
    }
    if (operand->type.is_null()) {
        operand = convert(operand, Type::integer());
    }
    if (!operand->type.is_number() || operand->type.kind == TypeKind::Bit) {
        throw Refusal(8117, unary.at,
                      "Operand data type " + operand->type.text() + " is invalid for " +
                          (unary.op == UnaryOperator::Minus ? "minus" : "'~'") + " operator.");
    }
    auto bound = std::make_shared<BoundUnary>(unary.op == UnaryOperator::Minus ? BoundKind::Negate
                                                                               : BoundKind::BitNot);
    bound->at = unary.at;
    bound->type = operand->type;
    bound->nullable = operand->nullable;
    bound->operand = std::move(operand);
    return bound;
}

BoundPtr Binder::bind_binary(const Binary& binary, Scope& scope) {
    // A long chain a + b + c … leans to the left; walking down it in a loop keeps the stack flat.
    std::vector<const Binary*> chain{&binary};
    while (const Binary* inner = as_if<Binary>(chain.back()->left.get())) {
        chain.push_back(inner);
    }
    BoundPtr result = bind_value(*chain.back()->left, scope);
    for (auto it = chain.rbegin(); it != chain.rend(); ++it) {
        result =
            arithmetic((*it)->op, std::move(result), bind_value(*(*it)->right, scope), (*it)->at);
    }
    return result;
}

BoundPtr Binder::arithmetic(BinaryOperator op, BoundPtr left, BoundPtr right, SourceRange at) {
    const bool left_text = left->type.is_text();
    const bool right_text = right->type.is_text();
    const auto both_or_null = [](bool a, bool b, const Type& x, const Type& y) {
        return (a && (b || y.is_null())) || (b && x.is_null());
    };
    if (op == BinaryOperator::Add && both_or_null(left_text, right_text, left->type, right->type)) {
        return concatenate(std::move(left), std::move(right), at);
    }
    if (left->type.is_date() || right->type.is_date()) {
        return date_arithmetic(op, std::move(left), std::move(right), at);
    }
    if (left->type.is_null() && right->type.is_null()) {
        left = convert(left, Type::integer());
    }
    if (left_text && right_text) {
        throw Refusal(8117, at,
                      "Operand data type " + left->type.text() + " is invalid for " +
                          operator_name(op) + " operator.");
    }
    if (left_text || left->type.is_null()) {
        left = convert(left, right->type);
    }
    if (right_text || right->type.is_null()) {
        right = convert(right, left->type);
    }
    auto bound = std::make_shared<BoundArithmetic>();
    bound->at = at;
    bound->op = op;
    bound->nullable = left->nullable || right->nullable;
    Type type = common_type(left->type, right->type);
    if (!type.is_number() || (is_bitwise(op) && !type.is_integer()) ||
        (op == BinaryOperator::Modulo && type.is_float())) {
        throw Refusal(8117, at,
                      "Operand data type " + type.text() + " is invalid for " + operator_name(op) +
                          " operator.");
    }
    if (type.is_decimal()) {
        type = decimal_result(arithmetic_kind(op), digits_of(*left), digits_of(*right));
    } else if (type.is_float()) {
        left = convert(left, type);
        right = convert(right, type);
    } else if (type.kind == TypeKind::Bit && !is_bitwise(op)) {
        type = Type::integer();
    }
    bound->type = type;
    bound->left = std::move(left);
    bound->right = std::move(right);
    return bound;
}

BoundPtr Binder::date_arithmetic(BinaryOperator op, BoundPtr left, BoundPtr right, SourceRange at) {
    const Type datetime = Type::of(TypeKind::DateTime);
    const bool adds = op == BinaryOperator::Add || op == BinaryOperator::Subtract;
    if (!adds || left->type.kind == TypeKind::Date || right->type.kind == TypeKind::Date) {
        const Type& shown = left->type.is_date() ? left->type : right->type;
        throw Refusal(adds ? 206 : 8117, at,
                      "Operand data type " + shown.text() + " is invalid for " + operator_name(op) +
                          " operator.");
    }
    auto bound = std::make_shared<BoundArithmetic>();
    bound->at = at;
    bound->op = op;
    bound->nullable = left->nullable || right->nullable;
    bound->type = datetime;
    const auto operand = [&](BoundPtr value) {
        return value->type.is_number() ? value : convert(value, datetime);
    };
    bound->left = operand(std::move(left));
    bound->right = operand(std::move(right));
    return bound;
}

BoundPtr Binder::bind_system_variable(const SystemVariable& variable) {
    struct Named {
        std::string_view name;
        SystemValue value;
        Type type;
    };
    static const Named names[] = {
        {"@@ROWCOUNT", SystemValue::RowCount, Type::integer()},
        {"@@ERROR", SystemValue::Error, Type::integer()},
        {"@@TRANCOUNT", SystemValue::TranCount, Type::integer()},
        {"@@FETCH_STATUS", SystemValue::FetchStatus, Type::integer()},
        {"@@IDENTITY", SystemValue::Identity, Type::decimal(38, 0)},
        {"@@VERSION", SystemValue::ServerVersion, Type::nvarchar(300)},
        {"@@SPID", SystemValue::SessionId, Type::of(TypeKind::SmallInt)},
        {"@@NESTLEVEL", SystemValue::NestLevel, Type::integer()},
    };
    for (const Named& named : names) {
        if (same_name(named.name, variable.name)) {
            auto bound = std::make_shared<BoundValue>();
            bound->at = variable.at;
            bound->source = ParameterSource::System;
            bound->system = named.value;
            bound->type = named.type;
            return bound;
        }
    }
    throw Refusal(137, variable.at, "Must declare the scalar variable \"" + variable.name + "\".");
}

BoundPtr Binder::bind_collate(const Collate& collate, Scope& scope) {
    BoundPtr operand = bind_value(*collate.operand, scope);
    if (!operand->type.is_text()) {
        throw Refusal(447, collate.at,
                      "Expression type " + operand->type.text() +
                          " is invalid for COLLATE clause.");
    }
    const std::string name = fold_name(collate.collation.text);
    // A conversion to its own type is where the collation of an expression can be changed.
    auto bound = std::make_shared<BoundConvert>();
    bound->at = collate.at;
    bound->type = operand->type;
    bound->nullable = operand->nullable;
    bound->operand = std::move(operand);
    bound->collation = name.find("_BIN") != std::string::npos   ? Collation::Binary
                       : name.find("_CS_") != std::string::npos ? Collation::CaseSensitive
                                                                : Collation::Database;
    return bound;
}

} // namespace tsql
