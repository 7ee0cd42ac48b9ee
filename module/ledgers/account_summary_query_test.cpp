// The account summary's statements, word for word.
#include "module/ledgers/account_summary_query.h"

namespace module {
namespace {

const std::string march = "(D6601.BDATE>='2016-03-01') AND (D6601.BDATE<'2016-04-01')";

TEST(AccountSummaryQuery, vouchers_and_attachments_are_counted_first) {
    EXPECT_EQ(count_query(march),
              " SELECT COUNT(*) AS A, isnull(SUM(PZZ_Z),0) AS B FROM D6601 where "
              "(D6601.BDATE>='2016-03-01') AND (D6601.BDATE<'2016-04-01')");
}

TEST(AccountSummaryQuery, lines_are_added_up_under_the_first_four_characters_of_their_account) {
    EXPECT_EQ(account_summary_query(march),
              "SELECT tmp.*, D6801.KM_NAME AS KM_NAME FROM (SELECT LEFT(D6601A.KM_ID, 4) AS KM_ID, "
              "SUM(D6601A.J) AS J, SUM(D6601A. D) AS D  FROM D6601A INNER JOIN  D6601 ON "
              "D6601A.NOID = D6601.NOID  WHERE (D6601.BDATE>='2016-03-01') AND "
              "(D6601.BDATE<'2016-04-01') GROUP BY LEFT(D6601A.KM_ID, 4)) tmp INNER JOIN  D6801 ON "
              "tmp.KM_ID = D6801.KM_ID  order by D6801.KM_ID");
}

} // namespace
} // namespace module
