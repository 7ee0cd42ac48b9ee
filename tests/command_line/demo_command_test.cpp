// The demonstration books, from the command to the printed trial balance.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

nlohmann::json told(const char* rows) { return nlohmann::json::parse(rows); }

// Made once: a year is typed in.
class DemoBooks : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        made_ = run_program({"demo", books()});
    }
    static void TearDownTestSuite() { folder_.reset(); }

    void SetUp() override { ASSERT_EQ(made_.status, 0) << made_.errors; }

    static std::string books() { return folder_->file("demo.zf"); }

    static nlohmann::json rows(const std::string& query) {
        const nlohmann::json batch{{"id", 1}, {"sql", query}};
        const ProgramRun run = run_program({"sql", books(), "--jsonl"}, batch.dump());
        return nlohmann::json::parse(run.out)["rows"];
    }

    static std::unique_ptr<TemporaryFolder> folder_;
    static ProgramRun made_;
};

std::unique_ptr<TemporaryFolder> DemoBooks::folder_;
ProgramRun DemoBooks::made_;

TEST_F(DemoBooks, are_sound_and_leave_nothing_beside_them) {
    const ProgramRun check = run_program({"check", books()});
    EXPECT_EQ(check.status, 0) << check.out;
    EXPECT_EQ(folder_->files(), 1u);
}

TEST_F(DemoBooks, hold_a_closed_year_and_an_open_month_with_every_state_of_a_voucher) {
    EXPECT_EQ(rows("SELECT PARAM FROM D6600 WHERE ID IN (1,2) ORDER BY ID"),
              told(R"([["2023-01"],["2024-01"]])"));
    EXPECT_EQ(rows("SELECT COUNT(DISTINCT PZQJ) FROM D6601"), told(R"([["13"]])"));
    EXPECT_EQ(rows("SELECT COUNT(*) FROM D6601 WHERE PZQJ < '2024-01' AND (T = 0 OR D = 0)"),
              told(R"([["0"]])"));
    EXPECT_EQ(rows("SELECT DISTINCT T, D FROM D6601 WHERE PZQJ = '2024-01' ORDER BY T, D"),
              told(R"([["0","0"],["1","0"],["1","1"]])"));
}

TEST_F(DemoBooks, carry_every_month_forward_and_end_the_year_without_a_profit_to_distribute) {
    EXPECT_EQ(rows("SELECT COUNT(DISTINCT PZQJ) FROM D6601 WHERE T_SY = 1"),
              told(R"([["12"]])"));
    EXPECT_EQ(rows("SELECT COUNT(*) FROM D6602 B INNER JOIN D6801 A ON A.KM_ID = B.KM_ID WHERE "
                   "B.INX = 1 AND B.QJ < '2024-01' AND A.KM_FL = 5 AND (B.J <> 0 OR B.D <> 0)"),
              told(R"([["0"]])"));
    EXPECT_EQ(rows("SELECT J, D FROM D6602 WHERE KM_ID = '3131' AND INX = 1 AND QJ = '2023-12'"),
              told(R"([["0.00","0.00"]])"));
}

TEST_F(DemoBooks, allocate_to_cash_flow_items_just_what_the_money_of_the_year_changed_by) {
    const nlohmann::json change = rows(
        "SELECT SUM(CASE QJ WHEN '2023-12' THEN J - D ELSE D - J END) FROM D6602 WHERE INX = 1 AND "
        "QJ IN ('2022-12', '2023-12') AND KM_ID IN ('1001', '1002', '1009')");
    EXPECT_EQ(rows("SELECT SUM(B.J - B.D) FROM D6601B B INNER JOIN D6601 H ON H.NOID = B.NOID "
                   "WHERE H.PZQJ < '2024-01'"),
              change);
}

// Movements less the carried part, whose sides stand swapped, are what the vouchers earned.
TEST_F(DemoBooks, know_the_result_of_a_posted_month_from_its_balances_as_from_its_vouchers) {
    const nlohmann::json by_vouchers =
        rows("SELECT H.PZQJ, SUM(A.D - A.J) FROM D6601A A INNER JOIN D6601 H ON A.NOID = H.NOID "
             "INNER JOIN D6801 K ON K.KM_ID = A.KM_ID WHERE K.KM_FL = 5 AND H.T_SY = 0 AND "
             "H.PZQJ < '2024-01' GROUP BY H.PZQJ ORDER BY H.PZQJ");
    EXPECT_EQ(by_vouchers.size(), 12u);
    EXPECT_EQ(rows("SELECT B.QJ, SUM(B.D - B.SY_J - B.J + B.SY_D) FROM D6602 B INNER JOIN D6801 K "
                   "ON K.KM_ID = B.KM_ID WHERE K.KM_FL = 5 AND K.KM_J = 1 AND B.INX = 0 AND "
                   "B.QJ >= '2023-01' AND B.QJ < '2024-01' GROUP BY B.QJ ORDER BY B.QJ"),
              by_vouchers);
}

// Assets equal debts and capital; the cash flow statement ends with what cash changed by; the
// income statement ends with the profit that 3131 was closed with.
TEST_F(DemoBooks, have_the_statements_of_the_year_and_they_agree_with_the_accounts) {
    EXPECT_EQ(rows("SELECT COUNT(*) FROM D6830 WHERE G = 1 AND A2 = '67' AND A3 = B3 AND A4 = B4 "
                   "AND CAST(A4 AS decimal(18,2)) > 0"),
              told(R"([["1"]])"));
    EXPECT_EQ(rows("SELECT CAST(A3 AS decimal(18,2)) FROM D6831 WHERE A2 = '56'"),
              rows("SELECT CAST(A4 AS decimal(18,2)) - CAST(A3 AS decimal(18,2)) FROM D6830 "
                   "WHERE G = 1 AND A2 = '1'"));
    EXPECT_EQ(rows("SELECT CAST(A4 AS decimal(18,2)) FROM D6832 WHERE G = 1 AND A2 = '30'"),
              rows("SELECT SUM(A.J) FROM D6601A A INNER JOIN D6601 H ON H.NOID = A.NOID WHERE "
                   "H.PZQJ = '2023-12' AND A.KM_ID = '3131' AND A.ZY = '结转本年利润'"));
}

TEST_F(DemoBooks, have_templates_to_begin_vouchers_from) {
    EXPECT_EQ(rows("SELECT COUNT(DISTINCT NOID) FROM D6601M"), told(R"([["4"]])"));
}

// The day on which a voucher was audited, and the log of who did what, lie in its month.
TEST_F(DemoBooks, were_worked_on_in_the_months_they_tell_of) {
    EXPECT_EQ(rows("SELECT COUNT(*) FROM D6601 WHERE T = 1 AND "
                   "CONVERT(nvarchar(7), SDATE, 120) <> PZQJ"),
              told(R"([["0"]])"));
}

TEST_F(DemoBooks, print_the_trial_balance_of_the_open_month) {
    const ProgramRun balance = run_program({"trial-balance", books(), "--level", "2"});
    EXPECT_EQ(balance.status, 0) << balance.errors;
    EXPECT_NE(balance.out.find("2024-01"), std::string::npos) << balance.out;
    EXPECT_NE(balance.out.find("银行存款-工商银行基本户"), std::string::npos) << balance.out;
    EXPECT_NE(balance.out.find("\n试算平衡\n"), std::string::npos) << balance.out;
}

} // namespace

TEST(DemoCommand, existing_books_are_refused) {
    TemporaryFolder folder;
    ASSERT_EQ(run_program({"new", folder.file("a.zf"), "--company", "x"}).status, 0);
    EXPECT_EQ(run_program({"demo", folder.file("a.zf")}).status, 1);
}

} // namespace tests
