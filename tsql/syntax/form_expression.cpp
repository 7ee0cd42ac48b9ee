// Expressions as forms: operators first, operands behind.
#include "tsql/syntax/form.h"

namespace tsql {

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') result += "'";
        if (c == '\n')
            result += "\\n";
        else
            result += c;
    }
    return result + "'";
}

Form literal_form(const Literal& literal) {
    switch (literal.type) {
    case LiteralKind::Null: return Form::atom("null");
    case LiteralKind::Text: return Form::atom(quoted(literal.text));
    case LiteralKind::NationalText: return Form::atom("N" + quoted(literal.text));
    case LiteralKind::Money: return Form::atom("$" + literal.text);
    case LiteralKind::Binary: return Form::atom("0x" + literal.text);
    default: return Form::atom(literal.text);
    }
}

const char* sign(UnaryOperator op) {
    switch (op) {
    case UnaryOperator::Plus: return "+";
    case UnaryOperator::Minus: return "-";
    case UnaryOperator::BitNot: return "~";
    }
    return "";
}

const char* sign(BinaryOperator op) {
    constexpr const char* signs[] = {"+", "-", "*", "/", "%", "&", "|", "^"};
    return signs[static_cast<std::size_t>(op)];
}

const char* sign(ComparisonOperator op) {
    constexpr const char* signs[] = {"=", "<>", "<", "<=", ">", ">="};
    return signs[static_cast<std::size_t>(op)];
}

std::vector<Form> forms_of(const std::vector<ExpressionPtr>& expressions) {
    std::vector<Form> forms;
    for (const ExpressionPtr& expression : expressions) forms.push_back(form_of(expression));
    return forms;
}

Form case_form(const Case& node) {
    Form form = list_of("case", {form_of(node.subject)});
    for (const CaseBranch& branch : node.branches)
        form.parts.push_back(list_of("when", {form_of(branch.when), form_of(branch.then)}));
    if (node.otherwise) form.parts.push_back(wrapped("else", form_of(node.otherwise)));
    return form;
}

Form bound_form(const FrameBound& bound) {
    switch (bound.kind) {
    case FrameBoundKind::UnboundedPreceding: return Form::atom("unbounded-preceding");
    case FrameBoundKind::Preceding: return wrapped("preceding", form_of(bound.offset));
    case FrameBoundKind::CurrentRow: return Form::atom("current-row");
    case FrameBoundKind::Following: return wrapped("following", form_of(bound.offset));
    case FrameBoundKind::UnboundedFollowing: return Form::atom("unbounded-following");
    }
    return {};
}

Form over_form(const Over& over) {
    Form form = list_of("over");
    if (!over.partition.empty())
        form.parts.push_back(list_of("partition", forms_of(over.partition)));
    if (!over.order.empty()) form.parts.push_back(form_of(over.order));
    if (over.frame)
        form.parts.push_back(list_of(over.frame->unit == FrameUnit::Rows ? "rows" : "range",
                                     {bound_form(over.frame->start), bound_form(over.frame->end)}));
    return form;
}

Form call_form(const FunctionCall& call) {
    Form form = list_of("call", {form_of(call.name)});
    if (call.star) form.parts.push_back(Form::atom("*"));
    if (call.distinct) form.parts.push_back(Form::atom("distinct"));
    for (Form& argument : forms_of(call.arguments)) form.parts.push_back(std::move(argument));
    if (!call.within_group.empty())
        form.parts.push_back(list_of("within-group", {form_of(call.within_group)}));
    if (call.over) form.parts.push_back(over_form(*call.over));
    return form;
}

Form in_list_form(const InList& in) {
    Form form = list_of(in.negated ? "not-in" : "in", forms_of(in.values));
    form.parts.insert(form.parts.begin(), form_of(in.operand));
    return form;
}

Form value_form(const Expression& node) {
    switch (node.kind) {
    case ExpressionKind::Literal: return literal_form(as<Literal>(node));
    case ExpressionKind::ColumnReference: return form_of(as<ColumnReference>(node).name);
    case ExpressionKind::Variable: return Form::atom(as<Variable>(node).name);
    case ExpressionKind::SystemVariable: return Form::atom(as<SystemVariable>(node).name);
    case ExpressionKind::DefaultMark: return Form::atom("default");
    case ExpressionKind::Unary:
        return list_of(sign(as<Unary>(node).op), {form_of(as<Unary>(node).operand)});
    case ExpressionKind::Binary:
        return list_of(sign(as<Binary>(node).op),
                       {form_of(as<Binary>(node).left), form_of(as<Binary>(node).right)});
    case ExpressionKind::Case: return case_form(as<Case>(node));
    case ExpressionKind::Cast: {
        const auto& cast = as<Cast>(node);
        return list_of(cast.is_try ? "try-cast" : "cast",
                       {form_of(cast.operand), form_of(cast.type), form_of(cast.style)});
    }
    case ExpressionKind::FunctionCall: return call_form(as<FunctionCall>(node));
    case ExpressionKind::Collate:
        return list_of("collate",
                       {form_of(as<Collate>(node).operand), form_of(as<Collate>(node).collation)});
    case ExpressionKind::ScalarSubquery:
        return list_of("scalar", {form_of(*as<ScalarSubquery>(node).query)});
    default: return {};
    }
}

Form condition_form(const Expression& node) {
    switch (node.kind) {
    case ExpressionKind::Comparison: {
        const auto& comparison = as<Comparison>(node);
        return list_of(sign(comparison.op), {form_of(comparison.left), form_of(comparison.right)});
    }
    case ExpressionKind::Logical:
        return list_of(as<Logical>(node).op == LogicalOperator::And ? "and" : "or",
                       forms_of(as<Logical>(node).operands));
    case ExpressionKind::Not: return list_of("not", {form_of(as<Not>(node).operand)});
    case ExpressionKind::Between: {
        const auto& between = as<Between>(node);
        return list_of(between.negated ? "not-between" : "between",
                       {form_of(between.operand), form_of(between.low), form_of(between.high)});
    }
    case ExpressionKind::InList: return in_list_form(as<InList>(node));
    case ExpressionKind::InQuery: {
        const auto& in = as<InQuery>(node);
        return list_of(in.negated ? "not-in" : "in", {form_of(in.operand), form_of(*in.query)});
    }
    case ExpressionKind::Like: {
        const auto& like = as<Like>(node);
        return list_of(like.negated ? "not-like" : "like",
                       {form_of(like.operand), form_of(like.pattern),
                        wrapped("escape", form_of(like.escape))});
    }
    case ExpressionKind::IsNull:
        return list_of(as<IsNull>(node).negated ? "is-not-null" : "is-null",
                       {form_of(as<IsNull>(node).operand)});
    case ExpressionKind::Exists: return list_of("exists", {form_of(*as<Exists>(node).query)});
    case ExpressionKind::QuantifiedComparison: {
        const auto& quantified = as<QuantifiedComparison>(node);
        return list_of(std::string(sign(quantified.op)) + (quantified.all ? "-all" : "-any"),
                       {form_of(quantified.operand), form_of(*quantified.query)});
    }
    case ExpressionKind::ColumnUpdated:
        return list_of("updated", {form_of(as<ColumnUpdated>(node).column)});
    default: return {};
    }
}

} // namespace

Form form_of(const Expression* expression) {
    if (expression == nullptr) return {};
    return expression->is_condition() ? condition_form(*expression) : value_form(*expression);
}

Form form_of(const ExpressionPtr& expression) {
    return form_of(expression.get());
}

Form form_of(const std::vector<OrderItem>& order) {
    if (order.empty()) return {};
    Form form = list_of("order");
    for (const OrderItem& item : order)
        form.parts.push_back(item.descending ? wrapped("desc", form_of(item.expression))
                                             : form_of(item.expression));
    return form;
}

} // namespace tsql
