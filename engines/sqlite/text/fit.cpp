// Measures texts in the units of their declarations.
#include "engines/sqlite/text/fit.h"

#include "engines/sqlite/raise.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

// The euro sign is the only single byte of the code page beyond ASCII.
std::size_t room_of(char32_t character, bool national) {
    return national || character < 0x80 || character == 0x20AC ? 1 : 2;
}

// No text is longer in its type's unit than in bytes of UTF-8.
bool fits_surely(std::string_view text, const tsql::Type& type) {
    return type.length == tsql::Type::max_length ||
           text.size() <= static_cast<std::size_t>(type.length);
}

} // namespace

std::size_t room_of(std::string_view text, const tsql::Type& type) {
    std::size_t room = 0;
    for (std::size_t place = 0; place < text.size();)
        room += room_of(next_character(text, place), type.is_national());
    return room;
}

std::string_view cut_to_fit(std::string_view text, const tsql::Type& type) {
    if (fits_surely(text, type)) return text;
    const auto length = static_cast<std::size_t>(type.length);
    std::size_t room = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t start = place;
        room += room_of(next_character(text, place), type.is_national());
        if (room > length) return text.substr(0, start);
    }
    return text;
}

std::string_view refuse_unless_fit(std::string_view text, const tsql::Type& type) {
    const std::string_view kept = cut_to_fit(text, type);
    if (text.find_first_not_of(' ', kept.size()) != std::string_view::npos)
        raise_error(8152, "String or binary data would be truncated.");
    return kept;
}

void pad(std::string& text, const tsql::Type& type) {
    const bool fixed = type.kind == tsql::TypeKind::Char || type.kind == tsql::TypeKind::NChar;
    if (!fixed || type.length <= 0) return;
    const std::size_t room = room_of(text, type);
    const auto length = static_cast<std::size_t>(type.length);
    if (room < length) text.append(length - room, ' ');
}

} // namespace engines
