// The detailed ledger: its conditions word for word, its rows, the way to the voucher and back.
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "tests/forms/ledgers/book_desk.h"

namespace tests {
namespace {

const std::string no_conditions = "您还没选择任何查询参数,请按【F3】呼出查询选项!";

class DetailedLedger : public BookDesk {
protected:
    DetailedLedger() : BookDesk(685) {}
};

// ---- the dialog

TEST_F(DetailedLedger, asks_for_the_current_period_and_all_accounts_as_soon_as_it_opens) {
    Person& anna = person();
    anna.expect_active("TF6685F");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{"SELECT param,(SELECT param  FROM d6600 where id=1) as fqj  "
                                       "FROM d6600 where id=2"});
    EXPECT_EQ(anna.value("EDT1"), "2024");
    EXPECT_EQ(anna.value("EDT2"), "3");
    EXPECT_EQ(anna.value("EDT3"), "3");
    EXPECT_EQ(anna.value("KM1"), "");
    EXPECT_EQ(anna.value("KM2"), "999999999999999");
    EXPECT_EQ(anna.value("ComboBox2"), "综合本位币");
    EXPECT_TRUE(anna.checked("YS"));
    EXPECT_EQ(anna.control("YS").at("caption"), "包含未过帐凭证");
}

TEST_F(DetailedLedger, cancelled_it_shows_nothing_and_refresh_says_why) {
    Person& anna = person();
    anna.click("btn_Cancel");
    anna.expect_active("TF6685");
    EXPECT_EQ(anna.row_count(), 0);
    EXPECT_FALSE(anna.visible("VoucherLabel"));
    anna.click("Act_Refresh");
    anna.expect_message(no_conditions);
}

TEST_F(DetailedLedger, calls_the_procedure_for_the_accounts_and_periods_typed) {
    Person& anna = person();
    anna.set("EDT2", "1");
    anna.set("KM1", "1001");
    anna.set("KM2", "1009");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{
                  "EXEC SYS_685 @P_year='2023-12',@p_show='0',@KM_ID1='1001',@KM_ID2='1009',"
                  "@P_month1='2024-01',@P_month2='2024-03'"});
    EXPECT_EQ(anna.sent().back().function, "685");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●会计年度:2024     ●会计期间:1  至  3     ●科目代码：1001 至 1009");
    EXPECT_EQ(anna.value("ScopeLabel"), "含未过帐凭证");
}

TEST_F(DetailedLedger, a_january_opens_with_the_december_before) {
    periods_of_the_books("2016-06", "2014-01");
    Person& anna = person();
    anna.set("EDT2", "1");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_TRUE(anna.sent_texts().back().starts_with("EXEC SYS_685 @P_year='2015-12',"));
}

TEST_F(DetailedLedger, unposted_vouchers_are_left_out_unless_ticked) {
    Person& anna = person();
    anna.check("YS", false);
    anna.mark();
    anna.click("btn_ok");
    EXPECT_NE(anna.sent_texts().back().find(",@p_show='1',"), std::string::npos);
    EXPECT_EQ(anna.value("ScopeLabel"), "仅已过帐凭证");
    anna.open(685);
    EXPECT_FALSE(anna.checked("YS")); // as left
}

TEST_F(DetailedLedger, a_quote_in_a_code_stays_inside_its_text) {
    Person& anna = person();
    anna.set("KM1", "10'01");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_NE(anna.sent_texts().back().find("@KM_ID1='10''01'"), std::string::npos);
}

TEST_F(DetailedLedger, the_periods_run_forward_and_lie_within_the_books) {
    try_periods({
        {"2024", "3", "3", ""},
        {"2024", "1", "12", ""},
        {"2024", "5", "3", "会计期间开始大于结束!"},
        {"2025", "12", "11", "会计期间开始大于结束!"},
        {"2024", "4", "4", "开始期间不能 大于 当前会计期间!当前会计期间:2024-03"},
        {"2024", "10", "10", "开始期间不能 大于 当前会计期间!当前会计期间:2024-03"},
        {"2023", "12", "12", "开始期间不能 小于 帐套启用日期!帐套启用日期为:2024-01"},
    });
}

TEST_F(DetailedLedger, books_that_were_not_set_up_have_none) {
    periods_of_the_books("", "");
    Person& anna = person();
    anna.expect_message("读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_FALSE(anna.enabled("btn_ok"));
}

TEST_F(DetailedLedger, an_account_may_be_picked_by_code_name_or_pinyin) {
    const std::string accounts = "SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0) ";
    const std::vector<std::string> columns = {"KM_ID text", "KM_NAME text"};
    data.answer(accounts + " and", columns, {{"100201", "银行存款-工行"}});
    data.answer(accounts, columns, {{"1001", "现金"}, {"100201", "银行存款-工行"}});
    Person& anna = person();
    anna.mark();
    anna.lookup("KM1");
    anna.expect_active("TFLINK_6801");
    EXPECT_EQ(anna.row_count(), 2);
    anna.set("wl_id", " gh");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  accounts, accounts + " and (KM_id like '%gh%') or(KM_NAME2 like '%gh%') "
                                       "or(pym like '%gh%') "}));
    anna.double_click(0, "KM_ID");
    anna.expect_active("TF6685F");
    EXPECT_EQ(anna.value("KM1"), "100201");
}

// ---- the rows

TEST_F(DetailedLedger, its_columns_stand_in_the_customary_order) {
    Person& anna = at_the_book();
    EXPECT_EQ(columns_shown(),
              "BDATE 凭证日期, PZZ 凭证字, ZY 摘要, J 借方金额, D 贷方金额, FX 方向, "
              "E 余额");
    EXPECT_EQ(anna.value("TipLabel"), "操作提示：【TAB 键】下一组，【空格/F3】重新筛选 ");
}

TEST_F(DetailedLedger, openings_and_totals_are_blue_and_amounts_below_zero_red) {
    Person& anna = at_the_book();
    const int blue = 0xFF0000, red = 255;
    for (const int row : {0, 3, 4, 5, 7, 8}) {
        for (const char* field : {"ZY", "J", "E"}) {
            EXPECT_EQ(anna.colors(row).at(field).at("font"), blue) << row << " " << field;
        }
    }
    EXPECT_TRUE(anna.colors(1).is_null());
    EXPECT_EQ(anna.colors(2).at("E").at("font"), red);
    EXPECT_FALSE(anna.colors(2).contains("D"));
}

TEST_F(DetailedLedger, tab_goes_from_account_to_account) {
    Person& anna = at_the_book();
    EXPECT_EQ(current_row(), 0);
    EXPECT_EQ(anna.value("AccountLabel"), "1001  现金");
    anna.key("Tab", "DBGridEh");
    EXPECT_EQ(current_row(), 5);
    EXPECT_EQ(anna.value("AccountLabel"), "1131  应收帐款-东方");
    anna.key("Tab", "DBGridEh");
    EXPECT_EQ(current_row(), 0);
    anna.key("Shift+Tab", "DBGridEh");
    EXPECT_EQ(current_row(), 5);
}

TEST_F(DetailedLedger, the_accounts_listed_beside_lead_to_their_rows) {
    Person& anna = at_the_book();
    const Rows groups = anna.rows("GroupGrid");
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].at("KM_ID"), "1001");
    EXPECT_EQ(groups[0].at("E"), "-15.00"); // the balance of its last row
    EXPECT_EQ(groups[1].at("KM_NAME"), "东方");
    anna.row(1, "GroupGrid");
    EXPECT_EQ(current_row(), 5);
    anna.row(2);
    EXPECT_EQ(anna.value("VoucherLabel"), "凭证 记-8");
}

TEST_F(DetailedLedger, enter_on_an_account_goes_on_to_its_lines) {
    Person& anna = at_the_book();
    anna.row(1, "GroupGrid");
    anna.key("Enter", "GroupGrid");
    EXPECT_EQ(anna.focused(), "DBGridEh");
    EXPECT_EQ(current_row(), 5);
}

TEST_F(DetailedLedger, read_anew_it_shows_the_same_line) {
    Person& anna = at_the_book();
    anna.row(6);
    anna.key("F5", "DBGridEh");
    EXPECT_EQ(current_row(), 6);
    anna.row(8);
    data.answer("EXEC SYS_685",
                {"PZZ text", "E money", "KM_ID text", "KM_NAME text", "inx int", "NOID text"},
                {{"记-7", "585", "1001", "现金", "0", "2024-03记007"},
                 {"记-7", "0", "1131", "应收帐款-东方", "1", "2024-03记007"},
                 {"记-8", "0", "1131", "应收帐款-东方", "1", "2024-03记008"}});
    anna.key("F5", "DBGridEh");
    EXPECT_EQ(current_row(), 2); // the last line the account has now
}

TEST_F(DetailedLedger, a_click_on_a_title_leaves_the_rows_in_their_order) {
    Person& anna = at_the_book();
    anna.inside([] {
        auto* form = host::the_host().active;
        dynamic_cast<host::TDBGridEh*>(form->FindComponent("DBGridEh"))->title_click(3);
    });
    EXPECT_EQ(anna.rows()[1].at("PZZ"), "记-7");
}

TEST_F(DetailedLedger, asked_again_it_offers_the_current_period_and_keeps_the_accounts) {
    Person& anna = person();
    anna.set("EDT2", "1");
    anna.set("KM1", "1001");
    anna.click("btn_ok");
    anna.key("F3");
    EXPECT_EQ(anna.value("EDT2"), "3");
    EXPECT_EQ(anna.value("KM1"), "1001");
}

TEST_F(DetailedLedger, space_and_F3_ask_again_and_cancel_changes_nothing) {
    Person& anna = at_the_book();
    for (const char* key : {"Space", "F3"}) {
        anna.key(key, "DBGridEh");
        anna.expect_active("TF6685F");
        anna.set("KM1", "5101");
        anna.mark();
        anna.click("btn_Cancel");
        EXPECT_TRUE(anna.sent_texts().empty());
        EXPECT_EQ(anna.row_count(), 9);
    }
    anna.click("Act_Refresh");
    EXPECT_NE(anna.sent_texts().back().find("@KM_ID1=''"), std::string::npos);
}

// ---- the way to the voucher and back

TEST_F(DetailedLedger, a_double_click_opens_the_voucher_and_closing_it_leads_back) {
    Person& anna = at_the_book();
    anna.double_click(1, "ZY");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "7");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "收货款");
    anna.close();
    anna.expect_active("TF6685");
    EXPECT_EQ(current_row(), 1);
    EXPECT_EQ(anna.request({{"op", "forms"}}).at("forms").size(), 1U);
}

TEST_F(DetailedLedger, a_posted_voucher_is_shown_and_cannot_be_changed) {
    Person& anna = at_the_book();
    anna.double_click(2, "ZY");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "8");
    anna.cannot_cell(0, "ZY", "改");
    anna.forget_messages();
}

TEST_F(DetailedLedger, an_opening_or_a_total_belongs_to_no_voucher) {
    Person& anna = at_the_book();
    for (const int row : {0, 4}) {
        anna.double_click(row, "ZY");
        anna.expect_active("TF6685");
        EXPECT_EQ(anna.value("VoucherLabel"), "");
    }
}

TEST_F(DetailedLedger, a_voucher_deleted_meanwhile_is_told) {
    data.answer("EXEC SYS_685",
                {"PZZ text", "E money", "KM_ID text", "KM_NAME text", "inx int", "NOID text"},
                {{"记-9", "1", "1001", "现金", "0", "2024-03记009"}});
    const std::string heads = "SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER "
                              "ON D6601.USER_ID = SYS_USER.USER_ID ";
    data.answer(heads,
                {"NOID text", "PZQJ text", "PZZ text", "PZZ_H int", "PZZ_Z int", "BDATE date",
                 "T int", "D bit", "USER_NAME text"},
                {});
    Person& anna = at_the_book();
    anna.double_click(0, "ZY");
    anna.expect_message("凭证 2024-03记009 已不存在，请按 F5 刷新帐簿!");
    anna.expect_active("TF6685");
}

} // namespace
} // namespace tests
