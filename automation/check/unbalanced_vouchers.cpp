// Every voucher has lines, and its debits equal its credits.
#include "automation/check/findings.h"

namespace automation {

void check_unbalanced_vouchers(engines::Session& session, Findings& findings) {
    add_rows(session,
             "SELECT NOID + ':', '借方', SUM(J), '贷方', SUM(D) FROM D6601A "
             "GROUP BY NOID HAVING SUM(J) <> SUM(D) ORDER BY NOID",
             findings);
    add_rows(session,
             "SELECT NOID + ':', '没有分录' FROM D6601 "
             "WHERE NOT EXISTS (SELECT * FROM D6601A WHERE D6601A.NOID = D6601.NOID) "
             "ORDER BY NOID",
             findings);
}

} // namespace automation
