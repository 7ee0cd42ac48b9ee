// The host's door to the database.
#include "app/data/engine_data.h"

#include <gtest/gtest.h>

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

TEST_F(Data, a_key_longer_than_the_log_takes_is_cut_and_still_chained) {
    std::string key;
    for (int i = 0; i < 300; ++i) key += "长";
    data_.execute("DELETE FROM D6803 WHERE GUID = 'none'", {"683", key, "Edit"});
    EXPECT_EQ(value("SELECT TOP 1 LEN(DOC_KEY) FROM SYS_LOG ORDER BY ID DESC"), "100");
    EXPECT_TRUE(automation::check_books(*session_).empty());
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
