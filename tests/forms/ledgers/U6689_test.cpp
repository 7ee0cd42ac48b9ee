// The trial balance: its condition dialog, its footers, its verdict.
#include "tests/forms/ledgers/book_desk.h"

namespace tests {
namespace {

class TrialBalance : public BookDesk {
protected:
    TrialBalance() : BookDesk(689) { answer_rows("585.00"); }
    // Cash and receivables; the receivable's closing balance as given.
    void answer_rows(const std::string& receivable) {
        data.answer("select * from (SELECT D6602.KM_ID",
                    {"KM_ID text", "KM_NAME text", "OID text", "KM_J int", "B1 money", "B2 money",
                     "C1 money", "C2 money", "D1 money", "D2 money", "BB1 money", "BB2 money",
                     "CC1 money", "CC2 money", "DD1 money", "DD2 money"},
                    {{"1001", "现金", "Z", "1", "0", "0", "585", "0", "585", "0", "0", "0", "585",
                      "0", "585", "0"},
                     {"1131", "应收帐款", "Z", "1", "0", "0", "0", "585", "0", receivable, "0", "0",
                      "0", "585", "0", receivable},
                     {"113101", "应收帐款-东方", "1131", "2", "0", "0", "0", "585", "-3", "585",
                      "0", "0", "0", "0", "0", "0"}});
    }
};

TEST_F(TrialBalance, asks_for_the_current_period_as_soon_as_it_opens) {
    Person& anna = person();
    anna.expect_active("TF6689F");
    EXPECT_EQ(anna.value("EDT1"), "2024");
    EXPECT_EQ(anna.value("EDT2"), "3");
    EXPECT_EQ(anna.value("EDT3"), "1");
    EXPECT_EQ(anna.focused(), "EDT2");
}

TEST_F(TrialBalance, its_columns_stand_side_by_side) {
    at_the_book();
    EXPECT_EQ(columns_shown(),
              "KM_ID 科目, KM_NAME 会计科目, B1 期初余额|借方, B2 期初余额|贷方, "
              "C1 本期发生额|借方, C2 本期发生额|贷方, D1 期末余额|借方, D2 期末余额|贷方");
    EXPECT_EQ(person().rows()[0].at("C1"), "585.00");
    EXPECT_EQ(person().rows()[0].at("B1"), "0.00");
}

TEST_F(TrialBalance, asked_again_it_offers_the_current_period_anew) {
    Person& anna = person();
    anna.set("EDT2", "1");
    anna.click("btn_ok");
    anna.mark();
    anna.key("F3");
    anna.expect_active("TF6689F");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{"SELECT param,(SELECT param  FROM d6600 where id=1) as fqj  "
                                       "FROM d6600 where id=2"});
    EXPECT_EQ(anna.value("EDT2"), "3");
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●会计年度:2024    ●会计期间:1    ●科目级别:1");
}

TEST_F(TrialBalance, year_and_level_keep_to_their_ranges) {
    Person& anna = person();
    const std::vector<std::pair<const char*, const char*>> outside = {
        {"EDT1", "1999"}, {"EDT1", "2100"}, {"EDT3", "0"}, {"EDT3", "6"}};
    for (const auto& [box, value] : outside) {
        anna.cannot_set(box, value);
        anna.forget_messages();
    }
    anna.set("EDT1", "2099");
    anna.set("EDT3", "5");
}

TEST_F(TrialBalance, cancelled_it_shows_nothing_and_refresh_says_why) {
    Person& anna = person();
    anna.click("btn_Cancel");
    anna.expect_active("TF6689");
    EXPECT_EQ(anna.row_count(), 0);
    EXPECT_FALSE(anna.visible("Balanced"));
    EXPECT_FALSE(anna.visible("Unbalanced"));
    EXPECT_FALSE(anna.visible("Act_Add"));
    anna.click("Act_Refresh");
    anna.expect_message("您还没选择任何查询参数,请按【F3】呼出查询选项!");
}

TEST_F(TrialBalance, shows_the_conditions_and_sums_top_level_accounts_only) {
    Person& anna = person();
    anna.set("EDT3", "2");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●会计年度:2024    ●会计期间:3    ●科目级别:2");
    EXPECT_EQ(anna.footer("C1"), "585.00");
    EXPECT_EQ(anna.footer("C2"), "585.00");
    EXPECT_EQ(anna.footer("D1"), "585.00");
    EXPECT_EQ(anna.footer("KM_NAME"), "（仅合计一级科目,仅显示有业务数据科目）  合计：");
    EXPECT_TRUE(anna.visible("Balanced"));
    EXPECT_FALSE(anna.visible("Unbalanced"));
    const auto sent = anna.sent_texts();
    EXPECT_NE(sent.back().find("WHERE QJ='2024-02' AND INX=1) BE"), std::string::npos);
    EXPECT_NE(sent.back().find("(km_j<=2))t where"), std::string::npos);
}

TEST_F(TrialBalance, a_cent_is_enough_to_be_out_of_balance) {
    answer_rows("585.01");
    Person& anna = person();
    anna.click("btn_ok");
    EXPECT_FALSE(anna.visible("Balanced"));
    EXPECT_TRUE(anna.visible("Unbalanced"));
    answer_rows("585.00");
    anna.click("Act_Refresh");
    EXPECT_TRUE(anna.visible("Balanced"));
}

TEST_F(TrialBalance, amounts_below_zero_are_red) {
    Person& anna = person();
    anna.click("btn_ok");
    EXPECT_EQ(anna.colors(2).at("D1").at("font"), 255);
    EXPECT_FALSE(anna.colors(2).contains("D2"));
}

TEST_F(TrialBalance, another_level_of_the_same_period_is_a_click_away) {
    Person& anna = person();
    anna.set("EDT2", "2");
    anna.click("btn_ok");
    anna.mark();
    anna.click("Level3");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●会计年度:2024    ●会计期间:2    ●科目级别:3");
    EXPECT_NE(anna.sent_texts().back().find("WHERE (QJ='2024-02') AND (INX=0) AND (km_j<=3)"),
              std::string::npos);
}

TEST_F(TrialBalance, the_period_lies_within_the_books) {
    try_periods({
        {"2024", "3", "", ""},
        {"2024", "1", "", ""},
        {"2024", "4", "", "开始期间不能大于当前会计期间!当前会计期间:2024-03"},
        {"2025", "1", "", "开始期间不能大于当前会计期间!当前会计期间:2024-03"},
        {"2023", "12", "", "开始期间不能 小于 帐套启用日期!帐套启用日期为:2024-01"},
    });
}

TEST_F(TrialBalance, a_double_click_asks_for_the_lines_of_that_account_and_leads_back) {
    Person& anna = person();
    anna.set("EDT2", "2");
    anna.click("btn_ok");
    anna.mark();
    anna.double_click(2, "D1");
    anna.expect_active("TF6685");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{
                  "EXEC SYS_685 @P_year='2024-02',@p_show='1',@KM_ID1='113101',@KM_ID2='113101',"
                  "@P_month1='2024-02',@P_month2='2024-02'"});
    EXPECT_EQ(anna.value("ConditionLabel"), "113101 应收帐款-东方");
    anna.key("Esc");
    anna.expect_active("TF6689");
}

TEST_F(TrialBalance, who_may_not_open_the_detailed_ledger_is_told) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.function != "685"; };
    Person anna(data, options);
    anna.open(689);
    anna.click("btn_ok");
    anna.double_click(0, "D1");
    anna.expect_message("您没有打开“明细分类帐”的权限，请与系统管理员联系。");
    anna.expect_active("TF6689");
}

TEST_F(TrialBalance, the_level_is_kept_for_next_time) {
    Person& anna = person();
    anna.set("EDT3", "4");
    anna.click("btn_ok");
    anna.open(689);
    EXPECT_EQ(anna.value("EDT3"), "4");
}

TEST_F(TrialBalance, books_that_were_not_set_up_have_none) {
    periods_of_the_books("", "");
    Person& anna = person();
    anna.expect_message("读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_FALSE(anna.enabled("btn_ok"));
    EXPECT_EQ(anna.value("EDT1"), "2008"); // what stands there before any books
}

} // namespace
} // namespace tests
