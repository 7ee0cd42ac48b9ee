// The chart of accounts as a tree, and its dialog.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

class Chart : public FormDesk {
protected:
    Chart() : FormDesk(681) {}
    void SetUp() override {
        const std::string list = "SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=";
        const std::vector<std::string> columns = {"KM_ID text", "KM_NAME text", "OID text"};
        data.answer(list + "1", columns,
                    {{"1001", "现金", "Z"},
                     {"1002", "银行存款", "Z"},
                     {"1101", "短期投资", "Z"},
                     {"100201", "工行", "1002"}});
        for (const char* category : {"2", "3", "4", "5"}) data.answer(list + category, columns, {});
        data.answer("select km_id from D6801", {"km_id text"}, {});
        data.answer("SELECT *  FROM D6801 WHERE (KM_ID='100201')",
                    {"KM_ID text", "KM_NAME text", "FX text", "KM_K bit"},
                    {{"100201", "工行", "贷", "1"}});
        data.answer("SELECT *  FROM D6801 WHERE (KM_ID='1002')",
                    {"KM_ID text", "KM_NAME text", "FX text", "KM_K bit"},
                    {{"1002", "银行存款", "借", "1"}});
        data.answer("SELECT (SELECT COUNT(*) FROM D6601A", {"I int"}, {{"0"}});
        data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
    }
};

TEST_F(Chart, shows_the_assets_first_as_a_tree) {
    EXPECT_EQ(person().tree(), (std::vector<std::string>{"1001 现金", "1002 银行存款",
                                                         "  100201 工行", "1101 短期投资"}));
    EXPECT_EQ(person().sent_texts().front(),
              "SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=1 ORDER BY OID,KM_ID");
}

TEST_F(Chart, the_category_buttons_stand_in_the_order_of_the_books) {
    const std::pair<const char*, const char*> categories[] = {{"SpeedButton1", "1"},
                                                              {"SpeedButton2", "2"},
                                                              {"SpeedButton3", "4"},
                                                              {"SpeedButton4", "3"},
                                                              {"SpeedButton5", "5"}};
    for (const auto& [button, category] : categories) {
        person().mark();
        person().click(button);
        EXPECT_EQ(person().sent_texts().back(),
                  "SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=" + std::string(category) +
                      " ORDER BY OID,KM_ID");
    }
}

TEST_F(Chart, an_account_beside_a_top_level_one_is_a_top_level_account) {
    Person& anna = person();
    anna.node("1001 现金");
    anna.click("Act_Add");
    anna.expect_active("TF6681_1");
    EXPECT_EQ(anna.focused(), "t0");
    anna.set("t0", "1009a");
    anna.set("t1", "其他货币资金");
    anna.check("CK1");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(),
              "insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) ValueS('1009A',"
              "'其他货币资金','借','Z','QTHBZJ','1','1','1')");
    EXPECT_EQ(last_log().key, "1009A");
    EXPECT_EQ(last_log().operation, "Add");
    EXPECT_EQ(last_log().function, "681");
}

TEST_F(Chart, a_sub_account_gets_the_level_below_and_its_parent) {
    Person& anna = person();
    anna.node("100201 工行");
    anna.click("Act_CopyAdd");
    EXPECT_EQ(anna.value("t0"), "100201");
    EXPECT_EQ(anna.value("t1"), "工行");
    EXPECT_TRUE(anna.checked("RB2"));
    EXPECT_TRUE(anna.checked("CK1"));
    anna.set("t0", "10020101");
    anna.set("t1", "园区支行");
    anna.click("btn_ok");
    EXPECT_EQ(
        last_batch(),
        "insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) ValueS('10020101',"
        "'园区支行','贷','100201','YQZH','1','3','1')");
    EXPECT_EQ(anna.tree()[3], "    10020101 园区支行");
}

TEST_F(Chart, an_account_of_another_category_takes_it_from_the_button) {
    Person& anna = person();
    anna.click("SpeedButton3");
    anna.click("Act_Add");
    anna.set("t0", "4101");
    anna.set("t1", "生产成本");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(),
              "insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) ValueS('4101',"
              "'生产成本','借','Z','SCCB','4','1','0')");
}

TEST_F(Chart, codes_from_1010_lose_the_cash_flow_mark) {
    const std::pair<const char*, const char*> codes[] = {// code, mark written
                                                         {"1003", "1"},
                                                         {"10021", "1"},
                                                         {"1010", "0"},
                                                         {"1102", "0"},
                                                         {"2001", "0"}};
    for (const auto& [code, mark] : codes) {
        leave();
        Person& anna = person();
        anna.node("1001 现金");
        anna.click("Act_Add");
        anna.set("t0", code);
        anna.set("t1", "帐户");
        anna.check("CK1");
        anna.click("btn_ok");
        EXPECT_TRUE(last_batch().ends_with("'1','1','" + std::string(mark) + "')")) << code;
    }
}

TEST_F(Chart, editing_keeps_code_parent_and_category) {
    Person& anna = person();
    anna.node("1002 银行存款");
    anna.click("Act_Modify");
    EXPECT_EQ(anna.focused(), "t1");
    EXPECT_NE(anna.cannot_set("t0", "1003"), "");
    anna.forget_messages();
    anna.set("t1", "银行'存款'");
    anna.check("RB2");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(),
              "UPDATE D6801 SET  km_NAME = '银行''存款''',km_J= '1',km_k= '1',fx= '贷',PYM='YHCK' "
              "where km_id='1002'");
    EXPECT_EQ(last_log().operation, "Edit");
    anna.expect_active("TF6681");
    EXPECT_EQ(anna.tree()[1], "1002 银行'存款'");
}

TEST_F(Chart, a_code_in_use_is_refused_when_it_is_left) {
    data.answer("select km_id from D6801", {"km_id text"}, {{"1002"}});
    Person& anna = person();
    anna.node("1001 现金");
    anna.click("Act_Add");
    anna.set("t0", "1002");
    anna.mark();
    EXPECT_NE(anna.refused({{"op", "focus"}, {"control", "t1"}}), "");
    anna.expect_message("科目代号 已登记!");
    EXPECT_EQ(anna.focused(), "t0");
    EXPECT_EQ(anna.sent_texts().back(), "select km_id from D6801  where km_id='1002'");
    anna.click("btn_Cancel");
    anna.forget_messages();
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Chart, blank_code_or_name_is_refused) {
    Person& anna = person();
    anna.node("1001 现金");
    anna.click("Act_Add");
    anna.refused({{"op", "click"}, {"control", "btn_ok"}});
    EXPECT_NE(anna.next_message().find("科目代号"), std::string::npos);
    anna.forget_messages();
    anna.set("t0", "1003");
    anna.click("btn_ok");
    EXPECT_NE(anna.next_message().find("科目名称"), std::string::npos);
    anna.forget_messages();
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Chart, an_account_in_use_gets_no_sub_accounts) {
    data.answer("SELECT (SELECT COUNT(*) FROM D6601A", {"I int"}, {{"3"}});
    Person& anna = person();
    anna.node("100201 工行");
    anna.click("Act_CopyAdd");
    anna.expect_message("科目“100201 工行”已有凭证或余额,不能再增加下级科目!请在同级新增科目。");
    anna.expect_active("TF6681");
}

TEST_F(Chart, the_profit_of_the_year_gets_no_sub_accounts) {
    data.answer("SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=3",
                {"KM_ID text", "KM_NAME text", "OID text"}, {{"3131", "本年利润", "Z"}});
    Person& anna = person();
    anna.click("SpeedButton4");
    anna.node("3131 本年利润");
    anna.click("Act_CopyAdd");
    anna.expect_message("科目“3131 本年利润”由结转损溢直接记帐,不能增加下级科目!");
    anna.expect_active("TF6681");
}

TEST_F(Chart, an_account_with_a_balance_keeps_its_side) {
    data.answer("SELECT COUNT(*)", {"I int"}, {{"1"}});
    Person& anna = person();
    anna.node("1002 银行存款");
    anna.click("Act_Modify");
    anna.check("RB2");
    anna.click("btn_ok");
    anna.expect_message("科目“1002 银行存款”已有余额,不能改变余额方向!"
                        "请另增科目,用凭证把余额转过去。");
    EXPECT_EQ(anna.sent_texts().back(), "SELECT COUNT(*) AS I FROM D6602 WHERE KM_ID='1002' AND "
                                        "INX=1 AND (J<>0 OR D<>0)");
    anna.expect_active("TF6681_1");
    EXPECT_TRUE(data.executed().empty());
    anna.check("RB1");
    anna.set("t1", "银行");
    anna.click("btn_ok");
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_F(Chart, an_account_is_deleted_after_a_question_unless_it_is_in_use) {
    Person& anna = person();
    anna.node("1101 短期投资");
    anna.answer_next(true);
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("短期投资"), std::string::npos);
    EXPECT_EQ(last_batch(), "delete from D6801 Where km_ID='1101'");
    data.answer("SELECT COUNT(*)", {"I int"}, {{"1"}});
    anna.node("1001 现金");
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("已有凭证使用该科目"), std::string::npos);
    EXPECT_EQ(data.executed().size(), 1u);
}

} // namespace
} // namespace tests
