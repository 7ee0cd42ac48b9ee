// The host's door to the database.
#include "app/data/engine_data.h"

#include <gtest/gtest.h>
#include <thread>

#include "app/books/open.h"
#include "app/settings/surroundings.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "host/values/errors.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

struct Rows : host::RowReceiver {
    std::vector<host::ColumnDescription> described;
    std::vector<std::vector<std::string>> texts;
    std::vector<std::vector<std::int64_t>> integers;
    void columns(const std::vector<host::ColumnDescription>& columns) override {
        described = columns;
    }
    void row(const std::vector<host::CellView>& cells) override {
        texts.emplace_back();
        integers.emplace_back();
        for (const host::CellView& cell : cells) {
            texts.back().emplace_back(cell.text);
            integers.back().push_back(cell.integer);
        }
    }
};

class Data : public ::testing::Test {
protected:
    std::string value(const std::string& select) {
        const auto rows = automation::rows_of(*session_, select);
        return rows.empty() ? "" : rows[0][0].value_or("<null>");
    }
    void insert_summary(const std::string& key) {
        data_.execute("INSERT INTO D6803 (GUID, ZY) VALUES ('" + key + "','摘要')",
                      {"683", key, "Add"});
    }

    tests::TemporaryFolder folder_;
    std::string books_ = tests::new_books(folder_, "a.zf");
    std::unique_ptr<engines::Session> session_ = open_books(books_);
    SystemClock clock_{host::Date::of(2024, 3, 5)};
    EngineData data_{*session_, clock_, "admin"};
};

} // namespace

TEST_F(Data, a_query_hands_on_types_and_rows_of_the_first_set_only) {
    Rows rows;
    data_.query("SELECT '现金' AS A, CAST(12.5 AS decimal(18,2)) AS B, CAST(1 AS bit) AS C; "
                "SELECT 'more' AS D",
                rows);
    ASSERT_EQ(rows.texts.size(), 1u);
    EXPECT_EQ(rows.described[1].type, host::FieldType::Amount);
    EXPECT_EQ(rows.described[2].type, host::FieldType::Boolean);
    EXPECT_EQ(rows.texts[0][0], "现金");
    EXPECT_EQ(rows.integers[0][1], 125'000);
}

TEST_F(Data, every_write_has_its_row_in_the_log_and_the_chain_holds) {
    const int before = std::stoi(value("SELECT COUNT(*) FROM SYS_LOG"));
    insert_summary("甲");
    insert_summary("乙");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), std::to_string(before + 2));
    EXPECT_EQ(value("SELECT TOP 1 DOC_KEY FROM SYS_LOG ORDER BY ID DESC"), "乙");
    EXPECT_EQ(value("SELECT TOP 1 FUNCTION_CODE + USER_ID + OPERATION FROM SYS_LOG "
                    "ORDER BY ID DESC"),
              "683adminAdd");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, a_batch_that_fails_leaves_neither_its_rows_nor_a_log_row) {
    const std::string before = value("SELECT COUNT(*) FROM SYS_LOG");
    const std::string batch = "INSERT INTO D6803 (GUID, ZY) VALUES ('a','x');"
                              "INSERT INTO D6803 (GUID, ZY) VALUES ('a','y');";
    try {
        data_.execute(batch, {"683", "a", "Add"});
        FAIL() << "a key was taken twice";
    } catch (const host::DataError& error) {
        EXPECT_EQ(error.number, 2627);
        EXPECT_NE(std::string(error.what()).find("已被使用"), std::string::npos);
        EXPECT_FALSE(error.cause.empty());
    }
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE GUID = 'a'"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), before);
    EXPECT_EQ(session_->transaction_depth(), 0);
}

TEST_F(Data, a_statement_that_fails_to_parse_is_an_error_with_a_sentence) {
    Rows rows;
    EXPECT_THROW(data_.query("SELEKT 1", rows), host::DataError);
    EXPECT_THROW(data_.query("SELECT NOTHING FROM D6803", rows), host::DataError);
}

TEST_F(Data, a_query_changes_nothing_whatever_was_typed_into_it) {
    const std::string before = value("SELECT COUNT(*) FROM SYS_LOG");
    Rows rows;
    for (const char* typed :
         {"1;DELETE FROM D6803", "1;BEGIN TRAN", "1;COMMIT;DELETE FROM D6803"}) {
        try {
            data_.query("select " + std::string(typed) + " as a", rows);
            FAIL() << typed;
        } catch (const host::DataError& error) {
            const std::string shown = error.what();
            EXPECT_TRUE(shown.starts_with("这里只能查询,不能更改帐套的数据") ||
                        shown.starts_with("算式或语句的写法不对"))
                << shown;
        }
        EXPECT_EQ(session_->transaction_depth(), 0) << typed;
    }
    EXPECT_THROW(data_.query("DELETE FROM D6803", rows), host::DataError);
    EXPECT_NE(value("SELECT COUNT(*) FROM D6803"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), before);
    insert_summary("丁");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), std::to_string(std::stoi(before) + 1));
}

TEST_F(Data, a_key_longer_than_the_log_takes_is_cut_and_still_chained) {
    std::string key;
    for (int i = 0; i < 300; ++i) key += "长";
    data_.execute("DELETE FROM D6803 WHERE GUID = 'none'", {"683", key, "Edit"});
    EXPECT_EQ(value("SELECT TOP 1 LEN(DOC_KEY) FROM SYS_LOG ORDER BY ID DESC"), "100");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, the_log_keeps_what_was_sent_without_password_hashes) {
    const std::string batch = "UPDATE SYS_USER SET USER_NAME='王''五',"
                              "PASSWORD_HASH='$argon2id$v=19$abc' WHERE USER_ID='none'";
    data_.execute(batch, {"users", "none", "Edit"});
    EXPECT_EQ(value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC"),
              "UPDATE SYS_USER SET USER_NAME='王''五',PASSWORD_HASH='***' WHERE USER_ID='none'");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, the_log_keeps_a_batch_longer_than_any_page) {
    std::string batch;
    for (int i = 0; i < 2000; ++i) batch += "DELETE FROM D6803 WHERE ZY='没有这个摘要 ';";
    data_.execute(batch, {"683", "", "Delete"});
    EXPECT_EQ(value("SELECT TOP 1 BATCH FROM SYS_LOG_TEXT ORDER BY ID DESC"), batch);
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

// ---- long work ----

namespace {

// Some hundred milliseconds of it.
constexpr const char* long_work =
    "UPDATE D6801 SET PYM=LEFT((SELECT COUNT(*) FROM D6801 A, D6801 B WHERE A.KM_J<D6801.KM_J),9);";

} // namespace

TEST_F(Data, long_writing_is_told_and_its_end_too) {
    std::vector<std::pair<std::int64_t, std::int64_t>> told;
    data_.report_progress(
        [&](std::int64_t done, std::int64_t total) {
            told.emplace_back(done, total);
            return true;
        },
        std::chrono::milliseconds{0});
    data_.execute(std::string(long_work) + long_work, {"681", "", "Edit"});
    ASSERT_GT(told.size(), 2u);
    EXPECT_EQ(told.front(), std::make_pair(std::int64_t{0}, std::int64_t{2}));
    for (std::size_t i = 1; i + 1 < told.size(); ++i)
        EXPECT_LE(told[i - 1].first, told[i].first) << i;
    EXPECT_EQ(told.back().first, told.back().second) << "the last call ends it";
}

TEST_F(Data, stopped_writing_leaves_the_books_and_the_log_as_they_were) {
    const std::string rows = value("SELECT COUNT(*) FROM SYS_LOG");
    data_.report_progress([](std::int64_t done, std::int64_t total) { return done == total; },
                          std::chrono::milliseconds{0});
    try {
        data_.execute("DELETE FROM D6803;" + std::string(long_work), {"681", "", "Edit"});
        FAIL() << "it was stopped";
    } catch (const host::DataError& error) {
        EXPECT_STREQ(error.what(), "操作已取消,没有改动任何数据!");
    }
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), rows);
    EXPECT_NE(value("SELECT COUNT(*) FROM D6803"), "0");
    EXPECT_EQ(session_->transaction_depth(), 0);
    data_.report_progress({}, std::chrono::milliseconds{0});
    insert_summary("丙");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, a_stopped_query_says_so_and_nothing_may_be_asked_while_it_runs) {
    Rows rows;
    int calls = 0;
    data_.report_progress(
        [&](std::int64_t done, std::int64_t total) {
            if (done == total) return true; // the end
            ++calls;
            EXPECT_EQ(total, 0);
            Rows other;
            EXPECT_THROW(data_.query("SELECT 1", other), host::DataError);
            EXPECT_THROW(data_.execute("DELETE FROM D6803", {}), host::DataError);
            return calls < 3;
        },
        std::chrono::milliseconds{0});
    try {
        data_.query("SELECT A.KM_ID FROM D6801 A, D6801 B, D6801 C", rows);
        FAIL() << "it was stopped";
    } catch (const host::DataError& error) {
        EXPECT_STREQ(error.what(), "查询已取消,显示的内容没有更新!");
    }
    EXPECT_EQ(calls, 3);
}

TEST_F(Data, a_unit_is_seen_by_others_when_it_is_kept_and_logged_batch_by_batch) {
    const auto other = open_books(books_);
    const auto seen_by_other = [&] {
        return *automation::rows_of(*other, "SELECT COUNT(*) FROM D6803 WHERE ZY = '摘要'")[0][0];
    };
    const int logged = std::stoi(value("SELECT COUNT(*) FROM SYS_LOG"));
    data_.begin_unit();
    insert_summary("甲");
    insert_summary("乙");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE ZY = '摘要'"), "2");
    EXPECT_EQ(seen_by_other(), "0");
    data_.keep_unit();
    EXPECT_EQ(seen_by_other(), "2");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), std::to_string(logged + 2));
    insert_summary("丙");
    EXPECT_EQ(seen_by_other(), "3");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, of_a_unit_undone_nothing_stays_and_work_goes_on) {
    const std::string logged = value("SELECT COUNT(*) FROM SYS_LOG");
    data_.begin_unit();
    insert_summary("甲");
    data_.undo_unit();
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), logged);
    insert_summary("甲");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE ZY = '摘要'"), "1");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, a_batch_refused_within_a_unit_has_not_happened_and_the_others_stay) {
    data_.begin_unit();
    insert_summary("甲");
    const std::string logged = value("SELECT COUNT(*) FROM SYS_LOG");
    EXPECT_THROW(data_.execute("INSERT INTO D6803 (GUID, ZY) VALUES ('乙','摘要');"
                               "INSERT INTO D6803 (GUID, ZY) VALUES ('甲','摘要')",
                               {"683", "乙", "Add"}),
                 host::DataError);
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), logged);
    insert_summary("丙");
    data_.keep_unit();
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE ZY = '摘要'"), "2");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, a_unit_undone_by_an_error_takes_nothing_more_and_cannot_be_kept) {
    data_.begin_unit();
    insert_summary("甲");
    Rows rows;
    EXPECT_THROW(data_.query("SELECT CAST('x' AS int)", rows), host::DataError);
    EXPECT_EQ(session_->transaction_depth(), 1) << "a query that fails undoes nothing";
    session_->rollback(); // as SQLite does by itself when the disk is full
    EXPECT_THROW(insert_summary("乙"), host::DataError);
    EXPECT_THROW(data_.keep_unit(), host::DataError);
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE ZY = '摘要'"), "0");
    data_.undo_unit();
    insert_summary("丙");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, within_a_unit_too_a_number_used_again_inherits_no_allocation) {
    const std::string head = "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) "
                             "VALUES ('2024-03记001','2024-03','记',1,0,'2024-03-05','admin');";
    data_.begin_unit();
    data_.execute(head + "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES "
                         "('2024-03记001','1101',5,0)",
                  {"661", "2024-03记001", "Add"});
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6601B"), "1");
    data_.execute("DELETE FROM D6601 WHERE NOID = '2024-03记001'",
                  {"661", "2024-03记001", "Delete"});
    data_.execute(head, {"661", "2024-03记001", "Add"});
    data_.keep_unit();
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6601B"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6601"), "1");
}

TEST_F(Data, a_reason_found_at_the_last_moment_stops_the_batch) {
    const std::string before = value("SELECT COUNT(*) FROM SYS_LOG");
    const host::LogEntry entry{"683", "a", "Add"};
    const std::string batch = "INSERT INTO D6803 (GUID, ZY) VALUES ('a','x')";
    try {
        data_.execute(batch, entry, [] { return "已被他人修改!"; });
        ADD_FAILURE() << "it ran";
    } catch (const host::DataError& error) {
        EXPECT_STREQ(error.what(), "已被他人修改!");
    }
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE GUID='a'"), "0");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_LOG"), before);
    data_.execute(batch, entry, [] { return ""; });
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE GUID='a'"), "1");
}

// Each counts one on from what he sees; what he saw must still hold when he writes.
TEST_F(Data, people_who_change_the_same_row_at_once_lose_nothing) {
    constexpr int people = 3, changes = 40;
    insert_summary("n");
    data_.execute("UPDATE D6803 SET ZY='0' WHERE GUID='n'", {"683", "n", "Edit"});
    const auto work = [this] {
        const auto session = open_books(books_);
        EngineData data(*session, clock_, "li");
        const auto count = [&] {
            Rows rows;
            data.query("SELECT ZY FROM D6803 WHERE GUID='n'", rows);
            return std::stoi(rows.texts.at(0).at(0));
        };
        for (int done = 0; done < changes;) {
            const int seen = count();
            try {
                data.execute("UPDATE D6803 SET ZY='" + std::to_string(seen + 1) +
                                 "' WHERE GUID='n'",
                             {"683", "n", "Edit"},
                             [&] { return count() == seen ? "" : "已被他人修改!"; });
                ++done;
            } catch (const host::DataError&) {
            }
        }
    };
    std::vector<std::thread> all;
    for (int person = 0; person < people; ++person) all.emplace_back(work);
    for (std::thread& one : all) one.join();
    EXPECT_EQ(value("SELECT ZY FROM D6803 WHERE GUID='n'"), std::to_string(people * changes));
}

// ---- what an act was decided on ----

TEST_F(Data, a_write_is_refused_when_somebody_else_changed_what_was_read_for_it) {
    insert_summary("甲");
    const auto other_session = open_books(books_);
    EngineData other(*other_session, clock_, "li");
    const auto decide_while_other_runs = [&](const std::string& read, const std::string& batch) {
        Rows rows;
        data_.hold_readings();
        data_.query(read, rows);
        other.execute(batch, {"683", "", "Edit"});
        std::string said;
        try {
            insert_summary("乙");
        } catch (const host::DataError& error) {
            said = error.what();
        }
        data_.release_readings();
        return said;
    };
    const std::string refusal = "别的用户刚刚更改了有关的数据,没有保存!请刷新后再试一次。";
    EXPECT_EQ(decide_while_other_runs("SELECT ZY FROM D6803 WHERE GUID='甲'",
                                      "UPDATE D6803 SET ZY='新' WHERE GUID='甲'"),
              refusal);
    EXPECT_EQ(decide_while_other_runs("SELECT COUNT(*) FROM D6803",
                                      "INSERT INTO D6803 (GUID,ZY) VALUES ('丙','x')"),
              refusal);
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE GUID='乙'"), "0");
    EXPECT_EQ(decide_while_other_runs("SELECT ZY FROM D6803 WHERE GUID='甲'",
                                      "UPDATE D6803 SET ZY='旧' WHERE GUID='丙'"),
              "")
        << "that was about something else";
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6803 WHERE GUID='乙'"), "1");
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

TEST_F(Data, an_act_inside_another_answers_for_its_own_readings_alone) {
    const auto other_session = open_books(books_);
    EngineData other(*other_session, clock_, "li");
    Rows rows;
    data_.hold_readings();
    data_.query("SELECT COUNT(*) FROM D6803", rows);
    data_.hold_readings();
    other.execute("INSERT INTO D6803 (GUID,ZY) VALUES ('丙','x')", {"683", "", "Add"});
    insert_summary("乙");
    data_.release_readings();
    EXPECT_THROW(insert_summary("丁"), host::DataError);
    data_.release_readings();
    insert_summary("丁");
}

TEST_F(Data, two_people_writing_in_turn_keep_one_chain) {
    const auto other_session = open_books(books_);
    EngineData other(*other_session, clock_, "li");
    for (int i = 0; i < 5; ++i) {
        insert_summary("a" + std::to_string(i));
        other.execute("DELETE FROM D6803 WHERE GUID = 'none'", {"683", "none", "Edit"});
    }
    EXPECT_TRUE(automation::check_books(*session_).empty());
}

} // namespace app
