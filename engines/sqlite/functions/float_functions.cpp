// Floating point functions; never used for amounts.
#include <cmath>
#include <numbers>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

double finite(double value) {
    if (!std::isfinite(value)) raise_overflow("float");
    return value;
}

double in_domain(double value, bool valid) {
    if (!valid) raise_error(3623, "An invalid floating point operation occurred.");
    return value;
}

void fdiv(const Call& call) {
    if (call.real(1) == 0) raise_division_by_zero();
    call.give_real(finite(call.real(0) / call.real(1)));
}
void checked_float(const Call& call) {
    call.give_real(finite(call.real(0)));
}
void power(const Call& call) {
    const double value = std::pow(call.real(0), call.real(1));
    call.give_real(finite(in_domain(value, !std::isnan(value))));
}

template <auto function> void unary(const Call& call) {
    call.give_real(finite(function(call.real(0))));
}
template <auto function, bool zero_allowed> void positive(const Call& call) {
    const double x =
        in_domain(call.real(0), call.real(0) > 0 || (zero_allowed && call.real(0) == 0));
    call.give_real(finite(function(x)));
}

void pi(const Call& call) {
    call.give_real(std::numbers::pi);
}

void round_float(const Call& call) {
    const double factor = std::pow(10.0, call.real(1));
    const double scaled = call.real(0) * factor;
    if (!std::isfinite(scaled) || factor == 0)
        return call.give_real(factor == 0 ? 0 : call.real(0));
    call.give_real(
        finite((call.integer(2) != 0 ? std::trunc(scaled) : std::round(scaled)) / factor));
}

// A seed gives the same number each time; without one the numbers are random.
void random_number(const Call& call) {
    std::uint64_t bits = 0;
    if (call.is_null(0)) {
        sqlite3_randomness(sizeof bits, &bits);
    } else {
        bits = static_cast<std::uint64_t>(call.integer(0)) + 0x9E3779B97F4A7C15u;
        bits = (bits ^ bits >> 30) * 0xBF58476D1CE4E5B9u;
        bits = (bits ^ bits >> 27) * 0x94D049BB133111EBu;
    }
    call.give_real(static_cast<double>(bits >> 11) * 0x1p-53);
}

constexpr FunctionEntry entries[] = {
    {"zf_fdiv", 2, Nature::pure, fdiv},
    {"zf_float", 1, Nature::pure, checked_float},
    {"zf_ceiling_float", 1, Nature::pure, unary<[](double x) { return std::ceil(x); }>},
    {"zf_floor_float", 1, Nature::pure, unary<[](double x) { return std::floor(x); }>},
    {"zf_power", 2, Nature::pure, power},
    {"zf_sqrt", 1, Nature::pure, positive<[](double x) { return std::sqrt(x); }, true>},
    {"zf_exp", 1, Nature::pure, unary<[](double x) { return std::exp(x); }>},
    {"zf_log", 1, Nature::pure, positive<[](double x) { return std::log(x); }, false>},
    {"zf_log10", 1, Nature::pure, positive<[](double x) { return std::log10(x); }, false>},
    {"zf_pi", 0, Nature::pure, pi},
    {"zf_sin", 1, Nature::pure, unary<[](double x) { return std::sin(x); }>},
    {"zf_cos", 1, Nature::pure, unary<[](double x) { return std::cos(x); }>},
    {"zf_tan", 1, Nature::pure, unary<[](double x) { return std::tan(x); }>},
    {"zf_atan", 1, Nature::pure, unary<[](double x) { return std::atan(x); }>},
    {"zf_round_float", 3, Nature::pure, round_float},
    {"zf_rand", 1, Nature::live, random_number},
};

} // namespace

std::span<const FunctionEntry> float_functions() {
    return entries;
}

} // namespace engines
