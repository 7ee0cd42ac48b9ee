// Sums and deviations, also over windows.
#include <cmath>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

Runtime& runtime_of(sqlite3_context* context) {
    return *static_cast<Runtime*>(sqlite3_user_data(context));
}

// The state of an aggregate; SQLite gives zeroed memory, and null when no row came.
template <typename State> State* state_of(sqlite3_context* context, bool create) {
    return static_cast<State*>(
        sqlite3_aggregate_context(context, create ? static_cast<int>(sizeof(State)) : 0));
}

// SQLite does not align its memory for 128-bit integers, so that the sum is kept in halves.
struct ExactSum {
    std::int64_t count;
    std::uint64_t low;
    std::int64_t high;

    Int128 get() const { return (static_cast<Int128>(high) << 64) | low; }
    void set(Int128 value) {
        low = static_cast<std::uint64_t>(value);
        high = static_cast<std::int64_t>(value >> 64);
    }
};

template <bool wide> void step_exact(sqlite3_context* context, sqlite3_value** values, int sign) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    auto* sum = state_of<ExactSum>(context, true);
    if (sum == nullptr) return sqlite3_result_error_nomem(context);
    try {
        const Int128 value = Call(context, 1, values, runtime_of(context)).exact(0);
        Int128 total = 0;
        if (__builtin_add_overflow(sum->get(), sign * value, &total))
            raise_overflow(wide ? "numeric" : "bigint");
        sum->count += sign;
        sum->set(total);
    } catch (const Failure& failure) {
        report(context, runtime_of(context), failure);
    }
}

template <bool wide> void add_exact(sqlite3_context* context, int, sqlite3_value** values) {
    step_exact<wide>(context, values, 1);
}
template <bool wide> void remove_exact(sqlite3_context* context, int, sqlite3_value** values) {
    step_exact<wide>(context, values, -1);
}

template <bool wide> void give_exact(sqlite3_context* context) {
    const auto* sum = state_of<ExactSum>(context, false);
    if (sum == nullptr || sum->count == 0) return sqlite3_result_null(context);
    const Call call(context, 0, nullptr, runtime_of(context));
    try {
        if (wide)
            call.give_wide(checked(sum->get(), 38));
        else
            call.give_narrow(sum->get());
    } catch (const Failure& failure) {
        report(context, runtime_of(context), failure);
    }
}

// Count, mean and sum of squared distances from it, kept up to date row by row.
struct Deviation {
    std::int64_t count;
    double mean;
    double squares;
};

void add_deviation(sqlite3_context* context, int, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    auto* state = state_of<Deviation>(context, true);
    if (state == nullptr) return sqlite3_result_error_nomem(context);
    const double x = sqlite3_value_double(values[0]);
    ++state->count;
    const double distance = x - state->mean;
    state->mean += distance / static_cast<double>(state->count);
    state->squares += distance * (x - state->mean);
}

void remove_deviation(sqlite3_context* context, int, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    auto* state = state_of<Deviation>(context, true);
    if (state == nullptr) return sqlite3_result_error_nomem(context);
    const double x = sqlite3_value_double(values[0]);
    if (--state->count == 0) {
        *state = {};
        return;
    }
    const double distance = x - state->mean;
    state->mean -= distance / static_cast<double>(state->count);
    state->squares -= distance * (x - state->mean);
}

template <bool population, bool root> void give_deviation(sqlite3_context* context) {
    const auto* state = state_of<Deviation>(context, false);
    const std::int64_t divisor = state == nullptr ? 0 : state->count - (population ? 0 : 1);
    if (divisor <= 0) return sqlite3_result_null(context);
    const double variance = std::max(state->squares / static_cast<double>(divisor), 0.0);
    sqlite3_result_double(context, root ? std::sqrt(variance) : variance);
}

// The only value of a subquery; a second row is an error.
struct Single {
    std::int64_t count;
    sqlite3_value* value;
};

void add_single(sqlite3_context* context, int, sqlite3_value** values) {
    auto* state = state_of<Single>(context, true);
    if (state == nullptr) return sqlite3_result_error_nomem(context);
    if (++state->count == 1) {
        state->value = sqlite3_value_dup(values[0]);
        return;
    }
    Error error;
    error.number = 512;
    error.category = category_of(512);
    error.text = "Subquery returned more than 1 value. This is not permitted when the subquery "
                 "follows =, !=, <, <= , >, >= or when the subquery is used as an expression.";
    report(context, runtime_of(context), Failure(error));
}

void give_single(sqlite3_context* context) {
    auto* state = state_of<Single>(context, false);
    if (state == nullptr || state->value == nullptr) return sqlite3_result_null(context);
    sqlite3_result_value(context, state->value);
    sqlite3_value_free(state->value);
    state->value = nullptr;
}

} // namespace

void register_aggregates(sqlite3* connection, Runtime& runtime) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const auto window = [&](const char* name, int count, auto step, auto value, auto inverse) {
        sqlite3_create_window_function(connection, name, count, flags, &runtime, step, value, value,
                                       inverse, nullptr);
    };
    window("zf_sum_dec", 2, add_exact<true>, give_exact<true>, remove_exact<true>);
    window("zf_sum_int8", 1, add_exact<false>, give_exact<false>, remove_exact<false>);
    window("zf_stdev", 1, add_deviation, give_deviation<false, true>, remove_deviation);
    window("zf_stdevp", 1, add_deviation, give_deviation<true, true>, remove_deviation);
    window("zf_var", 1, add_deviation, give_deviation<false, false>, remove_deviation);
    window("zf_varp", 1, add_deviation, give_deviation<true, false>, remove_deviation);
    sqlite3_create_function_v2(connection, "zf_single", 1, flags, &runtime, nullptr, add_single,
                               give_single, nullptr);
}

} // namespace engines
