// Pictures of the program at work: of the size asked for, and nothing left beside the books.
#include <QImage>
#include <gtest/gtest.h>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {
namespace {

class Screenshots : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(run_program({"new", books_, "--company", "甲公司", "--start", "2024-03"}, "",
                              surroundings_)
                      .status,
                  0);
    }
    ProgramRun picture(std::vector<std::string> more) {
        std::vector<std::string> arguments{"--screenshot", file_};
        arguments.insert(arguments.end(), more.begin(), more.end());
        arguments.push_back(books_);
        return run_program(arguments, "", surroundings_);
    }
    QImage taken() { return QImage(QString::fromStdString(file_)); }

    TemporaryFolder folder_, home_;
    std::string books_ = folder_.file("a.zf"), file_ = folder_.file("a.png");
    std::map<std::string, std::string> surroundings_{{"QT_QPA_PLATFORM", "offscreen"},
                                                     {"ZHANGFANG_PASSWORD", ""},
                                                     {"XDG_CONFIG_HOME", home_.file("config")},
                                                     {"XDG_DATA_HOME", home_.file("data")}};
};

} // namespace

TEST_F(Screenshots, the_books_are_closed_when_the_picture_is_taken) {
    // keys that leave the overview, an open list, a dialog over it
    const std::vector<std::string> rows[] = {
        {}, {"--function", "661"}, {"--function", "685"}, {"--function", "661", "--key", "F3"}};
    for (const auto& row : rows) {
        const ProgramRun run = picture(row);
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(taken().size(), QSize(1440, 900));
        EXPECT_LE(taken().colorCount(), 256);
        EXPECT_EQ(folder_.files(), 2u); // the books and the picture
    }
}

TEST_F(Screenshots, the_window_and_the_day_are_those_asked_for) {
    EXPECT_EQ(picture({"--size", "1366x768"}).status, 0);
    EXPECT_EQ(taken().size(), QSize(1366, 768));
    EXPECT_EQ(picture({"--function", "661", "--key", "Insert", "--today", "2024-03-15"}).status, 0);
    const QImage before = taken();
    EXPECT_EQ(picture({"--function", "661", "--key", "Insert", "--today", "2024-03-16"}).status, 0);
    EXPECT_FALSE(taken() == before); // a new voucher bears the day
}

TEST_F(Screenshots, what_cannot_be_done_is_said_on_standard_error) {
    EXPECT_EQ(picture({"--size", "large"}).status, 2);
    EXPECT_EQ(picture({"--today", "2024-13-01"}).status, 2);
    books_ = folder_.file("none.zf");
    const ProgramRun run = picture({});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors.find("none.zf"), std::string::npos) << run.errors;
}

} // namespace tests
