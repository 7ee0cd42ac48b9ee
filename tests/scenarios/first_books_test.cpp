// The whole road once: a voucher typed, audited, posted, and found in the trial balance.
#include <gtest/gtest.h>

#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

namespace {

struct FirstBooks : testing::Test {
    FirstBooks() : books(options()), anna(books.data(), books.person()) {}

    static BooksOptions options() {
        BooksOptions options;
        options.start = "2024-03";
        options.today = "2024-03-15";
        return options;
    }

    // Cash drawn from the bank: 500.00.
    void type_withdrawal() {
        anna.line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "500"}});
        anna.line(1, {{"ZY", "提现"}, {"KM_ID", "1002"}, {"D", "500"}});
        anna.click("Act_Save");
    }

    // Goods sold for 1,000.00 and 13 % tax, paid into the bank.
    void type_sale() {
        anna.line(0, {{"ZY", "销售商品"}, {"KM_ID", "1002"}, {"J", "1130"}});
        anna.line(1, {{"ZY", "销售商品"}, {"KM_ID", "5101"}, {"D", "1000"}});
        anna.line(2, {{"ZY", "销项税"}, {"KM_ID", "21710105"}, {"D", "130"}});
        anna.click("Act_Save");
    }

    void enter_both() {
        anna.open(661);
        anna.click("Act_Add");
        anna.expect_active("TF6661_1");
        type_withdrawal();
        type_sale();
        anna.close();
        anna.expect_active("TF6661");
    }

    void audit_all() {
        anna.open(662);
        const int count = anna.row_count();
        for (int row = 0; row < count; ++row) {
            anna.request({{"op", "row"}, {"control", "DBGridEh"}, {"row", row}, {"mark", true}});
        }
        anna.click("Act_Audit");
        anna.forget_messages();
        anna.close();
    }

    void post() {
        anna.open(663);
        anna.click("btn_ok");
        anna.expect_message("登帐完成!");
        anna.close();
    }

    void open_trial_balance(const std::string& level) {
        anna.open(689);
        anna.expect_active("TF6689F");
        anna.set("EDT3", level);
        anna.click("btn_ok");
        anna.expect_active("TF6689");
    }

    Books books;
    Person anna;
};

Row row_of(const Rows& rows, const std::string& account) {
    for (const Row& row : rows) {
        if (row.at("KM_ID") == account) return row;
    }
    return {};
}

} // namespace

TEST_F(FirstBooks, a_saved_voucher_stands_in_the_tables_and_the_form_is_ready_for_the_next) {
    anna.open(661);
    anna.click("Act_Add");
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    type_withdrawal();
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "2");
    EXPECT_EQ(books.table("SELECT NOID, PZQJ, PZZ, PZZ_H, T, D FROM D6601"),
              (Rows{{{"NOID", "2024-03记001"},
                     {"PZQJ", "2024-03"},
                     {"PZZ", "记"},
                     {"PZZ_H", "1"},
                     {"T", "0"},
                     {"D", "0"}}}));
    EXPECT_EQ(books.value("SELECT SUM(J) - SUM(D) FROM D6601A"), "0.00");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A WHERE NOID='2024-03记001'"), "2");
}

TEST_F(FirstBooks, a_voucher_that_does_not_balance_is_refused_and_nothing_is_written) {
    anna.open(661);
    anna.click("Act_Add");
    anna.line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna.line(1, {{"ZY", "提现"}, {"KM_ID", "1002"}, {"D", "99.99"}});
    anna.mark();
    anna.click("Act_Save");
    anna.expect_message("借贷不平衡!");
    for (const host::SentStatement& one : anna.sent()) EXPECT_NE(one.call, "ExecSql") << one.text;
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "0");
    anna.cell(1, "D", "100");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "1");
}

TEST_F(FirstBooks, typed_audited_and_posted_it_is_in_the_trial_balance) {
    enter_both();
    EXPECT_EQ(anna.row_count(), 2);
    audit_all();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE T=1 AND D=0"), "2");
    post();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "2");

    open_trial_balance("1");
    const Rows rows = anna.rows();
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(row_of(rows, "1001")["C1"], "500.00");
    EXPECT_EQ(row_of(rows, "1001")["D1"], "500.00");
    EXPECT_EQ(row_of(rows, "1002")["C1"], "1130.00");
    EXPECT_EQ(row_of(rows, "1002")["C2"], "500.00");
    EXPECT_EQ(row_of(rows, "1002")["D1"], "630.00");
    EXPECT_EQ(row_of(rows, "2171")["D2"], "130.00");
    EXPECT_EQ(row_of(rows, "5101")["D2"], "1000.00");
    EXPECT_EQ(anna.footer("C1"), "1630.00");
    EXPECT_EQ(anna.footer("C2"), "1630.00");
    EXPECT_EQ(anna.footer("D1"), "1130.00");
    EXPECT_EQ(anna.footer("D2"), "1130.00");
}

TEST_F(FirstBooks, deeper_levels_list_more_accounts_under_the_same_footers) {
    enter_both();
    audit_all();
    post();
    open_trial_balance("3");
    EXPECT_EQ(anna.row_count(), 6); // 217101 and 21710105 beside the four of level 1
    EXPECT_EQ(row_of(anna.rows(), "21710105")["D2"], "130.00");
    EXPECT_EQ(anna.footer("D2"), "1130.00");
}

TEST_F(FirstBooks, unposting_takes_the_balances_back_and_leaves_the_audit) {
    enter_both();
    audit_all();
    post();
    anna.open(663);
    anna.click("btn_re");
    anna.expect_message("反登帐完成!");
    anna.close();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6602 WHERE QJ='2024-03'"), "0");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE T=1 AND D=0"), "2");
    post();
    EXPECT_EQ(books.value("SELECT J FROM D6602 WHERE QJ='2024-03' AND INX=1 AND KM_ID='1002'"),
              "630.00");
}

TEST_F(FirstBooks, a_list_from_before_the_posting_does_not_take_the_audit_back) {
    enter_both();
    audit_all();
    anna.open(662);
    post();
    anna.expect_active("TF6661#2");
    anna.click("Act_UnAudit");
    anna.expect_message("“2024-03记001”已登帐，不能反审核；请先反登帐!");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE T=1 AND D=1"), "2");
}

TEST_F(FirstBooks, what_anybody_types_arrives_as_it_was_typed) {
    const std::string odd = "O'Brien; -- \"%S\" 😀𠀀";
    anna.open(661);
    anna.click("Act_Add");
    anna.line(0, {{"ZY", odd}, {"KM_ID", "1001"}, {"J", "1"}});
    anna.line(1, {{"ZY", "'"}, {"KM_ID", "1002"}, {"D", "1"}});
    anna.click("Act_Save");
    EXPECT_EQ(books.table("SELECT ZY FROM D6601A ORDER BY INX"),
              (Rows{{{"ZY", odd}}, {{"ZY", "'"}}}));
}

} // namespace tests
