// Posting a period and taking the posting back.
#include "tests/forms/period_desk.h"

namespace tests {
namespace {

class Posting : public PeriodDesk {
protected:
    Posting() : PeriodDesk(663) {}
    void SetUp() override {
        answer_counts("2024-03", "2", "1");
        answer_numbers({"1", "2"});
        answer_mode("small");
    }
    void answer_numbers(const std::vector<std::string>& numbers) {
        std::vector<FakeData::Cells> rows;
        for (const std::string& number : numbers) rows.push_back({number});
        data.answer("select pzz_h from d6601", {"pzz_h int"}, rows);
    }
};

TEST_F(Posting, shows_the_period_and_what_waits) {
    Person& anna = person();
    anna.expect_active("TF6663");
    expect_period("2024-03", "2", "1");
    EXPECT_TRUE(anna.checked("R1"));
    EXPECT_EQ(anna.sent_texts(), std::vector<std::string>{select_counts});
}

TEST_F(Posting, posts_in_one_batch) {
    Person& anna = person();
    anna.click("btn_ok");
    anna.expect_message("登帐完成!");
    ASSERT_EQ(data.executed().size(), 1u);
    const auto& executed = data.executed().front();
    EXPECT_TRUE(executed.batch.starts_with("INSERT INTO D6602 (INX,QJ,KM_ID) SELECT 0 as INX,"));
    EXPECT_NE(executed.batch.find("WHERE QJ = '2024-02' AND INX = 1"), std::string::npos);
    EXPECT_EQ(executed.log.function, "663");
    EXPECT_EQ(executed.log.key, "2024-03");
    EXPECT_EQ(executed.log.operation, "Edit");
}

TEST_F(Posting, needs_the_right_to_post) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "post"; };
    Person anna(data, options);
    anna.open(663);
    anna.click("btn_ok");
    anna.expect_message("您没有登帐的权限，请与系统管理员联系。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Posting, is_taken_back) {
    Person& anna = person();
    anna.click("btn_re");
    anna.expect_message("反登帐完成!");
    EXPECT_EQ(data.executed().front().batch,
              "update D6601 set d=0 WHERE (D6601.PZQJ = '2024-03') and D6601.D=1;delete from d6602 "
              "WHERE (QJ = '2024-03');");
}

TEST_F(Posting, numbers_run_on_from_one_and_the_last_is_not_compared) {
    struct Attempt {
        std::vector<std::string> numbers;
        bool posted;
    };
    const Attempt attempts[] = {
        {{}, true},
        {{"4"}, true},
        {{"1", "2", "3"}, true},
        {{"1", "2", "3", "5"}, true},
        {{"1", "3", "4"}, false},
        {{"2", "3"}, false},
        {{"1", "1", "2"}, false}, // two words count together
    };
    for (const char* button : {"btn_ok", "btn_re"}) {
        for (const Attempt& attempt : attempts) {
            answer_numbers(attempt.numbers);
            const std::size_t before = data.executed().size();
            person().click(button);
            const bool posted = data.executed().size() > before;
            EXPECT_EQ(posted, attempt.posted) << testing::PrintToString(attempt.numbers);
            if (posted) {
                person().forget_messages();
            } else {
                person().expect_message("凭证号不连续!");
            }
        }
    }
    EXPECT_NE(std::find(data.queries().begin(), data.queries().end(),
                        "select pzz_h from d6601 WHERE (D6601.PZQJ = '2024-03')  order by pzz_h "),
              data.queries().end());
}

TEST_F(Posting, gaps_may_be_allowed_and_the_choice_is_kept) {
    answer_numbers({"1", "3", "4"});
    Person& anna = person();
    anna.check("R2");
    anna.click("btn_ok");
    anna.expect_message("登帐完成!");
    anna.click("btn_Cancel");
    anna.open(663);
    EXPECT_TRUE(anna.checked("R2"));
    EXPECT_FALSE(anna.checked("R1"));
}

TEST_F(Posting, books_that_were_not_set_up_offer_nothing) {
    answer_counts("", "0", "0");
    expect_nothing_offered();
}

TEST_F(Posting, books_reset_meanwhile_are_not_posted) { expect_reset_books_to_refuse(); }

TEST_F(Posting, what_the_database_refuses_is_not_announced_as_done) {
    Person& anna = person();
    data.refuse_next_batch("磁盘已满!");
    anna.click("btn_ok");
    anna.expect_message("磁盘已满!");
}

TEST_F(Posting, opens_as_often_as_it_is_picked) {
    Person& anna = person();
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.active(), "");
    anna.open(663);
    anna.expect_active("TF6663");
}

} // namespace
} // namespace tests
