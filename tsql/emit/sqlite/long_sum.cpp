// A long sum as one call: nested calls for every sign would be too deep for SQLite's parser.
#include "tsql/emit/sqlite/emitter.h"

#include <vector>

namespace tsql::sqlite {

namespace {

constexpr std::size_t long_enough = 16; // terms; shorter sums stay as they are written
constexpr std::size_t terms_a_call = 50; // SQLite takes 127 arguments

bool adds(const BoundArithmetic& node) {
    return node.op == BinaryOperator::Add || node.op == BinaryOperator::Subtract;
}

// Do the partial sums of both belong to the same calculation?
bool same_family(const Type& sum, const Type& partial) {
    if (sum.kind == TypeKind::Int) return partial.kind == TypeKind::Int;
    return sum.is_decimal() && partial.is_decimal() && sum.scale == partial.scale;
}

struct Term {
    const BoundPtr* value;
    bool subtracted;
};

// The terms from left to right; a term in brackets stays one term.
std::vector<Term> terms_of(const BoundArithmetic& whole) {
    std::vector<Term> terms;
    const BoundArithmetic* node = &whole;
    while (true) {
        terms.push_back({&node->right, node->op == BinaryOperator::Subtract});
        const BoundExpression& left = *node->left;
        if (left.kind != BoundKind::Arithmetic || !same_family(whole.type, left.type)) break;
        const auto& next = static_cast<const BoundArithmetic&>(left);
        if (!adds(next)) break;
        node = &next;
    }
    terms.push_back({&node->left, false});
    return {terms.rbegin(), terms.rend()};
}

} // namespace

// Each partial sum is checked as the nested calls would check it: whole numbers against their type,
// decimals against 38 digits, which is where their precision stops to grow.
std::optional<Fragment> Emitter::long_sum(const BoundArithmetic& node) {
    const bool decimal = node.type.is_decimal();
    if (!adds(node) || !same_family(node.type, node.type)) return std::nullopt;
    const std::vector<Term> terms = terms_of(node);
    if (terms.size() < long_enough) return std::nullopt;
    for (const Term& term : terms) {
        if (decimal && (*term.value)->type.stored_scale() > node.type.scale) return std::nullopt;
    }
    const auto argument = [&](int scale, const std::string& text) {
        return decimal ? std::to_string(scale) + "," + text : text;
    };
    const auto call = [&](const std::string& arguments) {
        return decimal ? "zf_dec_sum(" + std::to_string(node.type.precision) + "," +
                             argument(node.type.scale, arguments) + ")"
                       : "zf_sum4(" + arguments + ")";
    };
    std::string arguments;
    for (std::size_t at = 0; at < terms.size(); ++at) {
        if (at > 0 && at % terms_a_call == 0)
            arguments = argument(node.type.scale, call(arguments));
        std::string term = value_of(*terms[at].value).text;
        if (terms[at].subtracted)
            term = decimal ? "zf_dec_neg(" + term + ")" : "(0-(" + term + "))";
        arguments += (at > 0 ? "," : "") + argument((*terms[at].value)->type.stored_scale(), term);
    }
    Fragment result;
    result.text = call(arguments);
    if (decimal) result.form = Form::Wide;
    result.bound = bound_of(node.type);
    return result;
}

} // namespace tsql::sqlite
