// The operation log on screen: what was done, by whom, and what it changed.
#include "app/administration/audit_service.h"
#include "app/books/open.h"
#include "tests/forms/administration/administration_desk.h"

namespace tests {
namespace {

class OperationLog : public AdministrationDesk {
protected:
    OperationLog() {
        app::open_for_audit() = [this] { return app::open_books(books.file().string()); };
    }
    ~OperationLog() override { app::open_for_audit() = nullptr; }

    void add_summary(const std::string& text) {
        admin.open(683);
        admin.click("Act_Add");
        admin.set("ZY", text);
        admin.click("btn_ok");
        while (admin.active() != "") admin.close();
    }
    // Rows as somebody with the file in hand might put them there.
    void fill_log(int rows) {
        std::string batch;
        for (int i = 0; i < rows; ++i)
            batch += "INSERT INTO SYS_LOG (ID,LOG_TIME,USER_ID,FUNCTION_CODE,DOC_KEY,OPERATION,"
                     "DIGEST,HASH) VALUES (" + std::to_string(1000 + i) +
                     ",'2024-03-01','admin','661','x','Add','','');";
        books.execute(batch);
    }
};

} // namespace

TEST_F(OperationLog, lists_the_newest_first_in_words) {
    add_user("li", "李会计");
    admin.open_host("log");
    EXPECT_EQ(admin.caption(), "操作日志");
    const Rows rows = admin.rows();
    ASSERT_EQ(rows.size(), 3u); // made, set up, and this
    EXPECT_EQ(rows[0].at("FUNCTION_CODE"), "用户");
    EXPECT_EQ(rows[0].at("OPERATION"), "新增");
    EXPECT_EQ(rows[0].at("DOC_KEY"), "li");
    EXPECT_EQ(rows[0].at("USER_ID"), "admin");
    EXPECT_TRUE(rows[0].at("LOG_TIME").starts_with("2024-03-15")) << rows[0].at("LOG_TIME");
    EXPECT_EQ(rows[1].at("FUNCTION_CODE"), "699 会计科目初始");
    EXPECT_EQ(rows[2].at("FUNCTION_CODE"), "建立帐套");
    EXPECT_EQ(admin.value("ConditionLabel"), " ●全部记录    共 3 条");
}

TEST_F(OperationLog, shows_what_the_row_changed_a_statement_a_line) {
    add_user("li", "李;会计");
    const std::string batch =
        books.value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC");
    admin.open_host("log");
    const std::string shown = admin.value("BATCH");
    EXPECT_NE(shown.find("'李;会计'"), std::string::npos) << shown;
    std::string joined = shown;
    std::erase(joined, '\n');
    EXPECT_EQ(joined, batch);
    EXPECT_EQ(shown.find("argon2"), std::string::npos) << shown;
    admin.row(1);
    EXPECT_NE(admin.value("BATCH").find("UPDATE D6600 SET PARAM='2024-03' WHERE ID=1;\n"),
              std::string::npos)
        << admin.value("BATCH");
}

TEST_F(OperationLog, is_narrowed_by_days_user_function_operation_and_document) {
    add_user("li", "李会计");
    add_summary("付%款");
    admin.open_host("log");
    // days                        user    function  operation  document   statement, rows
    struct {
        const char *from, *to, *user, *function, *operation, *document, *condition;
        int rows;
    } const cases[] = {
        {"", "", "全部", "全部", "全部", "", " WHERE (1=1)", 4},
        {"2024-03-15", "2024-03-15", "全部", "用户", "全部", "",
         " WHERE (1=1) AND (SYS_LOG.LOG_TIME>='2024-03-15') AND (SYS_LOG.LOG_TIME<'2024-03-16') "
         "AND (SYS_LOG.FUNCTION_CODE='users')", 1},
        {"", "2024-03-14", "全部", "用户", "全部", "",
         " WHERE (1=1) AND (SYS_LOG.LOG_TIME<'2024-03-15') AND (SYS_LOG.FUNCTION_CODE='users')", 0},
        {"", "", "li 李会计", "全部", "全部", "",
         " WHERE (1=1) AND (SYS_LOG.USER_ID='li')", 0},
        {"", "", "全部", "683 常用摘要", "新增", "",
         " WHERE (1=1) AND (SYS_LOG.FUNCTION_CODE='683') AND (SYS_LOG.OPERATION='Add')", 1},
        {"", "", "全部", "全部", "删除", "",
         " WHERE (1=1) AND (SYS_LOG.OPERATION='Delete')", 0},
        {"", "", "全部", "全部", "全部", "l_'",
         " WHERE (1=1) AND (SYS_LOG.DOC_KEY LIKE '%l[_]''%')", 0},
        {"", "", "全部", "全部", "全部", "I",
         " WHERE (1=1) AND (SYS_LOG.DOC_KEY LIKE '%I%')", 1},
    };
    for (const auto& one : cases) {
        admin.click("Act_Locate");
        admin.set("BDATE", one.from);
        admin.set("EDATE", one.to);
        admin.set("USER", one.user);
        admin.set("FUNCTION", one.function);
        admin.set("OPERATION", one.operation);
        admin.set("DOC", one.document);
        admin.mark();
        admin.click("btn_ok");
        bool sent = false;
        for (const std::string& text : admin.sent_texts())
            sent = sent || text.ends_with(std::string("ON SYS_USER.USER_ID=SYS_LOG.USER_ID") +
                                          one.condition + " ORDER BY SYS_LOG.ID DESC");
        EXPECT_TRUE(sent) << one.condition << "\n" << admin.sent_texts().at(0);
        EXPECT_EQ(admin.row_count(), one.rows) << one.condition;
    }
}

TEST_F(OperationLog, a_large_log_opens_with_its_newest_rows_and_more_on_demand) {
    fill_log(1200);
    admin.open_host("log");
    EXPECT_EQ(admin.row_count(), 500);
    EXPECT_EQ(admin.rows()[0].at("ID"), "2199");
    EXPECT_EQ(admin.value("ConditionLabel"), " ●全部记录    最近 500 条,按 F7 看更多");
    EXPECT_EQ(admin.value("BATCH"), "(这条记录没有保存内容)");
    admin.key("F7");
    EXPECT_EQ(admin.row_count(), 1202);
    EXPECT_EQ(admin.value("ConditionLabel"), " ●全部记录    共 1202 条");
    EXPECT_FALSE(admin.enabled("Act_Other"));
}

TEST_F(OperationLog, tells_whether_it_is_as_it_was_written) {
    add_summary("付款");
    admin.open_host("log");
    admin.click("Act_Check");
    EXPECT_TRUE(admin.next_message().starts_with("操作日志完整,没有被改动过。封条: 3-"));
    books.execute("UPDATE SYS_LOG SET DOC_KEY='别的' WHERE ID=3");
    admin.click("Act_Check");
    const std::string message = admin.next_message();
    EXPECT_TRUE(message.starts_with("操作日志有 1 处问题:\n第 3 条记录(2024-03-15 ")) << message;
    EXPECT_TRUE(message.ends_with(" admin 683 别的)被改动过")) << message;
}

TEST_F(OperationLog, the_books_are_checked_in_a_list) {
    admin.open_host("check");
    EXPECT_EQ(admin.row_count(), 0);
    EXPECT_TRUE(admin.value("ConditionLabel").starts_with(
        "帐套没有发现问题。    操作日志封条: 2-"))
        << admin.value("ConditionLabel");
    books.execute("INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES ('x','x','1001',1,0,0)");
    admin.key("F5");
    const Rows rows = admin.rows();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].at("KIND"), "问题");
    EXPECT_EQ(rows[0].at("CHECK"), "凭证借贷不平");
    EXPECT_EQ(rows[0].at("TEXT"), "x: 借方 1.00 贷方 0.00");
    EXPECT_EQ(rows[1].at("TEXT"), "分录没有凭证头: x");
    EXPECT_TRUE(admin.value("ConditionLabel").starts_with("发现 2 处问题。"));
}

TEST_F(OperationLog, the_open_books_are_backed_up_into_a_chosen_file) {
    const std::string copy = (books.file().parent_path() / "copy.zf").string();
    admin.request({{"op", "answer"}, {"file", copy}});
    admin.open_host("backup");
    admin.expect_message("已备份到 " + copy + "。");
    EXPECT_TRUE(automation::check_books(*app::open_books(copy)).empty());
    admin.request({{"op", "answer"}, {"file", copy}});
    admin.open_host("backup");
    EXPECT_NE(admin.next_message().find("已经存在"), std::string::npos);
    admin.open_host("backup"); // no file chosen
}

TEST(OperationLogRights, who_may_not_open_it_is_told_so) {
    Books books{{.start = "2024-03"}};
    PersonOptions options = with_administration(books.person());
    options.may = [](const host::Right& right) { return right.function != "log"; };
    Person li{books.data(), options};
    li.open_host("log");
    li.expect_message("您没有打开“操作日志”的权限，请与系统管理员联系。");
    EXPECT_EQ(li.active(), "");
}

} // namespace tests
