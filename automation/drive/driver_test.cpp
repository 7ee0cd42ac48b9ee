// Order, modal forms, messages and questions: what holds for every request.
#include "automation/drive/driver.h"

#include <gtest/gtest.h>
#include <sstream>

#include "automation/drive/sample_forms.h"
#include "automation/drive/stream_lines.h"
#include "tests/support/fake_data.h"
#include "tests/support/person.h"

namespace automation {

namespace {

using nlohmann::json;

struct Drive : testing::Test {
    static tests::PersonOptions options() {
        tests::PersonOptions options;
        options.menu = open_sample;
        return options;
    }
    json ask(const json& request) { return person.request(request); }

    tests::FakeData data;
    tests::Person person{data, options()};
};

} // namespace

TEST_F(Drive, every_answer_tells_ok_messages_and_the_active_form) {
    const json none = ask({{"op", "forms"}});
    EXPECT_EQ(none, (json{{"ok", true},
                          {"messages", json::array()},
                          {"active", nullptr},
                          {"forms", json::array()}}));
    const json opened = ask({{"op", "open"}, {"code", 100}});
    EXPECT_EQ(opened, (json{{"ok", true}, {"messages", json::array()}, {"active", "TF100"}}));
}

TEST_F(Drive, a_function_without_a_form_shows_its_message_and_opens_nothing) {
    const json answer = ask({{"op", "open"}, {"code", 640}});
    EXPECT_EQ(answer["messages"], json::parse(R"([{"text":"模块暂不开放!640","kind":5}])"));
    EXPECT_EQ(answer["active"], nullptr);
    EXPECT_EQ(answer["ok"], true);
}

TEST_F(Drive, a_message_is_told_once) {
    ask({{"op", "open"}, {"code", 640}});
    EXPECT_EQ(ask({{"op", "forms"}})["messages"], json::array());
}

TEST_F(Drive, a_request_that_opens_a_modal_form_is_answered_at_once) {
    person.open(100);
    const json answer = ask({{"op", "click"}, {"control", "LA1"}});
    EXPECT_EQ(answer["active"], "TF100_1");
    EXPECT_EQ(answer["messages"], json::array());
}

TEST_F(Drive, what_follows_a_modal_form_is_told_in_the_answer_that_closed_it) {
    person.open(100);
    person.click("LA1");
    person.set("Edit1", "1002");
    const json answer = ask({{"op", "click"}, {"control", "btn_ok"}});
    EXPECT_EQ(answer["active"], "TF100");
    EXPECT_EQ(answer["messages"], json::parse(R"([{"text":"选了1002","kind":5}])"));
}

TEST_F(Drive, the_close_button_of_a_modal_form_cancels_it) {
    person.open(100);
    person.click("LA1");
    const json answer = ask({{"op", "close"}});
    EXPECT_EQ(answer["active"], "TF100");
    EXPECT_EQ(answer["messages"][0]["text"], "没有选");
}

TEST_F(Drive, a_dialog_can_be_opened_again_after_it_was_closed) {
    person.open(100);
    for (int round = 0; round < 3; ++round) {
        person.click("LA1");
        person.expect_active("TF100_1");
        person.click("btn_Cancel");
        person.expect_message("没有选");
    }
}

TEST_F(Drive, a_form_behind_a_modal_one_can_be_read_but_not_used) {
    person.open(100);
    person.click("LA1");
    EXPECT_EQ(ask({{"op", "get"}, {"form", "TF100"}, {"control", "PZZ"}})["value"], "收");
    const json refused = ask({{"op", "click"}, {"form", "TF100"}, {"control", "LA1"}});
    EXPECT_EQ(refused["ok"], false);
    EXPECT_EQ(refused["error"], "TF100 waits until TF100_1 has been closed");
    EXPECT_EQ(ask({{"op", "open"}, {"code", 100}})["ok"], false);
}

TEST_F(Drive, a_question_without_a_queued_answer_is_answered_no) {
    person.open(100);
    person.click("Act_Save");
    person.expect_question("真的保存吗?");
}

TEST_F(Drive, a_question_takes_the_answers_in_the_order_they_were_queued) {
    person.open(100);
    person.answer_next(false);
    person.answer_next(true);
    person.click("Act_Save");
    person.expect_question("真的保存吗?");
    person.click("Act_Save");
    person.expect_question("真的保存吗?");
    person.expect_message("已保存");
}

TEST_F(Drive, a_failure_inside_a_form_is_told_and_the_form_stays) {
    person.open(100);
    person.node("1002 银行存款");
    const json answer = ask({{"op", "dblclick"}, {"control", "TreeView1"}});
    EXPECT_EQ(answer["ok"], false);
    EXPECT_NE(answer["error"].get<std::string>().find("磁盘已满"), std::string::npos);
    EXPECT_EQ(answer["active"], "TF100");
}

TEST_F(Drive, the_newest_of_several_forms_is_active_and_each_has_a_number) {
    person.open(100);
    person.open(100);
    EXPECT_EQ(person.active(), "TF100#2");
    const json forms = ask({{"op", "forms"}})["forms"];
    EXPECT_EQ(forms[0]["form"], "TF100#2");
    EXPECT_EQ(forms[1]["form"], "TF100#1");
    EXPECT_EQ(forms[1]["class"], "TF100");
    ask({{"op", "close"}, {"form", "f100#2"}});
    EXPECT_EQ(ask({{"op", "forms"}})["active"], "TF100");
}

TEST_F(Drive, acting_on_a_form_makes_it_the_active_one) {
    person.open(100);
    person.open(100);
    const json answer =
        ask({{"op", "set"}, {"form", "TF100#1"}, {"control", "PZZ"}, {"value", "付"}});
    EXPECT_EQ(answer["active"], "TF100#1");
    EXPECT_EQ(ask({{"op", "get"}, {"control", "PZZ"}})["value"], "付");
    EXPECT_EQ(ask({{"op", "get"}, {"form", "TF100#2"}, {"control", "PZZ"}})["value"], "收");
}

// Runs a whole conversation over streams, as the program does.
std::vector<json> converse(const std::string& requests) {
    std::istringstream in(requests);
    std::ostringstream out;
    StreamRequests lines(in);
    StreamAnswers answers(out);
    Driver driver({lines, answers, [](const host::Trecord&) {}});
    driver.run();
    std::istringstream told(out.str());
    std::vector<json> parsed;
    for (std::string line; std::getline(told, line);) parsed.push_back(json::parse(line));
    return parsed;
}

TEST(DriveStream, one_answer_a_line_in_order_until_quit) {
    const auto answers =
        converse("{\"op\":\"forms\"}\n\n{\"op\":\"nothing\"}\r\n{\"op\":\"quit\"}\n"
                 "{\"op\":\"forms\"}\n");
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_TRUE(answers[0].contains("forms"));
    EXPECT_EQ(answers[1]["ok"], false);
    EXPECT_EQ(answers[2]["ok"], true);
}

TEST(DriveStream, a_line_that_is_no_request_is_refused_and_the_next_is_served) {
    const std::vector<std::string> lines = {"hello",
                                            "[]",
                                            "42",
                                            "{",
                                            "{\"op\":1}",
                                            "{\"op\":null}",
                                            "\"op\"",
                                            "{\"op\":[]}",
                                            "{\"o\":\"forms\"}",
                                            "\xff\xfe{}",
                                            std::string(5000, '[')};
    for (const std::string& line : lines) {
        const auto answers = converse(line + "\n{\"op\":\"forms\"}\n");
        ASSERT_EQ(answers.size(), 2U) << line;
        EXPECT_EQ(answers[0]["ok"], false) << line;
        EXPECT_TRUE(answers[0]["error"].is_string()) << line;
        EXPECT_EQ(answers[1]["ok"], true) << line;
    }
}

} // namespace automation
