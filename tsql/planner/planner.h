// From bound statements to steps of a plan, with SQLite as the engine.
#pragma once

#include "tsql/binder/binder.h"
#include "tsql/emit/sqlite/emitter.h"
#include "tsql/plan/plan.h"

#include <memory>
#include <string>

namespace tsql {

// A statement kept for later, with what it needs: its tree, its text, the variables around it.
struct DeferredStatement {
    std::shared_ptr<const Batch> tree;
    std::shared_ptr<const std::string> text; // the text the tree was parsed from
    const Statement* statement = nullptr;
    Variables variables;
    Surroundings surroundings;
    bool literals_of_text = true;
    bool exact_row_counts = false;
};

// Plans the statements of one text. Variables and literals live outside and grow.
class Planner {
public:
    Planner(const Catalog& catalog, Variables& variables, Literals& literals)
        : catalog_(catalog), variables_(variables), literals_(literals) {}

    Surroundings surroundings;
    bool exact_row_counts = false;
    // What deferred statements keep alive.
    std::shared_ptr<const Batch> tree;
    std::shared_ptr<const std::string> text;

    // Throws Refusal. With `may_defer` a statement that names a missing object becomes a step that
    // is planned when it is reached.
    void plan(const Statement& statement, Steps& out, bool may_defer);
    void plan_all(const std::vector<StatementPtr>& statements, Steps& out);

    // Ordinals of literals that are parameters; all others decided how the plan looks.
    std::set<int> passed;
    bool changes_catalog = false;
    bool deferred = false;

    // One value in a type, as a text of one cell.
    SqlText value_text(const Expression& expression, const Type* type);
    Type type_of(const TypeName& name, int default_length);
    PlanVariable& declare(const std::string& name, const Type& type, SourceRange at);
    // A table variable: declared, and the step that makes it.
    PrepareTable declare_table(const std::string& name, const TableDefinition& definition,
                               std::string_view from);

private:
    void plan_now(const Statement& statement, Steps& out);
    void plan_definition(const Statement& statement, Steps& out);

    // ---- rows (planner/rows.cpp)
    void query(const QueryStatement& statement, Steps& out);
    void select_into(const QueryStatement& statement, const ObjectName& into, Steps& out);
    void insert(const Insert& statement, Steps& out);
    void update(const Update& statement, Steps& out);
    void remove(const Delete& statement, Steps& out);
    void truncate(const Truncate& statement, Steps& out);
    void prepare_copies(const CatalogTable& table, SqlDml& dml);
    SqlText collect_rows(const CatalogTable& table, const std::string& condition, bool by_mark);
    void add_output(const BoundChange& change, SqlDml& dml);
    SqlQuery query_of(const BoundQuery& query);

    // ---- flow (planner/statement.cpp, planner/flow.cpp)
    void plan_if(const If& statement, Steps& out);
    void plan_while(const While& statement, Steps& out);
    void plan_try(const Try& statement, Steps& out);
    void plan_return(const Return& statement, Steps& out);
    void plan_throw(const Throw& statement, Steps& out);
    void declare_variables(const Declare& statement, Steps& out);
    void set_variable(const SetVariable& statement, Steps& out);
    void raise_error(const RaiseError& statement, Steps& out);
    void execute(const Execute& statement, Steps& out);
    void set_option(const SetOption& statement, Steps& out);
    void fetch(const FetchCursor& statement, Steps& out);
    SqlText condition_text(const Expression& condition, Steps& out);
    Steps body(const Statement& statement);

    // ---- definitions (planner/definition.cpp, planner/alter_table.cpp)
    void create_table(const CreateTable& statement, Steps& out);
    void alter_table(const AlterTable& statement, Steps& out);
    void add_to_table(const AlterTable& statement, CatalogTable& table, Ddl& ddl);
    void alter_column(const AlterTable& statement, CatalogTable& table, Ddl& ddl);
    void drop_columns(const AlterTable& statement, CatalogTable& table, Ddl& ddl);
    void drop_constraints(const AlterTable& statement, CatalogTable& table, Ddl& ddl);
    void switch_triggers(const AlterTable& statement, const CatalogTable& table, Ddl& ddl);
    void create_index(const CreateIndex& statement, Steps& out);
    void drop_index(const DropIndex& statement, Steps& out);
    void drop(const Drop& statement, Steps& out);
    void create_module(const Statement& statement, CatalogKind kind, DefinitionMode mode,
                       const ObjectName& name, Steps& out);
    std::string_view source(SourceRange at) const;

    BindContext context();
    sqlite::Emitter emitter() { return sqlite::Emitter(&passed); }
    void add(const Statement& statement, decltype(Step::action) action, Steps& out);
    void add_fills(BindContext& context, Steps& out);

    const Catalog& catalog_;
    Variables& variables_;
    Literals& literals_;
    LineColumn at_;
};

} // namespace tsql
