// Posting and unposting a period, word for word.
#include "module/vouchers/posting_batch.h"

namespace module {
namespace {

std::vector<std::string> statements(const std::string& batch) {
    std::vector<std::string> parts;
    for (std::size_t from = 0; from < batch.size();) {
        const std::size_t end = batch.find(';', from);
        parts.push_back(batch.substr(from, end - from + 1));
        from = end + 1;
    }
    return parts;
}

const std::vector<std::string> posted_january = statements(posting_batch(Period::of(2024, 1)));

TEST(PostingBatch, every_account_gets_a_movement_row_and_a_closing_row) {
    EXPECT_EQ(posted_january[0],
              "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT 0 as INX,'2024-01',D6801.KM_ID  FROM  D6801 "
              "left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID and (D6602.INX = 0) AND "
              "(D6602.QJ = '2024-01') where d6602.km_id is null;");
    EXPECT_EQ(posted_january[1],
              "INSERT INTO D6602 (INX,QJ,KM_ID) SELECT 1 as INX,'2024-01',D6801.KM_ID  FROM  D6801 "
              "left OUTER JOIN D6602 ON D6602.KM_ID = D6801.KM_ID and (D6602.INX = 1) AND "
              "(D6602.QJ = '2024-01') where d6602.km_id is null;");
}

TEST(PostingBatch, movements_come_from_all_audited_vouchers) {
    EXPECT_EQ(posted_january[2],
              "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D FROM ( SELECT D6601A.KM_ID, SUM(D6601A.J) "
              "AS J, SUM(D6601A.D) AS D FROM D6601A INNER JOIN D6601 ON D6601A.NOID = D6601.NOID "
              "WHERE D6601.T=1 AND (D6601.PZQJ = '2024-01') GROUP BY D6601A.KM_ID, D6601.PZQJ) T "
              "WHERE D6602.INX=0 AND D6602.QJ='2024-01' AND D6602.KM_ID=T.KM_ID;");
}

TEST(PostingBatch, vouchers_on_the_profit_of_the_year_carry_forward_with_sides_swapped) {
    EXPECT_EQ(posted_january[3],
              "UPDATE D6601 SET T_SY =1 FROM (SELECT D6601A.NOID, D6601.PZQJ FROM D6601A INNER "
              "JOIN D6601 ON D6601A.NOID = D6601.NOID WHERE (D6601A.KM_ID = '3131') AND "
              "(D6601.PZQJ = '2024-01')) A WHERE D6601.NOID=A.NOID ;");
    EXPECT_EQ(
        posted_january[4],
        "UPDATE D6602 SET D6602.SY_J=T.J,D6602.SY_D=T.D FROM ( SELECT D6601A.KM_ID, "
        "SUM(D6601A.J) AS D, SUM(D6601A.D) AS J FROM D6601A INNER JOIN D6601 ON D6601A.NOID = "
        "D6601.NOID WHERE D6601.T=1 AND D6601.T_SY = 1 AND (D6601.PZQJ = '2024-01') GROUP BY "
        "D6601A.KM_ID, D6601.PZQJ) T WHERE D6602.INX=0 AND D6602.QJ='2024-01' AND "
        "D6602.KM_ID=T.KM_ID;");
}

TEST(PostingBatch, six_passes_carry_each_kind_of_figure_to_the_top) {
    for (int pass = 5; pass < 11; ++pass) {
        EXPECT_EQ(
            posted_january[pass],
            "UPDATE D6602 SET J=T.J,D=T.D FROM (SELECT OID,SUM(J) AS J,SUM(D) AS D FROM D6602 "
            "INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='2024-01'  AND INX = 0 "
            "GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ ='2024-01';");
        EXPECT_EQ(
            posted_january[pass + 6],
            "UPDATE D6602 SET SY_J=T.J,SY_D=T.D FROM (SELECT OID,SUM(SY_J) AS J,SUM(SY_D) AS D "
            "FROM D6602 INNER JOIN D6801 ON D6602.KM_ID=D6801.KM_ID WHERE QJ ='2024-01'  AND "
            "INX = 0 GROUP BY OID) T WHERE D6602.KM_ID=T.OID AND D6602.QJ ='2024-01';");
    }
}

TEST(PostingBatch, a_january_closes_on_december_of_the_year_before) {
    EXPECT_EQ(
        posted_january[17],
        "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D FROM ( SELECT D6602.KM_ID, CASE D6801.FX "
        "WHEN '借' then ISNULL(BE.J, 0.00)+D6602.J-D6602.D else 0.00 end AS J, CASE D6801.FX "
        "WHEN '借' then 0.00 else ISNULL(BE.D, 0.00)+D6602.D-D6602.J end AS D FROM D6602 INNER "
        "JOIN D6801 ON D6602.KM_ID = D6801.KM_ID LEFT OUTER JOIN (SELECT KM_ID, J, D FROM "
        "D6602 WHERE QJ = '2023-12' AND INX = 1) BE ON D6602.KM_ID = BE.KM_ID WHERE "
        "(D6602.INX = 0) AND (D6602.QJ = '2024-01')) T WHERE D6602.INX=1 AND "
        "D6602.QJ='2024-01' AND D6602.KM_ID=T.KM_ID;");
}

TEST(PostingBatch, the_audited_vouchers_are_marked_last) {
    ASSERT_EQ(posted_january.size(), 19u);
    EXPECT_EQ(posted_january[18], "update D6601 set d=1 WHERE (D6601.PZQJ = '2024-01') and "
                                  "D6601.D=0 and t=1;");
}

TEST(PostingBatch, unposting_clears_the_marks_and_the_balances_of_the_period) {
    EXPECT_EQ(unposting_batch(Period::of(2024, 3)),
              "update D6601 set d=0 WHERE (D6601.PZQJ = '2024-03') and D6601.D=1;"
              "delete from d6602 WHERE (QJ = '2024-03');");
}

} // namespace
} // namespace module
