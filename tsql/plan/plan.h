// The executable form of a batch: a tree of steps whose leaves are texts in the engine's SQL.
#pragma once

#include "tsql/catalog/change.h"
#include "tsql/syntax/cursor.h"
#include "tsql/types/type.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tsql {

// ---- Values that flow into a statement -------------------------------------------------------

// Where the value of a parameter comes from when its statement starts.
enum class ParameterSource : std::uint8_t {
    Literal,  // the literal of that ordinal of the text that is being run (LiteralValues)
    Constant, // PlanBlock::constants: literals of views and routines, which belong to the plan
    Variable, // slot of the running routine's variables
    System,   // a SystemValue
    Row,      // cell of the row that is being inserted by INSERT … EXEC; its type is the row's
    RowMark,  // greatest rowid of the target before this INSERT (SqlDml::row_mark)
};

enum class SystemValue : std::uint8_t {
    Now,            // GETDATE(): datetime, the same all through one statement
    RowCount,       // @@ROWCOUNT of the statement before: int
    Error,          // @@ERROR of the statement before: int
    TranCount,      // @@TRANCOUNT: int
    FetchStatus,    // @@FETCH_STATUS: int
    Identity,       // @@IDENTITY: decimal(38,0), NULL before the first
    ScopeIdentity,  // SCOPE_IDENTITY(): decimal(38,0)
    ErrorNumber,    // ERROR_NUMBER() inside CATCH, else NULL: int
    ErrorMessage,   // nvarchar(4000)
    ErrorSeverity,  // int
    ErrorState,     // int
    ErrorLine,      // int
    ErrorProcedure, // nvarchar(128)
    XactState,      // XACT_STATE(): -1, 0, 1: smallint
    UserName,       // SYSTEM_USER, SUSER_SNAME(): nvarchar(128)
    HostName,       // HOST_NAME(): nvarchar(128)
    DatabaseName,   // DB_NAME(): nvarchar(128)
    ServerVersion,  // @@VERSION: nvarchar(300)
    SessionId,      // @@SPID: smallint
    NestLevel,      // @@NESTLEVEL: int
    UpdatedColumn,  // UPDATE(column) inside a trigger: bit; PlanParameter::index is the column's
                    // ordinal in its table, 0 from the left, physical columns only
};

// One parameter ?1, ?2, … of a text, in that order. A decimal is bound as INTEGER when `to` has at
// most 18 digits, else in the 16-byte form. The value is of type `type`; the engine
// converts it to `to` before it binds it, by the rules `how` names, and a value that does not
// convert is an error of the statement (245, 8114, 241, 242, 8115, 8152 …).
enum class Conversion : std::uint8_t {
    None,   // bound as it is: `to` equals `type`
    Cast,   // CAST and implicit conversion: texts too long are cut
    Assign, // into a column: a text too long is error 8152, blanks beyond the end drop silently
};

struct PlanParameter {
    ParameterSource source = ParameterSource::Literal;
    SystemValue system = SystemValue::Now; // of System
    int index = 0;                         // ordinal, slot or cell by source
    Type type;
    Type to;
    Conversion how = Conversion::None;
    int style = 0; // third argument of CONVERT
};

// A literal's value: `text` as Literal::text of the syntax tree gives it (digits for numbers).
struct LiteralValue {
    LiteralKind kind = LiteralKind::Null;
    std::string text;
};
using LiteralValues = std::vector<LiteralValue>;

// One statement in the engine's SQL.
struct SqlText {
    std::string text;
    std::vector<PlanParameter> parameters;
};

// A column of a result set. `type` says how to read the stored value; a decimal may come as
// INTEGER or as the 16-byte form, whichever the value has.
struct PlanColumn {
    std::string name;
    Type type;
    bool nullable = true;
};

// ---- Rows the engine puts in order itself ----------------------------------------------------

// A value that runs along with the ordered rows and begins anew where one of the first `partition`
// keys changes.
struct RunningValue {
    enum class Kind : std::uint8_t {
        Sum,    // of the cell so far, NULL while all were NULL; 8115 beyond 64 bits
        Count,  // of the cells so far that are not NULL
        Number, // of the rows so far
        Before, // the cell of the row before, `otherwise` of this row where there is none
    };
    Kind kind = Kind::Sum;
    int partition = 0;
    int cell = 0;
    int otherwise = 0;
    friend bool operator==(const RunningValue&, const RunningValue&) = default;
};

// What a shown column is made of, as a tree whose nodes lie in RowOrder::values.
struct ShownValue {
    enum class Kind : std::uint8_t {
        Null,
        Cell,     // place: a column of the text, from 0; behind them the running values
        Constant, // place: of RowOrder::constants
        Number,   // place: the number itself
        Step,     // the number of the step
        Choice,   // the first branch whose two sides are equal whole numbers, else `otherwise`
        Within,   // the value `otherwise` when its magnitude is below `limit`, else 8115
    };
    struct Branch {
        int left = 0, right = 0, then = 0;
    };
    Kind kind = Kind::Null;
    int place = 0;
    std::vector<Branch> branches;
    int otherwise = 0;
    std::int64_t limit = 0;
};

// The text gives its rows in any order, the keys first. The engine orders them (NULL first, texts
// by the database's collation, rows with equal keys as they came), lets the values run and shows
// for each column the value of that number.
struct RowOrder {
    std::vector<bool> descending; // by key
    std::vector<RunningValue> running;
    std::vector<PlanParameter> constants;
    std::vector<ShownValue> values;
    std::vector<int> shown; // by column
    // Every row is shown once a step, in this order; rows with equal keys take each step together.
    // Without steps every row is shown once.
    std::vector<std::int64_t> steps;
    int condition = -1; // the value that is 1 for a row to be shown; -1: all are
};

// ---- Steps -----------------------------------------------------------------------------------

struct Step;
using Steps = std::vector<Step>;

// A query: rows for the client.
struct SqlQuery {
    SqlText sql;
    std::vector<PlanColumn> columns; // as many as the text selects, or as `order` shows
    std::optional<RowOrder> order = std::nullopt;
};

// SELECT @a = x, @b = y FROM …: for each row, the cells are stored into the slots, already in the
// variables' types; no row leaves them alone. A slot that its own new value reads is read by the
// text through zf_variable(slot), row by row. SET @a = x is the same with a text of one row.
struct SqlAssign {
    SqlText sql;
    std::vector<int> slots;
    bool counts_rows = true; // SELECT sets @@ROWCOUNT to its rows, SET to 1
};

enum class DmlKind : std::uint8_t { Insert, Update, Delete };

// One INSERT, UPDATE or DELETE with everything that belongs to it. All of it is one statement for
// the transaction: an error undoes it wholly. Order of work:
//   1. `prepare` (empties and fills the copies of old rows; creates them when missing);
//   2. the identity mark: when `row_mark` is set, it is run and its one cell kept for RowMark;
//   3. `main`; its count of changed rows is @@ROWCOUNT, unless `count` is set: then the cell that
//      query gives; when `main` fails with a uniqueness error and `unique_retry` is not empty, the
//      statement is undone and these are run instead (new keys by way of throw-away ones), the
//      count being that of the last of them;
//   4. `collect` (fills the copies of new rows);
//   5. `output`, when set: rows for the client;
//   6. the triggers, in order, each with @@ROWCOUNT of this statement and with `updated_columns`
//      for UPDATE(column); their inserted and deleted are the copies made above. The engine keeps
//      the copies' content when the same table's triggers nest.
struct SqlDml {
    DmlKind kind = DmlKind::Insert;
    std::string table;   // as the catalogue names it
    std::vector<SqlText> prepare;
    std::optional<SqlText> row_mark;
    SqlText main;
    std::optional<SqlText> count;
    std::vector<SqlText> unique_retry;
    std::vector<SqlText> collect;
    std::optional<SqlQuery> output;
    std::vector<std::string> triggers;
    std::vector<int> updated_columns; // ordinals; all columns for INSERT, none for DELETE
    std::vector<int> assigned_slots;  // SET @v = column = x: `output` gives the last row's values
    bool resets_identity = false;     // TRUNCATE TABLE: numbers begin again
    // The text leaves alone rows that would not change, reads nothing but tables and literals and
    // fires nothing. Run again with the same literals right after a run that changed no row, it
    // changes none again and may be left out.
    bool repeatable = false;
};

// INSERT t EXEC …: every row of the result sets of `execute` is a run of `insert`, whose Row
// parameters take the cells; a set with another number of columns is error 213.
struct InsertExecute {
    std::vector<Step> execute; // one Execute or ExecuteText
    std::vector<Step> insert;  // one SqlDml per row when the table has no trigger; with triggers
                               // the rows go to `staging` first and the dml selects from it
    int columns = 0;
};

// Definitions. Every {0}, {1} … of the texts stands for the value of that constant query as a
// literal of the engine. After the texts succeeded the change goes into the catalogue, and with the
// transaction away again.
struct Ddl {
    std::vector<SqlQuery> constants;
    std::vector<std::string> sql;
    CatalogChange change;
};

// DECLARE @t TABLE: makes the table when this connection does not have it and empties it.
struct PrepareTable {
    std::string create; // CREATE TEMP TABLE IF NOT EXISTS …
    SqlText clear;      // DELETE FROM …
};

// The rows of a function that returns @r TABLE, called in FROM with arguments that do not depend
// on rows: runs before the statement that reads the copy. `arguments` gives one row.
struct FillFunctionTable {
    std::string function;
    SqlText arguments;
    std::string create;
    std::string clear;
    std::string insert; // INSERT INTO copy SELECT … FROM the function's own table variable
};

struct IfStep {
    SqlText condition; // one cell; true when neither 0 nor NULL
    std::vector<Step> then;
    std::vector<Step> otherwise;
};
struct WhileStep {
    SqlText condition;
    std::vector<Step> body;
};
struct BlockStep {
    std::vector<Step> body;
};
struct BreakStep {};
struct ContinueStep {};
struct ReturnStep {
    std::optional<SqlText> value; // of a function in its declared type, of a procedure int
};
struct TryStep {
    std::vector<Step> body;
    std::vector<Step> handler;
};
struct PrintStep {
    SqlText message; // one cell of text
};
// Cells: message (text, or int for a message number), severity, state, arguments…
struct RaiseErrorStep {
    SqlText values;
    std::vector<PlanColumn> columns;
};
struct ThrowStep {
    std::optional<SqlText> values; // number, message, state; without: raise the caught error again
};

// One argument of EXEC. A value is a query of one cell; an output argument also names the slot
// that takes the parameter's value back, converted to `type`.
struct ExecuteArgument {
    std::string parameter;        // with its mark, empty when by place
    std::optional<SqlQuery> value; // none for DEFAULT
    int output_slot = -1;
    Type type;                    // of the slot
};
// EXEC procedure. The engine looks the procedure up when the step runs: missing is error 2812, a
// parameter without value 201, one too many 8144, an unknown name 8145. sp_executesql comes as
// procedure "sp_executesql": first argument text, second declarations, the rest by name.
struct ExecuteStep {
    std::string procedure;
    std::vector<ExecuteArgument> arguments;
    int return_slot = -1;
    Type return_type; // of the slot
};
struct ExecuteTextStep {
    SqlText text; // one cell: a batch of its own, run with no variables
};

struct BeginTransactionStep {
    std::string name;
};
struct CommitStep {};
struct RollbackStep {
    std::string name; // a savepoint or the outermost transaction; empty means all
};
struct SaveTransactionStep {
    std::string name;
};

// XACT_ABORT, NOCOUNT and IDENTITY_INSERT matter; the engine accepts the others without effect
// when they are set to what holds anyway.
struct SetOptionStep {
    std::string option; // upper case
    bool on = false;
    std::string value;
    std::string table; // of IDENTITY_INSERT
};

struct DeclareCursorStep {
    std::string name;
    SqlQuery query; // its parameters take their values when the cursor is opened
};
struct OpenCursorStep {
    std::string name;
};
// Stores the row into the slots, converted from the query's to the slots' types, and sets
// @@FETCH_STATUS 0, or -1 past the end. Without slots the row goes to the client.
struct FetchCursorStep {
    FetchDirection direction = FetchDirection::Next;
    std::optional<SqlText> position;
    std::string name;
    std::vector<int> slots;
    std::vector<Type> types;
};
struct CloseCursorStep {
    std::string name;
};
struct DeallocateCursorStep {
    std::string name;
};

// A statement that cannot be bound yet because a table it names is made earlier in the same text,
// or is missing: the engine asks Compiler::compile_deferred when it gets there.
struct DeferredStep {
    std::shared_ptr<const struct DeferredStatement> statement;
};

struct Step {
    // Where the statement begins in the text it was compiled from.
    LineColumn at;
    std::variant<SqlQuery, SqlAssign, SqlDml, InsertExecute, Ddl, PrepareTable, FillFunctionTable,
                 IfStep, WhileStep, BlockStep, BreakStep, ContinueStep, ReturnStep, TryStep,
                 PrintStep, RaiseErrorStep, ThrowStep, ExecuteStep, ExecuteTextStep,
                 BeginTransactionStep, CommitStep, RollbackStep, SaveTransactionStep,
                 SetOptionStep, DeclareCursorStep, OpenCursorStep, FetchCursorStep,
                 CloseCursorStep, DeallocateCursorStep, DeferredStep>
        action;
};

// ---- The plan --------------------------------------------------------------------------------

struct PlanVariable {
    std::string name; // with its mark
    Type type;
};

// What runs: a piece of a batch, or the body of a routine. Immutable and shared; the engine may
// keep its prepared statements beside it, keyed by the address of the SqlText.
struct Plan {
    std::vector<Step> steps;
    std::vector<PlanVariable> variables; // by slot; all NULL at the start
    LiteralValues constants;
    std::uint64_t catalog_version = 0;   // the catalogue it was bound against
};

} // namespace tsql
