// Profit carried forward and periods closed on real books, over the end of a year and back.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class ClosingLedger : public LedgerDesk {
protected:
    // Dated inside the period, where the lists look for it.
    void save_in_period(const std::string& debit, const std::string& credit,
                        const std::string& amount) {
        anna.set("BDATE", current() + "-28");
        save_voucher(debit, credit, amount);
    }
    // Sales of 1,000 and costs of 600 in the current period, audited and posted.
    void trade() {
        new_voucher();
        save_in_period("1001", "5101", "1000");
        save_in_period("5401", "1001", "600");
        leave_vouchers();
        audit_all();
        post();
    }
    void leave_vouchers() {
        anna.on("TF6661_1").close();
        anna.on("TF6661").close();
    }
    void carry_forward() {
        anna.open(667);
        anna.set("bdate", current() + "-28");
        anna.set("KM_ID", "314115");
        anna.click("btn_ok");
        anna.click("btn_Cancel");
    }
    void close_period() {
        anna.open(668);
        anna.click("btn_ok");
        anna.expect_message("结帐完成!");
        anna.click("btn_Cancel");
    }
    void reopen() {
        anna.open(668);
        anna.click("btn_re");
        anna.expect_message("反结帐完成!");
        anna.click("btn_Cancel");
    }
    void finish_period() {
        trade();
        carry_forward();
        audit_all();
        post();
        close_period();
    }
    std::string current() { return books.value("SELECT PARAM FROM D6600 WHERE ID=2"); }
    std::string closing(const std::string& period, const std::string& account) {
        return books.value("SELECT J-D FROM D6602 WHERE INX=1 AND QJ='" + period +
                           "' AND KM_ID='" + account + "'");
    }
};

TEST_F(ClosingLedger, profit_and_loss_end_at_nothing_and_their_difference_is_the_profit) {
    trade();
    carry_forward();
    EXPECT_EQ(books.table("SELECT NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, USER_ID, T, D, T_SY FROM D6601 "
                          "WHERE T_SY=1"),
              (Rows{{{"NOID", "2024-03记3"},
                     {"PZQJ", "2024-03"},
                     {"PZZ", "记"},
                     {"PZZ_H", "3"},
                     {"PZZ_Z", "0"},
                     {"USER_ID", "admin"},
                     {"T", "0"},
                     {"D", "0"},
                     {"T_SY", "1"}}}));
    std::string lines;
    for (const Row& line : books.table("SELECT INX, KM_ID, J, D, ZY FROM D6601A WHERE "
                                       "NOID='2024-03记3' ORDER BY INX")) {
        lines += line.at("INX") + " " + line.at("KM_ID") + " " + line.at("J") + " " +
                 line.at("D") + " " + line.at("ZY") + "\n";
    }
    EXPECT_EQ(lines, "0 5101 1000.00 0.00 结转本期损益\n"
                     "1 5401 0.00 600.00 结转本期损益\n"
                     "3 3131 600.00 0.00 结转本期损益\n"
                     "4 3131 0.00 1000.00 结转本期损益\n");
    audit_all();
    post();
    EXPECT_EQ(closing("2024-03", "5101"), "0.00");
    EXPECT_EQ(closing("2024-03", "5401"), "0.00");
    EXPECT_EQ(closing("2024-03", "3131"), "-400.00") << "a credit";
    EXPECT_EQ(books.value("SELECT SY_D FROM D6602 WHERE INX=0 AND QJ='2024-03' AND KM_ID='5101'"),
              "1000.00");
}

TEST_F(ClosingLedger, only_leaves_are_listed_and_corrections_of_former_years_are_not) {
    anna.open(667);
    std::string codes;
    for (const Row& row : anna.rows()) codes += " " + row.at("A1");
    EXPECT_EQ(codes.find(" 5502 "), std::string::npos) << "a parent";
    EXPECT_NE(codes.find(" 550201"), std::string::npos);
    EXPECT_EQ(codes.find("5801"), std::string::npos);
    EXPECT_EQ(codes.find("3131"), std::string::npos) << "of another category";
    anna.set("KM_ID", "314115");
    anna.click("btn_ok");
    anna.expect_message("没有可结转的数据!");
}

TEST_F(ClosingLedger, what_was_carried_is_not_carried_again_once_it_is_posted) {
    trade();
    carry_forward();
    audit_all();
    post();
    anna.open(667);
    anna.set("KM_ID", "314115");
    anna.click("btn_ok");
    anna.expect_message("没有可结转的数据!");
}

TEST_F(ClosingLedger, the_account_is_chosen_from_the_chart) {
    anna.open(667);
    anna.lookup("KM_ID");
    EXPECT_EQ(std::to_string(anna.row_count()),
              books.value("SELECT COUNT(*) FROM D6801 WHERE KM_ID>'3141' AND KM_ID LIKE '3141%'"));
    anna.set("wl_id", "未分配");
    anna.click("btn_ok");
    EXPECT_EQ(anna.value("KM_ID"), "314115");
}

TEST_F(ClosingLedger, vouchers_of_the_period_must_be_audited_and_posted_first) {
    const char* const refusal = "本期还有未登帐的凭证，不可以进行结帐!";
    new_voucher();
    save_voucher("1001", "5101", "1000");
    leave_vouchers();
    anna.open(668);
    EXPECT_EQ(anna.value("Label9"), "1");
    anna.click("btn_ok");
    anna.expect_message(refusal);
    anna.click("btn_Cancel");
    audit_all();
    anna.open(668);
    EXPECT_EQ(anna.value("Label7"), "1");
    anna.click("btn_ok");
    anna.expect_message(refusal);
    anna.click("btn_Cancel");
    EXPECT_EQ(current(), "2024-03");
    post();
    close_period();
    EXPECT_EQ(current(), "2024-04");
}

TEST_F(ClosingLedger, an_unaudited_voucher_blocks_even_when_it_counts_as_posted) {
    new_voucher();
    save_voucher("1001", "5101", "1000");
    leave_vouchers();
    written_past_forms = true;
    books.execute("UPDATE D6601 SET T=0, D=1");
    anna.open(668);
    anna.click("btn_ok");
    anna.expect_message("本期还有未登帐的凭证，不可以进行结帐!");
}

TEST_F(ClosingLedger, numbers_begin_anew_in_the_next_period_and_balances_are_carried_on) {
    finish_period();
    new_voucher();
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    EXPECT_EQ(anna.value("PZQJ"), "2024-04");
    save_in_period("1002", "1001", "50");
    leave_vouchers();
    audit_all();
    post();
    EXPECT_EQ(closing("2024-04", "1001"), "350.00"); // 1000 - 600 - 50
    EXPECT_EQ(closing("2024-04", "3131"), "-400.00");
}

TEST_F(ClosingLedger, ten_periods_lead_over_the_end_of_the_year_and_all_the_way_back) {
    for (const char* next : {"2024-04", "2024-05", "2024-06", "2024-07", "2024-08", "2024-09",
                             "2024-10", "2024-11", "2024-12", "2025-01"}) {
        trade();
        close_period();
        EXPECT_EQ(current(), next);
    }
    EXPECT_EQ(closing("2024-12", "1001"), "4000.00"); // ten times 1000 - 600
    EXPECT_EQ(closing("2024-12", "5101"), "-10000.00");
    reopen();
    EXPECT_EQ(current(), "2024-12") << "over the end of the year";
    for (int i = 0; i < 9; ++i) reopen();
    EXPECT_EQ(current(), "2024-03");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "20") << "no voucher is touched";
    EXPECT_EQ(closing("2024-12", "1001"), "4000.00") << "nor a balance";
    anna.open(668);
    anna.answer_next(false);
    anna.click("btn_re");
    anna.expect_question("当前系统会计期间为首次建帐，反结将会清除到建帐前，是否确认反结帐？");
    EXPECT_EQ(current(), "2024-03");
}

TEST_F(ClosingLedger, books_of_strict_order_are_not_reopened) {
    close_period();
    books.execute("DELETE FROM SYS_SETTING WHERE NAME='mode';"
                  "INSERT INTO SYS_SETTING (NAME,VALUE) VALUES ('mode','strict')");
    anna.open(668);
    anna.click("btn_re");
    anna.expect_message("本帐套按严格方式管理,不能反结帐!请用红字凭证更正。");
    EXPECT_EQ(current(), "2024-04");
}

} // namespace
} // namespace tests
