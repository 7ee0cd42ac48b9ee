// Each request on a form that has one of every control.
#include <gtest/gtest.h>

#include "automation/drive/request.h"
#include "automation/drive/sample_forms.h"
#include "host/contract/U_dataop.h"
#include "tests/support/fake_data.h"
#include "tests/support/person.h"

namespace automation {

namespace {

using nlohmann::json;

// The administrator's window: tells what it was asked.
struct FakeWindow final : QueryPort {
    bool open = true;
    bool allowed() const override { return open; }
    std::string run(const std::string& batch) override {
        if (batch == "bad") {
            return R"({"error":{"number":208,"line":1,"column":1,"text":"Invalid object"}})";
        }
        return R"({"id":null,"columns":["A"],"rows":[["1"]],"affected":0})";
    }
};

struct Requests : testing::Test {
    Requests() { person.open(100); }
    tests::PersonOptions options() {
        tests::PersonOptions options;
        options.menu = open_sample;
        options.query = &window;
        return options;
    }
    json ask(const json& request) { return person.request(request); }
    std::string refusal(const json& request) {
        const json answer = ask(request);
        EXPECT_EQ(answer["ok"], false) << answer;
        return answer.value("error", "");
    }

    FakeWindow window;
    tests::FakeData data;
    tests::Person person{data, options()};
};

} // namespace

TEST_F(Requests, open_hands_the_user_parameters_over) {
    ask({{"op", "open"}, {"code", 100}, {"user", {"甲", "", "", "", "", ""}}});
    std::string first;
    person.inside([&] { first = host::the_host().active->Hint; });
    EXPECT_EQ(first, "甲");
    refusal({{"op", "open"}, {"code", 100}, {"user", "甲"}});
    refusal({{"op", "open"}, {"code", 100}, {"user", {1, 2, 3}}});
    refusal({{"op", "open"}, {"code", 9999999999}});
    refusal({{"op", "open"}});
}

TEST_F(Requests, forms_tells_class_caption_modal_and_tag) {
    EXPECT_EQ(ask({{"op", "forms"}})["forms"],
              json::parse(R"([{"form":"TF100","class":"TF100","caption":"样张","modal":false,
                               "tag":100}])"));
}

TEST_F(Requests, a_form_that_is_not_open_is_refused_with_those_that_are) {
    EXPECT_EQ(refusal({{"op", "controls"}, {"form", "TF661"}}),
              "no open form is named \"TF661\"; open: TF100");
    refusal({{"op", "controls"}, {"form", "TF100#x"}});
    refusal({{"op", "controls"}, {"form", "TF100#2"}});
}

TEST_F(Requests, a_form_is_found_by_class_and_by_variable) {
    for (const char* name : {"TF100", "F100", "tf100", "f100#1"}) {
        EXPECT_EQ(ask({{"op", "controls"}, {"form", name}})["ok"], true) << name;
    }
}

TEST_F(Requests, controls_tells_what_each_control_shows) {
    const json shown = person.control("CK1");
    EXPECT_EQ(shown, json::parse(R"({"name":"CK1","class":"TCheckBox","caption":"现金流量",
        "value":false,"enabled":true,"visible":true,"readOnly":false,"focused":false})"));
    EXPECT_EQ(person.control("Locked")["readOnly"], true);
    EXPECT_EQ(person.control("btn_more")["enabled"], false);
    EXPECT_EQ(person.control("Act_Print")["visible"], false);
    EXPECT_EQ(person.control("PZZ")["items"], json::parse(R"(["收","付","转"])"));
}

TEST_F(Requests, controls_tells_the_columns_of_a_grid) {
    const json grid = person.control("DBGridEh");
    EXPECT_EQ(grid["rowCount"], 2);
    EXPECT_EQ(grid["columns"][1],
              json::parse(R"({"field":"J","title":"金额|借方","readOnly":false,"visible":true,
                              "footer":"1234.43"})"));
    EXPECT_EQ(grid["columns"][2]["readOnly"], true);
    EXPECT_EQ(grid["columns"][0]["lookup"], true);
}

TEST_F(Requests, get_answers_true_or_false_for_a_mark_and_a_text_otherwise) {
    EXPECT_EQ(ask({{"op", "get"}, {"control", "R1"}})["value"], true);
    EXPECT_EQ(ask({{"op", "get"}, {"control", "CK1"}})["value"], false);
    EXPECT_EQ(ask({{"op", "get"}, {"control", "PZZ"}})["value"], "收");
    EXPECT_EQ(ask({{"op", "get"}, {"control", "LA2"}})["value"], "只是文字");
    EXPECT_NE(refusal({{"op", "get"}, {"control", "nobody"}}).find("it has KM_ID, Locked"),
              std::string::npos);
}

TEST_F(Requests, set_types_into_an_edit_and_moves_the_focus_there) {
    person.set("KM_ID", "1002");
    EXPECT_EQ(person.value("KM_ID"), "1002");
    EXPECT_EQ(person.focused(), "KM_ID");
}

TEST_F(Requests, set_types_through_the_key_handler_of_the_control) {
    person.set("KM_ID", "10*02");
    EXPECT_EQ(person.value("KM_ID"), "1002");
}

TEST_F(Requests, set_is_refused_when_the_field_left_does_not_let_go) {
    person.set("KM_ID", "9999");
    EXPECT_EQ(person.cannot_set("PZZ_H", "5"), "the focus stays on KM_ID: 科目代号不存在!");
    person.expect_message("科目代号不存在!");
    EXPECT_EQ(person.value("PZZ_H"), "");
}

TEST_F(Requests, set_keeps_the_digits_of_a_number_as_they_were_written) {
    EXPECT_EQ(Request::parse(R"({"value":100.10})").text("value"), "100.10");
    EXPECT_EQ(Request::parse(R"({"value":12345678901234567890123.45})").text("value"),
              "12345678901234567890123.45");
}

TEST_F(Requests, set_chooses_an_item_of_a_combo_box_and_no_other_text) {
    person.set("PZZ", "转");
    EXPECT_EQ(person.value("PZZ"), "转");
    EXPECT_EQ(person.cannot_set("PZZ", "记"), "PZZ has no item \"记\"; it has 收, 付, 转");
    EXPECT_EQ(person.value("PZZ"), "转");
}

TEST_F(Requests, set_marks_check_boxes_and_chooses_radio_buttons) {
    person.check("CK1");
    person.check("R2");
    EXPECT_TRUE(person.checked("CK1"));
    EXPECT_TRUE(person.checked("R2"));
    EXPECT_FALSE(person.checked("R1"));
    refusal({{"op", "set"}, {"control", "R2"}, {"value", false}});
    refusal({{"op", "set"}, {"control", "CK1"}, {"value", "maybe"}});
    EXPECT_TRUE(person.checked("R2"));
}

TEST_F(Requests, set_refuses_what_a_person_could_not_do) {
    EXPECT_EQ(person.cannot_set("Locked", "x"), "Locked is read-only");
    EXPECT_EQ(person.cannot_set("btn_more", "x"), "btn_more (TButton) takes no value");
    refusal({{"op", "set"}, {"control", "KM_ID"}});
    refusal({{"op", "set"}, {"control", "KM_ID"}, {"value", json::object()}});
}

TEST_F(Requests, a_day_that_is_none_is_refused_and_the_old_one_stays) {
    person.set("BDATE", "2024-3-5");
    EXPECT_EQ(person.value("BDATE"), "2024-03-05");
    person.cannot_set("BDATE", "2024-02-30");
    person.forget_messages();
    EXPECT_EQ(person.value("BDATE"), "2024-03-05");
}

TEST_F(Requests, lookup_presses_the_button_of_an_edit_or_a_cell) {
    person.lookup("KH_GYS_ID");
    person.expect_active("TF100_1");
    person.click("btn_Cancel");
    person.expect_message("没有选");
    person.lookup_cell(1, "ZY");
    person.expect_active("TF100_1");
    person.click("btn_Cancel");
    person.expect_message("没有选");
    EXPECT_EQ(refusal({{"op", "lookup"}, {"control", "DBGridEh"}, {"row", 0}, {"field", "J"}}),
              "the column J has no lookup button");
    refusal({{"op", "lookup"}, {"control", "KM_ID"}});
}

TEST_F(Requests, focus_moves_the_focus_or_says_why_not) {
    person.focus("PZZ_H");
    EXPECT_EQ(person.focused(), "PZZ_H");
    refusal({{"op", "focus"}, {"control", "btn_more"}});
    refusal({{"op", "focus"}, {"control", "LA1"}});
    EXPECT_EQ(person.focused(), "PZZ_H");
}

TEST_F(Requests, key_goes_to_the_control_named_or_to_the_focus) {
    person.set("KM_ID", "");
    person.key("1", "KM_ID");
    person.key("a");
    EXPECT_EQ(person.value("KM_ID"), "1a");
    person.key("F2");
    person.expect_question("真的保存吗?");
    EXPECT_NE(refusal({{"op", "key"}, {"key", "F13"}}).find("F1 to F12"), std::string::npos);
    EXPECT_NE(refusal({{"op", "key"}, {"key", ""}}).find("F1 to F12"), std::string::npos);
}

TEST_F(Requests, click_does_what_each_kind_of_control_does) {
    person.click("CK1");
    EXPECT_TRUE(person.checked("CK1"));
    person.click("CK1");
    EXPECT_FALSE(person.checked("CK1"));
    person.click("R2");
    EXPECT_TRUE(person.checked("R2"));
    person.click("SpeedButton2");
    person.expect_message("负债");
    EXPECT_FALSE(person.checked("SpeedButton1"));
}

TEST_F(Requests, click_on_a_menu_item_opens_its_menu_first) {
    EXPECT_FALSE(person.enabled("N2"));
    person.click("N2");
    person.expect_message("已存为模板");
}

TEST_F(Requests, click_refuses_what_is_hidden_disabled_or_mute) {
    EXPECT_EQ(person.cannot_click("btn_more"), "btn_more is disabled");
    EXPECT_EQ(person.cannot_click("Act_Print"), "Act_Print is not visible");
    EXPECT_EQ(person.cannot_click("LA2"), "LA2 (TLabel) does nothing when clicked");
    EXPECT_EQ(person.cannot_click("DBGridEh"), "DBGridEh (TDBGridEh) does nothing when clicked");
}

TEST_F(Requests, rows_tells_display_text_by_field_in_upper_case) {
    const json answer = ask({{"op", "rows"}, {"control", "DBGridEh"}});
    EXPECT_EQ(answer["total"], 2);
    EXPECT_EQ(answer["rows"][0]["J"], "1234.50");
    EXPECT_EQ(answer["rows"][0]["BDATE"], "2024-03-01");
    EXPECT_FALSE(answer["rows"][0].contains("_colors"));
}

TEST_F(Requests, rows_tells_plain_values_when_asked) {
    const json rows = ask({{"op", "rows"}, {"control", "DBGridEh"}, {"raw", true}})["rows"];
    EXPECT_EQ(rows[0], json::parse(R"({"ZY":"行","J":"1234.5","D":true,"BDATE":"2024-03-01"})"));
    EXPECT_EQ(rows[1]["J"], "-0.07");
}

TEST_F(Requests, rows_tells_the_colours_of_coloured_rows_only) {
    const json rows = ask({{"op", "rows"}, {"control", "DBGridEh"}, {"colors", true}})["rows"];
    EXPECT_FALSE(rows[0].contains("_colors"));
    EXPECT_EQ(rows[1]["_colors"], json::parse(R"({"J":{"font":255}})"));
}

TEST_F(Requests, rows_tells_the_part_that_was_asked_for) {
    const json part = ask({{"op", "rows"}, {"control", "DBGridEh"}, {"from", 1}, {"count", 100}});
    EXPECT_EQ(part["rows"].size(), 1U);
    EXPECT_EQ(part["total"], 2);
    EXPECT_EQ(ask({{"op", "rows"}, {"control", "DBGridEh"}, {"from", 7}})["rows"], json::array());
    refusal({{"op", "rows"}, {"control", "DBGridEh"}, {"from", -1}});
    refusal({{"op", "rows"}, {"control", "DBGridEh"}, {"from", "x"}});
    EXPECT_EQ(refusal({{"op", "rows"}, {"control", "KM_ID"}}),
              "KM_ID is no grid; the form has DBGridEh");
}

TEST_F(Requests, footer_tells_the_sums_as_they_stand_now) {
    EXPECT_EQ(person.footer("J"), "1234.43");
    person.cell(0, "J", "1000");
    EXPECT_EQ(person.footer("J"), "999.93");
}

TEST_F(Requests, cell_types_into_a_row_and_appends_at_the_row_count) {
    person.cell(0, "ZY", "提现");
    person.cell(2, "ZY", "新行");
    EXPECT_EQ(person.row_count(), 3);
    EXPECT_EQ(person.rows()[0]["ZY"], "提现");
    EXPECT_EQ(person.rows()[2]["ZY"], "新行");
}

TEST_F(Requests, cell_refuses_rows_columns_and_values_that_cannot_be) {
    EXPECT_EQ(person.cannot_cell(4, "ZY", "x"), "DBGridEh has 2 rows, counted from 0");
    EXPECT_EQ(person.cannot_cell(0, "KM", "x"),
              "DBGridEh has no column \"KM\"; it has ZY, J, BDATE");
    EXPECT_EQ(person.cannot_cell(0, "BDATE", "x"), "the column BDATE is read-only here");
    person.cannot_cell(0, "J", "zwei");
    person.forget_messages();
    person.cannot_cell(0, "ZY", std::string(10000, 'x'));
    person.forget_messages();
    EXPECT_EQ(person.rows()[0]["J"], "1234.50");
    refusal({{"op", "cell"}, {"control", "DBGridEh"}, {"row", -1}, {"field", "ZY"}, {"value", ""}});
}

TEST_F(Requests, a_field_without_a_control_of_its_own_is_the_current_rows_cell) {
    person.row(1);
    person.set("ZY", "第二");
    EXPECT_EQ(person.rows()[1]["ZY"], "第二");
    EXPECT_EQ(person.value("ZY"), "第二");
}

TEST_F(Requests, row_makes_a_row_current_and_marks_it) {
    ask({{"op", "row"}, {"control", "DBGridEh"}, {"row", 1}, {"mark", true}});
    int current = -1;
    std::vector<int> marked;
    person.inside([&] {
        auto* form = dynamic_cast<TF100*>(host::the_host().active);
        current = form->lines.RecNo();
        marked = form->DBGridEh.selected_rows();
    });
    EXPECT_EQ(current, 1);
    EXPECT_EQ(marked, std::vector<int>{1});
    refusal({{"op", "row"}, {"control", "DBGridEh"}, {"row", 2}});
}

TEST_F(Requests, dblclick_acts_on_the_row_it_names) {
    person.double_click(1, "J");
    person.expect_message("第1行");
}

TEST_F(Requests, tree_and_node_tell_and_select) {
    EXPECT_EQ(person.tree(), (std::vector<std::string>{"1002 银行存款", "  100201 工行"}));
    person.node("100201 工行");
    EXPECT_EQ(person.value("TreeView1"), "100201 工行");
    person.node("1002");
    EXPECT_EQ(person.value("TreeView1"), "1002 银行存款");
    EXPECT_EQ(refusal({{"op", "node"}, {"control", "TreeView1"}, {"text", "1003"}}),
              "TreeView1 has no node \"1003\"");
}

TEST_F(Requests, answer_takes_yes_and_no_only) {
    EXPECT_EQ(refusal({{"op", "answer"}, {"value", "perhaps"}}),
              "\"value\" must be \"y\" or \"n\"");
    refusal({{"op", "answer"}});
}

TEST_F(Requests, sql_tells_the_statements_sent_since_a_position) {
    data.answer("select", {"A int"}, {{"1"}});
    person.inside([] {
        host::TClientDataSet set;
        host::opensql(set, "661", "select 1");
        host::ExecSql("663", "2024-03", "Edit", "update d6600 set param='1';");
    });
    const json all = ask({{"op", "sql"}, {"since", 0}});
    EXPECT_EQ(all["next"], 2);
    EXPECT_EQ(all["sql"][0]["call"], "opensql");
    EXPECT_EQ(all["sql"][1],
              json::parse(R"({"n":1,"call":"ExecSql","function":"663","key":"2024-03",
                  "operation":"Edit","text":"update d6600 set param='1';","answer":"Y"})"));
    EXPECT_EQ(ask({{"op", "sql"}, {"since", 2}})["sql"], json::array());
    EXPECT_EQ(ask({{"op", "sql"}, {"since", 99}})["sql"], json::array());
    refusal({{"op", "sql"}, {"since", -1}});
}

TEST_F(Requests, query_is_for_administrators) {
    const json answer = ask({{"op", "query"}, {"sql", "select 1 as A"}});
    EXPECT_EQ(answer["columns"], json::parse(R"(["A"])"));
    EXPECT_EQ(answer["rows"], json::parse(R"([["1"]])"));
    EXPECT_EQ(refusal({{"op", "query"}, {"sql", "bad"}}), "Msg 208: Invalid object");
    window.open = false;
    EXPECT_EQ(refusal({{"op", "query"}, {"sql", "select 1"}}),
              "only an administrator may query the tables");
}

TEST_F(Requests, close_presses_the_close_button) {
    person.close();
    EXPECT_EQ(person.active(), "");
    EXPECT_EQ(refusal({{"op", "close"}}), "no form is open");
}

TEST_F(Requests, an_unknown_request_is_refused_with_the_known_ones) {
    EXPECT_NE(refusal({{"op", "opne"}}).find("known: open, forms, controls"), std::string::npos);
}

} // namespace automation
