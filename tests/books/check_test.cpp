// Books damaged on purpose: each damage is found and named.
#include "app/books/open.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class Check : public Ledger {
protected:
    Check() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"550201", "30.00", "0.00"}, {"1001", "0.00", "30.00"}});
        post();
        voucher(3, {{"1001", "7.00", "0.00"}, {"3101", "0.00", "7.00"}}); // audited, not posted
    }
};

} // namespace

TEST_F(Check, sound_books_have_no_findings) { EXPECT_EQ(findings(), ""); }

TEST_F(Check, posting_carries_the_figures_up_the_chart) {
    EXPECT_EQ(value("SELECT J FROM D6602 WHERE QJ='2024-03' AND INX=1 AND KM_ID='1001'"), "70.00");
    EXPECT_EQ(value("SELECT J FROM D6602 WHERE QJ='2024-03' AND INX=0 AND KM_ID='5502'"), "30.00");
}

TEST_F(Check, a_voucher_that_does_not_balance) {
    damage("UPDATE D6601A SET J = 99.99 WHERE NOID = '2024-03记003' AND INX = 0");
    damage("UPDATE D6601A SET J = 7.01 WHERE NOID = '2024-03记003' AND INX = 0");
    EXPECT_TRUE(finds("凭证借贷不平", "2024-03记003: 借方 7.01 贷方 7.00")) << findings();
}

TEST_F(Check, a_head_without_lines) {
    damage("DELETE FROM D6601A WHERE NOID = '2024-03记003'");
    EXPECT_TRUE(finds("凭证借贷不平", "2024-03记003: 没有分录")) << findings();
}

TEST_F(Check, a_line_without_a_head_and_an_allocation_without_a_voucher) {
    damage("INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES ('x','x','1001',0,0,0)");
    damage("INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('y','1101',1,0)");
    EXPECT_TRUE(finds("孤立的记录", "分录没有凭证头: x")) << findings();
    EXPECT_TRUE(finds("孤立的记录", "现金流量分配没有凭证: y")) << findings();
}

TEST_F(Check, an_account_that_the_chart_does_not_hold) {
    damage("UPDATE D6601A SET KM_ID = '9999' WHERE NOID = '2024-03记003' AND INX = 0");
    EXPECT_TRUE(finds("孤立的记录", "分录的科目不存在: 9999 (凭证 2024-03记003)")) << findings();
}

TEST_F(Check, a_line_without_an_account_unless_it_is_a_remark) {
    const std::string line = "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES "
                             "('2024-03记003','见合同','',";
    const std::string before = findings();
    damage(line + "0,0,7)");
    EXPECT_EQ(findings(), before);
    damage(line + "1,1,8)");
    EXPECT_TRUE(finds("孤立的记录", "分录的科目不存在:  (凭证 2024-03记003)")) << findings();
}

TEST_F(Check, a_movement_changed_by_a_cent) {
    damage("UPDATE D6602 SET J = J + 0.01 WHERE QJ='2024-03' AND INX=0 AND KM_ID='5502'");
    EXPECT_TRUE(finds("发生额与凭证不符", "2024-03 5502: 余额表 借 30.01")) << findings();
}

TEST_F(Check, a_posted_voucher_changed_by_a_cent_on_both_sides) {
    damage("UPDATE D6601A SET J = J + 0.01 WHERE NOID = '2024-03记002' AND INX = 0");
    damage("UPDATE D6601A SET D = D + 0.01 WHERE NOID = '2024-03记002' AND INX = 1");
    EXPECT_TRUE(finds("发生额与凭证不符", "2024-03 550201")) << findings();
    EXPECT_TRUE(finds("发生额与凭证不符", "2024-03 1001")) << findings();
}

TEST_F(Check, balances_missing_for_a_posted_voucher) {
    damage("DELETE FROM D6602 WHERE QJ='2024-03' AND INX=0 AND KM_ID='1001'");
    EXPECT_TRUE(finds("发生额与凭证不符", "2024-03 1001: 余额表 借 0.00")) << findings();
}

TEST_F(Check, a_closing_balance_that_does_not_follow_from_the_one_before) {
    damage("UPDATE D6602 SET J = 1 WHERE QJ='2024-02' AND INX=1 AND KM_ID='1001'");
    EXPECT_TRUE(finds("期末余额不符", "2024-03 1001: 余额表 借 70.00 贷 0.00,应为 借 71.00"))
        << findings();
}

TEST_F(Check, an_account_below_a_missing_parent_and_a_wrong_level) {
    damage("INSERT INTO D6801 (KM_ID, KM_NAME, FX, OID, KM_FL, KM_J) "
           "VALUES ('77','x','借','76',1,2)");
    damage("UPDATE D6801 SET KM_J = 4 WHERE KM_ID = '100901'");
    EXPECT_TRUE(finds("会计科目", "上级科目不存在: 77 76")) << findings();
    EXPECT_TRUE(finds("会计科目", "科目级别不对: 100901")) << findings();
}

TEST_F(Check, a_full_name_that_is_not_the_one_the_chart_gives) {
    damage("UPDATE D6801 SET KM_NAME2 = '别的' WHERE KM_ID = '100901'");
    EXPECT_TRUE(finds("会计科目", "科目全称不对: 100901")) << findings();
}

TEST_F(Check, a_settled_amount_that_its_lines_do_not_give) {
    damage("INSERT INTO D8102 (NOID, C, KH_GYS_ID, BDATE, USER_ID, TOLMONEY, YSMONEY) VALUES "
           "('s1', 0, 'K1', '2024-03-01', 'admin', 100, 100)");
    damage("INSERT INTO D631 (NOID, KH_GYS_ID, JY_ID, MONEY, MONEY_SS, BDATE, USER_ID) VALUES "
           "('r1', 'K1', '1', 40, 40, '2024-03-02', 'admin')");
    damage("INSERT INTO D631A (NOID, C, D8102NOID, KH_GYS_ID, MONEY) VALUES "
           "('r1', 0, 's1', 'K1', 40)");
    EXPECT_EQ(value("SELECT YSMONEY FROM D8102 WHERE NOID = 's1'"), "60.00");
    EXPECT_EQ(findings(), "");
    damage("UPDATE D8102 SET SUMMONEY = 39.99 WHERE NOID = 's1'");
    EXPECT_TRUE(finds("往来单据结算不符", "D8102 s1: 已结 39.99 应为 40.00")) << findings();
    damage("UPDATE D631 SET MONEY = 41 WHERE NOID = 'r1'");
    EXPECT_TRUE(finds("收付款单金额不符", "r1: 金额 41.00 明细合计 40.00")) << findings();
}

TEST_F(Check, lines_of_trade_whose_document_is_gone) {
    damage("INSERT INTO D631A (NOID, C, D8102NOID, KH_GYS_ID, MONEY) VALUES "
           "('r9', 0, 's9', 'K1', 5)");
    damage("INSERT INTO D631B (NOID, JY_ID, MONEY) VALUES ('r8', '1', 5)");
    damage("INSERT INTO D641A (NOID, C, D8202NOID, KH_GYS_ID, MONEY) VALUES "
           "('p9', 0, 'b9', 'G1', 5)");
    damage("INSERT INTO D651A (NOID, SZLB, MONEY) VALUES ('o9', '01', 5)");
    damage("INSERT INTO D652A (NOID, SZLB, MONEY) VALUES ('o8', '01', 5)");
    damage("INSERT INTO D8102A (ID, NOID, WL_ID) VALUES ('s8-1000', 's8', 'W1')");
    for (const char* text :
         {"核销行没有收款单: r9", "核销的销售单不存在: s9 (收款单 r9)", "分帐户的金额没有收款单: r8",
          "核销行没有付款单: p9", "核销的采购单不存在: b9 (付款单 p9)",
          "明细行没有其他收款单: o9", "明细行没有其他付款单: o8", "明细行没有销售单: s8"})
        EXPECT_TRUE(finds("孤立的记录", text)) << text << "\n" << findings();
}

TEST_F(Check, many_findings_of_one_kind_are_counted_instead_of_listed) {
    damage("DELETE FROM D6801");
    const auto all = automation::check_books(*session_);
    EXPECT_LT(all.size(), 1000u);
    EXPECT_TRUE(finds("孤立的记录", "还有 ")) << all.size();
}

// Every check after the first would otherwise meet a voucher that the ones before did not know, and
// a log longer than its end was when it was read.
TEST_F(Check, what_others_save_while_it_runs_contradicts_nothing) {
    const auto auditor = app::open_books(books_);
    int number = 4;
    const auto audit = automation::audit_books(
        *auditor, [&](const std::string& check, std::int64_t, std::int64_t) {
            if (check.empty()) return true; // the end
            voucher(number++, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
            post();
            return true;
        });
    ASSERT_TRUE(audit);
    EXPECT_GT(number, 10);
    for (const automation::Finding& finding : audit->findings)
        ADD_FAILURE() << finding.check << ": " << finding.text;
    EXPECT_EQ(auditor->transaction_depth(), 0);
    EXPECT_EQ(findings(), "");
}

} // namespace tests
