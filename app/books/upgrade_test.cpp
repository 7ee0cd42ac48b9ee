// Books of an earlier program get what this one has, all of it or nothing, once.
#include "app/books/upgrade.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <thread>

#include "app/books/books_version.h"
#include "app/books/open.h"
#include "app/refusal.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "schema/schema.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

class Upgrade : public ::testing::Test {
protected:
    // As a program that knew no roles left them.
    void forget_roles() {
        run("DROP TABLE SYS_ROLE; DROP TABLE SYS_ROLE_RIGHT; DROP TABLE SYS_USER_ROLE");
    }
    void forget_version() { run("DELETE FROM SYS_SETTING WHERE NAME = 'schema_version'"); }
    // As a program with other texts left them: one of each kind.
    void make_earlier() {
        run("ALTER VIEW V6801 AS SELECT *, 'Z' AS KM_NAME2, KM_NAME AS KM_NAME_NEW, 1 AS ISEND "
            "FROM D6801");
        run("ALTER FUNCTION FD (@layout int, @kind int, @period nvarchar(7), @line int) "
            "RETURNS decimal(18,2) AS BEGIN RETURN 0 END");
        run("ALTER PROCEDURE SYS_XJ AS SELECT 1 A");
        run("ALTER TRIGGER TR_D641_DELETE ON D641 AFTER DELETE AS DELETE FROM D641A WHERE 1 = 0");
        forget_version();
    }
    std::string definition(const std::string& name) {
        return value("SELECT OBJECT_DEFINITION(OBJECT_ID('" + name + "'))");
    }
    void run(const std::string& batch) { automation::rows_of(*session_, batch); }
    std::string value(const std::string& select) {
        return automation::rows_of(*session_, select)[0][0].value_or("<null>");
    }
    void upgrade() { bring_up_to_date(*session_, clock_, "admin"); }

    tests::TemporaryFolder folder_;
    SystemClock clock_{host::Date::of(2024, 3, 5)};
    std::string path_ = tests::new_books(folder_, "a.zf");
    std::unique_ptr<engines::Session> session_ = open_books(path_);
};

} // namespace

TEST_F(Upgrade, role_tables_come_with_the_standard_roles_and_a_row_of_the_log) {
    const std::string rights = value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT");
    forget_roles();
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_ROLE"), "5");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_ROLE_RIGHT"), rights);
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_USER_ROLE"), "0");
    EXPECT_EQ(value("SELECT TOP 1 OPERATION FROM SYS_LOG ORDER BY ID DESC"), "Upgrade");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, a_log_from_before_texts_were_kept_goes_on_with_them) {
    run("DROP TABLE SYS_LOG_HEAD; DROP TABLE SYS_LOG_TEXT");
    EXPECT_TRUE(automation::check_books(*session_).empty()) << "an old log is no damage";
    upgrade();
    EXPECT_EQ(value("SELECT CAST(LAST_ID AS varchar) + '/' + CAST(FIRST_TEXT AS varchar) "
                    "FROM SYS_LOG_HEAD"),
              "2/2");
    EXPECT_EQ(value("SELECT BATCH FROM SYS_LOG_TEXT"),
              "帐套版本 " + std::to_string(schema::version) + ";新建 SYS_LOG_HEAD,SYS_LOG_TEXT");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, books_that_lack_nothing_are_not_written) {
    const std::string rows = value("SELECT COUNT(*) FROM SYS_LOG");
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), rows);
}

TEST_F(Upgrade, whatever_view_or_routine_is_missing_comes_back) {
    run("DROP VIEW V6801_PATH; DROP PROCEDURE SYS_685");
    upgrade();
    EXPECT_NE(value("SELECT OBJECT_ID('V6801_PATH')"), "<null>");
    EXPECT_NE(value("SELECT OBJECT_ID('SYS_685')"), "<null>");
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
}

TEST_F(Upgrade, an_upgrade_that_fails_leaves_the_books_as_they_were) {
    forget_roles();
    run("CREATE TABLE SYS_ROLE (WRONG int NOT NULL)");
    EXPECT_THROW(upgrade(), Refusal);
    EXPECT_EQ(value("SELECT OBJECT_ID('SYS_USER_ROLE')"), "<null>");
    EXPECT_EQ(session_->transaction_depth(), 0);
}

TEST_F(Upgrade, views_and_routines_of_an_earlier_text_get_this_programs) {
    std::map<std::string, std::string> ours;
    for (const char* name : {"V6801", "FD", "SYS_XJ", "TR_D641_DELETE"})
        ours[name] = definition(name);
    make_earlier();
    for (const auto& [name, text] : ours) EXPECT_NE(definition(name), text) << name;
    upgrade();
    for (const auto& [name, text] : ours) EXPECT_EQ(definition(name), text) << name;
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
    EXPECT_EQ(value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC"),
              "帐套版本 " + std::to_string(schema::version) +
                  ";更新 V6801,FD,SYS_XJ,TR_D641_DELETE");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, a_text_that_somebody_changed_under_the_same_version_is_set_right_too) {
    const std::string ours = definition("SYS_XJ");
    run("ALTER PROCEDURE SYS_XJ AS SELECT 1 A");
    upgrade();
    EXPECT_EQ(definition("SYS_XJ"), ours);
}

TEST_F(Upgrade, columns_and_indexes_that_a_table_lacks_are_added_to_its_rows) {
    run("INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID) VALUES "
        "('2024-03记001','2024-03','记',1,7,'2024-03-05','admin')");
    run("ALTER TABLE D6601 DROP COLUMN PZZ_Z; ALTER TABLE D6601 DROP COLUMN SK;"
        "DROP INDEX IX_D6601_BDATE ON D6601; DROP INDEX IX_D6602_KM_ID ON D6602");
    forget_version();
    upgrade();
    EXPECT_EQ(value("SELECT PZZ_Z FROM D6601"), "0");
    EXPECT_EQ(value("SELECT SK FROM D6601"), "<null>");
    EXPECT_NE(value("SELECT INDEXPROPERTY(OBJECT_ID('D6601'),'IX_D6601_BDATE','IndexID')"),
              "<null>");
    EXPECT_EQ(value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC"),
              "帐套版本 " + std::to_string(schema::version) +
                  ";增加 D6601.PZZ_Z,D6601.SK,IX_D6601_BDATE,IX_D6602_KM_ID");
    upgrade();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
}

TEST_F(Upgrade, what_people_added_themselves_stays) {
    run("CREATE VIEW MY_CASH AS SELECT KM_ID FROM V6801 WHERE KM_K = 1");
    run("CREATE PROCEDURE MY_LIST AS SELECT COUNT(*) AS N FROM MY_CASH");
    run("CREATE TRIGGER MY_TRIGGER ON D6803 AFTER DELETE AS DELETE FROM D6804 WHERE 1 = 0");
    run("ALTER TABLE D6803 ADD MY_NOTE nvarchar(50) NULL; "
        "CREATE INDEX MY_INDEX ON D6803 (MY_NOTE); UPDATE D6803 SET MY_NOTE = 'mine'");
    const std::string cash = value("EXEC MY_LIST");
    const std::string trigger = definition("MY_TRIGGER");
    make_earlier();
    upgrade();
    EXPECT_EQ(value("EXEC MY_LIST"), cash);
    EXPECT_EQ(definition("MY_TRIGGER"), trigger);
    EXPECT_EQ(value("SELECT TOP 1 MY_NOTE FROM D6803"), "mine");
    EXPECT_NE(value("SELECT INDEXPROPERTY(OBJECT_ID('D6803'),'MY_INDEX','IndexID')"), "<null>");
}

TEST_F(Upgrade, books_of_a_time_before_versions_get_the_number_once) {
    forget_version();
    EXPECT_EQ(version_of(*session_), 0);
    upgrade();
    upgrade();
    EXPECT_EQ(version_of(*session_), schema::version);
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
}

TEST_F(Upgrade, books_of_a_newer_program_are_refused_and_left_alone) {
    make_earlier(); // as this program would see the texts of a newer one
    run("INSERT INTO SYS_SETTING (NAME, VALUE) VALUES ('schema_version','" +
        std::to_string(schema::version + 1) + "')");
    const std::string text = definition("SYS_XJ");
    for (const auto& attempt :
         {std::function<void()>([this] { upgrade(); }),
          std::function<void()>([this] { open_books(path_); }),
          std::function<void()>([this] { open_books(path_, Access::ReadOnly); })}) {
        try {
            attempt();
            FAIL() << "books of a newer program";
        } catch (const Refusal& refusal) {
            EXPECT_NE(std::string(refusal.what()).find("请先升级本程序"), std::string::npos)
                << refusal.what();
        }
    }
    EXPECT_EQ(definition("SYS_XJ"), text);
    EXPECT_EQ(session_->transaction_depth(), 0);
}

TEST_F(Upgrade, what_cannot_be_changed_leaves_all_the_old_texts) {
    make_earlier();
    run("DROP VIEW V6801_PATH");
    run("CREATE TABLE V6801_PATH (WRONG int NOT NULL)");
    const std::string text = definition("SYS_XJ");
    EXPECT_THROW(upgrade(), Refusal);
    EXPECT_EQ(definition("SYS_XJ"), text);
    EXPECT_EQ(version_of(*session_), 0);
    EXPECT_EQ(session_->transaction_depth(), 0);
}

TEST_F(Upgrade, of_several_who_open_at_once_one_does_the_work) {
    const std::string ours = definition("SYS_XJ");
    make_earlier();
    std::vector<std::jthread> people;
    std::atomic<int> failed = 0;
    for (int i = 0; i < 6; ++i)
        people.emplace_back([this, &failed] {
            try {
                bring_up_to_date(*open_books(path_), clock_, "admin");
            } catch (const std::exception&) {
                ++failed;
            }
        });
    people.clear();
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(definition("SYS_XJ"), ours);
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG WHERE OPERATION = 'Upgrade'"), "1");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Upgrade, books_opened_for_reading_only_work_with_the_texts_they_hold) {
    make_earlier();
    const std::string text = definition("SYS_XJ");
    const auto reader = open_books(path_, Access::ReadOnly);
    EXPECT_EQ(automation::rows_of(*reader, "EXEC SYS_XJ")[0][0], "1");
    EXPECT_THROW(bring_up_to_date(*reader, clock_, "admin"), Refusal);
    EXPECT_EQ(definition("SYS_XJ"), text);
}

} // namespace app
