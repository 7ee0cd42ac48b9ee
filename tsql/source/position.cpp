// Offsets to lines and columns, found by walking the text: only refusals ask.
#include "tsql/source/position.h"

#include <algorithm>

namespace tsql {

namespace {

bool continues_character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t start_of_line(std::string_view batch, std::size_t offset) {
    while (offset > 0 && batch[offset - 1] != '\n' && batch[offset - 1] != '\r') --offset;
    return offset;
}

} // namespace

LineColumn locate(std::string_view batch, std::uint32_t offset) {
    const std::size_t end = std::min<std::size_t>(offset, batch.size());
    LineColumn place;
    for (std::size_t i = 0; i < end; ++i) {
        const char byte = batch[i];
        if (byte == '\n' || (byte == '\r' && (i + 1 >= batch.size() || batch[i + 1] != '\n'))) {
            ++place.line;
            place.column = 1;
        } else if (byte != '\r' && !continues_character(byte)) {
            ++place.column;
        }
    }
    return place;
}

std::string_view line_around(std::string_view batch, std::uint32_t offset) {
    const std::size_t begin = start_of_line(batch, std::min<std::size_t>(offset, batch.size()));
    const std::size_t end = batch.find_first_of("\r\n", begin);
    return batch.substr(begin, end == std::string_view::npos ? end : end - begin);
}

} // namespace tsql
