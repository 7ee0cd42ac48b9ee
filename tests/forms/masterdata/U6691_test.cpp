// The cash-flow items as a tree, and their dialog.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

class CashFlowItems : public FormDesk {
protected:
    CashFlowItems() : FormDesk(691) {}
    void SetUp() override {
        data.answer("SELECT * FROM D6820",
                    {"ID text", "XJLL text", "IO text", "OID text", "PYM text"},
                    {{"1", "经营活动", "流入", "ZZZ", "JYHD"},
                     {"11", "经营流入", "流入", "1", "JYLR"},
                     {"1101", "销售收现", "流入", "11", "XSSX"},
                     {"1201", "购货付现", "流出", "12", "GHFX"}});
        data.answer("select * from d6820 where id=", {"id text"}, {});
        row_of("1", {"1", "经营活动", "流入", "ZZZ"});
        row_of("11", {"11", "经营流入", "流入", "1"});
        row_of("1101", {"1101", "销售收现", "流入", "11"});
        row_of("1201", {"1201", "购货付现", "流出", "12"});
        data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
    }

    void row_of(const std::string& code, const std::vector<std::string>& row) {
        data.answer("SELECT ID, XJLL, IO, OID FROM D6820 WHERE (id ='" + code + "')",
                    {"ID text", "XJLL text", "IO text", "OID text"},
                    {{row[0], row[1], row[2], row[3]}});
    }

    // Fills the dialog that is open and saves it.
    void save(const std::string& code, const std::string& name, const char* side) {
        Person& anna = person();
        anna.set("t0", code);
        anna.set("t1", name);
        anna.check(side);
        anna.click("btn_ok");
        anna.expect_active("TF6691");
    }
};

TEST_F(CashFlowItems, stand_in_one_tree_by_code_and_name) {
    Person& anna = person();
    EXPECT_EQ(anna.caption(), "现金流量项目");
    EXPECT_EQ(anna.tree(), (std::vector<std::string>{"1 经营活动", "  11 经营流入",
                                                     "    1101 销售收现", "1201 购货付现"}));
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{"SELECT * FROM D6820 ORDER BY OID,ID"}));
}

TEST_F(CashFlowItems, an_item_beside_a_top_level_one_belongs_to_the_top) {
    Person& anna = person();
    anna.node("1 经营活动");
    anna.click("Act_Add");
    anna.expect_active("TF6691_1");
    EXPECT_EQ(anna.focused(), "t0");
    EXPECT_EQ(anna.control("t0").at("caption"), "代    号");
    EXPECT_EQ(anna.control("t1").at("caption"), "名    称");
    EXPECT_TRUE(anna.checked("RB1"));
    save("5", " 其他活动 ", "RB2");
    EXPECT_EQ(last_batch(), "INSERT INTO D6820 (ID, XJLL, IO, OID, PYM) ValueS('5',"
                            "' 其他活动 ','流出','ZZZ','QTHD')");
    EXPECT_EQ(last_log().key, "5");
    EXPECT_EQ(last_log().operation, "Add");
    EXPECT_EQ(last_log().function, "691");
}

TEST_F(CashFlowItems, an_item_beside_another_takes_its_parent) {
    Person& anna = person();
    anna.node("1101 销售收现");
    anna.click("Act_Add");
    EXPECT_EQ(anna.value("t0"), "");
    EXPECT_EQ(anna.value("t1"), "");
    save("1102", "税费返还", "RB1");
    EXPECT_EQ(last_batch(), "INSERT INTO D6820 (ID, XJLL, IO, OID, PYM) ValueS('1102',"
                            "'税费返还','流入','11','SFFH')");
    EXPECT_EQ(anna.tree()[3], "    1102 税费返还");
}

TEST_F(CashFlowItems, a_sub_item_begins_as_a_copy_of_its_parent) {
    Person& anna = person();
    anna.node("1201 购货付现");
    anna.mark();
    anna.click("Act_CopyAdd");
    EXPECT_EQ(anna.sent_texts().back(),
              "SELECT ID, XJLL, IO, OID FROM D6820 WHERE (id ='1201')");
    EXPECT_EQ(anna.value("t0"), "1201");
    EXPECT_EQ(anna.value("t1"), "购货付现");
    EXPECT_TRUE(anna.checked("RB2"));
    save("120101", "购进商品", "RB2");
    EXPECT_EQ(last_batch(), "INSERT INTO D6820 (ID, XJLL, IO, OID, PYM) ValueS('120101',"
                            "'购进商品','流出','1201','GJSP')");
    EXPECT_EQ(last_log().operation, "CopyAdd");
    EXPECT_EQ(anna.tree()[4], "  120101 购进商品");
}

TEST_F(CashFlowItems, editing_changes_name_and_direction_alone) {
    Person& anna = person();
    anna.node("1101 销售收现");
    anna.click("Act_Modify");
    EXPECT_EQ(anna.focused(), "t1");
    EXPECT_NE(anna.cannot_set("t0", "1102"), "");
    anna.forget_messages();
    anna.set("t1", "销售'商品'");
    anna.check("RB2");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(), "UPDATE D6820 SET  XJLL = '销售''商品''',PYM='XSSP', IO = '流出' "
                            "where id='1101'");
    EXPECT_EQ(last_log().key, "1101");
    EXPECT_EQ(last_log().operation, "Edit");
    EXPECT_EQ(anna.tree()[2], "    1101 销售'商品'");
}

TEST_F(CashFlowItems, a_code_in_use_is_refused_when_it_is_left) {
    data.answer("select * from d6820 where id=", {"id text"}, {{"1101"}});
    Person& anna = person();
    anna.node("1101 销售收现");
    anna.click("Act_Add");
    anna.set("t0", "1101");
    anna.mark();
    EXPECT_NE(anna.refused({{"op", "focus"}, {"control", "t1"}}), "");
    anna.expect_message("编号已登记!");
    EXPECT_EQ(anna.focused(), "t0");
    EXPECT_EQ(anna.sent_texts().back(), "select * from d6820 where id='1101'");
    anna.click("btn_Cancel");
    anna.forget_messages();
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(CashFlowItems, blank_code_or_name_is_refused) {
    Person& anna = person();
    anna.node("1 经营活动");
    anna.click("Act_Add");
    anna.refused({{"op", "click"}, {"control", "btn_ok"}});
    EXPECT_NE(anna.next_message().find("编号"), std::string::npos);
    anna.forget_messages();
    anna.set("t0", "5");
    anna.click("btn_ok");
    EXPECT_NE(anna.next_message().find("名称"), std::string::npos);
    anna.forget_messages();
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(CashFlowItems, a_code_has_twenty_characters_at_most) {
    Person& anna = person();
    anna.node("1 经营活动");
    anna.click("Act_Add");
    EXPECT_NE(anna.cannot_set("t0", std::string(21, '1')), "");
    anna.forget_messages();
    anna.set("t0", std::string(20, '1'));
    EXPECT_EQ(anna.value("t0"), std::string(20, '1'));
    anna.click("btn_Cancel");
    anna.forget_messages();
}

TEST_F(CashFlowItems, an_item_is_deleted_after_a_question_unless_vouchers_are_allocated_to_it) {
    Person& anna = person();
    anna.node("1201 购货付现");
    anna.answer_next(true);
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("购货付现"), std::string::npos);
    EXPECT_EQ(last_batch(), "delete from D6820 Where id='1201'");
    anna.mark();
    data.answer("SELECT COUNT(*)", {"I int"}, {{"1"}});
    anna.node("1101 销售收现");
    anna.click("Act_Delete");
    anna.expect_message("“1101 销售收现”不能删除：已有凭证的现金流量分配到该项目!");
    EXPECT_EQ(anna.sent_texts().back(),
              "SELECT COUNT(*) AS I FROM D6601B WHERE D6820ID='1101'");
    EXPECT_EQ(data.executed().size(), 1u);
}

} // namespace
} // namespace tests
