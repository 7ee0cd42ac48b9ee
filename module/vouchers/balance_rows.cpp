// Rows of the balance table: made for every account, added up along the chart.
#include "module/vouchers/balance_rows.h"

namespace module {
namespace {

// Enough to carry a leaf's figures from the deepest level of the chart to the top.
constexpr int roll_up_passes = 6;

} // namespace

std::string add_missing_balance_rows(const std::string& kind, const std::string& period) {
    return "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT " + kind + " as INX," + period +
           ",D6801.KM_ID  FROM  D6801 left OUTER JOIN "
           "D6602 ON D6602.KM_ID = D6801.KM_ID and (D6602.INX = " +
           kind + ") AND (D6602.QJ = " + period + ") where d6602.km_id is null;";
}

std::string roll_up_to_parents(const std::string& prefix, const std::string& kind,
                               const std::string& period) {
    const std::string debit = prefix + "J";
    const std::string credit = prefix + "D";
    const std::string pass =
        "UPDATE D6602 SET " + debit + "=T.J," + credit + "=T.D FROM (SELECT OID,SUM(" + debit +
        ") AS J,SUM(" + credit +
        ") AS D FROM D6602 INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ =" + period +
        "  AND INX = " + kind + " GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ =" + period +
        ";";
    std::string passes;
    for (int i = 0; i < roll_up_passes; ++i) passes += pass;
    return passes;
}

} // namespace module
