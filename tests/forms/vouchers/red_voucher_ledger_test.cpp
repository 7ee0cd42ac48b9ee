// Red vouchers and books kept in the strict way, on real books.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class RedVoucherLedger : public LedgerDesk {
protected:
    void keep_strictly() {
        books.execute("DELETE FROM SYS_SETTING WHERE NAME='mode' OR NAME='two_persons';"
                      "INSERT INTO SYS_SETTING (NAME,VALUE) VALUES ('mode','strict')");
    }
    int row_of(const std::string& item) {
        const Rows rows = anna.rows("GRID2");
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows[row].at("ID") == item) return static_cast<int>(row);
        }
        return 0;
    }
    // 记-1: rent of 100 paid in cash, allocated as an outflow, and posted; the list is open.
    void post_a_payment() {
        new_voucher();
        anna.line(0, {{"ZY", "付房租"}, {"KM_ID", "1133"}, {"J", "100"}});
        anna.line(1, {{"ZY", "付房租"}, {"KM_ID", "1001"}, {"D", "100"}});
        anna.set("PZZ_Z", "3");
        anna.click("Act_xj");
        anna.cell(row_of("1209"), "D", "100", "GRID2");
        anna.click("btn_ok");
        anna.click("Act_Save");
        anna.close();
        anna.close();
        post_all();
        anna.open(661);
    }
    void post_all() {
        audit_all();
        post();
    }
    // The month's amount in that line of the cash flow statement, recalculated.
    std::string cash_flow_line(const std::string& number) {
        anna.open(672);
        anna.set("Edit1", "2024-03");
        anna.click("Act_Other");
        anna.close();
        return books.value("SELECT A4 FROM D6831 WHERE A2='" + number + "'");
    }
    std::string movement(const std::string& account, const std::string& side) {
        return books.value("SELECT " + side +
                           " FROM D6602 WHERE QJ='2024-03' AND INX=0 AND "
                           "KM_ID='" +
                           account + "'");
    }
};

TEST_F(RedVoucherLedger, takes_the_voucher_back_in_the_books_and_in_the_cash_flow) {
    post_a_payment();
    anna.click("Act_Red");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "2");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "红字冲销2024-03记-1 付房租");
    EXPECT_EQ(anna.rows()[0].at("J"), "-100.00");
    EXPECT_EQ(anna.colors(0).at("J").at("font"), 255);
    anna.close();
    EXPECT_EQ(anna.row_count(), 2) << "the list shows it";
    EXPECT_EQ(books.table("SELECT PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,T,D FROM D6601 WHERE NOID="
                          "'2024-03记002'"),
              (Rows{{{"PZQJ", "2024-03"},
                     {"PZZ", "记"},
                     {"PZZ_H", "2"},
                     {"PZZ_Z", "0"},
                     {"BDATE", "2024-03-15 00:00:00.000"},
                     {"T", "0"},
                     {"D", "0"}}}));
    EXPECT_EQ(books.table("SELECT KM_ID,J,D FROM D6601A WHERE NOID='2024-03记002' ORDER BY INX"),
              (Rows{{{"KM_ID", "1133"}, {"J", "-100.00"}, {"D", "0.00"}},
                    {{"KM_ID", "1001"}, {"J", "0.00"}, {"D", "-100.00"}}}));
    EXPECT_EQ(books.table("SELECT D6820ID,J,D FROM D6601B WHERE NOID='2024-03记002'"),
              (Rows{{{"D6820ID", "1209"}, {"J", "0.00"}, {"D", "-100.00"}}}));
    anna.close();
    post_all();
    for (const char* account : {"1133", "1001"}) {
        EXPECT_EQ(movement(account, "J"), "0.00") << account;
        EXPECT_EQ(movement(account, "D"), "0.00") << account;
    }
    EXPECT_EQ(cash_flow_line("18"), "0"); // other payments of the business
    EXPECT_EQ(cash_flow_line("56"), "0"); // what cash increased by
}

TEST_F(RedVoucherLedger, a_voucher_of_a_closed_period_is_reversed_in_the_open_one) {
    post_a_payment();
    books.execute("UPDATE D6600 SET PARAM='2024-04' WHERE ID=2");
    anna.click("Act_Red");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZQJ"), "2024-04");
    EXPECT_EQ(anna.value("BDATE"), "2024-04-30") << "today, 2024-03-15, lies outside";
    EXPECT_EQ(anna.rows()[1].at("ZY"), "红字冲销2024-03记-1 付房租");
    EXPECT_EQ(books.value("SELECT NOID FROM D6601 WHERE PZQJ='2024-04'"), "2024-04记001");
}

TEST_F(RedVoucherLedger, a_second_one_is_asked_for_and_a_deleted_one_does_not_count) {
    post_a_payment();
    anna.click("Act_Red");
    anna.close();
    anna.row(0);
    anna.answer_next(false);
    anna.click("Act_Red");
    anna.expect_question("“2024-03 记-1”已由红字凭证 2024-03记-2 冲销,还要再冲销一次吗?");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "2");
    anna.row(1);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.forget_messages();
    anna.row(0);
    anna.click("Act_Red");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "2");
}

TEST_F(RedVoucherLedger, a_red_voucher_reversed_brings_the_business_back) {
    post_a_payment();
    anna.click("Act_Red");
    anna.close();
    anna.close();
    post_all();
    anna.open(661);
    anna.row(1);
    anna.click("Act_Red");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "红字冲销2024-03记-2 红字冲销2024-03记-1 付房租");
    EXPECT_EQ(anna.rows()[0].at("J"), "100.00");
    EXPECT_EQ(books.table("SELECT J,D FROM D6601B WHERE NOID='2024-03记003'"),
              (Rows{{{"J", "0.00"}, {"D", "100.00"}}}));
}

TEST_F(RedVoucherLedger, the_red_voucher_is_an_ordinary_one_until_it_is_posted) {
    post_a_payment();
    anna.click("Act_Red");
    anna.set("PZZ_Z", "1");
    anna.click("Act_Save");
    anna.expect_active("TF6661");
    EXPECT_EQ(books.value("SELECT PZZ_Z FROM D6601 WHERE NOID='2024-03记002'"), "1");
    EXPECT_EQ(books.value("SELECT D FROM D6601B WHERE NOID='2024-03记002'"), "-100.00");
    EXPECT_EQ(anna.row_count(), 2);
}

TEST_F(RedVoucherLedger, its_allocation_follows_another_number_and_goes_with_its_cash_lines) {
    post_a_payment();
    anna.click("Act_Red");
    anna.set("PZZ_H", "7");
    anna.click("Act_Save");
    EXPECT_EQ(books.table("SELECT NOID,J,D FROM D6601B ORDER BY NOID"),
              (Rows{{{"NOID", "2024-03记001"}, {"J", "0.00"}, {"D", "100.00"}},
                    {{"NOID", "2024-03记007"}, {"J", "0.00"}, {"D", "-100.00"}}}));
    anna.expect_active("TF6661");
    anna.row(1);
    anna.click("Act_Modify");
    anna.cell(1, "KM_ID", "1131");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601B WHERE NOID='2024-03记007'"), "0");
}

TEST_F(RedVoucherLedger, strict_books_keep_what_is_posted) {
    post_a_payment();
    keep_strictly();
    const std::string locked =
        "“2024-03 记-1”已登帐，本帐套按严格方式管理，不能修改或删除；如需更正，请用红字凭证!";
    anna.click("Act_Delete");
    anna.expect_message(locked);
    anna.click("Act_Modify");
    anna.expect_message(locked);
    EXPECT_NE(anna.cannot_cell(0, "J", "1"), "");
    anna.close();
    anna.open(662);
    anna.click("Act_UnAudit");
    anna.expect_message("“2024-03记001”已登帐，不能反审核；如需更正，请用红字凭证!");
    anna.close();
    anna.open(663);
    anna.click("btn_re");
    anna.expect_message("本帐套按严格方式管理,不能反登帐!请用红字凭证更正。");
    anna.click("btn_Cancel");
    EXPECT_EQ(books.table("SELECT T,D FROM D6601"), (Rows{{{"T", "1"}, {"D", "1"}}}));
    anna.on("TF6661").click("Act_Red");
    anna.expect_active("TF6661_1");
}

} // namespace
} // namespace tests
