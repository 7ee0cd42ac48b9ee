// zhangfang drive: login, today, the query window, and the module beside the program.
#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

class DriveCommand : public ::testing::Test {
protected:
    void make(const std::string& password) {
        ASSERT_EQ(run_program({"new", books_, "--company", "甲公司", "--start", "2024-03"}, "",
                              {{"ZHANGFANG_PASSWORD", password}})
                      .status,
                  0);
    }
    static std::vector<nlohmann::json> answers(const ProgramRun& run) {
        std::vector<nlohmann::json> all;
        std::istringstream lines(run.out);
        for (std::string line; std::getline(lines, line);)
            all.push_back(nlohmann::json::parse(line));
        return all;
    }

    static std::string open_entry() {
        return "{\"op\":\"open\",\"code\":661}\n{\"op\":\"click\",\"control\":\"Act_Add\"}\n";
    }
    // Two lines that balance, typed and saved.
    static std::string typed_voucher() {
        std::string requests;
        const auto type = [&](int row, const char* field, const char* value) {
            requests += nlohmann::json{{"op", "cell"}, {"control", "DBGridEh"}, {"row", row},
                                       {"field", field}, {"value", value}}
                            .dump() +
                        "\n";
        };
        for (const int row : {0, 1}) {
            type(row, "ZY", "存款");
            type(row, "KM_ID", "1001");
            type(row, row == 0 ? "J" : "D", "25.50");
        }
        return requests + "{\"op\":\"click\",\"control\":\"Act_Save\"}\n";
    }
    std::string stored_vouchers() const {
        const ProgramRun run = run_program({"sql", books_, "--jsonl"},
                                           "{\"sql\":\"SELECT COUNT(*) AS N FROM D6601\"}\n");
        return nlohmann::json::parse(run.out).at("rows").at(0).at(0).get<std::string>();
    }

    TemporaryFolder folder_;
    std::string books_ = folder_.file("a.zf");
};

} // namespace

TEST_F(DriveCommand, today_is_fixed_for_the_database_too) {
    make("");
    const ProgramRun run = run_program(
        {"drive", books_, "--today", "2024-03-17"},
        R"({"op":"query","sql":"SELECT CONVERT(varchar(10), GETDATE(), 120) AS A"})"
        "\n{\"op\":\"quit\"}\n");
    ASSERT_EQ(run.status, 0) << run.errors;
    const auto all = answers(run);
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0]["rows"], (nlohmann::json{{"2024-03-17"}})) << run.out;
}

TEST_F(DriveCommand, a_password_is_taken_from_the_environment_and_a_wrong_one_is_refused) {
    make("secret");
    const std::string quit = "{\"op\":\"quit\"}\n";
    EXPECT_EQ(run_program({"drive", books_}, quit, {{"ZHANGFANG_PASSWORD", "secret"}}).status, 0);
    const ProgramRun wrong =
        run_program({"drive", books_}, quit, {{"ZHANGFANG_PASSWORD", "Secret"}});
    EXPECT_EQ(wrong.status, 1);
    EXPECT_NE(wrong.errors.find("用户名或密码不对"), std::string::npos) << wrong.errors;
    EXPECT_EQ(run_program({"drive", books_}, quit).status, 1);
    EXPECT_EQ(run_program({"drive", books_, "--user", "nobody"}, quit).status, 1);
}

TEST_F(DriveCommand, together_everything_is_saved_by_quit_and_nothing_without_it) {
    make("");
    const std::string two_vouchers = typed_voucher() + typed_voucher();
    const auto type = [&](const std::string& requests) {
        return run_program({"drive", books_, "--today", "2024-03-05", "--together"}, requests);
    };
    const ProgramRun broken_off = type(open_entry() + two_vouchers);
    for (const auto& answer : answers(broken_off)) EXPECT_EQ(answer["ok"], true) << answer;
    EXPECT_EQ(broken_off.status, 1);
    EXPECT_NE(broken_off.errors.find("没有保存"), std::string::npos) << broken_off.errors;
    EXPECT_EQ(stored_vouchers(), "0");
    const ProgramRun whole = type(open_entry() + two_vouchers + "{\"op\":\"quit\"}\n");
    EXPECT_EQ(whole.status, 0) << whole.errors;
    EXPECT_EQ(stored_vouchers(), "2");
    EXPECT_EQ(run_program({"check", books_}).status, 0);
}

TEST_F(DriveCommand, alone_every_answered_save_stays_also_without_quit) {
    make("");
    EXPECT_EQ(run_program({"drive", books_, "--today", "2024-03-05"},
                          open_entry() + typed_voucher())
                  .status,
              0);
    EXPECT_EQ(stored_vouchers(), "1");
}

TEST_F(DriveCommand, a_program_without_its_module_says_so) {
    make("");
    const fs::path lonely = folder_.path() / "lonely";
    fs::create_directory(lonely);
    fs::copy(fs::path(ZF_BINARY_DIR) / "zhangfang", lonely);
    fs::copy(fs::path(ZF_BINARY_DIR) / "libzhangfang_host.so", lonely);
    const ProgramRun run = run_file((lonely / "zhangfang").string(), {"drive", books_});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("libQmx600.so"), std::string::npos) << run.errors;
}

} // namespace tests
