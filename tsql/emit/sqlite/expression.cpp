// Values: literals and parameters, columns, CASE, concatenation, subqueries.
#include "tsql/binder/same_expression.h"
#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/emitter.h"
#include "tsql/emit/sqlite/runtime_functions.h"

#include <cassert>

namespace tsql::sqlite {

std::string alias_of(const RangeTable& table) {
    return "t" + std::to_string(table.id);
}

std::string stored_table(const CatalogTable& table) {
    return (table.temporary ? "temp." : "") + quoted_name(table.stored_name);
}

std::string Emitter::parameter(const PlanParameter& parameter) {
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
        const PlanParameter& other = parameters_[i];
        if (other.source == parameter.source && other.system == parameter.system &&
            other.index == parameter.index && other.to == parameter.to &&
            other.how == parameter.how && other.style == parameter.style) {
            return "?" + std::to_string(i + 1);
        }
    }
    parameters_.push_back(parameter);
    return "?" + std::to_string(parameters_.size());
}

SqlText Emitter::finish(std::string text) {
    SqlText result{std::move(text), std::move(parameters_)};
    parameters_.clear();
    return result;
}

namespace {

// The digits of a decimal literal as an integer of the given scale.
std::string scaled_digits(const std::string& text, int scale) {
    const std::size_t point = text.find('.');
    std::string digits = text.substr(0, point);
    std::string fraction = point == std::string::npos ? "" : text.substr(point + 1);
    fraction.resize(static_cast<std::size_t>(scale), '0');
    digits += fraction;
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? "0" : digits.substr(first);
}

std::string plain_literal(const BoundLiteral& node) {
    switch (node.literal) {
    case LiteralKind::Integer: return scaled_digits(node.text, 0);
    case LiteralKind::Decimal: return scaled_digits(node.text, node.type.scale);
    case LiteralKind::Money: return scaled_digits(node.text, 4);
    case LiteralKind::Float:
        return node.text.find_first_of(".eE") == std::string::npos ? node.text + ".0" : node.text;
    case LiteralKind::Binary: return "x'" + node.text + "'";
    case LiteralKind::Null: return "NULL";
    default: return quoted_text(node.text);
    }
}

} // namespace

std::string Emitter::inline_literal(const BoundLiteral& node, const Type& to, Conversion how,
                                    int style) {
    const std::string plain = plain_literal(node);
    const Type& from = node.type;
    if (how == Conversion::None || from == to) {
        return plain;
    }
    const bool up =
        from.is_exact() && to.is_exact() && !from.is_money() && form_of(to) == Form::Narrow &&
        to.stored_scale() >= from.stored_scale() &&
        bound_of(from) * power_of_ten(to.stored_scale() - from.stored_scale()) <= bound_of(to) &&
        to.kind != TypeKind::Bit;
    if (up) {
        return node.literal == LiteralKind::Integer || node.literal == LiteralKind::Decimal
                   ? scaled_digits(node.text, to.stored_scale())
                   : plain;
    }
    if (how == Conversion::Assign) {
        return "zf_assign(" + plain + "," + std::to_string(from.packed()) + "," +
               std::to_string(to.packed()) + ")";
    }
    return "zf_cast(" + plain + "," + std::to_string(from.packed()) + "," +
           std::to_string(to.packed()) + "," + std::to_string(style) + ")";
}

Fragment Emitter::literal(const BoundLiteral& node, const Type& to, Conversion how, int style) {
    Fragment fragment;
    fragment.form = form_of(to);
    fragment.bound = bound_of(to);
    fragment.is_parameter = true;
    if (node.literal == LiteralKind::Null) {
        fragment.text = "NULL";
        fragment.bound = 1;
        return fragment;
    }
    if (inline_literals_) {
        fragment.text = inline_literal(node, to, how, style);
        return fragment;
    }
    PlanParameter value;
    value.source = node.constant >= 0 ? ParameterSource::Constant : ParameterSource::Literal;
    value.index = node.constant >= 0 ? node.constant : node.ordinal;
    value.type = node.type;
    value.to = to;
    value.how = node.type == to ? Conversion::None : how;
    value.style = style;
    if (node.constant < 0) {
        passed_->insert(node.ordinal);
    } else if (node.literal == LiteralKind::Integer && to.is_integer() && node.digits() < 10) {
        fragment.bound = std::stod(node.text) + 1; // a constant of the plan is never another
    }
    fragment.text = parameter(value);
    return fragment;
}

Fragment Emitter::system_value(const BoundValue& node) {
    Fragment fragment;
    fragment.form = form_of(node.type);
    fragment.bound = bound_of(node.type);
    fragment.is_parameter = true;
    if (node.row_by_row) {
        volatile_ = true;
        fragment.text = "zf_variable(" + std::to_string(node.index) + ")";
        return fragment;
    }
    volatile_ = true;
    PlanParameter value;
    value.source = node.source;
    value.system = node.system;
    value.index = node.index;
    value.type = node.type;
    value.to = node.type;
    fragment.text = parameter(value);
    return fragment;
}

Fragment Emitter::column(const BoundColumn& node) {
    const RangeTable& table = *node.table;
    const auto ordinal = static_cast<std::size_t>(node.ordinal);
    if (table.kind == RangeKind::Inline) {
        const auto& select = static_cast<const BoundSelect&>(*table.query->body);
        if (!select.grouped) {
            return value_of(select.items[ordinal].expression);
        }
        std::vector<bool> used(select.items.size(), false);
        used[ordinal] = true;
        std::vector<ColumnForm> forms;
        Fragment fragment;
        fragment.text = "(" + select_text(select, nullptr, &used, forms, false) + ")";
        fragment.form = forms[ordinal].form;
        fragment.bound = forms[ordinal].bound;
        return fragment;
    }
    Fragment fragment;
    fragment.form = form_of(node.type);
    fragment.bound = bound_of(node.type);
    if (table.kind == RangeKind::Table) {
        fragment.text = alias_of(table) + "." + quoted_name(table.columns[ordinal].name);
        fragment.collated = node.type.is_text() && node.collation == Collation::Database;
        return fragment;
    }
    fragment.text = alias_of(table) + ".c" + std::to_string(ordinal + 1);
    const int id = table.kind == RangeKind::Common ? table.common->id : table.id;
    if (const auto found = forms_.find(id); found != forms_.end()) {
        fragment.form = found->second[ordinal].form;
        fragment.bound = found->second[ordinal].bound;
    }
    return fragment;
}

std::vector<Fragment> Emitter::same_form(std::vector<Fragment> fragments) {
    bool wide = false;
    for (const Fragment& fragment : fragments) {
        wide = wide || fragment.form == Form::Wide;
    }
    for (Fragment& fragment : fragments) {
        if (wide && fragment.form == Form::Narrow && fragment.text != "NULL") {
            fragment.text = "zf_wide(" + fragment.text + ")";
        }
        fragment.form = wide ? Form::Wide : Form::Narrow;
    }
    return fragments;
}

Fragment Emitter::case_of(const BoundCase& node) {
    std::string text = "CASE";
    if (node.subject) {
        text += " " + collated(node.subject);
    }
    ++conditional_;
    std::vector<std::string> heads;
    std::vector<Fragment> results;
    for (const BoundCaseBranch& branch : node.branches) {
        heads.push_back(node.subject ? value_of(branch.when).text : condition(branch.when));
        results.push_back(value_of(branch.then));
    }
    if (node.otherwise) {
        results.push_back(value_of(node.otherwise));
    }
    --conditional_;
    results = same_form(std::move(results));
    Fragment fragment;
    for (std::size_t i = 0; i < heads.size(); ++i) {
        text += " WHEN " + heads[i] + " THEN " + results[i].text;
    }
    if (node.otherwise) {
        text += " ELSE " + results.back().text;
    }
    for (const Fragment& result : results) {
        fragment.bound = std::max(fragment.bound, result.bound);
        fragment.form = result.form;
    }
    fragment.text = "(" + text + " END)";
    return fragment;
}

Fragment Emitter::coalesce(const BoundFunction& node) {
    std::vector<Fragment> values;
    for (const BoundPtr& argument : node.arguments) {
        values.push_back(value_of(argument));
        if (values.size() == 1) {
            ++conditional_;
        }
    }
    --conditional_;
    values = same_form(std::move(values));
    Fragment fragment;
    std::string text;
    for (const Fragment& value : values) {
        text += (text.empty() ? "" : ",") + value.text;
        fragment.bound = std::max(fragment.bound, value.bound);
        fragment.form = value.form;
    }
    fragment.text = "coalesce(" + text + ")";
    return fragment;
}

Fragment Emitter::concatenation(const BoundConcatenation& node) {
    Fragment fragment;
    for (const BoundPtr& part : node.parts) {
        fragment.text += (fragment.text.empty() ? "(" : "||") + value_of(part).text;
    }
    fragment.text += ")";
    return fragment;
}

Fragment Emitter::scalar_subquery(const BoundSubquery& node) {
    std::vector<ColumnForm> forms;
    Fragment fragment;
    const std::string text = query_text(*node.query, nullptr, forms, !node.one_row);
    fragment.text = node.one_row ? "(" + text + ")" : "(SELECT zf_single(c1) FROM (" + text + "))";
    fragment.form = forms[0].form;
    fragment.bound = forms[0].bound;
    return fragment;
}

std::string Emitter::collated(const Fragment& fragment, const BoundExpression& value) {
    if (!value.type.is_text() || (fragment.collated && value.collation == Collation::Database)) {
        return fragment.text;
    }
    switch (value.collation) {
    case Collation::CaseSensitive: return fragment.text + " COLLATE " + case_sensitive_collation;
    case Collation::Binary: return fragment.text + " COLLATE BINARY";
    case Collation::Database: break;
    }
    return fragment.text + " COLLATE " + database_collation;
}

std::string Emitter::collated(const BoundPtr& value) {
    return collated(value_of(value), *value);
}

Fragment Emitter::user_function(const BoundUserFunction& node) {
    volatile_ = true;
    Fragment fragment;
    fragment.text = "zf_call(" + quoted_text(node.name);
    for (const BoundPtr& argument : node.arguments) {
        fragment.text += "," + stored_value(argument, argument->type);
    }
    fragment.text += ")";
    fragment.form = form_of(node.type);
    fragment.bound = bound_of(node.type);
    return fragment;
}

Fragment Emitter::value_of(const BoundPtr& value) {
    for (const BoundPtr& absent : absent_) {
        if (same_expression(absent, value, nullptr)) {
            Fragment fragment;
            fragment.text = "NULL";
            return fragment;
        }
    }
    switch (value->kind) {
    case BoundKind::Literal: {
        const auto& node = static_cast<const BoundLiteral&>(*value);
        return literal(node, node.type, Conversion::None, 0);
    }
    case BoundKind::Value: return system_value(static_cast<const BoundValue&>(*value));
    case BoundKind::Column: return column(static_cast<const BoundColumn&>(*value));
    case BoundKind::Arithmetic: return arithmetic(static_cast<const BoundArithmetic&>(*value));
    case BoundKind::Negate: return negate(static_cast<const BoundUnary&>(*value));
    case BoundKind::BitNot: {
        Fragment operand = value_of(static_cast<const BoundUnary&>(*value).operand);
        operand.text = "(~" + operand.text + ")";
        return operand;
    }
    case BoundKind::Concatenation:
        return concatenation(static_cast<const BoundConcatenation&>(*value));
    case BoundKind::Case: return case_of(static_cast<const BoundCase&>(*value));
    case BoundKind::Convert: return convert(static_cast<const BoundConvert&>(*value));
    case BoundKind::Function: return function(static_cast<const BoundFunction&>(*value));
    case BoundKind::UserFunction:
        return user_function(static_cast<const BoundUserFunction&>(*value));
    case BoundKind::Aggregate: return aggregate(static_cast<const BoundAggregate&>(*value));
    case BoundKind::Subquery: return scalar_subquery(static_cast<const BoundSubquery&>(*value));
    default: break;
    }
    Fragment fragment;
    fragment.text = condition(value);
    fragment.bound = 2;
    return fragment;
}

} // namespace tsql::sqlite
