// Conversions: nothing where the stored value is the same, plain SQL where it is exact, else the
// function that knows all rules.
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

namespace {

std::string cast_call(const char* name, const std::string& value, const Type& from, const Type& to,
                      int style) {
    return std::string(name) + "(" + value + "," + std::to_string(from.packed()) + "," +
           std::to_string(to.packed()) + "," + std::to_string(style) + ")";
}

// Whether every text of the one type is a text of the other, unchanged.
bool text_fits(const Type& from, const Type& to) {
    if (to.kind == TypeKind::Char || to.kind == TypeKind::NChar) {
        return from == to;
    }
    if (to.length == Type::max_length) {
        return true;
    }
    if (from.length == Type::max_length || from.length == 0) {
        return false;
    }
    // Characters of a national text may take two bytes of the code page.
    const int needed = from.is_national() && !to.is_national() ? 2 * from.length : from.length;
    return needed <= to.length;
}

Fragment plain(std::string text, const Type& to) {
    Fragment fragment;
    fragment.text = std::move(text);
    fragment.form = form_of(to);
    fragment.bound = bound_of(to);
    return fragment;
}

// A whole number is written as SQLite writes it. Where the text may be too short for a few of them
// a column is looked at first; anything else would be worked out twice.
std::string whole_as_text(const Fragment& value, const Type& from, const Type& to, int style) {
    const bool known = from.is_integer() && style == 0 &&
                       (to.kind == TypeKind::VarChar || to.kind == TypeKind::NVarChar);
    if (!known || value.is_parameter) {
        return "";
    }
    const std::string text = "CAST(" + value.text + " AS TEXT)";
    const double needed = bound_of(from) * 10; // the sign takes a place, too
    if (to.length == Type::max_length || power_of_ten(to.length) >= needed) {
        return text;
    }
    if (to.length < 2 || value.text.find_first_of("( ") != std::string::npos) {
        return "";
    }
    std::string limit = "1" + std::string(static_cast<std::size_t>(to.length) - 1, '0');
    std::string fits = value.text + ">-" + limit;
    if (power_of_ten(to.length) < bound_of(from)) {
        fits += " AND " + value.text + "<" + limit + "0";
    }
    return "(CASE WHEN " + fits + " THEN " + text + " ELSE " +
           cast_call("zf_cast", value.text, from, to, style) + " END)";
}

} // namespace

// Both exact, neither bit nor money-to-whole (which rounds): moves the point and checks the size.
Fragment Emitter::exact_to_exact(Fragment value, const Type& from, const Type& to) {
    const int up = to.stored_scale() - from.stored_scale();
    const double limit = bound_of(to);
    if (value.form == Form::Wide || up < 0 || value.bound * power_of_ten(up) >= narrow_limit * 10) {
        Fragment result;
        result.form = form_of(to);
        result.bound = bound_of(to);
        const bool cut = up < 0 && !to.is_decimal() && value.form == Form::Narrow && !to.is_money();
        if (cut) {
            result.text = "(" + value.text + "/" +
                          std::to_string(static_cast<std::int64_t>(power_of_ten(-up))) + ")";
            if (value.bound / power_of_ten(-up) > limit) {
                result.text = "zf_within(" + result.text + "," +
                              std::to_string(static_cast<std::int64_t>(limit)) + ")";
            }
            return result;
        }
        result.text = cast_call("zf_cast", value.text, from, to, 0);
        return result;
    }
    if (up > 0 && value.bound * power_of_ten(up) >= narrow_limit) {
        return plain(cast_call("zf_cast", value.text, from, to, 0), to);
    }
    Fragment result = rescaled(std::move(value), from.stored_scale(), to.stored_scale());
    if (result.bound > limit && limit < narrow_limit) {
        result.text = "zf_within(" + result.text + "," +
                      std::to_string(static_cast<std::int64_t>(limit)) + ")";
        result.bound = limit;
        result.collated = false;
    }
    result.is_parameter = false;
    return result;
}

Fragment Emitter::converted(Fragment value, const Type& from, const Type& to, ConvertMode mode,
                            int style) {
    if (from.is_null() || value.text == "NULL") {
        Fragment fragment = plain("NULL", to);
        fragment.form = Form::Narrow;
        return fragment;
    }
    if (mode == ConvertMode::Try) {
        return plain(cast_call("zf_try_cast", value.text, from, to, style), to);
    }
    if (from == to) {
        return value;
    }
    if (from.is_text() && to.is_text()) {
        if (text_fits(from, to)) {
            return value;
        }
        Fragment result =
            plain(mode == ConvertMode::Assign
                      ? "zf_assign(" + value.text + "," + std::to_string(from.packed()) + "," +
                            std::to_string(to.packed()) + ")"
                      : cast_call("zf_cast", value.text, from, to, style),
                  to);
        return result;
    }
    const bool whole_money = from.is_money() && !to.is_decimal() && !to.is_money();
    if (from.is_exact() && to.is_exact() && to.kind != TypeKind::Bit && !whole_money) {
        return exact_to_exact(std::move(value), from, to);
    }
    if (to.is_float() && from.is_exact() && value.form == Form::Narrow) {
        const int scale = from.stored_scale();
        return plain(scale == 0 ? "CAST(" + value.text + " AS REAL)"
                                : "(" + value.text + "/1" +
                                      std::string(static_cast<std::size_t>(scale), '0') + ".0)",
                     to);
    }
    if (from.kind == TypeKind::Date && to.kind == TypeKind::DateTime) {
        return plain("(" + value.text + "*25920000)", to);
    }
    if (from.kind == TypeKind::SmallDateTime && to.kind == TypeKind::DateTime) {
        return value;
    }
    if (std::string text = whole_as_text(value, from, to, style);
        mode == ConvertMode::Cast && !text.empty()) {
        return plain(std::move(text), to);
    }
    if (mode == ConvertMode::Assign) {
        return plain("zf_assign(" + value.text + "," + std::to_string(from.packed()) + "," +
                         std::to_string(to.packed()) + ")",
                     to);
    }
    return plain(cast_call("zf_cast", value.text, from, to, style), to);
}

Fragment Emitter::convert(const BoundConvert& node) {
    const BoundExpression& operand = *node.operand;
    // A literal is converted before it is bound, once; not where its branch may not be reached,
    // because a text that is no number is no error there.
    const bool safe = conditional_ == 0 || !operand.type.is_text() || node.type.is_text();
    if (operand.kind == BoundKind::Literal && node.mode != ConvertMode::Try && safe) {
        const auto how = node.mode == ConvertMode::Assign ? Conversion::Assign : Conversion::Cast;
        // A small number written down beside a wide decimal stays narrow: what stands beside it
        // often is a sum, which is INTEGER, too.
        const int whole = as_decimal(operand.type).precision - operand.type.stored_scale();
        if (form_of(node.type) == Form::Wide && operand.type.is_exact() &&
            how == Conversion::Cast && whole + node.type.scale <= 18) {
            return literal(static_cast<const BoundLiteral&>(operand),
                           Type::decimal(18, node.type.scale), how, node.style);
        }
        return literal(static_cast<const BoundLiteral&>(operand), node.type, how, node.style);
    }
    if (operand.kind == BoundKind::Value && conditional_ == 0 && node.mode != ConvertMode::Try) {
        const auto& value = static_cast<const BoundValue&>(operand);
        if (!value.row_by_row) {
            volatile_ = true;
            PlanParameter given;
            given.source = value.source;
            given.system = value.system;
            given.index = value.index;
            given.type = value.type;
            given.to = node.type;
            given.how = value.type == node.type            ? Conversion::None
                        : node.mode == ConvertMode::Assign ? Conversion::Assign
                                                           : Conversion::Cast;
            given.style = node.style;
            Fragment fragment = plain(parameter(given), node.type);
            fragment.is_parameter = true;
            return fragment;
        }
    }
    return converted(value_of(node.operand), operand.type, node.type, node.mode, node.style);
}

std::string Emitter::stored_value(const BoundPtr& value, const Type& type) {
    Fragment fragment = value_of(value);
    if (form_of(type) == Form::Wide && fragment.form == Form::Narrow && fragment.text != "NULL") {
        return "zf_wide(" + fragment.text + ")";
    }
    if (form_of(type) == Form::Narrow && fragment.form == Form::Wide) {
        return "zf_narrow(" + fragment.text + ")";
    }
    return fragment.text;
}

} // namespace tsql::sqlite
