// Levels of the chart, and which accounts keep the cash-flow mark.
#include "module/masterdata/account_level.h"

namespace module {
namespace {

TEST(AccountLevel, cash_and_bank_accounts_keep_the_cash_flow_mark_by_comparing_texts) {
    const std::pair<const char*, bool> codes[] = {
        // code, keeps the mark
        {"1001", true},  {"1002", true},  {"1009", true},  {"10021", true}, {"100901", true},
        {"1010", false}, {"1101", false}, {"2001", false}, {"101", true}};
    for (const auto& [code, keeps] : codes) EXPECT_EQ(may_allocate_cash_flow(code), keeps) << code;
}

TEST(AccountLevel, counts_from_one_at_the_top) {
    TTreeNode top, sub;
    sub.Parent = &top;
    EXPECT_EQ(level_beside(nullptr), 1);
    EXPECT_EQ(level_beside(&top), 1);
    EXPECT_EQ(level_below(&top), 2);
    EXPECT_EQ(level_below(&sub), 3);
}

} // namespace
} // namespace module
