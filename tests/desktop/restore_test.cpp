// Restoring a backup from the desktop: asked first, nothing lost on the way.
#include <gtest/gtest.h>

#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

namespace tests {
namespace {

TEST(DesktopRestore, closes_the_window_once_the_person_agreed) {
    Desk desk;
    desk.answers = {true};
    desk.window().restore_from("备份.zf");
    EXPECT_EQ(desk.messages, std::vector<std::string>{"要用备份 备份.zf 替换当前帐套吗?"});
    EXPECT_EQ(desk.restored, std::vector<std::string>{"备份.zf"});
    EXPECT_FALSE(desk.window().isVisible());
}

TEST(DesktopRestore, goes_on_with_the_books_when_he_says_no_which_is_what_enter_says) {
    Desk desk;
    desk.window().restore_from("备份.zf");
    EXPECT_TRUE(desk.restored.empty());
    EXPECT_TRUE(desk.window().isVisible());
}

TEST(DesktopRestore, a_file_that_is_no_backup_is_told) {
    Desk desk;
    desk.window().restore_from("信件.txt");
    EXPECT_EQ(desk.messages, std::vector<std::string>{"信件.txt 不是帐套!"});
    EXPECT_TRUE(desk.restored.empty());
    EXPECT_TRUE(desk.window().isVisible());
}

} // namespace
} // namespace tests
