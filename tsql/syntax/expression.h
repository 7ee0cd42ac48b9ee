// Expressions and conditions as written; operators are trees, chains of AND and OR are flat lists.
#pragma once

#include "tsql/syntax/name.h"
#include "tsql/syntax/node.h"

namespace tsql {

struct Query;

enum class ExpressionKind : std::uint8_t {
    // Values.
    Literal,
    ColumnReference,
    Variable,
    SystemVariable,
    DefaultMark,
    Unary,
    Binary,
    Case,
    Cast,
    FunctionCall,
    Collate,
    ScalarSubquery,
    // Conditions: true, false or unknown; never a value of a column.
    Comparison,
    Logical,
    Not,
    Between,
    InList,
    InQuery,
    Like,
    IsNull,
    Exists,
    QuantifiedComparison,
    ColumnUpdated,
};

struct Expression : Node<ExpressionKind> {
    using Node::Node;
    bool is_condition() const { return kind >= ExpressionKind::Comparison; }
};
using ExpressionPtr = std::unique_ptr<Expression>;

// One element of an ORDER BY.
struct OrderItem {
    ExpressionPtr expression;
    bool descending = false;
};

enum class LiteralKind : std::uint8_t {
    Null,
    Integer,      // 42; may be wider than int: then the type is decimal
    Decimal,      // 1.50 .5 1.; the digits decide precision and scale
    Float,        // 1e3
    Money,        // $12.50, text without the sign
    Text,         // 'x', doubled quotes undone
    NationalText, // N'x'
    Binary,       // 0x1F, text holds the hexadecimal digits without 0x
};

struct Literal : Expression {
    static constexpr auto own_kind = ExpressionKind::Literal;
    Literal() : Expression(own_kind) {}
    LiteralKind type = LiteralKind::Null;
    std::string text; // value for texts, digits for numbers; a sign is a Unary around it
    // Which literal of the batch this is, counted from 0 in the order of the text; the same
    // number the normalised form of the text gives it. NULL has none and keeps -1.
    int ordinal = -1;
};

// A column, qualified or not: K, A.K, dbo.A.K. The name of a date part in DATEADD(month, …) and
// its kin looks the same and comes as one, too.
struct ColumnReference : Expression {
    static constexpr auto own_kind = ExpressionKind::ColumnReference;
    ColumnReference() : Expression(own_kind) {}
    ObjectName name;
};

struct Variable : Expression { // @x, name with its mark
    static constexpr auto own_kind = ExpressionKind::Variable;
    Variable() : Expression(own_kind) {}
    std::string name;
};

struct SystemVariable : Expression { // @@ROWCOUNT, name with both marks
    static constexpr auto own_kind = ExpressionKind::SystemVariable;
    SystemVariable() : Expression(own_kind) {}
    std::string name;
};

// DEFAULT among the values of INSERT, of SET in UPDATE, or among a function's arguments.
struct DefaultMark : Expression {
    static constexpr auto own_kind = ExpressionKind::DefaultMark;
    DefaultMark() : Expression(own_kind) {}
};

enum class UnaryOperator : std::uint8_t { Plus, Minus, BitNot };

struct Unary : Expression {
    static constexpr auto own_kind = ExpressionKind::Unary;
    Unary() : Expression(own_kind) {}
    UnaryOperator op = UnaryOperator::Plus;
    ExpressionPtr operand;
};

enum class BinaryOperator : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    BitAnd,
    BitOr,
    BitXor,
};

struct Binary : Expression {
    static constexpr auto own_kind = ExpressionKind::Binary;
    Binary() : Expression(own_kind) {}
    BinaryOperator op = BinaryOperator::Add;
    SourceRange op_at;
    ExpressionPtr left;
    ExpressionPtr right;
};

// CASE x WHEN v THEN r … (subject set, `when` holds values) or CASE WHEN c THEN r … (subject
// null, `when` holds conditions).
struct CaseBranch {
    ExpressionPtr when;
    ExpressionPtr then;
};

struct Case : Expression {
    static constexpr auto own_kind = ExpressionKind::Case;
    Case() : Expression(own_kind) {}
    ExpressionPtr subject;
    std::vector<CaseBranch> branches;
    ExpressionPtr otherwise; // null when there is no ELSE
};

// CAST(x AS t), CONVERT(t, x[, style]) and their TRY_ forms, which give NULL where the plain form
// fails.
struct Cast : Expression {
    static constexpr auto own_kind = ExpressionKind::Cast;
    Cast() : Expression(own_kind) {}
    ExpressionPtr operand;
    TypeName type;
    ExpressionPtr style; // third argument of CONVERT, else null
    bool is_try = false;
};

enum class FrameUnit : std::uint8_t { Rows, Range };
enum class FrameBoundKind : std::uint8_t {
    UnboundedPreceding,
    Preceding,
    CurrentRow,
    Following,
    UnboundedFollowing,
};

struct FrameBound {
    FrameBoundKind kind = FrameBoundKind::CurrentRow;
    ExpressionPtr offset; // only of Preceding and Following
};

struct WindowFrame {
    FrameUnit unit = FrameUnit::Range;
    FrameBound start;
    FrameBound end; // CURRENT ROW when the frame names its start only
};

struct Over { // OVER ([PARTITION BY …] [ORDER BY …] [frame])
    std::vector<ExpressionPtr> partition;
    std::vector<OrderItem> order;
    std::optional<WindowFrame> frame;
    SourceRange at;
};

// Every call f(…), built-in or dbo.f: aggregates, window functions, COALESCE, ISNULL, IIF (whose
// first argument is a condition), CHOOSE, CURRENT_TIMESTAMP (without parentheses).
struct FunctionCall : Expression {
    static constexpr auto own_kind = ExpressionKind::FunctionCall;
    FunctionCall() : Expression(own_kind) {}
    ObjectName name;
    std::vector<ExpressionPtr> arguments;
    bool star = false;                   // COUNT(*)
    bool distinct = false;               // COUNT(DISTINCT x)
    std::vector<OrderItem> within_group; // STRING_AGG(x, ',') WITHIN GROUP (ORDER BY …)
    std::unique_ptr<Over> over;          // null unless it is a window function
};

struct Collate : Expression { // x COLLATE Chinese_PRC_CS_AS
    static constexpr auto own_kind = ExpressionKind::Collate;
    Collate() : Expression(own_kind) {}
    ExpressionPtr operand;
    Name collation;
};

struct ScalarSubquery : Expression {
    static constexpr auto own_kind = ExpressionKind::ScalarSubquery;
    ScalarSubquery();
    ~ScalarSubquery() override;
    std::unique_ptr<Query> query;
};

enum class ComparisonOperator : std::uint8_t {
    Equal,
    NotEqual, // <> and !=
    Less,
    LessEqual, // <= and !>
    Greater,
    GreaterEqual, // >= and !<
};

struct Comparison : Expression {
    static constexpr auto own_kind = ExpressionKind::Comparison;
    Comparison() : Expression(own_kind) {}
    ComparisonOperator op = ComparisonOperator::Equal;
    SourceRange op_at;
    ExpressionPtr left;
    ExpressionPtr right;
};

enum class LogicalOperator : std::uint8_t { And, Or };

// a AND b AND c as one node of three operands, so that a long list of conditions is not a deep
// tree; always at least two.
struct Logical : Expression {
    static constexpr auto own_kind = ExpressionKind::Logical;
    Logical() : Expression(own_kind) {}
    LogicalOperator op = LogicalOperator::And;
    std::vector<ExpressionPtr> operands;
};

struct Not : Expression {
    static constexpr auto own_kind = ExpressionKind::Not;
    Not() : Expression(own_kind) {}
    ExpressionPtr operand;
};

struct Between : Expression {
    static constexpr auto own_kind = ExpressionKind::Between;
    Between() : Expression(own_kind) {}
    ExpressionPtr operand;
    ExpressionPtr low;
    ExpressionPtr high;
    bool negated = false;
};

struct InList : Expression { // x [NOT] IN (1, 2)
    static constexpr auto own_kind = ExpressionKind::InList;
    InList() : Expression(own_kind) {}
    ExpressionPtr operand;
    std::vector<ExpressionPtr> values;
    bool negated = false;
};

struct InQuery : Expression { // x [NOT] IN (SELECT …)
    static constexpr auto own_kind = ExpressionKind::InQuery;
    InQuery();
    ~InQuery() override;
    ExpressionPtr operand;
    std::unique_ptr<Query> query;
    bool negated = false;
};

struct Like : Expression {
    static constexpr auto own_kind = ExpressionKind::Like;
    Like() : Expression(own_kind) {}
    ExpressionPtr operand;
    ExpressionPtr pattern;
    ExpressionPtr escape; // null when not given
    bool negated = false;
};

struct IsNull : Expression {
    static constexpr auto own_kind = ExpressionKind::IsNull;
    IsNull() : Expression(own_kind) {}
    ExpressionPtr operand;
    bool negated = false; // IS NOT NULL
};

struct Exists : Expression {
    static constexpr auto own_kind = ExpressionKind::Exists;
    Exists();
    ~Exists() override;
    std::unique_ptr<Query> query;
};

// x >= ALL (SELECT …), x = ANY (SELECT …); SOME is ANY.
struct QuantifiedComparison : Expression {
    static constexpr auto own_kind = ExpressionKind::QuantifiedComparison;
    QuantifiedComparison();
    ~QuantifiedComparison() override;
    ComparisonOperator op = ComparisonOperator::Equal;
    bool all = false;
    ExpressionPtr operand;
    std::unique_ptr<Query> query;
};

struct ColumnUpdated : Expression { // UPDATE(column), inside a trigger
    static constexpr auto own_kind = ExpressionKind::ColumnUpdated;
    ColumnUpdated() : Expression(own_kind) {}
    Name column;
};

} // namespace tsql
