// Vouchers on real books: numbers, changes, copies, templates, audit.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class VoucherLedger : public LedgerDesk {};

TEST_F(VoucherLedger, numbers_count_on_from_the_highest_even_after_one_was_deleted) {
    new_voucher();
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    for (int i = 0; i < 7; ++i) save_voucher("1001", "1002", "100");
    EXPECT_EQ(anna.value("PZZ_H"), "8");
    anna.close();
    anna.row(2);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.forget_messages();
    EXPECT_EQ(anna.row_count(), 6);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A WHERE NOID='2024-03记003'"), "0");
    anna.click("Act_Add");
    EXPECT_EQ(anna.value("PZZ_H"), "8");
}

TEST_F(VoucherLedger, an_account_is_known_by_its_whole_name_and_by_digits_of_any_width) {
    new_voucher();
    anna.cell(0, "KM_ID", "现金"); // also part of other accounts' names
    EXPECT_EQ(anna.rows()[0].at("KM_ID"), "1001");
    anna.cell(1, "KM_ID", "１００２");
    EXPECT_EQ(anna.rows()[1].at("KM_ID"), "1002");
    EXPECT_EQ(anna.rows()[1].at("KM_NAME_NEW"), "银行存款");
    anna.cannot_cell(2, "KM_ID", "２１７１");
    anna.expect_message("科目 2171 应交税金 还有下级科目,不能直接记帐!请录入它的末级科目。");
}

TEST_F(VoucherLedger, a_number_taken_by_hand_is_stored_unpadded_under_a_padded_key) {
    new_voucher();
    anna.set("PZZ_H", "12");
    save_voucher("1001", "1002", "100");
    EXPECT_EQ(books.table("SELECT NOID, PZZ_H FROM D6601"),
              (Rows{{{"NOID", "2024-03记012"}, {"PZZ_H", "12"}}}));
    EXPECT_EQ(anna.value("PZZ_H"), "13");
    anna.set("PZZ_H", "12");
    save_voucher("1001", "1002", "100");
    anna.expect_message("凭证:记-12已存在!");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601"), "1");
}

TEST_F(VoucherLedger, a_line_of_a_summary_alone_is_kept_as_a_remark) {
    new_voucher();
    anna.line(2, {{"ZY", "见合同 12 号"}});
    save_voucher("1001", "1002", "100");
    EXPECT_EQ(books.value("SELECT ZY FROM D6601A WHERE KM_ID='' AND J=0 AND D=0 AND INX=2"),
              "见合同 12 号");
}

TEST_F(VoucherLedger, a_changed_voucher_keeps_its_number_and_only_its_new_lines) {
    new_voucher();
    anna.line(2, {{"ZY", "手续费"}, {"KM_ID", "1131"}, {"J", "5"}});
    anna.line(3, {{"ZY", "手续费"}, {"KM_ID", "1002"}, {"D", "5"}});
    save_voucher("1001", "1002", "100");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "4");
    anna.close();
    anna.click("Act_Modify");
    anna.row(3);
    anna.click("Act_DeleteLine");
    anna.row(2);
    anna.click("Act_DeleteLine");
    anna.cell(0, "J", "70");
    anna.cell(1, "D", "70");
    anna.click("Act_Save");
    anna.expect_active("TF6661");
    EXPECT_EQ(books.table("SELECT NOID, KM_ID, J, D, INX FROM D6601A ORDER BY INX"),
              (Rows{{{"NOID", "2024-03记001"},
                     {"KM_ID", "1001"},
                     {"J", "70.00"},
                     {"D", "0.00"},
                     {"INX", "0"}},
                    {{"NOID", "2024-03记001"},
                     {"KM_ID", "1002"},
                     {"J", "0.00"},
                     {"D", "70.00"},
                     {"INX", "1"}}}));
    EXPECT_EQ(anna.rows("DBGridEhLine")[0].at("J"), "70.00");
}

TEST_F(VoucherLedger, a_changed_number_moves_the_voucher) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    anna.close();
    anna.click("Act_Modify");
    anna.set("PZZ_H", "5");
    anna.click("Act_Save");
    EXPECT_EQ(books.table("SELECT NOID FROM D6601"), (Rows{{{"NOID", "2024-03记005"}}}));
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A WHERE NOID='2024-03记005'"), "2");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "2");
    EXPECT_EQ(anna.rows()[0].at("PZZ_H"), "5");
}

TEST_F(VoucherLedger, templates_are_numbered_from_ten_thousand) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    anna.close();
    anna.click("Action1");
    anna.expect_message("已将当前凭证加入到模板,组别为:10000");
    anna.click("Action1");
    anna.expect_message("已将当前凭证加入到模板,组别为:10001");
    EXPECT_EQ(
        books.table("SELECT NOID, KM_ID, J, D, INX FROM D6601M WHERE NOID=10001 ORDER BY INX"),
        (Rows{
            {{"NOID", "10001"}, {"KM_ID", "1001"}, {"J", "100.00"}, {"D", "0.00"}, {"INX", "0"}},
            {{"NOID", "10001"}, {"KM_ID", "1002"}, {"J", "0.00"}, {"D", "100.00"}, {"INX", "1"}}}));
}

TEST_F(VoucherLedger, an_audited_voucher_is_only_shown_until_the_audit_is_taken_back) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    anna.close();
    EXPECT_EQ(anna.colors(0).at("PZZ").at("background"), 0xFFFF80);
    audit_all();
    anna.on("TF6661").click("Act_Refresh");
    EXPECT_TRUE(anna.colors(0).is_null());
    anna.click("Act_Modify");
    EXPECT_NE(anna.next_message(), "");
    EXPECT_EQ(anna.value("EDATE"), "2024-03-15");
    EXPECT_NE(anna.cannot_cell(0, "J", "1"), "");
    anna.close();
    anna.open(662);
    anna.click("Act_UnAudit");
    anna.forget_messages();
    EXPECT_EQ(books.value("SELECT T FROM D6601"), "0");
}

TEST_F(VoucherLedger, numbers_are_counted_for_each_word) {
    new_voucher();
    save_voucher("1001", "1002", "100");
    books.execute("UPDATE D6600 SET PARAM='2' WHERE ID=3");
    anna.close();
    anna.click("Act_Add");
    EXPECT_EQ(anna.value("PZZ"), "收");
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    save_voucher("1001", "1002", "100");
    EXPECT_EQ(anna.value("PZZ_H"), "2");
    anna.set("PZZ", "转");
    EXPECT_EQ(anna.value("PZZ_H"), "1");
}

TEST_F(VoucherLedger, cash_accounts_are_known_to_take_part_in_the_allocation) {
    new_voucher();
    anna.line(0, {{"ZY", "往来"}, {"KM_ID", "1131"}, {"J", "100"}});
    anna.click("Act_xj");
    anna.expect_message("当前凭证没有现金流量核算的科目存在!不需要进行现金流量的分配!");
    anna.line(1, {{"ZY", "往来"}, {"KM_ID", "1001"}, {"D", "100"}});
    anna.click("Act_xj");
    anna.expect_active("TF6661_5");
}

} // namespace
} // namespace tests
