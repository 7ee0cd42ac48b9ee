// A year from January to December through the forms, opened again back to its beginning and kept
// once more: the same balances in every period.
#include <gtest/gtest.h>

#include "app/books/open.h"
#include "automation/check/check.h"
#include "tests/support/bookkeeper.h"
#include "tests/support/books.h"

namespace tests {

namespace {

using Told = Bookkeeper::Told;

BooksOptions books_before_their_opening() {
    BooksOptions options;
    options.start = "";
    options.today = "2024-01-05";
    return options;
}

std::string month_text(int month) {
    return std::string("2024-") + (month < 10 ? "0" : "") + std::to_string(month);
}

// All balances of all periods, a row a line of text.
std::vector<std::string> balances(Books& books, const std::string& condition = "1=1") {
    std::vector<std::string> lines;
    for (const Row& row : books.table("SELECT QJ,KM_ID,INX,J,D,SY_J,SY_D FROM D6602 WHERE " +
                                      condition + " ORDER BY QJ,INX,KM_ID")) {
        lines.push_back(row.at("QJ") + " " + row.at("KM_ID") + " " + row.at("INX") + " " +
                        row.at("J") + " " + row.at("D") + " " + row.at("SY_J") + " " +
                        row.at("SY_D"));
    }
    return lines;
}

class WholeYear : public testing::Test {
protected:
    WholeYear()
        : books(books_before_their_opening()), person(books.data(), books.person()), anna(person) {}

    // Cash 1,000.00 and goods 500.00 against the capital.
    void open_the_books(const std::string& day = "2024-01-01") {
        EXPECT_EQ(anna.type_openings({{"1001", "0", "0", "1000", "0"},
                                      {"1243", "0", "0", "500", "0"},
                                      {"3101", "0", "0", "1500", "0"}}),
                  Told{});
        EXPECT_EQ(anna.set_up(day, 1), Told{});
    }

    // Month m sells for 100.00 × m in cash what cost 60.00 × m on credit, and pays 10.00 rent; in
    // July, of all months, nothing happens.
    void enter(int month) {
        if (month == 7) return;
        const std::string day = month_text(month) + "-15";
        const std::string price = std::to_string(100 * month);
        const std::string cost = std::to_string(60 * month);
        const std::vector<TypedVoucher> vouchers = {
            {"", day, 1, {{"销售商品", "1001", price, ""}, {"销售商品", "5101", "", price}}, {}},
            {"", day, 1, {{"购进商品", "1243", cost, ""}, {"购进商品", "2121", "", cost}}, {}},
            {"", day, 0, {{"结转销售成本", "5401", cost, ""}, {"结转销售成本", "1243", "", cost}}, {}},
            {"", day, 1, {{"支付房租", "550208", "10", ""}, {"支付房租", "1001", "", "10"}}, {}}};
        EXPECT_EQ(anna.enter(vouchers), Told{});
    }

    void audit_and_post() {
        EXPECT_EQ(anna.audit_all(), Told{});
        EXPECT_EQ(anna.post(), Told{"登帐完成!"});
    }

    void keep(int month) {
        enter(month);
        audit_and_post();
        const Told told = month == 7 ? Told{"没有可结转的数据!"} : Told{};
        EXPECT_EQ(anna.carry_forward(month_text(month) + "-28", "结转本期损益", "314115"), told);
        audit_and_post();
        if (month == 12) enter_distribution();
        EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
    }

    // December's profit and that of the months before it goes to the undistributed profit.
    void enter_distribution() {
        const std::string profit = closing("2024-12", "3131", "D");
        EXPECT_EQ(anna.enter({{"",
                               "2024-12-31",
                               0,
                               {{"结转本年利润", "3131", profit, ""},
                                {"结转本年利润", "314115", "", profit}},
                               {}}}),
                  Told{});
        audit_and_post();
    }

    void keep_the_year() {
        for (int month = 1; month <= 12; ++month) keep(month);
    }

    std::string closing(const std::string& period, const std::string& account,
                        const std::string& side) {
        return books.value("SELECT " + side + " FROM D6602 WHERE INX=1 AND QJ='" + period +
                           "' AND KM_ID='" + account + "'");
    }
    // What the audit of the books finds, in one text.
    std::string findings() {
        const auto session = app::open_books(books.file().string(), app::Access::ReadOnly);
        std::string all;
        for (const automation::Finding& one : automation::check_books(*session)) all += one.text;
        return all;
    }
    std::string current() { return books.value("SELECT PARAM FROM D6600 WHERE ID=2"); }

    Books books;
    Person person;
    Bookkeeper anna;
};

} // namespace

// Sales of the year are 100 × (78 − 7), the goods sold cost 60 × (78 − 7), eleven rents 10.00.
TEST_F(WholeYear, ends_with_the_sums_of_its_months) {
    open_the_books();
    keep_the_year();
    EXPECT_EQ(current(), "2025-01");
    EXPECT_EQ(closing("2024-12", "1001", "J"), "7990.00"); // 1000 + 7100 − 110
    EXPECT_EQ(closing("2024-12", "1243", "J"), "500.00");
    EXPECT_EQ(closing("2024-12", "2121", "D"), "4260.00"); // 60 × 71
    EXPECT_EQ(closing("2024-12", "3131", "D"), "0.00");
    EXPECT_EQ(closing("2024-12", "3141", "D"), "2730.00"); // 7100 − 4260 − 110
    EXPECT_EQ(closing("2024-12", "3101", "D"), "1500.00");
    EXPECT_EQ(closing("2024-11", "3131", "D"), "2260.00"); // 40 × (66 − 7) less ten rents
    EXPECT_EQ(books.value("SELECT dbo.fsy(5,'2024-12','5101','5101') AS A"), "7100.00");
    EXPECT_EQ(books.value("SELECT dbo.fsy(4,'2024-12','5401','5503') AS A"), "4370.00");
    // A new year's opening is what the old one closed with.
    EXPECT_EQ(books.value("SELECT dbo.FASC(1,'2025-00','1001','1001') AS A"), "7990.00");
}

TEST_F(WholeYear, reopened_month_by_month_and_closed_again_it_has_the_same_balances) {
    open_the_books();
    keep_the_year();
    const std::vector<std::string> before = balances(books);
    for (int month = 12; month >= 1; --month) {
        EXPECT_EQ(anna.reopen_period(), Told{"反结帐完成!"});
        EXPECT_EQ(current(), month_text(month));
        EXPECT_EQ(anna.unpost(), Told{"反登帐完成!"});
        EXPECT_EQ(balances(books, "QJ='" + month_text(month) + "'").size(), 0U);
    }
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "0");
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(anna.post(), Told{"登帐完成!"});
        EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
    }
    EXPECT_EQ(balances(books), before);
}

TEST_F(WholeYear, a_voucher_changed_in_a_reopened_month_is_carried_through_the_months_after_it) {
    open_the_books();
    for (int month = 1; month <= 4; ++month) keep(month);
    for (int month = 4; month >= 2; --month) EXPECT_EQ(anna.reopen_period(), Told{"反结帐完成!"});
    EXPECT_EQ(anna.unpost(), Told{"反登帐完成!"});
    EXPECT_EQ(anna.take_audit_back({"2024-02记002"}), Told{});
    EXPECT_EQ(anna.change("2024-02记002", {{0, "J", "125"}, {1, "D", "125"}}), Told{});
    audit_and_post();
    EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
    for (int month = 3; month <= 4; ++month) {
        EXPECT_EQ(anna.post(), Told{"登帐完成!"});
        EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
    }
    EXPECT_EQ(closing("2024-02", "2121", "D"), "185.00"); // 60 + 125 instead of 120
    EXPECT_EQ(closing("2024-04", "2121", "D"), "605.00"); // 60 × 10 + 5
    EXPECT_EQ(closing("2024-04", "1243", "J"), "505.00");
}

TEST_F(WholeYear, reopened_to_before_the_set_up_and_set_up_again_it_begins_anew) {
    open_the_books();
    keep_the_year();
    const std::vector<std::string> before = balances(books);
    for (int month = 12; month >= 1; --month) EXPECT_EQ(anna.reopen_period(), Told{"反结帐完成!"});
    EXPECT_EQ(anna.reopen_period(),
              Told{"反结帐完成!请从[会计科目初始化]模块进行首次期初建帐!"});
    EXPECT_EQ(current(), "");
    EXPECT_EQ(books.value("SELECT PARAM FROM D6600 WHERE ID=1"), "");

    open_the_books();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "0");
    keep_the_year();
    EXPECT_EQ(balances(books), before);
}

// Closing asks for no posting where there is no voucher, but balances travel by posting alone.
TEST_F(WholeYear, a_month_closed_without_posting_is_found_and_mended_by_posting_in_turn) {
    open_the_books();
    keep(1);
    EXPECT_EQ(anna.close_period(), Told{"结帐完成!"}); // February, never posted
    keep(3);
    EXPECT_EQ(closing("2024-03", "3101", "D"), "0.00");
    EXPECT_EQ(findings(), "2024-02: 已结帐却没有登帐,2024-01 的余额没有转过来;"
                          "请反结到 2024-02,逐月登帐");
    for (int month = 3; month >= 2; --month) EXPECT_EQ(anna.reopen_period(), Told{"反结帐完成!"});
    for (int month = 2; month <= 3; ++month) {
        EXPECT_EQ(anna.post(), Told{"登帐完成!"});
        EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
    }
    EXPECT_EQ(closing("2024-03", "3101", "D"), "1500.00");
    EXPECT_EQ(findings(), "");
}

// Opened in July with the half year's figures, the year's sums are those of the whole year.
TEST_F(WholeYear, set_up_again_inside_the_year_with_what_had_accumulated_it_ends_the_same) {
    open_the_books();
    for (int month = 1; month <= 6; ++month) keep(month);
    const std::string cash = closing("2024-06", "1001", "J");
    for (int month = 6; month >= 1; --month) EXPECT_EQ(anna.reopen_period(), Told{"反结帐完成!"});
    anna.reopen_period();
    // January to June: sales 2,100.00, cost 1,260.00, six rents; the profit of 780.00 is in 3131.
    EXPECT_EQ(cash, "3040.00");
    EXPECT_EQ(anna.type_openings({{"1001", "2100", "60", "3040", "0"},
                                  {"1243", "1260", "1260", "500", "0"},
                                  {"2121", "0", "1260", "1260", "0"},
                                  {"3101", "0", "0", "1500", "0"},
                                  {"3131", "1320", "2100", "780", "0"},
                                  {"5101", "2100", "2100", "0", "2100"},
                                  {"5401", "1260", "1260", "0", "1260"},
                                  {"550208", "60", "60", "0", "60"}}),
              Told{});
    EXPECT_EQ(anna.set_up("2024-07-01", 1), Told{});
    for (int month = 7; month <= 12; ++month) keep(month);
    EXPECT_EQ(closing("2024-12", "1001", "J"), "7990.00");
    EXPECT_EQ(closing("2024-12", "3141", "D"), "2730.00");
    EXPECT_EQ(books.value("SELECT dbo.fsy(5,'2024-12','5101','5101') AS A"), "7100.00");
    EXPECT_EQ(books.value("SELECT dbo.fsy(4,'2024-12','5401','5503') AS A"), "4370.00");
    EXPECT_EQ(books.value("SELECT dbo.FASC(1,'2024-00','1001','1001') AS A"), "1000.00");
    EXPECT_EQ(books.value("SELECT dbo.FASC(1,'2024-00','3131','3131') AS A"), "0.00");
}

} // namespace tests
