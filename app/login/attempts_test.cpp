// Guessing takes time.
#include "app/login/attempts.h"

#include <gtest/gtest.h>

namespace app {
namespace {

class Attempts : public ::testing::Test {
protected:
    std::string with(const std::string& password) {
        return attempts_.attempt([&] {
            ++tried_;
            return password == "right" ? "" : "no";
        });
    }
    int tried_ = 0;
    LoginAttempts::Moment now_{std::chrono::hours(1)};
    LoginAttempts attempts_{[this] { return now_; }};
};

} // namespace

TEST_F(Attempts, the_third_refusal_in_a_row_begins_a_pause_in_which_nothing_is_tried) {
    with("a");
    with("b");
    EXPECT_EQ(with("c"), "no已连续 3 次登录不成功,请等 30 秒再试!");
    now_ += std::chrono::seconds(12);
    EXPECT_EQ(with("right"), "已连续 3 次登录不成功,请等 18 秒再试!");
    EXPECT_EQ(tried_, 3);
    now_ += std::chrono::seconds(18);
    EXPECT_EQ(with("right"), "");
}

TEST_F(Attempts, a_login_begins_the_count_anew) {
    with("a");
    with("b");
    EXPECT_EQ(with("right"), "");
    with("a");
    EXPECT_EQ(with("b"), "no");
}

} // namespace app
