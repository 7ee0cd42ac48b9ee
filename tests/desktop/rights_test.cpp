// What a person without rights sees of the desktop: pale functions, no figures.
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "desktop/overview/card.h"
#include "desktop/overview/figures.h"
#include "desktop/theme/text.h"
#include "tests/desktop/desk.h"

namespace tests {
namespace {

// Where the navigation keeps whether an entry can be opened.
constexpr int available_role = Qt::UserRole + 4;

bool nothing(const host::Right&) { return false; }

TEST(DesktopRights, the_hosts_own_functions_are_found_by_name_and_opened) {
    Desk desk;
    desk.keys({"Ctrl+G"});
    desk.type("角色");
    desk.keys({"Enter"});
    desk.keys({"Ctrl+G"});
    desk.type("users");
    desk.keep("administration");
    desk.keys({"Enter"});
    EXPECT_EQ(desk.administration, (std::vector<std::string>{"roles", "users"}));
}

TEST(DesktopRights, figures_are_read_only_for_those_who_may_open_a_function_that_tells_them) {
    Desk desk(nullptr, "2016-06-28", nothing);
    const desktop::Figures none = desktop::read_figures();
    EXPECT_TRUE(none.money.empty());
    EXPECT_TRUE(none.months.empty());
    EXPECT_EQ(none.vouchers, 0);
    EXPECT_EQ(none.period, "2016-06");
    desk.keep("overview_without_rights");
    for (const std::string& query : desk.data.queries())
        EXPECT_NE(query.rfind("SELECT ID,PARAM", 0), std::string::npos) << query;
    host::the_host().may = [](const host::Right& right) { return right.function == "690"; };
    const desktop::Figures cash = desktop::read_figures();
    EXPECT_EQ(cash.money.size(), 3u);
    EXPECT_TRUE(cash.months.empty());
    EXPECT_EQ(cash.receivable.parties, 0);
    host::the_host().may = [](const host::Right& right) { return right.function == "642"; };
    const desktop::Figures payable = desktop::read_figures();
    EXPECT_EQ(payable.payable.parties, 2);
    EXPECT_EQ(payable.receivable.parties, 0);
}

TEST(DesktopRights, a_function_that_may_not_be_opened_is_pale) {
    Desk desk(nullptr, "2016-06-28",
              [](const host::Right& right) { return right.function == "661"; });
    const auto* tree = desk.window().findChild<QTreeWidget*>("navigation");
    int pale = 0, open = 0;
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(tree)); *at; ++at) {
        if ((*at)->childCount() > 0) continue;
        const bool available = (*at)->data(0, available_role).toBool();
        ++(available ? open : pale);
        if (!available) continue;
        EXPECT_EQ(desktop::utf8((*at)->text(0)), "录凭证");
    }
    EXPECT_EQ(open, 1);
    EXPECT_GT(pale, 30);
    desk.keep("navigation_pale");
}

} // namespace
} // namespace tests
