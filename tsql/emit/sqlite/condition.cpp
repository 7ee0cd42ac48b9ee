// Conditions as SQL conditions; unknown is NULL on both sides.
#include "tsql/emit/sqlite/emitter.h"

namespace tsql::sqlite {

namespace {

const char* sign_of(ComparisonOperator op) {
    switch (op) {
    case ComparisonOperator::Equal: return "=";
    case ComparisonOperator::NotEqual: return "<>";
    case ComparisonOperator::Less: return "<";
    case ComparisonOperator::LessEqual: return "<=";
    case ComparisonOperator::Greater: return ">";
    case ComparisonOperator::GreaterEqual: return ">=";
    }
    return "=";
}

bool is_number_literal(const BoundPtr& value) {
    return value->kind == BoundKind::Literal && value->type.is_exact() && !value->type.is_money();
}

} // namespace

// Exact numbers of different scales: a literal is brought to the other side's scale before it is
// bound, a narrow column is multiplied, anything else is compared digit by digit.
std::string Emitter::exact_comparison(const BoundPtr& left, const BoundPtr& right,
                                      const std::string& op) {
    const int left_scale = left->type.stored_scale();
    const int right_scale = right->type.stored_scale();
    // A literal's own form is not asked for when it is about to be fitted to the other side.
    const bool fits_right = is_number_literal(right) && right_scale <= left_scale &&
                            as_decimal(right->type).precision + left_scale <= 18 &&
                            right_scale < left_scale;
    const bool fits_left = !fits_right && is_number_literal(left) && left_scale < right_scale &&
                           as_decimal(left->type).precision + right_scale <= 18;
    Fragment a = fits_left ? Fragment{} : value_of(left);
    Fragment b = fits_right ? Fragment{} : value_of(right);
    const auto fitted = [&](const BoundPtr& number, const Fragment& other, int scale) {
        const int whole = as_decimal(number->type).precision - number->type.stored_scale();
        const Type to = other.form == Form::Wide
                            ? Type::decimal(38, scale)
                            : Type::decimal(std::min(18, whole + scale), scale);
        return literal(static_cast<const BoundLiteral&>(*number), to, Conversion::Cast, 0);
    };
    if (fits_right) {
        return a.text + op + fitted(right, a, left_scale).text;
    }
    if (fits_left) {
        return fitted(left, b, right_scale).text + op + b.text;
    }
    if (a.form == b.form && left_scale == right_scale) {
        return a.text + op + b.text;
    }
    if (a.form == Form::Narrow && b.form == Form::Narrow) {
        const int scale = std::max(left_scale, right_scale);
        if (a.bound * power_of_ten(scale - left_scale) < narrow_limit &&
            b.bound * power_of_ten(scale - right_scale) < narrow_limit) {
            return rescaled(std::move(a), left_scale, scale).text + op +
                   rescaled(std::move(b), right_scale, scale).text;
        }
    }
    return "zf_dec_cmp(" + a.text + "," + std::to_string(left_scale) + "," + b.text + "," +
           std::to_string(right_scale) + ")" + op + "0";
}

std::string Emitter::comparison(const BoundComparison& node) {
    const std::string op = sign_of(node.op);
    if (node.left->type.is_exact() && node.right->type.is_exact()) {
        return "(" + exact_comparison(node.left, node.right, op) + ")";
    }
    const Fragment left = value_of(node.left);
    const Fragment right = value_of(node.right);
    if (!node.left->type.is_text()) {
        return "(" + left.text + op + right.text + ")";
    }
    const bool known = node.collation == Collation::Database &&
                       (left.collated || (right.collated && left.is_parameter));
    if (known) {
        return "(" + left.text + op + right.text + ")";
    }
    Fragment last = right;
    last.collated = false;
    BoundLiteral shown;
    shown.type = Type::varchar(1);
    shown.collation = node.collation;
    return "(" + left.text + op + collated(last, shown) + ")";
}

std::string Emitter::in_list(const BoundInList& node) {
    std::string text = collated(node.operand) + (node.negated ? " NOT IN (" : " IN (");
    std::vector<Fragment> values{value_of(node.operand)};
    for (const BoundPtr& value : node.values) {
        values.push_back(value_of(value));
    }
    bool mixed = false;
    for (const Fragment& value : values) {
        mixed = mixed || value.form != values[0].form;
    }
    if (mixed) {
        values = same_form(std::move(values));
        text = values[0].text + (node.negated ? " NOT IN (" : " IN (");
    }
    for (std::size_t i = 1; i < values.size(); ++i) {
        text += (i == 1 ? "" : ",") + values[i].text;
    }
    return "(" + text + "))";
}

std::string Emitter::in_query(const BoundSubquery& node) {
    std::vector<ColumnForm> forms;
    const Type& inner = node.query->columns[0].type;
    std::string query = query_text(*node.query, nullptr, forms, true);
    Fragment operand = value_of(node.operand);
    Fragment column;
    column.text = "c1";
    column.form = forms[0].form;
    column.bound = forms[0].bound;
    if (!node.type.is_text() && inner != node.type) {
        column = converted(std::move(column), inner, node.type, ConvertMode::Cast, 0);
    }
    if (column.form != operand.form) {
        auto both = same_form({std::move(column), std::move(operand)});
        column = std::move(both[0]);
        operand = std::move(both[1]);
    }
    if (column.text != "c1") {
        query = "SELECT " + column.text + " FROM (" + query + ")";
    }
    return "(" + collated(operand, *node.operand) + (node.negated ? " NOT IN (" : " IN (") + query +
           "))";
}

// ALL holds when no row contradicts, ANY when one agrees; a NULL in the way makes it unknown.
std::string Emitter::quantified(const BoundSubquery& node) {
    std::vector<ColumnForm> forms;
    const std::string query = query_text(*node.query, nullptr, forms, true);
    Fragment column;
    column.text = "c1";
    column.form = forms[0].form;
    column.bound = forms[0].bound;
    column =
        converted(std::move(column), node.query->columns[0].type, node.type, ConvertMode::Cast, 0);
    Fragment operand = value_of(node.operand);
    auto both = same_form({std::move(operand), std::move(column)});
    BoundLiteral shown;
    shown.type = node.type;
    shown.collation = node.collation;
    const std::string test = "(" + both[0].text + sign_of(node.op) + collated(both[1], shown) + ")";
    const std::string rows = "EXISTS (SELECT 1 FROM (" + query + ") WHERE ";
    if (node.all) {
        return "(CASE WHEN " + rows + "NOT " + test + ") THEN 0 WHEN " + rows + test +
               " IS NULL) THEN NULL ELSE 1 END)";
    }
    return "(CASE WHEN " + rows + test + ") THEN 1 WHEN " + rows + test +
           " IS NULL) THEN NULL ELSE 0 END)";
}

std::string Emitter::like(const BoundLike& node) {
    const char* name = node.collation == Collation::Database ? "zf_like(" : "zf_like_cs(";
    return std::string(node.negated ? "(NOT " : "(") + name + value_of(node.operand).text + "," +
           value_of(node.pattern).text + "," + (node.escape ? value_of(node.escape).text : "NULL") +
           "))";
}

namespace {

bool is_comparison_of(const BoundPtr& node, ComparisonOperator op) {
    return node->kind == BoundKind::Comparison &&
           static_cast<const BoundComparison&>(*node).op == op;
}

// A whole number that is worked out, between two others: worked out once. A column is left as two
// comparisons, which an index serves as well.
bool is_range(const BoundLogical& node) {
    if (node.op != LogicalOperator::And || node.operands.size() != 2 ||
        !is_comparison_of(node.operands[0], ComparisonOperator::GreaterEqual) ||
        !is_comparison_of(node.operands[1], ComparisonOperator::LessEqual)) {
        return false;
    }
    const auto& low = static_cast<const BoundComparison&>(*node.operands[0]);
    const auto& high = static_cast<const BoundComparison&>(*node.operands[1]);
    return low.left == high.left && low.left->kind != BoundKind::Column &&
           low.left->type.is_integer() && low.right->type.is_integer() &&
           high.right->type.is_integer();
}

} // namespace

std::string Emitter::condition(const BoundPtr& node) {
    switch (node->kind) {
    case BoundKind::Comparison: return comparison(static_cast<const BoundComparison&>(*node));
    case BoundKind::Logical: {
        const auto& logical = static_cast<const BoundLogical&>(*node);
        if (is_range(logical)) {
            const auto& low = static_cast<const BoundComparison&>(*logical.operands[0]);
            const auto& high = static_cast<const BoundComparison&>(*logical.operands[1]);
            std::string text = "(" + value_of(low.left).text + " BETWEEN ";
            text += value_of(low.right).text + " AND ";
            return text + value_of(high.right).text + ")";
        }
        const char* word = logical.op == LogicalOperator::And ? " AND " : " OR ";
        std::string text;
        for (const BoundPtr& operand : logical.operands) {
            text += (text.empty() ? "(" : word) + condition(operand);
        }
        return text + ")";
    }
    case BoundKind::Not:
        return "(NOT " + condition(static_cast<const BoundUnary&>(*node).operand) + ")";
    case BoundKind::IsNull: {
        const auto& unary = static_cast<const BoundUnary&>(*node);
        return "(" + value_of(unary.operand).text + (unary.negated ? " IS NOT NULL)" : " IS NULL)");
    }
    case BoundKind::InList: return in_list(static_cast<const BoundInList&>(*node));
    case BoundKind::InQuery: return in_query(static_cast<const BoundSubquery&>(*node));
    case BoundKind::Quantified: return quantified(static_cast<const BoundSubquery&>(*node));
    case BoundKind::Like: return like(static_cast<const BoundLike&>(*node));
    case BoundKind::Exists: {
        std::vector<ColumnForm> forms;
        const auto& query = *static_cast<const BoundSubquery&>(*node).query;
        const bool all = query.body->kind == BoundBodyKind::SetOperation ||
                         static_cast<const BoundSelect&>(*query.body).distinct ||
                         static_cast<const BoundSelect&>(*query.body).top.has_value();
        const std::vector<bool> none(query.columns.size(), false);
        return "EXISTS (" + query_text(query, all ? nullptr : &none, forms, false) + ")";
    }
    default: return value_of(node).text;
    }
}

std::string Emitter::condition_text(const BoundPtr& node) {
    return condition(node);
}

} // namespace tsql::sqlite
