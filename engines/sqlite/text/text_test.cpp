// Texts cut, searched, matched and measured as the server does it.
#include <gtest/gtest.h>

#include "engines/error.h"
#include "engines/sqlite/text/edit.h"
#include "engines/sqlite/text/fit.h"
#include "engines/sqlite/text/letter_case.h"
#include "engines/sqlite/text/like.h"
#include "engines/sqlite/text/search.h"

namespace engines {
namespace {

using tsql::Type;

TEST(Fit, varchar_counts_bytes_of_the_code_page_and_nvarchar_characters) {
    EXPECT_EQ(room_of("中文a", Type::varchar(10)), 5u);
    EXPECT_EQ(room_of("中文a", Type::nvarchar(10)), 3u);
    EXPECT_EQ(cut_to_fit("中文", Type::varchar(3)), "中");
    EXPECT_EQ(cut_to_fit("中文字", Type::nvarchar(2)), "中文");
    EXPECT_EQ(refuse_unless_fit("中文", Type::varchar(4)), "中文");
}

TEST(Fit, only_blanks_may_be_left_out_on_the_way_into_a_column) {
    EXPECT_EQ(refuse_unless_fit("abc      ", Type::varchar(3)), "abc");
    EXPECT_THROW(refuse_unless_fit("abcd", Type::varchar(3)), Failure);
    EXPECT_THROW(refuse_unless_fit("中文", Type::varchar(3)), Failure);
    EXPECT_THROW(refuse_unless_fit("abc  d", Type::varchar(3)), Failure);
}

TEST(Fit, char_is_filled_with_blanks) {
    std::string text = "ab";
    Type type = Type::varchar(5);
    pad(text, type);
    EXPECT_EQ(text, "ab");
    type.kind = tsql::TypeKind::Char;
    pad(text, type);
    EXPECT_EQ(text, "ab   ");
}

TEST(Edit, positions_count_characters) {
    EXPECT_EQ(left("中文字", 2), "中文");
    EXPECT_EQ(right("中文字", 2), "文字");
    EXPECT_EQ(left("ab", 5), "ab");
    EXPECT_EQ(right("ab", 5), "ab");
    EXPECT_EQ(right("ab", 0), "");
    EXPECT_THROW(left("ab", -1), Failure);
}

TEST(Edit, a_substring_may_start_before_the_text) {
    EXPECT_EQ(substring("abcdef", 2, 3), "bcd");
    EXPECT_EQ(substring("abcdef", 0, 3), "ab");
    EXPECT_EQ(substring("abcdef", -1, 3), "a");
    EXPECT_EQ(substring("abcdef", 5, 10), "ef");
    EXPECT_EQ(substring("abc", 4, 1), "");
    EXPECT_EQ(substring("中文字", 2, 1), "文");
    EXPECT_EQ(substring("abc", 1, INT64_MAX), "abc");
    EXPECT_THROW(substring("abc", 1, -1), Failure);
}

TEST(Edit, stuff_reverse_replicate_and_quotes) {
    EXPECT_EQ(stuff("abcdef", 2, 3, "XY"), "aXYef");
    EXPECT_EQ(stuff("abc", 4, 1, "x"), std::nullopt);
    EXPECT_EQ(reversed("a中b"), "b中a");
    EXPECT_EQ(replicate("0", 3), "000");
    EXPECT_EQ(replicate("0", -1), std::nullopt);
    EXPECT_EQ(quotename("a]b", ""), "[a]]b]");
    EXPECT_EQ(quotename("a", "x"), std::nullopt);
    EXPECT_EQ(length_of("中文  "), 2);
}

TEST(Search, occurrences_are_found_without_case_and_width) {
    EXPECT_EQ(charindex("B", "abcb", 1), 2);
    EXPECT_EQ(charindex("b", "abcb", 3), 4);
    EXPECT_EQ(charindex("x", "abc", 1), 0);
    EXPECT_EQ(charindex("Ａ", "中a", 1), 2);
    EXPECT_EQ(replace("aAbB", "a", "-"), "--bB");
    EXPECT_EQ(replace("期末余额", "期末", "0"), "0余额");
    EXPECT_EQ(replace("abc", "", "x"), "abc");
}

struct LikeCase {
    const char* text;
    const char* pattern;
    bool matches;
};

TEST(Like, patterns) {
    const LikeCase cases[] = {{"abc", "a%", true},      {"ABD", "a%", true},
                              {"中文abc", "a%", false}, {"abc", "_b_", true},
                              {"a%c", "a[%]c", true},   {"abc", "a[%]c", false},
                              {"1001", "[1-9]%", true}, {"abc", "[^a1]%", false},
                              {"", "%", true},          {"中文abc", "__abc", true},
                              {"abc", "abc ", false},   {"abc ", "abc", true},
                              {"abc", "%", true},       {"aXbXc", "a%b%c", true},
                              {"ab", "a%b%c", false},   {"a]", "a[]]", true},
                              {"a-", "a[x-]", true},    {"[x]", "[[]x]", true},
                              {"abc", "[", false},      {"aaaaaaaaab", "%a%a%a%a%c", false}};
    for (const LikeCase& one : cases)
        EXPECT_EQ(like(one.text, one.pattern, std::nullopt), one.matches)
            << one.text << " LIKE " << one.pattern;
}

TEST(Like, the_escape_character_makes_the_next_one_literal) {
    EXPECT_TRUE(like("a%c", "%!%%", U'!'));
    EXPECT_FALSE(like("abc", "%!%%", U'!'));
    EXPECT_FALSE(like("abc", "ABC", std::nullopt, true));
}

TEST(Like, patindex_gives_the_first_place) {
    EXPECT_EQ(patindex("%[0-9]%", "ab1"), 3);
    EXPECT_EQ(patindex("ab%", "ab1"), 1);
    EXPECT_EQ(patindex("%b", "abb"), 3);
    EXPECT_EQ(patindex("b%", "ab"), 0);
    EXPECT_EQ(patindex("%x%", "ab"), 0);
}

TEST(LetterCase, letters_of_any_alphabet_and_nothing_else) {
    EXPECT_EQ(upper_case("aB中éяｚ"), "AB中ÉЯＺ");
    EXPECT_EQ(lower_case("Ab中ÉЯＺ"), "ab中éяｚ");
    for (char32_t code = 1; code < 0x3000; ++code) {
        const char32_t lower = lower_case(code);
        EXPECT_TRUE(lower == code || upper_case(lower) == code) << std::hex << unsigned(code);
    }
}

} // namespace
} // namespace engines
