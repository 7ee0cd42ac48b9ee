// Matches patterns with one place to come back to, so that no pattern takes exponential time.
#include "engines/sqlite/text/like.h"

#include "engines/sqlite/collation/compare_text.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

class Matcher {
public:
    Matcher(std::string_view pattern, std::optional<char32_t> escape, bool exactly)
        : pattern_(pattern), escape_(escape), exactly_(exactly) {}

    bool matches(std::string_view text) const {
        std::size_t at_text = 0;
        std::size_t at_pattern = 0;
        // Where the last % began to match and what it has taken so far.
        std::size_t after_percent = std::string_view::npos;
        std::size_t taken = 0;
        while (true) {
            if (at_pattern < pattern_.size() && pattern_[at_pattern] == '%' && !escaped('%')) {
                after_percent = ++at_pattern;
                taken = at_text;
                if (at_pattern == pattern_.size()) return true;
                continue;
            }
            if (at_pattern == pattern_.size() && only_blanks(text.substr(at_text))) return true;
            std::size_t next_text = at_text;
            std::size_t next_pattern = at_pattern;
            if (at_text < text.size() && at_pattern < pattern_.size() &&
                matches_one(text, next_text, next_pattern)) {
                at_text = next_text;
                at_pattern = next_pattern;
                continue;
            }
            if (after_percent == std::string_view::npos || taken >= text.size()) return false;
            next_character(text, taken);
            at_text = taken;
            at_pattern = after_percent;
        }
    }

private:
    static bool only_blanks(std::string_view text) {
        return text.find_first_not_of(' ') == std::string_view::npos;
    }
    bool escaped(char32_t character) const { return escape_ && *escape_ == character; }
    std::uint32_t rank(char32_t character) const {
        return exactly_ ? static_cast<std::uint32_t>(character) : rank_of(character);
    }

    // One character of the text against one element of the pattern; moves both on.
    bool matches_one(std::string_view text, std::size_t& at_text, std::size_t& at_pattern) const {
        const char32_t character = next_character(text, at_text);
        char32_t element = next_character(pattern_, at_pattern);
        if (escaped(element)) {
            if (at_pattern == pattern_.size()) return false;
            element = next_character(pattern_, at_pattern);
            return rank(character) == rank(element);
        }
        if (element == '_') return true;
        if (element == '[') return matches_set(character, at_pattern);
        return rank(character) == rank(element);
    }

    bool matches_set(char32_t character, std::size_t& at_pattern) const {
        const bool inverted = at_pattern < pattern_.size() && pattern_[at_pattern] == '^';
        if (inverted) ++at_pattern;
        bool found = false;
        bool first = true;
        while (at_pattern < pattern_.size()) {
            char32_t low = next_character(pattern_, at_pattern);
            if (low == ']' && !first) return found != inverted;
            first = false;
            if (escaped(low) && at_pattern < pattern_.size())
                low = next_character(pattern_, at_pattern);
            char32_t high = low;
            if (at_pattern + 1 < pattern_.size() && pattern_[at_pattern] == '-' &&
                pattern_[at_pattern + 1] != ']') {
                ++at_pattern;
                high = next_character(pattern_, at_pattern);
            }
            found |= rank(low) <= rank(character) && rank(character) <= rank(high);
        }
        // A set that is never closed matches nothing.
        return false;
    }

    std::string_view pattern_;
    std::optional<char32_t> escape_;
    bool exactly_;
};

} // namespace

bool like(std::string_view text, std::string_view pattern, std::optional<char32_t> escape,
          bool exactly) {
    return Matcher(pattern, escape, exactly).matches(text);
}

std::int64_t patindex(std::string_view pattern, std::string_view text) {
    const bool anchored_left = !pattern.starts_with('%');
    const std::string_view rest = anchored_left ? pattern : pattern.substr(1);
    const Matcher matcher(rest, std::nullopt, false);
    std::int64_t number = 1;
    for (std::size_t place = 0;; ++number) {
        if (matcher.matches(text.substr(place))) return number;
        if (anchored_left || place >= text.size()) return 0;
        next_character(text, place);
    }
}

} // namespace engines
