// Saving one voucher: the checks in their order, the batch to the letter.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class VoucherSaving : public VoucherDesk {};

const std::string line_0 = "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES (";
const std::string hundred = "'            100.00'";
const std::string nothing = "'              0.00'";

std::string saved_lines(const std::string& key) {
    return line_0 + "'" + key + "','收货款','1001'," + hundred + "," + nothing + ",0);" + line_0 +
           "'" + key + "','收货款','1131'," + nothing + "," + hundred + ",1);";
}

std::string saved_head(const std::string& key, const std::string& number) {
    return "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES ('" + key +
           "','2024-03','记','" + number + "','0','2024-03-15','anna');";
}

TEST_F(VoucherSaving, the_key_pads_the_number_and_the_number_itself_is_not_padded) {
    const std::pair<const char*, const char*> numbers[] = {// typed, key
                                                           {"5", "2024-03记005"},
                                                           {"12", "2024-03记012"},
                                                           {"345", "2024-03记345"},
                                                           {"1000", "2024-03记1000"}};
    for (const auto& [number, key] : numbers) {
        anna.reset();
        new_voucher();
        anna->set("PZZ_H", number);
        type_balanced_lines();
        anna->click("Act_Save");
        EXPECT_EQ(last_batch(), saved_head(key, number) + saved_lines(key));
        EXPECT_EQ(data.executed().back().log.function, "661");
        EXPECT_EQ(data.executed().back().log.key, key);
        EXPECT_EQ(data.executed().back().log.operation, "Add");
    }
}

TEST_F(VoucherSaving, an_incomplete_voucher_is_refused_and_nothing_is_written) {
    using Lines = std::vector<std::vector<std::pair<std::string, std::string>>>;
    struct Attempt {
        Lines lines;
        const char* verdict;
    };
    const std::vector<std::pair<std::string, std::string>> debit = {
        {"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "100"}};
    const Attempt attempts[] = {
        {{debit, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"D", "99.99"}}}, "借贷不平衡!"},
        {{debit, {{"KM_ID", "1131"}, {"D", "100"}}}, "摘要不能为空!"},
        {{debit, {{"ZY", "收货款"}, {"KM_ID", "1131"}}}, "请填写借或贷的金额!"},
        {{debit, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"J", "100"}, {"D", "-100"}}},
         "请填写借或贷的金额!"},
        {{debit}, "必须有两行以上完整地填写科目，及借或贷金额!"},
        {{debit, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"D", "100"}}, {{"J", "5"}}}, "借贷不平衡!"},
    };
    for (const Attempt& attempt : attempts) {
        anna.reset();
        new_voucher();
        for (std::size_t row = 0; row < attempt.lines.size(); ++row) {
            anna->line(static_cast<int>(row), attempt.lines[row]);
        }
        anna->click("Act_Save");
        anna->expect_message(attempt.verdict);
        anna->expect_active("TF6661_1");
        EXPECT_TRUE(data.executed().empty()) << attempt.verdict;
        anna->answer_next(true);
    }
}

TEST_F(VoucherSaving, lines_without_summary_and_account_are_left_out) {
    new_voucher();
    type_balanced_lines();
    anna->cell(2, "J", "7");
    anna->cell(3, "D", "7");
    anna->click("Act_Save");
    EXPECT_EQ(last_batch(), saved_head("2024-03记009", "9") + saved_lines("2024-03记009"));
}

TEST_F(VoucherSaving, a_summary_alone_is_saved_as_a_remark) {
    new_voucher();
    type_balanced_lines();
    anna->cell(2, "ZY", "运费");
    anna->click("Act_Save");
    EXPECT_EQ(last_batch(),
              saved_head("2024-03记009", "9") + saved_lines("2024-03记009") +
                  "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记009','运费',"
                  "'','              0.00','              0.00',2);");
}

TEST_F(VoucherSaving, a_summary_that_enter_repeated_is_no_remark) {
    new_voucher();
    type_balanced_lines();
    anna->cell(2, "ZY", "");
    anna->key("Enter", "DBGridEh");
    EXPECT_EQ(anna->rows()[2].at("ZY"), anna->rows()[1].at("ZY"));
    anna->click("Act_Save");
    EXPECT_EQ(last_batch(), saved_head("2024-03记009", "9") + saved_lines("2024-03记009"));
}

TEST_F(VoucherSaving, a_number_in_use_is_refused) {
    data.answer("SELECT NOID FROM D6601 WHERE", {"NOID text"}, {{"2024-03记005"}});
    new_voucher();
    anna->set("PZZ_H", "5");
    type_balanced_lines();
    anna->mark();
    anna->click("Act_Save");
    anna->expect_message("凭证:记-5已存在!");
    EXPECT_TRUE(data.executed().empty());
    EXPECT_EQ(anna->sent_texts().back(), "SELECT NOID FROM D6601 WHERE (NOID='2024-03记005')");
    EXPECT_EQ(anna->rows()[0].at("ZY"), "收货款");
}

TEST_F(VoucherSaving, books_that_were_not_set_up_take_no_voucher) {
    answer_current_period(data, "");
    new_voucher();
    type_balanced_lines();
    anna->click("Act_Save");
    anna->expect_message("读取会计期间错误!请确认是否进行初始建帐!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherSaving, a_period_closed_meanwhile_takes_no_voucher) {
    new_voucher();
    type_balanced_lines();
    answer_current_period(data, "2024-04");
    anna->click("Act_Save");
    anna->expect_message("会计期间已由 2024-03 变为 2024-04!请退出后重新打开凭证,再保存。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherSaving, a_date_outside_the_period_is_pointed_out_and_saved_as_typed) {
    const std::pair<const char*, bool> dates[] = {
        {"2024-02-29", true}, {"2024-03-01", false}, {"2024-03-31", false}, {"2024-04-01", true}};
    for (const auto& [date, outside] : dates) {
        anna.reset();
        new_voucher();
        anna->set("BDATE", date);
        EXPECT_EQ(anna->visible("DateHint"), outside) << date;
        type_balanced_lines();
        anna->click("Act_Save");
        ASSERT_FALSE(data.executed().empty()) << date;
        const std::string& batch = data.executed().back().batch;
        EXPECT_NE(batch.find("'" + std::string(date) + "'"), std::string::npos) << batch;
    }
}

TEST_F(VoucherSaving, after_adding_the_form_is_ready_for_the_next_voucher) {
    new_voucher();
    type_balanced_lines();
    anna->click("Act_Save");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->row_count(), 6);
    EXPECT_EQ(anna->rows()[0].at("ZY"), "");
    EXPECT_FALSE(anna->enabled("Act_Save"));
}

TEST_F(VoucherSaving, what_the_database_refuses_stays_on_the_screen) {
    new_voucher();
    type_balanced_lines();
    data.refuse_next_batch("凭证号已被他人使用!");
    anna->click("Act_Save");
    anna->expect_message("凭证号已被他人使用!");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->rows()[0].at("ZY"), "收货款");
    EXPECT_TRUE(anna->enabled("Act_Save"));
}

TEST_F(VoucherSaving, a_change_replaces_the_head_and_keeps_its_number) {
    data.answer("SELECT NOID FROM D6601 WHERE", {"NOID text"}, {{"2024-03记007"}});
    start();
    anna->row(0);
    anna->click("Act_Modify");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->value("PZZ_H"), "7");
    EXPECT_EQ(anna->value("PZZ_Z"), "2");
    EXPECT_EQ(anna->value("BDATE"), "2024-03-05");
    anna->cell(0, "J", "600");
    anna->cell(1, "D", "600");
    anna->mark();
    anna->click("Act_Save");
    const std::string six_hundred = "'            600.00'";
    EXPECT_EQ(
        last_batch(),
        "delete from D6601 WHERE NOID='2024-03记007';INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, "
        "PZZ_Z, BDATE, USER_ID) VALUES ('2024-03记007','2024-03','记','7','2','2024-03-05',"
        "'anna');" +
            line_0 + "'2024-03记007','收货款','1001'," + six_hundred + "," + nothing + ",0);" +
            line_0 + "'2024-03记007','收货款','1131'," + nothing + "," + six_hundred + ",1);");
    EXPECT_EQ(data.executed().back().log.operation, "Edit");
    bool asked = false;
    for (const std::string& text : anna->sent_texts()) {
        asked = asked || text == "SELECT NOID FROM D6601 WHERE (NOID='2024-03记007')or  "
                                 "(NOID='2024-03记007')";
    }
    EXPECT_TRUE(asked);
    anna->expect_active("TF6661");
}

TEST_F(VoucherSaving, a_changed_number_that_another_voucher_has_is_refused) {
    data.answer("SELECT NOID FROM D6601 WHERE", {"NOID text"},
                {{"2024-03记007"}, {"2024-03记006"}});
    start();
    anna->row(0);
    anna->click("Act_Modify");
    anna->set("PZZ_H", "6");
    anna->click("Act_Save");
    anna->expect_message("凭证:记-6已存在!");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherSaving, what_others_changed_meanwhile_is_not_overwritten) {
    start();
    anna->row(0);
    anna->click("Act_Modify");
    anna->cell(0, "ZY", "收贷款");
    data.answer("SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER JOIN V6801 ON "
                "D6601A.KM_ID = V6801.KM_ID  WHERE (NOID ='2024-03记007'",
                {"NOID text", "ZY text", "KM_ID text", "J money", "D money", "INX int",
                 "KM_NAME_NEW text", "KM_K bit"},
                {});
    anna->click("Act_Save");
    anna->expect_message(
        "凭证在打开之后已被他人修改、审核或登帐,不能保存!请退出后重新打开该凭证。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherSaving, what_others_deleted_meanwhile_does_not_come_back) {
    start();
    anna->row(0);
    anna->click("Act_Modify");
    anna->cell(0, "ZY", "收贷款");
    data.answer("SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER ON "
                "D6601.USER_ID = SYS_USER.USER_ID  where d6601.noid='2024-03记007'",
                {"NOID text"}, {});
    data.answer("SELECT NOID FROM D6601 WHERE", {"NOID text"}, {});
    anna->click("Act_Save");
    anna->expect_message("凭证已被他人删除,不能保存!请退出后刷新凭证列表。");
    EXPECT_TRUE(data.executed().empty());
}

TEST_F(VoucherSaving, an_audited_voucher_opens_read_only) {
    start();
    anna->row(1);
    anna->click("Act_Modify");
    anna->forget_messages();
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->value("EDATE"), "2024-03-07");
    EXPECT_NE(anna->cannot_cell(0, "J", "600"), "");
    anna->key("Space", "DBGridEh");
    EXPECT_EQ(anna->rows()[0].at("J"), "585.00");
}

TEST_F(VoucherSaving, a_copy_is_a_new_voucher_with_the_same_lines) {
    start();
    anna->row(0);
    anna->click("Act_CopyAdd");
    EXPECT_EQ(anna->value("PZZ_H"), "9");
    EXPECT_EQ(anna->value("BDATE"), "2024-03-15");
    EXPECT_EQ(anna->rows()[0].at("J"), "585.00");
    anna->set("PZZ_Z", "1");
    anna->click("Act_Save");
    EXPECT_EQ(data.executed().back().log.operation, "CopyAdd");
    EXPECT_EQ(
        last_batch().find("INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) "
                          "VALUES ('2024-03记009','2024-03','记','9','1','2024-03-15','anna');"),
        0u);
}

TEST_F(VoucherSaving, what_is_typed_never_changes_the_statement) {
    const std::string summary = "O'Brien'); delete from D6601;--";
    new_voucher();
    anna->line(0, {{"ZY", summary}, {"KM_ID", "1001"}, {"J", "100"}});
    anna->line(1, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"D", "100"}});
    anna->click("Act_Save");
    EXPECT_NE(last_batch().find(",'O''Brien''); delete from D6601;--','1001',"), std::string::npos);
}

TEST_F(VoucherSaving, the_saved_lines_become_a_template) {
    start();
    anna->row(0);
    anna->click("Act_Modify");
    anna->click("N2");
    EXPECT_EQ(last_batch(), "INSERT INTO D6601M SELECT '10003',ZY,KM_ID,J,D,INX FROM D6601A WHERE "
                            "NOID='2024-03记007'");
    EXPECT_EQ(data.executed().back().log.key, "模板2024-03记007");
    EXPECT_EQ(data.executed().back().log.operation, "pass");
    anna->expect_message("已将当前凭证加入到模板,组别为:10003");
}

} // namespace
} // namespace tests
