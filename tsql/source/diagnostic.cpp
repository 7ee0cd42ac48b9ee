// Lines a caret up under what was refused; full-width characters take two cells of a terminal.
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

// The next character of a UTF-8 text; a broken byte counts as a character of its own.
char32_t next_character(std::string_view text, std::size_t& i) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    char32_t character = more == 3 ? lead & 0x07 : more == 2 ? lead & 0x0F : lead & 0x1F;
    if (more == 0) return lead;
    for (; more > 0 && i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
         --more)
        character = (character << 6) | (static_cast<unsigned char>(text[i++]) & 0x3F);
    return character;
}

bool is_wide(char32_t c) {
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) ||
           (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) ||
           (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
}

int cells(std::string_view text) {
    int width = 0;
    for (std::size_t i = 0; i < text.size();) width += is_wide(next_character(text, i)) ? 2 : 1;
    return width;
}

} // namespace

std::string Diagnostic::text() const {
    return std::to_string(line) + ":" + std::to_string(column) + " " + message + "\n" +
           source_line + "\n" + std::string(static_cast<std::size_t>(caret_indent), ' ') +
           std::string(static_cast<std::size_t>(caret_width), '^');
}

Diagnostic diagnose(std::string_view batch, const Refusal& refusal) {
    const auto size = static_cast<std::uint32_t>(batch.size());
    const std::uint32_t begin = std::min(refusal.at.begin, size);
    const std::string_view whole_line = line_around(batch, begin);
    const auto line_begin = static_cast<std::size_t>(whole_line.data() - batch.data());
    const std::size_t inside = std::min(begin - line_begin, whole_line.size());
    const std::size_t end = std::clamp<std::size_t>(std::min(refusal.at.end, size), begin,
                                                    line_begin + whole_line.size());

    const LineColumn place = locate(batch, begin);
    Diagnostic result;
    result.number = refusal.number;
    result.line = place.line;
    result.column = place.column;
    result.message = refusal.what();
    result.source_line = whole_line;
    std::replace(result.source_line.begin(), result.source_line.end(), '\t', ' ');
    result.caret_indent = cells(whole_line.substr(0, inside));
    result.caret_width = std::max(1, cells(batch.substr(begin, end - begin)));
    return result;
}

} // namespace tsql
