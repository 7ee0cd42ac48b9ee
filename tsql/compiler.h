// The front door of the T-SQL front end: a batch text and a catalogue in, plans or a refusal out.
#pragma once

#include "tsql/catalog/catalog.h"
#include "tsql/plan/plan.h"
#include "tsql/source/diagnostic.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tsql {

// A piece of a batch: a plan, shared by all texts of the same shape, and this text's literals.
struct CompiledUnit {
    std::shared_ptr<const Plan> plan;
    LiteralValues literals;
    LineColumn at;  // where the piece begins; places of steps count from here
};

// A whole batch: its pieces run one after the other with the same session. When a piece ends the
// batch (error, RETURN), the rest does not run.
struct CompiledBatch {
    std::vector<CompiledUnit> units;
};

// A routine ready to run. Parameters occupy the first slots of the plan's variables.
struct RoutineParameter {
    std::string name; // with its mark
    Type type;
    bool output = false;
    std::optional<SqlText> default_value; // one cell of the parameter's type; none: required
};
struct CompiledRoutine {
    std::string name;
    std::shared_ptr<const Plan> plan;
    std::vector<RoutineParameter> parameters;
    Type return_type; // of a scalar function
};

struct CompilerOptions {
    // Count rows that UPDATE matches also when they would not change. Batches that ask for
    // @@ROWCOUNT count them anyway.
    bool exact_row_counts = false;
    std::size_t cached_plans = 2000;
};

// One per connection; not for two threads at a time. The catalogue must outlive it.
//
//     Compiler compiler(catalog, {});
//     CompiledBatch batch = compiler.compile("UPDATE D6600 SET PARAM='2024-04' WHERE ID=2");
//
// Throws Refusal; nothing of the text may then be run. A name of a table that does not exist (208)
// is no refusal: the step is Deferred, and compile_deferred refuses when it is reached.
class Compiler {
public:
    Compiler(Catalog& catalog, CompilerOptions options);
    ~Compiler();

    CompiledBatch compile(std::string_view text);

    // Text of EXEC('…') is compile(); text of sp_executesql has parameters: `declarations` is
    // "@p int, @q varchar(5) OUTPUT".
    std::shared_ptr<const CompiledRoutine> compile_with_parameters(std::string_view text,
                                                                   std::string_view declarations);

    // A procedure, function or trigger by name; kept until the catalogue changes. Null when there
    // is no such object. A Refusal inside it is thrown when it is first asked for.
    std::shared_ptr<const CompiledRoutine> routine(std::string_view name);

    // The plan of a deferred statement against the catalogue of now; it uses the variables and the
    // literals of the plan it stands in. Throws Refusal.
    std::shared_ptr<const Plan> compile_deferred(const DeferredStatement& statement);

    // Rebuilds an object from what the engine kept. Throws Refusal when the text is not understood.
    static std::shared_ptr<const CatalogObject> load(const StoredObject& stored);

    // What the cache did so far.
    struct Statistics {
        std::uint64_t hits = 0;
        std::uint64_t misses = 0;
    };
    Statistics statistics() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tsql
