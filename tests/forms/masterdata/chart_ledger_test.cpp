// The chart, words and summaries maintained on real books.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class ChartLedger : public LedgerDesk {};

TEST_F(ChartLedger, a_new_sub_account_takes_entries_and_its_parent_no_longer_does) {
    anna.open(681);
    anna.node("1002 银行存款");
    anna.click("Act_CopyAdd");
    anna.set("t0", "100201");
    anna.set("t1", "工行园区支行");
    anna.click("btn_ok");
    anna.forget_messages();
    EXPECT_EQ(books.table("SELECT KM_NAME2, FX, OID, PYM, KM_FL, KM_J, KM_K FROM D6801 WHERE "
                          "KM_ID='100201'"),
              (Rows{{{"KM_NAME2", "银行存款-工行园区支行"},
                     {"FX", "借"},
                     {"OID", "1002"},
                     {"PYM", "GHYQZH"},
                     {"KM_FL", "1"},
                     {"KM_J", "2"},
                     {"KM_K", "1"}}}));
    new_voucher();
    anna.cannot_cell(0, "KM_ID", "1002");
    anna.expect_message("科目 1002 银行存款 还有下级科目,不能直接记帐!请录入它的末级科目。");
    anna.cell(0, "KM_ID", "园区");
    EXPECT_EQ(anna.rows()[0].at("KM_ID"), "100201");
    anna.lookup_cell(1, "KM_ID");
    anna.set("wl_id", "1002");
    EXPECT_EQ(anna.row_count(), 1); // the parent is not offered
    anna.click("btn_Cancel");
}

TEST_F(ChartLedger, an_account_with_lines_is_neither_deleted_nor_divided) {
    new_voucher();
    save_voucher("1001", "1131", "100");
    anna.open(681);
    anna.node("1001 现金");
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("已有凭证使用该科目"), std::string::npos);
    anna.click("Act_CopyAdd");
    EXPECT_NE(anna.next_message().find("不能再增加下级科目"), std::string::npos);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6801 WHERE KM_ID='1001'"), "1");
}

TEST_F(ChartLedger, one_word_is_the_default) {
    anna.open(682);
    const int before = anna.row_count();
    for (const char* word : {"甲", "乙"}) {
        anna.click("Act_Add");
        anna.set("Edit1", word);
        anna.set("PZZ_PRINT", "记帐凭证");
        anna.check("T");
        anna.click("btn_ok");
        anna.forget_messages();
        if (anna.active() == "TF6682_1") anna.click("btn_Cancel");
    }
    EXPECT_EQ(anna.row_count(), before + 2);
    EXPECT_EQ(books.table("SELECT PZZ, PYM FROM D6802 WHERE T=1"),
              (Rows{{{"PZZ", "乙"}, {"PYM", "JZPZ"}}}));
}

TEST_F(ChartLedger, a_summary_is_offered_to_vouchers_at_once) {
    anna.open(683);
    anna.click("Act_Add");
    anna.set("ZY", "付'七'月房租");
    anna.click("btn_ok");
    anna.forget_messages();
    if (anna.active() == "TF6683_1") anna.click("btn_Cancel");
    new_voucher();
    anna.lookup_cell(0, "ZY");
    anna.set("wl_name", "'七'");
    anna.click("btn_ok");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "付'七'月房租");
}

} // namespace
} // namespace tests
