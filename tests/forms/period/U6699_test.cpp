// Opening figures: typed, saved, tested for balance, posted.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

class OpeningFigures : public FormDesk {
protected:
    OpeningFigures() : FormDesk(699) {}
    void SetUp() override {
        answer_period("");
        data.answer("SELECT * FROM V6801 WHERE ISEND=1 order by km_id",
                    {"KM_ID text", "KM_NAME2 text", "FX text", "ISEND int", "BEGIN1 money",
                     "BEGIN2 money", "BEGIN3 money", "BEGIN4 money", "BEGIN5 money"},
                    {{"1001", "现金", "借", "1", "0", "0", "0", "0", "0"},
                     {"2101", "短期借款", "贷", "1", "0", "0", "0", "0", "0"},
                     {"5101", "主营业务收入", "贷", "1", "0", "0", "0", "0", "0"}});
        answer_trial_balance({"80", "80", "30", "30", "100", "100"});
        data.answer("SELECT PARAM FROM D6600 WHERE ID=3", {"PARAM text"}, {{"2"}});
    }
    void answer_period(const std::string& period) {
        data.answer("SELECT PARAM FROM D6600 WHERE ID=2", {"PARAM text"}, {{period}});
    }
    // One debit and one credit account that hold B1, B2, C1, C2, D1, D2.
    void answer_trial_balance(const std::vector<std::string>& sums) {
        data.answer("SELECT KM_ID, KM_NAME, CASE FX",
                    {"KM_ID text", "KM_NAME text", "B1 money", "B2 money", "C1 money", "C2 money",
                     "D1 money", "D2 money"},
                    {{"1001", "现金", sums[0], "0", sums[2], "0", sums[4], "0"},
                     {"2101", "短期借款", "0", sums[1], "0", sums[3], "0", sums[5]}});
    }
    Person& at_posting() {
        person().click("LA2");
        person().expect_active("TF6699_1");
        person().click("btn_ok");
        person().expect_active("TF6699_2");
        return person();
    }
    static constexpr const char* set_up_hint =
        "帐套已启用，期初数据不能被更改!如需更改请从[期末结帐]模块反结至开帐前!";
};

TEST_F(OpeningFigures, lists_the_accounts_that_take_entries_and_names_the_steps) {
    Person& anna = person();
    anna.expect_active("TF6699");
    EXPECT_EQ(anna.caption(), "会计科目初始");
    EXPECT_EQ(anna.value("LA1"), "1、录入初始数据后请保存");
    EXPECT_EQ(anna.value("LA2"), "2、点击这里..试算平衡表");
    EXPECT_EQ(anna.value("LA3"), "3、转入总分类帐簿");
    EXPECT_FALSE(anna.visible("ReadOnlyHint"));
    EXPECT_EQ(anna.sent_texts().back(), "SELECT * FROM V6801 WHERE ISEND=1 order by km_id");
    std::string order;
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid.at("columns")) {
        order += column.at("field").get<std::string>() + " ";
    }
    EXPECT_EQ(order, "KM_ID KM_NAME2 FX BEGIN1 BEGIN2 BEGIN3 BEGIN4 BEGIN5 ");
}

TEST_F(OpeningFigures, the_year_began_with_the_balance_less_what_moved_since) {
    Person& anna = person();
    for (const int row : {0, 1}) {
        anna.line(row, {{"BEGIN4", "100"}, {"BEGIN2", "30"}, {"BEGIN3", "10"}});
    }
    EXPECT_EQ(anna.rows()[0].at("BEGIN1"), "80.00") << "借";
    EXPECT_EQ(anna.rows()[1].at("BEGIN1"), "120.00") << "贷";
    anna.cell(0, "BEGIN5", "7");
    anna.cell(0, "BEGIN4", "");
    EXPECT_EQ(anna.rows()[0].at("BEGIN1"), "-20.00") << "an emptied figure is nought";
    EXPECT_EQ(anna.colors(0).at("BEGIN1").at("font"), 255);
}

TEST_F(OpeningFigures, enter_walks_along_the_figures_and_into_the_next_row) {
    Person& anna = person();
    anna.focus("DBGridEh");
    for (const char* key : {"1", "Enter", "2", "Enter", "3", "Enter", "4", "Enter", "5", "Enter"}) {
        anna.key(key);
    }
    const Rows rows = anna.rows();
    EXPECT_EQ(rows[0].at("BEGIN2") + rows[0].at("BEGIN3") + rows[0].at("BEGIN4") +
                  rows[0].at("BEGIN5"),
              "1.002.003.004.00");
    EXPECT_EQ(rows[0].at("BEGIN1"), "4.00"); // 3 + 2 - 1
    EXPECT_EQ(rows[1].at("BEGIN2"), "5.00");
}

TEST_F(OpeningFigures, only_the_typed_figures_can_be_entered) {
    Person& anna = person();
    anna.cell(0, "BEGIN5", "1");
    for (const char* field : {"KM_ID", "KM_NAME2", "FX", "BEGIN1"}) {
        EXPECT_NE(anna.cannot_cell(0, field, "9"), "") << field;
    }
    anna.key("7"); // the cursor went to the first typed figure
    anna.key("Enter");
    EXPECT_EQ(anna.rows()[0].at("BEGIN2"), "7.00");
    EXPECT_NE(anna.cannot_cell(3, "BEGIN2", "9"), "") << "accounts are not made here";
}

TEST_F(OpeningFigures, the_first_step_saves_what_changed) {
    Person& anna = person();
    anna.click("LA1");
    EXPECT_TRUE(data.executed().empty()) << "nothing to save";
    anna.line(0, {{"BEGIN2", "30"}, {"BEGIN4", "100.005"}});
    anna.click("LA1");
    ASSERT_EQ(data.executed().size(), 1u);
    EXPECT_EQ(last_batch(),
              "UPDATE D6801 SET BEGIN1=70.01,BEGIN2=30,BEGIN4=100.01 WHERE KM_ID='1001';");
    anna.click("LA1");
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_F(OpeningFigures, whoever_may_not_change_types_and_saves_nothing) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "change"; };
    Person anna(data, options);
    anna.open(699);
    anna.cannot_cell(0, "BEGIN2", "30");
    anna.cannot_click("Act_Save");
    EXPECT_NE(anna.next_message().find("权限"), std::string::npos);
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(OpeningFigures, the_line_below_tells_whether_all_figures_balance) {
    Person& anna = person();
    EXPECT_EQ(anna.value("Opening"), "期初余额  借 0.00  贷 0.00  平衡");
    anna.cell(0, "BEGIN4", "100");
    EXPECT_EQ(anna.value("Opening"), "期初余额  借 100.00  贷 0.00  借方多 100.00");
    anna.cell(1, "BEGIN4", "100.01");
    EXPECT_EQ(anna.value("Opening"), "期初余额  借 100.00  贷 100.01  贷方多 0.01");
    EXPECT_EQ(anna.value("YearOpening"), "年初余额  借 100.00  贷 100.01  贷方多 0.01");
    anna.cell(1, "BEGIN2", "3");
    EXPECT_EQ(anna.value("Accumulated"), "本年累计  借 3.00  贷 0.00  借方多 3.00");
    EXPECT_EQ(anna.footer("BEGIN2"), "3.00");
}

TEST_F(OpeningFigures, the_trial_balance_waits_for_the_save) {
    Person& anna = person();
    anna.cell(0, "BEGIN4", "100");
    anna.click("LA2");
    anna.expect_message("请保存后再进行试算平衡!");
    anna.expect_active("TF6699");
    anna.click("LA1");
    anna.click("LA2");
    anna.expect_active("TF6699_1");
}

TEST_F(OpeningFigures, a_figure_still_being_typed_counts_as_unsaved) {
    Person& anna = person();
    anna.focus("DBGridEh");
    anna.key("5");
    anna.click("LA2");
    anna.expect_message("请保存后再进行试算平衡!");
}

TEST_F(OpeningFigures, the_third_step_does_nothing_of_its_own) {
    Person& anna = person();
    anna.mark();
    anna.click("LA3");
    anna.expect_active("TF6699");
    EXPECT_TRUE(anna.sent_texts().empty());
}

TEST_F(OpeningFigures, balance_is_exact_in_each_of_the_three_pairs) {
    struct Attempt {
        std::vector<std::string> sums;
        bool balanced;
    };
    const Attempt attempts[] = {
        {{"80", "80", "30", "30", "100", "100"}, true},
        {{"0", "0", "0", "0", "0", "0"}, true},
        {{"80", "80.01", "30", "30", "100", "100"}, false},
        {{"80", "80", "30.01", "30", "100", "100"}, false},
        {{"80", "80", "30", "30", "100", "99.99"}, false},
        {{"-80", "-80", "30", "30", "100", "100"}, true},
    };
    Person& anna = person();
    for (const Attempt& attempt : attempts) {
        answer_trial_balance(attempt.sums);
        anna.click("LA2");
        EXPECT_EQ(anna.enabled("btn_ok"), attempt.balanced);
        EXPECT_EQ(anna.value("Verdict"),
                  attempt.balanced ? "试算平衡!点击确定转入总分类帐" : "试算不平衡");
        anna.click("btn_Cancel");
        anna.expect_active("TF6699");
    }
}

TEST_F(OpeningFigures, the_trial_balance_adds_up_all_accounts) {
    Person& anna = person();
    anna.click("LA2");
    EXPECT_EQ(anna.caption(), "会计科目初始试算平衡");
    EXPECT_EQ(anna.footer("B1") + anna.footer("B2") + anna.footer("C1"), "80.0080.0030.00");
    EXPECT_EQ(anna.footer("C2") + anna.footer("D1") + anna.footer("D2"), "30.00100.00100.00");
    EXPECT_EQ(anna.sent_texts().back(),
              "SELECT KM_ID, KM_NAME, CASE FX WHEN '借' THEN BEGIN1  ELSE 0 END AS B1,CASE FX WHEN "
              "'贷' THEN BEGIN1 ELSE 0 END AS B2, BEGIN2 AS C1, BEGIN3 AS C2, CASE FX WHEN '借' "
              "THEN BEGIN4 ELSE 0 END AS D1,CASE FX WHEN '贷' THEN BEGIN4 ELSE 0 END AS D2 FROM "
              "D6801 ");
}

TEST_F(OpeningFigures, posting_takes_the_day_and_closes_both_windows) {
    Person& anna = at_posting();
    EXPECT_EQ(anna.caption(), "初始化登帐");
    EXPECT_EQ(anna.value("BDATE"), "2024-03-15") << "today";
    EXPECT_TRUE(anna.visible("DateHint")) << "not the first of the month";
    anna.set("BDATE", "2006-05-01");
    EXPECT_FALSE(anna.visible("DateHint"));
    anna.key("F2");
    EXPECT_EQ(anna.active(), "");
    ASSERT_EQ(data.executed().size(), 1u);
    EXPECT_TRUE(last_batch().starts_with("UPDATE D6801 SET BEGIN1 = 0, BEGIN2 = 0"));
    EXPECT_NE(last_batch().find("UPDATE D6600 SET PARAM='2006-05' WHERE ID=1;"), std::string::npos);
    EXPECT_EQ(last_log().function, "699");
    EXPECT_EQ(last_log().key, "2006-05");
    EXPECT_EQ(last_log().operation, "Edit");
}

TEST_F(OpeningFigures, the_voucher_words_are_shown_and_not_written) {
    Person& anna = at_posting();
    EXPECT_EQ(anna.control("R1").at("caption"), "记");
    EXPECT_EQ(anna.control("R3").at("caption"), "现收,现付,银收,银付,转");
    EXPECT_TRUE(anna.checked("R2")) << "those of the books";
    anna.check("R3");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch().find("ID=3"), std::string::npos);
}

TEST_F(OpeningFigures, a_refused_posting_keeps_the_window_and_the_day) {
    Person& anna = at_posting();
    anna.set("BDATE", "2006-01-01");
    data.refuse_next_batch("磁盘已满!");
    anna.click("btn_ok");
    anna.expect_message("磁盘已满!");
    anna.expect_active("TF6699_2");
    EXPECT_EQ(anna.value("BDATE"), "2006-01-01");
    anna.click("btn_ok");
    EXPECT_NE(last_batch().find("PARAM='2006-01'"), std::string::npos);
    EXPECT_NE(last_batch().find("'2005-12-31' as da"), std::string::npos);
}

TEST_F(OpeningFigures, posting_may_be_left_and_begun_again) {
    Person& anna = at_posting();
    anna.key("Esc");
    anna.expect_active("TF6699");
    anna.key("F7"); // the second step by key
    anna.expect_active("TF6699_1");
    anna.click("btn_Cancel");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(OpeningFigures, no_day_no_posting) {
    Person& anna = at_posting();
    anna.set("BDATE", "");
    anna.click("btn_ok");
    anna.expect_message("帐套启用日期不是有效的日期，请录入日期，例如 2024-03-05!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(OpeningFigures, posting_needs_the_right_to_post) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "post"; };
    Person anna(data, options);
    anna.open(699);
    anna.click("LA2");
    anna.click("btn_ok");
    anna.click("btn_ok");
    anna.expect_message("您没有初始化登帐的权限，请与系统管理员联系。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(OpeningFigures, books_that_are_set_up_show_their_figures_read_only) {
    answer_period("2024-03");
    Person& anna = person();
    EXPECT_TRUE(anna.visible("ReadOnlyHint"));
    EXPECT_EQ(anna.value("ReadOnlyHint"), set_up_hint);
    for (const char* step : {"LA1", "LA2", "LA3"}) EXPECT_FALSE(anna.visible(step));
    EXPECT_NE(anna.cannot_cell(0, "BEGIN2", "9"), "");
    EXPECT_FALSE(anna.enabled("Act_Save"));
    EXPECT_FALSE(anna.enabled("Act_Other"));
    answer_period("");
    anna.click("Act_Refresh"); // taken back to before the set-up meanwhile
    EXPECT_FALSE(anna.visible("ReadOnlyHint"));
    EXPECT_TRUE(anna.visible("LA2"));
    anna.cell(0, "BEGIN2", "9");
}

TEST_F(OpeningFigures, books_set_up_meanwhile_are_neither_saved_nor_posted_again) {
    Person& anna = person();
    anna.cell(0, "BEGIN4", "100");
    answer_period("2024-03");
    anna.click("LA1");
    anna.expect_message(set_up_hint);
    answer_period("");
    anna.click("LA1");
    const std::size_t saved = data.executed().size();
    at_posting();
    answer_period("2024-03");
    anna.click("btn_ok");
    anna.expect_message(
        "帐套已在 2024-03 启用，不能再次初始化!请先从[期末结帐]模块反结至开帐前。");
    EXPECT_EQ(data.executed().size(), saved);
}

} // namespace
} // namespace tests
