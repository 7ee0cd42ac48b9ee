// The operations and helpers that the module calls.
#include <set>

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/contract/U_linkedit.h"
#include "host/contract/Zpy.h"
#include "host/contract/function_table.h"
#include "host/controls/edits.h"
#include "host/dataset/client_dataset.h"
#include "host/forms/Sys_Choose.h"
#include "host/forms/Sys_Report.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {}
    const char* ClassName() const override { return "TSheet"; }
    TLinkEdit Account{this, "Account", "科目"};
};

// A report that keeps what it was handed.
class TReport : public TFrm_Sys_Report {
public:
    TReport() : TFrm_Sys_Report(nullptr) {}
    const char* ClassName() const override { return "TReport"; }
    void InitReport(TClientDataSet& head, TClientDataSet& lines, const std::string&,
                    const std::string& title, const std::string&, const std::string& action,
                    const std::string&, const std::string&) override {
        handed = title + " " + action + " " + head.FieldByName("NOID").AsText() + " " +
                 std::to_string(lines.RecordCount());
    }
    std::string handed;
};

// A chooser that puts its answer into the row it was given.
class TPartner : public TFrm_Sys_GETDW {
public:
    TPartner() : TFrm_Sys_GETDW(nullptr) {}
    const char* ClassName() const override { return "TPartner"; }
    void init(TClientDataSet& target, const std::string& kind) override {
        target.Edit();
        target.FieldByName("NOID").SetValue(kind);
        target.Post();
    }
};

struct Contract : ::testing::Test {
    tests::Desk desk;
    TClientDataSet rows;
};

} // namespace

TEST_F(Contract, a_query_fills_the_dataset_and_is_remembered) {
    desk.data.answer("select pzz", {"PZZ text"}, {{"记"}});
    opensql(rows, "682", "select pzz from d6802");
    EXPECT_EQ(rows.FieldByName("PZZ").AsText(), "记");
    const SentStatement& sent = the_host().statements.at(0);
    EXPECT_EQ(sent.call + "|" + sent.function + "|" + sent.text,
              "opensql|682|select pzz from d6802");
}

TEST_F(Contract, the_hosts_own_dialogs_work_on_the_callers_rows) {
    rows.DefineField("NOID", FieldType::Text);
    rows.Open();
    rows.Append();
    rows.Post();
    TPartner partner;
    static_cast<TFrm_Sys_GETDW&>(partner).init(rows, "K01");
    TReport report;
    static_cast<TFrm_Sys_Report&>(report).InitReport(rows, rows, "661", "记帐凭证", "", "preview",
                                                     "", "");
    EXPECT_EQ(report.handed, "记帐凭证 preview K01 1");
    EXPECT_EQ(report.btn_Cancel.KeyHint, "Esc");
}

TEST_F(Contract, a_failed_query_throws_and_leaves_the_dataset_as_it_was) {
    desk.data.answer("select pzz", {"PZZ text"}, {{"记"}});
    opensql(rows, "682", "select pzz from d6802");
    EXPECT_THROW(opensql(rows, "682", "select nothing"), DataError);
    EXPECT_EQ(rows.FieldByName("PZZ").AsText(), "记");
}

TEST_F(Contract, a_batch_is_answered_y_or_shown) {
    EXPECT_EQ(ExecSql("661", "2024-03记005", "Add", "INSERT …"), "Y");
    EXPECT_EQ(desk.data.executed().at(0).log.key, "2024-03记005");
    EXPECT_TRUE(desk.ui.messages.empty());
    desk.data.refuse_next_batch("凭证号重复。");
    const std::string answer = ExecSql("661", "k", "Add", "INSERT …");
    EXPECT_NE(answer, "Y");
    EXPECT_EQ(desk.ui.last_message(), "凭证号重复。");
    EXPECT_EQ(the_host().statements.back().answer, answer);
}

TEST_F(Contract, cached_changes_are_saved_once) {
    desk.data.answer("select", {"PZZ text", "T int"}, {{"记", "0"}});
    opensql(rows, "682", "select * from d6802");
    rows.Edit();
    rows.FieldByName("T").SetValue(std::int64_t{1});
    EXPECT_TRUE(ApplyUpdate("682", "D6802", "PZZ", rows));
    EXPECT_EQ(desk.data.executed().at(0).batch, "UPDATE D6802 SET T=1 WHERE PZZ='记';");
    EXPECT_EQ(the_host().statements.back().text, "D6802 UPDATE D6802 SET T=1 WHERE PZZ='记';");
    EXPECT_FALSE(rows.Modified());
    EXPECT_TRUE(ApplyUpdate("682", "D6802", "PZZ", rows));
    EXPECT_EQ(desk.data.executed().size(), 1U);
}

TEST_F(Contract, changes_that_were_refused_stay_unsaved) {
    desk.data.answer("select", {"PZZ text", "T int"}, {{"记", "0"}});
    opensql(rows, "682", "select * from d6802");
    rows.Edit();
    rows.FieldByName("T").SetValue(std::int64_t{1});
    desk.data.refuse_next_batch("只读。");
    EXPECT_FALSE(ApplyUpdate("682", "D6802", "PZZ", rows));
    EXPECT_TRUE(rows.Modified());
}

TEST_F(Contract, repeated_and_blank_rows_are_found) {
    desk.data.answer("select", {"KH text"}, {{"a"}, {"b"}, {"A "}, {""}});
    opensql(rows, "631", "select …");
    EXPECT_TRUE(checkDatamore(rows, "KH", "客户"));
    EXPECT_EQ(desk.ui.last_message(), "客户“A”重复，请删去重复的行!");
    EXPECT_TRUE(checkCoSeng(rows, "KH", "客户"));
    EXPECT_EQ(desk.ui.last_message(), "第 4 行的客户不能为空，请录入!");
    desk.data.answer("select", {"KH text"}, {{"a"}, {"b"}});
    opensql(rows, "631", "select …");
    EXPECT_FALSE(checkDatamore(rows, "KH", "客户"));
    EXPECT_FALSE(checkCoSeng(rows, "KH", "客户"));
}

TEST_F(Contract, numbers_run_on_behind_code_and_day_and_grow_past_999) {
    desk.data.answer("SELECT NOID", {"NOID text"}, {});
    EXPECT_EQ(GetNOID("630", "D631"), "630240315001");
    desk.data.answer("SELECT NOID", {"NOID text"}, {{"630240315007"}, {"630240315003"}});
    EXPECT_EQ(GetNOID("630", "D631"), "630240315008");
    desk.data.answer("SELECT NOID", {"NOID text"}, {{"630240315999"}});
    EXPECT_EQ(GetNOID("630", "D631"), "6302403151000");
    EXPECT_EQ(desk.data.executed().back().batch,
              "INSERT INTO SYS_NUMBER (NOID) VALUES ('6302403151000')");
}

TEST_F(Contract, a_code_is_what_stands_before_the_first_blank) {
    EXPECT_EQ(GETCODE("1002 银行 存款"), "1002");
    EXPECT_EQ(GETCODE("1002"), "1002");
    EXPECT_EQ(GETCODE(""), "");
    EXPECT_EQ(getno("XS", "7", 4), "XS0007");
    EXPECT_EQ(getno("", "12345", 3), "12345");
}

TEST_F(Contract, identifiers_are_unique_and_of_one_form) {
    const std::string one = GetGuid(), other = GetGuid();
    EXPECT_NE(one, other);
    ASSERT_EQ(one.size(), 36U);
    EXPECT_EQ(one[8], '-');
    EXPECT_EQ(one[14], '4');
    EXPECT_EQ(one.find_first_not_of("0123456789ABCDEF-"), std::string::npos);
}

TEST_F(Contract, amounts_fill_eighteen_places) {
    EXPECT_EQ(FormatAmount(*Amount::parse("500")), "            500.00");
    EXPECT_EQ(FormatAmount(*Amount::parse("-0.5"), 4), "           -0.5000");
    EXPECT_EQ(FormatAmount(*Amount::parse("12")).size(), 18U);
    EXPECT_EQ(boltos(true) + boltos(false), "10");
}

TEST_F(Contract, codes_hold_no_blanks_quotes_or_separators) {
    TSheet form;
    form.Account.SetFocus();
    for (const char* text : {"10'02", "10;02", "10%02", "10\"02"}) {
        form.Account.Text = text;
        EXPECT_THROW(CheckText(form.Account, "科目代号"), EAbort) << text;
    }
    form.Account.Text = "10 02";
    EXPECT_THROW(CheckBlankInstr(form.Account, "科目代号"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "科目代号中不能有空格，请删去空格!");
    form.Account.Text = "\u3000 ";
    EXPECT_THROW(CheckBlank(form.Account, "科目代号"), EAbort);
    form.Account.Text = "1002-银行.A_1";
    CheckText(form.Account, "科目代号");
    CheckBlankInstr(form.Account, "科目代号");
    CheckBlank(form.Account, "科目代号");
}

TEST_F(Contract, a_lookup_offers_the_rows_and_takes_the_chosen_one) {
    TSheet form;
    form.Account.Text = "314102";
    desk.data.answer("select km_id,km_name from d6801 where (km_id>'3141') order by km_id",
                     {"km_id text", "km_name text"},
                     {{"314101", "提取盈余公积"}, {"314102", "未分配利润"}, {"314115", "其他"}});
    const auto look_up = [&](const std::function<void(TForm&)>& inside) {
        desk.ui.inside.push_back(inside);
        CommonHint(form.Account, rows, "d6801", "km_id", "科目编号", "km_name", "科目",
                   "(km_id>'3141')");
    };
    look_up([](TForm& picker) {
        EXPECT_EQ(picker.Caption.get(), "科目");
        tests::press(picker, "Down"); // from the row of the code that stood there
        tests::press(picker, "Enter");
    });
    EXPECT_EQ(form.Account.Text.get() + form.Account.DisplayName.get(), "314115其他");
    look_up([](TForm& picker) {
        tests::type(picker, "wfp"); // by ear
        tests::press(picker, "Enter");
    });
    EXPECT_EQ(form.Account.Text.get() + form.Account.DisplayName.get(), "314102未分配利润");
    look_up([](TForm& picker) {
        tests::type(picker, "没有");
        tests::press(picker, "Esc");
    });
    EXPECT_EQ(form.Account.Text.get(), "314102");
    EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(Contract, a_code_field_offers_codes_that_begin_with_the_text_then_names_and_initials) {
    TSheet form;
    const std::string chart = "SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID";
    const std::vector<std::string> columns = {"KM_ID text", "KM_NAME2 text", "PYM text"};
    desk.data.answer(chart, columns, {{"1001", "现金", "XJ"}, {"2101", "短期借款", "DQJK"},
                                      {"2110", "应付短期债券", "ZQ"}});
    OfferCodes(form.Account, chart);
    const auto offered = [&](const std::string& typed) {
        std::string codes;
        for (const Suggestion& one : form.Account.OnSuggest(typed)) codes += one.value + " ";
        return codes;
    };
    EXPECT_TRUE(the_host().statements.empty()); // nothing is read before something is typed
    EXPECT_EQ(offered(" "), "");
    EXPECT_TRUE(the_host().statements.empty());
    EXPECT_EQ(offered("1"), "1001 2101 2110 ");
    EXPECT_EQ(offered("10"), "1001 2101 2110 ");
    EXPECT_EQ(the_host().statements.size(), 1u);
    EXPECT_EQ(offered("短期"), "2101 2110 ");
    EXPECT_EQ(offered("zq"), "2110 ");
    // An account opened meanwhile is known to the next text that is begun.
    desk.data.answer(chart, columns, {{"1009", "其他货币资金", "QTHBZJ"}});
    EXPECT_EQ(offered("z"), "1009 ");
}

TEST_F(Contract, initials_that_the_rows_lack_are_made_of_the_names) {
    TSheet form;
    desk.data.answer("select km_id,km_name from d6801 where (km_id>'3141') order by km_id",
                     {"km_id text", "km_name text"},
                     {{"314101", "提取盈余公积"}, {"314102", "未分配利润"}});
    OfferHint(form.Account, "d6801", "km_id", "km_name", "(km_id>'3141')");
    const auto offered = form.Account.OnSuggest("wfp");
    ASSERT_EQ(offered.size(), 1u);
    form.Account.OnChange = [&] { form.Account.DisplayName = ""; };
    TakeSuggestion(form.Account, offered[0]);
    EXPECT_EQ(form.Account.Text.get() + form.Account.DisplayName.get(), "314102未分配利润");
}

TEST_F(Contract, whoever_may_only_look_at_a_function_writes_nothing_in_it) {
    // function  what the person may   sent
    const struct {
        const char* function;
        const char* may;
        bool sent;
    } attempts[] = {{"661", "open", false},  {"661", "print", false},   {"661", "add", true},
                    {"662", "audit", true},  {"662", "change", false},  {"663", "post", true},
                    {"689", "open", true}, // a report writes nothing; the books' own work does
                    {"password", "", true}, {"users", "change", true}};
    for (const auto& attempt : attempts) {
        the_host().may = [&](const Right& right) { return right.action == attempt.may; };
        const std::string answer = ExecSql(attempt.function, "k", "Edit", "UPDATE …");
        EXPECT_EQ(answer == "Y", attempt.sent) << attempt.function << " " << attempt.may;
    }
    EXPECT_EQ(desk.ui.messages.front(),
              "您在这项功能中只能查看，没有保存。请与系统管理员联系。");
}

TEST(FunctionTable, every_function_is_named_once) {
    std::set<std::string> keys;
    for (const WorkArea& area : work_areas())
        for (const Function& function : area.functions) {
            EXPECT_TRUE(keys.insert(function.key()).second) << function.key();
            EXPECT_EQ(function_of(function.key()), &function);
            EXPECT_LE(function.key().size(), 10u); // the column
        }
    EXPECT_EQ(function_of("600"), nullptr);
    EXPECT_EQ(function_of(""), nullptr);
}

TEST(Pinyin, words_of_accounting_are_read_as_bookkeepers_read_them) {
    const std::pair<const char*, const char*> table[] = {
        {"银行存款", "YHCK"},       {"工商银行", "GSYH"},     {"长期借款", "CQJK"},
        {"以前年度损益调整", "YQNDSYTZ"}, {"调拨", "DB"},     {"重分类", "CFL"},
        {"资产处置收益", "ZCCZSY"}, {"材料成本差异", "CLCBCY"}, {"应收账款", "YSZK"},
        {"汇率变动", "HLBD"},       {"盘盈收入", "PYSR"},     {"会计", "KJ"},
        {"行政管理费", "XZGLF"},    {"增长率", "ZZL"},        {"董事长", "DSZ"},
    };
    for (const auto& [text, initials] : table) EXPECT_EQ(GetPY(text), initials) << text;
}

TEST(Pinyin, letters_and_digits_pass_and_the_rest_is_dropped) {
    EXPECT_EQ(GetPY("abc-1 银行(中行)"), "ABC1YHZH");
    EXPECT_EQ(GetPY("😀 '\";"), "");
    EXPECT_EQ(GetPY(""), "");
}

} // namespace host
