// zhangfang sql.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

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

TEST(SqlCommand, changes_of_books_stand_in_the_operation_log) {
    const TemporaryFolder folder;
    const std::string books = folder.file("a.zf");
    const ProgramRun made =
        run_program({"new", books, "--company", "甲"}, "", {{"ZHANGFANG_PASSWORD", ""}});
    ASSERT_EQ(made.status, 0) << made.errors;
    const std::string last = "SELECT TOP 1 LEFT(USER_ID,1)+FUNCTION_CODE+OPERATION FROM SYS_LOG "
                             "ORDER BY ID DESC\n";
    EXPECT_EQ(run_program({"sql", books}, last).out.find("(sqlSql"), std::string::npos);
    EXPECT_EQ(run_program({"sql", books}, "UPDATE D6801 SET PYM='X' WHERE KM_ID='1001'\n").status,
              0);
    EXPECT_NE(run_program({"sql", books}, last).out.find("(sqlSql"), std::string::npos);
    const ProgramRun check = run_program({"check", books});
    EXPECT_EQ(check.status, 0) << check.out;
}

} // namespace tests
