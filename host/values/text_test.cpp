// Characters are counted as people count them.
#include "host/values/text.h"

namespace host {

TEST(Text, a_character_is_a_code_point) {
    EXPECT_EQ(character_count("凭证A"), 3U);
    EXPECT_EQ(character_count("😀é"), 2U);
    EXPECT_EQ(character_count(""), 0U);
    EXPECT_EQ(first_characters("凭证字", 2), "凭证");
    EXPECT_EQ(first_characters("ab", 5), "ab");
}

TEST(Text, decoding_and_encoding_give_the_text_back) {
    for (const char* text : {"", "abc", "银行存款", "😀 emoji", "é", "\xEF\xBB\xBF"})
        EXPECT_EQ(to_utf8(to_characters(text)), text);
}

TEST(Text, what_must_not_be_typed_is_found) {
    EXPECT_FALSE(first_unprintable("银行 存款;'\"😀"));
    EXPECT_EQ(first_unprintable("ab\ncd"), 3U);
    EXPECT_FALSE(first_unprintable("ab\ncd", true));
    EXPECT_EQ(first_unprintable(std::string_view("a\0b", 3)), 2U);
    EXPECT_EQ(first_unprintable("中\xC0\x80"), 2U);     // not the shortest form
    EXPECT_EQ(first_unprintable("\xED\xA0\x80"), 1U);   // half of a surrogate pair
    EXPECT_EQ(first_unprintable("中文\xE4\xB8"), 3U);   // cut off
    EXPECT_EQ(first_unprintable("\xF5\x80\x80\x80"), 1U);
}

TEST(Text, latin_letters_compare_without_regard_to_case) {
    EXPECT_TRUE(same_text("Km_Id", "KM_ID"));
    EXPECT_FALSE(same_text("KM_ID", "KM_ID2"));
    EXPECT_TRUE(contains_text("abcDEF", "Cde"));
    EXPECT_TRUE(starts_with_text("PZZ_H", "pzz"));
    EXPECT_FALSE(starts_with_text("PZ", "pzz"));
}

TEST(Text, blanks_are_trimmed_at_the_ends_only) {
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(replaced("a%Sb%S", "%S", "x"), "axbx");
}

} // namespace host
