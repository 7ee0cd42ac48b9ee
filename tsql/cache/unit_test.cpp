// Where a batch may be cut.
#include "tsql/cache/unit.h"

#include "tsql/lexer/lexer.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

std::vector<std::string> pieces(const std::string& text) {
    const std::vector<Token> tokens = tokenize(text);
    std::vector<std::string> result;
    for (const Unit& unit : units_of(tokens)) {
        const std::uint32_t begin = tokens[unit.first].at.begin;
        result.push_back(text.substr(begin, tokens[unit.last - 1].at.end - begin));
    }
    return result;
}

using Pieces = std::vector<std::string>;

TEST(Units, a_batch_is_cut_at_its_semicolons_and_empty_pieces_fall_away) {
    EXPECT_EQ(pieces("DELETE A; ; DELETE B;;"), (Pieces{"DELETE A", "DELETE B"}));
}

TEST(Units, an_else_belongs_to_the_if_before_the_semicolon) {
    EXPECT_EQ(pieces("IF 1=1 DELETE A; ELSE DELETE B; DELETE C"),
              (Pieces{"IF 1=1 DELETE A; ELSE DELETE B", "DELETE C"}));
}

TEST(Units, blocks_and_cases_are_not_cut) {
    EXPECT_EQ(pieces("IF 1=1 BEGIN DELETE A; DELETE B END; DELETE C"),
              (Pieces{"IF 1=1 BEGIN DELETE A; DELETE B END", "DELETE C"}));
    EXPECT_EQ(pieces("SELECT CASE WHEN 1=1 THEN 1 END; DELETE C"),
              (Pieces{"SELECT CASE WHEN 1=1 THEN 1 END", "DELETE C"}));
}

TEST(Units, begin_tran_opens_no_block) {
    EXPECT_EQ(pieces("BEGIN TRAN; DELETE A; COMMIT"),
              (Pieces{"BEGIN TRAN", "DELETE A", "COMMIT"}));
}

TEST(Units, local_variables_and_routines_keep_a_text_whole) {
    EXPECT_EQ(pieces("DECLARE @a int; SET @a=1").size(), 1U);
    EXPECT_EQ(pieces("CREATE PROCEDURE P AS DELETE A; DELETE B").size(), 1U);
    EXPECT_EQ(pieces("CREATE OR ALTER VIEW V AS SELECT 1 AS A").size(), 1U);
}

} // namespace
} // namespace tsql
