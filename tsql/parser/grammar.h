// The productions of the grammar, one function each, by the file that holds them.
#pragma once

#include "tsql/parser/token_cursor.h"
#include "tsql/syntax/syntax.h"

namespace tsql {

// Each takes what it names from the cursor and leaves it behind the last token of it; what does
// not fit is refused. Those that accept may take nothing and then say so by null or false.

// ---- names.cpp
bool at_name(const TokenCursor& cursor); // a bracketed name or a word not reserved
Name parse_name(TokenCursor& cursor);
ObjectName parse_object_name(TokenCursor& cursor);
std::vector<Name> parse_name_list(TokenCursor& cursor); // ( a, b )
Name accept_alias(TokenCursor& cursor); // [AS] name of a table; empty when none follows
std::string parse_variable_name(TokenCursor& cursor);
TypeName parse_type(TokenCursor& cursor);

// ---- condition.cpp
ExpressionPtr parse_any(TokenCursor& cursor);       // a value or a condition
ExpressionPtr parse_condition(TokenCursor& cursor); // 4145 when it is a value

// ---- expression.cpp
ExpressionPtr parse_sum(TokenCursor& cursor); // a value, or a condition in parentheses
ExpressionPtr parse_value(TokenCursor& cursor);
std::vector<ExpressionPtr> parse_values(TokenCursor& cursor); // one or more, comma between
void require_value(const TokenCursor& cursor, const Expression& expression);

// ---- literal.cpp
ExpressionPtr parse_literal(TokenCursor& cursor);
std::int64_t parse_signed_integer(TokenCursor& cursor); // part of the tree's shape

// ---- primary.cpp
ExpressionPtr parse_primary(TokenCursor& cursor);

// ---- function_call.cpp
bool at_function_call(const TokenCursor& cursor);
ExpressionPtr parse_function_call(TokenCursor& cursor, ObjectName name);
std::vector<ExpressionPtr> parse_arguments(TokenCursor& cursor, bool first_is_condition);

// ---- query.cpp
bool at_query(const TokenCursor& cursor); // SELECT, or a parenthesis before one
std::unique_ptr<Query> parse_query(TokenCursor& cursor);
std::unique_ptr<Query> parse_subquery(TokenCursor& cursor); // ( query )
std::vector<CommonTable> parse_with(TokenCursor& cursor);
std::vector<OrderItem> parse_order_items(TokenCursor& cursor);

// ---- select.cpp
std::unique_ptr<Select> parse_select(TokenCursor& cursor);
std::optional<Top> accept_top(TokenCursor& cursor);
SelectItem parse_select_item(TokenCursor& cursor);
std::optional<AssignOperator> accept_assign(TokenCursor& cursor);

// ---- table_source.cpp
std::vector<TableSourcePtr> parse_from(TokenCursor& cursor); // what stands behind FROM
std::vector<Name> accept_hints(TokenCursor& cursor);         // WITH (NOLOCK), (NOLOCK)

// ---- statement.cpp
StatementPtr parse_statement(TokenCursor& cursor);
// Statements up to the end of the batch or an END, which is left.
std::vector<StatementPtr> parse_statements(TokenCursor& cursor);

// ---- one file a statement, named after it
StatementPtr parse_query_statement(TokenCursor& cursor, std::vector<CommonTable> with);
StatementPtr parse_insert(TokenCursor& cursor, std::vector<CommonTable> with);
StatementPtr parse_update(TokenCursor& cursor, std::vector<CommonTable> with);
StatementPtr parse_delete(TokenCursor& cursor, std::vector<CommonTable> with);
StatementPtr parse_truncate(TokenCursor& cursor);
ObjectName parse_dml_target(TokenCursor& cursor); // a table or @t, lock hints read over
std::optional<OutputClause> accept_output(TokenCursor& cursor);
ValueRow parse_value_row(TokenCursor& cursor);
StatementPtr parse_create(TokenCursor& cursor);
StatementPtr parse_create_table(TokenCursor& cursor);
StatementPtr parse_alter_table(TokenCursor& cursor);
StatementPtr parse_switch_trigger(TokenCursor& cursor); // ENABLE or DISABLE TRIGGER
StatementPtr parse_create_index(TokenCursor& cursor);
StatementPtr parse_drop(TokenCursor& cursor);
StatementPtr parse_create_view(TokenCursor& cursor, DefinitionMode mode);
StatementPtr parse_create_function(TokenCursor& cursor, DefinitionMode mode);
StatementPtr parse_create_procedure(TokenCursor& cursor, DefinitionMode mode);
StatementPtr parse_create_trigger(TokenCursor& cursor, DefinitionMode mode);
StatementPtr parse_declare(TokenCursor& cursor);
StatementPtr parse_set(TokenCursor& cursor);
StatementPtr parse_begin(TokenCursor& cursor); // block, transaction or try
StatementPtr parse_if(TokenCursor& cursor);
StatementPtr parse_while(TokenCursor& cursor);
StatementPtr parse_return(TokenCursor& cursor);
StatementPtr parse_try(TokenCursor& cursor);
StatementPtr parse_print(TokenCursor& cursor);
StatementPtr parse_raise_error(TokenCursor& cursor);
StatementPtr parse_throw(TokenCursor& cursor);
StatementPtr parse_execute(TokenCursor& cursor);
StatementPtr parse_call_without_execute(TokenCursor& cursor);
StatementPtr parse_begin_transaction(TokenCursor& cursor);
StatementPtr parse_commit(TokenCursor& cursor);
StatementPtr parse_rollback(TokenCursor& cursor);
StatementPtr parse_save(TokenCursor& cursor);
StatementPtr parse_declare_cursor(TokenCursor& cursor, Name name, SourceRange begin);
StatementPtr parse_open_cursor(TokenCursor& cursor);
StatementPtr parse_fetch(TokenCursor& cursor);
StatementPtr parse_close_cursor(TokenCursor& cursor);
StatementPtr parse_deallocate_cursor(TokenCursor& cursor);

// ---- create_table.cpp
TableDefinition parse_table_definition(TokenCursor& cursor); // ( columns and constraints )
void parse_table_element(TokenCursor& cursor, TableDefinition& definition);
ColumnDefinition parse_column(TokenCursor& cursor);

// ---- constraint.cpp
bool at_constraint(const TokenCursor& cursor);
Constraint parse_constraint(TokenCursor& cursor, bool of_column);
std::vector<IndexColumn> parse_index_columns(TokenCursor& cursor);
// WITH (PAD_INDEX = OFF, …) and ON [PRIMARY]: where and how the server stores; read over.
void skip_storage_options(TokenCursor& cursor);

// ---- routine.cpp
std::vector<Parameter> parse_parameters(TokenCursor& cursor);
void skip_routine_options(TokenCursor& cursor); // WITH SCHEMABINDING, …
// A literal with an optional sign, or a bare word that stands for a text: what defaults of
// parameters and arguments of EXEC may be.
ExpressionPtr parse_constant(TokenCursor& cursor);
void require_end_of_batch(TokenCursor& cursor);
// The body of a routine, which ends with the batch.
std::vector<StatementPtr> parse_body_to_end(TokenCursor& cursor);

} // namespace tsql
