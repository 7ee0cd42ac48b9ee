// Posting on real books, read back in the tables and in the trial balance.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class PostingLedger : public LedgerDesk {
protected:
    std::string balance(const std::string& account, const std::string& kind,
                        const std::string& side) {
        return books.value("SELECT " + side + " FROM D6602 WHERE QJ='2024-03' AND KM_ID='" +
                           account + "' AND INX=" + kind);
    }
};

TEST_F(PostingLedger, every_account_gets_two_rows_also_without_movements) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    audit_all();
    post();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6602 WHERE QJ='2024-03' AND INX IN (0,1)"),
              books.value("SELECT 2*COUNT(*) FROM D6801"));
    EXPECT_EQ(balance("1131", "1", "J"), "0.00");
}

TEST_F(PostingLedger, vouchers_not_audited_stay_out) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    anna.close();
    audit_all();
    anna.on("TF6661").click("Act_Add");
    save_voucher("1001", "1002", "40");
    post();
    EXPECT_EQ(balance("1001", "0", "J"), "100.00");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "1");
}

TEST_F(PostingLedger, leaves_are_added_up_to_the_top_and_may_be_posted_again) {
    new_voucher();
    save_voucher("1002", "21710105", "13.13");
    save_voucher("21710101", "1002", "3.03");
    audit_all();
    post();
    post();
    EXPECT_EQ(balance("217101", "0", "J"), "3.03");
    EXPECT_EQ(balance("217101", "0", "D"), "13.13");
    EXPECT_EQ(balance("2171", "1", "D"), "10.10");
    EXPECT_EQ(balance("2171", "1", "J"), "0.00");
    EXPECT_EQ(balance("1002", "1", "J"), "10.10");
}

TEST_F(PostingLedger, the_profit_account_marks_the_carry_forward_with_sides_swapped) {
    new_voucher();
    save_voucher("1002", "5101", "1000");
    save_voucher("5101", "3131", "1000");
    audit_all();
    post();
    EXPECT_EQ(books.table("SELECT PZZ_H, T_SY FROM D6601 ORDER BY PZZ_H"),
              (Rows{{{"PZZ_H", "1"}, {"T_SY", "0"}}, {{"PZZ_H", "2"}, {"T_SY", "1"}}}));
    EXPECT_EQ(balance("5101", "0", "SY_D"), "1000.00");
    EXPECT_EQ(balance("5101", "0", "SY_J"), "0.00");
    EXPECT_EQ(balance("5101", "1", "D"), "0.00");
    EXPECT_EQ(balance("3131", "1", "D"), "1000.00");
}

TEST_F(PostingLedger, unposting_leaves_audit_and_carry_forward_marks) {
    new_voucher();
    save_voucher("1002", "3131", "1000");
    audit_all();
    post();
    unpost();
    EXPECT_EQ(books.table("SELECT T, D, T_SY FROM D6601"),
              (Rows{{{"T", "1"}, {"D", "0"}, {"T_SY", "1"}}}));
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6602 WHERE QJ='2024-03'"), "0");
}

TEST_F(PostingLedger, opening_balances_come_from_the_period_before) {
    written_past_forms = true;
    books.execute("UPDATE D6602 SET J=70 WHERE QJ='2024-02' AND KM_ID='1001' AND INX=1;"
                  "UPDATE D6602 SET D=70 WHERE QJ='2024-02' AND KM_ID='3101' AND INX=1");
    new_voucher();
    save_voucher("1131", "1001", "100");
    audit_all();
    post();
    trial_balance("1");
    EXPECT_EQ(account("1001").at("B1"), "70.00");
    EXPECT_EQ(account("1001").at("C2"), "100.00");
    EXPECT_EQ(account("1001").at("D1"), "-30.00");
    EXPECT_EQ(account("3101").at("D2"), "70.00");
    EXPECT_TRUE(account("1141").empty()) << "accounts without figures are left out";
    EXPECT_TRUE(anna.visible("Balanced"));
}

TEST_F(PostingLedger, every_level_has_the_same_footers) {
    new_voucher();
    save_voucher("1002", "21710105", "13.13");
    audit_all();
    post();
    trial_balance("1");
    EXPECT_EQ(anna.row_count(), 2);
    for (const char* level : {"Level1", "Level2", "Level3", "Level5"}) {
        anna.click(level);
        EXPECT_EQ(anna.footer("C1"), "13.13") << level;
        EXPECT_EQ(anna.footer("D2"), "13.13") << level;
        EXPECT_TRUE(anna.visible("Balanced"));
    }
    EXPECT_EQ(anna.row_count(), 4);
    EXPECT_EQ(account("21710105").at("KM_NAME").find("应交税金"), 0u);
}

TEST_F(PostingLedger, an_account_without_closing_row_is_not_listed) {
    new_voucher();
    save_voucher("1002", "1131", "10");
    audit_all();
    post();
    written_past_forms = true;
    books.execute("DELETE FROM D6602 WHERE QJ='2024-03' AND INX=1 AND KM_ID='1131'");
    trial_balance("1");
    EXPECT_TRUE(account("1131").empty());
    EXPECT_TRUE(anna.visible("Unbalanced"));
}

TEST_F(PostingLedger, books_of_strict_order_are_not_unposted) {
    books.execute("DELETE FROM SYS_SETTING WHERE NAME='mode';"
                  "INSERT INTO SYS_SETTING (NAME,VALUE) VALUES ('mode','strict')");
    anna.open(663);
    anna.click("btn_re");
    anna.expect_message("本帐套按严格方式管理,不能反登帐!请用红字凭证更正。");
}

} // namespace
} // namespace tests
