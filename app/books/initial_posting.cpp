// The statements of the initial posting.
#include "app/books/initial_posting.h"

#include "host/values/period.h"

namespace app {

namespace {

// Passes of the roll-up: enough for the deepest chart.
constexpr int passes = 6;

// Every parent's row becomes the sum of its children's.
std::string roll_up(const std::string& period, const char* kind) {
    std::string batch;
    for (int pass = 0; pass < passes; ++pass)
        batch += "UPDATE D6602 SET J=T.J,D=T.D FROM (SELECT OID,SUM(J) AS J,SUM(D) AS D FROM D6602 "
                 "INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='" + period +
                 "'  AND INX = " + kind + " GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND "
                 "D6602.QJ ='" + period + "';";
    return batch;
}

// Opening figures stand on leaves only; a parent's would be counted twice.
std::string set_periods(const std::string& start) {
    return "UPDATE D6801 SET BEGIN1 = 0, BEGIN2 = 0, BEGIN3 = 0, BEGIN4 = 0, BEGIN5 = 0 from v6801 "
           "where d6801.km_id=v6801.km_id and v6801.isend=0;"
           "UPDATE D6600 SET PARAM='" + start + "' WHERE ID=1;"
           "UPDATE D6600 SET PARAM='" + start + "' WHERE ID=2;";
}

std::string opening_rows(const std::string& year_row, const std::string& previous) {
    return "delete from d6601;delete from d6602;"
           "INSERT INTO D6602 (QJ,KM_ID,INX, J, D,SY_J,SY_D) SELECT '" + year_row +
           "',KM_ID,0, BEGIN2 AS C1, BEGIN3 AS C2, "
           "CASE FX WHEN '借' THEN BEGIN5 ELSE 0 END AS SY_J,"
           "CASE FX WHEN '贷' THEN BEGIN5 ELSE 0 END AS SY_D FROM D6801 "
           "UNION ALL SELECT '" + previous + "',KM_ID,1, "
           "CASE FX WHEN '借' THEN BEGIN4 ELSE 0 END AS D1,"
           "CASE FX WHEN '贷' THEN BEGIN4 ELSE 0 END AS D2,0,0 FROM D6801;";
}

// A party's opening amount becomes a document of kind 2 ("初" + party), its advance one of kind 3.
std::string opening_document(const char* documents, const char* parties, const char* kind,
                             const char* amount, const char* mark, const std::string& day,
                             const char* more) {
    const std::string money = amount;
    return std::string("INSERT INTO ") + documents +
           " (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT '" + day + "' as da, " +
           kind + ", KH_GYS_ID, " + money + ", " + money + ", '" + mark +
           "' + KH_GYS_ID,'admin' FROM " + parties +
           " where (BEGIN_MONEY-BEGINys_MONEY)<>0" + more + ";";
}

std::string opening_documents(const std::string& day) {
    const auto both = [&day](const char* documents, const char* parties, const char* more) {
        return opening_document(documents, parties, "2", "BEGIN_MONEY", "初", day, more) +
               opening_document(documents, parties, "3", "BEGINys_MONEY", "预", day, more);
    };
    return "delete from d631;delete from d8102 where (c=2)or (c=3);" +
           both("D8102", "D1102", "") +
           "delete from d641;delete from d8202 where (c=2)or (c=3);" +
           both("D8202", "D1103", " and (KH_GYS_ID>'0')");
}

// A parent whose children lie on both sides ends with the net figure on its own side.
std::string net_on_own_side(const std::string& previous) {
    return "UPDATE D6602 SET J=J-D,D=0 FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID AND FX='借'  "
           "AND QJ ='" + previous + "'  AND INX = 1;"
           "UPDATE D6602 SET J=0,D=d-j FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID AND FX='贷'  "
           "AND QJ ='" + previous + "'  AND INX = 1;";
}

std::string empty_rows(const std::string& start, const std::string& kind) {
    return "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT " + kind + " as INX,'" + start +
           "',D6801.KM_ID  FROM  D6801 left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID and "
           "(D6602.INX = " + kind + ") AND (D6602.QJ = '" + start + "') where d6602.km_id is null;";
}

} // namespace

std::string initial_posting(host::Date start) {
    const std::string period = host::Period::of(start).to_text();
    // A January start keeps its year's opening in the year before, as a date of 31 December would.
    const host::Date day = start.month() == 1 ? host::Date::of(start.year() - 1, 12, 31).value()
                                              : start;
    const std::string year_row = std::to_string(day.year()) + "-00";
    const std::string previous = host::Period::of(day.plus_days(-1)).to_text();
    return set_periods(period) + opening_rows(year_row, previous) +
           opening_documents(day.to_text()) + roll_up(year_row, "0") +
           roll_up(previous, "1") + net_on_own_side(previous) + empty_rows(period, "0") +
           empty_rows(period, "1");
}

} // namespace app
