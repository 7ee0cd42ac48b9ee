// The rows of D6602, each kind of damage done on purpose.
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class CheckBalances : public Ledger {
protected:
    CheckBalances() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"5101", "0.00", "100.00"}});
        voucher(2, {{"550201", "30.00", "0.00"}, {"1001", "0.00", "30.00"}});
        voucher(3, {{"5101", "100.00", "0.00"}, {"3131", "0.00", "100.00"}});
        voucher(4, {{"3131", "30.00", "0.00"}, {"550201", "0.00", "30.00"}});
        post();
        close_period();
        voucher(1, {{"1001", "8.00", "0.00"}, {"5101", "0.00", "8.00"}});
        post();
    }
};

} // namespace

TEST_F(CheckBalances, sound_books_have_no_findings) {
    EXPECT_EQ(findings(), "");
    EXPECT_EQ(value("SELECT SY_J FROM D6602 WHERE QJ='2024-03' AND INX=0 AND KM_ID='5502'"),
              "30.00"); // the carry-forward credits 550201 with 30, kept on the other side
}

TEST_F(CheckBalances, a_carried_forward_amount_changed) {
    damage("UPDATE D6602 SET SY_J = 29 WHERE QJ='2024-03' AND INX=0 AND KM_ID='550201'");
    EXPECT_TRUE(finds("发生额与凭证不符",
                      "2024-03 550201: 余额表 借 30.00 贷 30.00 损益借 29.00 损益贷 0.00,"
                      "凭证 借 30.00 贷 30.00 损益借 30.00 损益贷 0.00"))
        << findings();
}

TEST_F(CheckBalances, a_roll_up_that_is_not_the_sum_of_its_children) {
    damage("UPDATE D6602 SET D = 40 WHERE QJ='2024-03' AND INX=0 AND KM_ID='5502'");
    EXPECT_TRUE(finds("发生额与凭证不符", "2024-03 5502: 余额表 借 30.00 贷 40.00")) << findings();
    EXPECT_TRUE(finds("期末余额不符", "2024-03 5502: 余额表 借 0.00 贷 0.00,应为 借 -10.00"))
        << findings();
}

TEST_F(CheckBalances, a_carried_forward_amount_on_a_closing_row) {
    damage("UPDATE D6602 SET SY_D = 1 WHERE QJ='2024-03' AND INX=1 AND KM_ID='1001'");
    EXPECT_TRUE(finds("期末余额不符", "2024-03 1001: 余额行的损益借 0.00 损益贷 1.00"))
        << findings();
}

TEST_F(CheckBalances, a_closing_balance_on_the_wrong_side) {
    damage("UPDATE D6602 SET J = 0, D = -70 WHERE QJ='2024-03' AND INX=1 AND KM_ID='1001'");
    EXPECT_TRUE(finds("期末余额不符", "2024-03 1001: 余额表 借 0.00 贷 -70.00,应为 借 70.00"))
        << findings();
}

TEST_F(CheckBalances, a_movement_row_or_a_closing_row_missing_even_when_it_is_all_zeros) {
    damage("DELETE FROM D6602 WHERE QJ='2024-03' AND INX=0 AND KM_ID='1009'");
    EXPECT_TRUE(finds("余额表行不对", "2024-03 1009: 余额表缺发生额行(INX 0)")) << findings();
    damage("DELETE FROM D6602 WHERE QJ='2024-04' AND KM_ID='1101'");
    EXPECT_TRUE(finds("余额表行不对", "2024-04 1101: 余额表缺发生额行(INX 0)")) << findings();
    EXPECT_TRUE(finds("余额表行不对", "2024-04 1101: 余额表缺余额行(INX 1)")) << findings();
}

TEST_F(CheckBalances, an_account_added_after_posting_misses_no_row) {
    damage("INSERT INTO D6801 (KM_ID, KM_NAME, FX, OID, KM_FL, KM_J) "
           "VALUES ('1008','新科目','借','Z',1,1)");
    EXPECT_EQ(findings(), "");
    post();
    EXPECT_EQ(findings(), "");
}

TEST_F(CheckBalances, rows_that_no_period_asks_for) {
    damage("INSERT INTO D6602 (QJ, KM_ID, INX, J) VALUES ('2024-09','1001',0,5)");
    damage("INSERT INTO D6602 (QJ, KM_ID, INX, J) VALUES ('2023-00','1001',0,5)");
    damage("INSERT INTO D6602 (QJ, KM_ID, INX, J) VALUES ('2024-03','1001',7,5)");
    EXPECT_TRUE(finds("余额表行不对", "2024-09: 余额表有多余的发生额行 1 行(帐套从 2024-03 到 2024-04)"))
        << findings();
    EXPECT_TRUE(finds("余额表行不对", "2023-00: 余额表有多余的发生额行 1 行")) << findings();
    EXPECT_TRUE(finds("余额表行不对", "2024-03 1001: 余额表有不认识的行,INX 7")) << findings();
}

TEST_F(CheckBalances, an_opening_row_that_does_not_follow_from_the_opening_figures) {
    damage("UPDATE D6602 SET J = 3 WHERE QJ='2024-00' AND INX=0 AND KM_ID='1001'");
    damage("UPDATE D6602 SET D = 4 WHERE QJ='2024-02' AND INX=1 AND KM_ID='3101'");
    EXPECT_TRUE(finds("期初余额不符",
                      "2024-00 1001: 余额表 借 3.00 贷 0.00,期初数据 借 0.00 贷 0.00"))
        << findings();
    EXPECT_TRUE(finds("期初余额不符",
                      "2024-02 3101: 余额表 借 0.00 贷 4.00,期初数据 借 0.00 贷 0.00"))
        << findings();
}

} // namespace tests
