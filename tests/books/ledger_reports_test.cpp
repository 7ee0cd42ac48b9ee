// What the functions of statement cells and the ledgers say, against figures derived by hand.
#include "automation/sql/collected_result.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

// Opened at 2024-03 with 500 in cash, 200 in and 50 out of it earlier in the year. In March 100
// come in, 30 are spent, 20 are put aside: cash 550, other money 20.
class LedgerReports : public Ledger {
protected:
    LedgerReports() {
        damage("UPDATE D6602 SET J=500 WHERE KM_ID='1001' AND QJ='2024-02' AND INX=1;"
               "UPDATE D6602 SET J=200,D=50 WHERE KM_ID='1001' AND QJ='2024-00' AND INX=0");
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"550109", "30.00", "0.00"}, {"1001", "0.00", "30.00"}});
        voucher(3, {{"100901", "20.00", "0.00"}, {"1001", "0.00", "20.00"}});
        post();
    }
    std::string cell(const std::string& formula) { return value("select " + formula + " as a "); }
    std::string rows(const std::string& statement) {
        std::string text;
        for (const automation::TextRow& row : automation::rows_of(*session_, statement)) {
            if (!text.empty()) text += '\n';
            for (std::size_t i = 0; i < row.size(); ++i)
                text += (i > 0 ? "|" : "") + row[i].value_or("");
        }
        return text;
    }
};

const std::string march = "@P_month1='2024-03',@P_month2='2024-03'";

} // namespace

TEST_F(LedgerReports, a_range_of_accounts_counts_nothing_twice) {
    EXPECT_EQ(cell("dbo.fasc(0,'2024-03','1001','1009')"), "570.00"); // 550 + 20
    EXPECT_EQ(cell("dbo.fasc(2,'2024-03','1001','1009')"), "120.00");
    EXPECT_EQ(cell("dbo.fasc(3,'2024-03','1001','1009')"), "50.00");
    EXPECT_EQ(cell("DBO.FASC(0,'2024-03','100901','100901')"), "20.00");
}

TEST_F(LedgerReports, a_balance_is_signed_on_the_side_of_the_lowest_account) {
    EXPECT_EQ(cell("dbo.fasc(0,'2024-03','3101','3101')"), "100.00");
    EXPECT_EQ(cell("dbo.fasc(0,'2024-03','5501','5501')"), "30.00");
    EXPECT_EQ(cell("dbo.fasc(0,'2024-03','3101','5501')"), "70.00"); // 100 less 30, credit side
}

TEST_F(LedgerReports, where_the_books_began_inside_the_year_its_beginning_is_reckoned_back) {
    EXPECT_EQ(cell("dbo.fasc(1,'2024-00','1001','1001')"), "350.00"); // 500 - (200 - 50)
    EXPECT_EQ(cell("dbo.fjf(1,'2024-00','1001','1001')"), "350.00");
}

TEST_F(LedgerReports, opening_balances_are_told_by_side) {
    EXPECT_EQ(cell("dbo.fasc(5,'2024-03','1001','1009')"), "500.00");
    EXPECT_EQ(cell("dbo.fasc(6,'2024-03','1001','1009')"), "0.00");
    EXPECT_EQ(cell("dbo.fjf(0,'2024-03','1009','1009')"), "20.00");
    EXPECT_EQ(cell("dbo.fdf(0,'2024-03','3101','3101')"), "100.00");
}

TEST_F(LedgerReports, nothing_there_is_zero) {
    EXPECT_EQ(cell("dbo.fasc(0,'2001-01','1001','1009')"), "0.00");
    EXPECT_EQ(cell("dbo.fasc(0,'2024-03','9','9')"), "0.00");
    EXPECT_EQ(cell("dbo.fxj(2,'2024-03','1','9')"), "0.00");
    EXPECT_EQ(cell("dbo.fsum(3,0,'2024-03',9001,9002)"), "0.00");
}

TEST_F(LedgerReports, profit_and_loss_amounts_leave_the_carry_forward_out) {
    damage("UPDATE D6602 SET SY_J=7,SY_D=30 WHERE KM_ID='550109' AND QJ='2024-03' AND INX=0;"
           "UPDATE D6602 SET SY_J=3 WHERE KM_ID='550109' AND QJ='2024-00' AND INX=0");
    EXPECT_EQ(cell("dbo.fsy(2,'2024-03','5501','5501')"), "7.00");
    EXPECT_EQ(cell("dbo.fsy(3,'2024-03','5501','5501')"), "30.00");
    EXPECT_EQ(cell("dbo.fsy(4,'2024-03','5501','5501')"), "10.00");
    EXPECT_EQ(cell("dbo.fsy(0,'2024-03','5501','5501')"), "30.00");
}

TEST_F(LedgerReports, lines_of_a_statement_are_added_by_their_numbers) {
    damage("UPDATE D6830 SET A3='10.50',A4='1.00' WHERE G=1 AND A2='1';"
           "UPDATE D6830 SET A3=NULL,A4=' ' WHERE G=1 AND A2='2';"
           "UPDATE D6830 SET B3='4.25',B4='2.00' WHERE G=1 AND B2='68';"
           "UPDATE D6832 SET A3='5.00',A4='50.00' WHERE G=1 AND A2='1'");
    EXPECT_EQ(cell("dbo.fsum(1,1,'2024-00',1,2)"), "10.50");
    EXPECT_EQ(cell("dbo.fd(1,1,'2024-00',68)"), "4.25");
    EXPECT_EQ(cell("dbo.fd(1,0,'2024-03',68)+dbo.fd(1,0,'2024-03',1)"), "3.00");
    EXPECT_EQ(cell("dbo.fd3(1,2,'2024-03',1)"), "5.00");
    EXPECT_EQ(cell("dbo.fsum3(1,4,'2024-03',1,1)"), "50.00");
}

TEST_F(LedgerReports, cash_flow_counts_posted_vouchers_only) {
    damage("INSERT INTO D6601B (NOID,D6820ID,J,D) VALUES ('2024-03记001','3101',100,0),"
           "('2024-03记002','1209',0,30);"
           "INSERT INTO D6601B (NOID,D6820ID,J,D) VALUES ('2024-03记003','3101',20,0);"
           "UPDATE D6601 SET D=0 WHERE NOID='2024-03记003'");
    EXPECT_EQ(cell("dbo.fxj(2,'2024-03','3101','3109')"), "100.00");
    EXPECT_EQ(cell("dbo.fxj(3,'2024-03','1201','1209')"), "30.00");
    EXPECT_EQ(cell("dbo.fxjn(2,'2024-12','3101','3109')"), "100.00");
    EXPECT_EQ(cell("dbo.fxjn(2,'2025-01','3101','3109')"), "0.00");
}

TEST_F(LedgerReports, the_detailed_ledger_of_an_account_runs_its_balance) {
    const auto sets = automation::collect(
        *session_,
        "EXEC SYS_685 @P_year='2024-02',@p_show='1',@KM_ID1='1001',@KM_ID2='1001'," + march);
    ASSERT_TRUE(sets.outcome.ok()) << sets.outcome.error->text;
    EXPECT_EQ(sets.sets[0].columns,
              (std::vector<std::string>{"BDATE", "PZZ", "ZY", "KM_ID_DF", "J", "D", "FX", "E",
                                        "KM_ID", "KM_NAME", "inx", "NOID"}));
    const std::string day = "2024-03-15 00:00:00.000";
    EXPECT_EQ(
        rows("EXEC SYS_685 @P_year='2023-01',@p_show='1',@KM_ID1='1001',@KM_ID2='1001'," + march),
        "||期初余额||||借|500.00|1001|现金|-1|\n" + day +
            "|记-1|摘要||100.00|0.00|借|600.00|1001|现金|0|2024-03记001\n" + day +
            "|记-2|摘要||0.00|30.00|借|570.00|1001|现金|1|2024-03记002\n" + day +
            "|记-3|摘要||0.00|20.00|借|550.00|1001|现金|1|2024-03记003\n"
            "||本期合计||100.00|50.00|借|550.00|1001|现金|-1|\n"
            "||本年累计||300.00|100.00|借|550.00|1001|现金|-1|");
}

// The dialog asks for months of one year; a statement typed in may ask for more.
TEST_F(LedgerReports, a_detailed_ledger_across_the_years_sums_each_year_by_itself) {
    const auto next = [this](int periods) {
        for (int i = 0; i < periods; ++i) {
            close_period();
            post();
        }
    };
    next(9);
    voucher(1, {{"1001", "7.00", "0.00"}, {"3101", "0.00", "7.00"}});
    post();
    next(1);
    voucher(1, {{"550109", "2.00", "0.00"}, {"1001", "0.00", "2.00"}});
    post();
    next(1);
    voucher(1, {{"1001", "4.00", "0.00"}, {"3101", "0.00", "4.00"}});
    post();
    const std::string cash = "EXEC SYS_685 @P_year='2024-11',@p_show='1',@KM_ID1='1001',"
                             "@KM_ID2='1001',@P_month2='2025-02',@P_month1=";
    EXPECT_EQ(rows(cash + "'2024-12'"),
              "||期初余额||||借|550.00|1001|现金|-1|\n"
              "2024-12-15 00:00:00.000|记-1|摘要||7.00|0.00|借|557.00|1001|现金|0|2024-12记001\n"
              "||本期合计||7.00|0.00|借|557.00|1001|现金|-1|\n"
              "||本年累计||307.00|100.00|借|557.00|1001|现金|-1|\n"
              "2025-01-15 00:00:00.000|记-1|摘要||0.00|2.00|借|555.00|1001|现金|1|2025-01记001\n"
              "||本期合计||0.00|2.00|借|555.00|1001|现金|-1|\n"
              "||本年累计||0.00|2.00|借|555.00|1001|现金|-1|\n"
              "2025-02-15 00:00:00.000|记-1|摘要||4.00|0.00|借|559.00|1001|现金|0|2025-02记001\n"
              "||本期合计||4.00|0.00|借|559.00|1001|现金|-1|\n"
              "||本年累计||4.00|2.00|借|559.00|1001|现金|-1|");
    // The opening, the lines of March, December and the two months, two sums for each of 12 months.
    EXPECT_EQ(automation::rows_of(*session_, cash + "'2024-03'").size(), 1U + 3 + 3 + 2 * 12);
    EXPECT_EQ(rows(cash + "'2025-02'").find("上年结转"), std::string::npos);
    EXPECT_NE(rows(cash + "'2025-01'").find("||上年结转||||借|557.00|"),
              std::string::npos);
}

TEST_F(LedgerReports, one_account_brings_the_lines_of_everything_below_it) {
    EXPECT_EQ(rows("EXEC SYS_685 @P_year='2024-02',@p_show='0',@KM_ID1='5501',@p_xj=1," + march),
              "||期初余额||||平|0.00|5501|营业费用|-1|\n"
              "2024-03-15 00:00:00.000|记-2|摘要|现金|30.00|0.00|借|30.00|5501|营业费用|0|"
              "2024-03记002\n"
              "||本期合计||30.00|0.00|借|30.00|5501|营业费用|-1|\n"
              "||本年累计||30.00|0.00|借|30.00|5501|营业费用|-1|");
}

TEST_F(LedgerReports, a_range_brings_the_accounts_that_take_entries) {
    const auto groups = automation::rows_of(
        *session_,
        "EXEC SYS_685 @P_year='2024-02',@p_show='1',@KM_ID1='1009',@KM_ID2='100902'," + march);
    for (const automation::TextRow& row : groups) EXPECT_NE(row[8], "1009");
    EXPECT_EQ(groups.size(), 7U); // 100901 with a line, 100902 without
}

TEST_F(LedgerReports, the_general_ledger_tells_opening_month_and_year) {
    EXPECT_EQ(rows("EXEC SYS_686 @P_year='2024-02',@p_show='1',@KM_ID1='1001',@KM_ID2='1009'," +
                   march + ", @p_kmjb='1'"),
              "1001|现金|2024-03|期初余额|||借|500.00|2024-03\n"
              "1001|现金|2024-03|本期合计|100.00|50.00|借|550.00|2024-03\n"
              "1001|现金|2024-03|本年累计|300.00|100.00|借|550.00|2024-03\n"
              "1009|其他货币资金|2024-03|期初余额|||平|0.00|2024-03\n"
              "1009|其他货币资金|2024-03|本期合计|20.00|0.00|借|20.00|2024-03\n"
              "1009|其他货币资金|2024-03|本年累计|20.00|0.00|借|20.00|2024-03");
}

// Only the detailed ledger names what January brings forward from the year before.
TEST_F(LedgerReports, an_opening_has_a_balance_and_no_amounts) {
    const std::string january = "@P_month1='2024-01',@P_month2='2024-01'";
    const auto detailed = automation::rows_of(
        *session_, "EXEC SYS_685 @P_year='2023-12',@KM_ID1='1001'," + january);
    EXPECT_EQ(detailed[0][2], "上年结转");
    EXPECT_EQ(detailed[0][4], std::nullopt);
    EXPECT_EQ(detailed[0][5], std::nullopt);
    const auto general = automation::rows_of(
        *session_, "EXEC SYS_686 @P_year='2023-12',@KM_ID1='1001'," + january);
    EXPECT_EQ(general[0][3], "期初余额");
    EXPECT_EQ(general[0][4], std::nullopt);
    EXPECT_EQ(general[0][5], std::nullopt);
}

} // namespace tests
