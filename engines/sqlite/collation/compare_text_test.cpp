// What the collation takes as equal, and what comes first.
#include "engines/sqlite/collation/compare_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engines/sqlite/collation/text_order.h"
#include "engines/sqlite/text/utf8.h"

namespace engines {
namespace {

TEST(CompareText, case_width_and_trailing_blanks_do_not_count) {
    EXPECT_EQ(compare_text("abc", "ABC"), 0);
    EXPECT_EQ(compare_text("abc", "abc   "), 0);
    EXPECT_EQ(compare_text("", "   "), 0);
    EXPECT_EQ(compare_text("ａ１，", "A1,"), 0);
    EXPECT_EQ(compare_text("a　", "a"), 0);
    EXPECT_NE(compare_text("abc", " abc"), 0);
    EXPECT_NE(compare_text("e", "é"), 0);
}

TEST(CompareText, digits_then_letters_then_chinese_by_pinyin) {
    const std::vector<std::string> order{"",   "10", "9",  "A",  "a1", "b",  "C",
                                         "阿", "付", "记", "收", "现", "银", "转"};
    for (std::size_t i = 0; i + 1 < order.size(); ++i) {
        EXPECT_LT(compare_text(order[i], order[i + 1]), 0) << order[i];
        EXPECT_GT(compare_text(order[i + 1], order[i]), 0) << order[i];
    }
}

TEST(CompareText, the_beginning_of_a_text_comes_before_the_text) {
    EXPECT_LT(compare_text("1001", "100101"), 0);
    EXPECT_LT(compare_text("现", "现金"), 0);
}

TEST(CompareText, characters_with_a_common_first_byte_are_told_apart) {
    EXPECT_NE(compare_text("中", "丮"), 0);
    EXPECT_NE(compare_text("\xF0\x9F\x98\x80", "\xF0\x9F\x98\x81"), 0);
    EXPECT_GT(compare_text("\xF0\x9F\x98\x80", "转"), 0);
}

TEST(CompareText, it_is_an_order_on_all_characters) {
    // Each character is compared with its neighbour both ways; the order is total when the signs
    // are opposite and equality comes from the rank alone.
    for (char32_t code = 1; code + 1 < 0xD800; ++code) {
        const bool equal = text_order[code] == text_order[code + 1];
        EXPECT_EQ(equal, rank_of(code) == rank_of(code + 1));
        EXPECT_FALSE(equal && code >= 0x4E00 && code < 0x9FFF) << std::hex << unsigned(code);
    }
}

TEST(CompareText, a_blank_inside_counts_and_a_blank_at_the_end_does_not) {
    EXPECT_EQ(compare_text("ab   ", "ab"), 0);
    EXPECT_NE(compare_text("a b", "ab"), 0);
    EXPECT_GT(compare_text("ab  c", "ab"), 0);
    EXPECT_LT(compare_text("ab    ", "ab\x01"), 0);
    EXPECT_EQ(compare_text("12345678   ", "12345678\xE3\x80\x80"), 0);
}

// Whatever way a comparison takes, it must agree with comparing rank by rank.
TEST(CompareText, agrees_with_a_comparison_character_by_character) {
    const std::vector<std::string> parts{"a",  "A",  "ａ", "b", " ", "　",
                                         "中", "丮", "1",  "é", "\t"};
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < 400; ++i) {
        std::string text;
        for (std::size_t n = i * 7919 + 13; n > 0; n /= parts.size())
            text += parts[n % parts.size()];
        texts.push_back(text);
    }
    const auto ranks = [](const std::string& text) {
        std::vector<std::uint32_t> all;
        for (std::size_t place = 0; place < text.size();)
            all.push_back(rank_of(next_character(text, place)));
        while (!all.empty() && all.back() == rank_of(' ')) all.pop_back();
        return all;
    };
    for (const std::string& left : texts) {
        for (const std::string& right : texts) {
            const auto a = ranks(left);
            const auto b = ranks(right);
            const int expected = a < b ? -1 : a > b ? 1 : 0;
            ASSERT_EQ(compare_text(left, right), expected) << left << "|" << right;
        }
    }
}

TEST(CompareText, damaged_text_is_compared_too) {
    EXPECT_NE(compare_text("\xFF", "a"), 0);
    EXPECT_EQ(compare_text("\xE4\xB8", "\xE4\xB8"), 0);
    EXPECT_NE(compare_text("\xE4\xB8", "\xE4\xB9"), 0);
}

TEST(CompareText, an_exact_comparison_tells_case_apart) {
    EXPECT_NE(compare_text_exactly("a", "A"), 0);
    EXPECT_EQ(compare_text_exactly("a ", "a"), 0);
}

} // namespace
} // namespace engines
