// zhangfang sql.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/program.h"

namespace tests {

TEST(SqlCommand, batches_go_to_an_empty_database_and_print_tables) {
    const ProgramRun run = run_program({"sql", ":memory:"},
                                       "CREATE TABLE T (A int, B nvarchar(5))\nGO\n"
                                       "INSERT INTO T VALUES (1, '现金')\nGO\n"
                                       "SELECT * FROM T\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_NE(run.out.find("现金"), std::string::npos) << run.out;
}

TEST(SqlCommand, a_failing_batch_ends_with_one_and_names_the_place) {
    const ProgramRun run = run_program({"sql", ":memory:"}, "SELECT 1\nSELECT FROM\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("第 2 行"), std::string::npos) << run.errors;
}

TEST(SqlCommand, json_lines_are_answered_one_for_one) {
    const ProgramRun run = run_program({"sql", ":memory:", "--jsonl"},
                                "{\"id\":1,\"sql\":\"SELECT CAST(1 AS decimal(5,2)) AS A\"}\n"
                                "{\"id\":2,\"sql\":\"SELECT 1/0 AS A\"}\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const std::size_t end = run.out.find('\n');
    const auto first = nlohmann::json::parse(run.out.substr(0, end));
    const auto second = nlohmann::json::parse(run.out.substr(end + 1));
    EXPECT_EQ(first, (nlohmann::json{{"id", 1}, {"columns", {"A"}}, {"rows", {{"1.00"}}},
                                     {"affected", first["affected"]}}));
    EXPECT_EQ(second["error"]["number"], 8134);
}

} // namespace tests
