// A customer's month: goods sold for cash and on credit, a delivery paid at the door, other income.
#include "tests/forms/invoicing/invoicing_desk.h"

namespace tests {
namespace {

// What happened to K1, in order:
//
//   day    what                          owes    pays    discount   account
//   03-05  goods, 600 of them in cash    650.50  600.00   0.50      1
//   03-08  rent, left open               120.00
//   03-09  a fine, paid at once          (70.00)  70.00             2
//   03-11  goods on credit               100.00
//   03-12  the delivery is paid                  100.00             2
//   03-14  a receipt                             100.00  20.00      1
//
// He owed 870.50, paid 800.00 and was let off 20.50: 50.00 are left. The fine passes him by.
class MonthOfACustomer : public InvoicingDesk {
protected:
    MonthOfACustomer() {
        books.execute("INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,PYM,KM_ID,T) VALUES "
                      "(0,'01','租金收入','ZJSR','5102',1),(0,'02','罚款收入','FKSR','5301',1)");
        sell("2024-03-05", "26", "24.5", "13.5", "600", "0.5");
        anna.close();
        other("2024-03-08", "其他应收", 0, "120");
        other("2024-03-09", "收款结算", 1, "70");
        anna.open(631);
        sell("2024-03-11", "4", "25", "", "", "");
        anna.close();
        deliver();
        receive();
    }
    // Goods, and something besides; money and discount taken at once.
    void sell(const std::string& day, const std::string& quantity, const std::string& price,
              const std::string& besides, const std::string& money, const std::string& discount) {
        new_invoice();
        anna.set("KH_GYS_ID", "K1");
        anna.set("CK_ID", "C1");
        anna.set("BDATE", day);
        anna.line(0, {{"WL_ID", "W1"}, {"SL", quantity}, {"SJ", price}});
        if (!besides.empty()) anna.line(1, {{"WL_ID", "W3"}, {"SL", "1"}, {"SJ", besides}});
        anna.set("BQMONEY", money);
        anna.set("YHMONEY", discount);
        anna.click("Act_Save");
    }
    void other(const std::string& day, const std::string& kind, int category,
               const std::string& amount) {
        anna.open(646);
        anna.click("Act_Add");
        anna.set("CB1", kind);
        anna.set("KH_GYS_ID", "K1");
        anna.set("BDATE", day);
        anna.set("JY_ID", "2");
        anna.cell(category, "MONEY", amount);
        anna.click("Act_Save");
        anna.close();
    }
    void deliver() {
        books.execute("INSERT INTO D8500A (NOID,D8102NOID) VALUES ('F1','202240315003')");
        anna.open(631);
        anna.click("Act_Import");
        anna.set("Edit1", "F1");
        anna.click("btn_ref");
        anna.cell(1, "BDATE", "2024-03-12", "GRID1");
        anna.cell(1, "JY_ID", "2", "GRID1");
        anna.click("btn_ok");
        anna.click("btn_Cancel");
    }
    void receive() {
        anna.click("Act_Add");
        anna.set("KH_GYS_ID", "K1");
        anna.set("BDATE", "2024-03-14");
        anna.set("MONEY", "100");
        anna.set("YH", "20");
        anna.click("Act_Save");
        anna.close();
    }
};

TEST_F(MonthOfACustomer, each_document_is_settled_by_what_was_paid_on_it) {
    EXPECT_EQ(settled("202240315001"), "650.50 650.50 0.00"); // 600.50 at once, 50 by the receipt
    EXPECT_EQ(settled("202240315003"), "100.00 100.00 0.00"); // on delivery
    EXPECT_EQ(books.table("SELECT NOID,SUMMONEY,YSMONEY FROM D651 ORDER BY NOID"),
              (Rows{{{"NOID", "646240315001"}, {"SUMMONEY", "70.00"}, {"YSMONEY", "50.00"}},
                    {{"NOID", "646240315003"}, {"SUMMONEY", "70.00"}, {"YSMONEY", "0.00"}}}));
}

TEST_F(MonthOfACustomer, he_owes_what_is_left_and_the_report_says_so) {
    EXPECT_EQ(books.value("SELECT XJYS FROM VD631 WHERE KH_GYS_ID='K1'"), "50.00");
    const Rows rows = books.table("exec SYS_YS @PARAM=0,@PARAM1=1,@PARAM2=0,"
                                  "@BDATE='2024-03-01',@EDATE='2024-04-01'");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].at("B"), "870.50");
    EXPECT_EQ(rows[0].at("C"), "820.50"); // with the discount
    EXPECT_EQ(rows[0].at("D"), "50.00");
}

TEST_F(MonthOfACustomer, each_account_holds_the_money_that_came_in) {
    EXPECT_EQ(books.table("SELECT JY_ID,SUM(INMONEY) AS M FROM VIEW_XJ GROUP BY JY_ID "
                          "ORDER BY JY_ID"),
              (Rows{{{"JY_ID", "1"}, {"M", "700.00"}}, {{"JY_ID", "2"}, {"M", "170.00"}}}));
}

TEST_F(MonthOfACustomer, what_a_receipt_wrote_off_opens_again_with_it) {
    anna.open(631);
    const Rows rows = anna.rows();
    int row = 0;
    while (rows[static_cast<std::size_t>(row)].at("BDATE") != "2024-03-14") ++row;
    anna.row(row);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.next_message();
    EXPECT_EQ(settled("202240315001"), "650.50 600.50 50.00");
    EXPECT_EQ(books.value("SELECT XJYS FROM VD631 WHERE KH_GYS_ID='K1'"), "170.00");
    anna.open(646); // now nothing names the rent any more
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“646240315001”吗？");
    EXPECT_EQ(books.value("SELECT XJYS FROM VD631 WHERE KH_GYS_ID='K1'"), "50.00");
}

} // namespace
} // namespace tests
