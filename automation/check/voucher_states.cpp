// Vouchers are audited before they are posted, and lie in periods that the books have reached.
#include "automation/check/findings.h"
#include "automation/check/open_periods.h"

namespace automation {

namespace {

std::string quoted(const std::string& period) { return "'" + period + "'"; }

void check_flags(engines::Session& session, Findings& findings) {
    add_rows(session,
             "SELECT NOID + ': 已登帐,却没有审核' FROM D6601 WHERE D = 1 AND T <> 1 ORDER BY NOID",
             findings);
    add_rows(session,
             "SELECT NOID + ': 有 3131 的分录,却没有结转标志(T_SY 应为 1)' FROM D6601 H "
             "WHERE D = 1 AND T_SY <> 1 AND EXISTS (SELECT * FROM D6601A L "
             "WHERE L.NOID = H.NOID AND L.KM_ID = '3131') ORDER BY NOID",
             findings);
    add_rows(session,
             "SELECT NOID + ': 有结转标志,却没有 3131 的分录(T_SY 应为 0)' FROM D6601 H "
             "WHERE D = 1 AND T_SY = 1 AND NOT EXISTS (SELECT * FROM D6601A L "
             "WHERE L.NOID = H.NOID AND L.KM_ID = '3131') ORDER BY NOID",
             findings);
}

void check_periods(engines::Session& session, const OpenPeriods& periods, Findings& findings) {
    const std::string first = quoted(periods.first), current = quoted(periods.current),
                      latest = quoted(periods.latest);
    add_rows(session,
             "SELECT NOID + ': 会计期间 ' + PZQJ + ' 晚于当前期间 ' + " + current +
                 " FROM D6601 WHERE PZQJ > " + latest + " ORDER BY NOID",
             findings);
    add_rows(session,
             "SELECT NOID + ': 会计期间 ' + PZQJ + ' 早于启用期间 ' + " + first +
                 " FROM D6601 WHERE PZQJ < " + first + " ORDER BY NOID",
             findings);
    // A period closes only when every voucher of it is audited and posted.
    add_rows(session,
             "SELECT NOID + ': 期间 ' + PZQJ + ' 已结帐,凭证却没有登帐' FROM D6601 WHERE PZQJ >= " +
                 first + " AND PZQJ < " + current + " AND (T <> 1 OR D <> 1) ORDER BY NOID",
             findings);
    add_hints(session,
              "SELECT PZQJ + ': 反结帐前的凭证', COUNT(*), '张,晚于当前期间 ' + " + current +
                  " FROM D6601 WHERE PZQJ > " + current + " AND PZQJ <= " + latest +
                  " GROUP BY PZQJ ORDER BY PZQJ",
              findings);
}

} // namespace

void check_voucher_states(engines::Session& session, Findings& findings) {
    check_flags(session, findings);
    add_hints(session,
              "SELECT NOID + ': 凭证日期 ' + CONVERT(varchar(10), BDATE, 120) + "
              "' 不在会计期间 ' + PZQJ + ' 内' FROM D6601 "
              "WHERE CONVERT(varchar(7), BDATE, 120) <> PZQJ ORDER BY NOID",
              findings);
    const OpenPeriods periods = read_open_periods(session);
    if (!periods.set_up())
        add_rows(session,
                 "SELECT '帐套的期间不是年月: D6600 第', ID, '行', PARAM FROM D6600 "
                 "WHERE ID IN (1, 2) AND PARAM <> '' ORDER BY ID",
                 findings);
    if (periods.set_up()) check_periods(session, periods, findings);
}

} // namespace automation
