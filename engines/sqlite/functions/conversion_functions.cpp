// zf_cast and its like: conversions inside statements.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/numbers/decimal.h"

namespace engines {
namespace {

void convert_argument(const Call& call, int style, Fit fit) {
    const tsql::Type from = call.type(1);
    const tsql::Type to = call.type(2);
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
