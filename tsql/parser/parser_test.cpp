// The parser against files of texts and trees, and its bounds.
#include "tsql/parser/parser.h"

#include "tests/support/case_file.h"
#include "tsql/source/diagnostic.h"
#include "tsql/syntax/syntax.h"
#include "tsql/syntax/tree_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tsql {
namespace {

support::Outcome outcome_of(const std::string& text) {
    try {
        return {"tree", tree_text(parse(text))};
    } catch (const Refusal& refusal) {
        const Diagnostic seen = diagnose(text, refusal);
        const std::string shown = seen.text();
        const std::size_t blank = shown.find(' ');
        return {"refused", shown.substr(0, blank) + " (" + std::to_string(seen.number) + ")" +
                               shown.substr(blank)};
    }
}

int refusal_of(const std::string& text) {
    try {
        parse(text);
    } catch (const Refusal& refusal) {
        return refusal.number;
    }
    return 0;
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) result += text;
    return result;
}

TEST(Parser, reads_every_text_of_the_case_files_as_written_there) {
    support::check_case_files(
        support::files_below(std::string(ZF_SOURCE_DIR) + "/tsql/parser/cases", ".case"),
        {"tree", "refused"}, outcome_of);
}

TEST(Parser, a_text_of_blanks_comments_and_semicolons_holds_no_statement) {
    EXPECT_TRUE(parse("").statements.empty());
    EXPECT_TRUE(parse(" ; -- nothing\n ; /* at all */").statements.empty());
}

TEST(Parser, a_statement_knows_its_stretch_without_the_semicolon) {
    const std::string text = "UPDATE A SET V=1 ;  DELETE FROM A;";
    const Batch batch = parse(text);
    ASSERT_EQ(batch.statements.size(), 2U);
    EXPECT_EQ(batch.statements[0]->at.text(text), "UPDATE A SET V=1");
    EXPECT_EQ(batch.statements[1]->at.text(text), "DELETE FROM A");
}

TEST(Parser, literals_that_shape_the_tree_are_told_from_those_that_are_values) {
    // Ordinals: 7, 18, 2, 'x', 'y'.
    const Batch batch = parse("SELECT CAST(7 AS decimal(18,2)) AS 'x', 'y'");
    EXPECT_THAT(batch.shaping_literals, testing::ElementsAre(1, 2, 3));
}

TEST(Parser, deep_nesting_is_refused_and_never_a_crash) {
    for (const auto& [open, close] :
         std::vector<std::pair<std::string, std::string>>{{"(", ")"},
                                                          {"- ", ""},
                                                          {"~", ""},
                                                          {"CASE WHEN 1=1 THEN ", " END"},
                                                          {"ISNULL(", ",0)"},
                                                          {"(SELECT ", ")"}})
        EXPECT_EQ(refusal_of("SELECT " + repeated(open, 20000) + "1" + repeated(close, 20000)), 191)
            << open;
    EXPECT_EQ(refusal_of("SELECT 1 WHERE " + repeated("NOT ", 20000) + "1=1"), 191);
    EXPECT_EQ(refusal_of(repeated("BEGIN ", 20000) + "PRINT 1" + repeated(" END", 20000)), 191);
    EXPECT_EQ(refusal_of(repeated("IF 1=1 ", 20000) + "PRINT 1"), 191);
    EXPECT_EQ(refusal_of("SELECT * FROM " + repeated("(", 20000) + "A" + repeated(")", 20000)),
              191);
    EXPECT_EQ(refusal_of("SELECT * FROM A" + repeated(" JOIN A", 20000)), 191);
    EXPECT_EQ(refusal_of(repeated("(", 20000) + "SELECT 1" + repeated(")", 20000)), 191);
}

TEST(Parser, a_tall_tree_is_refused_though_no_parenthesis_opens) {
    EXPECT_EQ(refusal_of("SELECT 1" + repeated("+1", 500)), 0);
    EXPECT_EQ(refusal_of("SELECT 1" + repeated("+1", 20000)), 191);
    EXPECT_EQ(refusal_of("SELECT 'a'" + repeated(" COLLATE X", 20000)), 191);
    EXPECT_EQ(refusal_of("SELECT 1" + repeated(" UNION SELECT 1 UNION ALL SELECT 1", 20000)), 191);
}

TEST(Parser, long_lists_are_no_nesting) {
    EXPECT_EQ(refusal_of("SELECT 1 WHERE 1=1" + repeated(" OR 1=1", 20000)), 0);
    EXPECT_EQ(refusal_of("SELECT 1 WHERE 1 IN (1" + repeated(",1", 20000) + ")"), 0);
    EXPECT_EQ(refusal_of("SELECT 1" + repeated(" UNION ALL SELECT 1", 20000)), 0);
    EXPECT_EQ(refusal_of("INSERT INTO A VALUES (1)" + repeated(",(1)", 20000)), 0);
    EXPECT_EQ(refusal_of(repeated("DELETE FROM A;", 20000)), 0);
}

TEST(Parser, an_expression_alone_is_read_to_its_end) {
    EXPECT_EQ(tree_text(*parse_expression("getdate()+1")), "(+ (call getdate) 1)");
    EXPECT_EQ(tree_text(*parse_expression("A>0 AND B IS NULL")), "(and (> A 0) (is-null B))");
    EXPECT_THROW(parse_expression("1 2"), Refusal);
    EXPECT_THROW(parse_expression(""), Refusal);
}

} // namespace
} // namespace tsql
