// The statements behind the account summary.
#include "module/ledgers/account_summary_query.h"

namespace module {

std::string count_query(const std::string& condition) {
    return " SELECT COUNT(*) AS A, isnull(SUM(PZZ_Z),0) AS B FROM D6601 where " + condition;
}

std::string account_summary_query(const std::string& condition) {
    return "SELECT tmp.*, D6801.KM_NAME AS KM_NAME FROM (SELECT LEFT(D6601A.KM_ID, 4) AS KM_ID, "
           "SUM(D6601A.J) AS J, SUM(D6601A. D) AS D  FROM D6601A INNER JOIN  D6601 ON D6601A.NOID "
           "= D6601.NOID  WHERE " +
           condition +
           " GROUP BY LEFT(D6601A.KM_ID, 4)) tmp INNER JOIN  D6801 ON tmp.KM_ID = D6801.KM_ID  "
           "order by D6801.KM_ID";
}

} // namespace module
