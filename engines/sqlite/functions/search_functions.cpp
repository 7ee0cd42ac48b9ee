// Text functions that compare: LIKE, CHARINDEX, REPLACE, PATINDEX.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/functions/families.h"
#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/like.h"
#include "engines/sqlite/text/search.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

template <bool exactly> void like_pattern(const Call& call) {
    if (call.is_null(0) || call.is_null(1)) return call.give_null();
    std::optional<char32_t> escape;
    if (!call.is_null(2)) {
        const std::string_view text = call.text(2);
        std::size_t place = 0;
        if (!text.empty()) escape = next_character(text, place);
        if (text.empty() || place != text.size())
            raise_error(506, "The invalid escape character \"" + std::string(text) +
                                 "\" was specified in a LIKE predicate.");
    }
    call.give(like(call.text(0), call.text(1), escape, exactly) ? 1 : 0);
}

void charindex_of(const Call& call) {
    call.give(charindex(call.text(0), call.text(1), call.integer(2)));
}
void patindex_of(const Call& call) {
    call.give(patindex(call.text(0), call.text(1)));
}
void replace_in(const Call& call) {
    call.give_text(replace(call.text(0), call.text(1), call.text(2)));
}

void isnumeric(const Call& call) {
    if (call.is_null(0)) return call.give(0);
    const tsql::Type type = call.type(1);
    call.give(type.is_number() || (type.is_text() && is_numeric(call.text(0))) ? 1 : 0);
}

constexpr FunctionEntry entries[] = {
    {"zf_like", 3, Nature::pure_with_null, like_pattern<false>},
    {"zf_like_cs", 3, Nature::pure_with_null, like_pattern<true>},
    {"zf_charindex", 3, Nature::pure, charindex_of},
    {"zf_patindex", 2, Nature::pure, patindex_of},
    {"zf_replace", 3, Nature::pure, replace_in},
    {"zf_isnumeric", 2, Nature::pure_with_null, isnumeric},
};

} // namespace

std::span<const FunctionEntry> search_functions() {
    return entries;
}

} // namespace engines
