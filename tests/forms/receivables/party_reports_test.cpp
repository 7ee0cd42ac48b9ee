// The balances with customers and suppliers: calls word for word, what is told, the ways onward.
#include "tests/forms/form_desk.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

// A report, its calls and its words.
struct Report {
    int code;
    const char* caption;
    const char* call;         // up to the first option
    const char* refreshed;    // before conditions were given
    const char* columns;
    const char* documents_of; // the call behind a double click; "" where a row is a document
    int documents_code;
};

const Report reports[] = {
    {632, "销售收款明细表", "exec SYS_YS @PARAM=1,@PARAM1=",
     "您还没选择任何查询参数,请按【F3 或 空格】呼出查询选项!",
     "KH_GYS_ID 客户代号, KG_NAME 客户简称, BDATE 日期, NOID 单号, MNAME 单据类型, A 期初应收, "
     "B 本期应收, C 收款, F 优惠, D 期末应收",
     "", 0},
    {633, "销售收款汇总表", "exec SYS_YS  @PARAM=0,@PARAM1=",
     "您还没选择任何汇总参数,请按【F3】呼出汇总选项!",
     "KH_GYS_ID 客户代号, KG_NAME 客户简称, A 期初应收, B 本期应收, C 收款(含优惠), D 期末应收",
     "EXEC SYS_YS @PARAM=1,@PARAM1=0,@PARAM2=0,@BDATE='", 632},
    {642, "采购付款明细表", "exec SYS_YF @PARAM=1,@PARAM1=",
     "您还没选择任何查询参数,请按【F3 或 空格】呼出查询选项!",
     "KH_GYS_ID 供应商代号, KG_NAME 供应商简称, BDATE 日期, NOID 单号, MNAME 单据类型, A 期初应付, "
     "B 本期应付, C 付款, F 优惠, D 期末应付",
     "", 0},
    {643, "采购付款汇总表", "exec SYS_YF @PARAM=0,@PARAM1=",
     "您还没选择任何汇总参数,请按【F3】呼出汇总选项!",
     "KH_GYS_ID 供应商代号, KG_NAME 供应商简称, A 期初应付, B 本期应付, C 付款(含优惠), D 期末应付",
     "EXEC SYS_Yf @PARAM=1,@PARAM1=0,@PARAM2=0,@BDATE='", 642},
};

const char* const in_march = ",@BDATE='2024-03-01',@EDATE='2024-04-01'";

class PartyReports : public testing::TestWithParam<Report> {
protected:
    PartyReports() : form("TF6" + std::to_string(GetParam().code)) {
        answer_as_small_books(data);
        const std::vector<std::string> sums = {"KH_GYS_ID text", "KG_NAME text", "A money",
                                               "B money",        "C money",      "D money"};
        const std::vector<std::string> documents = {
            "KH_GYS_ID text", "KG_NAME text", "BDATE date", "NOID text", "MNAME text", "A money",
            "B money",        "C money",      "F money",    "D money",   "mytype int"};
        for (const std::string procedure : {"SYS_YS", "SYS_YF", "SYS_Yf"}) {
            for (const std::string exec : {"exec ", "EXEC "})
                data.answer(exec + procedure + " @PARAM=1", documents,
                            {{"C01", "东方", "<null>", "<null>", "期初余额", "5", "0", "0", "0",
                              "5", "0"},
                             {"C01", "东方", "2024-03-05", "S1", "销售单", "0", "-2", "0", "0",
                              "-2", "202"}});
        }
        data.answer("exec SYS_YS  @PARAM=0", sums, {{"C01", "东方", "5", "-2", "0", "3"}});
        data.answer("exec SYS_YF @PARAM=0", sums, {{"C01", "东方", "5", "-2", "0", "3"}});
    }
    Person& person() {
        if (!anna) {
            anna = std::make_unique<Person>(data);
            anna->open(GetParam().code);
        }
        return *anna;
    }
    std::vector<std::string> sent_by_ok() {
        person().mark();
        person().click("btn_ok");
        return person().sent_texts();
    }
    std::vector<std::string> call(const std::string& options) {
        return {GetParam().call + options};
    }

    FakeData data;
    const std::string form;
    std::unique_ptr<Person> anna;
};

TEST_P(PartyReports, opens_with_its_dialog_on_the_current_period) {
    Person& anna = person();
    anna.expect_active(form + "F");
    EXPECT_EQ(anna.caption(), std::string(GetParam().caption) + " · 查询条件");
    EXPECT_EQ(anna.value("BDATE"), "2024-03-01");
    EXPECT_EQ(anna.value("EDATE"), "2024-03-31");
    EXPECT_EQ(anna.value("titDATE"), "(31天)");
    EXPECT_FALSE(anna.checked("CK1"));
    EXPECT_FALSE(anna.checked("CK2"));
    EXPECT_EQ(sent_by_ok(), call(std::string("0,@PARAM2=0") + in_march));
    anna.expect_active(form);
    EXPECT_EQ(anna.caption(), GetParam().caption);
}

TEST_P(PartyReports, shows_its_columns_with_the_conditions_above_and_sums_below) {
    Person& anna = person();
    anna.check("CK2");
    anna.click("btn_ok");
    std::string shown;
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid.at("columns")) {
        if (!column.at("visible").get<bool>()) continue;
        shown += (shown.empty() ? "" : ", ") + column.at("field").get<std::string>() + " " +
                 column.at("title").get<std::string>();
    }
    EXPECT_EQ(shown, GetParam().columns);
    EXPECT_TRUE(anna.value("ConditionLabel")
                    .ends_with(":全部     ●日期:(2024-03-01 至 2024-03-31)     ●隐藏期末为0的数据"))
        << anna.value("ConditionLabel");
    EXPECT_EQ(anna.footer("A"), "5.00");
    EXPECT_EQ(anna.footer("B"), "-2.00");
    EXPECT_EQ(anna.footer("D"), "3.00");
}

TEST_P(PartyReports, asks_for_one_party_for_those_between_two_or_for_all) {
    struct Parties {
        const char *first, *last, *asked, *told;
    };
    const Parties attempts[] = {
        {"C01", "", ",@KH_GYS_ID='C01'", ":C01     "},
        {" C01 ", "C01", ",@KH_GYS_ID='C01'", ":C01     "},
        {"C01", "C07", ",@KH_GYS_ID='C01',@KH_GYS_ID2='C07'", ":C01 至 C07     "},
        {"", "C07", ",@KH_GYS_ID='',@KH_GYS_ID2='C07'", ": 至 C07     "},
        {"c01", "C01", ",@KH_GYS_ID='c01',@KH_GYS_ID2='C01'", ":c01 至 C01     "},
        {"O'Neill", "", ",@KH_GYS_ID='O''Neill'", ":O'Neill     "},
        {"", "", "", ":全部     "},
    };
    person().click("btn_ok");
    for (const Parties& parties : attempts) {
        SCOPED_TRACE(std::string(parties.first) + " " + parties.last);
        person().key("F3");
        person().set("KH_GYS_ID", parties.first);
        person().set("KH_GYS_ID2", parties.last);
        EXPECT_EQ(sent_by_ok(), call(std::string("0,@PARAM2=0") + in_march + parties.asked));
        EXPECT_NE(person().value("ConditionLabel").find(parties.told), std::string::npos);
    }
}

TEST_P(PartyReports, a_range_that_ends_before_it_starts_is_refused) {
    Person& anna = person();
    anna.set("BDATE", "2024-04-01");
    EXPECT_TRUE(sent_by_ok().empty());
    anna.expect_message("开始日期不能大于结束日期!");
    anna.expect_active(form + "F");
    EXPECT_EQ(anna.focused(), "BDATE");
    anna.set("BDATE", "2024-03-31");
    anna.set("KH_GYS_ID", "C02");
    anna.set("KH_GYS_ID2", "C01");
    EXPECT_TRUE(sent_by_ok().empty());
    const std::string party = GetParam().code < 640 ? "客户" : "供应商";
    anna.expect_message("开始" + party + "不能大于结束" + party + "!");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.set("KH_GYS_ID2", "");
    EXPECT_EQ(sent_by_ok(), call("0,@PARAM2=0,@BDATE='2024-03-31',@EDATE='2024-04-01'"
                                 ",@KH_GYS_ID='C02'"));
}

TEST_P(PartyReports, remembers_what_it_leaves_out) {
    person().check("CK1");
    EXPECT_EQ(sent_by_ok(), call(std::string("1,@PARAM2=0") + in_march));
    person().key("Space");
    person().check("CK1", false);
    person().check("CK2");
    EXPECT_EQ(sent_by_ok(), call(std::string("0,@PARAM2=1") + in_march));
    person().open(GetParam().code);
    EXPECT_FALSE(person().checked("CK1"));
    EXPECT_TRUE(person().checked("CK2"));
}

TEST_P(PartyReports, cancelled_it_shows_nothing_and_says_why_it_can_neither_refresh_nor_print) {
    Person& anna = person();
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.row_count(), 0);
    anna.click("Act_Refresh");
    anna.expect_message(GetParam().refreshed);
    for (const char* action : {"Act_Print", "Act_Preview"}) {
        anna.click(action);
        anna.expect_message("您还没选择任何汇总参数,请按【F3】呼出汇总选项!");
    }
    anna.key("Enter", "DBGridEh"); // no row to go on from
    anna.expect_active(form);
}

TEST_P(PartyReports, refreshed_it_asks_the_same_again) {
    person().click("btn_ok");
    person().mark();
    person().key("F5");
    EXPECT_EQ(person().sent_texts(), call(std::string("0,@PARAM2=0") + in_march));
}

TEST_P(PartyReports, offers_the_parties_of_its_side) {
    const bool customers = GetParam().code < 640;
    const std::string query =
        customers ? "select KH_GYS_ID,KG_NAME from D1102 order by KH_GYS_ID"
                  : "select KH_GYS_ID,KG_NAME from D1103 where KH_GYS_ID>'' order by KH_GYS_ID";
    data.answer(query, {"KH_GYS_ID text", "KG_NAME text"}, {{"C01", "东方"}, {"C02", "海天"}});
    Person& anna = person();
    anna.mark();
    anna.lookup("KH_GYS_ID2");
    EXPECT_EQ(anna.sent_texts(), std::vector<std::string>{query});
    anna.row(1);
    anna.click("btn_ok");
    EXPECT_EQ(anna.value("KH_GYS_ID2"), "C02");
    EXPECT_EQ(anna.value("KH_GYS_ID"), "");
}

TEST_P(PartyReports, a_double_click_leads_from_a_sum_to_its_documents_and_on_to_the_document) {
    Person& anna = person();
    anna.set("BDATE", "2024-03-05");
    anna.set("KH_GYS_ID", "C01");
    anna.set("KH_GYS_ID2", "C09");
    anna.click("btn_ok");
    const bool summary = *GetParam().documents_of != '\0';
    if (summary) {
        anna.mark();
        anna.double_click(0, "D");
        EXPECT_EQ(anna.sent_texts().back(),
                  std::string(GetParam().documents_of) +
                      "2024-03-05',@EDATE='2024-04-01',@KH_GYS_ID='C01'");
        anna.expect_active("TF6" + std::to_string(GetParam().documents_code));
        EXPECT_EQ(anna.value("ConditionLabel"),
                  std::string(GetParam().code == 633 ? " ●客户:" : " ●供应商:") +
                      "C01 东方     ●日期:(2024-03-05 至 2024-03-31)");
        EXPECT_EQ(anna.row_count(), 2);
    }
    const std::string detail = anna.active();
    anna.mark();
    anna.double_click(0, "A"); // an opening is no document
    EXPECT_TRUE(anna.sent_texts().empty());
    anna.expect_active(detail);
    anna.row(1);
    anna.key("Enter");
    anna.expect_message("模块暂不开放!202");
    if (!summary) return;
    anna.close();
    anna.expect_active(form);
}

TEST_P(PartyReports, negative_amounts_are_red_and_openings_among_documents_blue) {
    Person& anna = person();
    anna.click("btn_ok");
    const bool documents = *GetParam().documents_of == '\0';
    const auto last = anna.colors(documents ? 1 : 0);
    EXPECT_EQ(last.at("B").at("font"), 255);
    EXPECT_FALSE(last.contains("KG_NAME"));
    if (!documents) return;
    EXPECT_EQ(anna.colors(0).at("A").at("font"), 0xFF0000);
}

INSTANTIATE_TEST_SUITE_P(All, PartyReports, testing::ValuesIn(reports), [](const auto& tested) {
    return "TF6" + std::to_string(tested.param.code);
});

} // namespace
} // namespace tests
