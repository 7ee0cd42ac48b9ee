// zf_cast and its like: conversions inside statements.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/numbers/decimal.h"

namespace engines {
namespace {

// Line numbers and months are most of what is converted: a few digits and nothing else.
// Answers whether the argument is such a text; then it was given as the number it is.
bool give_few_digits(const Call& call) {
    if (sqlite3_value_type(call.raw(0)) != SQLITE_TEXT) return false;
    const std::string_view text = call.text(0);
    constexpr std::size_t most_digits = 9; // all that surely fit
    if (text.empty() || text.size() > most_digits) return false;
    std::int64_t number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return false;
        number = number * 10 + (digit - '0');
    }
    call.give(number);
    return true;
}

void convert_argument(const Call& call, int style, Fit fit) {
    const tsql::Type to = call.type(2);
    if (to.kind == tsql::TypeKind::Int && give_few_digits(call)) return;
    const tsql::Type from = call.type(1);
    std::string buffer;
    call.give_stored(convert(call.stored(0, from), from, to, style, fit, buffer), to);
}

void cast(const Call& call) {
    convert_argument(call, call.number(3), Fit::cut);
}
void assign(const Call& call) {
    convert_argument(call, 0, Fit::refuse);
}

void try_cast(const Call& call) {
    try {
        cast(call);
    } catch (const Failure&) {
        call.give_null();
    }
}

void wide(const Call& call) {
    call.give_wide(call.exact(0));
}
void narrow(const Call& call) {
    call.give_narrow(call.exact(0));
}
void rescale_argument(const Call& call) {
    call.give_wide(rescale(call.exact(0), call.number(1), call.number(2)));
}

constexpr FunctionEntry entries[] = {
    {"zf_cast", 4, Nature::pure, cast},     {"zf_try_cast", 4, Nature::pure, try_cast},
    {"zf_assign", 3, Nature::pure, assign}, {"zf_wide", 1, Nature::pure, wide},
    {"zf_narrow", 1, Nature::pure, narrow}, {"zf_rescale", 3, Nature::pure, rescale_argument},
};

} // namespace

std::span<const FunctionEntry> conversion_functions() {
    return entries;
}

} // namespace engines
