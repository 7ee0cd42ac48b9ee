// Edits texts by characters of UTF-8.
#include "engines/sqlite/text/edit.h"

#include <algorithm>

#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/blanks.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

std::size_t place_of(std::string_view text, std::int64_t characters) {
    return byte_place(text, static_cast<std::size_t>(std::max<std::int64_t>(characters, 0)));
}

void refuse_negative(std::int64_t count, int number, const char* function) {
    if (count < 0)
        raise_error(number, std::string("Invalid length parameter passed to the ") + function +
                                " function.");
}

} // namespace

std::string_view left(std::string_view text, std::int64_t count) {
    refuse_negative(count, 536, "left");
    return text.substr(0, place_of(text, count));
}

std::string_view right(std::string_view text, std::int64_t count) {
    refuse_negative(count, 536, "right");
    const auto all = static_cast<std::int64_t>(character_count(text));
    return text.substr(place_of(text, all - count));
}

std::string_view substring(std::string_view text, std::int64_t start, std::int64_t length) {
    refuse_negative(length, 537, "substring");
    constexpr std::int64_t far = 1LL << 40;
    start = std::clamp(start, -far, far);
    const std::int64_t end = start + std::min(length, far);
    if (end <= 1) return {};
    const std::size_t first = place_of(text, start - 1);
    const std::string_view rest = text.substr(first);
    return rest.substr(0, place_of(rest, end - std::max<std::int64_t>(start, 1)));
}

std::optional<std::string> stuff(std::string_view text, std::int64_t start, std::int64_t length,
                                 std::string_view by) {
    const auto all = static_cast<std::int64_t>(character_count(text));
    if (start < 1 || start > all || length < 0) return std::nullopt;
    const std::size_t first = place_of(text, start - 1);
    const std::string_view rest = text.substr(first);
    std::string out(text.substr(0, first));
    out += by;
    out += rest.substr(place_of(rest, length));
    return out;
}

std::string reversed(std::string_view text) {
    std::string out(text.size(), ' ');
    std::size_t end = text.size();
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t start = place;
        next_character(text, place);
        end -= place - start;
        std::copy(text.begin() + static_cast<std::ptrdiff_t>(start),
                  text.begin() + static_cast<std::ptrdiff_t>(place),
                  out.begin() + static_cast<std::ptrdiff_t>(end));
    }
    return out;
}

std::optional<std::string> replicate(std::string_view text, std::int64_t count) {
    if (count < 0) return std::nullopt;
    std::string out;
    constexpr std::size_t most = 8000;
    for (; count > 0 && !text.empty() && out.size() + text.size() <= most; --count) out += text;
    return out;
}

std::optional<std::string> quotename(std::string_view name, std::string_view mark) {
    char open = mark.empty() ? '[' : mark.front();
    char close = open;
    switch (open) {
    case '[':
    case ']':
        open = '[';
        close = ']';
        break;
    case '(':
    case ')':
        open = '(';
        close = ')';
        break;
    case '<':
    case '>':
        open = '<';
        close = '>';
        break;
    case '{':
    case '}':
        open = '{';
        close = '}';
        break;
    case '"':
    case '\'':
    case '`': break;
    default: return std::nullopt;
    }
    if (character_count(name) > 128) return std::nullopt;
    std::string out(1, open);
    for (const char character : name) {
        out += character;
        if (character == close) out += character;
    }
    return out += close;
}

std::int64_t length_of(std::string_view text) {
    return static_cast<std::int64_t>(character_count(without_trailing_blanks(text)));
}

} // namespace engines
