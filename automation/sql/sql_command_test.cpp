// Batches in, results out.
#include "automation/sql/sql_command.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

#include "engines/engine.h"

namespace automation {
namespace {

std::unique_ptr<engines::Session> empty_database() {
    engines::OpenOptions options;
    options.create = true;
    return engines::sqlite_engine().open(":memory:", options);
}

std::vector<nlohmann::json> answers_to(const std::string& lines) {
    const auto session = empty_database();
    std::istringstream in(lines);
    std::ostringstream out;
    run_sql_json_lines(*session, in, out);
    std::vector<nlohmann::json> answers;
    std::istringstream answered(out.str());
    for (std::string line; std::getline(answered, line);)
        answers.push_back(nlohmann::json::parse(line));
    return answers;
}

} // namespace

TEST(SqlJsonLines, a_query_answers_columns_and_rows_as_text_or_null) {
    const auto answers = answers_to(
        R"({"id": 7, "sql": "SELECT CAST(2.5 AS decimal(9,2)) AS A, NULL AS B, '现金' AS C"})");
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0]["id"], 7);
    EXPECT_EQ(answers[0]["columns"], (nlohmann::json{"A", "B", "C"}));
    EXPECT_EQ(answers[0]["rows"], (nlohmann::json{{"2.50", nullptr, "现金"}}));
    EXPECT_FALSE(answers[0].contains("sets"));
    EXPECT_FALSE(answers[0].contains("error"));
}

TEST(SqlJsonLines, the_connection_lasts_and_writes_are_counted) {
    const auto answers = answers_to("{\"id\":\"a\",\"sql\":\"CREATE TABLE T (A int)\"}\n"
                                    "{\"id\":\"b\",\"sql\":\"INSERT INTO T VALUES (1),(2)\"}\n"
                                    "{\"id\":\"c\",\"sql\":\"SELECT SUM(A) AS S FROM T\"}\n");
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_FALSE(answers[1].contains("columns"));
    EXPECT_EQ(answers[1]["affected"], 2);
    EXPECT_EQ(answers[2]["rows"], (nlohmann::json{{"3"}}));
}

TEST(SqlJsonLines, several_result_sets_are_told_besides_the_first) {
    const auto answers = answers_to(R"({"id":1,"sql":"SELECT 1 AS A; SELECT 2 AS B"})");
    EXPECT_EQ(answers[0]["columns"], nlohmann::json{"A"});
    ASSERT_EQ(answers[0]["sets"].size(), 2u);
    EXPECT_EQ(answers[0]["sets"][1]["rows"], (nlohmann::json{{"2"}}));
}

TEST(SqlJsonLines, an_error_carries_number_line_and_column) {
    const auto answers = answers_to(R"({"id":1,"sql":"SELECT 1\nSELECT X FROM NOWHERE"})");
    const auto& error = answers[0].at("error");
    EXPECT_EQ(error["number"], 208);
    EXPECT_EQ(error["line"], 2);
    EXPECT_GT(error["column"], 0);
    EXPECT_FALSE(error["text"].get<std::string>().empty());
}

TEST(SqlJsonLines, a_line_that_is_no_request_is_answered_and_the_next_one_runs) {
    const auto answers = answers_to("nonsense\n{\"id\":2}\n{\"id\":3,\"sql\":\"SELECT 1\"}\n");
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_TRUE(answers[0].contains("error"));
    EXPECT_EQ(answers[1]["id"], 2);
    EXPECT_TRUE(answers[1].contains("error"));
    EXPECT_EQ(answers[2]["rows"], (nlohmann::json{{"1"}}));
}

TEST(SqlCommand, a_failing_batch_is_told_and_the_batches_after_it_run) {
    const auto session = empty_database();
    std::istringstream in("SELECT X FROM NOWHERE\nGO\nSELECT 5 AS FIVE\n");
    std::ostringstream out, errors;
    EXPECT_FALSE(run_sql(*session, in, out, errors));
    EXPECT_NE(errors.str().find("208"), std::string::npos);
    EXPECT_NE(out.str().find("FIVE"), std::string::npos);
}

} // namespace automation
