// Where tokens begin and end, and what is no token.
#include "tsql/lexer/lexer.h"

#include "tsql/source/diagnostic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tsql {
namespace {

using testing::ElementsAre;

std::vector<std::string> values(std::string_view batch) {
    std::vector<std::string> result;
    for (const Token& token : tokenize(batch))
        if (token.kind != TokenKind::End) result.push_back(value_of(token, batch));
    return result;
}

TokenKind kind_of(std::string_view batch) {
    return tokenize(batch).front().kind;
}

int refusal_of(std::string_view batch) {
    try {
        tokenize(batch);
    } catch (const Refusal& refusal) {
        return refusal.number;
    }
    return 0;
}

TEST(Lexer, comments_fall_away_and_nest) {
    EXPECT_THAT(values("SELECT /* one /* two */ */ ID -- three\n, K"),
                ElementsAre("SELECT", "ID", ",", "K"));
}

TEST(Lexer, a_text_keeps_what_looks_like_a_comment) {
    EXPECT_THAT(values("'--a' '/*' "), ElementsAre("--a", "/*"));
}

TEST(Lexer, doubled_marks_stand_for_one) {
    EXPECT_THAT(values("'It''s' '''' [a]]b] \"x\"\"y\" N'借''贷'"),
                ElementsAre("It's", "'", "a]b", "x\"y", "借'贷"));
}

TEST(Lexer, numbers_come_in_kinds) {
    EXPECT_EQ(kind_of("42"), TokenKind::Integer);
    EXPECT_EQ(kind_of("1."), TokenKind::Decimal);
    EXPECT_EQ(kind_of(".5"), TokenKind::Decimal);
    EXPECT_EQ(kind_of("1e3"), TokenKind::Float);
    EXPECT_EQ(kind_of("1.5E-3"), TokenKind::Float);
    EXPECT_EQ(kind_of("$12.50"), TokenKind::Money);
    EXPECT_EQ(kind_of("0x1F"), TokenKind::Binary);
    EXPECT_THAT(values("$12.50 ￥3 0x1F $"), ElementsAre("12.50", "3", "1F", "0"));
}

TEST(Lexer, names_may_be_chinese_and_hold_hash_dollar_and_at) {
    EXPECT_THAT(values("科目.名称 c#1 c$2 #t @v @@ROWCOUNT"),
                ElementsAre("科目", ".", "名称", "c#1", "c$2", "#t", "@v", "@@ROWCOUNT"));
    EXPECT_EQ(kind_of("@v"), TokenKind::Variable);
    EXPECT_EQ(kind_of("@@ERROR"), TokenKind::SystemVariable);
    EXPECT_EQ(kind_of("#t"), TokenKind::Word);
}

TEST(Lexer, an_ideographic_space_is_a_blank) {
    EXPECT_THAT(values("SELECT\u3000ID\u3000FROM\u00A0A"),
                ElementsAre("SELECT", "ID", "FROM", "A"));
}

TEST(Lexer, full_width_punctuation_is_part_of_no_name) {
    EXPECT_EQ(refusal_of("SELECT ID，K FROM A"), 102);
    EXPECT_EQ(refusal_of("SELECT ID FROM A；"), 102);
    EXPECT_THAT(values("SELECT ＩＤ１"), ElementsAre("SELECT", "ＩＤ１"));
    EXPECT_THAT(values("'，'"), ElementsAre("，"));
}

TEST(Lexer, signs_of_two_characters_are_one_token) {
    EXPECT_EQ(kind_of("<>"), TokenKind::NotEqual);
    EXPECT_EQ(kind_of("!="), TokenKind::NotEqual);
    EXPECT_EQ(kind_of("!<"), TokenKind::GreaterEqual);
    EXPECT_EQ(kind_of("!>"), TokenKind::LessEqual);
    EXPECT_EQ(kind_of("+="), TokenKind::PlusEqual);
}

TEST(Lexer, keywords_are_known_in_any_case) {
    EXPECT_EQ(tokenize("sElEcT").front().keyword, Keyword::Select);
    EXPECT_EQ(tokenize("[select]").front().keyword, Keyword::None);
    EXPECT_TRUE(is_reserved(Keyword::Select));
    EXPECT_FALSE(is_reserved(Keyword::Output));
}

TEST(Lexer, every_keyword_is_found_and_a_word_beside_it_is_none) {
    int count = 1; // None
#define TSQL_KEYWORD(id, word, reserved) ++count;
#include "tsql/lexer/keywords.inc"
#undef TSQL_KEYWORD
    for (int i = 1; i < count; ++i) {
        const auto keyword = static_cast<Keyword>(i);
        std::string word(spelling(keyword));
        EXPECT_EQ(keyword_of(word), keyword) << word;
        for (char& c : word) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
        EXPECT_EQ(keyword_of(word), keyword) << word;
        EXPECT_EQ(keyword_of(word + "_"), Keyword::None) << word;
        word[word.size() / 3] = '9';
        EXPECT_EQ(keyword_of(word), Keyword::None) << word;
    }
}

TEST(Lexer, literals_are_counted_in_the_order_of_the_text) {
    const std::vector<Token> tokens = tokenize("SELECT 1, K, 'x'");
    EXPECT_EQ(tokens[1].literal_ordinal, 0);
    EXPECT_EQ(tokens[3].literal_ordinal, -1);
    EXPECT_EQ(tokens[5].literal_ordinal, 1);
}

TEST(Lexer, what_is_no_token_is_refused_by_the_servers_number) {
    EXPECT_EQ(refusal_of("SELECT 'a"), 105);
    EXPECT_EQ(refusal_of("SELECT [a"), 105);
    EXPECT_EQ(refusal_of("SELECT /* a /* b */"), 113);
    EXPECT_EQ(refusal_of("SELECT []"), 1038);
    EXPECT_EQ(refusal_of("SELECT {"), 102);
    EXPECT_EQ(refusal_of(std::string_view("SELECT \0 1", 10)), 102);
    EXPECT_EQ(refusal_of("SELECT '\xC3\x28'"), 102);
    EXPECT_EQ(refusal_of("SELECT " + std::string(129, 'a')), 103);
    EXPECT_EQ(refusal_of("SELECT " + std::string(128, 'a')), 0);
}

} // namespace
} // namespace tsql
