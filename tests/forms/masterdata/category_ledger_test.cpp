// The income and expense categories maintained on real books.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class CategoryLedger : public LedgerDesk {
protected:
    CategoryLedger() { anna.open(687); }
    void add(const std::string& kind, const std::string& code, const std::string& name,
             const std::string& account, bool counts = false) {
        anna.click("Act_Add");
        anna.set("SZLB_CLASS", kind);
        anna.set("Edit1", code);
        anna.set("SZLB_NAME", name);
        anna.set("KM_ID", account);
        anna.check("T", counts);
        anna.click("btn_ok");
        anna.expect_active("TF6687");
    }
    std::vector<std::string> codes_listed() {
        std::vector<std::string> codes;
        for (const Row& row : anna.rows()) codes.push_back(row.at("SZLB"));
        return codes;
    }
};

using Codes = std::vector<std::string>;

TEST_F(CategoryLedger, every_kind_is_listed_and_each_by_itself) {
    add("费用类别", "31", "招待费", "550206", true);
    add("支出类别", "21", "罚款", "560102");
    add("收入类别", "02", "利'息", "550302");
    add("收入类别", "01", "租金", "5102", true);
    EXPECT_EQ(codes_listed(), (Codes{"31", "21", "02", "01"})); // as they were entered
    anna.click("SP3");
    EXPECT_EQ(codes_listed(), (Codes{"01", "02", "21", "31"}));
    EXPECT_EQ(anna.rows()[2].at("KM_NAME_NEW"), "营业外支出-罚款支出");
    anna.click("SP0");
    EXPECT_EQ(codes_listed(), (Codes{"01", "02"}));
    anna.click("SP1");
    EXPECT_EQ(codes_listed(), (Codes{"21"}));
    anna.click("SP2");
    EXPECT_EQ(codes_listed(), (Codes{"31"}));
    EXPECT_EQ(books.table("SELECT * FROM D6804 WHERE SZLB='02'"),
              (Rows{{{"SZLB_CLASS", "0"},
                     {"SZLB", "02"},
                     {"SZLB_NAME", "利'息"},
                     {"PYM", "LX"},
                     {"KM_ID", "550302"},
                     {"T", "0"}}}));
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6804 WHERE T=1"), "2");
}

TEST_F(CategoryLedger, a_change_and_a_delete_reach_the_books) {
    add("收入类别", "01", "利息", "550302", true);
    anna.click("Act_Modify");
    anna.set("SZLB_CLASS", "支出类别");
    anna.set("SZLB_NAME", "罚款");
    anna.set("KM_ID", "560102");
    anna.check("T", false);
    anna.click("btn_ok");
    EXPECT_EQ(books.table("SELECT * FROM D6804"),
              (Rows{{{"SZLB_CLASS", "1"},
                     {"SZLB", "01"},
                     {"SZLB_NAME", "罚款"},
                     {"PYM", "FK"},
                     {"KM_ID", "560102"},
                     {"T", "0"}}}));
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“罚款”吗？");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6804"), "0");
}

TEST_F(CategoryLedger, a_category_whose_account_is_gone_is_not_listed_and_stays_in_the_books) {
    add("收入类别", "01", "利息", "550302");
    add("收入类别", "02", "租金", "5102");
    written_past_forms = true; // the chart itself refuses to delete the account
    books.execute("DELETE FROM D6801 WHERE KM_ID='550302'");
    for (const char* button : {"SP3", "SP0"}) {
        anna.click(button);
        EXPECT_EQ(codes_listed(), (Codes{"02"}));
    }
    EXPECT_EQ(books.value("SELECT SZLB_NAME FROM D6804 WHERE SZLB='01'"), "利息");
    anna.click("Act_Add");
    anna.set("SZLB_CLASS", "收入类别");
    anna.set("Edit1", "01");
    anna.refused({{"op", "focus"}, {"control", "SZLB_NAME"}});
    anna.expect_message("收支代码已登记!");
    anna.click("btn_Cancel");
}

TEST_F(CategoryLedger, an_account_with_a_category_stays_in_the_chart) {
    add("收入类别", "01", "利息", "550302");
    anna.open(681);
    anna.click("SpeedButton5");
    anna.node("550302 利息收入");
    anna.click("Act_Delete");
    anna.expect_message("“550302 利息收入”不能删除：已有收支类别使用该科目!");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6801 WHERE KM_ID='550302'"), "1");
}

TEST_F(CategoryLedger, a_category_that_a_document_uses_is_not_deleted) {
    add("收入类别", "01", "利息", "550302");
    add("支出类别", "21", "罚款", "560102");
    books.execute("INSERT INTO D651A (NOID, SZLB, MONEY) VALUES ('Q1', '01', 5);"
                  "INSERT INTO D652A (NOID, SZLB, MONEY) VALUES ('E1', '21', 5)");
    written_past_forms = true;
    anna.row(0);
    anna.click("Act_Delete");
    anna.expect_message("“利息”不能删除：已有收款单使用该收支类别!");
    anna.row(1);
    anna.click("Act_Delete");
    anna.expect_message("“罚款”不能删除：已有付款单使用该收支类别!");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6804"), "2");
}

TEST_F(CategoryLedger, an_account_is_picked_by_code_name_or_pinyin) {
    anna.click("Act_Add");
    for (const char* typed : {"550302", "利息收入", "lxsr"}) {
        anna.lookup("KM_ID");
        anna.set("wl_id", typed);
        ASSERT_EQ(anna.row_count(), 1) << typed;
        anna.double_click(0, "KM_ID");
        EXPECT_EQ(anna.value("KM_ID"), "550302") << typed;
        EXPECT_EQ(anna.control("KM_ID").at("display"), "财务费用-利息收入");
    }
    anna.click("btn_Cancel");
}

// What the picker asks where a caller wants assets alone: who types the name of another account
// wants that account.
TEST_F(CategoryLedger, an_account_that_a_condition_excludes_is_listed_when_found_by_name) {
    const auto listed = [&](const std::string& typed) {
        const std::string like = " like '%" + typed + "%')";
        Codes codes;
        for (const Row& row :
             books.table("SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0)  and KM_FL=1 "
                         "and (KM_id" + like + " or(KM_NAME2" + like + " or(pym" + like + " ")) {
            codes.push_back(row.at("KM_ID"));
        }
        return codes;
    };
    EXPECT_EQ(listed("利息收入"), (Codes{"550302"})); // profit and loss, by name
    EXPECT_EQ(listed("FKJSR"), (Codes{"530102"}));    // and by pinyin
    EXPECT_EQ(listed("550302"), (Codes{}));           // by its code it stays out
}

} // namespace
} // namespace tests
