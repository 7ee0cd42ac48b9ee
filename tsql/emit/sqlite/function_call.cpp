// Built-in functions: most are the engine's function of the same name; some need their argument's
// type or scale, some are SQLite's own.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

struct DefaultArgument {
    std::string_view function;
    std::size_t count;     // arguments when all are given
    std::string_view text; // of those left out
};

// What stands for arguments that may be left out.
constexpr DefaultArgument defaults[] = {
    {"CHARINDEX", 3, "1"}, {"STR", 2, "10"},         {"STR", 3, "0"},     {"QUOTENAME", 2, "NULL"},
    {"EOMONTH", 2, "0"},   {"OBJECT_ID", 2, "NULL"}, {"RAND", 1, "NULL"},
};

std::string runtime_name(const std::string& name) {
    return "zf_" + lower_case(name);
}

bool takes_type(const std::string& name) {
    return name == "DATALENGTH" || name == "ISNUMERIC" || name == "FORMAT";
}

bool is_volatile_function(const std::string& name) {
    return name == "NEWID" || name == "RAND" || name == "NEXT_IDENTITY" || name == "OBJECT_ID" ||
           name == "OBJECT_NAME" || name == "OBJECT_DEFINITION" || name == "INDEXPROPERTY" ||
           name == "IDENT_CURRENT";
}

} // namespace

Fragment Emitter::number_function(const BoundFunction& node) {
    const Type& type = node.arguments[0]->type;
    const std::string scale = std::to_string(type.stored_scale());
    Fragment first = value_of(node.arguments[0]);
    Fragment result;
    result.form = first.form;
    result.bound = bound_of(node.type);
    const bool scaled = type.is_decimal() || type.is_money();
    if (node.name == "ABS") {
        const char* name = first.form == Form::Wide ? "zf_dec_abs(" : "abs(";
        result.text = name + first.text + ")";
        result.bound = first.bound;
    } else if (node.name == "SIGN") {
        result.text = "zf_sign(" + first.text + ")";
        result.form = Form::Narrow;
        result.bound = 2;
        if (type.is_float()) {
            result.text = "CAST(" + result.text + " AS REAL)";
        } else if (scaled) {
            result = rescaled(std::move(result), 0, type.stored_scale());
        }
    } else if (node.name == "CEILING" || node.name == "FLOOR") {
        const std::string name = runtime_name(node.name);
        if (type.is_float()) {
            result.text = name + "_float(" + first.text + ")";
        } else if (!scaled) {
            result.text = first.text;
        } else {
            result.text = name + "_dec(" + first.text + "," + scale + ")";
            if (type.is_money()) {
                result.text = "(" + result.text + "*10000)";
            }
        }
    } else {
        const std::string digits = value_of(node.arguments[1]).text;
        const std::string cut = node.arguments.size() > 2 ? value_of(node.arguments[2]).text : "0";
        result.text = type.is_float() ? "zf_round_float(" + first.text + "," + digits
                      : scaled        ? "zf_round_dec(" + first.text + "," + scale + "," + digits
                                      : "zf_round_int(" + first.text + "," + digits;
        result.text += "," + cut + ")";
        result.bound = std::min(first.bound * 2 + 10, narrow_limit * 0.999);
    }
    return result;
}

Fragment Emitter::plain_function(const BoundFunction& node) {
    Fragment result;
    result.form = form_of(node.type);
    result.bound = bound_of(node.type);
    result.text = runtime_name(node.name) + "(";
    std::string separator;
    for (const BoundPtr& argument : node.arguments) {
        result.text += separator + value_of(argument).text;
        separator = ",";
    }
    std::size_t count = node.arguments.size();
    for (const DefaultArgument& left_out : defaults) {
        if (left_out.function == node.name && left_out.count == count + 1) {
            result.text += separator + std::string(left_out.text);
            separator = ",";
            ++count;
        }
    }
    if (takes_type(node.name)) {
        const std::string type = std::to_string(node.arguments[0]->type.packed());
        if (node.name == "FORMAT") {
            result.text = "zf_format(" + value_of(node.arguments[0]).text + "," + type + "," +
                          value_of(node.arguments[1]).text;
        } else {
            result.text += "," + type;
        }
    }
    result.text += ")";
    return result;
}

Fragment Emitter::function(const BoundFunction& node) {
    volatile_ = volatile_ || is_volatile_function(node.name);
    const std::string& name = node.name;
    if (name == "COALESCE") {
        return coalesce(node);
    }
    if (name == "ABS" || name == "SIGN" || name == "CEILING" || name == "FLOOR" ||
        name == "ROUND") {
        return number_function(node);
    }
    Fragment result;
    result.form = form_of(node.type);
    result.bound = bound_of(node.type);
    if (name == "BLANK_IF_NULL") {
        result.text = "coalesce(" + value_of(node.arguments[0]).text + ",'')";
        return result;
    }
    if (name == "NEXT_IDENTITY") {
        result.text = "zf_identity(" + quoted_text(node.part) + ")";
        return result;
    }
    if (name == "POWER") {
        const Type real = Type::of(TypeKind::Float);
        Fragment base = converted(value_of(node.arguments[0]), node.arguments[0]->type, real,
                                  ConvertMode::Cast, 0);
        result.text = "zf_power(" + base.text + "," + value_of(node.arguments[1]).text + ")";
        return converted(std::move(result), real, node.type, ConvertMode::Cast, 0);
    }
    if (name == "YEAR" || name == "MONTH" || name == "DAY") {
        result.text =
            "zf_datepart('" + lower_case(name) + "'," + value_of(node.arguments[0]).text + ")";
        result.bound = 10000;
        return result;
    }
    if (!node.part.empty()) {
        result.text = runtime_name(name) + "('" + node.part + "'";
        for (const BoundPtr& argument : node.arguments) {
            result.text += "," + value_of(argument).text;
        }
        result.text += ")";
        return result;
    }
    return plain_function(node);
}

} // namespace tsql::sqlite
