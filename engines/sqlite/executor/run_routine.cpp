// EXEC of procedures and texts, and functions called from statements.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"
#include "tsql/binder/scope.h"

namespace engines {
namespace {

constexpr int deepest_nesting = 32;

std::string plain_name(std::string_view name) {
    const auto point = name.rfind('.');
    return std::string(point == std::string_view::npos ? name : name.substr(point + 1));
}

int parameter_index(const tsql::CompiledRoutine& routine, const std::string& name) {
    for (std::size_t i = 0; i < routine.parameters.size(); ++i)
        if (tsql::same_name(routine.parameters[i].name, name)) return static_cast<int>(i);
    return -1;
}

} // namespace

Frame Executor::frame_of(const std::shared_ptr<const tsql::CompiledRoutine>& routine) {
    Frame frame;
    frame.owner = routine;
    frame.plan = routine->plan.get();
    frame.literals = &routine->plan->constants;
    if (!routine->return_type.is_null()) frame.return_type = routine->return_type;
    frame.variables.resize(std::max(routine->plan->variables.size(), routine->parameters.size()));
    frame.routine = routine->name.empty() ? "sp_executesql" : routine->name;
    return frame;
}

Flow Executor::run_routine(const std::shared_ptr<const tsql::CompiledRoutine>& routine,
                           Frame& frame) {
    if (nesting_ >= deepest_nesting)
        raise_error(217, "Maximum stored procedure, function, trigger, or view nesting level "
                         "exceeded (limit 32).");
    const Count nested(nesting_);
    const FrameScope scope(frame_, frame);
    const bool xact_abort = options_.xact_abort;
    const auto leave = [&] {
        options_.xact_abort = xact_abort;
        drop_temporary_tables(frame);
    };
    Flow flow = Flow::next;
    try {
        flow = run_steps(routine->plan->steps);
    } catch (...) {
        leave();
        throw;
    }
    leave();
    return flow == Flow::end_batch ? flow : Flow::next;
}

Flow Executor::execute(const tsql::ExecuteStep& step) {
    std::shared_ptr<const tsql::CompiledRoutine> routine;
    std::size_t skip = 0;
    if (tsql::same_name(plain_name(step.procedure), "sp_executesql")) {
        std::string declarations;
        if (step.arguments.empty() || !step.arguments[0].value)
            raise_error(201, "Procedure or function 'sp_executesql' expects parameter "
                             "'@statement', which was not supplied.");
        const auto argument = [&](std::size_t i) {
            const tsql::SqlQuery& value = *step.arguments[i].value;
            return std::string(cell_of_text(value.sql, value.columns.front().type).get().text);
        };
        skip = 1;
        if (step.arguments.size() > 1 && step.arguments[1].value) {
            declarations = argument(1);
            skip = 2;
        }
        routine = parts_.compiler.compile_with_parameters(argument(0), declarations);
    } else {
        routine = parts_.compiler.routine(step.procedure);
        if (!routine)
            raise_error(2812, "Could not find stored procedure '" + step.procedure + "'.");
    }
    Frame frame = frame_of(routine);
    std::vector<int> slots;
    pass_arguments(step, *routine, frame, skip, slots);
    fill_defaults(*routine, frame, slots);
    const Flow flow = run_routine(routine, frame);
    if (flow == Flow::end_batch) return flow;
    return_values(step, *routine, frame, skip, slots);
    return Flow::next;
}

void Executor::pass_arguments(const tsql::ExecuteStep& step, const tsql::CompiledRoutine& routine,
                              Frame& frame, std::size_t skip, std::vector<int>& slots) {
    for (std::size_t i = skip; i < step.arguments.size(); ++i) {
        const tsql::ExecuteArgument& argument = step.arguments[i];
        int slot = static_cast<int>(i - skip);
        if (!argument.parameter.empty()) {
            slot = parameter_index(routine, argument.parameter);
            if (slot < 0)
                raise_error(8145, argument.parameter + " is not a parameter for procedure " +
                                      routine.name + ".");
        } else if (static_cast<std::size_t>(slot) >= routine.parameters.size()) {
            raise_error(8144, "Procedure or function " + routine.name +
                                  " has too many arguments specified.");
        }
        const auto place = static_cast<std::size_t>(slot);
        slots.push_back(argument.value || argument.output_slot >= 0 ? slot : -1);
        if (!argument.value) continue;
        const tsql::Type& from = argument.value->columns.front().type;
        const OwnedValue value = cell_of_text(argument.value->sql, from);
        std::string buffer;
        frame.variables[place].set(
            convert(value.get(), from, routine.parameters[place].type, 0, Fit::cut, buffer));
    }
}

void Executor::fill_defaults(const tsql::CompiledRoutine& routine, Frame& frame,
                             const std::vector<int>& slots) {
    for (std::size_t i = 0; i < routine.parameters.size(); ++i) {
        if (std::find(slots.begin(), slots.end(), static_cast<int>(i)) != slots.end()) continue;
        const tsql::RoutineParameter& parameter = routine.parameters[i];
        if (!parameter.default_value)
            raise_error(201, "Procedure or function '" + routine.name + "' expects parameter '" +
                                 parameter.name + "', which was not supplied.");
        const FrameScope scope(frame_, frame);
        frame.variables[i] = cell_of_text(*parameter.default_value, parameter.type);
    }
}

void Executor::return_values(const tsql::ExecuteStep& step, const tsql::CompiledRoutine& routine,
                             Frame& frame, std::size_t skip, const std::vector<int>& slots) {
    std::string buffer;
    for (std::size_t i = skip; i < step.arguments.size(); ++i) {
        const tsql::ExecuteArgument& argument = step.arguments[i];
        const int slot = slots[i - skip];
        if (argument.output_slot < 0 || slot < 0) continue;
        const auto place = static_cast<std::size_t>(slot);
        if (!routine.parameters[place].output)
            raise_error(8162, "The formal parameter \"" + routine.parameters[place].name +
                                  "\" was not declared as an OUTPUT parameter, but the actual "
                                  "parameter passed in requested output.");
        frame_->variables[static_cast<std::size_t>(argument.output_slot)].set(
            convert(frame.variables[place].get(), routine.parameters[place].type, argument.type, 0,
                    Fit::cut, buffer));
    }
    if (step.return_slot < 0) return;
    const Stored returned = frame.return_value.is_null() ? Stored::of(0) : frame.return_value.get();
    frame_->variables[static_cast<std::size_t>(step.return_slot)].set(
        convert(returned, tsql::Type::integer(), step.return_type, 0, Fit::cut, buffer));
}

Flow Executor::execute_text(const tsql::ExecuteTextStep& step) {
    const OwnedValue text = cell_of_text(step.text, tsql::Type::nvarchar(tsql::Type::max_length));
    if (text.is_null()) return Flow::next;
    return run_batch_text(std::string(text.get().text));
}

Flow Executor::run_batch_text(const std::string& text) {
    if (nesting_ >= deepest_nesting)
        raise_error(217, "Maximum stored procedure, function, trigger, or view nesting level "
                         "exceeded (limit 32).");
    const tsql::CompiledBatch batch = parts_.compiler.compile(text);
    const Count nested(nesting_);
    for (const tsql::CompiledUnit& unit : batch.units) {
        const Flow flow = run_unit(unit, frame_->routine);
        if (flow == Flow::end_batch) return flow;
        if (flow == Flow::leave_routine) break;
    }
    return Flow::next;
}

// Puts a receiver and a sink in place for the time of a scope, and back what a batch can see.
class Executor::Unseen {
public:
    Unseen(Executor& executor, ResultReceiver& receiver, RowSink& sink)
        : executor_(executor), receiver_(std::exchange(executor.receiver_, &receiver)),
          sink_(std::exchange(executor.sink_, &sink)), rows_(executor.row_count_),
          last_error_(executor.last_error_), affected_(executor.outcome_.affected),
          identity_(executor.identity_), scope_identity_(executor.scope_identity_),
          errors_travel_(executor.catchers_) {}
    ~Unseen() {
        executor_.receiver_ = receiver_;
        executor_.sink_ = sink_;
        executor_.row_count_ = rows_;
        executor_.last_error_ = last_error_;
        executor_.outcome_.affected = affected_;
        executor_.identity_ = identity_;
        executor_.scope_identity_ = scope_identity_;
    }
    Unseen(const Unseen&) = delete;
    Unseen& operator=(const Unseen&) = delete;

private:
    Executor& executor_;
    ResultReceiver* const receiver_;
    RowSink* const sink_;
    const std::int64_t rows_;
    const int last_error_;
    const std::int64_t affected_;
    const std::optional<std::int64_t> identity_, scope_identity_;
    const Count errors_travel_;
};

void Executor::run_procedure(const std::string& name) {
    const auto routine = parts_.compiler.routine(name);
    if (!routine) return;
    ResultReceiver unheard;
    KeepingSink nowhere;
    const Unseen unseen(*this, unheard, nowhere);
    Frame frame = frame_of(routine);
    fill_defaults(*routine, frame, {});
    run_routine(routine, frame);
}

void Executor::run_unseen(const tsql::CompiledBatch& batch, ResultReceiver& receiver) {
    ClientSink client(receiver);
    const Unseen unseen(*this, receiver, client);
    for (const tsql::CompiledUnit& unit : batch.units) run_unit(unit, "");
}

Stored Executor::call(std::string_view function, std::span<sqlite3_value* const> arguments,
                      tsql::Type& type) {
    const std::int64_t rows = row_count_;
    try {
        const auto routine = parts_.compiler.routine(function);
        if (!routine)
            raise_error(4121,
                        "Cannot find the user-defined function \"" + std::string(function) + "\".");
        Frame frame = frame_of(routine);
        for (std::size_t i = 0; i < arguments.size() && i < routine->parameters.size(); ++i)
            frame.variables[i].set(read_stored(arguments[i], routine->parameters[i].type));
        const Count catcher(catchers_);
        const Count inside(functions_);
        run_routine(routine, frame);
        type = routine->return_type;
        call_result_ = frame.return_value;
    } catch (const tsql::Refusal& refusal) {
        raise_error(refusal.number, refusal.what());
    } catch (const SqliteFailure& failure) {
        throw Failure(explained(failure));
    }
    row_count_ = rows;
    return call_result_.get();
}

} // namespace engines
