// The voucher list and the audit view.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class VoucherList : public VoucherDesk {};

const std::string heads = " SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER ON "
                          "D6601.USER_ID = SYS_USER.USER_ID ";

TEST_F(VoucherList, shows_the_vouchers_of_the_current_period_at_once) {
    start();
    EXPECT_EQ(anna->row_count(), 2);
    const auto sent = anna->sent_texts();
    const bool listed = std::any_of(sent.begin(), sent.end(), [](const std::string& text) {
        return text.starts_with(heads) &&
               text.find("(D6601.BDATE>='2024-03-01') AND "
                         "(D6601.BDATE<'2024-04-01')") != std::string::npos;
    });
    EXPECT_TRUE(listed);
}

TEST_F(VoucherList, shows_the_lines_of_the_selected_voucher) {
    start();
    anna->mark();
    anna->row(1);
    EXPECT_EQ(anna->row_count("DBGridEhLine"), 2);
    EXPECT_EQ(anna->rows("DBGridEhLine")[0].at("J"), "585.00");
    EXPECT_EQ(anna->footer("D", "DBGridEhLine"), "585.00");
    EXPECT_EQ(anna->sent_texts().back(),
              "SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER JOIN V6801 ON "
              "D6601A.KM_ID = V6801.KM_ID  WHERE (NOID ='2024-03记008') ORDER BY INX");
}

TEST_F(VoucherList, rows_not_audited_are_coloured) {
    start();
    EXPECT_EQ(anna->colors(0).at("PZZ").at("background"), 0xFFFF80);
    EXPECT_TRUE(anna->colors(1).is_null());
}

TEST_F(VoucherList, the_caption_tells_entry_from_audit) {
    start();
    EXPECT_EQ(anna->caption(), "录凭证");
    EXPECT_TRUE(anna->visible("Act_Add"));
    EXPECT_FALSE(anna->visible("Act_Audit"));
    anna->open(662);
    EXPECT_EQ(anna->caption(), "凭证审核");
    EXPECT_FALSE(anna->visible("Act_Add"));
    EXPECT_TRUE(anna->visible("Act_Audit"));
}

TEST_F(VoucherList, a_second_pick_opens_a_second_list) {
    start();
    anna->open(661);
    const auto forms = anna->request({{"op", "forms"}}).at("forms");
    EXPECT_EQ(forms.size(), 2u);
}

TEST_F(VoucherList, a_voucher_is_deleted_after_a_question) {
    start();
    anna->row(0);
    anna->answer_next(true);
    anna->click("Act_Delete");
    EXPECT_NE(anna->next_message().find("记"), std::string::npos);
    EXPECT_EQ(last_batch(), "delete from d6601 Where NOID='2024-03记007'");
}

TEST_F(VoucherList, a_posted_voucher_is_not_deleted) {
    start();
    anna->row(1);
    anna->click("Act_Delete");
    EXPECT_NE(anna->next_message(), "");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherList, the_selected_voucher_becomes_a_template) {
    start();
    anna->row(1);
    anna->click("Action1");
    EXPECT_EQ(last_batch(), "INSERT INTO D6601M SELECT '10003',ZY,KM_ID,J,D,INX FROM D6601A WHERE "
                            "NOID='2024-03记008'");
    anna->expect_message("已将当前凭证加入到模板,组别为:10003");
}

TEST_F(VoucherList, a_template_the_database_refuses_is_not_announced) {
    start();
    data.refuse_next_batch("没有空间!");
    anna->click("Action1");
    anna->expect_message("没有空间!");
}

} // namespace
} // namespace tests
