// Compares character by character; the texts of books are short.
#include "engines/sqlite/text/search.h"

#include "engines/sqlite/collation/compare_text.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

// Bytes of the text taken when it begins with what at this place, else npos.
std::size_t match_at(std::string_view text, std::size_t place, std::string_view what) {
    std::size_t at = place;
    for (std::size_t i = 0; i < what.size();) {
        if (at >= text.size()) return std::string_view::npos;
        if (rank_of(next_character(what, i)) != rank_of(next_character(text, at)))
            return std::string_view::npos;
    }
    return at - place;
}

} // namespace

std::int64_t charindex(std::string_view what, std::string_view text, std::int64_t start) {
    if (what.empty()) return 0;
    std::int64_t number = start < 1 ? 1 : start;
    std::size_t place = byte_place(text, static_cast<std::size_t>(number - 1));
    for (; place < text.size(); ++number) {
        if (match_at(text, place, what) != std::string_view::npos) return number;
        next_character(text, place);
    }
    return 0;
}

std::string replace(std::string_view text, std::string_view what, std::string_view by) {
    std::string out;
    if (what.empty()) return std::string(text);
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t taken = match_at(text, place, what);
        if (taken != std::string_view::npos) {
            out += by;
            place += taken;
            continue;
        }
        const std::size_t start = place;
        next_character(text, place);
        out += text.substr(start, place - start);
    }
    return out;
}

} // namespace engines
