// The parts of a receipt or payment add up to what its head says.
#include "automation/check/findings.h"

namespace automation {

namespace {

// Kinds 0 and 3 settle documents: lines, and over-receipts by category, make up the amount.
constexpr const char* receipts_and_their_lines =
    "SELECT NOID + ': 金额', MONEY, '明细合计', S FROM (SELECT H.NOID, H.MONEY, "
    "ISNULL((SELECT SUM(MONEY) FROM D631A L WHERE L.NOID = H.NOID), 0.00) + "
    "ISNULL((SELECT SUM(MONEY) FROM D651A O WHERE O.D631NOID = H.NOID), 0.00) AS S "
    "FROM D631 H WHERE H.JY_KM IN (0, 3)) T WHERE MONEY <> S ORDER BY NOID";

constexpr const char* payments_and_their_lines =
    "SELECT NOID + ': 金额', MONEY, '明细合计', S FROM (SELECT H.NOID, H.MONEY, "
    "ISNULL((SELECT SUM(MONEY) FROM D641A L WHERE L.NOID = H.NOID), 0.00) AS S "
    "FROM D641 H WHERE H.JY_KM IN (0, 3)) T WHERE MONEY <> S ORDER BY NOID";

constexpr const char* receipts_and_their_accounts =
    "SELECT H.NOID + ': 实收', H.MONEY_SS, '分帐户合计', SUM(B.MONEY) FROM D631 H "
    "INNER JOIN D631B B ON B.NOID = H.NOID GROUP BY H.NOID, H.MONEY_SS "
    "HAVING SUM(B.MONEY) <> H.MONEY_SS ORDER BY H.NOID";

// Kinds 1 and 2 are an advance and its refund: nothing is settled, no discount is given.
constexpr const char* advances_with_lines =
    "SELECT NOID + ':', '预收单不应有明细或优惠' FROM D631 H WHERE JY_KM IN (1, 2) AND "
    "(MONEY_YH <> 0 OR EXISTS (SELECT * FROM D631A L WHERE L.NOID = H.NOID)) ORDER BY NOID";

constexpr const char* advance_payments_with_lines =
    "SELECT NOID + ':', '预付单不应有明细或优惠' FROM D641 H WHERE JY_KM IN (1, 2) AND "
    "(MONEY_YH <> 0 OR EXISTS (SELECT * FROM D641A L WHERE L.NOID = H.NOID)) ORDER BY NOID";

} // namespace

void check_receipts(engines::Session& session, Findings& findings) {
    for (const char* query :
         {receipts_and_their_lines, payments_and_their_lines, receipts_and_their_accounts,
          advances_with_lines, advance_payments_with_lines})
        add_rows(session, query, findings);
}

} // namespace automation
