// What the views and procedures of trade say, against figures derived by hand.
#include "tests/books/trade_fixture.h"

namespace tests {

using TradeReports = Trade;

// Open: 520 + 200 + 100 of sales, 120 of another kind, less 20 of the return = 920. Advances:
// 80 + 150 - 30 - 100 = 100.
TEST_F(TradeReports, what_stands_open_with_every_customer_also_with_one_who_has_nothing) {
    EXPECT_EQ(rows("SELECT KH_GYS_ID,YM,YSM,XJYS FROM VD631 ORDER BY KH_GYS_ID"),
              "K1 920.00 100.00 820.00\nK2 0.00 0.00 0.00");
}

// Nothing of the supplier's was written off: the payment stands in no balance of documents.
TEST_F(TradeReports, what_stands_open_with_a_supplier) {
    EXPECT_EQ(rows("SELECT KH_GYS_ID,YM,YSM,XJYS FROM VD641"), "G1 0.00 0.00 0.00");
}

TEST_F(TradeReports, the_closing_of_every_range_is_what_stands_open) {
    for (const char* start :
         {"2024-03-01", "2024-03-10", "2024-03-15", "2024-03-16", "2024-04-01"}) {
        const std::string sums = rows("exec SYS_YS @PARAM=0,@PARAM1=0,@PARAM2=1,@BDATE='" +
                                      std::string(start) + "',@EDATE='2024-04-01'");
        EXPECT_TRUE(sums.starts_with("K1 甲 ") && sums.ends_with(" 820.00"))
            << start << ": " << sums;
    }
}

// Opening 200 - 80; new 950 + 300 - 40 + 120; settled 500 + 10 + 150 - 30.
TEST_F(TradeReports, receivables_of_the_month_in_sum) {
    EXPECT_EQ(rows("exec SYS_YS  @PARAM=0,@PARAM1=0,@PARAM2=0,@BDATE='2024-03-01',"
                   "@EDATE='2024-04-01'"),
              "K1 甲 120.00 1330.00 630.00 820.00\nK2 乙 0.00 0.00 0.00 0.00");
    EXPECT_EQ(rows("exec SYS_YS  @PARAM=0,@PARAM1=1,@PARAM2=0,@BDATE='2024-03-15',"
                   "@EDATE='2024-04-01'"),
              "K1 甲 1150.00 300.00 630.00 820.00");
}

TEST_F(TradeReports, receivables_of_half_a_month_in_detail) {
    EXPECT_EQ(rows("EXEC SYS_YS @PARAM=1,@PARAM1=0,@PARAM2=0,@BDATE='2024-03-15',"
                   "@EDATE='2024-04-01',@KH_GYS_ID='K1'"),
              "K1 甲 - - 期初余额 1150.00 0.00 0.00 0.00 1150.00 0\n"
              "K1 甲 2024-03-15 00:00:00.000 R1 销售收款 0.00 0.00 500.00 10.00 -510.00 631\n"
              "K1 甲 2024-03-18 00:00:00.000 R2 预收款 0.00 0.00 150.00 0.00 -150.00 631\n"
              "K1 甲 2024-03-20 00:00:00.000 S2 销售单 0.00 300.00 0.00 0.00 300.00 202\n"
              "K1 甲 2024-03-25 00:00:00.000 R3 预收退款 0.00 0.00 -30.00 0.00 30.00 631\n"
              "K1 甲 2024-03-28 00:00:00.000 R4 预收冲应收 0.00 0.00 0.00 0.00 0.00 631");
}

// Account 1: in 200 + 150 + 70, out 30 + 100 + 15 + 60. Account 2: in 300 + 100 + 9, out 25.
TEST_F(TradeReports, money_accounts_of_the_month) {
    EXPECT_EQ(rows("exec SYS_XJ @PARAM=0,@BDATE='2024-03-01',@EDATE='2024-04-01'"),
              "1 现金 0.00 420.00 205.00 215.00\n2 工行 0.00 409.00 25.00 384.00");
    EXPECT_EQ(rows("SELECT JY_ID,SUM(INMONEY-OUTMONEY) FROM VIEW_XJ GROUP BY JY_ID ORDER BY JY_ID"),
              "1 215.00\n2 384.00");
}

TEST_F(TradeReports, the_daybook_of_an_account_runs_its_balance) {
    run("UPDATE D1010 SET BEGIN_MONEY=10 WHERE JY_ID='2'");
    EXPECT_EQ(rows("exec SYS_XJ @PARAM=1,@BDATE='2024-03-08',@EDATE='2024-04-01',@JY_ID='2'"),
              "2 工行 - - - 期初余额 - - 0.00 0.00 110.00\n"
              "2 工行 2024-03-08 00:00:00.000 E1 50 费用结算 - 丙 0.00 25.00 85.00\n"
              "2 工行 2024-03-09 00:00:00.000 X1 24 采购退回 - 丙 9.00 0.00 94.00\n"
              "2 工行 2024-03-15 00:00:00.000 R1 10 销售收款 - 甲 300.00 0.00 394.00");
}

TEST_F(TradeReports, a_split_counts_only_while_it_adds_up_to_what_was_received) {
    EXPECT_EQ(rows("SELECT JY_ID,INMONEY FROM VIEW_XJ WHERE NOID='R1' ORDER BY JY_ID"),
              "1 200.00\n2 300.00");
    run("DELETE FROM D631B WHERE NOID='R1' AND JY_ID='2'");
    EXPECT_EQ(rows("SELECT JY_ID,INMONEY FROM VIEW_XJ WHERE NOID='R1'"), "1 500.00");
}

TEST_F(TradeReports, an_advance_set_against_documents_moves_no_money) {
    EXPECT_EQ(rows("SELECT NOID FROM VIEW_XJ WHERE NOID='R4'"), "");
}

} // namespace tests
