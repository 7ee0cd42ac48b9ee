// The month of the manual's first road, from empty books to the closing, with its figures.
#include <gtest/gtest.h>

#include "tests/support/bookkeeper.h"
#include "tests/support/books.h"

namespace tests {

namespace {

using Told = Bookkeeper::Told;

struct GuideMonth : testing::Test {
    GuideMonth() : books(options()), person(books.data(), books.person()), anna(person) {}

    static BooksOptions options() {
        BooksOptions options;
        options.start = "";
        options.today = "2024-01-31";
        return options;
    }

    void open_the_books() {
        anna.add_account({"100201", "工商银行", "借", "1002", 1, true});
        anna.type_openings({{"1001", "", "", "5000", ""},
                            {"100201", "", "", "200000", ""},
                            {"1243", "", "", "80000", ""},
                            {"2101", "", "", "85000", ""},
                            {"3101", "", "", "200000", ""}});
        anna.set_up("2024-01-01", 1);
    }

    void enter_the_vouchers() {
        anna.enter({{"", "2024-01-05", 0,
                     {{"提取现金", "1001", "2000", ""}, {"提取现金", "100201", "", "2000"}}, {}},
                    {"", "2024-01-10", 0,
                     {{"销售商品", "100201", "113000", ""},
                      {"销售商品", "5101", "", "100000"},
                      {"销售商品", "21710105", "", "13000"}},
                     {{"1101", "113000", ""}}},
                    {"", "2024-01-31", 0,
                     {{"结转销售成本", "5401", "60000", ""}, {"结转销售成本", "1243", "", "60000"}},
                     {}},
                    {"", "2024-01-31", 0,
                     {{"支付本月房租", "550208", "12000", ""},
                      {"支付本月房租", "100201", "", "12000"}},
                     {{"1209", "", "12000"}}}});
    }

    Books books;
    Person person;
    Bookkeeper anna;
};

std::string amount_of(const Rows& rows, const char* line, const std::string& number,
                      const char* amount) {
    for (const Row& row : rows)
        if (row.at(line) == number) return row.at(amount);
    return "no line " + number;
}

} // namespace

// Sales of 100000, cost of 60000 and rent of 12000 leave 28000; the bank takes 113000 and pays
// 12000, the cash drawn moves nothing; 205000 + 101000 of money and 20000 of goods are 326000.
TEST_F(GuideMonth, leads_from_empty_books_to_the_balance_sheet) {
    open_the_books();
    enter_the_vouchers();
    anna.audit_all();
    EXPECT_EQ(anna.post(), Told{"登帐完成!"});
    Row sums;
    anna.trial_balance("2024-01", 1, &sums);
    EXPECT_EQ(sums.at("B1"), "285000.00");
    EXPECT_EQ(sums.at("C1"), "187000.00");
    EXPECT_EQ(sums.at("D1"), "398000.00");
    EXPECT_EQ(sums.at("D1"), sums.at("D2"));

    anna.carry_forward("2024-01-31", "结转本期损益", "314115");
    anna.audit_all();
    EXPECT_EQ(anna.post(), Told{"登帐完成!"});
    const Rows sheet = anna.statement(671, "样式1", "2024-01");
    EXPECT_EQ(amount_of(sheet, "A2", "1", "A4"), "306000.00");   // 货币资金
    EXPECT_EQ(amount_of(sheet, "A2", "67", "A4"), "326000.00");  // 资产总计
    EXPECT_EQ(amount_of(sheet, "B2", "135", "B4"), "326000.00"); // 负债和所有者权益总计
    EXPECT_EQ(amount_of(sheet, "B2", "121", "B4"), "28000.00");  // 未分配利润
    EXPECT_EQ(amount_of(anna.statement(673, "样式1", "2024-01"), "A2", "30", "A3"), "28000.00");
    EXPECT_EQ(amount_of(anna.statement(672, "", "2024-01"), "A2", "21", "A4"), "101000");
    EXPECT_EQ(anna.close_period(), Told{"结帐完成!"});
}

} // namespace tests
