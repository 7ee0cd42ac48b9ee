// new, check, backup, restore, and the ways of calling the program wrongly.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

class BooksCommands : public ::testing::Test {
protected:
    ProgramRun make(const std::string& name) {
        return run_program({"new", folder_.file(name), "--company", "甲公司", "--start", "2024-03"});
    }
    std::string value(const std::string& books, const std::string& select) {
        return run_program({"sql", books}, select).out;
    }

    TemporaryFolder folder_;
    std::string books_ = folder_.file("a.zf");
};

} // namespace

TEST_F(BooksCommands, wrong_usage_ends_with_two_and_says_so_on_standard_error) {
    // a command line
    const std::vector<std::string> rows[] = {
        {"new"},
        {"new", books_},
        {"new", books_, "--company"},
        {"new", books_, "--company", "x", "--start", "2024-13"},
        {"new", books_, "--company", "x", "--start", "2024-00"},
        {"new", books_, "--company", "x", "--start", "2024-3"},
        {"new", books_, "--company", "x", "--scheme", "4"},
        {"new", books_, "--company", "x", "--password", "secret"},
        {"drive"},
        {"drive", books_, "--today", "2024-02-30"},
        {"drive", books_, "--today", "yesterday"},
        {"sql"},
        {"check"},
        {"backup", books_},
        {"restore", books_},
    };
    for (const auto& arguments : rows) {
        const ProgramRun run = run_program(arguments);
        EXPECT_EQ(run.status, 2) << arguments.back();
        EXPECT_EQ(run.out, "") << arguments.back();
        EXPECT_NE(run.errors.find("用法"), std::string::npos) << run.errors;
    }
    EXPECT_EQ(folder_.files(), 0u);
}

TEST_F(BooksCommands, help_is_a_result) {
    const ProgramRun run = run_program({"--help"});
    EXPECT_EQ(run.status, 0);
    for (const char* command : {"new", "demo", "drive", "sql", "check", "backup", "restore"})
        EXPECT_NE(run.out.find(command), std::string::npos) << command;
}

TEST_F(BooksCommands, new_books_are_sound_and_results_stay_off_standard_output) {
    const ProgramRun run = make("a.zf");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.out, "");
    const ProgramRun check = run_program({"check", books_});
    EXPECT_EQ(check.status, 0) << check.out;
    EXPECT_EQ(check.out, "");
    EXPECT_NE(value(books_, "SELECT PARAM FROM D6600 ORDER BY ID").find("2024-03"),
              std::string::npos);
}

TEST_F(BooksCommands, a_start_opens_the_books_with_balances_of_nothing) {
    ASSERT_EQ(run_program({"new", books_, "--company", "甲公司", "--start", "2024-03", "--scheme",
                           "2", "--mode", "strict"},
                          "", {{"ZHANGFANG_PASSWORD", "secret"}})
                  .status,
              0);
    const auto one = [&](const std::string& select) {
        std::string text = value(books_, select);
        text = text.substr(text.find_first_of("0123456789"));
        return text.substr(0, text.find_first_of(" \n\r"));
    };
    const std::string accounts = one("SELECT COUNT(*) FROM D6801");
    // period and kind of the rows that the opening makes, one an account
    for (const char* rows : {"QJ='2024-00' AND INX=0", "QJ='2024-02' AND INX=1",
                             "QJ='2024-03' AND INX=0", "QJ='2024-03' AND INX=1"})
        EXPECT_EQ(one("SELECT COUNT(*) FROM D6602 WHERE J=0 AND D=0 AND " + std::string(rows)),
                  accounts)
            << rows;
    EXPECT_EQ(one("SELECT COUNT(*) FROM D6602"), std::to_string(4 * std::stoi(accounts)));
    EXPECT_EQ(one("SELECT PARAM FROM D6600 WHERE ID=3"), "2");
    EXPECT_EQ(one("SELECT COUNT(*) FROM D6600 WHERE PARAM='2024-03'"), "2");
    EXPECT_EQ(one("SELECT COUNT(*) FROM SYS_LOG WHERE FUNCTION_CODE='699'"), "1");
    EXPECT_EQ(run_program({"check", books_}).status, 0);
    EXPECT_EQ(folder_.files(), 1u);
}

TEST_F(BooksCommands, new_refuses_books_that_exist_and_leaves_them_as_they_are) {
    ASSERT_EQ(make("a.zf").status, 0);
    run_program({"sql", books_}, "UPDATE SYS_SETTING SET VALUE = '乙' WHERE NAME = 'company'");
    const ProgramRun again = make("a.zf");
    EXPECT_EQ(again.status, 1);
    EXPECT_NE(again.errors.find("已经存在"), std::string::npos) << again.errors;
    EXPECT_NE(value(books_, "SELECT VALUE FROM SYS_SETTING WHERE NAME='company'").find("乙"),
              std::string::npos);
}

TEST_F(BooksCommands, check_tells_each_finding_and_ends_with_one) {
    ASSERT_EQ(make("a.zf").status, 0);
    run_program({"sql", books_}, "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES "
                                 "('x','x','1001','1.00','0.00',0)");
    const ProgramRun check = run_program({"check", books_});
    EXPECT_EQ(check.status, 1);
    EXPECT_NE(check.out.find("凭证借贷不平: x: 借方 1.00 贷方 0.00"), std::string::npos)
        << check.out;
    EXPECT_NE(check.out.find("分录没有凭证头: x"), std::string::npos) << check.out;
}

TEST_F(BooksCommands, check_compares_the_log_with_a_seal_and_keeps_hints_off_the_findings) {
    ASSERT_EQ(make("a.zf").status, 0);
    const ProgramRun first = run_program({"check", books_});
    const std::string label = "操作日志封条: ";
    const std::size_t at = first.errors.find(label);
    ASSERT_NE(at, std::string::npos) << first.errors;
    const std::string seal =
        first.errors.substr(at + label.size(), first.errors.find('\n', at) - at - label.size());
    EXPECT_EQ(run_program({"check", books_, "--seal", seal}).status, 0) << seal;
    std::string other = seal;
    other.back() = other.back() == '0' ? '1' : '0';
    const ProgramRun broken = run_program({"check", books_, "--seal", other});
    EXPECT_EQ(broken.status, 1);
    EXPECT_TRUE(broken.out.starts_with("操作日志: 封条 " + other + " 对不上")) << broken.out;
    EXPECT_EQ(run_program({"check", books_, "--seal", "x"}).status, 1);
    // A voucher dated outside its period may be, and is only told.
    run_program({"sql", books_},
                "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, BDATE, USER_ID) VALUES "
                "('2024-03记001','2024-03','记',1,'2024-05-01','admin');"
                "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES "
                "('2024-03记001','x','1001',1,0,0),('2024-03记001','x','3101',0,1,1)");
    const ProgramRun hinted = run_program({"check", books_});
    EXPECT_EQ(hinted.status, 0) << hinted.out;
    EXPECT_EQ(hinted.out, "");
    EXPECT_NE(hinted.errors.find("提示: 凭证状态不对: 2024-03记001: 凭证日期 2024-05-01"),
              std::string::npos)
        << hinted.errors;
}

TEST_F(BooksCommands, backup_and_restore_bring_the_books_back) {
    ASSERT_EQ(make("a.zf").status, 0);
    EXPECT_EQ(run_program({"backup", books_, folder_.file("copy")}).status, 0);
    fs::remove(books_);
    EXPECT_EQ(run_program({"restore", folder_.file("copy"), books_}).status, 0);
    EXPECT_EQ(run_program({"check", books_}).status, 0);
    EXPECT_NE(value(books_, "SELECT BATCH FROM SYS_LOG_TEXT").find("恢复自 " +
                                                                   folder_.file("copy")),
              std::string::npos);
}

TEST_F(BooksCommands, a_foreign_a_missing_and_a_server_name_are_refused_by_every_command) {
    std::ofstream(folder_.file("letter")) << std::string(5000, 'x');
    for (const std::string& name :
         {folder_.file("letter"), folder_.file("none"), std::string("postgres://u@h/d")})
        for (const char* command : {"sql", "check", "drive"}) {
            const ProgramRun run = run_program({command, name});
            EXPECT_EQ(run.status, 1) << command << " " << name;
            EXPECT_EQ(run.out, "");
            EXPECT_FALSE(run.errors.empty());
        }
    EXPECT_EQ(folder_.files(), 1u);
}

TEST_F(BooksCommands, books_without_the_right_to_write_say_so_and_stay_as_they_are) {
    ASSERT_EQ(make("a.zf").status, 0);
    const auto content = [this] {
        std::ifstream file(books_, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string before = content();
    struct Attempt {
        fs::perms permissions;
        const char* told;
    };
    const Attempt attempts[] = {{fs::perms::owner_read, "帐套只能读取,不能写入"},
                                {fs::perms::none, "请检查路径和权限"}};
    for (const Attempt& attempt : attempts) {
        fs::permissions(books_, attempt.permissions);
        for (const char* command : {"sql", "check", "drive"}) {
            const ProgramRun run =
                run_program_heeding_permissions({command, books_}, "DELETE FROM D6803");
            EXPECT_EQ(run.status, 1) << command;
            EXPECT_EQ(run.out, "") << command;
            EXPECT_NE(run.errors.find(attempt.told), std::string::npos) << run.errors;
        }
    }
    fs::permissions(books_, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(content(), before);
}

TEST_F(BooksCommands, the_desktop_without_a_display_is_refused_with_a_hint) {
    ASSERT_EQ(make("a.zf").status, 0);
    const ProgramRun run = run_program({books_});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("drive"), std::string::npos) << run.errors;
}

} // namespace tests
