// Decimal arithmetic inside statements, where SQLite's own integers do not suffice.
#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/numbers/decimal.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

template <auto operation> void binary(const Call& call) {
    call.give_wide(operation(call.exact(0), call.number(1), call.exact(2), call.number(3),
                             call.number(4), call.number(5)));
}

// Precision and scale of the result, then scale and value of each term from left to right.
void sum(const Call& call) {
    const int precision = call.number(0), scale = call.number(1);
    Int128 total = 0;
    for (int i = 2; i + 1 < call.count(); i += 2)
        total = add(total, scale, call.exact(i + 1), call.number(i), precision, scale);
    call.give_wide(total);
}

void cmp(const Call& call) {
    call.give(compare(call.exact(0), call.number(1), call.exact(2), call.number(3)));
}

void neg(const Call& call) {
    call.give_wide(-call.exact(0));
}

void abs(const Call& call) {
    const Int128 value = call.exact(0);
    call.give_wide(value < 0 ? -value : value);
}

void sign(const Call& call) {
    if (sqlite3_value_type(call.raw(0)) == SQLITE_FLOAT) {
        const double value = call.real(0);
        return call.give((value > 0) - (value < 0));
    }
    const Int128 value = call.exact(0);
    call.give((value > 0) - (value < 0));
}

// Money has four decimals in every operation.
void money_mul(const Call& call) {
    call.give_narrow(multiply(call.exact(0), 4, call.exact(1), 4, 38, 4));
}
void money_div(const Call& call) {
    call.give_narrow(divide(call.exact(0), 4, call.exact(1), 4, 38, 4));
}

void round_dec(const Call& call) {
    const int scale = call.number(1);
    const std::int64_t digits = call.integer(2);
    if (digits >= scale) return call.give_like(0, call.exact(0));
    const std::int64_t places = scale - digits;
    if (places > 38) return call.give_like(0, 0);
    const Rounding rounding = call.integer(3) != 0 ? Rounding::cut : Rounding::half_away;
    const auto dropped = static_cast<int>(places);
    const Int128 kept = rescale(call.exact(0), dropped, 0, rounding);
    call.give_like(0, checked(rescale(kept, 0, dropped), 38));
}

// The next whole number below (-1) or above (1) when there are decimals.
template <int direction> void whole(const Call& call) {
    const Int128 value = call.exact(0);
    const int scale = call.number(1);
    Int128 result = rescale(value, scale, 0, Rounding::cut);
    const Int128 rest = value - rescale(result, 0, scale);
    if ((rest > 0 && direction > 0) || (rest < 0 && direction < 0)) result += direction;
    call.give_like(0, result);
}

void to_float(const Call& call) {
    call.give_real(to_double(call.exact(0), call.number(1)));
}

constexpr FunctionEntry entries[] = {
    {"zf_dec_add", 6, Nature::pure, binary<add>},
    {"zf_dec_sub", 6, Nature::pure, binary<subtract>},
    {"zf_dec_sum", -1, Nature::pure, sum},
    {"zf_dec_mul", 6, Nature::pure, binary<multiply>},
    {"zf_dec_div", 6, Nature::pure, binary<divide>},
    {"zf_dec_mod", 6, Nature::pure, binary<modulo>},
    {"zf_dec_cmp", 4, Nature::pure, cmp},
    {"zf_dec_neg", 1, Nature::pure, neg},
    {"zf_dec_abs", 1, Nature::pure, abs},
    {"zf_sign", 1, Nature::pure, sign},
    {"zf_money_mul", 2, Nature::pure, money_mul},
    {"zf_money_div", 2, Nature::pure, money_div},
    {"zf_round_dec", 4, Nature::pure, round_dec},
    {"zf_ceiling_dec", 2, Nature::pure, whole<1>},
    {"zf_floor_dec", 2, Nature::pure, whole<-1>},
    {"zf_dec_to_float", 2, Nature::pure, to_float},
};

} // namespace

std::span<const FunctionEntry> decimal_functions() {
    return entries;
}

} // namespace engines
