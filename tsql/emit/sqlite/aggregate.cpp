// Aggregates and window functions: SQLite's own where they are exact, ours for the rest.
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"

#include <algorithm>

namespace tsql::sqlite {

namespace {

const char* bound_text(FrameBoundKind kind) {
    switch (kind) {
    case FrameBoundKind::UnboundedPreceding: return "UNBOUNDED PRECEDING";
    case FrameBoundKind::Preceding: return " PRECEDING";
    case FrameBoundKind::CurrentRow: return "CURRENT ROW";
    case FrameBoundKind::Following: return " FOLLOWING";
    case FrameBoundKind::UnboundedFollowing: return "UNBOUNDED FOLLOWING";
    }
    return "";
}

} // namespace

std::string Emitter::frame_text(const BoundFrame& frame) {
    const auto bound = [&](FrameBoundKind kind, const BoundPtr& offset) {
        return (offset ? value_of(offset).text : "") + bound_text(kind);
    };
    return std::string(frame.unit == FrameUnit::Rows ? " ROWS" : " RANGE") + " BETWEEN " +
           bound(frame.start, frame.start_offset) + " AND " + bound(frame.end, frame.end_offset);
}

std::string Emitter::over_clause(const BoundAggregate& node) {
    if (!node.window) {
        return "";
    }
    std::string text;
    for (const BoundPtr& expression : node.window->partition) {
        text += (text.empty() ? "PARTITION BY " : ", ") + collated(expression);
    }
    bool first = true;
    for (const BoundOrder& order : node.window->order) {
        // A constant says that the order does not matter.
        if (order.expression->kind == BoundKind::Subquery) {
            continue;
        }
        text += (first ? (text.empty() ? "ORDER BY " : " ORDER BY ") : ", ") +
                collated(order.expression) + (order.descending ? " DESC" : "");
        first = false;
    }
    if (node.window->frame) {
        text += frame_text(*node.window->frame);
    }
    return " OVER (" + text + ")";
}

Fragment Emitter::narrow_sum(const Type& type, const std::string& sum) {
    Fragment result;
    result.text = type.kind == TypeKind::Int ? "zf_int4(" + sum + ")" : sum;
    result.bound = type.is_decimal() ? narrow_limit : bound_of(type);
    return result;
}

Fragment Emitter::sum_of(const BoundAggregate& node, const std::string& over) {
    const BoundPtr& argument = node.arguments[0];
    const Fragment value = value_of(argument);
    const std::string distinct = node.distinct ? "DISTINCT " : "";
    Fragment result;
    result.bound = bound_of(node.type);
    if (value.form == Form::Wide) {
        result.text = "zf_sum_dec(" + distinct + value.text + "," +
                      std::to_string(argument->type.stored_scale()) + ")" + over;
        result.form = Form::Wide;
        return result;
    }
    return narrow_sum(node.type, "sum(" + distinct + value.text + ")" + over);
}

Fragment Emitter::average_of(const BoundAggregate& node, const std::string& over) {
    const BoundPtr& argument = node.arguments[0];
    const std::string distinct = node.distinct ? "DISTINCT " : "";
    Fragment result;
    result.bound = bound_of(node.type);
    if (node.type.is_float()) {
        result.text = "avg(" + distinct + value_of(argument).text + ")" + over;
        return result;
    }
    const Fragment value = value_of(argument);
    const std::string count = "count(" + distinct + value.text + ")" + over;
    const std::string scale = std::to_string(argument->type.stored_scale());
    const std::string sum = value.form == Form::Wide
                                ? "zf_sum_dec(" + distinct + value.text + "," + scale + ")" + over
                                : "sum(" + distinct + value.text + ")" + over;
    if (node.type.is_decimal()) {
        result.text = "zf_dec_div(" + sum + "," + scale + ",nullif(" + count + ",0),0,38," +
                      std::to_string(node.type.scale) + ")";
        result.form = Form::Wide;
    } else if (node.type.is_money()) {
        result.text = "(" + sum + "/nullif(" + count + ",0))";
    } else {
        result.text = "(" + sum + "/" + count + ")";
    }
    return result;
}

std::string Emitter::string_aggregate(const BoundAggregate& node) {
    const std::string arguments =
        value_of(node.arguments[0]).text + "," + value_of(node.arguments[1]).text;
    if (node.within.empty()) {
        return "zf_string_agg(" + arguments + ")";
    }
    const BoundOrder& order = node.within.front();
    return "zf_string_agg_by(" + arguments + "," + value_of(order.expression).text + "," +
           (order.descending ? "1" : "0") + ")";
}

Fragment Emitter::aggregate(const BoundAggregate& node) {
    const std::string over = over_clause(node);
    Fragment result;
    result.bound = bound_of(node.type);
    if (node.name == "COUNT" || node.name == "COUNT_BIG") {
        result.text = node.arguments.empty()
                          ? "count(*)" + over
                          : std::string("count(") + (node.distinct ? "DISTINCT " : "") +
                                (node.distinct ? collated(node.arguments[0])
                                               : value_of(node.arguments[0]).text) +
                                ")" + over;
        return result;
    }
    if (node.name == "SUM") {
        return sum_of(node, over);
    }
    if (node.name == "AVG") {
        return average_of(node, over);
    }
    if (node.name == "MIN" || node.name == "MAX") {
        Fragment value = value_of(node.arguments[0]);
        result.text =
            lower_case(node.name) + "(" + collated(value, *node.arguments[0]) + ")" + over;
        result.form = value.form;
        result.bound = value.bound;
        return result;
    }
    if (node.name == "STRING_AGG") {
        result.text = string_aggregate(node);
        return result;
    }
    if (node.name == "GROUPING") {
        bool absent = false;
        for (const BoundPtr& group : absent_) {
            absent =
                absent || group == node.arguments[0] || value_of(node.arguments[0]).text == "NULL";
        }
        result.text = absent ? "1" : "0";
        return result;
    }
    const bool ours = node.name.starts_with("STDEV") || node.name.starts_with("VAR") ||
                      node.name == "CHECKSUM_AGG";
    std::vector<Fragment> arguments;
    for (const BoundPtr& argument : node.arguments) {
        arguments.push_back(value_of(argument));
    }
    if (arguments.size() == 3) {
        auto both = same_form({arguments[0], arguments[2]});
        arguments[0] = both[0];
        arguments[2] = both[1];
    }
    result.text = (ours ? "zf_" : "") + lower_case(node.name) + "(";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        result.text += (i == 0 ? "" : ",") + arguments[i].text;
    }
    result.text += ")" + over;
    if (!arguments.empty()) {
        result.form = arguments[0].form;
        result.bound = std::max(arguments[0].bound, result.bound);
    }
    return result;
}

} // namespace tsql::sqlite
