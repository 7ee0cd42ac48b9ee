// Vouchers and the periods they lie in: what is damage, and what is only worth asking about.
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class CheckPeriods : public Ledger {
protected:
    CheckPeriods() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"550201", "30.00", "0.00"}, {"1001", "0.00", "30.00"}});
        post();
        close_period();
        voucher(1, {{"1001", "8.00", "0.00"}, {"3101", "0.00", "8.00"}});
        post();
    }
};

} // namespace

TEST_F(CheckPeriods, books_of_every_healthy_state_have_no_findings) {
    EXPECT_EQ(findings(), "") << "posted";
    EXPECT_EQ(hints(), "");
    unpost();
    EXPECT_EQ(findings(), "") << "unposted";
    post();
    close_period();
    EXPECT_EQ(findings(), "") << "closed";
    voucher(1, {{"1001", "0.00", "2.00"}, {"3101", "2.00", "0.00"}});
    EXPECT_EQ(findings(), "") << "audited";
    take_closing_back();
    take_closing_back();
    EXPECT_EQ(findings(), "") << "reopened";
    unpost();
    EXPECT_EQ(findings(), "") << "reopened and unposted";
    data_->execute("UPDATE D6600 SET PARAM='' WHERE (ID=2) or (id=1);",
                   {"668", "反结至建帐2024-03", "Edit"});
    EXPECT_EQ(findings(), "") << "not set up";
}

TEST_F(CheckPeriods, a_voucher_of_a_period_that_was_never_open) {
    damage("UPDATE D6601 SET PZQJ = '2024-05' WHERE NOID = '2024-04记001'");
    EXPECT_TRUE(finds("凭证状态不对", "2024-04记001: 会计期间 2024-05 晚于当前期间 2024-04"))
        << findings();
    damage("UPDATE D6601 SET PZQJ = '2024-02' WHERE NOID = '2024-04记001'");
    EXPECT_TRUE(finds("凭证状态不对", "2024-04记001: 会计期间 2024-02 早于启用期间 2024-03"))
        << findings();
}

TEST_F(CheckPeriods, vouchers_after_a_reopened_period_are_a_hint) {
    take_closing_back();
    EXPECT_EQ(findings(), "");
    EXPECT_NE(hints().find("凭证状态不对: 2024-04: 反结帐前的凭证 1 张,晚于当前期间 2024-03"),
              std::string::npos)
        << hints();
}

TEST_F(CheckPeriods, periods_that_are_no_months) {
    damage("UPDATE D6600 SET PARAM = 'abcd-ef' WHERE ID = 2");
    EXPECT_TRUE(finds("凭证状态不对", "帐套的期间不是年月: D6600 第 2 行 abcd-ef")) << findings();
    damage("UPDATE D6600 SET PARAM = '2024-04' WHERE ID = 2");
    damage("UPDATE D6602 SET QJ = 'abcd-ef' WHERE QJ = '2024-04'");
    EXPECT_TRUE(finds("余额表行不对", "abcd-ef: 余额表有多余的")) << findings();
}

TEST_F(CheckPeriods, a_voucher_of_a_closed_period_that_is_not_posted) {
    damage("UPDATE D6601 SET D = 0 WHERE NOID = '2024-03记002'");
    EXPECT_TRUE(finds("凭证状态不对", "2024-03记002: 期间 2024-03 已结帐,凭证却没有登帐"))
        << findings();
}

TEST_F(CheckPeriods, a_posted_voucher_that_nobody_audited) {
    damage("UPDATE D6601 SET T = 0 WHERE NOID = '2024-04记001'");
    EXPECT_TRUE(finds("凭证状态不对", "2024-04记001: 已登帐,却没有审核")) << findings();
}

TEST_F(CheckPeriods, a_carry_forward_mark_that_the_lines_do_not_bear_out) {
    damage("UPDATE D6601 SET T_SY = 1 WHERE NOID = '2024-04记001'");
    EXPECT_TRUE(finds("凭证状态不对", "2024-04记001: 有结转标志,却没有 3131 的分录")) << findings();
    damage("UPDATE D6601 SET T_SY = 0 WHERE NOID = '2024-04记001'");
    damage("UPDATE D6601A SET KM_ID = '3131' WHERE NOID = '2024-04记001' AND INX = 1");
    EXPECT_TRUE(finds("凭证状态不对", "2024-04记001: 有 3131 的分录,却没有结转标志"))
        << findings();
}

TEST_F(CheckPeriods, numbers_left_out_in_a_posted_period_are_a_hint) {
    voucher(3, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    voucher(7, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    voucher(2, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}}, "转");
    post();
    EXPECT_EQ(findings(), "");
    EXPECT_EQ(hints(), "凭证号: 2024-04 记字: 缺 2 号\n凭证号: 2024-04 记字: 缺 4-6 号\n"
                       "凭证号: 2024-04 转字: 缺 1 号\n");
}

TEST_F(CheckPeriods, a_voucher_dated_outside_its_period_is_a_hint) {
    damage("UPDATE D6601 SET BDATE = '2024-05-02' WHERE NOID = '2024-04记001'");
    EXPECT_EQ(findings(), "");
    EXPECT_EQ(hints(), "凭证状态不对: 2024-04记001: 凭证日期 2024-05-02 不在会计期间 2024-04 内\n");
}

TEST_F(CheckPeriods, posting_a_reopened_period_anew_leaves_the_later_one_behind) {
    take_closing_back();
    voucher(3, {{"1001", "50.00", "0.00"}, {"3101", "0.00", "50.00"}});
    post();
    EXPECT_EQ(findings(), "");
    EXPECT_NE(hints().find("期末余额不符: 2024-04: 余额是反结帐前登的帐,与 2024-03 不衔接"),
              std::string::npos)
        << hints();
    // 1001: 100 - 30 + 50 = 120 at the end of March; April still says 70 + 8.
    close_period();
    EXPECT_TRUE(finds("期末余额不符", "2024-04 1001: 余额表 借 78.00 贷 0.00,应为 借 128.00"))
        << findings();
    post();
    EXPECT_EQ(findings(), "");
}

TEST_F(CheckPeriods, a_period_closed_without_being_posted_hands_no_balances_on) {
    close_period();
    close_period(); // May has no vouchers, so nothing kept it from being closed
    EXPECT_TRUE(finds("期末余额不符", "2024-05: 已结帐却没有登帐")) << findings();
}

} // namespace tests
