// Texts as people count them: characters are code points of UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// Number of characters: "凭证A" has three. A malformed byte counts as one.
std::size_t character_count(std::string_view text);
// The text cut to its first `count` characters.
std::string first_characters(std::string_view text, std::size_t count);
// The characters of a text; a malformed byte becomes U+FFFD.
std::u32string to_characters(std::string_view text);
std::string to_utf8(char32_t character);
std::string to_utf8(std::u32string_view characters);
// Position (from 1, in characters) of the first thing a line of text must not hold: a malformed
// byte or a control character; line ends and tabs are allowed where `several_lines` is set.
std::optional<std::size_t> first_unprintable(std::string_view text, bool several_lines = false);

std::string trimmed(std::string_view text); // without blanks at both ends
// Latin letters only: codes and field names.
std::string upper_case(std::string_view text);
bool same_text(std::string_view a, std::string_view b); // Latin letters without regard to case
bool contains_text(std::string_view whole, std::string_view part);    // likewise
bool starts_with_text(std::string_view whole, std::string_view part); // likewise
std::string replaced(std::string_view text, std::string_view what, std::string_view by);

} // namespace host
