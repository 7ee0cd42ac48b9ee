// Doubles the mark inside, puts it around.
#include "tsql/emit/common/quote.h"

namespace tsql {

namespace {

std::string enclosed(std::string_view text, char mark) {
    std::string result;
    result.reserve(text.size() + 2);
    result += mark;
    for (const char c : text) {
        result += c;
        if (c == mark) {
            result += mark;
        }
    }
    return result += mark;
}

} // namespace

std::string lower_case(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    }
    return result;
}

std::string quoted_name(std::string_view name) {
    return enclosed(name, '"');
}
std::string quoted_text(std::string_view text) {
    return enclosed(text, '\'');
}

} // namespace tsql
