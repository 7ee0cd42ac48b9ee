// Closing a period and taking the closing back.
#include "tests/forms/period_desk.h"

namespace tests {
namespace {

class Closing : public PeriodDesk {
protected:
    Closing() : PeriodDesk(668) {}
    void SetUp() override {
        answer_counts("2006-12", "0", "0");
        answer_periods("2006-01", "2006-12");
        answer_mode("small");
    }
    void answer_periods(const std::string& first, const std::string& current) {
        data.answer(select_periods, {"PARAM text", "PARAM1 text"}, {{first, current}});
    }
    static constexpr const char* select_periods =
        "SELECT LEFT(PARAM, 7) AS PARAM,(SELECT LEFT(PARAM, 7) AS PARAM FROM D6600 WHERE ID = 2) "
        "AS PARAM1 FROM D6600 WHERE (ID = 1)";
};

TEST_F(Closing, shows_the_period_and_what_waits) {
    answer_counts("2006-12", "2", "1");
    Person& anna = person();
    anna.expect_active("TF6668");
    EXPECT_EQ(anna.caption(), "期末结帐");
    expect_period("2006-12", "2", "1");
    EXPECT_EQ(anna.value("btn_ok"), "结帐 F2");
    EXPECT_EQ(anna.value("btn_re"), "反结");
    EXPECT_EQ(anna.sent_texts(), std::vector<std::string>{select_counts});
}

TEST_F(Closing, moves_the_period_on_and_writes_nothing_else) {
    Person& anna = person();
    anna.mark();
    anna.key("F2");
    anna.expect_message("结帐完成!");
    anna.expect_active("TF6668");
    ASSERT_EQ(data.executed().size(), 1u);
    EXPECT_EQ(last_batch(), "UPDATE D6600 SET PARAM='2007-01' WHERE ID=2;");
    EXPECT_EQ(last_log().function, "668");
    EXPECT_EQ(last_log().key, "期末结帐2006-12");
    EXPECT_EQ(last_log().operation, "Edit");
    const std::vector<std::string> sent = anna.sent_texts();
    ASSERT_EQ(sent.size(), 3u) << "counted anew before and after";
    EXPECT_EQ(sent.front(), select_counts);
    EXPECT_EQ(sent.back(), select_counts);
}

TEST_F(Closing, a_month_inside_the_year_is_followed_by_the_next) {
    answer_counts("2006-09", "0", "0");
    person().click("btn_ok");
    person().expect_message("结帐完成!");
    EXPECT_EQ(last_batch(), "UPDATE D6600 SET PARAM='2006-10' WHERE ID=2;");
}

TEST_F(Closing, vouchers_that_wait_for_audit_or_posting_block_it_alike) {
    struct Attempt {
        const char *to_post, *not_audited;
        bool closed;
    };
    const Attempt attempts[] = {{"1", "0", false}, {"0", "1", false}, {"3", "2", false},
                                {"0", "0", true}};
    Person& anna = person();
    for (const Attempt& attempt : attempts) {
        answer_counts("2006-12", attempt.to_post, attempt.not_audited); // fresh ones count
        anna.click("btn_ok");
        anna.expect_message(attempt.closed ? "结帐完成!"
                                           : "本期还有未登帐的凭证，不可以进行结帐!");
        EXPECT_EQ(data.executed().size(), attempt.closed ? 1u : 0u);
    }
}

TEST_F(Closing, is_taken_back_month_by_month_over_the_year_end) {
    answer_counts("2007-01", "5", "7"); // whatever waits
    answer_periods("2006-05", "2007-01");
    Person& anna = person();
    anna.mark();
    anna.click("btn_re");
    anna.expect_message("反结帐完成!");
    EXPECT_EQ(last_batch(), "UPDATE D6600 SET PARAM='2006-12' WHERE ID=2;");
    EXPECT_EQ(last_log().key, "期末反结帐2007-01");
    EXPECT_EQ(last_log().operation, "Edit");
    const std::vector<std::string> sent = anna.sent_texts();
    EXPECT_NE(std::find(sent.begin(), sent.end(), select_periods), sent.end());
    EXPECT_EQ(sent.back(), select_counts);
}

TEST_F(Closing, taking_back_the_first_period_asks_and_then_clears_both_periods) {
    answer_periods("2006-12", "2006-12");
    const char* const question =
        "当前系统会计期间为首次建帐，反结将会清除到建帐前，是否确认反结帐？";
    Person& anna = person();
    anna.click("btn_re");
    anna.expect_question(question);
    EXPECT_TRUE(data.executed().empty()) << "answered no";
    anna.answer_next(true);
    anna.click("btn_re");
    anna.expect_question(question);
    anna.expect_message("反结帐完成!请从[会计科目初始化]模块进行首次期初建帐!");
    EXPECT_EQ(last_batch(), "UPDATE D6600 SET PARAM='' WHERE (ID=2) or (id=1);");
    EXPECT_EQ(last_log().key, "反结至建帐2006-12");
}

TEST_F(Closing, books_without_a_first_period_are_not_taken_back) {
    answer_periods("", "2006-12");
    person().click("btn_re");
    person().expect_message("系统还没有建帐，不可以进行反结帐!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Closing, books_that_were_not_set_up_offer_nothing) {
    answer_counts("", "0", "0");
    expect_nothing_offered();
}

TEST_F(Closing, books_reset_meanwhile_are_neither_closed_nor_taken_back) {
    expect_reset_books_to_refuse();
}

TEST_F(Closing, what_the_database_refuses_is_not_announced_as_done) {
    Person& anna = person();
    for (const char* button : {"btn_ok", "btn_re"}) {
        data.refuse_next_batch("磁盘已满!");
        anna.mark();
        anna.click(button);
        anna.expect_message("磁盘已满!");
        EXPECT_EQ(anna.sent_texts().back(), select_counts) << "the figures are read anew";
    }
}

TEST_F(Closing, strict_books_are_not_taken_back) {
    answer_mode("strict");
    Person& anna = person();
    anna.click("btn_re");
    anna.expect_message("本帐套按严格方式管理,不能反结帐!请用红字凭证更正。");
    EXPECT_TRUE(data.executed().empty());
    anna.click("btn_ok");
    anna.expect_message("结帐完成!");
}

TEST_F(Closing, both_ways_need_the_right_to_post) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "post"; };
    Person anna(data, options);
    anna.open(668);
    anna.click("btn_ok");
    anna.expect_message("您没有结帐的权限，请与系统管理员联系。");
    anna.click("btn_re");
    anna.expect_message("您没有反结帐的权限，请与系统管理员联系。");
    EXPECT_TRUE(data.executed().empty());
}

} // namespace
} // namespace tests
