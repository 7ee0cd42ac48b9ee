// Making new books.
#include "app/books/create.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/refusal.h"
#include "app/settings/surroundings.h"
#include "automation/sql/collected_result.h"
#include "schema/schema.h"
#include "tests/support/temporary_folder.h"

namespace app {
namespace {

class CreateBooks : public ::testing::Test {
protected:
    NewBooks wanted() const {
        NewBooks books;
        books.books = folder_.file("a.zf");
        books.company = "甲'公司";
        books.template_name = schema::default_template;
        return books;
    }
    std::string value(const std::string& select) {
        const auto session = open_books(folder_.file("a.zf"));
        const auto rows = automation::rows_of(*session, select);
        return rows.empty() ? "" : rows[0][0].value_or("<null>");
    }

    tests::TemporaryFolder folder_;
    SystemClock clock_{host::Date::of(2024, 3, 5)};
};

} // namespace

TEST_F(CreateBooks, new_books_hold_the_template_the_user_and_the_company) {
    create_books(wanted(), clock_);
    EXPECT_EQ(value("SELECT VALUE FROM SYS_SETTING WHERE NAME = 'company'"), "甲'公司");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_USER WHERE USER_ID = 'admin'"), "1");
    for (const auto& table : schema::template_tables(schema::default_template)) {
        if (table.name == "D6802") continue; // voucher words go by the scheme
        EXPECT_EQ(value("SELECT COUNT(*) FROM " + table.name), std::to_string(table.rows.size()))
            << table.name;
    }
    EXPECT_EQ(value("SELECT PARAM FROM D6600 WHERE ID = 2"), "");
    EXPECT_EQ(folder_.files(), 1u);
}

TEST_F(CreateBooks, are_refused_beside_the_journal_of_books_that_were_deleted) {
    for (const char* suffix : {"-wal", "-journal"}) {
        const std::string journal = folder_.file("a.zf") + suffix;
        std::ofstream(journal) << "x";
        try {
            create_books(wanted(), clock_);
            FAIL() << suffix;
        } catch (const Refusal& refusal) {
            EXPECT_EQ(std::string(refusal.what()),
                      "文件 " + journal + " 是以前的同名帐套留下的,请先移走它,或换一个名称!");
        }
        EXPECT_EQ(folder_.files(), 1u);
        std::filesystem::remove(journal);
    }
}

TEST_F(CreateBooks, voucher_words_are_those_of_the_scheme_and_the_carry_forwards) {
    const std::pair<int, const char*> schemes[] = {{1, "1"}, {2, "4"}, {3, "6"}};
    for (const auto& [scheme, words] : schemes) {
        NewBooks books = wanted();
        books.scheme = scheme;
        std::filesystem::remove(books.books);
        create_books(books, clock_);
        EXPECT_EQ(value("SELECT COUNT(*) FROM D6802"), words) << scheme;
        EXPECT_EQ(value("SELECT PZZ FROM D6802 WHERE T = 1"), "记");
    }
}

TEST_F(CreateBooks, full_names_are_joined_from_the_top) {
    create_books(wanted(), clock_);
    EXPECT_EQ(value("SELECT KM_NAME_NEW FROM V6801 WHERE KM_ID = '21710101'"),
              "应交税金-应交增值税-进项税额");
    EXPECT_EQ(value("SELECT ISEND FROM V6801 WHERE KM_ID = '217101'"), "0");
    EXPECT_EQ(value("SELECT ISEND FROM V6801 WHERE KM_ID = '21710101'"), "1");
}

TEST_F(CreateBooks, existing_files_are_never_touched) {
    std::ofstream(folder_.file("a.zf")) << "notes of somebody";
    EXPECT_THROW(create_books(wanted(), clock_), Refusal);
    std::ifstream in(folder_.file("a.zf"));
    std::string content;
    std::getline(in, content);
    EXPECT_EQ(content, "notes of somebody");
}

TEST_F(CreateBooks, a_creation_that_fails_leaves_nothing) {
    NewBooks books = wanted();
    books.company = std::string(500, 'x'); // does not fit its column, after all objects are made
    EXPECT_THROW(create_books(books, clock_), Refusal);
    EXPECT_EQ(folder_.files(), 0u);
}

TEST_F(CreateBooks, unknown_templates_blank_companies_and_servers_are_refused) {
    NewBooks books = wanted();
    books.template_name = "no such";
    EXPECT_THROW(create_books(books, clock_), Refusal);
    books = wanted();
    books.company = "  ";
    EXPECT_THROW(create_books(books, clock_), Refusal);
    books = wanted();
    books.books = "postgres://user@host/db";
    EXPECT_THROW(create_books(books, clock_), Refusal);
    EXPECT_EQ(folder_.files(), 0u);
}

TEST_F(CreateBooks, books_are_readable_by_their_owner_only) {
    create_books(wanted(), clock_);
    const auto permissions = std::filesystem::status(folder_.file("a.zf")).permissions();
    EXPECT_EQ(permissions & std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

} // namespace app
