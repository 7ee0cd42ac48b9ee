// Expressions: literals, columns, variables, conversions, CASE.
#include "tsql/binder/binder.h"
#include "tsql/parser/parser.h"
#include "tsql/source/diagnostic.h"

#include <charconv>

namespace tsql {

namespace {

// Bytes the text takes in the code page: one for ASCII, two for anything else.
int code_page_length(std::string_view text) {
    int length = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        length += byte < 0x80 ? 1 : (byte & 0xC0U) == 0xC0U ? 2 : 0;
    }
    return length;
}

int character_count(std::string_view text) {
    int length = 0;
    for (const char c : text) {
        length += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
    }
    return length;
}

Type integer_literal_type(std::string_view digits) {
    const std::size_t first = digits.find_first_not_of('0');
    digits.remove_prefix(first == std::string_view::npos ? digits.size() - 1 : first);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc() && value <= 2147483647) {
        return Type::integer();
    }
    return Type::decimal(static_cast<int>(std::min<std::size_t>(digits.size(), 38)), 0);
}

Type decimal_literal_type(std::string_view digits) {
    const std::size_t point = digits.find('.');
    std::string_view whole = digits.substr(0, point);
    const int scale = static_cast<int>(digits.size() - point - 1);
    // Leading zeros are no digits: 0.50 is decimal(2,2).
    while (!whole.empty() && whole.front() == '0') {
        whole.remove_prefix(1);
    }
    const int precision = static_cast<int>(whole.size()) + scale;
    return Type::decimal(std::max(1, precision), scale);
}

Type text_literal_type(const Literal& literal, bool exact) {
    if (literal.type == LiteralKind::NationalText) {
        return Type::nvarchar(exact ? std::max(1, character_count(literal.text)) : 4000);
    }
    return Type::varchar(exact ? std::max(1, code_page_length(literal.text)) : 8000);
}

Type literal_type(const Literal& literal, bool exact) {
    switch (literal.type) {
    case LiteralKind::Null: return {};
    case LiteralKind::Integer: return integer_literal_type(literal.text);
    case LiteralKind::Decimal: return decimal_literal_type(literal.text);
    case LiteralKind::Float: return Type::of(TypeKind::Float);
    case LiteralKind::Money: return Type::of(TypeKind::Money);
    case LiteralKind::Text:
    case LiteralKind::NationalText: return text_literal_type(literal, exact);
    case LiteralKind::Binary: break;
    }
    Type binary = Type::of(TypeKind::VarBinary);
    binary.length = static_cast<std::int16_t>(std::min<std::size_t>(literal.text.size() / 2, 8000));
    return binary;
}

} // namespace

BoundPtr Binder::bind_literal(const Literal& literal) {
    auto bound = std::make_shared<BoundLiteral>();
    bound->at = literal.at;
    bound->literal = literal.type;
    bound->text = literal.text;
    Literals& literals = context_.literals;
    const bool exact = !literals.of_text || literals.exact_lengths;
    bound->type = literal_type(literal, exact);
    bound->nullable = literal.type == LiteralKind::Null;
    if (literal.type == LiteralKind::Null) {
        return bound;
    }
    if (literals.of_text) {
        bound->ordinal = literal.ordinal;
        // Ten digits may or may not fit an int.
        const bool edge = literal.type == LiteralKind::Integer && literal.text.size() >= 10;
        if (exact || edge) {
            literals.pinned.insert(literal.ordinal);
        }
    } else {
        bound->constant = static_cast<int>(literals.constants.size());
        literals.constants.push_back({literal.type, literal.text});
    }
    return bound;
}

BoundPtr Binder::literal_int(std::int64_t value, SourceRange at) {
    auto bound = std::make_shared<BoundLiteral>();
    bound->at = at;
    bound->literal = LiteralKind::Integer;
    bound->text = std::to_string(value);
    bound->type = Type::integer();
    bound->nullable = false;
    bound->constant = static_cast<int>(context_.literals.constants.size());
    context_.literals.constants.push_back({LiteralKind::Integer, bound->text});
    return bound;
}

BoundPtr Binder::null_value(SourceRange at) {
    auto bound = std::make_shared<BoundLiteral>();
    bound->at = at;
    return bound;
}

std::optional<std::int64_t> Binder::constant_integer(const BoundPtr& value) {
    if (value == nullptr || value->kind != BoundKind::Literal) {
        return std::nullopt;
    }
    const auto& literal = static_cast<const BoundLiteral&>(*value);
    if (literal.literal != LiteralKind::Integer) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    const char* end = literal.text.data() + literal.text.size();
    if (std::from_chars(literal.text.data(), end, number).ec != std::errc()) {
        return std::nullopt;
    }
    if (literal.ordinal >= 0) {
        context_.literals.pinned.insert(literal.ordinal);
    }
    return number;
}

BoundPtr Binder::bind_column(const ColumnReference& column, Scope& scope) {
    const FoundColumn found = find_column(scope, column.name);
    RangeColumn& target = found.table->columns[static_cast<std::size_t>(found.ordinal)];
    target.used = true;
    if (target.computed) {
        return target.computed;
    }
    auto bound = std::make_shared<BoundColumn>();
    bound->at = column.at;
    bound->table = found.table;
    bound->ordinal = found.ordinal;
    bound->type = target.type;
    bound->nullable = target.nullable;
    bound->collation = target.collation;
    return bound;
}

BoundPtr Binder::bind_variable(const Variable& variable) {
    if (const auto given = context_.substitutes.find(variable.name);
        given != context_.substitutes.end()) {
        return given->second;
    }
    const int slot = context_.variables.find(variable.name);
    if (slot < 0) {
        throw Refusal(137, variable.at,
                      "Must declare the scalar variable \"" + variable.name + "\".");
    }
    auto bound = std::make_shared<BoundValue>();
    bound->at = variable.at;
    bound->index = slot;
    bound->type = context_.variables.slots[static_cast<std::size_t>(slot)].type;
    bound->row_by_row = context_.assigned_variables.contains(fold_name(variable.name));
    return bound;
}

BoundPtr Binder::bind_case(const Case& node, Scope& scope) {
    auto bound = std::make_shared<BoundCase>();
    bound->at = node.at;
    BoundPtr subject = node.subject ? bind_value(*node.subject, scope) : nullptr;
    std::vector<BoundPtr> values;
    for (const CaseBranch& branch : node.branches) {
        BoundPtr when =
            subject ? bind_value(*branch.when, scope) : bind_condition(*branch.when, scope);
        bound->branches.push_back({std::move(when), bind_value(*branch.then, scope)});
    }
    if (node.otherwise) {
        bound->otherwise = bind_value(*node.otherwise, scope);
    }
    if (subject) {
        // One type for the subject and all it is compared with, where that changes nothing; a
        // branch of another type makes every branch a comparison of its own.
        bool alike = true;
        for (const BoundCaseBranch& branch : bound->branches) {
            const Type& other = branch.when->type;
            alike = alike && (other.kind == subject->type.kind ||
                              (other.is_text() && subject->type.is_text()) ||
                              (other.is_integer() && subject->type.is_integer()));
        }
        if (alike && !subject->type.is_decimal()) {
            bound->subject = subject;
        } else {
            for (BoundCaseBranch& branch : bound->branches) {
                branch.when = compare(ComparisonOperator::Equal, subject, branch.when, node.at);
            }
        }
    }
    std::vector<BoundPtr*> results;
    for (BoundCaseBranch& branch : bound->branches) {
        results.push_back(&branch.then);
    }
    if (bound->otherwise) {
        results.push_back(&bound->otherwise);
    }
    bound->type = unify(results);
    if (bound->type.is_null()) {
        bound->type = Type::integer();
    }
    bound->nullable = bound->otherwise == nullptr;
    for (BoundPtr* result : results) {
        bound->nullable = bound->nullable || (*result)->nullable;
    }
    return bound;
}

Type Binder::unify(std::vector<BoundPtr*> values) {
    Type type;
    for (BoundPtr* value : values) {
        const bool digits =
            (*value)->kind == BoundKind::Literal && (*value)->type.kind == TypeKind::Int;
        // A number written down counts as many digits as it has, not the ten of an int.
        if (digits && type.is_decimal()) {
            const int count = static_cast<const BoundLiteral&>(**value).digits();
            type = common_type(type, Type::decimal(count, 0));
        } else {
            type = common_type(type, (*value)->type);
        }
    }
    for (BoundPtr* value : values) {
        *value = convert(*value, type);
    }
    return type;
}

BoundPtr Binder::bind_cast(const Cast& cast, Scope& scope) {
    BoundPtr operand = bind_value(*cast.operand, scope);
    const Type target = bind_type(cast.type, 30);
    int style = 0;
    if (cast.style) {
        const auto number = constant_integer(bind_value(*cast.style, scope));
        if (!number) {
            throw Refusal(281, cast.style->at,
                          "The style of CONVERT must be a number written down.");
        }
        style = static_cast<int>(*number);
    }
    auto bound = std::make_shared<BoundConvert>();
    bound->at = cast.at;
    bound->type = target;
    bound->operand = std::move(operand);
    bound->mode = cast.is_try ? ConvertMode::Try : ConvertMode::Cast;
    bound->style = style;
    bound->nullable = cast.is_try || bound->operand->nullable;
    bound->collation = bound->operand->collation;
    return bound;
}

BoundPtr Binder::convert(BoundPtr value, const Type& target, ConvertMode mode, int style) {
    if (value->type == target && mode != ConvertMode::Try) {
        return value;
    }
    const Type& from = value->type;
    if (from.is_date() && (target.is_number() && !target.is_float())) {
        throw Refusal(257, value->at,
                      "Implicit conversion from data type " + from.text() + " to " + target.text() +
                          " is not allowed. Use the CONVERT function to run "
                          "this query.");
    }
    auto bound = std::make_shared<BoundConvert>();
    bound->at = value->at;
    bound->type = target;
    bound->nullable = value->nullable;
    bound->collation = value->collation;
    bound->operand = std::move(value);
    bound->mode = mode;
    bound->style = style;
    return bound;
}

Type Binder::bind_type(const TypeName& name, int default_length) {
    const std::string& written = name.name.object().text;
    const auto kind = type_kind_named(written);
    if (!kind) {
        throw Refusal(2715, name.at, "Cannot find data type " + written + ".");
    }
    Type type = Type::of(*kind);
    if (type.is_decimal()) {
        const int precision = name.length.value_or(18);
        const int scale = name.scale.value_or(0);
        if (precision < 1 || precision > 38 || scale > precision) {
            throw Refusal(2750, name.at,
                          "Column or parameter: specified column precision " +
                              std::to_string(precision) + " is not possible.");
        }
        return Type::decimal(precision, scale);
    }
    if (!type.is_text() && !type.is_binary()) {
        return type;
    }
    const bool unlimited = name.max || same_name(written, "text") || same_name(written, "ntext") ||
                           same_name(written, "image");
    if (unlimited) {
        type.length = Type::max_length;
        return type;
    }
    if (same_name(written, "sysname")) {
        return Type::nvarchar(128);
    }
    const int limit = type.is_national() ? 4000 : 8000;
    const int length = name.length.value_or(default_length);
    if (length < 1 || length > limit) {
        throw Refusal(131, name.at,
                      "The size (" + std::to_string(length) + ") given to the type '" + written +
                          "' exceeds the maximum allowed for any data type (" +
                          std::to_string(limit) + ").");
    }
    type.length = static_cast<std::int16_t>(length);
    return type;
}

BoundPtr Binder::bind_text(const std::string& text, Scope& scope, bool condition) {
    const ExpressionPtr expression = parse_expression(text);
    const bool of_text = context_.literals.of_text;
    context_.literals.of_text = false;
    BoundPtr bound =
        condition ? bind_condition(*expression, scope) : bind_value(*expression, scope);
    context_.literals.of_text = of_text;
    return bound;
}

BoundPtr Binder::bind_value(const Expression& expression, Scope& scope) {
    switch (expression.kind) {
    case ExpressionKind::Literal: return bind_literal(as<Literal>(expression));
    case ExpressionKind::ColumnReference:
        return bind_column(as<ColumnReference>(expression), scope);
    case ExpressionKind::Variable: return bind_variable(as<Variable>(expression));
    case ExpressionKind::SystemVariable:
        return bind_system_variable(as<SystemVariable>(expression));
    case ExpressionKind::Unary: return bind_unary(as<Unary>(expression), scope);
    case ExpressionKind::Binary: return bind_binary(as<Binary>(expression), scope);
    case ExpressionKind::Case: return bind_case(as<Case>(expression), scope);
    case ExpressionKind::Cast: return bind_cast(as<Cast>(expression), scope);
    case ExpressionKind::FunctionCall: return bind_call(as<FunctionCall>(expression), scope);
    case ExpressionKind::Collate: return bind_collate(as<Collate>(expression), scope);
    case ExpressionKind::ScalarSubquery:
        return bind_scalar_subquery(as<ScalarSubquery>(expression), scope);
    case ExpressionKind::DefaultMark:
        throw Refusal(156, expression.at, "Incorrect syntax near the keyword 'DEFAULT'.");
    default: throw Refusal(102, expression.at, "A condition stands where a value is expected.");
    }
}

} // namespace tsql
