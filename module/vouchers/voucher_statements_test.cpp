// The statements of a voucher, word for word.
#include "module/vouchers/voucher_statements.h"

namespace module {
namespace {

TEST(VoucherStatements, a_head_keeps_its_number_unpadded_while_the_key_pads_it) {
    const VoucherHead head{"2024-03记005", "2024-03", "记", "5", "2", "2024-03-15", "admin"};
    EXPECT_EQ(insert_voucher_head(head),
              "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES "
              "('2024-03记005','2024-03','记','5','2','2024-03-15','admin');");
}

TEST(VoucherStatements, booked_lines_are_numbered_from_zero_without_gaps) {
    const std::vector<VoucherLine> lines = {{"收货款", "1002", *Amount::parse("1234.5"), {}},
                                            {"", "", *Amount::parse("7"), {}},
                                            {"收货款", "1131", {}, *Amount::parse("1234.5")}};
    EXPECT_EQ(
        insert_voucher_lines("2024-03记005", lines),
        "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记005','收货款','1002',"
        "'           1234.50','              0.00',0);"
        "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记005','收货款','1131',"
        "'              0.00','           1234.50',1);");
}

TEST(VoucherStatements, a_remark_is_saved_without_account_and_amount) {
    EXPECT_EQ(insert_voucher_lines("K", {{"见合同", "", {}, {}}}),
              "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('K','见合同','',"
              "'              0.00','              0.00',0);");
}

TEST(VoucherStatements, quotes_and_semicolons_in_a_summary_stay_text) {
    const std::vector<VoucherLine> lines = {{"O'Brien; delete", "1002", *Amount::parse("1"), {}}};
    EXPECT_NE(insert_voucher_lines("K", lines).find("'O''Brien; delete'"), std::string::npos);
}

TEST(VoucherStatements, a_voucher_is_read_by_its_key) {
    EXPECT_EQ(select_voucher_head("2024-03记005"),
              " SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER ON "
              "D6601.USER_ID = SYS_USER.USER_ID  where d6601.noid='2024-03记005'");
    EXPECT_EQ(select_voucher_lines("2024-03记005"),
              "SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER JOIN V6801 ON "
              "D6601A.KM_ID = V6801.KM_ID  WHERE (NOID ='2024-03记005') ORDER BY INX");
    EXPECT_EQ(delete_voucher("2024-03记005"), "delete from D6601 WHERE NOID='2024-03记005';");
}

} // namespace
} // namespace module
