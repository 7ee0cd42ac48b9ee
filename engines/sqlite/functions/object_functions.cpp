// Functions that ask the session: variables, identities, routines, objects.
#include <array>
#include <cmath>
#include <cstdio>

#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

void variable(const Call& call) {
    tsql::Type type;
    const Stored value = call.runtime().variable(call.number(0), type);
    call.give_stored(value, type);
}

void identity(const Call& call) {
    call.give(call.runtime().next_identity(call.text(0)));
}

void identity_seen(const Call& call) {
    if (call.is_null(1)) return call.give_null();
    call.runtime().identity_seen(call.text(0), call.integer(1));
    call.give(call.integer(1));
}

void ident_current(const Call& call) {
    const auto value = call.runtime().current_identity(call.text(0));
    value ? call.give_wide(*value) : call.give_null();
}

void call_function(const Call& call) {
    tsql::Type type;
    const Stored result = call.runtime().call(call.text(0), call.all().subspan(1), type);
    call.give_stored(result, type);
}

void object_id(const Call& call) {
    if (call.is_null(0)) return call.give_null();
    const auto id = call.runtime().object_id(call.text(0), call.is_null(1) ? "" : call.text(1));
    id ? call.give(*id) : call.give_null();
}

void object_name(const Call& call) {
    if (call.is_null(0)) return call.give_null();
    const auto name = call.runtime().object_name(call.integer(0));
    name ? call.give_text(*name) : call.give_null();
}

void object_definition(const Call& call) {
    if (call.is_null(0)) return call.give_null();
    const auto text = call.runtime().object_definition(call.integer(0));
    text ? call.give_text(*text) : call.give_null();
}

void index_property(const Call& call) {
    if (call.is_null(0) || call.is_null(1) || call.is_null(2)) return call.give_null();
    const auto value =
        call.runtime().index_property(call.integer(0), call.text(1), call.text(2));
    value ? call.give(*value) : call.give_null();
}

// Nine bytes that are neither a text, a number nor a wide decimal.
void tombstone(const Call& call) {
    std::array<char, 9> bytes{static_cast<char>(0xFF)};
    auto bits = static_cast<std::uint64_t>(call.integer(0));
    for (std::size_t i = bytes.size(); i-- > 1; bits >>= 8)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(bits & 255));
    call.give_bytes({bytes.data(), bytes.size()});
}

void raise(const Call& call) {
    raise_error(call.number(0), std::string(call.text(1)));
}

void percent(const Call& call) {
    const double share = call.real(0);
    if (!(share >= 0 && share <= 100))
        raise_error(1031, "Percent values must be between 0 and 100.");
    call.give(static_cast<std::int64_t>(std::ceil(share * call.real(1) / 100)));
}

// A random identifier: version 4, variant 2.
void newid(const Call& call) {
    std::array<unsigned long long, 2> bits;
    sqlite3_randomness(sizeof bits, bits.data());
    const unsigned long long high = (bits[0] & ~0xF000ull) | 0x4000ull;
    const unsigned long long low = (bits[1] & ~(3ull << 62)) | (2ull << 62);
    std::array<char, 37> text;
    std::snprintf(text.data(), text.size(), "%08llX-%04llX-%04llX-%04llX-%012llX", high >> 32,
                  high >> 16 & 0xFFFF, high & 0xFFFF, low >> 48, low & 0xFFFFFFFFFFFF);
    call.give_text(text.data());
}

constexpr FunctionEntry entries[] = {
    {"zf_variable", 1, Nature::live, variable},
    {"zf_identity", 1, Nature::live, identity},
    {"zf_identity_seen", 2, Nature::live, identity_seen},
    {"zf_ident_current", 1, Nature::live, ident_current},
    {"zf_call", -1, Nature::live, call_function},
    {"zf_object_id", 2, Nature::live, object_id},
    {"zf_object_name", 1, Nature::live, object_name},
    {"zf_object_definition", 1, Nature::live, object_definition},
    {"zf_indexproperty", 3, Nature::live, index_property},
    {"zf_tombstone", 1, Nature::pure, tombstone},
    {"zf_raise", 2, Nature::live, raise},
    {"zf_percent", 2, Nature::pure, percent},
    {"zf_newid", 0, Nature::live, newid},
};

} // namespace

std::span<const FunctionEntry> object_functions() {
    return entries;
}

} // namespace engines
