// The ledger procedures' calls, word for word.
#include "module/ledgers/ledger_call.h"

namespace module {
namespace {

const LedgerCall first_quarter = {.before = "2015-12",
                                  .show = "1",
                                  .first_account = "1001",
                                  .last_account = "999999999",
                                  .first = "2016-01",
                                  .last = "2016-03"};

TEST(LedgerCall, a_detailed_ledger_names_both_accounts_and_both_periods) {
    EXPECT_EQ(detailed_ledger_call(first_quarter),
              "EXEC SYS_685 @P_year='2015-12',@p_show='1',@KM_ID1='1001',@KM_ID2='999999999',"
              "@P_month1='2016-01',@P_month2='2016-03'");
}

TEST(LedgerCall, a_general_ledger_adds_the_level) {
    EXPECT_EQ(general_ledger_call(first_quarter, 2),
              "EXEC SYS_686 @P_year='2015-12',@p_show='1',@KM_ID1='1001',@KM_ID2='999999999',"
              "@P_month1='2016-01',@P_month2='2016-03', @p_kmjb='2'");
}

TEST(LedgerCall, a_journal_has_one_account_and_asks_for_the_other_side) {
    LedgerCall journal = first_quarter;
    journal.last_account.reset();
    EXPECT_EQ(detailed_ledger_call(journal),
              "EXEC SYS_685 @P_year='2015-12',@p_show='1',@KM_ID1='1001',@p_xj=1,"
              "@P_month1='2016-01',@P_month2='2016-03'");
}

TEST(LedgerCall, one_account_of_a_period_stands_in_all_its_places) {
    EXPECT_EQ(detailed_ledger_call(account_in_period("1002", "2016-03")),
              "EXEC SYS_685 @P_year='2016-03',@p_show='1',@KM_ID1='1002',@KM_ID2='1002',"
              "@P_month1='2016-03',@P_month2='2016-03'");
}

TEST(LedgerCall, a_quote_in_a_code_stays_inside_its_text) {
    EXPECT_NE(detailed_ledger_call(account_in_period("10'01", "2016-03")).find("@KM_ID1='10''01'"),
              std::string::npos);
}

} // namespace
} // namespace module
