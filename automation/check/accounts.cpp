// The chart: every account hangs below an existing one, on the right level, with its full name.
#include "automation/check/findings.h"

namespace automation {

void check_accounts(engines::Session& session, Findings& findings) {
    add_rows(session,
             "SELECT '上级科目不存在:', A.KM_ID, A.OID FROM D6801 A WHERE A.OID <> 'Z' "
             "AND NOT EXISTS (SELECT * FROM D6801 B WHERE B.KM_ID = A.OID) ORDER BY A.KM_ID",
             findings);
    add_rows(session,
             "SELECT '科目级别不对:', A.KM_ID FROM D6801 A LEFT JOIN D6801 B ON B.KM_ID = A.OID "
             "WHERE A.KM_J <> ISNULL(B.KM_J, 0) + 1 ORDER BY A.KM_ID",
             findings);
    add_rows(session,
             "SELECT '科目全称不对:', A.KM_ID FROM D6801 A "
             "INNER JOIN V6801_PATH P ON P.KM_ID = A.KM_ID "
             "WHERE A.KM_NAME2 <> P.FULL_NAME ORDER BY A.KM_ID",
             findings);
    add_rows(session,
             "SELECT DISTINCT '已登帐的分录记在非末级科目上:', L.NOID, L.KM_ID FROM D6601A L "
             "INNER JOIN D6601 H ON H.NOID = L.NOID INNER JOIN V6801 A ON A.KM_ID = L.KM_ID "
             "WHERE H.D = 1 AND A.ISEND = 0 ORDER BY L.NOID, L.KM_ID",
             findings);
}

} // namespace automation
