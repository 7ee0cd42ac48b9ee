// The statement behind the trial balance.
#include "module/ledgers/trial_balance_query.h"

#include "host/values/sql_text.h"

namespace module {
namespace {

const char* const columns =
    "select * from (SELECT D6602.KM_ID, D6801.KM_NAME2 AS KM_NAME, D6801.OID,D6801.KM_J, "
    "ISNULL(BE.J,0.00) AS B1,ISNULL(BE.D, 0.00) AS B2, D6602.J AS C1, D6602.D AS C2, EN.J AS "
    "D1,EN.D AS D2, CASE KM_J WHEN 1 THEN ISNULL(BE.J, 0.00) ELSE 0.00 END AS BB1,CASE KM_J WHEN 1 "
    "THEN ISNULL(BE.D, 0.00) ELSE 0.00 END AS BB2,CASE KM_J WHEN 1 THEN ISNULL(D6602.J, 0.00) ELSE "
    "0.00 END AS CC1,CASE KM_J WHEN 1 THEN ISNULL(D6602.D, 0.00) ELSE 0.00 END AS CC2,CASE KM_J "
    "WHEN 1 THEN ISNULL(EN.J, 0.00) ELSE 0.00 END AS DD1,CASE KM_J WHEN 1 THEN ISNULL(EN.D, 0.00) "
    "ELSE 0.00 END AS DD2 FROM D6602 INNER JOIN V6801 D6801 ON D6602.KM_ID=D6801.KM_ID ";

const char* const with_figures =
    "not ((b1=0) and (b2=0) and (c1=0) and (c2=0) and (d1=0) and (d2=0) and (bb1=0) and (bb2=0) "
    "and (cc1=0) and (cc2=0) and (dd1=0) and (dd2=0)) order by km_id;";

std::string closing_of_the_period(const std::string& period) {
    return "INNER JOIN (SELECT km_id,J,D FROM D6602   WHERE QJ=" + period +
           " AND INX=1) EN ON D6602.KM_ID=EN.KM_ID ";
}

// An account that is new in the period has no balance in the one before.
std::string closing_of_the_period_before(const std::string& before) {
    return "left join (SELECT km_id,J,D FROM D6602  WHERE QJ=" + before +
           " AND INX=1) BE ON D6602.KM_ID=BE.KM_ID ";
}

} // namespace

std::string trial_balance_query(Period period, std::int64_t level) {
    const std::string current = quoted(period.to_text());
    return columns + closing_of_the_period(current) +
           closing_of_the_period_before(quoted(period.previous().to_text())) +
           "WHERE (QJ=" + current + ") AND (INX=0) AND (km_j<=" + std::to_string(level) +
           "))t where " + with_figures;
}

} // namespace module
