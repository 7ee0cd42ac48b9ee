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
        return text.starts_with(heads + " WHERE D6601.PZQJ='2024-03' ORDER BY ");
    });
    EXPECT_TRUE(listed);
    EXPECT_EQ(anna->value("ConditionLabel"), " ●会计期间:2024-03");
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

// ---- red vouchers ----

TEST_F(VoucherList, a_posted_voucher_is_reversed_in_red_by_one_batch) {
    start();
    anna->row(1);
    anna->mark();
    anna->click("Act_Red");
    const std::string line = "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ("
                             "'2024-03记009','红字冲销2024-03记-8 收货款',";
    EXPECT_EQ(last_batch(),
              "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES "
              "('2024-03记009','2024-03','记','9','0','2024-03-15','anna');" +
                  line + "'1001','           -585.00','              0.00',0);" + line +
                  "'1131','              0.00','           -585.00',1);"
                  "INSERT INTO D6601B (NOID, D6820ID, J, D) SELECT '2024-03记009',D6820ID,-J,-D "
                  "FROM D6601B WHERE NOID='2024-03记008';");
    EXPECT_EQ(data.executed().size(), 1u);
    EXPECT_EQ(data.executed().back().log.key, "2024-03记009");
    EXPECT_EQ(data.executed().back().log.operation, "Red");
    anna->expect_active("TF6661_1");
}

TEST_F(VoucherList, what_is_not_posted_is_not_reversed) {
    start();
    anna->row(0);
    anna->click("Act_Red");
    anna->expect_message(
        "“2024-03 记-7”还没有登帐,不必红字冲销!请直接修改或删除它,已审核的先反审核。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherList, no_red_voucher_goes_before_its_original_or_into_books_not_set_up) {
    const std::pair<const char*, const char*> periods[] = {
        // open period, refusal
        {"", "读取会计期间错误!请确认是否进行初始建帐!"},
        {"2024-02", "“2024-03 记-8”晚于当前会计期间 2024-02,不能在本期冲销!"}};
    start();
    anna->row(1);
    for (const auto& [period, refusal] : periods) {
        answer_current_period(data, period);
        anna->click("Act_Red");
        anna->expect_message(refusal);
        EXPECT_TRUE(data.executed().empty());
    }
}

TEST_F(VoucherList, a_second_red_voucher_is_made_only_when_meant) {
    answer_red_vouchers(data, {{"2024-03", "记", "9"}});
    const std::string question = "“2024-03 记-8”已由红字凭证 2024-03记-9 冲销,还要再冲销一次吗?";
    start();
    anna->row(1);
    anna->mark();
    anna->answer_next(false);
    anna->click("Act_Red");
    anna->expect_question(question);
    EXPECT_TRUE(data.executed().empty());
    const auto sent = anna->sent_texts();
    EXPECT_EQ(sent.back(),
              "SELECT D6601.PZQJ,D6601.PZZ,D6601.PZZ_H FROM D6601A INNER JOIN D6601 ON "
              "D6601A.NOID=D6601.NOID WHERE D6601A.KM_ID='1001' AND D6601A.NOID>='2024-03' AND "
              "LEFT(D6601A.ZY,15)='红字冲销2024-03记-8 ' ORDER BY D6601.NOID");
    anna->answer_next(true);
    anna->click("Act_Red");
    anna->expect_question(question);
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_F(VoucherList, reversing_needs_the_right_to_add_and_is_no_part_of_the_audit) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "add"; };
    start(std::move(options));
    anna->row(1);
    anna->cannot_click("Act_Red");
    anna->forget_messages();
    EXPECT_TRUE(data.executed().empty());
    anna->open(662);
    EXPECT_FALSE(anna->visible("Act_Red"));
}

TEST_F(VoucherList, strict_books_point_to_the_red_voucher) {
    answer_mode(data, "strict");
    start();
    anna->row(1);
    for (const char* action : {"Act_Delete", "Act_Modify"}) {
        anna->on("TF6661").click(action);
        anna->expect_message(
            "“2024-03 记-8”已登帐，本帐套按严格方式管理，不能修改或删除；如需更正，"
            "请用红字凭证!");
    }
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherList, a_template_the_database_refuses_is_not_announced) {
    start();
    data.refuse_next_batch("没有空间!");
    anna->click("Action1");
    anna->expect_message("没有空间!");
}

} // namespace
} // namespace tests
