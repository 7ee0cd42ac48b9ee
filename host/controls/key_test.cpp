// Keys are named as people name them.
#include "host/controls/key.h"

namespace host {

TEST(Key, every_name_means_its_key_and_back) {
    for (const char* name : {"F1", "F12", "Enter", "Ctrl+Delete", "Shift+Tab", "Ctrl+Shift+F5", "a",
                             "记", "+", "Space", "Alt+F4", "Esc", "PageDown"}) {
        const auto key = Key::parse(name);
        ASSERT_TRUE(key) << name;
        EXPECT_EQ(key->to_text(), name);
    }
}

TEST(Key, letters_with_ctrl_are_upper_case_and_a_blank_is_space) {
    EXPECT_EQ(Key::parse("Ctrl+p"), Key::parse("Ctrl+P"));
    EXPECT_EQ(Key::parse(" "), Key::parse("Space"));
    EXPECT_EQ(Key::parse("ctrl++")->character, U'+');
}

TEST(Key, unknown_names_are_refused) {
    for (const char* name : {"", "F13", "ab", "Ctrl+", "Hyper+A", "\n"})
        EXPECT_FALSE(Key::parse(name)) << name;
}

} // namespace host
