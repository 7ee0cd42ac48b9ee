// The statements that open the books with the opening figures of the chart.
#include "module/period/opening_posting.h"

#include "host/values/period.h"
#include "host/values/sql_text.h"
#include "module/vouchers/balance_rows.h"

namespace module {
namespace {

Date day_kept(Date chosen) {
    while (chosen.month() == 1) chosen = chosen.plus_days(-1);
    return chosen;
}

// Opening figures stand on leaves only; a parent's would be counted twice.
std::string clear_figures_of_parents() {
    return "UPDATE D6801 SET BEGIN1 = 0, BEGIN2 = 0, BEGIN3 = 0, BEGIN4 = 0, BEGIN5 = 0 from v6801 "
           "where d6801.km_id=v6801.km_id and v6801.isend=0;";
}

// Periods are given as quoted texts from here on.
std::string set_periods(const std::string& first) {
    return "UPDATE D6600 SET PARAM=" + first + " WHERE ID=1;UPDATE D6600 SET PARAM=" + first +
           " WHERE ID=2;";
}

// The lines of the vouchers go with their heads.
std::string begin_anew(const std::string& year_row, const std::string& previous) {
    return "delete from d6601;delete from d6602;"
           "INSERT INTO D6602 (QJ,KM_ID,INX, J, D,SY_J,SY_D) SELECT " +
           year_row +
           ",KM_ID,0, BEGIN2 AS C1, BEGIN3 AS C2, "
           "CASE FX WHEN '借' THEN BEGIN5 ELSE 0 END AS SY_J,"
           "CASE FX WHEN '贷' THEN BEGIN5 ELSE 0 END AS SY_D FROM D6801 UNION ALL SELECT " +
           previous +
           ",KM_ID,1, CASE FX WHEN '借' THEN BEGIN4 ELSE 0 END AS D1,"
           "CASE FX WHEN '贷' THEN BEGIN4 ELSE 0 END AS D2,0,0 FROM D6801;";
}

// Customers and suppliers differ in these words; suppliers up to the code "0" are left out.
struct Parties {
    const char *clear, *documents, *parties, *more;
};
constexpr Parties customers = {"delete from d631;delete from d8102 where (c=2)or (c=3);", "D8102",
                               "D1102", ""};
constexpr Parties suppliers = {"delete from d641;delete from d8202 where (c=2)or (c=3);", "D8202",
                               "D1103", " and (KH_GYS_ID>'0')"};

// Kind 2 is the opening amount ("初" + party), kind 3 what was paid in advance ("预" + party).
// Parties whose two amounts are equal owe nothing and get neither.
std::string insert_opening_documents(const Parties& of, const std::string& day, const char* kind,
                                     const char* amount, const char* mark) {
    return std::string("INSERT INTO ") + of.documents +
           " (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT " + day + " as da, " +
           kind + ", KH_GYS_ID, " + amount + ", " + amount + ", " + quoted(mark) +
           " + KH_GYS_ID,'admin' FROM " + of.parties + " where (BEGIN_MONEY-BEGINys_MONEY)<>0" +
           of.more + ";";
}

std::string open_documents(const Parties& of, const std::string& day) {
    return of.clear + insert_opening_documents(of, day, "2", "BEGIN_MONEY", "初") +
           insert_opening_documents(of, day, "3", "BEGINys_MONEY", "预");
}

// A parent whose children lie on both sides ends with the net figure on its own side.
std::string net_on_own_side(const std::string& previous) {
    return "UPDATE D6602 SET J=J-D,D=0 FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID AND FX='借'  AND "
           "QJ =" +
           previous +
           "  AND INX = 1;UPDATE D6602 SET J=0,D=d-j FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID "
           "AND FX='贷'  AND QJ =" +
           previous + "  AND INX = 1;";
}

} // namespace

OpeningDay::OpeningDay(Date chosen)
    : first_period(Period::of(chosen).to_text()), day(day_kept(chosen)) {
    year_row = Period::of(day.year(), 0).to_text();
    previous_month = Period::of(day.plus_days(-1)).to_text();
}

std::string opening_batch(const OpeningDay& opening) {
    const std::string first = quoted(opening.first_period);
    const std::string year_row = quoted(opening.year_row);
    const std::string previous = quoted(opening.previous_month);
    const std::string day = quoted(opening.day.to_text());
    return clear_figures_of_parents() + set_periods(first) + begin_anew(year_row, previous) +
           open_documents(customers, day) + open_documents(suppliers, day) +
           roll_up_to_parents("", movements, year_row) +
           roll_up_to_parents("", closing_balance, previous) + net_on_own_side(previous) +
           add_missing_balance_rows(movements, first) +
           add_missing_balance_rows(closing_balance, first);
}

} // namespace module
