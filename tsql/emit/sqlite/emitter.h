// Turns what is bound into SQLite's SQL: one emitter for one text with its parameters.
#pragma once

#include "tsql/binder/bound_statement.h"
#include "tsql/emit/sqlite/fragment.h"
#include "tsql/plan/plan.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tsql::sqlite {

// How the columns of an emitted query are held.
struct ColumnForm {
    Form form = Form::Narrow;
    double bound = 0;
};

struct RunningRows;

class Emitter {
public:
    // The ordinals of literals that become parameters are added to `passed`. Without it literals
    // stand in the text itself: for CHECK and index conditions.
    explicit Emitter(std::set<int>* passed)
        : inline_literals_(passed == nullptr), passed_(passed) {}

    // ---- whole texts
    SqlText query(const BoundQuery& query);
    // The same for a query whose rows are shown: where its windows follow its order, the text gives
    // rows without order and `order` says what becomes of them.
    SqlText query(const BoundQuery& query, std::optional<RowOrder>& order);
    // SELECT of values without tables; conditions give 1, 0 or NULL.
    SqlText values(const std::vector<BoundPtr>& values);
    SqlText insert(const BoundInsert& insert, bool into_copy);
    SqlText update(const BoundUpdate& update, bool skip_unchanged);
    SqlText remove(const BoundDelete& statement, bool from_copy);
    // INSERT INTO the copy of old rows SELECT … of the rows the statement will change.
    SqlText fill_old_rows(const BoundUpdate& update);
    SqlText fill_old_rows(const BoundDelete& statement);
    // For an UPDATE of key columns: new values first collected, then keys moved out of the way,
    // then written.
    std::vector<SqlText> update_in_turns(const BoundUpdate& update);
    SqlText output(const BoundChange& change, DmlKind kind);
    std::string condition_text(const BoundPtr& condition);
    std::string expression_text(const BoundPtr& value) { return value_of(value).text; }

    // Functions of the database the text calls or values that change by themselves.
    bool is_volatile() const { return volatile_; }

private:
    // ---- expressions (expression.cpp, arithmetic.cpp, convert.cpp, function_call.cpp)
    Fragment value_of(const BoundPtr& value);
    Fragment literal(const BoundLiteral& node, const Type& to, Conversion how, int style);
    std::string inline_literal(const BoundLiteral& node, const Type& to, Conversion how, int style);
    Fragment system_value(const BoundValue& node);
    Fragment column(const BoundColumn& node);
    Fragment arithmetic(const BoundArithmetic& node);
    std::optional<Fragment> long_sum(const BoundArithmetic& node); // long_sum.cpp
    Fragment integer_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right);
    Fragment decimal_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right);
    Fragment money_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right);
    Fragment date_arithmetic(const BoundArithmetic& node, Fragment left, Fragment right);
    Fragment negate(const BoundUnary& node);
    Fragment case_of(const BoundCase& node);
    Fragment coalesce(const BoundFunction& node);
    Fragment concatenation(const BoundConcatenation& node);
    Fragment convert(const BoundConvert& node);
    Fragment converted(Fragment value, const Type& from, const Type& to, ConvertMode mode,
                       int style);
    Fragment exact_to_exact(Fragment value, const Type& from, const Type& to);
    Fragment function(const BoundFunction& node);
    Fragment number_function(const BoundFunction& node);
    Fragment plain_function(const BoundFunction& node);
    Fragment user_function(const BoundUserFunction& node);
    Fragment aggregate(const BoundAggregate& node);
    Fragment sum_of(const BoundAggregate& node, const std::string& over);
    // What a sum of narrow numbers, given as SQLite's text, is in the sum's type.
    Fragment narrow_sum(const Type& type, const std::string& sum);
    Fragment average_of(const BoundAggregate& node, const std::string& over);
    std::string string_aggregate(const BoundAggregate& node);
    std::string over_clause(const BoundAggregate& node);
    std::string frame_text(const BoundFrame& frame);
    Fragment scalar_subquery(const BoundSubquery& node);
    // The value with its collation named when the engine would not use the right one.
    std::string collated(const BoundPtr& value);
    std::string collated(const Fragment& fragment, const BoundExpression& value);
    Fragment rescaled(Fragment value, int from_scale, int to_scale);
    std::vector<Fragment> same_form(std::vector<Fragment> fragments);

    // ---- conditions (condition.cpp)
    std::string condition(const BoundPtr& node);
    std::string comparison(const BoundComparison& node);
    std::string exact_comparison(const BoundPtr& left, const BoundPtr& right,
                                 const std::string& op);
    std::string in_list(const BoundInList& node);
    std::string in_query(const BoundSubquery& node);
    std::string quantified(const BoundSubquery& node);
    std::string like(const BoundLike& node);

    // ---- queries (query.cpp, select.cpp, source.cpp)
    struct SelectParts {
        std::vector<Fragment> items;
        std::string tail; // FROM … HAVING
    };
    // `used` says which columns the outer query reads; null means all.
    std::string query_text(const BoundQuery& query, const std::vector<bool>* used,
                           std::vector<ColumnForm>& forms, bool named);
    std::string with_clause(const std::vector<std::shared_ptr<BoundCommonTable>>& with);
    std::string common_table(const BoundCommonTable& common);
    std::string body_text(const BoundBody& body, const BoundQuery* owner,
                          const std::vector<bool>* used, std::vector<ColumnForm>& forms,
                          bool named);
    std::string select_text(const BoundSelect& select, const BoundQuery* owner,
                            const std::vector<bool>* used, std::vector<ColumnForm>& forms,
                            bool named);
    std::string ties_text(const BoundSelect& select, const BoundQuery& owner,
                          std::vector<ColumnForm>& forms, bool named);
    SelectParts select_parts(const BoundSelect& select, std::size_t grouping_set,
                             const std::vector<bool>* used);
    std::string list_text(const std::vector<Fragment>& items, const BoundSelect& select,
                          bool collate, bool named);
    // Branches of a set operation, or the groupings of ROLLUP, in one list.
    void branches_of(const BoundBody& body, const std::vector<bool>* used,
                     std::vector<std::pair<const BoundSelect*, SelectParts>>& out);
    std::string set_operation_text(const BoundSetOperation& node, const std::vector<bool>* used,
                                   std::vector<ColumnForm>& forms, bool named);
    std::string order_text(const BoundQuery& query, const BoundSelect* select, bool by_number);
    // The order by its expressions, for where the list's numbers mean nothing.
    std::string order_by_value(const BoundQuery& query, const BoundSelect& select);
    std::string limit_text(const BoundQuery& query, const BoundSelect* select);
    std::string from_text(const std::vector<BoundSourcePtr>& from);
    std::string source_text(const BoundSource& source);
    std::string table_text(const RangeTable& table);
    std::string values_text(const RangeTable& table);
    // The query as sums gathered in one pass, "" when it is not of that kind (gathering.cpp).
    std::string gathered_query(const BoundQuery& query, const std::vector<bool>& used,
                               std::vector<ColumnForm>& forms);
    std::string apply_text(const BoundSource& source);

    // ---- rows put in order by the engine (running.cpp, shown.cpp)
    bool running_query(const BoundQuery& query, RowOrder& order, std::string& text);
    // Each answers the number of the value or cell, -1 when it cannot be made this way.
    bool shown_columns(const BoundSelect& select, RunningRows& rows);
    int shown_value(const BoundPtr& value, RunningRows& rows);
    int shown_outside(const BoundColumn& column, const BoundPtr& value, RunningRows& rows);
    int shown_condition(const BoundPtr& condition, int then, int otherwise, RunningRows& rows);
    int shown_choice(const BoundCase& node, RunningRows& rows);
    int shown_plain_choice(const BoundPtr& value, RunningRows& rows);
    int shown_conversion(const BoundConvert& node, RunningRows& rows);
    int shown_constant(const BoundPtr& value, RunningRows& rows);
    int shown_operand(const BoundPtr& value, int scale, RunningRows& rows);
    int taken_constant(RunningRows& rows, const std::function<Fragment()>& emit);
    int shown_window(const BoundAggregate& node, RunningRows& rows);
    int narrow_cell(const BoundPtr& value, RunningRows& rows);
    int cell_of(const BoundPtr& value, RunningRows& rows);

    // ---- changes (insert.cpp, update.cpp, delete.cpp)
    std::string rows_of(const BoundChange& change, const std::vector<BoundSourcePtr>& from,
                        bool target_in_from, const BoundPtr& where);
    std::string old_rows(const BoundChange& change, const std::vector<BoundSourcePtr>& from,
                         bool target_in_from, const BoundPtr& where);
    std::string stored_value(const BoundPtr& value, const Type& type);
    std::string insert_source(const BoundInsert& insert, const std::vector<int>& columns);

    std::string parameter(const PlanParameter& parameter);
    SqlText finish(std::string text);

    bool inline_literals_;
    std::set<int>* passed_;
    bool volatile_ = false;
    bool force_order_ = false; // tables are joined as they are written
    bool gathers_ = false; // the table being emitted is read as a whole, whatever is asked of it
    int conditional_ = 0;  // inside branches that may not be reached
    std::vector<PlanParameter> parameters_;
    std::map<int, std::vector<ColumnForm>> forms_; // of derived tables, by id
    // Grouping expressions that are NULL in the grouping being emitted.
    std::vector<BoundPtr> absent_;
};

std::string alias_of(const RangeTable& table);
// The table's name in the engine, quoted, with its schema when it is a temporary one.
std::string stored_table(const CatalogTable& table);
// The type a column is declared with in SQLite: the T-SQL type, its affinity fitting the values.
std::string declared_column(const CatalogColumn& column);

} // namespace tsql::sqlite
