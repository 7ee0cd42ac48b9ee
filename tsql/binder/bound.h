// Expressions and conditions that are understood: every column found, every type known.
#pragma once

#include "tsql/plan/plan.h"
#include "tsql/syntax/query.h"

#include <memory>
#include <string>
#include <vector>

namespace tsql {

struct BoundQuery;
struct RangeTable;

enum class BoundKind : std::uint8_t {
    // Values.
    Literal,
    Value,
    Column,
    Arithmetic,
    Negate,
    BitNot,
    Concatenation,
    Case,
    Convert,
    Function,
    UserFunction,
    Aggregate,
    Subquery,
    // Conditions.
    Comparison,
    Logical,
    Not,
    InList,
    InQuery,
    Like,
    IsNull,
    Exists,
    Quantified,
};

// How two texts are compared; that of an expression is its column's or its COLLATE.
enum class Collation : std::uint8_t { Database, CaseSensitive, Binary };

// A node is immutable once bound and may stand in several places of a tree. Operands already have
// the types the operation needs; only decimal arithmetic keeps its operands' own scales.
struct BoundExpression {
    explicit BoundExpression(BoundKind its_kind) : kind(its_kind) {}
    virtual ~BoundExpression() = default;

    const BoundKind kind;
    Type type;
    bool nullable = true;
    Collation collation = Collation::Database;
    SourceRange at;

    bool is_condition() const { return kind >= BoundKind::Comparison; }
};
using BoundPtr = std::shared_ptr<const BoundExpression>;

// A literal. `constant` is its place among the plan's constants, or -1: then `ordinal` is its
// place in the text that is being run. NULL has neither.
struct BoundLiteral : BoundExpression {
    static constexpr auto own_kind = BoundKind::Literal;
    BoundLiteral() : BoundExpression(own_kind) {}
    LiteralKind literal = LiteralKind::Null;
    std::string text;
    int ordinal = -1;
    int constant = -1;

    // Of a whole number: how many digits count.
    int digits() const {
        const std::size_t first = text.find_first_not_of('0');
        return first == std::string::npos ? 1 : static_cast<int>(text.size() - first);
    }
};

struct BoundValue : BoundExpression { // variable, system value, cell of an EXEC row
    static constexpr auto own_kind = BoundKind::Value;
    BoundValue() : BoundExpression(own_kind) {}
    ParameterSource source = ParameterSource::Variable;
    SystemValue system = SystemValue::Now;
    int index = 0;
    bool row_by_row = false; // read anew for every row: SELECT @s = @s + x
};

struct BoundColumn : BoundExpression {
    static constexpr auto own_kind = BoundKind::Column;
    BoundColumn() : BoundExpression(own_kind) {}
    RangeTable* table = nullptr;
    int ordinal = 0;
};

// Numbers; or a datetime and a number of days (then `right` is a number or both are datetimes).
struct BoundArithmetic : BoundExpression {
    static constexpr auto own_kind = BoundKind::Arithmetic;
    BoundArithmetic() : BoundExpression(own_kind) {}
    BinaryOperator op = BinaryOperator::Add;
    BoundPtr left;
    BoundPtr right;
};

struct BoundUnary : BoundExpression { // Negate, BitNot, Not, IsNull
    explicit BoundUnary(BoundKind its_kind) : BoundExpression(its_kind) {}
    BoundPtr operand;
    bool negated = false; // IS NOT NULL
};

struct BoundConcatenation : BoundExpression {
    static constexpr auto own_kind = BoundKind::Concatenation;
    BoundConcatenation() : BoundExpression(own_kind) {}
    std::vector<BoundPtr> parts;
};

struct BoundCaseBranch {
    BoundPtr when; // a condition, or a value of the subject's type
    BoundPtr then;
};
struct BoundCase : BoundExpression {
    static constexpr auto own_kind = BoundKind::Case;
    BoundCase() : BoundExpression(own_kind) {}
    BoundPtr subject; // null when the branches hold conditions
    std::vector<BoundCaseBranch> branches;
    BoundPtr otherwise; // null gives NULL
};

enum class ConvertMode : std::uint8_t { Cast, Try, Assign };
struct BoundConvert : BoundExpression {
    static constexpr auto own_kind = BoundKind::Convert;
    BoundConvert() : BoundExpression(own_kind) {}
    BoundPtr operand;
    ConvertMode mode = ConvertMode::Cast;
    int style = 0;
};

// A built-in function under its T-SQL name in upper case; `part` is the date part of DATEADD and
// its kin in lower case and written out.
struct BoundFunction : BoundExpression {
    static constexpr auto own_kind = BoundKind::Function;
    BoundFunction() : BoundExpression(own_kind) {}
    std::string name;
    std::string part;
    std::vector<BoundPtr> arguments;
};

struct BoundUserFunction : BoundExpression {
    static constexpr auto own_kind = BoundKind::UserFunction;
    BoundUserFunction() : BoundExpression(own_kind) {}
    std::string name;
    std::vector<BoundPtr> arguments;
};

struct BoundOrder {
    BoundPtr expression;
    bool descending = false;
    int item = -1; // the select item it stands for, from 0; else the expression counts
};

struct BoundFrame {
    FrameUnit unit = FrameUnit::Range;
    FrameBoundKind start = FrameBoundKind::UnboundedPreceding;
    FrameBoundKind end = FrameBoundKind::CurrentRow;
    BoundPtr start_offset;
    BoundPtr end_offset;
};

struct BoundWindow {
    std::vector<BoundPtr> partition;
    std::vector<BoundOrder> order;
    std::optional<BoundFrame> frame;
};

// An aggregate over the group, or with a window; also ROW_NUMBER and its kin.
struct BoundAggregate : BoundExpression {
    static constexpr auto own_kind = BoundKind::Aggregate;
    BoundAggregate() : BoundExpression(own_kind) {}
    std::string name;                // upper case
    std::vector<BoundPtr> arguments; // none for COUNT(*)
    bool distinct = false;
    std::vector<BoundOrder> within;
    std::shared_ptr<const BoundWindow> window; // null: of the group
};

struct BoundSubquery : BoundExpression { // Subquery, Exists, InQuery, Quantified
    explicit BoundSubquery(BoundKind its_kind) : BoundExpression(its_kind) {}
    std::shared_ptr<BoundQuery> query;
    BoundPtr operand; // of InQuery and Quantified
    ComparisonOperator op = ComparisonOperator::Equal;
    bool all = false;
    bool negated = false;
    bool one_row = false; // of Subquery: cannot give more than one row
};

struct BoundComparison : BoundExpression {
    static constexpr auto own_kind = BoundKind::Comparison;
    BoundComparison() : BoundExpression(own_kind) {}
    ComparisonOperator op = ComparisonOperator::Equal;
    BoundPtr left;
    BoundPtr right;
};

struct BoundLogical : BoundExpression {
    static constexpr auto own_kind = BoundKind::Logical;
    BoundLogical() : BoundExpression(own_kind) {}
    LogicalOperator op = LogicalOperator::And;
    std::vector<BoundPtr> operands;
};

struct BoundInList : BoundExpression {
    static constexpr auto own_kind = BoundKind::InList;
    BoundInList() : BoundExpression(own_kind) {}
    BoundPtr operand;
    std::vector<BoundPtr> values;
    bool negated = false;
};

struct BoundLike : BoundExpression {
    static constexpr auto own_kind = BoundKind::Like;
    BoundLike() : BoundExpression(own_kind) {}
    BoundPtr operand;
    BoundPtr pattern;
    BoundPtr escape; // null when none
    bool negated = false;
};

} // namespace tsql
