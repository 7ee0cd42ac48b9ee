// Views, functions, procedures and triggers: objects that hold T-SQL of their own.
#pragma once

#include "tsql/syntax/ddl.h"

namespace tsql {

enum class DefinitionMode : std::uint8_t { Create, Alter, CreateOrAlter };

struct CreateView : Statement {
    static constexpr auto own_kind = StatementKind::CreateView;
    CreateView() : Statement(own_kind) {}
    DefinitionMode mode = DefinitionMode::Create;
    ObjectName name;
    std::vector<Name> columns;
    std::unique_ptr<Query> query;
};

struct Parameter {    // @a decimal(18,2) = 0 OUTPUT
    std::string name; // with its mark
    TypeName type;
    ExpressionPtr default_value; // null when the caller must give it
    bool output = false;
    SourceRange at;
};

enum class FunctionKind : std::uint8_t {
    Scalar,      // RETURNS type … RETURN value
    InlineTable, // RETURNS TABLE AS RETURN (SELECT …)
    MultiTable,  // RETURNS @r TABLE (…) … RETURN
};

struct CreateFunction : Statement {
    static constexpr auto own_kind = StatementKind::CreateFunction;
    CreateFunction() : Statement(own_kind) {}
    DefinitionMode mode = DefinitionMode::Create;
    ObjectName name;
    std::vector<Parameter> parameters;
    FunctionKind type = FunctionKind::Scalar;
    TypeName return_type;           // of Scalar
    std::string return_variable;    // of MultiTable, with its mark
    TableDefinition return_table;   // of MultiTable
    std::unique_ptr<Query> query;   // of InlineTable
    std::vector<StatementPtr> body; // of Scalar and MultiTable: what stands in BEGIN … END
};

struct CreateProcedure : Statement {
    static constexpr auto own_kind = StatementKind::CreateProcedure;
    CreateProcedure() : Statement(own_kind) {}
    DefinitionMode mode = DefinitionMode::Create;
    ObjectName name;
    std::vector<Parameter> parameters;
    std::vector<StatementPtr> body; // everything to the end of the batch
};

// AFTER (or FOR) and INSTEAD OF triggers; they run once a statement, over all its rows.
struct CreateTrigger : Statement {
    static constexpr auto own_kind = StatementKind::CreateTrigger;
    CreateTrigger() : Statement(own_kind) {}
    DefinitionMode mode = DefinitionMode::Create;
    ObjectName name;
    ObjectName table;
    bool instead_of = false;
    bool on_insert = false;
    bool on_update = false;
    bool on_delete = false;
    std::vector<StatementPtr> body;
};

} // namespace tsql
