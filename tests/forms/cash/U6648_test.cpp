// Bank deposits and withdrawals: the list, its conditions, the dialog, what is refused.
#include "tests/forms/form_desk.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

const std::string transfers =
    "SELECT D653.NOID, D653.BDATE, D653.EDATE, D653.JY_ID_FK, FK.JY_NAME AS JY_NAME_FK, "
    "D653.JY_ID_SK, SK.JY_NAME AS JY_NAME_SK, D653.MONEY, D653.ZY, D653.YW_ID, D1101.YW_NAME, "
    "D653.BM_ID, D1008.BM_NAME, D653.USER_ID, SYS_USER.USER_NAME FROM D653 INNER JOIN D1010 FK ON "
    "D653.JY_ID_FK = FK.JY_ID INNER JOIN D1010 SK ON D653.JY_ID_SK = SK.JY_ID INNER JOIN SYS_USER "
    "ON D653.USER_ID = SYS_USER.USER_ID left JOIN D1008 ON D653.BM_ID = D1008.BM_ID LEFT JOIN "
    "D1101 ON D653.YW_ID = D1101.YW_ID ";
const std::string march = "(D653.BDATE>='2024-03-01') AND (D653.BDATE<'2024-04-01')";
const std::vector<std::string> columns = {
    "NOID text",    "BDATE date",      "EDATE date", "JY_ID_FK text", "JY_NAME_FK text",
    "JY_ID_SK text", "JY_NAME_SK text", "MONEY money", "ZY text",      "YW_ID text",
    "YW_NAME text", "BM_ID text",      "BM_NAME text", "USER_ID text", "USER_NAME text"};
const FakeData::Cells deposit = {"B1", "2024-03-06", "<null>", "1",  "现金",  "2",    "工行", "100",
                                 "存现", "y1", "王五", "b1", "财务部", "u2", "李四"};
const FakeData::Cells drawing = {"B2", "2024-03-05", "<null>", "2", "工行",   "1",      "现金", "30.5",
                                 "提现", "<null>", "<null>", "<null>", "<null>", "admin", "admin"};

class BankTransfers : public FormDesk {
protected:
    BankTransfers() : FormDesk(648) {}
    void SetUp() override {
        answer_as_small_books(data);
        data.answer(transfers + " WHERE ", columns, {deposit, drawing});
        answer_document("B1", {deposit});
        answer_document("B2", {drawing});
        data.answer("SELECT NOID FROM D653 WHERE NOID='B1'", {"NOID text"}, {{"B1"}});
        data.answer("SELECT NOID FROM D653 WHERE NOID=", {"NOID text"}, {});
        data.answer("SELECT NOID FROM SYS_NUMBER", {"NOID text"}, {{"648240315001"}});
        answer_code("D1010", "JY", {{"1", "现金"}, {"2", "工行"}, {"3", "建行"}},
                    " AND (D1010.JY_ID <> '0')");
        answer_code("D1101", "YW", {{"y1", "王五"}});
        answer_code("D1008", "BM", {{"b1", "财务部"}});
    }
    void answer_document(const std::string& number, const std::vector<FakeData::Cells>& rows) {
        data.answer(transfers + "where D653.NOID='" + number + "'", columns, rows);
    }
    void answer_code(const std::string& table, const std::string& prefix,
                     const std::vector<FakeData::Cells>& rows, const std::string& condition = "") {
        const std::string id = prefix + "_ID", name = prefix + "_NAME";
        const std::string select = "SELECT " + id + "," + name + " FROM " + table + " WHERE ";
        for (const FakeData::Cells& row : rows)
            data.answer(select + id + "='" + row[0] + "'" + condition,
                        {id + " text", name + " text"}, {row});
        data.answer(select, {id + " text", name + " text"}, {});
    }
    // Fills the fields of the dialog that is open; a blank stays as it is.
    void enter(const std::string& paying, const std::string& receiving,
               const std::string& amount) {
        Person& anna = person();
        anna.set("JY_ID_FK", paying);
        anna.set("JY_ID_SK", receiving);
        anna.set("MONEY", amount);
    }
    // The condition that OK put behind the list's statement.
    std::string condition() {
        person().mark();
        person().click("btn_ok");
        const std::string list = transfers + " WHERE ";
        for (const std::string& text : person().sent_texts())
            if (text.starts_with(list)) return text.substr(list.size());
        return "";
    }
    Row row_of(const std::string& number) {
        for (const Row& row : person().rows())
            if (row.at("NOID") == number) return row;
        return {};
    }
};

// ---- the list

TEST_F(BankTransfers, of_the_current_period_are_listed_at_once_by_day) {
    Person& anna = person();
    anna.expect_active("TF6648");
    EXPECT_EQ(anna.caption(), "银行存取款单");
    EXPECT_EQ(columns_shown(),
              "NOID 单号, BDATE 开单日期, JY_NAME_FK 付款帐户, JY_NAME_SK 收款帐户, MONEY 金额, "
              "ZY 摘要, YW_NAME 经手人, BM_NAME 部门, USER_NAME 制单人");
    EXPECT_EQ(anna.sent_texts().back(), transfers + " WHERE " + march);
    EXPECT_EQ(anna.sent().back().function, "648");
    EXPECT_EQ(anna.rows()[0].at("NOID"), "B2"); // of the 5th
    EXPECT_EQ(anna.rows()[1].at("BDATE"), "2024-03-06");
    EXPECT_EQ(anna.footer("MONEY"), "130.50");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●开单日期:(2024-03-01 至 2024-03-31)");
}

TEST_F(BankTransfers, are_asked_for_by_number_or_summary_and_by_account) {
    struct Attempt {
        const char *text, *exact, *receiving, *paying, *terms;
    };
    const Attempt attempts[] = {
        {"", "", "", "", ""},
        {"B", "", "", "", " and  ((D653.noid LIKE '%B%') or (D653.ZY LIKE '%B%'))"},
        {"a'b", "x", "", "", " and  ((D653.noid='a''b') or (D653.ZY='a''b'))"},
        {"", "", "2", "", " AND (D653.JY_ID_SK='2')"},
        {"B1", "x", "2", "1",
         " and  ((D653.noid='B1') or (D653.ZY='B1')) AND (D653.JY_ID_FK='1') AND "
         "(D653.JY_ID_SK='2')"}};
    Person& anna = person();
    for (const Attempt& attempt : attempts) {
        anna.key("F3");
        anna.expect_active("TF6648F");
        anna.set("NOID", attempt.text);
        anna.check("CK1", *attempt.exact != '\0');
        anna.set("JY_ID_SK", attempt.receiving);
        anna.set("JY_ID_FK", attempt.paying);
        EXPECT_EQ(condition(), march + attempt.terms);
        anna.expect_active("TF6648");
    }
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●开单日期:(2024-03-01 至 2024-03-31)     ●单号 / 摘要:B1     ●收款帐户:2 工行     "
              "●付款帐户:1 现金");
}

TEST_F(BankTransfers, a_range_that_ends_before_it_starts_is_refused_and_cancel_changes_nothing) {
    Person& anna = person();
    anna.key("F3");
    anna.set("BDATE", "2024-04-01");
    EXPECT_EQ(condition(), "");
    anna.expect_message("开始日期不能大于结束日期!");
    EXPECT_EQ(anna.focused(), "BDATE");
    anna.set("BDATE", "2024-03-31");
    EXPECT_EQ(anna.value("titDATE"), "(1天)");
    anna.click("btn_Cancel");
    anna.mark();
    anna.key("F5");
    EXPECT_EQ(anna.sent_texts(), std::vector<std::string>{transfers + " WHERE " + march});
}

TEST_F(BankTransfers, one_is_deleted_after_a_question) {
    Person& anna = person();
    anna.row(1);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“B1”吗？");
    EXPECT_EQ(last_batch(), "delete from D653 Where NOID='B1'");
    EXPECT_EQ(last_log().key, "B1");
    EXPECT_EQ(last_log().operation, "Delete");
    EXPECT_EQ(anna.row_count(), 1);
    EXPECT_EQ(anna.footer("MONEY"), "30.50");
}

// ---- a new one

TEST_F(BankTransfers, a_new_one_begins_empty_on_todays_date_also_when_it_is_a_copy) {
    Person& anna = person();
    for (const char* action : {"Act_Add", "Act_CopyAdd"}) {
        anna.click(action);
        anna.expect_active("TF6648_1");
        EXPECT_EQ(anna.value("BDATE"), "2024-03-15");
        for (const char* field :
             {"Edit1", "JY_ID_FK", "JY_ID_SK", "MONEY", "EDIT2", "YW_ID", "BM_ID"})
            EXPECT_EQ(anna.value(field), "") << field;
        EXPECT_EQ(anna.value("USER_NAME"), "admin");
        EXPECT_FALSE(anna.visible("btn_frf"));
        anna.click("btn_Cancel");
    }
    EXPECT_TRUE(data.executed().empty()); // no number was drawn for nothing
}

TEST_F(BankTransfers, a_new_one_draws_its_number_and_is_written_and_listed) {
    Person& anna = person();
    anna.click("Act_Add");
    enter("1", "2", "1000");
    anna.set("EDIT2", "存'现'");
    anna.set("YW_ID", "y1");
    anna.set("BM_ID", "b1");
    anna.mark();
    anna.click("btn_ok");
    anna.expect_active("TF6648");
    EXPECT_EQ(last_batch(), "insert into D653 (NOID, BDATE, JY_ID_FK, JY_ID_SK, MONEY, ZY, YW_ID, "
                            "BM_ID, USER_ID)ValueS('648240315002','2024-03-15','1','2','1000',"
                            "'存''现''','y1','b1','admin')");
    EXPECT_EQ(last_log().key, "648240315002");
    EXPECT_EQ(last_log().operation, "Add");
    EXPECT_EQ(last_log().function, "648");
    for (const std::string& text : anna.sent_texts()) EXPECT_FALSE(text.starts_with(transfers));
    const Row row = row_of("648240315002");
    EXPECT_EQ(row.at("BDATE"), "2024-03-15");
    EXPECT_EQ(row.at("JY_NAME_FK"), "现金");
    EXPECT_EQ(row.at("JY_NAME_SK"), "工行");
    EXPECT_EQ(row.at("MONEY"), "1000.00");
    EXPECT_EQ(row.at("ZY"), "存'现'");
    EXPECT_EQ(row.at("YW_NAME"), "王五");
    EXPECT_EQ(row.at("BM_NAME"), "财务部");
    EXPECT_EQ(row.at("USER_NAME"), "admin");
    EXPECT_EQ(anna.footer("MONEY"), "1130.50");
}

TEST_F(BankTransfers, a_blank_amount_is_sent_as_0) {
    Person& anna = person();
    anna.click("Act_Add");
    enter("1", "2", "");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(), "insert into D653 (NOID, BDATE, JY_ID_FK, JY_ID_SK, MONEY, ZY, YW_ID, "
                            "BM_ID, USER_ID)ValueS('648240315002','2024-03-15','1','2','0','','',"
                            "'','admin')");
}

TEST_F(BankTransfers, a_number_left_empty_or_taken_gives_way_to_a_fresh_one) {
    // typed     then stands there
    const std::pair<const char*, const char*> attempts[] = {
        {"", "648240315002"}, {"B1", "648240315002"}, {"手工7", "手工7"}};
    Person& anna = person();
    for (const auto& [typed, stands] : attempts) {
        anna.click("Act_Add");
        anna.set("Edit1", typed);
        anna.mark();
        anna.focus("BDATE");
        EXPECT_EQ(anna.value("Edit1"), stands);
        const std::string look = std::string("SELECT NOID FROM D653 WHERE NOID='") + typed + "'";
        const bool looked_up = anna.sent_texts().front() == look;
        EXPECT_EQ(looked_up, *typed != '\0') << typed;
        anna.click("btn_Cancel");
    }
}

// ---- what is refused

TEST_F(BankTransfers, the_same_account_on_both_sides_is_refused_also_between_blanks) {
    Person& anna = person();
    const std::pair<const char*, const char*> attempts[] = {
        {"1", "1"}, {" 1", "1"}, {"1", "1 "}, {"", ""}};
    for (const auto& [paying, receiving] : attempts) {
        anna.click("Act_Add");
        enter(paying, receiving, "5");
        anna.click("btn_ok");
        anna.expect_message("付款帐户 和 收款帐户 不能相同!");
        EXPECT_EQ(anna.focused(), "JY_ID_FK");
        anna.expect_active("TF6648_1");
        anna.click("btn_Cancel");
    }
    for (const FakeData::Executed& sent : data.executed())
        EXPECT_EQ(sent.batch.find("D653"), std::string::npos) << sent.batch;
}

TEST_F(BankTransfers, both_accounts_must_be_there) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("JY_ID_FK", "1");
    anna.click("btn_ok");
    anna.expect_message("收款帐户不能为空，请录入!");
    anna.set("JY_ID_SK", "9");
    anna.refused({{"op", "focus"}, {"control", "MONEY"}});
    anna.expect_message("结算帐户“9”不存在!请按 F4 选择结算帐户。");
    EXPECT_EQ(anna.focused(), "JY_ID_SK");
    anna.click("btn_Cancel");
}

TEST_F(BankTransfers, what_the_database_refuses_stays_in_the_dialog) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("Edit1", "X1");
    enter("1", "2", "5");
    data.refuse_next_batch("单号重复。");
    anna.click("btn_ok");
    anna.expect_message("单号重复。");
    anna.expect_active("TF6648_1");
    EXPECT_EQ(anna.value("MONEY"), "5");
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.row_count(), 2);
}

// ---- a change

TEST_F(BankTransfers, a_change_keeps_the_number_and_names_who_made_it) {
    Person& anna = person();
    anna.row(1);
    anna.click("Act_Modify");
    EXPECT_EQ(anna.value("Edit1"), "B1");
    EXPECT_NE(anna.cannot_set("Edit1", "B9"), "");
    anna.forget_messages();
    EXPECT_EQ(anna.value("BDATE"), "2024-03-06");
    EXPECT_EQ(anna.control("JY_ID_FK").at("display"), "现金");
    EXPECT_EQ(anna.control("JY_ID_SK").at("display"), "工行");
    EXPECT_EQ(anna.control("YW_ID").at("display"), "王五");
    EXPECT_EQ(anna.control("BM_ID").at("display"), "财务部");
    EXPECT_EQ(anna.value("EDIT2"), "存现");
    EXPECT_EQ(anna.value("USER_NAME"), "李四");
    anna.set("BDATE", "2024-03-09");
    enter("2", "3", "12.3");
    anna.set("EDIT2", "转帐");
    anna.set("YW_ID", "");
    anna.set("BM_ID", "");
    anna.click("btn_ok");
    anna.expect_active("TF6648");
    EXPECT_EQ(last_batch(),
              "update D653 set BDATE='2024-03-09',JY_ID_FK='2',JY_ID_SK='3',MONEY='12.3',ZY='转帐',"
              "YW_ID='',BM_ID='',USER_ID='admin' where NOID='B1'");
    EXPECT_EQ(last_log().key, "B1");
    EXPECT_EQ(last_log().operation, "Edit");
    const Row row = row_of("B1");
    EXPECT_EQ(row.at("BDATE"), "2024-03-09");
    EXPECT_EQ(row.at("JY_NAME_FK"), "工行");
    EXPECT_EQ(row.at("JY_NAME_SK"), "建行");
    EXPECT_EQ(row.at("MONEY"), "12.30");
    EXPECT_EQ(row.at("YW_NAME"), "");
    EXPECT_EQ(row.at("BM_NAME"), "");
    EXPECT_EQ(row.at("USER_NAME"), "admin");
}

TEST_F(BankTransfers, what_others_changed_or_deleted_meanwhile_is_not_written_over) {
    Person& anna = person();
    FakeData::Cells changed = deposit;
    changed[7] = "101";
    const std::pair<std::vector<FakeData::Cells>, const char*> attempts[] = {
        {{changed}, "单据“B1”已被他人修改,不能保存!请退出后刷新列表,再修改。"},
        {{}, "单据“B1”已被他人删除,不能保存!请退出后刷新列表。"}};
    for (const auto& [stored, reason] : attempts) {
        answer_document("B1", stored);
        anna.row(1);
        anna.click("Act_Modify");
        anna.set("MONEY", "7");
        anna.click("btn_ok");
        anna.expect_message(reason);
        anna.click("btn_Cancel");
    }
    EXPECT_TRUE(data.executed().empty());
}

// ---- printing

TEST_F(BankTransfers, a_saved_one_is_printed_as_a_slip) {
    Person& anna = person();
    anna.row(1);
    anna.click("Act_Modify");
    anna.set("MONEY", "101");
    anna.click("btn_frf");
    anna.expect_message("单据还没有保存，请先按 F2 保存再打印!");
    anna.set("MONEY", "100.00");
    const PrintedPaper slip = anna.print();
    EXPECT_TRUE(slip.says("银行存取款单"));
    EXPECT_TRUE(slip.says("单号：B1    日期：2024-03-06"));
    EXPECT_EQ(slip.line_of("1 现金"),
              (std::vector<std::string>{"1 现金", "2 工行", "100.00", "存现"}));
    EXPECT_TRUE(slip.says("经手人：王五    部门：财务部    制单人：李四"));
    anna.click("btn_Cancel");
}

} // namespace
} // namespace tests
