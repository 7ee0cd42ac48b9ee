// The cash and bank journal: its accounts, its call, the accounts on the other side.
#include "tests/forms/ledgers/book_desk.h"

namespace tests {
namespace {

class Journal : public BookDesk {
protected:
    Journal() : BookDesk(690) {}
};

TEST_F(Journal, asks_for_the_current_period_and_a_cash_or_bank_account) {
    Person& anna = person();
    anna.expect_active("TF6690F");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{"SELECT param  FROM d6600 where id=2",
                                        "SELECT KM_ID, KM_NAME FROM D6801 WHERE (KM_ID LIKE "
                                        "'1001%') OR (KM_ID LIKE '1002%')"}));
    EXPECT_EQ(anna.value("EDT1"), "2024");
    EXPECT_EQ(anna.value("EDT2"), "3");
    EXPECT_EQ(anna.value("EDT3"), "3");
    EXPECT_EQ(anna.value("ComboBox2"), "人民币");
    EXPECT_TRUE(anna.checked("YS"));
    EXPECT_EQ(columns_shown(), "KM_ID 科目代码, KM_NAME 科目名称");
    EXPECT_EQ(anna.row_count(), 2);
}

TEST_F(Journal, calls_the_procedure_for_one_account_without_a_last_one) {
    Person& anna = person();
    anna.row(1);
    anna.set("EDT2", "1");
    anna.check("YS", false);
    anna.mark();
    anna.click("btn_ok");
    anna.expect_active("TF6690");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{"EXEC SYS_685 @P_year='2023-12',@p_show='1',"
                                       "@KM_ID1='100201',@p_xj=1,@P_month1='2024-01',"
                                       "@P_month2='2024-03'"});
    EXPECT_EQ(anna.sent().back().function, "690");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●会计年度:2024    ●会计期间:1  至  3     ●科目：100201 工行");
    anna.open(690);
    EXPECT_FALSE(anna.checked("YS")); // as left
}

TEST_F(Journal, a_double_click_on_an_account_is_as_good_as_OK) {
    Person& anna = person();
    anna.mark();
    anna.double_click(1, "KM_NAME");
    anna.expect_active("TF6690");
    EXPECT_NE(anna.sent_texts().back().find("@KM_ID1='100201',@p_xj=1"), std::string::npos);
    EXPECT_NE(anna.sent_texts().back().find("@p_show='0'"), std::string::npos);
}

TEST_F(Journal, it_may_begin_before_the_books_did_and_not_after_the_current_period) {
    try_periods({
        {"2024", "3", "3", ""},
        {"2000", "1", "1", ""},
        {"2024", "5", "3", "会计期间开始大于结束!"},
        {"2024", "4", "5", "开始期间不能大于当前会计期间!当前会计期间:2024-03"},
    });
}

TEST_F(Journal, the_other_side_stands_beside_each_line) {
    Person& anna = person();
    anna.click("btn_ok");
    EXPECT_EQ(columns_shown(),
              "BDATE 凭证日期, PZZ 凭证字, ZY 摘要, KM_ID_DF 对方科目, J 借方金额, "
              "D 贷方金额, E 余额");
    EXPECT_EQ(anna.rows()[1].at("KM_ID_DF"), "应收帐款-东方");
    EXPECT_EQ(anna.rows()[1].at("FX"), "借"); // answered and not shown
    EXPECT_EQ(anna.colors(0).at("ZY").at("font"), 0xFF0000);
    EXPECT_EQ(anna.colors(2).at("E").at("font"), 255);
    EXPECT_EQ(anna.value("TipLabel"), "操作提示：【TAB 键】下一组，【空格/F3】重新筛选  ");
}

TEST_F(Journal, a_double_click_opens_the_voucher_and_closing_it_leads_back) {
    Person& anna = person();
    anna.click("btn_ok");
    anna.double_click(1, "KM_ID_DF");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "7");
    anna.close();
    anna.expect_active("TF6690");
}

TEST_F(Journal, one_account_after_the_other_is_asked_for_over_the_same_periods) {
    Person& anna = person();
    anna.set("EDT2", "2");
    anna.click("btn_ok");
    anna.key("Space", "DBGridEh");
    anna.expect_active("TF6690F");
    EXPECT_EQ(anna.value("EDT2"), "2");
}

TEST_F(Journal, cancelled_it_shows_nothing_and_refresh_says_why) {
    Person& anna = person();
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.row_count(), 0);
    anna.click("Act_Refresh");
    anna.expect_message("您还没选择任何查询参数,请按【F3】呼出查询选项!");
}

TEST_F(Journal, books_that_were_not_set_up_have_none) {
    periods_of_the_books("", "");
    Person& anna = person();
    anna.expect_message("读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_FALSE(anna.enabled("btn_ok"));
}

TEST_F(Journal, without_a_cash_or_bank_account_there_is_nothing_to_show) {
    data.answer("SELECT KM_ID, KM_NAME FROM D6801 WHERE", {"KM_ID text", "KM_NAME text"}, {});
    Person& anna = person();
    anna.click("btn_ok");
    anna.expect_message("没有现金、银行科目可以选择!请先在会计科目中增加 1001 或 1002 开头的科目。");
    anna.expect_active("TF6690F");
}

} // namespace
} // namespace tests
