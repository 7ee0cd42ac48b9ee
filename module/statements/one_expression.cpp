// Tells a formula that reckons an amount from one that hides another statement.
#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

#include "host/values/text.h"
#include "module/statements/statement_formula.h"

namespace module {

namespace {

// Outside of parentheses an expression holds none of these words.
constexpr std::array<std::string_view, 35> statement_words = {
    "ALTER", "BACKUP",   "BEGIN",    "BULK",   "CLOSE",    "COMMIT",  "CREATE",
    "DBCC",  "DECLARE",  "DELETE",   "DENY",   "DROP",     "EXEC",    "EXECUTE",
    "FETCH", "GRANT",    "IF",       "INSERT", "INTO",     "KILL",    "MERGE",
    "OPEN",  "PRINT",    "RESTORE",  "REVOKE", "ROLLBACK", "SAVE",    "SELECT",
    "SET",   "SHUTDOWN", "TRUNCATE", "UPDATE", "USE",      "WAITFOR", "WHILE"};

bool is_word_character(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '@' || c == '#' ||
           c == '$' || static_cast<unsigned char>(c) >= 0x80;
}

// The place behind a quoted text or name that begins at `at`; a doubled quote ends one and begins
// the next.
std::size_t behind_quoted(std::string_view text, std::size_t at) {
    const char closing = text[at] == '[' ? ']' : text[at];
    const std::size_t end = text.find(closing, at + 1);
    return end == std::string_view::npos ? text.size() : end + 1;
}

std::string_view word_at(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && is_word_character(text[end])) ++end;
    return text.substr(at, end - at);
}

bool begins_statement(std::string_view word) {
    return std::find(statement_words.begin(), statement_words.end(), upper_case(word)) !=
           statement_words.end();
}

} // namespace

std::string what_is_no_expression(const std::string& query) {
    const std::string_view text = query;
    int depth = 0;
    for (std::size_t at = word_at(text, 0).size(); at < text.size();) {
        const char c = text[at];
        if (c == '\'' || c == '"' || c == '[') {
            at = behind_quoted(text, at);
            continue;
        }
        const std::string_view pair = text.substr(at, 2);
        if (c == ';') return ";";
        if (pair == "--" || pair == "/*") return std::string(pair);
        if (c == '(') ++depth;
        if (c == ')' && depth > 0) --depth;
        const std::string_view word = word_at(text, at);
        if (depth == 0 && begins_statement(word)) return std::string(word);
        at += std::max<std::size_t>(1, word.size());
    }
    return "";
}

} // namespace module
