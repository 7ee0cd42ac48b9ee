// Income and expense categories: the list by kind, and their dialog.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

const std::string categories =
    "SELECT D6804.*, V6801.KM_NAME_NEW,CASE SZLB_CLASS WHEN 0 THEN '收入类别' WHEN 1 THEN '支出类别' "
    "WHEN 2 THEN '费用类别' END AS SZLB_CLASSN FROM V6801 INNER JOIN  D6804 ON V6801.KM_ID = "
    "D6804.KM_ID ";
const std::string in_order = " ORDER BY D6804.SZLB_CLASS,D6804.SZLB";
const std::string accounts = "SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0) ";

class Categories : public FormDesk {
protected:
    Categories() : FormDesk(687) {}
    void SetUp() override {
        const std::vector<std::string> columns = {
            "SZLB_CLASS int", "SZLB text", "SZLB_NAME text",   "PYM text",
            "KM_ID text",     "T bit",     "KM_NAME_NEW text", "SZLB_CLASSN text"};
        const FakeData::Cells interest = {"0",    "01", "利息收入",   "LXSR",
                                          "5301", "1",  "营业外收入", "收入类别"};
        const FakeData::Cells dinners = {"2",      "31", "招待费",            "ZDF",
                                         "550201", "0",  "管理费用-招待费", "费用类别"};
        data.answer(categories + " where SZLB_CLASS=0", columns, {interest});
        data.answer(categories + " where SZLB_CLASS=1", columns, {});
        data.answer(categories + " where SZLB_CLASS=2", columns, {dinners});
        data.answer(categories + in_order, columns, {interest, dinners});
        data.answer("select * from D6804 where SZLB=", {"SZLB text"}, {});
        used_by("D651A", false);
        used_by("D652A", false);
        const std::vector<std::string> account = {"KM_ID text", "KM_NAME_NEW text"};
        data.answer(account_query("5301"), account, {{"5301", "营业外收入"}});
        data.answer(account_query("5503"), account, {{"5503", "财务费用"}});
        data.answer(account_query("550201"), account, {{"550201", "管理费用-招待费"}});
        data.answer("SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID=", account, {});
        data.answer(accounts, {"KM_ID text", "KM_NAME text"},
                    {{"5301", "营业外收入"}, {"5503", "财务费用"}});
    }
    void used_by(const std::string& table, bool used) {
        data.answer("SELECT COUNT(*) AS I FROM " + table + " WHERE SZLB=", {"I int"},
                    {{used ? "3" : "0"}});
    }
    static std::string account_query(const std::string& code) {
        return "SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID='" + code + "'";
    }
    // Fills the dialog that is open and saves it.
    void save(const std::string& kind, const std::string& code, const std::string& name,
              const std::string& account) {
        Person& anna = person();
        anna.set("SZLB_CLASS", kind);
        anna.set("Edit1", code);
        anna.set("SZLB_NAME", name);
        anna.set("KM_ID", account);
        anna.click("btn_ok");
        anna.expect_active("TF6687");
    }
};

// ---- the list

TEST_F(Categories, are_listed_by_kind_and_code_with_their_accounts) {
    Person& anna = person();
    EXPECT_EQ(anna.caption(), "收支类别");
    EXPECT_EQ(columns_shown(), "SZLB_CLASSN 收支类别, SZLB 代码, SZLB_NAME 名称, KM_ID 科目代码, "
                               "KM_NAME_NEW 科目名称, T 计入企业经营利润表");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{categories + in_order}));
    EXPECT_EQ(anna.rows()[1].at("SZLB_CLASSN"), "费用类别");
    EXPECT_EQ(anna.rows()[1].at("KM_NAME_NEW"), "管理费用-招待费");
}

TEST_F(Categories, a_button_shows_one_kind_and_the_last_all_of_them) {
    // button  caption      condition               rows
    const struct {
        const char* button;
        const char* caption;
        const char* condition;
        int rows;
    } attempts[] = {{"SP0", "收入类别", " where SZLB_CLASS=0", 1},
                    {"SP1", "支出类别", " where SZLB_CLASS=1", 0},
                    {"SP2", "费用类别", " where SZLB_CLASS=2", 1},
                    {"SP3", "全部", "", 2}};
    Person& anna = person();
    for (const auto& attempt : attempts) {
        EXPECT_EQ(anna.control(attempt.button).at("caption"), attempt.caption);
        anna.mark();
        anna.click(attempt.button);
        EXPECT_EQ(anna.sent_texts(),
                  (std::vector<std::string>{categories + attempt.condition + in_order}));
        EXPECT_EQ(anna.row_count(), attempt.rows) << attempt.caption;
    }
}

TEST_F(Categories, read_anew_the_list_keeps_the_kind_shown) {
    Person& anna = person();
    anna.click("SP2");
    anna.mark();
    anna.click("Act_Refresh");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{categories + " where SZLB_CLASS=2" + in_order}));
}

TEST_F(Categories, a_category_is_deleted_after_a_question_unless_documents_use_it) {
    Person& anna = person();
    anna.row(1);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“招待费”吗？");
    EXPECT_EQ(last_batch(), "delete from D6804 Where SZLB='31'");
    EXPECT_EQ(last_log().key, "31");
    const std::pair<const char*, const char*> documents[] = {
        {"D651A", "已有收款单使用该收支类别"}, {"D652A", "已有付款单使用该收支类别"}};
    for (const auto& [table, reason] : documents) {
        used_by(table, true);
        anna.row(0);
        anna.click("Act_Delete");
        anna.expect_message(std::string("“利息收入”不能删除：") + reason + "!");
        used_by(table, false);
    }
    EXPECT_EQ(data.executed().size(), 1U);
}

// ---- a new one

TEST_F(Categories, a_new_one_begins_empty_and_is_written_with_its_pinyin) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.expect_active("TF6687_1");
    EXPECT_EQ(anna.focused(), "SZLB_CLASS");
    for (const char* field : {"SZLB_CLASS", "Edit1", "SZLB_NAME", "KM_ID"}) {
        EXPECT_EQ(anna.value(field), "") << field;
    }
    EXPECT_FALSE(anna.checked("T"));
    EXPECT_EQ(anna.control("T").at("caption"), "计入企业经营利润表");
    anna.check("T");
    save("支出类别", "32", " 利'息 ", "5503");
    EXPECT_EQ(last_batch(), "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME, PYM,KM_ID,  T) "
                            "ValueS(1,'32',' 利''息 ','LX','5503',1)");
    EXPECT_EQ(last_log().key, "32");
    EXPECT_EQ(last_log().operation, "Add");
    EXPECT_EQ(last_log().function, "687");
}

TEST_F(Categories, what_was_saved_stands_in_the_list_without_reading_it_again) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.mark();
    save("支出类别", "32", "利息", "5503");
    for (const std::string& text : anna.sent_texts()) EXPECT_FALSE(text.starts_with(categories));
    const Row row = anna.rows().back();
    EXPECT_EQ(row.at("SZLB_CLASSN"), "支出类别");
    EXPECT_EQ(row.at("SZLB"), "32");
    EXPECT_EQ(row.at("SZLB_NAME"), "利息");
    EXPECT_EQ(row.at("KM_ID"), "5503");
    EXPECT_EQ(row.at("KM_NAME_NEW"), "财务费用");
    anna.row(2);
    anna.click("Act_Modify");
    EXPECT_EQ(anna.value("SZLB_CLASS"), "支出类别");
    EXPECT_FALSE(anna.checked("T"));
    anna.click("btn_Cancel");
}

TEST_F(Categories, a_copy_starts_from_the_selected_one) {
    Person& anna = person();
    anna.click("Act_CopyAdd");
    EXPECT_EQ(anna.value("SZLB_CLASS"), "收入类别");
    EXPECT_EQ(anna.value("Edit1"), "01");
    EXPECT_EQ(anna.value("SZLB_NAME"), "利息收入");
    EXPECT_EQ(anna.value("KM_ID"), "5301");
    EXPECT_EQ(anna.control("KM_ID").at("display"), "营业外收入");
    EXPECT_TRUE(anna.checked("T"));
    save("收入类别", "02", "罚款收入", "5301");
    EXPECT_EQ(last_batch(), "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME, PYM,KM_ID,  T) "
                            "ValueS(0,'02','罚款收入','FKSR','5301',1)");
    EXPECT_EQ(last_log().operation, "CopyAdd");
}

// ---- a change

TEST_F(Categories, editing_changes_everything_but_the_code) {
    Person& anna = person();
    anna.click("Act_Modify");
    EXPECT_EQ(anna.focused(), "SZLB_NAME");
    EXPECT_NE(anna.cannot_set("Edit1", "09"), "");
    anna.forget_messages();
    anna.set("SZLB_CLASS", "支出类别");
    anna.set("SZLB_NAME", "利息");
    anna.set("KM_ID", "5503");
    anna.check("T", false);
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(), "update D6804 set SZLB_NAME='利息',PYM='LX',SZLB_CLASS='1',"
                            "KM_ID='5503',t=0 where SZLB='01'");
    EXPECT_EQ(last_log().key, "01");
    EXPECT_EQ(last_log().operation, "Edit");
    EXPECT_EQ(anna.rows()[0].at("SZLB_CLASSN"), "支出类别");
    EXPECT_EQ(anna.rows()[0].at("KM_NAME_NEW"), "财务费用");
}

// ---- leaving a field

TEST_F(Categories, a_code_in_use_is_refused_when_it_is_left) {
    data.answer("select * from D6804 where SZLB=", {"SZLB text"}, {{"01"}});
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("Edit1", "01");
    anna.mark();
    anna.refused({{"op", "focus"}, {"control", "SZLB_NAME"}});
    anna.expect_message("收支代码已登记!");
    EXPECT_EQ(anna.focused(), "Edit1");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{"select * from D6804 where SZLB='01'"}));
    anna.click("btn_Cancel");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(Categories, nothing_is_saved_without_kind_code_name_and_account) {
    Person& anna = person();
    anna.click("Act_Add");
    // filled in so far   then asked for
    const std::pair<std::pair<const char*, const char*>, const char*> steps[] = {
        {{"T", ""}, "收支类别"},
        {{"SZLB_CLASS", "收入类别"}, "收支代码"},
        {{"Edit1", "03"}, "名称"},
        {{"SZLB_NAME", "租金"}, "科目代码"}};
    for (const auto& [filled, asked_for] : steps) {
        if (*filled.second != '\0') anna.set(filled.first, filled.second);
        anna.click("btn_ok");
        EXPECT_EQ(anna.next_message(), std::string(asked_for) + "不能为空，请录入!");
        anna.expect_active("TF6687_1");
        anna.forget_messages();
    }
    EXPECT_TRUE(data.executed().empty());
    anna.click("btn_Cancel");
}

TEST_F(Categories, an_account_that_is_not_in_the_chart_is_refused) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("KM_ID", "9'9");
    anna.mark();
    anna.refused({{"op", "focus"}, {"control", "T"}});
    anna.expect_message("科目“9'9”不存在!请按 F4 选择科目。");
    EXPECT_EQ(anna.focused(), "KM_ID");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{account_query("9''9")}));
    anna.set("KM_ID", "5503");
    anna.focus("T");
    EXPECT_EQ(anna.control("KM_ID").at("display"), "财务费用");
    anna.click("btn_Cancel");
}

TEST_F(Categories, cancel_asks_for_nothing) {
    Person& anna = person();
    for (const char* field : {"Edit1", "SZLB_NAME", "KM_ID"}) {
        anna.click("Act_Add");
        anna.request({{"op", "focus"}, {"control", field}});
        anna.mark();
        anna.click("btn_Cancel");
        anna.expect_active("TF6687");
        EXPECT_TRUE(anna.sent_texts().empty()) << field;
    }
}

TEST_F(Categories, texts_are_no_longer_than_their_columns) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("SZLB_CLASS", "收入类别");
    const std::pair<const char*, std::size_t> lengths[] = {
        {"KM_ID", 18}, {"SZLB_NAME", 20}, {"Edit1", 4}};
    for (const auto& [field, length] : lengths) {
        EXPECT_NE(anna.cannot_set(field, std::string(length + 1, '1')), "") << field;
        anna.forget_messages();
        anna.request({{"op", "set"}, {"control", field}, {"value", std::string(length, '1')}});
        EXPECT_EQ(anna.value(field), std::string(length, '1'));
        if (std::string(field) == "KM_ID") anna.set("KM_ID", "5301");
    }
    anna.click("btn_Cancel");
}

// ---- the account picker

TEST_F(Categories, the_account_is_picked_from_the_whole_chart) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.mark();
    anna.lookup("KM_ID");
    anna.expect_active("TFLINK_6801");
    EXPECT_EQ(anna.sent_texts(), (std::vector<std::string>{accounts}));
    EXPECT_EQ(anna.sent().back().function, "687");
    anna.double_click(1, "KM_ID");
    anna.expect_active("TF6687_1");
    EXPECT_EQ(anna.value("KM_ID"), "5503");
    EXPECT_EQ(anna.control("KM_ID").at("display"), "财务费用");
    anna.click("btn_Cancel");
}

} // namespace
} // namespace tests
