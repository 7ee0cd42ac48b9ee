// The reports on money accounts: conditions word for word, what is refused, the way to a document.
#include "tests/forms/form_desk.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

const std::string detail =
    "SELECT A.*, D1101.YW_NAME, D1008.BM_NAME, CASE C WHEN 10 THEN '销售收款' WHEN 11 THEN "
    "'预收款' WHEN 12 THEN '预收退款' WHEN 13 THEN '销售退回' WHEN 20 THEN '采购付款' WHEN 21 THEN "
    "'预付款' WHEN 22 THEN '预付退款' WHEN 24 THEN '采购退回' WHEN 30 THEN '银行存取款单' WHEN 31 "
    "THEN '银行存取款单' WHEN 40 THEN '收款结算' WHEN 50 THEN '费用结算' END AS MNAME FROM VIEW_XJ A "
    "LEFT OUTER JOIN D1101 ON A.YW_ID = D1101.YW_ID LEFT OUTER JOIN D1008 ON A.BM_ID = "
    "D1008.BM_ID ";
const std::string march = "(A.BDATE>='2024-03-01') AND (A.BDATE<'2024-04-01') AND (C<>23)";
const std::vector<std::string> boxes = {"CK1", "CK2", "CK3", "CK4", "CK5", "CK6", "CK7"};

void answer_accounts(FakeData& data) {
    answer_as_small_books(data);
    data.answer("SELECT JY_ID,JY_NAME FROM D1010 WHERE JY_ID='1' AND (D1010.JY_ID <> '0')",
                {"JY_ID text", "JY_NAME text"}, {{"1", "现金"}});
    data.answer("SELECT JY_ID,JY_NAME FROM D1010 WHERE", {"JY_ID text", "JY_NAME text"}, {});
}

// The last statement that was sent.
std::string last_sent(Person& anna) {
    const std::vector<std::string> texts = anna.sent_texts();
    return texts.empty() ? "" : texts.back();
}

// ---- the detail

class MoneyDetail : public FormDesk {
protected:
    MoneyDetail() : FormDesk(653) {}
    void SetUp() override {
        answer_accounts(data);
        data.answer(detail,
                    {"C int", "NOID text", "BDATE date", "JY_ID text", "INMONEY money",
                     "OUTMONEY money", "ZY text", "KG_NAME text", "YW_NAME text", "BM_NAME text",
                     "MNAME text"},
                    {row("40", "Q2", "2024-03-07", "70", "0"),
                     row("11", "R2", "2024-03-07", "5", "0"),
                     row("30", "B1", "2024-03-06", "0", "100"),
                     row("24", "X1", "2024-03-09", "9", "0"),
                     row("13", "T2", "2024-03-09", "0", "15")});
    }
    static FakeData::Cells row(const std::string& kind, const std::string& number,
                               const std::string& day, const std::string& in,
                               const std::string& out) {
        return {kind, number, day, "1", in, out, "", "", "", "", "kind " + kind};
    }
    // The condition that OK put behind the statement; "" when nothing was sent.
    std::string condition() {
        person().mark();
        person().click("btn_ok");
        const std::string text = last_sent(person());
        const std::string list = detail + " WHERE ";
        return text.starts_with(list) ? text.substr(list.size()) : "";
    }
    void tick_only(const std::vector<std::string>& ticked) {
        for (const std::string& box : boxes) person().check(box, false);
        for (const std::string& box : ticked) person().check(box);
    }
};

TEST_F(MoneyDetail, asks_for_the_current_period_all_accounts_and_all_documents) {
    Person& anna = person();
    anna.expect_active("TF6653F");
    EXPECT_EQ(anna.value("BDATE"), "2024-03-01");
    EXPECT_EQ(anna.value("EDATE"), "2024-03-31");
    EXPECT_EQ(anna.value("titDATE"), "(31天)");
    EXPECT_EQ(condition(),
              march + "AND (C<>30)AND ((1<0) OR (A.C=10) OR (A.C=11) OR (A.C=12)OR (A.C=40) OR "
                      "(A.C=20) OR (A.C=21) OR (A.C=22)OR (A.C=50) OR (A.C=30) OR (A.C=13) OR "
                      "(A.C=24) )");
    anna.expect_active("TF6653");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●开单日期:03-01 至 03-31  ●包含以下单据:收款单/收款结算/付款单/费用结算/银行存取款单/"
              "销售退回/采购退回");
    EXPECT_EQ(columns_shown(),
              "BDATE 日期, MNAME 单据类型, NOID 单号, INMONEY 收入, OUTMONEY 支出, ZY 摘要, KG_NAME "
              "往来单位, BM_NAME 部门, YW_NAME 业务员");
    EXPECT_EQ(anna.footer("INMONEY"), "84.00");
    EXPECT_EQ(anna.footer("OUTMONEY"), "115.00");
}

TEST_F(MoneyDetail, stands_in_the_order_of_day_kind_and_number) {
    Person& anna = person();
    anna.click("btn_ok");
    std::string numbers;
    for (const Row& row : anna.rows()) numbers += row.at("NOID") + " ";
    EXPECT_EQ(numbers, "B1 R2 Q2 T2 X1 ");
}

TEST_F(MoneyDetail, of_each_kind_of_document_lists_its_own_movements) {
    // box    its term
    const std::pair<const char*, const char*> attempts[] = {
        {"CK1", "OR (A.C=10) OR (A.C=11) OR (A.C=12)"},
        {"CK2", "OR (A.C=40) "},
        {"CK3", "OR (A.C=20) OR (A.C=21) OR (A.C=22)"},
        {"CK4", "OR (A.C=50) "},
        {"CK5", "OR (A.C=30) "},
        {"CK6", "OR (A.C=13) "},
        {"CK7", "OR (A.C=24) "}};
    for (const auto& [box, term] : attempts) {
        tick_only({box});
        EXPECT_EQ(condition(), march + "AND (C<>30)AND ((1<0) " + term + ")");
        person().key("F3");
        EXPECT_TRUE(person().checked(box));
    }
}

TEST_F(MoneyDetail, of_one_account_lists_its_withdrawals_and_never_its_deposits) {
    Person& anna = person();
    anna.set("JY_ID", "1");
    tick_only({"CK1", "CK5"});
    EXPECT_EQ(condition(),
              march + "AND (C<>31) AND (A.JY_ID='1')AND ((1<0) OR (A.C=10) OR (A.C=11) OR "
                      "(A.C=12)OR (A.C=30) )");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●开单日期:03-01 至 03-31   ●帐户代码:1--现金  ●包含以下单据:收款单/银行存取款单");
}

TEST_F(MoneyDetail, is_refused_without_documents_or_when_the_days_run_backwards) {
    Person& anna = person();
    tick_only({});
    EXPECT_EQ(condition(), "");
    anna.expect_message("至少勾先一项以上单据!");
    anna.expect_active("TF6653F");
    anna.set("BDATE", "2024-04-01");
    EXPECT_EQ(condition(), "");
    anna.expect_message("开始日期不能大于结束日期!"); // the days are looked at first
    EXPECT_EQ(anna.focused(), "BDATE");
    anna.set("BDATE", "2024-03-31");
    anna.set("JY_ID", "9");
    anna.refused({{"op", "focus"}, {"control", "CK1"}});
    anna.expect_message("结算帐户“9”不存在!请按 F4 选择结算帐户。");
}

TEST_F(MoneyDetail, without_a_condition_has_nothing_to_refresh) {
    Person& anna = person();
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.row_count(), 0);
    anna.key("F5");
    anna.expect_message("您还没选择任何查询参数,请按【F3 或 空格】呼出查询选项!");
    anna.key("Space", "DBGridEh");
    anna.expect_active("TF6653F");
}

TEST_F(MoneyDetail, a_row_of_an_advance_opens_nothing_and_one_of_another_module_says_so) {
    Person& anna = person();
    anna.click("btn_ok");
    anna.mark();
    anna.double_click(1, "NOID"); // kind 11
    anna.expect_active("TF6653");
    EXPECT_TRUE(anna.sent_texts().empty());
    anna.double_click(3, "NOID");
    anna.expect_message("模块暂不开放!204");
    anna.double_click(4, "NOID");
    anna.expect_message("模块暂不开放!214");
}

// ---- the ledger and the daybook

class MoneyLedger : public FormDesk {
protected:
    MoneyLedger() : FormDesk(650) {}
    void SetUp() override {
        answer_accounts(data);
        data.answer("exec SYS_XJ @PARAM=0",
                    {"JY_ID text", "JY_NAME text", "QC money", "INMONEY money", "OUTMONEY money",
                     "YE money"},
                    {{"1", "现金", "50", "420", "235", "235"},
                     {"2", "工行", "0", "409", "500", "-91"}});
        data.answer("EXEC SYS_XJ @PARAM=1",
                    {"JY_ID text", "JY_NAME text", "BDATE date", "NOID text", "C int",
                     "MNAME text", "ZY text", "KG_NAME text", "INMONEY money", "OUTMONEY money",
                     "YE money"},
                    {{"2", "工行", "<null>", "<null>", "<null>", "期初余额", "", "", "0", "0", "0"},
                     {"2", "工行", "2024-03-06", "T1", "13", "销售退回", "", "甲", "0", "9", "-9"}});
    }
    std::string call() {
        person().mark();
        person().click("btn_ok");
        return last_sent(person());
    }
};

TEST_F(MoneyLedger, asks_for_days_and_an_account_and_takes_the_last_day_in) {
    Person& anna = person();
    anna.expect_active("TF6650F");
    EXPECT_EQ(call(), "exec SYS_XJ @PARAM=0,@BDATE='2024-03-01',@EDATE='2024-04-01'");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●日期:03-01 至 03-31 ");
    EXPECT_EQ(columns_shown(), "JY_ID 帐户代码, JY_NAME 帐户名称, QC 期初余额, INMONEY 收入, OUTMONEY "
                               "支出, YE 期末余额");
    EXPECT_EQ(anna.footer("QC"), "50.00");
    EXPECT_EQ(anna.footer("INMONEY"), "829.00");
    EXPECT_EQ(anna.footer("OUTMONEY"), "735.00");
    EXPECT_EQ(anna.footer("YE"), "144.00");
    EXPECT_EQ(anna.colors(1).at("YE").at("font"), 255);
    anna.key("F3");
    anna.set("EDATE", "2024-03-10");
    anna.set("JY_ID", "1");
    EXPECT_EQ(call(), "exec SYS_XJ @PARAM=0,@BDATE='2024-03-01',@EDATE='2024-03-11',@JY_ID='1'");
    EXPECT_EQ(anna.value("ConditionLabel"), " ●日期:03-01 至 03-10  ●帐户:1");
}

TEST_F(MoneyLedger, a_row_opens_the_accounts_daybook_up_to_the_last_day_exclusive) {
    Person& anna = person();
    call();
    anna.key("F3");
    anna.set("EDATE", "2024-03-05"); // given up again: the rows shown are of the whole month
    anna.click("btn_Cancel");
    anna.mark();
    anna.double_click(1, "JY_ID");
    anna.expect_active("TF6652");
    EXPECT_EQ(last_sent(anna),
              "EXEC SYS_XJ @PARAM=1,@BDATE='2024-03-01',@EDATE='2024-03-31',@JY_ID='2'");
    EXPECT_EQ(anna.sent().back().function, "652");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●帐户:2 工行     ●日期:2024-03-01 至 2024-03-31 之前（不含 2024-03-31 当日）");
    EXPECT_EQ(anna.row_count(), 2);
    EXPECT_EQ(anna.colors(0).at("MNAME").at("font"), 0xFF0000); // the opening is blue
    EXPECT_EQ(anna.colors(1).at("YE").at("font"), 255);
    EXPECT_EQ(anna.footer("OUTMONEY"), "9.00");
    anna.double_click(0, "MNAME"); // an opening has no document
    anna.double_click(1, "NOID");
    anna.expect_message("模块暂不开放!204");
    anna.mark();
    anna.key("F5");
    EXPECT_EQ(last_sent(anna),
              "EXEC SYS_XJ @PARAM=1,@BDATE='2024-03-01',@EDATE='2024-03-31',@JY_ID='2'");
}

TEST_F(MoneyLedger, without_a_condition_has_nothing_to_refresh) {
    Person& anna = person();
    anna.click("btn_Cancel");
    anna.key("F5");
    anna.expect_message("您还没选择任何汇总参数,请按【F3】呼出汇总选项!");
}

TEST_F(MoneyLedger, days_that_run_backwards_are_refused) {
    person().set("BDATE", "2024-04-01");
    EXPECT_EQ(call(), "");
    person().expect_message("开始日期不能大于结束日期!");
    person().expect_active("TF6650F");
}

class Daybook : public FormDesk {
protected:
    Daybook() : FormDesk(652) {}
    void SetUp() override {
        answer_accounts(data);
        data.answer("exec SYS_XJ @PARAM=1",
                    {"JY_ID text", "JY_NAME text", "BDATE date", "NOID text", "C int",
                     "MNAME text", "ZY text", "KG_NAME text", "INMONEY money", "OUTMONEY money",
                     "YE money"},
                    {{"1", "现金", "<null>", "<null>", "<null>", "期初余额", "", "", "0", "0", "50"},
                     {"1", "现金", "2024-03-06", "B1", "30", "银行存取款单", "存现", "工行", "0",
                      "100", "-50"}});
    }
};

TEST_F(Daybook, asks_for_days_and_an_account) {
    Person& anna = person();
    anna.expect_active("TF6652F");
    anna.set("JY_ID", "1");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_EQ(last_sent(anna),
              "exec SYS_XJ @PARAM=1,@BDATE='2024-03-01',@EDATE='2024-04-01',@JY_ID='1'");
    EXPECT_EQ(columns_shown(),
              "JY_ID 帐户, JY_NAME 帐户名称, BDATE 日期, MNAME 单据类型, NOID 单号, ZY 摘要, KG_NAME "
              "往来单位, INMONEY 收入, OUTMONEY 支出, YE 余额");
    EXPECT_EQ(anna.footer("OUTMONEY"), "100.00");
    EXPECT_EQ(anna.footer("YE"), "");
}

TEST_F(Daybook, without_a_condition_has_nothing_to_refresh) {
    Person& anna = person();
    anna.click("btn_Cancel");
    anna.key("F5");
    anna.expect_message("您还没选择任何查询参数,请按【F3 或 空格】呼出查询选项!");
}

} // namespace
} // namespace tests
