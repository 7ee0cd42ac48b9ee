// Logging in by the keyboard alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include "desktop/dialogs/login_dialog.h"
#include "desktop/dialogs/message_dialog.h"
#include "desktop/theme/text.h"
#include "tests/desktop/desk.h"

namespace tests {
namespace {

struct LoginDesk : Desk {
    // What stood in the line of the refusal when `work` was done.
    bool log_in(const std::string& last_user, const std::function<void()>& work) {
        when_modal([this, work] {
            settle();
            work();
            settle();
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                refusal = dialog->findChild<QLabel*>("refusal");
                said = desktop::utf8(refusal->text());
                height = dialog->height();
                keep("login");
                keys({"Esc"});
            }
        });
        return desktop::log_in("苏州嘉禾贸易有限公司", last_user,
                               [this](const std::string& user, const std::string& password) {
                                   tried.push_back(user + "/" + password);
                                   return password == "right" ? "" : "用户号或密码不对!";
                               });
    }
    std::vector<std::string> tried;
    std::string said;
    QLabel* refusal = nullptr;
    int height = 0;
};

TEST(Login, whoever_was_here_last_types_the_password_and_enter) {
    LoginDesk desk;
    EXPECT_TRUE(desk.log_in("anna", [&] {
        desk.type("right");
        desk.keys({"Enter"});
    }));
    EXPECT_EQ(desk.tried, std::vector<std::string>{"anna/right"});
}

TEST(Login, enter_leads_from_the_user_to_the_password) {
    LoginDesk desk;
    EXPECT_TRUE(desk.log_in("", [&] {
        desk.type("bert");
        desk.keys({"Enter"});
        desk.type("right");
        desk.keys({"F2"});
    }));
    EXPECT_EQ(desk.tried, std::vector<std::string>{"bert/right"});
}

TEST(Login, a_wrong_password_is_told_and_typed_over) {
    LoginDesk desk;
    EXPECT_TRUE(desk.log_in("anna", [&] {
        desk.type("wrong");
        desk.keys({"Enter"});
        desk.type("right");
        desk.keys({"Enter"});
    }));
    EXPECT_EQ(desk.tried, (std::vector<std::string>{"anna/wrong", "anna/right"}));
}

TEST(Login, the_refusal_finds_its_room_and_leaving_logs_nobody_in) {
    LoginDesk desk;
    EXPECT_FALSE(desk.log_in("anna", [&] { desk.settle(); }));
    const int before = desk.height;
    EXPECT_FALSE(desk.log_in("anna", [&] {
        desk.type("wrong");
        desk.keys({"Enter"});
    }));
    EXPECT_EQ(desk.said, "用户号或密码不对!");
    EXPECT_GT(desk.height, before);
}

} // namespace
} // namespace tests
