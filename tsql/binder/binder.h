// The binder: from what was written to what it means, by the server's rules.
#pragma once

#include "tsql/binder/bound_statement.h"
#include "tsql/binder/context.h"
#include "tsql/binder/scope.h"
#include "tsql/syntax/syntax.h"

namespace tsql {

// Binds the parts of one statement against one context. Throws Refusal with the server's number.
// A table that does not exist is 208; the compiler decides whether that may wait until the
// statement is reached.
class Binder {
public:
    explicit Binder(BindContext& context) : context_(context) {}

    // ---- statements, in the files of their names
    std::unique_ptr<BoundQuery> bind_query(const Query& query, Scope* around, bool top_level);
    BoundAssign bind_assignment_query(const Query& query);
    BoundInsert bind_insert(const Insert& insert);
    BoundUpdate bind_update(const Update& update);
    BoundDelete bind_delete(const Delete& statement);
    std::shared_ptr<CatalogTable>
    bind_table(const std::string& name, const TableDefinition& definition, std::string_view text);
    // What a table variable of a routine ("" for a batch) is called in the engine.
    static std::string variable_table_name(const std::string& owner, const CatalogTable& table);

    // ---- expressions
    BoundPtr bind_value(const Expression& expression, Scope& scope);
    BoundPtr bind_condition(const Expression& expression, Scope& scope);
    BoundPtr convert(BoundPtr value, const Type& target, ConvertMode mode = ConvertMode::Cast,
                     int style = 0);
    Type bind_type(const TypeName& name, int default_length);
    // The result of an operator on two bound values.
    BoundPtr combine(BinaryOperator op, BoundPtr left, BoundPtr right, SourceRange at) {
        return arithmetic(op, std::move(left), std::move(right), at);
    }
    BoundPtr literal_int(std::int64_t value, SourceRange at);
    BoundPtr null_value(SourceRange at);
    // An expression kept as text in the catalogue: a default, a CHECK, a computed column.
    BoundPtr bind_text(const std::string& text, Scope& scope, bool condition);
    // The value when it is a whole number written down; the literal is then pinned.
    std::optional<std::int64_t> constant_integer(const BoundPtr& value);

    // ---- tables
    BoundSourcePtr bind_source(const TableSource& source, Scope& scope);
    std::shared_ptr<RangeTable> range_of_table(std::shared_ptr<const CatalogTable> table,
                                               const std::string& alias, SourceRange at);
    std::shared_ptr<const CatalogTable> table_named(const ObjectName& name);
    [[noreturn]] void refuse_object(const ObjectName& name);

    BindContext& context() { return context_; }

private:
    // ---- operators (operators.cpp)
    BoundPtr bind_literal(const Literal& literal);
    BoundPtr bind_column(const ColumnReference& column, Scope& scope);
    BoundPtr bind_variable(const Variable& variable);
    BoundPtr bind_system_variable(const SystemVariable& variable);
    BoundPtr bind_unary(const Unary& unary, Scope& scope);
    BoundPtr bind_binary(const Binary& binary, Scope& scope);
    BoundPtr arithmetic(BinaryOperator op, BoundPtr left, BoundPtr right, SourceRange at);
    BoundPtr date_arithmetic(BinaryOperator op, BoundPtr left, BoundPtr right, SourceRange at);
    BoundPtr bind_case(const Case& node, Scope& scope);
    BoundPtr bind_cast(const Cast& cast, Scope& scope);
    BoundPtr bind_collate(const Collate& collate, Scope& scope);
    BoundPtr bind_scalar_subquery(const ScalarSubquery& subquery, Scope& scope);

    // ---- conditions (conditions.cpp)
    BoundPtr compare(ComparisonOperator op, BoundPtr left, BoundPtr right, SourceRange at);
    BoundPtr bind_logical(const Logical& logical, Scope& scope);
    BoundPtr bind_between(const Between& between, Scope& scope);
    BoundPtr bind_in_list(const InList& list, Scope& scope);
    void expect_one_column(const BoundQuery& query, SourceRange at);
    BoundPtr bind_in_query(const InQuery& node, Scope& scope);
    BoundPtr bind_like(const Like& like, Scope& scope);
    BoundPtr bind_quantified(const QuantifiedComparison& node, Scope& scope);
    BoundPtr bind_updated(const ColumnUpdated& node);

    // ---- calls (functions.cpp, aggregates.cpp)
    BoundPtr bind_call(const FunctionCall& call, Scope& scope);
    BoundPtr bind_user_function(const FunctionCall& call, Scope& scope);
    BoundPtr bind_date_function(const FunctionCall& call, const std::string& name, Scope& scope);
    BoundPtr bind_typed_function(const FunctionCall& call, const std::string& name, Scope& scope);
    BoundPtr bind_choice(const FunctionCall& call, const std::string& name, Scope& scope);
    BoundPtr bind_first_value(const FunctionCall& call, const std::string& name, Scope& scope);
    BoundPtr bind_null_if(const FunctionCall& call, Scope& scope);
    BoundPtr bind_concat(const FunctionCall& call, Scope& scope);
    BoundPtr bind_aggregate(const FunctionCall& call, const std::string& name, Scope& scope);
    std::shared_ptr<const BoundWindow> bind_window(const Over& over, Scope& scope);
    std::vector<BoundPtr> bind_arguments(const FunctionCall& call, Scope& scope);
    // All values brought to their common type; it is returned.
    Type unify(std::vector<BoundPtr*> values);

    // ---- queries (query.cpp, select.cpp, grouping.cpp, order.cpp, set_operation.cpp)
    std::unique_ptr<BoundBody> bind_body(const QueryBody& body, Scope& scope, const Query* owner,
                                         BoundQuery& result);
    std::unique_ptr<BoundBody> bind_select(const Select& node, Scope& scope, const Query* owner,
                                           BoundQuery& result);
    void bind_items(const Select& node, Scope& scope, BoundSelect& select, BoundQuery& result);
    void bind_star(const SelectItem& item, Scope& scope, BoundSelect& select,
                   std::vector<RangeColumn>& columns);
    BoundPtr bind_assigned(const SelectItem& item, Scope& scope);
    void bind_grouping(const Select& node, Scope& scope, BoundSelect& select);
    void check_grouping(const BoundSelect& select, const Scope& scope, const BoundPtr& expression,
                        int error);
    void order_select(const Query& query, Scope& scope, BoundSelect& select, BoundQuery& result);
    // Whether two expressions are the same; literals compared by value are pinned.
    bool same(const BoundPtr& left, const BoundPtr& right);
    std::unique_ptr<BoundBody> bind_set_operation(const SetOperation& node, Scope& scope,
                                                  BoundQuery& result);
    void bind_with(const std::vector<CommonTable>& with, Scope& scope,
                   std::vector<std::shared_ptr<BoundCommonTable>>& out,
                   std::optional<int> max_recursion);
    void bind_recursive(const CommonTable& common, BoundCommonTable& bound, Scope& scope);
    void order_set_operation(const Query& query, BoundQuery& result);
    void bind_limits(const Query& query, Scope& scope, BoundQuery& result);

    // ---- tables (sources.cpp)
    std::shared_ptr<RangeTable> bind_named(const NamedTable& table, Scope& scope);
    std::shared_ptr<RangeTable> bind_view(const CatalogModule& view, const std::string& alias,
                                          SourceRange at);
    std::shared_ptr<RangeTable> bind_derived(const DerivedTable& table, Scope& scope,
                                             bool sees_siblings);
    std::shared_ptr<RangeTable> bind_copy(bool inserted, const std::string& alias, SourceRange at);
    std::shared_ptr<RangeTable> bind_common(std::shared_ptr<BoundCommonTable> common,
                                            const std::string& alias, SourceRange at);
    std::shared_ptr<RangeTable> bind_values(const ValuesTable& table, Scope& scope);
    std::shared_ptr<RangeTable> bind_function(const FunctionTable& table, Scope& scope);
    std::shared_ptr<RangeTable> bind_multi_function(const CreateFunction& function,
                                                    const std::string& definition,
                                                    const FunctionTable& table, Scope& scope);
    BoundSourcePtr bind_join(const Join& join, Scope& scope);
    std::vector<BoundPtr> bind_parameters(const CreateFunction& function,
                                          const FunctionTable& table, Scope& scope);
    void lateral(RangeTable& table, SourceRange at);
    void columns_of_query(RangeTable& range, const std::vector<Name>& names, SourceRange at);

    // ---- changes (change.cpp)
    // Finds the rows that change: `change.target`, also added to the scope when FROM does not name
    // it. Gives whether FROM names it.
    bool find_target(const ObjectName& name, const std::vector<TableSourcePtr>& from, Scope& scope,
                     BoundChange& change, std::vector<BoundSourcePtr>& sources,
                     BoundPtr& view_condition);
    int target_column(const ObjectName& name, Scope& scope, const BoundChange& change);
    void bind_top(const std::optional<Top>& top, Scope& scope, std::optional<BoundTop>& out);
    void insert_columns(const Insert& insert, BoundInsert& bound);
    void insert_rows(const Insert& insert, BoundInsert& bound, Scope& scope);
    void insert_query(const Insert& insert, BoundInsert& bound, Scope& scope);
    void insert_defaults(BoundInsert& bound);
    BoundPtr assigned_value(const CatalogColumn& column, BoundPtr value);
    BoundPtr default_value(const CatalogColumn& column);
    void bind_output(const OutputClause& clause, BoundChange& change);
    void find_triggers(BoundChange& change, DmlKind event);
    // WHERE, TOP, triggers and OUTPUT of an UPDATE or DELETE; gives the whole condition.
    template <typename Syntax>
    BoundPtr bind_rest(const Syntax& statement, BoundPtr condition, Scope& scope,
                       BoundChange& change, DmlKind event) {
        if (statement.where) {
            condition = both(std::move(condition), bind_condition(*statement.where, scope));
        }
        bind_top(statement.top, scope, change.top);
        find_triggers(change, event);
        if (statement.output) {
            bind_output(*statement.output, change);
        }
        return condition;
    }
    // Both conditions, either of which may be missing.
    static BoundPtr both(BoundPtr left, BoundPtr right);

    BindContext& context_;
    std::vector<int> assigned_slots_; // of a SELECT that assigns variables
};

// Brings the columns of a query body to these types, branch by branch.
void convert_columns(Binder& binder, BoundBody& body, const std::vector<Type>& types,
                     ConvertMode mode);

} // namespace tsql
