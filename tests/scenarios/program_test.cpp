// The program from outside: exit status, standard output, standard error.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

using nlohmann::json;

struct Program : testing::Test {
    ProgramRun make_books() {
        return run_program({"new", books, "--company", "测试公司", "--start", "2024-03"});
    }
    TemporaryFolder folder;
    std::string books = folder.file("books.zf");
};

std::vector<json> answers_in(const std::string& out) {
    std::istringstream lines(out);
    std::vector<json> answers;
    for (std::string line; std::getline(lines, line);) answers.push_back(json::parse(line));
    return answers;
}

} // namespace

TEST_F(Program, drive_answers_each_line_and_ends_with_status_0) {
    ASSERT_EQ(make_books().status, 0);
    const ProgramRun run = run_program({"drive", books, "--user", "admin", "--today", "2024-03-05"},
                                       "{\"op\":\"open\",\"code\":661}\n"
                                       "{\"op\":\"click\",\"control\":\"Act_Add\"}\n"
                                       "{\"op\":\"get\",\"control\":\"BDATE\"}\n"
                                       "nonsense\n"
                                       "{\"op\":\"query\",\"sql\":\"SELECT PARAM FROM D6600 "
                                       "WHERE ID=2\"}\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto answers = answers_in(run.out);
    ASSERT_EQ(answers.size(), 5U) << run.out;
    EXPECT_EQ(answers[0]["active"], "TF6661");
    EXPECT_EQ(answers[1]["active"], "TF6661_1");
    EXPECT_EQ(answers[2]["value"], "2024-03-05");
    EXPECT_EQ(answers[3]["ok"], false);
    EXPECT_EQ(answers[4]["rows"], json::parse(R"([["2024-03"]])"));
}

TEST_F(Program, books_that_are_missing_are_refused_with_status_1) {
    const ProgramRun run = run_program({"drive", books});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.errors.find(books), std::string::npos) << run.errors;
}

TEST_F(Program, books_that_exist_are_not_made_anew) {
    ASSERT_EQ(make_books().status, 0);
    EXPECT_EQ(make_books().status, 1);
}

TEST_F(Program, a_command_that_does_not_exist_ends_with_status_2) {
    EXPECT_EQ(run_program({"drive"}).status, 2);
    EXPECT_EQ(run_program({"drive", books, "--nonsense"}).status, 2);
}

TEST_F(Program, check_finds_nothing_in_fresh_books) {
    ASSERT_EQ(make_books().status, 0);
    const ProgramRun run = run_program({"check", books});
    EXPECT_EQ(run.status, 0) << run.out << run.errors;
}

} // namespace tests
