// The template browser: searched, applied to a new voucher, deleted.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class Templates : public VoucherDesk {
protected:
    void browse() {
        new_voucher();
        anna->mark();
        anna->click("Act_Other");
        anna->expect_active("TF6661_4");
    }
    std::string last_sent() { return anna->sent_texts().back(); }
};

const std::string all_templates =
    "SELECT D6601M.*, V6801.KM_NAME_NEW AS KM_NAME_NEW FROM D6601M INNER JOIN V6801 ON "
    "D6601M.KM_ID = V6801.KM_ID ";
const std::string in_order = "ORDER BY D6601M.NOID, D6601M.INX";

std::string templates_like(const std::string& text) {
    return all_templates +
           "INNER JOIN (SELECT D6601M.NOID FROM D6601M INNER JOIN V6801 ON D6601M.KM_ID = "
           "V6801.KM_ID WHERE (V6801.KM_NAME_NEW LIKE '%" +
           text + "%') OR (V6801.PYM LIKE '%" + text + "%') OR (ZY LIKE '%" + text +
           "%') GROUP BY D6601M.NOID) T ON D6601M.NOID=T.NOID " + in_order;
}

TEST_F(Templates, all_are_shown_at_first) {
    browse();
    EXPECT_EQ(last_sent(), all_templates + in_order);
    EXPECT_EQ(anna->caption(), "会计凭证模板");
    EXPECT_EQ(anna->row_count(), 5);
    EXPECT_EQ(anna->rows()[0].at("NOID"), "10001");
    EXPECT_EQ(anna->rows()[0].at("KM_NAME_NEW"), "应收帐款");
    EXPECT_EQ(anna->value("SelectedTemplate"), "选中模板 10001,共 3 行,金额 117.00");
}

TEST_F(Templates, the_trimmed_text_is_searched_for_as_it_is_typed) {
    browse();
    anna->set("Edit1", " 提 ");
    EXPECT_EQ(last_sent(), templates_like("提"));
    EXPECT_EQ(anna->row_count(), 2);
    anna->set("Edit1", "O'B");
    EXPECT_EQ(last_sent(), templates_like("O''B"));
    EXPECT_EQ(anna->row_count(), 0);
    EXPECT_EQ(anna->value("SelectedTemplate"), "");
    anna->set("Edit1", "  ");
    EXPECT_EQ(last_sent(), all_templates + in_order);
}

TEST_F(Templates, applying_replaces_every_line_of_the_voucher) {
    new_voucher();
    type_balanced_lines();
    anna->click("Act_Other");
    anna->row(1); // any line of the template means the template
    anna->click("btn_ok");
    anna->expect_active("TF6661_1");
    const Rows lines = anna->rows();
    ASSERT_EQ(lines.size(), 3u) << "the lines of the template and no others";
    EXPECT_EQ(lines[0].at("ZY"), "销售");
    EXPECT_EQ(lines[0].at("KM_ID"), "1131");
    EXPECT_EQ(lines[0].at("KM_NAME_NEW"), "应收帐款");
    EXPECT_EQ(lines[0].at("J"), "117.00");
    EXPECT_EQ(lines[1].at("KM_ID"), "5101");
    EXPECT_EQ(lines[1].at("D"), "100.00");
    EXPECT_EQ(lines[2].at("ZY"), "代垫运费");
    EXPECT_EQ(lines[2].at("D"), "17.00");
    EXPECT_EQ(anna->footer("J"), "117.00");
}

TEST_F(Templates, an_applied_template_can_be_saved_at_once) {
    browse();
    anna->row(3);
    anna->double_click(3, "ZY");
    anna->expect_active("TF6661_1");
    EXPECT_TRUE(anna->enabled("Act_Save"));
    anna->click("Act_Save");
    const std::string line = "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ("
                             "'2024-03记009','提现',";
    EXPECT_NE(last_batch().find(line + "'1001','            500.00','              0.00',0);" +
                                line + "'100201','              0.00','            500.00',1);"),
              std::string::npos)
        << last_batch();
}

TEST_F(Templates, cash_lines_of_a_template_take_part_in_the_allocation) {
    browse();
    anna->row(3);
    anna->click("btn_ok");
    anna->click("Act_xj");
    anna->expect_active("TF6661_5");
    anna->click("btn_Cancel");
    anna->click("Act_Other");
    anna->row(0);
    anna->click("btn_ok");
    anna->click("Act_xj");
    anna->expect_message("当前凭证没有现金流量核算的科目存在!不需要进行现金流量的分配!");
}

TEST_F(Templates, an_amount_becomes_the_total_and_the_lines_follow) {
    struct Case {
        const char* amount;
        const char* debit;
        const char* income;
        const char* freight;
    };
    // 100 and 17 of 117, as a share of the amount; the larger line takes the odd cent.
    const Case cases[] = {{"234", "234.00", "200.00", "34.00"},
                          {"", "117.00", "100.00", "17.00"},
                          {"0", "117.00", "100.00", "17.00"},
                          {"10", "10.00", "8.55", "1.45"},
                          {"-117", "-117.00", "-100.00", "-17.00"}};
    for (const Case& one : cases) {
        anna.reset();
        browse();
        anna->set("MONEY", one.amount);
        anna->row(0);
        anna->click("btn_ok");
        const Rows lines = anna->rows();
        EXPECT_EQ(lines[0].at("J"), one.debit) << one.amount;
        EXPECT_EQ(lines[0].at("D"), "0.00") << one.amount;
        EXPECT_EQ(lines[1].at("D"), one.income) << one.amount;
        EXPECT_EQ(lines[2].at("D"), one.freight) << one.amount;
        EXPECT_FALSE(anna->visible("Difference")) << one.amount;
    }
}

TEST_F(Templates, a_line_saved_with_both_sides_comes_back_with_both) {
    data.answer(
        all_templates,
        {"NOID int", "ZY text", "KM_ID text", "J money", "D money", "INX int", "KM_NAME_NEW text"},
        {{"10001", "调整", "1131", "30.00", "10.00", "0", "应收帐款"},
         {"10001", "调整", "5101", "0.00", "20.00", "1", "主营业务收入"}});
    browse();
    anna->click("btn_ok");
    EXPECT_EQ(anna->rows()[0].at("J"), "30.00");
    EXPECT_EQ(anna->rows()[0].at("D"), "10.00");
}

TEST_F(Templates, a_template_without_a_total_has_no_proportions) {
    data.answer(
        all_templates,
        {"NOID int", "ZY text", "KM_ID text", "J money", "D money", "INX int", "KM_NAME_NEW text"},
        {{"10004", "结转", "5101", "0.00", "0.00", "0", "主营业务收入"}});
    browse();
    anna->set("MONEY", "5");
    anna->click("btn_ok");
    anna->expect_message("模板 10004 的金额合计为 0,不能按金额换算!请把金额清空。");
    anna->set("MONEY", "");
    anna->click("btn_ok");
    EXPECT_EQ(anna->rows()[0].at("ZY"), "结转");
}

TEST_F(Templates, without_a_template_the_voucher_stays_as_it_is) {
    new_voucher();
    type_balanced_lines();
    anna->click("Act_Other");
    anna->set("Edit1", "无");
    anna->click("btn_ok");
    anna->expect_message("没有可用的模板!请改写检索内容,或先用“存为模板”保存一个。");
    anna->click("btn_Cancel");
    EXPECT_EQ(anna->rows()[1].at("D"), "100.00");
}

TEST_F(Templates, deleting_takes_the_whole_template_without_a_question_and_searches_again) {
    browse();
    anna->set("Edit1", "提");
    anna->row(1);
    anna->mark();
    anna->click("btn_del");
    EXPECT_EQ(last_batch(), "delete from D6601M where noid='10002'");
    EXPECT_EQ(data.executed().back().log.key, "模板10002");
    EXPECT_EQ(data.executed().back().log.operation, "pass");
    EXPECT_EQ(last_sent(), templates_like("提"));
    anna->set("Edit1", "无");
    anna->click("btn_del");
    EXPECT_EQ(data.executed().size(), 1u) << "nothing is listed, nothing goes";
}

TEST_F(Templates, who_may_not_delete_vouchers_may_not_delete_templates) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "delete"; };
    start(std::move(options));
    browse();
    anna->click("btn_del");
    EXPECT_NE(anna->next_message(), "");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Templates, the_search_box_moves_among_the_lines_by_keys) {
    browse();
    anna->key("Down", "Edit1");
    anna->key("Down", "Edit1");
    anna->key("Down", "Edit1");
    EXPECT_EQ(anna->value("SelectedTemplate"), "选中模板 10002,共 2 行,金额 500.00");
    anna->key("F2");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->rows()[0].at("KM_ID"), "1001");
}

} // namespace
} // namespace tests
