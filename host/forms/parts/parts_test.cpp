// What base forms share: date ranges, locks, audits, deletes, search, export, columns.
#include <chrono>
#include <thread>

#include "host/controls/grid.h"
#include "host/controls/grid_groups.h"
#include "host/forms/Base_Entry_Head.h"
#include "host/forms/parts/date_ranges.h"
#include "host/forms/parts/delete_guard.h"
#include "host/forms/parts/document_audit.h"
#include "host/forms/parts/document_lock.h"
#include "host/forms/parts/list_search.h"
#include "host/forms/parts/sheet_export.h"
#include "host/forms/parts/sum_footers.h"
#include "host/ports/document_files.h"
#include "host/printing/grid_sheet.h"
#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

struct Parts : ::testing::Test {
    tests::Desk desk;
};

// Heads as a voucher list has them.
struct Audit : ::testing::Test {
    Audit() {
        for (const char* field : {"NOID", "USER_ID"}) heads.DefineField(field, FieldType::Text);
        for (const char* field : {"T", "D"}) heads.DefineField(field, FieldType::Integer);
        heads.Open();
        add("2024-03记001", "anna", 0, 0);
        add("2024-03记002", "bert", 1, 0);
        add("2024-03记003", "bert", 1, 1);
        settings.table = "D6601";
        settings.key_field = "NOID";
        request.user_id = "ANNA";
        request.user_name = "安娜";
        request.day = "2024-03-15";
    }
    void add(const char* key, const char* maker, int audited, int posted) {
        heads.Append();
        heads.FieldByName("NOID").SetValue(std::string(key));
        heads.FieldByName("USER_ID").SetValue(std::string(maker));
        heads.FieldByName("T").SetValue(std::int64_t{audited});
        heads.FieldByName("D").SetValue(std::int64_t{posted});
        heads.Post();
    }
    tests::Desk desk;
    TClientDataSet heads;
    EntryHeadSettings settings;
    AuditRequest request;
};

} // namespace

TEST(DateRanges, a_name_means_its_days) {
    // name        first        last, on Friday 2024-03-15
    const std::tuple<const char*, const char*, const char*> table[] = {
        {"setdate01", "2024-03-15", "2024-03-15"}, {"setdate10", "2024-03-14", "2024-03-14"},
        {"setdate03", "2024-03-11", "2024-03-17"}, {"setdate08", "2024-03-04", "2024-03-10"},
        {"setdate02", "2024-03-01", "2024-03-31"}, {"setdate04", "2024-02-01", "2024-02-29"},
        {"setdate05", "2024-01-01", "2024-03-31"}, {"setdate09", "2023-10-01", "2023-12-31"},
        {"setdate06", "2024-01-01", "2024-12-31"}, {"setdate07", "2023-01-01", "2023-12-31"},
    };
    for (const auto& [name, first, last] : table) {
        const DateRange range = date_range(name, *Date::of(2024, 3, 15));
        EXPECT_EQ(range.first.to_text(), first) << name;
        EXPECT_EQ(range.last.to_text(), last) << name;
    }
    const DateRange week = date_range("setdate03", *Date::of(2024, 3, 17)); // a Sunday
    EXPECT_EQ(week.first.to_text(), "2024-03-11");
    EXPECT_THROW(date_range("setdate99", *Date::of(2024, 3, 15)), std::logic_error);
}

TEST(DocumentLock, the_reason_names_the_document_and_what_to_do) {
    EXPECT_EQ(why_locked({"记-5", false, false, "2024-03", "2024-03"}), "");
    EXPECT_EQ(why_locked({"记-5", false, false, "", ""}), "");
    EXPECT_EQ(why_locked({"记-5", true, false, "2024-03", "2024-03"}),
              "“记-5”已审核，不能修改或删除；如需更正，请先反审核!");
    EXPECT_EQ(why_locked({"记-5", true, true, "2024-03", "2024-03"}),
              "“记-5”已登帐，不能修改或删除；如需更正，请先反登帐并反审核!");
    EXPECT_EQ(why_locked({"记-5", true, true, "2024-03", "2024-03", true}),
              "“记-5”已登帐，本帐套按严格方式管理，不能修改或删除；如需更正，请用红字凭证!");
    EXPECT_EQ(why_locked({"记-5", true, false, "2024-03", "2024-03", true}),
              "“记-5”已审核，不能修改或删除；如需更正，请先反审核!");
    EXPECT_EQ(why_locked({"记-5", false, false, "2024-02", "2024-03"}),
              "“记-5”属于会计期间 2024-02，当前会计期间是 2024-03，不能修改或删除!");
}

TEST_F(Parts, two_persons_are_demanded_by_setting_or_by_the_strict_way) {
    const auto demanded = [&](std::vector<std::vector<std::string>> settings) {
        desk.data.answer("SELECT NAME,VALUE FROM SYS_SETTING", {"NAME text", "VALUE text"},
                         std::move(settings));
        return two_persons_demanded("662");
    };
    EXPECT_FALSE(demanded({}));
    EXPECT_FALSE(demanded({{"mode", "small"}, {"two_persons", "0"}}));
    EXPECT_TRUE(demanded({{"mode", "small"}, {"two_persons", "1"}}));
    EXPECT_TRUE(demanded({{"mode", "strict"}}));
}

TEST_F(Audit, what_is_not_audited_is_audited_and_signed) {
    const AuditPlan plan = plan_audit(heads, {0, 1}, settings, request);
    EXPECT_EQ(plan.refusal, "");
    EXPECT_EQ(plan.rows, std::vector<int>{0});
    EXPECT_EQ(plan.batch, "UPDATE D6601 SET T=1,sk='安娜',sdate='2024-03-15' "
                          "WHERE NOID='2024-03记001' AND T=0 AND D=0;");
}

TEST_F(Audit, the_maker_does_not_audit_where_two_persons_are_demanded) {
    request.two_persons = true;
    const AuditPlan plan = plan_audit(heads, {0}, settings, request);
    EXPECT_EQ(plan.refusal, "“2024-03记001”是您自己制单的，不能由您审核；请由其他人审核!");
    request.user_id = "carl";
    EXPECT_EQ(plan_audit(heads, {0}, settings, request).refusal, "");
}

TEST_F(Audit, a_posted_document_keeps_its_audit) {
    request.audit = false;
    EXPECT_EQ(plan_audit(heads, {1, 2}, settings, request).refusal,
              "“2024-03记003”已登帐，不能反审核；请先反登帐!");
    request.strict = true;
    EXPECT_EQ(plan_audit(heads, {1, 2}, settings, request).refusal,
              "“2024-03记003”已登帐，不能反审核；如需更正，请用红字凭证!");
    EXPECT_EQ(plan_audit(heads, {1}, settings, request).batch,
              "UPDATE D6601 SET T=0,sk=NULL,sdate=NULL WHERE NOID='2024-03记002' AND T=1 AND D=0;");
}

TEST_F(Audit, nothing_to_do_is_said) {
    EXPECT_EQ(plan_audit(heads, {1, 2}, settings, request).refusal,
              "所选单据都已审核，无需再审核!");
    request.audit = false;
    EXPECT_EQ(plan_audit(heads, {0}, settings, request).refusal,
              "所选单据都未审核，无需反审核!");
}

TEST_F(Parts, a_key_is_quoted_into_a_statement) {
    EXPECT_EQ(with_key("delete from d6802 Where pzz=%S", "O'B"),
              "delete from d6802 Where pzz='O''B'");
    EXPECT_EQ(with_key("WHERE (NOID =%s) ORDER BY INX", "%S"), "WHERE (NOID ='%S') ORDER BY INX");
    EXPECT_EQ(with_key("delete from X", "k"), "delete from X");
}

TEST_F(Parts, what_is_in_use_is_not_deleted_and_the_rest_is_asked_about) {
    const std::vector<UseRule> uses = {{"SELECT COUNT(*) FROM A WHERE K=%S", "已有凭证使用"},
                                       {"SELECT COUNT(*) FROM B WHERE K=%S", "已有模板使用"}};
    desk.data.answer("SELECT COUNT(*) FROM A", {"N int"}, {{"0"}});
    desk.data.answer("SELECT COUNT(*) FROM B WHERE K='记'", {"N int"}, {{"2"}});
    EXPECT_THROW(allow_delete(uses, "682", "记", "记"), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "“记”不能删除：已有模板使用!");
    EXPECT_TRUE(desk.ui.questions.empty());
    desk.data.answer("SELECT COUNT(*) FROM B WHERE K='记'", {"N int"}, {{"0"}});
    EXPECT_THROW(allow_delete(uses, "682", "记", "记"), EAbort); // answered no
    desk.ui.answers.push_back(true);
    EXPECT_NO_THROW(allow_delete(uses, "682", "记", "记"));
    EXPECT_EQ(desk.ui.questions.back(), "确定要删除“记”吗？");
}

TEST_F(Parts, a_text_is_found_by_part_and_by_ear) {
    EXPECT_TRUE(matches_typed("1002 银行存款", "002"));
    EXPECT_TRUE(matches_typed("1002 银行存款", "存款"));
    EXPECT_TRUE(matches_typed("银行存款", "hck"));
    EXPECT_TRUE(matches_typed("银行存款", ""));
    EXPECT_FALSE(matches_typed("银行存款", "xj"));
}

namespace {

class TSheet : public TForm {
public:
    TSheet() : TForm(nullptr) {
        rows.DefineField("KM_ID", FieldType::Text);
        rows.DefineField("J", FieldType::Amount).DisplayFormat = "#,##0.00";
        rows.Open();
        for (const char* field : {"KM_ID", "J"}) {
            GridColumn column;
            column.FieldName = field;
            column.Title = std::string("期末|") + field;
            column.Width = 10;
            Grid.Columns.push_back(column);
        }
    }
    const char* ClassName() const override { return "TSheet"; }
    void add(const char* account, const char* amount) {
        rows.Append();
        rows.FieldByName("KM_ID").SetValue(std::string(account));
        rows.FieldByName("J").SetValue(*Amount::parse(amount));
        rows.Post();
    }
    TClientDataSet rows;
    TDBGridEh Grid{this, "Grid", &rows};
};

} // namespace

TEST_F(Parts, a_grid_is_exported_with_titles_plain_numbers_and_footers) {
    TSheet form;
    form.add("1002,\"基本户\"", "1234567.5");
    form.add("1001", "-0.5");
    add_sum_footers(form.Grid, "J, X");
    EXPECT_EQ(sheet_as_csv(sheet_of(form.Grid, "科目")),
              "\xEF\xBB\xBF期末 KM_ID,期末 J\r\n"
              "\"1002,\"\"基本户\"\"\",1234567.50\r\n"
              "1001,-0.50\r\n"
              ",1234567.00\r\n");
}

TEST_F(Parts, an_export_says_of_each_line_to_which_group_it_belongs) {
    TSheet form;
    form.add("1002", "1");
    add_sum_footers(form.Grid, "J");
    form.Grid.Columns.push_back(form.Grid.Columns.front());
    form.Grid.Columns.back().Title = "科目";
    form.Grid.Columns.back().Tag = group_tag;
    form.Grid.Columns.back().Visible = false;
    form.Grid.AutoFooter = false;
    EXPECT_EQ(sheet_as_csv(sheet_of(form.Grid, "表")),
              "\xEF\xBB\xBF科目,期末 KM_ID,期末 J\r\n1002,1002,1.00\r\n");
}

TEST_F(Parts, a_long_export_tells_how_far_it_is_and_writes_nothing_when_stopped) {
    TSheet form;
    // Cells that take long enough for a report every few hundred rows.
    form.rows.DefineField("KM_ID", FieldType::Text).OnGetText = [](const TField& field) {
        std::this_thread::sleep_for(std::chrono::microseconds(500));
        return field.AsText();
    };
    for (int i = 0; i < 1000; ++i) form.add("1001", "1");
    const std::string all = sheet_as_csv(sheet_of(form.Grid, "表"));
    // Every 256 rows the clock is looked at; all of them lie more than a tenth of a second apart.
    EXPECT_EQ(desk.ui.reports, (std::vector<std::string>{"正在导出… 256/1000", "正在导出… 512/1000",
                                                         "正在导出… 768/1000", "正在导出… 1/1"}));
    desk.ui.stop_at_report = desk.ui.reports.size() + 1;
    desk.ui.file = "/no/such/folder/a.csv";
    export_sheet(sheet_of(form.Grid, "科目"));
    EXPECT_EQ(desk.ui.last_message(), "导出已取消,没有写文件!");
}

TEST_F(Parts, an_export_that_cannot_be_written_is_said) {
    TSheet form;
    export_sheet(sheet_of(form.Grid, "科目")); // no file chosen
    EXPECT_TRUE(desk.ui.messages.empty());
    desk.ui.file = "/no/such/folder/a.csv";
    export_sheet(sheet_of(form.Grid, "科目"));
    EXPECT_NE(desk.ui.last_message().find("不能写入"), std::string::npos);
}

namespace {

// Remembers what it was told to write.
class RememberedFiles final : public DocumentFiles {
public:
    std::string write_spreadsheet(const Sheet& sheet, const std::string& path) override {
        written = sheet.title + " " + path;
        return trouble;
    }
    bool offers_pdf() const override { return false; }
    std::string write_pdf(const PaperDocument&, const std::string&) override { return {}; }
    std::string written, trouble;
};

} // namespace

TEST_F(Parts, without_spreadsheets_an_export_is_text) {
    TSheet form;
    export_sheet(sheet_of(form.Grid, "现金, 银行/日记帐"));
    EXPECT_EQ(desk.ui.suggested_file, "现金,银行日记帐.csv");
    ASSERT_EQ(desk.ui.file_kinds.size(), 1U);
    EXPECT_EQ(desk.ui.file_kinds[0].ending, "csv");
}

TEST_F(Parts, the_ending_of_the_name_says_what_kind_of_file_an_export_is) {
    TSheet form;
    form.add("1001", "1");
    RememberedFiles files;
    the_host().files = &files;
    desk.ui.file = "/tmp/a.XLSX";
    export_sheet(sheet_of(form.Grid, "科目"));
    EXPECT_EQ(desk.ui.suggested_file, "科目.xlsx");
    EXPECT_EQ(files.written, "科目 /tmp/a.XLSX");
    EXPECT_EQ(desk.ui.last_message(), "已导出 1 行到 /tmp/a.XLSX");
    files.trouble = "太多";
    export_sheet(sheet_of(form.Grid, "科目"));
    EXPECT_EQ(desk.ui.last_message(), "太多");
    the_host().files = nullptr;
}

} // namespace host
