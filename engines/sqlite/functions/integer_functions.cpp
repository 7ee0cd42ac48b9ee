// Checked arithmetic on whole numbers.
#include <limits>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

template <std::int64_t low, std::int64_t high> void within(const Call& call) {
    const std::int64_t value = call.integer(0);
    if (value < low || value > high)
        raise_overflow(high == 255 ? "tinyint" : high == 32767 ? "smallint" : "int");
    call.give(value);
}

// An integer on its way into a decimal of so many digits.
void below(const Call& call) {
    const std::int64_t value = call.integer(0);
    const std::int64_t limit = call.integer(1);
    if (value >= limit || value <= -limit) raise_overflow("numeric");
    call.give(value);
}

void add8(const Call& call) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(call.integer(0), call.integer(1), &result)) raise_overflow("bigint");
    call.give(result);
}

void sub8(const Call& call) {
    std::int64_t result = 0;
    if (__builtin_sub_overflow(call.integer(0), call.integer(1), &result)) raise_overflow("bigint");
    call.give(result);
}

void mul8(const Call& call) {
    std::int64_t result = 0;
    if (__builtin_mul_overflow(call.integer(0), call.integer(1), &result)) raise_overflow("bigint");
    call.give(result);
}

void idiv(const Call& call) {
    const std::int64_t divisor = call.integer(1);
    if (divisor == 0) raise_division_by_zero();
    const std::int64_t dividend = call.integer(0);
    if (divisor == -1) {
        if (dividend == std::numeric_limits<std::int64_t>::min()) raise_overflow("bigint");
        return call.give(-dividend);
    }
    call.give(dividend / divisor);
}

void imod(const Call& call) {
    const std::int64_t divisor = call.integer(1);
    if (divisor == 0) raise_division_by_zero();
    call.give(divisor == -1 ? 0 : call.integer(0) % divisor);
}

void exclusive_or(const Call& call) {
    call.give(call.integer(0) ^ call.integer(1));
}

// Negative digits round places before the point.
void round_int(const Call& call) {
    const std::int64_t digits = call.integer(1);
    if (digits >= 0) return call.give(call.integer(0));
    if (digits < -19) return call.give(0);
    const int places = static_cast<int>(-digits);
    const Rounding rounding = call.integer(2) != 0 ? Rounding::cut : Rounding::half_away;
    call.give_narrow(rescale(call.integer(0), places, 0, rounding) * power_of_ten(places));
}

constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();

// From left to right, each partial sum within an int.
void sum4(const Call& call) {
    std::int64_t sum = 0;
    for (int i = 0; i < call.count(); ++i) {
        sum += call.integer(i);
        if (sum < least || sum > most) raise_overflow("int");
    }
    call.give(sum);
}

constexpr FunctionEntry entries[] = {
    {"zf_int1", 1, Nature::pure, within<0, 255>},
    {"zf_int2", 1, Nature::pure, within<-32768, 32767>},
    {"zf_int4", 1, Nature::pure, within<least, most>},
    {"zf_sum4", -1, Nature::pure, sum4},
    {"zf_within", 2, Nature::pure, below},
    {"zf_add8", 2, Nature::pure, add8},
    {"zf_sub8", 2, Nature::pure, sub8},
    {"zf_mul8", 2, Nature::pure, mul8},
    {"zf_idiv", 2, Nature::pure, idiv},
    {"zf_imod", 2, Nature::pure, imod},
    {"zf_xor", 2, Nature::pure, exclusive_or},
    {"zf_round_int", 3, Nature::pure, round_int},
};

} // namespace

std::span<const FunctionEntry> integer_functions() {
    return entries;
}

} // namespace engines
