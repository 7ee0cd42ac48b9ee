// The general ledger: its conditions word for word, the way to the lines behind a balance.
#include "host/forms/form.h"
#include "tests/forms/ledgers/book_desk.h"

namespace tests {
namespace {

class GeneralLedger : public BookDesk {
protected:
    GeneralLedger() : BookDesk(686) {}
};

// ---- the dialog

TEST_F(GeneralLedger, asks_for_the_current_period_and_the_top_level_as_soon_as_it_opens) {
    Person& anna = person();
    anna.expect_active("TF6686F");
    EXPECT_EQ(anna.value("EDT1"), "2024");
    EXPECT_EQ(anna.value("EDT2"), "3");
    EXPECT_EQ(anna.value("EDT3"), "3");
    EXPECT_EQ(anna.value("KM2"), "999999999");
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    EXPECT_TRUE(anna.checked("YS"));
    EXPECT_EQ(anna.control("YS").at("caption"), "无发生额不显示");
    anna.cannot_set("PZZ_H", "6");
    anna.forget_messages();
}

TEST_F(GeneralLedger, calls_the_procedure_for_accounts_periods_and_level) {
    Person& anna = person();
    anna.set("EDT2", "2");
    anna.set("KM1", "1001");
    anna.set("KM2", "2171");
    anna.set("PZZ_H", "3");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{
                  "EXEC SYS_686 @P_year='2024-01',@p_show='1',@KM_ID1='1001',@KM_ID2='2171',"
                  "@P_month1='2024-02',@P_month2='2024-03', @p_kmjb='3'"});
    EXPECT_EQ(anna.sent().back().function, "686");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●会计年度:2024    ●会计期间:2  至  3  ●科目级别： 3   ●科目代码：1001 至 2171");
}

TEST_F(GeneralLedger, accounts_without_turnover_are_shown_unless_ticked_and_the_choice_is_kept) {
    Person& anna = person();
    anna.check("YS", false);
    anna.set("PZZ_H", "2");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_NE(anna.sent_texts().back().find(",@p_show='0',"), std::string::npos);
    EXPECT_EQ(anna.value("ScopeLabel"), "含无发生额科目");
    anna.open(686);
    EXPECT_FALSE(anna.checked("YS"));
    EXPECT_EQ(anna.value("PZZ_H"), "2");
}

TEST_F(GeneralLedger, the_periods_run_forward_and_lie_within_the_books) {
    try_periods({
        {"2024", "3", "3", ""},
        {"2024", "5", "3", "会计期间开始 大于 结束!"},
        {"2024", "4", "4", "开始期间不能 大于 当前会计期间!当前会计期间:2024-03"},
        {"2023", "12", "12", "开始期间不能 小于 帐套启用日期!帐套启用日期为:2024-01"},
    });
}

TEST_F(GeneralLedger, cancelled_it_shows_nothing_and_refresh_says_why) {
    Person& anna = person();
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.row_count(), 0);
    anna.key("F5");
    anna.expect_message("您还没选择任何查询参数,请按【F3】呼出查询选项!");
}

// ---- the rows

TEST_F(GeneralLedger, its_columns_stand_in_the_customary_order) {
    at_the_book();
    EXPECT_EQ(columns_shown(), "KM_ID 科目, KM_NAME 会计科目, QJ 期间, ZY 摘要, J 借方金额, "
                               "D 贷方金额, FX 方向, E 余额");
}

TEST_F(GeneralLedger, only_amounts_below_zero_are_coloured) {
    Person& anna = at_the_book();
    EXPECT_TRUE(anna.colors(0).is_null());
    EXPECT_EQ(anna.colors(4).at("E").at("font"), 255);
    EXPECT_FALSE(anna.colors(4).contains("D"));
    EXPECT_EQ(anna.value("TipLabel"), "操作提示：【TAB 键】下一组，【空格/F3】重新筛选 ");
}

TEST_F(GeneralLedger, tab_passes_by_the_periods_of_an_account) {
    Person& anna = at_the_book();
    anna.key("Tab", "DBGridEh");
    EXPECT_EQ(anna.value("AccountLabel"), "1131  应收帐款");
    anna.key("Tab", "DBGridEh");
    EXPECT_EQ(anna.value("AccountLabel"), "1001  现金");
}

// ---- the way down and back

TEST_F(GeneralLedger, a_double_click_asks_for_the_lines_of_that_account_and_period) {
    Person& anna = at_the_book();
    anna.mark();
    anna.double_click(1, "J");
    anna.expect_active("TF6685");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{
                  "EXEC SYS_685 @P_year='2024-02',@p_show='1',@KM_ID1='1001',@KM_ID2='1001',"
                  "@P_month1='2024-02',@P_month2='2024-02'"});
    EXPECT_EQ(anna.sent().back().function, "685");
    EXPECT_EQ(anna.value("ConditionLabel"), "1001 现金");
    EXPECT_EQ(anna.value("ScopeLabel"), "2024-02    仅已过帐凭证");
    EXPECT_EQ(anna.row_count(), 9);
}

TEST_F(GeneralLedger, from_a_balance_to_the_voucher_and_all_the_way_back) {
    Person& anna = at_the_book();
    anna.double_click(4, "J");
    EXPECT_EQ(anna.value("OpenerLabel"), "总分类帐");
    anna.double_click(1, "J");
    anna.expect_active("TF6661_1");
    anna.key("Esc");
    anna.expect_active("TF6685");
    anna.key("Esc");
    anna.expect_active("TF6686");
    EXPECT_EQ(anna.row_count(), 9);
    EXPECT_EQ(anna.request({{"op", "forms"}}).at("forms").size(), 1U);
}

TEST_F(GeneralLedger, the_book_named_above_the_lines_leads_back_and_leaves_them_open) {
    Person& anna = at_the_book();
    anna.double_click(4, "J");
    anna.click("OpenerLabel");
    EXPECT_EQ(anna.request({{"op", "forms"}}).at("forms").at(0).at("form"), "TF6686");
    EXPECT_EQ(anna.request({{"op", "forms"}}).at("forms").size(), 2U);
}

TEST_F(GeneralLedger, the_lines_of_a_balance_may_be_asked_for_under_other_conditions) {
    Person& anna = at_the_book();
    anna.double_click(4, "J");
    anna.key("F3");
    anna.expect_active("TF6685F");
    anna.set("KM1", "2");
    anna.click("btn_ok");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●会计年度:2024     ●会计期间:3  至  3     ●科目代码：2 至 999999999999999");
    anna.inside([] { EXPECT_EQ(host::the_host().active->TabTitle(), "明细分类帐"); });
}

} // namespace
} // namespace tests
