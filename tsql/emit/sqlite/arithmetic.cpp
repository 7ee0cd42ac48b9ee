// Arithmetic: plain operators of SQLite while nothing can overflow, checked functions otherwise.
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

namespace {

const char* sign_of(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Add: return "+";
    case BinaryOperator::Subtract: return "-";
    case BinaryOperator::Multiply: return "*";
    case BinaryOperator::BitAnd: return "&";
    case BinaryOperator::BitOr: return "|";
    default: return "";
    }
}

const char* checked_name(BinaryOperator op) {
    switch (op) {
    case BinaryOperator::Subtract: return "zf_sub8";
    case BinaryOperator::Multiply: return "zf_mul8";
    default: return "zf_add8";
    }
}

std::string call(const char* name, const std::string& left, const std::string& right) {
    return std::string(name) + "(" + left + "," + right + ")";
}

double result_bound(BinaryOperator op, double left, double right) {
    return op == BinaryOperator::Multiply ? left * right : left + right;
}

// Brings an integer result into its type.
Fragment within(Fragment value, const Type& type) {
    if (value.bound > bound_of(type) && type.kind != TypeKind::BigInt) {
        const char* name = type.kind == TypeKind::TinyInt    ? "zf_int1("
                           : type.kind == TypeKind::SmallInt ? "zf_int2("
                                                             : "zf_int4(";
        value.text = name + value.text + ")";
    }
    value.bound = bound_of(type);
    return value;
}

} // namespace

Fragment Emitter::integer_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right) {
    Fragment result;
    switch (node.op) {
    case BinaryOperator::Divide: result.text = call("zf_idiv", left.text, right.text); break;
    case BinaryOperator::Modulo: result.text = call("zf_imod", left.text, right.text); break;
    // SQLite has no operator for it; naming an operand twice would double every level of nesting.
    case BinaryOperator::BitXor: result.text = call("zf_xor", left.text, right.text); break;
    case BinaryOperator::BitAnd:
    case BinaryOperator::BitOr:
        result.text = "(" + left.text + sign_of(node.op) + right.text + ")";
        break;
    default:
        result.bound = result_bound(node.op, left.bound, right.bound);
        result.text = result.bound < narrow_limit
                          ? "(" + left.text + sign_of(node.op) + right.text + ")"
                          : call(checked_name(node.op), left.text, right.text);
        return within(std::move(result), node.type);
    }
    result.bound = bound_of(node.type);
    return result;
}

Fragment Emitter::rescaled(Fragment value, int from_scale, int to_scale) {
    if (from_scale == to_scale) {
        return value;
    }
    const double factor = power_of_ten(to_scale - from_scale);
    value.text = "(" + value.text + "*" + std::to_string(static_cast<std::int64_t>(factor)) + ")";
    value.bound *= factor;
    value.collated = false;
    value.is_parameter = false;
    return value;
}

Fragment Emitter::decimal_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right) {
    const int left_scale = node.left->type.stored_scale();
    const int right_scale = node.right->type.stored_scale();
    const int scale = node.type.scale;
    const bool adds = node.op == BinaryOperator::Add || node.op == BinaryOperator::Subtract;
    const bool narrow = left.form == Form::Narrow && right.form == Form::Narrow;
    Fragment result;
    if (narrow && adds && scale >= left_scale && scale >= right_scale) {
        const double left_bound = left.bound * power_of_ten(scale - left_scale);
        const double right_bound = right.bound * power_of_ten(scale - right_scale);
        if (left_bound < narrow_limit && right_bound < narrow_limit) {
            result.bound = left_bound + right_bound;
            left = rescaled(std::move(left), left_scale, scale);
            right = rescaled(std::move(right), right_scale, scale);
            result.text = result.bound < narrow_limit
                              ? "(" + left.text + sign_of(node.op) + right.text + ")"
                              : call(checked_name(node.op), left.text, right.text);
            result.bound = std::min(result.bound, narrow_limit * 0.999);
            return result;
        }
        // Sums of a column are INTEGER already; what they make together is checked.
        if (left_scale == right_scale && left_bound < 1e20 && right_bound < 1e20 &&
            node.left->type.precision + node.right->type.precision > 38) {
            result.text = call(checked_name(node.op), left.text, right.text);
            result.bound = narrow_limit * 0.999;
            return result;
        }
    }
    if (narrow && node.op == BinaryOperator::Multiply && left_scale + right_scale == scale &&
        left.bound * right.bound < narrow_limit) {
        result.bound = left.bound * right.bound;
        result.text = "(" + left.text + "*" + right.text + ")";
        return result;
    }
    const char* name = node.op == BinaryOperator::Add        ? "zf_dec_add("
                       : node.op == BinaryOperator::Subtract ? "zf_dec_sub("
                       : node.op == BinaryOperator::Multiply ? "zf_dec_mul("
                       : node.op == BinaryOperator::Divide   ? "zf_dec_div("
                                                             : "zf_dec_mod(";
    result.text = name + left.text + "," + std::to_string(left_scale) + "," + right.text + "," +
                  std::to_string(right_scale) + "," + std::to_string(node.type.precision) + "," +
                  std::to_string(scale) + ")";
    result.form = Form::Wide;
    result.bound = bound_of(node.type);
    return result;
}

// Money with money or with a whole number; both sides at four decimals, a whole factor or divisor
// as it is.
Fragment Emitter::money_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right) {
    const bool left_money = node.left->type.is_money();
    const bool right_money = node.right->type.is_money();
    Fragment result;
    result.bound = bound_of(node.type);
    const auto scaled = [&](const Fragment& value, bool money) {
        return money ? value.text : call("zf_mul8", value.text, "10000");
    };
    switch (node.op) {
    case BinaryOperator::Multiply:
        result.text = left_money && right_money ? call("zf_money_mul", left.text, right.text)
                                                : call("zf_mul8", left.text, right.text);
        break;
    case BinaryOperator::Divide:
        result.text = left_money && !right_money ? call("zf_idiv", left.text, right.text)
                                                 : call("zf_money_div", scaled(left, left_money),
                                                        scaled(right, right_money));
        break;
    case BinaryOperator::Modulo:
        result.text = call("zf_imod", scaled(left, left_money), scaled(right, right_money));
        break;
    default:
        result.text =
            call(checked_name(node.op), scaled(left, left_money), scaled(right, right_money));
    }
    return result;
}

// datetime plus or minus days, or two datetimes added as the server does it: as counts of ticks.
Fragment Emitter::date_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right) {
    const auto ticks = [&](const BoundPtr& operand, Fragment value) {
        const Type& type = operand->type;
        if (type.is_date()) {
            return value.text;
        }
        if (type.is_integer()) {
            return "(" + value.text + "*25920000)";
        }
        return converted(std::move(value), type, node.type, ConvertMode::Cast, 0).text;
    };
    Fragment result;
    result.text = "(" + ticks(node.left, std::move(left)) + sign_of(node.op) +
                  ticks(node.right, std::move(right)) + ")";
    result.bound = bound_of(node.type);
    return result;
}

Fragment Emitter::arithmetic(const BoundArithmetic& node) {
    if (auto sum = long_sum(node)) return *sum;
    Fragment left = value_of(node.left);
    Fragment right = value_of(node.right);
    if (node.type.is_date()) {
        return date_arithmetic(node, std::move(left), std::move(right));
    }
    if (node.type.is_decimal()) {
        return decimal_arithmetic(node, std::move(left), std::move(right));
    }
    if (node.type.is_money()) {
        return money_arithmetic(node, std::move(left), std::move(right));
    }
    if (node.type.is_float()) {
        Fragment result;
        result.text = node.op == BinaryOperator::Divide
                          ? call("zf_fdiv", left.text, right.text)
                          : "zf_float(" + left.text + sign_of(node.op) + right.text + ")";
        return result;
    }
    return integer_arithmetic(node, std::move(left), std::move(right));
}

Fragment Emitter::negate(const BoundUnary& node) {
    Fragment operand = value_of(node.operand);
    if (operand.form == Form::Wide) {
        operand.text = "zf_dec_neg(" + operand.text + ")";
    } else if (operand.bound >= narrow_limit && !node.type.is_float()) {
        operand.text = "zf_sub8(0," + operand.text + ")";
    } else {
        operand.text = "(-" + operand.text + ")";
    }
    operand.collated = false;
    operand.is_parameter = false;
    return operand;
}

} // namespace tsql::sqlite
