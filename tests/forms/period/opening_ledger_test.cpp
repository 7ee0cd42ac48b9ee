// Opening figures on real books: typed, posted, and read back in the tables.
#include <gtest/gtest.h>

#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {
namespace {

BooksOptions not_set_up() {
    BooksOptions options;
    options.start = "";
    options.today = "2006-05-20";
    return options;
}

// The figures of an account, as typed.
struct Figures {
    const char *account, *debits, *credits, *balance, *profit;
};

class OpeningLedger : public testing::Test {
protected:
    OpeningLedger() : books(not_set_up()), anna(books.data(), books.person()) {}

    void TearDown() override { EXPECT_EQ(books.findings(), ""); }
    void add_account(const std::string& below, const std::string& code, const std::string& name,
                     bool debit = true) {
        anna.node(below);
        anna.click("Act_CopyAdd");
        anna.set("t0", code);
        anna.set("t1", name);
        anna.check(debit ? "RB1" : "RB2");
        anna.click("btn_ok");
        anna.forget_messages();
    }
    // Bank down to the fifth level; a receivable whose two customers lie on both sides.
    void add_accounts() {
        anna.open(681);
        add_account("1002 银行存款", "100201", "工行");
        add_account("100201 工行", "10020101", "园区");
        add_account("10020101 园区", "1002010101", "基本户");
        add_account("1002010101 基本户", "100201010101", "人民币");
        add_account("1131 应收账款", "113101", "甲");
        add_account("1131 应收账款", "113102", "乙", false);
        anna.close();
    }
    void type(const Figures& figures) {
        const Rows rows = anna.rows();
        int at = 0;
        while (at < static_cast<int>(rows.size()) &&
               rows[static_cast<std::size_t>(at)].at("KM_ID") != figures.account) {
            ++at;
        }
        ASSERT_LT(at, static_cast<int>(rows.size())) << figures.account;
        anna.line(at, {{"BEGIN2", figures.debits},
                       {"BEGIN3", figures.credits},
                       {"BEGIN4", figures.balance},
                       {"BEGIN5", figures.profit}});
    }
    // Balances of 1 May 2006 with what moved since January:
    //   debit side of the year's beginning  1000-500+200=700, 100-60=40;  credit 30-10=20, 720
    //   accumulated                         500+60+80=640;                200+10+350+80=640
    //   debit side of the start             1000, 100;                    30, 1070
    void type_figures() {
        anna.open(699);
        type({"100201010101", "500", "200", "1000", "0"});
        type({"113101", "60", "0", "100", "0"});
        type({"113102", "0", "10", "30", "0"});
        type({"3101", "0", "350", "1070", "0"});
        type({"5101", "80", "80", "0", "80"});
        anna.click("LA1");
    }
    void post(const std::string& day) {
        anna.click("LA2");
        anna.expect_active("TF6699_1");
        anna.click("btn_ok");
        anna.set("BDATE", day);
        anna.click("btn_ok");
        EXPECT_EQ(anna.active(), "") << "both windows are gone";
    }
    void open_books(const std::string& day) {
        anna.open(699);
        post(day);
    }
    std::string row(const std::string& period, const std::string& kind,
                    const std::string& account) {
        const Rows rows = books.table("SELECT J, D, SY_J, SY_D FROM D6602 WHERE QJ='" + period +
                                      "' AND INX=" + kind + " AND KM_ID='" + account + "'");
        if (rows.size() != 1) return std::to_string(rows.size()) + " rows";
        const Row& one = rows.front();
        return one.at("J") + " " + one.at("D") + " " + one.at("SY_J") + " " + one.at("SY_D");
    }
    std::string rows_of(const std::string& period, const std::string& kind) {
        return books.value("SELECT COUNT(*) FROM D6602 WHERE QJ='" + period + "' AND INX=" + kind);
    }
    std::string accounts() { return books.value("SELECT COUNT(*) FROM D6801"); }
    std::string periods() {
        return books.value("SELECT PARAM FROM D6600 WHERE ID=1") + " " +
               books.value("SELECT PARAM FROM D6600 WHERE ID=2");
    }

    Books books;
    Person anna;
};

TEST_F(OpeningLedger, a_start_in_may_keeps_the_year_and_the_month_before) {
    add_accounts();
    type_figures();
    post("2006-05-01");
    EXPECT_EQ(periods(), "2006-05 2006-05");
    for (const char* bank : {"100201010101", "1002010101", "10020101", "100201", "1002"}) {
        EXPECT_EQ(row("2006-00", "0", bank), "500.00 200.00 0.00 0.00") << bank;
        EXPECT_EQ(row("2006-04", "1", bank), "1000.00 0.00 0.00 0.00") << bank;
        EXPECT_EQ(row("2006-05", "0", bank), "0.00 0.00 0.00 0.00") << bank;
        EXPECT_EQ(row("2006-05", "1", bank), "0.00 0.00 0.00 0.00") << bank;
    }
    EXPECT_EQ(row("2006-04", "1", "113101"), "100.00 0.00 0.00 0.00");
    EXPECT_EQ(row("2006-04", "1", "113102"), "0.00 30.00 0.00 0.00");
    EXPECT_EQ(row("2006-04", "1", "1131"), "70.00 0.00 0.00 0.00") << "net on its own side";
    EXPECT_EQ(row("2006-00", "0", "1131"), "60.00 10.00 0.00 0.00") << "movements are not netted";
    EXPECT_EQ(row("2006-04", "1", "3101"), "0.00 1070.00 0.00 0.00");
    EXPECT_EQ(row("2006-00", "0", "5101"), "80.00 80.00 0.00 80.00") << "profit on its side";
    for (const auto& [period, kind] : {std::pair{"2006-00", "0"}, std::pair{"2006-04", "1"},
                                       std::pair{"2006-05", "0"}, std::pair{"2006-05", "1"}}) {
        EXPECT_EQ(rows_of(period, kind), accounts()) << period;
    }
    EXPECT_EQ(books.value("SELECT dbo.FASC(1,'2006-00','1131','1131')"), "20.00")
        << "the year began with 40 of 甲 less 20 of 乙";
}

TEST_F(OpeningLedger, a_start_in_january_keeps_the_year_before) {
    open_books("2006-01-01");
    EXPECT_EQ(periods(), "2006-01 2006-01");
    EXPECT_EQ(rows_of("2005-00", "0"), accounts());
    EXPECT_EQ(rows_of("2005-12", "1"), accounts());
    EXPECT_EQ(rows_of("2006-00", "0"), "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6602"),
              std::to_string(4 * std::stoi(accounts())));
}

TEST_F(OpeningLedger, a_start_inside_a_month_keeps_the_balances_in_that_month) {
    open_books("2006-05-12");
    EXPECT_EQ(periods(), "2006-05 2006-05");
    EXPECT_EQ(rows_of("2006-04", "1"), "0");
    EXPECT_EQ(rows_of("2006-05", "1"), accounts()) << "not made a second time";
    EXPECT_EQ(rows_of("2006-05", "0"), accounts());
}

TEST_F(OpeningLedger, figures_that_do_not_balance_are_not_posted) {
    anna.open(699);
    type({"1001", "0", "0", "100", "0"});
    anna.click("LA1");
    anna.click("LA2");
    EXPECT_EQ(anna.value("Verdict"), "试算不平衡");
    EXPECT_NE(anna.cannot_click("btn_ok"), "");
    EXPECT_EQ(periods(), " ");
}

TEST_F(OpeningLedger, figures_of_an_account_divided_afterwards_are_cleared) {
    anna.open(699);
    type({"1002", "0", "0", "100", "0"});
    type({"3101", "0", "0", "100", "0"});
    anna.click("LA1");
    anna.close();
    anna.open(681);
    add_account("1002 银行存款", "100201", "工行");
    anna.close();
    open_books("2006-05-01");
    EXPECT_EQ(books.value("SELECT BEGIN4 FROM D6801 WHERE KM_ID='1002'"), "0.00");
    EXPECT_EQ(row("2006-04", "1", "1002"), "0.00 0.00 0.00 0.00");
}

TEST_F(OpeningLedger, customers_and_suppliers_get_opening_documents) {
    books.execute("INSERT INTO D1102 (KH_GYS_ID,KG_NAME,BEGIN_MONEY,BEGINYS_MONEY) VALUES "
                  "('K1','甲',100,20),('K2','乙',50,50),('K3','丙',0,0),('0','丁',7,0);"
                  "INSERT INTO D1103 (KH_GYS_ID,KG_NAME,BEGIN_MONEY,BEGINYS_MONEY) VALUES "
                  "('G1','戊',30,0),('0','己',9,0),('G2','庚',4,4)");
    open_books("2006-05-01");
    const std::string documents = "SELECT NOID+' '+STR(C,1)+' '+CONVERT(nvarchar(10),BDATE,120) AS "
                                  "N, TOLMONEY, YSMONEY, USER_ID FROM ";
    const auto lines = [&](const std::string& table) {
        std::string text;
        for (const Row& one : books.table(documents + table + " ORDER BY NOID")) {
            text += one.at("N") + " " + one.at("TOLMONEY") + " " + one.at("YSMONEY") + " " +
                    one.at("USER_ID") + "\n";
        }
        return text;
    };
    EXPECT_EQ(lines("D8102"), "初0 2 2006-05-01 7.00 7.00 admin\n"
                              "初K1 2 2006-05-01 100.00 100.00 admin\n"
                              "预0 3 2006-05-01 0.00 0.00 admin\n"
                              "预K1 3 2006-05-01 20.00 20.00 admin\n");
    EXPECT_EQ(lines("D8202"), "初G1 2 2006-05-01 30.00 30.00 admin\n"
                              "预G1 3 2006-05-01 0.00 0.00 admin\n");
}

TEST_F(OpeningLedger, books_taken_back_are_set_up_again_without_their_vouchers) {
    open_books("2006-05-01");
    anna.open(661);
    anna.click("Act_Add");
    anna.line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna.line(1, {{"ZY", "提现"}, {"KM_ID", "1002"}, {"D", "100"}});
    anna.click("Act_Save");
    anna.close();
    anna.close();
    anna.open(699);
    EXPECT_TRUE(anna.visible("ReadOnlyHint"));
    anna.close();
    anna.open(668);
    anna.answer_next(true);
    anna.click("btn_re");
    anna.expect_question("当前系统会计期间为首次建帐，反结将会清除到建帐前，是否确认反结帐？");
    anna.expect_message("反结帐完成!请从[会计科目初始化]模块进行首次期初建帐!");
    EXPECT_FALSE(anna.enabled("btn_ok"));
    anna.close();
    EXPECT_EQ(periods(), " ");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "2") << "nothing else is touched";
    open_books("2006-07-01");
    EXPECT_EQ(periods(), "2006-07 2006-07");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "0") << "lines go with their heads";
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6602 WHERE QJ='2006-05'"), "0");
}

} // namespace
} // namespace tests
