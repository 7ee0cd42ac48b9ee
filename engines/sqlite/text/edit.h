// Cutting and joining texts by characters: LEFT, SUBSTRING, STUFF and their like.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engines {

// Error 536 for a negative count.
std::string_view left(std::string_view text, std::int64_t count);
std::string_view right(std::string_view text, std::int64_t count);

// Places before 1 count as characters that are not there. Error 537 for a negative length.
// Example: substring("abcdef", 0, 3) == "ab".
std::string_view substring(std::string_view text, std::int64_t start, std::int64_t length);

// Nothing when start lies outside the text or length is negative.
std::optional<std::string> stuff(std::string_view text, std::int64_t start, std::int64_t length,
                                 std::string_view by);

std::string reversed(std::string_view text);
// Nothing for a negative count; at most 8,000 bytes as the server gives them.
std::optional<std::string> replicate(std::string_view text, std::int64_t count);
// [name] with its closing marks doubled; the mark is [, ", ' or another bracket. Nothing for a
// mark that quotes nothing or a name longer than 128 characters.
std::optional<std::string> quotename(std::string_view name, std::string_view mark);

// Characters without trailing blanks, as LEN counts.
std::int64_t length_of(std::string_view text);

} // namespace engines
