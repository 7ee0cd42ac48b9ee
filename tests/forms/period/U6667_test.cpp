// Carrying profit and loss forward.
#include "host/contract/function_table.h"
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

// FX and closing balance by account.
struct Account {
    const char *code, *name, *side, *balance;
};

class CarryingForward : public FormDesk {
protected:
    CarryingForward() : FormDesk(667) {}
    void SetUp() override {
        answer_period("2024-03");
        answer_accounts({{"5101", "主营业务收入", "贷", "1234.5"},
                         {"5201", "投资收益", "贷", "0"},
                         {"550201", "管理费用-工资", "借", "600"}});
        answer_highest_number("8");
        data.answer("select km_name from d6801 where (km_id='314115')", {"km_name text"},
                    {{"未分配利润"}});
        data.answer("select km_name from d6801 where (km_id=", {"km_name text"}, {});
    }
    void answer_period(const std::string& period) {
        data.answer("SELECT id,param  FROM d6600 where id=2", {"id int", "param text"},
                    {{"2", period}});
    }
    void answer_accounts(const std::vector<Account>& accounts) {
        std::vector<FakeData::Cells> rows;
        for (const Account& account : accounts) {
            rows.push_back({account.code, account.name, "3131", "本年利润", account.side, "0.00"});
            data.answer(select_balance(account.code), {"A money"}, {{account.balance}});
        }
        answer_balances(accounts);
        data.answer("SELECT KM_ID AS A1",
                    {"A1 text", "A2 text", "A3 text", "A4 text", "FX text", "E money"}, rows);
    }
    // As they stand when the voucher is written.
    void answer_balances(const std::vector<Account>& accounts) {
        std::vector<FakeData::Cells> rows;
        for (const Account& account : accounts)
            rows.push_back({account.code, "3131", account.side, account.balance});
        data.answer("SELECT A1,A3,FX,DBO.FASC(0,'2024-03',A1,A1) AS E FROM (SELECT KM_ID AS A1",
                    {"A1 text", "A3 text", "FX text", "E money"}, rows);
    }
    void answer_highest_number(const std::string& number) {
        data.answer("SELECT * FROM ( SELECT 1 AS I", {"I int"}, {{number}, {"1"}});
    }
    static std::string select_balance(const std::string& account) {
        return "SELECT DBO.FASC(0,'2024-03','" + account + "','" + account + "') AS A";
    }
    Person& with_account() {
        person().set("KM_ID", "314115");
        return person();
    }
    static constexpr const char* select_accounts =
        "SELECT KM_ID AS A1,KM_NAME2 A2 ,'3131' as A3,'本年利润' AS A4,FX,0.00 AS E FROM V6801 "
        "LEFT JOIN (SELECT OID AS ID FROM D6801 WHERE OID<>'Z' GROUP BY OID ) A ON KM_ID=A.ID "
        "WHERE ID IS NULL and km_fl=5  AND KM_ID<>'5801' order by km_id ";
};

TEST_F(CarryingForward, shows_each_account_with_its_closing_balance) {
    Person& anna = person();
    anna.expect_active("TF6667");
    EXPECT_EQ(anna.value("bdate"), "2024-03-15") << "today";
    EXPECT_EQ(anna.value("Edit1"), "结转本期损益");
    EXPECT_EQ(anna.value("btn_ok"), "结转 F2");
    const Rows rows = anna.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].at("A1") + rows[0].at("A3") + rows[0].at("A4") + rows[0].at("FX"),
              "51013131本年利润贷");
    EXPECT_EQ(rows[0].at("E"), "1234.50");
    EXPECT_EQ(rows[1].at("E"), "0.00");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{select_accounts, "SELECT id,param  FROM d6600 where id=2",
                                        select_balance("5101"), select_balance("5201"),
                                        select_balance("550201")}));
}

TEST_F(CarryingForward, writes_head_and_lines_in_one_batch) {
    Person& anna = with_account();
    anna.set("bdate", "2024-03-31");
    anna.mark();
    anna.key("F2");
    ASSERT_EQ(data.executed().size(), 1u);
    EXPECT_EQ(last_batch(),
              "INSERT INTO D6601 (T_SY,NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES "
              "(1,'2024-03记8','2024-03','记','8','0','2024-03-31','admin');"
              "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记8',"
              "'结转本期损益','5101','           1234.50','0.00',0);"
              "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记8',"
              "'结转本期损益','550201','0.00','            600.00',1);"
              "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记8',"
              "'结转本期损益','3131','            600.00','0.00',3);"
              "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记8',"
              "'结转本期损益','3131','0.00','           1234.50',4);");
    EXPECT_EQ(last_log().function, "667");
    EXPECT_EQ(last_log().key, "2024-03记8");
    EXPECT_EQ(last_log().operation, "Add");
    const std::vector<std::string> sent = anna.sent_texts();
    EXPECT_NE(std::find(sent.begin(), sent.end(),
                        "SELECT * FROM ( SELECT 1 AS I  UNION ALL SELECT MAX(PZZ_H)+1 AS I  FROM "
                        "D6601 WHERE (PZQJ = '2024-03') AND (PZZ = '记')) A ORDER BY I DESC "),
              sent.end());
}

TEST_F(CarryingForward, stays_open_says_nothing_and_may_be_done_again) {
    Person& anna = with_account();
    anna.click("btn_ok");
    anna.expect_active("TF6667");
    EXPECT_EQ(anna.value("Made"), "已生成凭证 记-8，请审核、登帐。");
    answer_highest_number("9");
    anna.click("btn_ok");
    ASSERT_EQ(data.executed().size(), 2u);
    EXPECT_NE(last_batch().find("'2024-03记9'"), std::string::npos);
}

TEST_F(CarryingForward, the_first_voucher_of_the_word_gets_number_one) {
    data.answer("SELECT * FROM ( SELECT 1 AS I", {"I int"}, {{"1"}, {"<null>"}});
    with_account().click("btn_ok");
    EXPECT_NE(last_batch().find("'2024-03记1'"), std::string::npos);
}

TEST_F(CarryingForward, nothing_is_written_when_both_totals_add_up_to_nothing) {
    answer_accounts({{"5101", "主营业务收入", "贷", "-100"}, {"5401", "主营业务成本", "借", "100"}});
    Person& anna = with_account();
    anna.click("btn_ok");
    anna.expect_message("没有可结转的数据!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(CarryingForward, equal_income_and_expenses_are_carried) {
    answer_accounts({{"5101", "主营业务收入", "贷", "100"}, {"5401", "主营业务成本", "借", "100"}});
    with_account().click("btn_ok");
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_F(CarryingForward, a_period_without_balances_is_not_carried) {
    answer_accounts({{"5101", "主营业务收入", "贷", "0"}});
    with_account().click("btn_ok");
    person().expect_message("没有可结转的数据!");
}

TEST_F(CarryingForward, the_account_must_lie_below_the_distribution_of_profit) {
    Person& anna = person();
    anna.mark();
    anna.click("btn_ok");
    anna.expect_message("请填写<利润分配3141>类的科目!");
    EXPECT_EQ(anna.focused(), "KM_ID");
    EXPECT_TRUE(data.executed().empty());
    EXPECT_EQ(anna.sent_texts().front(), "select km_name from d6801 where (km_id='') and  "
                                         "(km_id>'3141') and  (km_id like '3141%')");
    anna.set("KM_ID", "3141");
    EXPECT_NE(anna.refused({{"op", "focus"}, {"control", "bdate"}}), "");
    anna.expect_message("请填写<利润分配3141>类的科目!");
    EXPECT_EQ(anna.focused(), "KM_ID") << "the field is not left";
    anna.set("KM_ID", "314115");
    anna.focus("bdate");
    EXPECT_EQ(anna.value("KM_NAME"), "未分配利润");
}

TEST_F(CarryingForward, leaving_by_cancel_asks_for_no_account) {
    Person& anna = person();
    anna.focus("KM_ID");
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.active(), "");
}

TEST_F(CarryingForward, the_summary_is_checked_under_the_name_of_the_account) {
    struct Attempt {
        const char *summary, *message;
    };
    const Attempt attempts[] = {{"结转 损益", "会计科目中不能有空格，请删去空格!"},
                                {"", "会计科目不能为空，请录入!"},
                                {"结转;损益", "会计科目不能含有“;”，请改用字母、数字或汉字!"}};
    Person& anna = person();
    for (const Attempt& attempt : attempts) {
        anna.set("Edit1", attempt.summary);
        anna.click("btn_ok");
        anna.expect_message(attempt.message);
        EXPECT_EQ(anna.focused(), "Edit1");
    }
    EXPECT_TRUE(data.executed().empty());
}

// The account's exit checks the summary: what is wrong there must be reachable from the account.
TEST_F(CarryingForward, a_wrong_summary_gets_the_focus_when_the_account_is_left) {
    Person& anna = with_account();
    anna.set("Edit1", "");
    anna.focus("KM_ID");
    EXPECT_NE(anna.refused({{"op", "click"}, {"control", "btn_ok"}}), "");
    anna.expect_message("会计科目不能为空，请录入!");
    EXPECT_EQ(anna.focused(), "Edit1");
    anna.set("Edit1", "结转");
    anna.click("btn_ok");
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_F(CarryingForward, the_account_is_chosen_from_those_below_the_distribution) {
    data.answer("select km_id,km_name from d6801 where   (km_id>'3141') and  (km_id like '3141%') "
                "order by km_id",
                {"km_id text", "km_name text"},
                {{"314102", "提取法定盈余公积"}, {"314115", "未分配利润"}});
    Person& anna = person();
    anna.lookup("KM_ID");
    anna.expect_active("TLinkHint");
    anna.set("wl_id", "wfp");
    anna.click("btn_ok");
    anna.expect_active("TF6667");
    EXPECT_EQ(anna.value("KM_ID"), "314115");
    EXPECT_EQ(anna.value("KM_NAME"), "未分配利润");
    EXPECT_EQ(anna.value("Edit1"), "结转本期损益");
    anna.set("KM_ID", "3141");
    EXPECT_EQ(anna.value("KM_NAME"), "") << "another code, another name";
    anna.set("KM_ID", "314115");
}

TEST_F(CarryingForward, a_code_has_at_most_eighteen_characters) {
    EXPECT_NE(person().cannot_set("KM_ID", std::string(19, '3')), "");
    person().next_message();
}

TEST_F(CarryingForward, books_that_were_not_set_up_are_told) {
    answer_period("");
    Person& anna = person();
    anna.expect_message("读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_FALSE(anna.enabled("btn_ok"));
    EXPECT_EQ(anna.sent_texts().size(), 2u) << "no balances are read";
}

TEST_F(CarryingForward, a_period_closed_meanwhile_gets_no_voucher) {
    Person& anna = with_account();
    answer_period("2024-04");
    anna.click("btn_ok");
    anna.expect_message("会计期间已由 2024-03 变为 2024-04!请关闭后重新打开本功能。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(CarryingForward, balances_that_changed_since_they_were_shown_are_not_carried) {
    Person& anna = with_account();
    const std::string sentence = "损益科目的余额在打开之后已改变,没有结转!请关闭后重新打开本功能。";
    const std::vector<std::vector<Account>> changes = {
        {{"5101", "", "贷", "1234.51"}, {"5201", "", "贷", "0"}, {"550201", "", "借", "600"}},
        {{"5101", "", "贷", "1234.5"}, {"550201", "", "借", "600"}},
        {{"5101", "", "贷", "1234.5"}, {"5201", "", "借", "0"}, {"550201", "", "借", "600"}}};
    for (const std::vector<Account>& now : changes) {
        answer_balances(now);
        anna.click("btn_ok");
        anna.expect_message(sentence);
    }
    EXPECT_TRUE(data.executed().empty());
    EXPECT_EQ(anna.value("Made"), "");
}

TEST_F(CarryingForward, a_date_outside_the_period_is_pointed_out) {
    Person& anna = person();
    EXPECT_FALSE(anna.visible("DateHint"));
    anna.set("bdate", "2024-04-01");
    EXPECT_TRUE(anna.visible("DateHint"));
    EXPECT_EQ(anna.value("DateHint"), "不在当前会计期间 2024-03 内");
    anna.set("bdate", "");
    anna.set("KM_ID", "314115");
    anna.click("btn_ok");
    anna.expect_message("凭证日期不是有效的日期，请录入日期，例如 2024-03-05!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(CarryingForward, needs_the_right_to_add) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "add"; };
    Person anna(data, options);
    anna.open(667);
    anna.set("KM_ID", "314115");
    anna.click("btn_ok");
    anna.expect_message("您没有结转损溢的权限，请与系统管理员联系。");
    EXPECT_TRUE(data.executed().empty());
}

// A right that no role can be given would shut everybody but the administrator out.
TEST(PeriodFunctions, rights_that_are_asked_for_can_be_given) {
    const std::pair<const char*, const char*> asked[] = {
        {"667", "add"}, {"668", "post"}, {"699", "change"}, {"699", "post"}};
    for (const auto& [function, name] : asked) {
        const host::Function* offered = host::function_of(function);
        ASSERT_NE(offered, nullptr);
        const auto all = host::rights_actions();
        const auto action = std::find_if(all.begin(), all.end(),
                                         [&](const auto& one) { return one.name == name; });
        ASSERT_NE(action, all.end());
        EXPECT_TRUE(offered->has(*action)) << function << " " << name;
    }
}

TEST_F(CarryingForward, what_the_database_refuses_leaves_no_sign_of_a_voucher) {
    Person& anna = with_account();
    data.refuse_next_batch("磁盘已满!");
    anna.click("btn_ok");
    anna.expect_message("磁盘已满!");
    EXPECT_EQ(anna.value("Made"), "");
}

} // namespace
} // namespace tests
