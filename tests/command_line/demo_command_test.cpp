// The demonstration books, from the command to the printed trial balance.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

TEST(DemoCommand, the_books_are_sound_hold_every_state_of_a_voucher_and_balance) {
    TemporaryFolder folder;
    const std::string books = folder.file("demo.zf");
    const ProgramRun made = run_program({"demo", books});
    ASSERT_EQ(made.status, 0) << made.errors;
    EXPECT_EQ(folder.files(), 1u);
    EXPECT_EQ(run_program({"check", books}).status, 0);

    const ProgramRun counts = run_program({"sql", books, "--jsonl"},
                                   R"({"id":1,"sql":"SELECT COUNT(*), SUM(T), )"
                                   R"(SUM(CAST(D AS int)) FROM D6601"})");
    const auto rows = nlohmann::json::parse(counts.out)["rows"];
    EXPECT_EQ(rows, (nlohmann::json{{"62", "55", "45"}})) << counts.out;

    const ProgramRun balance = run_program({"trial-balance", books, "--level", "2"});
    EXPECT_EQ(balance.status, 0) << balance.errors;
    EXPECT_NE(balance.out.find("银行存款-工商银行基本户"), std::string::npos) << balance.out;
    EXPECT_NE(balance.out.find("\n试算平衡\n"), std::string::npos) << balance.out;
}

TEST(DemoCommand, existing_books_are_refused) {
    TemporaryFolder folder;
    ASSERT_EQ(run_program({"new", folder.file("a.zf"), "--company", "x"}).status, 0);
    EXPECT_EQ(run_program({"demo", folder.file("a.zf")}).status, 1);
}

} // namespace tests
