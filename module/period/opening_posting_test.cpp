// Opening the books, word for word.
#include "module/period/opening_posting.h"

#include <gtest/gtest.h>
#include <vector>

namespace module {
namespace {

std::vector<std::string> statements_of(int year, int month, int day) {
    const std::string batch = opening_batch(OpeningDay(*Date::of(year, month, day)));
    std::vector<std::string> parts;
    for (std::size_t from = 0; from < batch.size();) {
        const std::size_t end = batch.find(';', from);
        parts.push_back(batch.substr(from, end - from + 1));
        from = end + 1;
    }
    return parts;
}

const std::vector<std::string> may = statements_of(2006, 5, 1);

TEST(OpeningDay, says_where_the_opening_is_kept) {
    struct Attempt {
        int year, month, day;
        const char *first, *year_row, *previous, *kept;
    };
    const Attempt attempts[] = {
        {2006, 5, 1, "2006-05", "2006-00", "2006-04", "2006-05-01"},
        {2006, 5, 12, "2006-05", "2006-00", "2006-05", "2006-05-12"}, // inside a month
        {2006, 1, 1, "2006-01", "2005-00", "2005-12", "2005-12-31"},
        {2006, 1, 20, "2006-01", "2005-00", "2005-12", "2005-12-31"},
        {2006, 2, 1, "2006-02", "2006-00", "2006-01", "2006-02-01"},
        {2006, 12, 31, "2006-12", "2006-00", "2006-12", "2006-12-31"},
    };
    for (const Attempt& attempt : attempts) {
        const OpeningDay day(*Date::of(attempt.year, attempt.month, attempt.day));
        EXPECT_EQ(day.first_period, attempt.first);
        EXPECT_EQ(day.year_row, attempt.year_row);
        EXPECT_EQ(day.previous_month, attempt.previous);
        EXPECT_EQ(day.day.to_text(), attempt.kept);
    }
}

TEST(OpeningBatch, parents_lose_their_figures_and_both_periods_become_the_start) {
    EXPECT_EQ(may[0],
              "UPDATE D6801 SET BEGIN1 = 0, BEGIN2 = 0, BEGIN3 = 0, BEGIN4 = 0, BEGIN5 = 0 from "
              "v6801 where d6801.km_id=v6801.km_id and v6801.isend=0;");
    EXPECT_EQ(may[1], "UPDATE D6600 SET PARAM='2006-05' WHERE ID=1;");
    EXPECT_EQ(may[2], "UPDATE D6600 SET PARAM='2006-05' WHERE ID=2;");
}

TEST(OpeningBatch, vouchers_and_balances_go_and_the_opening_rows_come) {
    EXPECT_EQ(may[3], "delete from d6601;");
    EXPECT_EQ(may[4], "delete from d6602;");
    EXPECT_EQ(may[5],
              "INSERT INTO D6602 (QJ,KM_ID,INX, J, D,SY_J,SY_D) SELECT '2006-00',KM_ID,0, BEGIN2 "
              "AS C1, BEGIN3 AS C2, CASE FX WHEN '借' THEN BEGIN5 ELSE 0 END AS SY_J,CASE FX WHEN "
              "'贷' THEN BEGIN5 ELSE 0 END AS SY_D FROM D6801 UNION ALL SELECT '2006-04',KM_ID,1, "
              "CASE FX WHEN '借' THEN BEGIN4 ELSE 0 END AS D1,CASE FX WHEN '贷' THEN BEGIN4 ELSE 0 "
              "END AS D2,0,0 FROM D6801;");
}

TEST(OpeningBatch, customers_and_suppliers_get_their_opening_documents) {
    EXPECT_EQ(may[6], "delete from d631;");
    EXPECT_EQ(may[7], "delete from d8102 where (c=2)or (c=3);");
    EXPECT_EQ(may[8],
              "INSERT INTO D8102 (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT "
              "'2006-05-01' as da, 2, KH_GYS_ID, BEGIN_MONEY, BEGIN_MONEY, '初' + "
              "KH_GYS_ID,'admin' FROM D1102 where (BEGIN_MONEY-BEGINys_MONEY)<>0;");
    EXPECT_EQ(may[9],
              "INSERT INTO D8102 (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT "
              "'2006-05-01' as da, 3, KH_GYS_ID, BEGINys_MONEY, BEGINys_MONEY, '预' + "
              "KH_GYS_ID,'admin' FROM D1102 where (BEGIN_MONEY-BEGINys_MONEY)<>0;");
    EXPECT_EQ(may[10], "delete from d641;");
    EXPECT_EQ(may[11], "delete from d8202 where (c=2)or (c=3);");
    EXPECT_EQ(may[12],
              "INSERT INTO D8202 (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT "
              "'2006-05-01' as da, 2, KH_GYS_ID, BEGIN_MONEY, BEGIN_MONEY, '初' + "
              "KH_GYS_ID,'admin' FROM D1103 where (BEGIN_MONEY-BEGINys_MONEY)<>0 and "
              "(KH_GYS_ID>'0');");
    EXPECT_EQ(may[13],
              "INSERT INTO D8202 (BDATE, C, KH_GYS_ID, TOLMONEY, YSMONEY, NOID, USER_ID) SELECT "
              "'2006-05-01' as da, 3, KH_GYS_ID, BEGINys_MONEY, BEGINys_MONEY, '预' + "
              "KH_GYS_ID,'admin' FROM D1103 where (BEGIN_MONEY-BEGINys_MONEY)<>0 and "
              "(KH_GYS_ID>'0');");
}

TEST(OpeningBatch, six_passes_roll_up_the_year_row_and_six_the_balances) {
    for (int pass = 14; pass < 20; ++pass) {
        EXPECT_EQ(may[pass],
                  "UPDATE D6602 SET J=T.J,D=T.D FROM (SELECT OID,SUM(J) AS J,SUM(D) AS D FROM "
                  "D6602 INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='2006-00'  AND INX "
                  "= 0 GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ ='2006-00';");
        EXPECT_EQ(may[pass + 6],
                  "UPDATE D6602 SET J=T.J,D=T.D FROM (SELECT OID,SUM(J) AS J,SUM(D) AS D FROM "
                  "D6602 INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='2006-04'  AND INX "
                  "= 1 GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ ='2006-04';");
    }
}

TEST(OpeningBatch, balances_are_netted_and_the_first_period_gets_empty_rows) {
    EXPECT_EQ(may[26], "UPDATE D6602 SET J=J-D,D=0 FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID AND "
                       "FX='借'  AND QJ ='2006-04'  AND INX = 1;");
    EXPECT_EQ(may[27], "UPDATE D6602 SET J=0,D=d-j FROM D6801 WHERE D6602.KM_ID = D6801.KM_ID AND "
                       "FX='贷'  AND QJ ='2006-04'  AND INX = 1;");
    EXPECT_EQ(may[28],
              "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT 0 as INX,'2006-05',D6801.KM_ID  FROM  D6801 "
              "left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID and (D6602.INX = 0) AND "
              "(D6602.QJ = '2006-05') where d6602.km_id is null;");
    EXPECT_EQ(may[29],
              "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT 1 as INX,'2006-05',D6801.KM_ID  FROM  D6801 "
              "left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID and (D6602.INX = 1) AND "
              "(D6602.QJ = '2006-05') where d6602.km_id is null;");
    EXPECT_EQ(may.size(), 30u);
}

TEST(OpeningBatch, a_january_start_dates_its_documents_at_the_end_of_the_year_before) {
    const auto january = statements_of(2006, 1, 1);
    EXPECT_EQ(january[1], "UPDATE D6600 SET PARAM='2006-01' WHERE ID=1;");
    EXPECT_NE(january[5].find("SELECT '2005-00',KM_ID,0"), std::string::npos);
    EXPECT_NE(january[5].find("SELECT '2005-12',KM_ID,1"), std::string::npos);
    EXPECT_NE(january[8].find("SELECT '2005-12-31' as da, 2"), std::string::npos);
    EXPECT_NE(january[28].find("'2006-01'"), std::string::npos);
}

} // namespace
} // namespace module
