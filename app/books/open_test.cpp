// Opening what is there, and saying why not.
#include "app/books/open.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "tests/support/new_books.h"

namespace app {
namespace {

std::string refusal_of(const std::string& books) {
    try {
        open_books(books);
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "";
}

} // namespace

TEST(OpenBooks, a_missing_file_a_folder_and_a_server_are_named_for_what_they_are) {
    tests::TemporaryFolder folder;
    EXPECT_NE(refusal_of(folder.file("none.zf")).find("找不到帐套"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder.file("none.zf")));
    EXPECT_NE(refusal_of(folder.path().string()).find("文件夹"), std::string::npos);
    EXPECT_NE(refusal_of("postgres://a@b/c").find("postgres"), std::string::npos);
}

TEST(OpenBooks, a_foreign_file_is_refused_and_left_as_it_was) {
    tests::TemporaryFolder folder;
    const std::string path = folder.file("letter.zf");
    const std::string letter(10'000, 'x');
    std::ofstream(path) << letter;
    EXPECT_NE(refusal_of(path).find("不是帐套"), std::string::npos);
    std::ifstream in(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), letter);
}

TEST(OpenBooks, a_damaged_file_is_refused) {
    tests::TemporaryFolder folder;
    const std::string path = tests::new_books(folder, "a.zf");
    {
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        for (int page = 0; page < 40; ++page) {
            file.seekp(page * 4096 + (page == 0 ? 100 : 0));
            file << std::string(3000, '\xA5');
        }
    }
    EXPECT_NE(refusal_of(path), "");
}

TEST(OpenBooks, a_database_without_the_tables_of_books_is_refused) {
    EXPECT_NE(refusal_of(":memory:").find("没有帐套"), std::string::npos);
}

TEST(OpenBooks, books_opened_for_reading_cannot_be_written) {
    tests::TemporaryFolder folder;
    const std::string path = tests::new_books(folder, "a.zf");
    const auto session = open_books(path, Access::ReadOnly);
    const auto result = automation::collect(*session, "DELETE FROM D6803");
    ASSERT_FALSE(result.outcome.ok());
    EXPECT_EQ(result.outcome.error->category, engines::ErrorCategory::read_only);
}

} // namespace app
