// Receipts and payments on one account: what is offered, spread, refused, kept. Both sides.
#include "host/forms/form.h"
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

class SingleAccount : public BothSides {};
INSTANTIATE_TEST_SUITE_P(Trade, SingleAccount, testing::Values(&receipts, &payments),
                         name_of_side);

const std::string all_open = "3600.00 46800.00 27261.00 -3510.00 52650.00 1280.00";

// ---- opening ----

TEST_P(SingleAccount, a_new_document_has_a_number_today_the_cash_account_and_settles) {
    new_document("");
    EXPECT_EQ(anna.value("Edit1"), side.number);
    EXPECT_EQ(anna.value("BDATE"), "2024-03-15");
    EXPECT_EQ(anna.value("JY_ID"), "1");
    EXPECT_EQ(anna.value("JY_NAME"), "现金");
    EXPECT_EQ(anna.value("CB1"), side.code == 631 ? "应收帐款" : "应付帐款");
    EXPECT_EQ(anna.value("MONEY"), "");
    EXPECT_EQ(anna.value("YH"), "");
    EXPECT_EQ(anna.row_count(), 0);
}

TEST_P(SingleAccount, the_open_items_of_the_party_stand_oldest_first_returns_negative) {
    new_document();
    std::string items;
    for (const Row& row : anna.rows())
        items += row.at("C") + " " + row.at("NOID") + " " + row.at("TOLMONEY") + ";";
    EXPECT_EQ(items, "2 初K1 3600.00;0 S1 46800.00;0 S2 28431.00;6 T1 -3510.00;0 S3 52650.00;"
                     "5 Q1 1280.00;");
    EXPECT_EQ(shares(), all_open); // as much as is open
    EXPECT_EQ(anna.value("KG_NAME"), "甲");
    EXPECT_EQ(anna.footer("MONEY"), "128081.00");
}

TEST_P(SingleAccount, what_stands_between_the_two_is_told) {
    new_document();
    const bool receipt = side.code == 631;
    EXPECT_EQ(anna.value("BalanceLine"),
              receipt ? "客户往来款项信息 [预收:500.00 应收:128081.00 实际应收:127581.00]"
                      : "供应商往来款项信息 [预付:500.00 应付:128081.00 实际应付:127581.00]");
}

TEST_P(SingleAccount, an_unknown_party_is_refused_with_the_focus_back) {
    new_document("");
    anna.set("KH_GYS_ID", "XX");
    anna.refused({{"op", "focus"}, {"control", "PH"}});
    anna.expect_message(side.code == 631 ? "客户信息不存在!" : "供应商信息不存在!");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.set("KH_GYS_ID", "K2");
    EXPECT_EQ(anna.row_count(), 0); // read when it is left
    anna.focus("PH");
    EXPECT_EQ(shares(), "1000.00 2000.00");
}

TEST_P(SingleAccount, only_the_amount_written_off_is_typed) {
    new_document();
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid["columns"])
        EXPECT_EQ(column["readOnly"].get<bool>(), column["field"] != "MONEY") << column;
    anna.cell(1, "MONEY", "100.456");
    EXPECT_EQ(anna.rows()[1].at("MONEY"), "100.46");
}

TEST_P(SingleAccount, another_party_brings_its_own_items) {
    new_document();
    anna.set("KH_GYS_ID", "K2");
    anna.focus("PH");
    EXPECT_EQ(shares(), "1000.00 2000.00");
    anna.mark();
    anna.focus("KH_GYS_ID");
    anna.focus("PH");
    EXPECT_TRUE(anna.sent_texts().empty()); // nothing changed, nothing is read
}

// ---- number ----

TEST_P(SingleAccount, an_empty_or_used_number_gives_way_silently_to_a_fresh_one) {
    new_document();
    pay("100");
    anna.set("Edit1", "A1");
    save();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM " + side.heads + " WHERE NOID='A1'"), "1");
    anna.click("Act_Add");
    const std::string drawn = anna.value("Edit1");
    for (const char* typed : {"A1", "", "a1 "}) {
        anna.set("Edit1", typed);
        anna.focus("PH");
        EXPECT_EQ(anna.value("Edit1").substr(0, 9), drawn.substr(0, 9)) << typed;
        EXPECT_NE(anna.value("Edit1"), drawn) << typed;
    }
    anna.set("Edit1", "A2");
    anna.focus("PH");
    EXPECT_EQ(anna.value("Edit1"), "A2");
}

// ---- spreading ----

TEST_P(SingleAccount, money_and_discount_are_spread_oldest_first) {
    new_document();
    pay("80000", "120"); // 80120 = 3600 + 46800 + 27261 - 3510 + 5969
    EXPECT_EQ(shares(), "3600.00 46800.00 27261.00 -3510.00 5969.00 0.00");
    EXPECT_EQ(anna.value("Difference"), "误差: 0.00");
    EXPECT_EQ(anna.value("ShareTotal"), "80120.00");
    EXPECT_EQ(anna.value("LeftOpen"), "47961.00"); // 128081 - 80120
    EXPECT_TRUE(anna.enabled("Act_Save"));
}

TEST_P(SingleAccount, a_return_gets_nothing_once_the_money_is_used_up) {
    new_document();
    pay("3600");
    EXPECT_EQ(shares(), "3600.00 0.00 0.00 0.00 0.00 0.00");
}

TEST_P(SingleAccount, money_beyond_what_is_open_stays_as_a_difference) {
    new_document("K2");
    pay("3500");
    EXPECT_EQ(shares(), "1000.00 2000.00");
    EXPECT_EQ(anna.value("Difference"), "误差: 500.00");
    expect_not_saved("本单累计" + side.word + "款必须与表格中明细累计" + side.word + "款一致");
}

TEST_P(SingleAccount, the_discount_alone_is_spread_too) {
    new_document("K2");
    anna.set("YH", "30");
    EXPECT_EQ(shares(), "30.00 0.00");
}

TEST_P(SingleAccount, lines_changed_by_hand_can_be_spread_anew_or_cleared) {
    new_document("K2");
    pay("1500");
    anna.cell(0, "MONEY", "0");
    anna.cell(1, "MONEY", "1500");
    EXPECT_EQ(shares(), "0.00 1500.00");
    anna.key("F7");
    EXPECT_EQ(shares(), "1000.00 500.00");
    anna.key("F8");
    EXPECT_EQ(shares(), "0.00 0.00");
    EXPECT_EQ(anna.value("Difference"), "误差: 1500.00");
}

TEST_P(SingleAccount, more_than_is_open_is_shown_in_red) {
    new_document();
    EXPECT_TRUE(anna.colors(0).is_null() || !anna.colors(0).contains("MONEY"));
    anna.cell(0, "MONEY", "3600.01");
    EXPECT_EQ(anna.colors(0)["MONEY"]["font"], host::clRed);
    anna.cell(0, "MONEY", "3600");
    EXPECT_TRUE(anna.colors(0).is_null() || !anna.colors(0).contains("MONEY"));
}

// ---- checking ----

TEST_P(SingleAccount, an_amount_has_the_sign_of_what_is_owed) {
    const std::string refusal =
        "应收款为正数,本次收款请填正数,应收款为负数,本次应收款请填负数,请更正!";
    new_document();
    pay("80000", "120");
    anna.cell(3, "MONEY", "3510");
    expect_not_saved(refusal);
    anna.cell(3, "MONEY", "-3510");
    anna.cell(0, "MONEY", "-1");
    expect_not_saved(refusal);
}

TEST_P(SingleAccount, the_checks_run_in_their_order) {
    new_document("K2");
    anna.key("F8");
    anna.set("PH", "票");
    expect_not_saved("本单累计" + side.word + "款金额必须大于0");
    anna.cell(0, "MONEY", "10");
    expect_not_saved("实" + side.word + "金额不能等于0");
    EXPECT_EQ(anna.focused(), "MONEY");
    anna.set("YH", "10"); // a discount alone is no money
    expect_not_saved("实" + side.word + "金额不能等于0");
    anna.set("MONEY", "20");
    anna.cell(0, "MONEY", "25");
    expect_not_saved("本单累计" + side.word + "款必须与表格中明细累计" + side.word + "款一致");
    anna.cell(0, "MONEY", "30");
    anna.click("Act_Save");
    EXPECT_EQ(document("U1"), "30.00 970.00");
}

TEST_P(SingleAccount, without_a_party_nothing_is_saved) {
    new_document("");
    anna.set("MONEY", "5");
    anna.click("Act_Save");
    anna.next_message();
    anna.expect_active(side.entry);
    EXPECT_EQ(last_batch(), "");
}

// ---- advances ----

TEST_P(SingleAccount, an_advance_and_its_refund_keep_the_head_only) {
    const auto kinds = side.code == 631 ? std::pair{"预收款", "预收退款"}
                                        : std::pair{"预付款", "预付退款"};
    new_document();
    anna.set("CB1", kinds.first);
    EXPECT_EQ(anna.row_count(), 0);
    pay("700");
    anna.click("Act_Save");
    anna.set("KH_GYS_ID", "K1");
    anna.set("CB1", kinds.second);
    pay("200");
    save();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM " + side.lines), "0");
    const Rows heads = books.table("SELECT JY_KM,MONEY,MONEY_SS,MONEY_YH FROM " + side.heads +
                                   " ORDER BY JY_KM");
    EXPECT_EQ(heads, (Rows{{{"JY_KM", "1"},
                            {"MONEY", "700.00"},
                            {"MONEY_SS", "700.00"},
                            {"MONEY_YH", "0.00"}},
                           {{"JY_KM", "2"},
                            {"MONEY", "200.00"},
                            {"MONEY_SS", "200.00"},
                            {"MONEY_YH", "0.00"}}}));
    // 500 from before, 700 in, 200 back
    EXPECT_EQ(books.value("SELECT YSM FROM V" + side.heads + " WHERE KH_GYS_ID='K1'"), "1000.00");
}

TEST_P(SingleAccount, an_advance_takes_no_discount) {
    const bool receipt = side.code == 631;
    new_document();
    anna.set("CB1", receipt ? "预收款" : "预付款");
    pay("700", "10");
    expect_not_saved(receipt ? "预收款  或  预收退款  时优惠不可以填写，请清空为0"
                             : "预付款  或  预付退款  时优惠不可以填写，请清空为0");
    EXPECT_EQ(anna.focused(), "YH");
    anna.set("YH", "0");
    save();
    EXPECT_EQ(books.value("SELECT MONEY_YH FROM " + side.heads), "0.00");
}

TEST_P(SingleAccount, what_was_kept_of_an_advance_shows_as_one_row_while_it_is_refused) {
    new_document();
    anna.set("CB1", side.code == 631 ? "预收退款" : "预付退款");
    EXPECT_TRUE(anna.control("DBGridEh")["readOnly"].get<bool>());
    pay("300");
    anna.request({{"op", "set"}, {"control", "JY_ID"}, {"value", "9"}});
    anna.click("Act_Save");
    EXPECT_EQ(anna.next_message(), "结算帐户“9”不存在!请按 F4 选择结算帐户。");
    anna.set("JY_ID", "2");
    save();
    EXPECT_EQ(books.value("SELECT JY_ID FROM " + side.heads), "2");
}

TEST_P(SingleAccount, an_advance_set_off_settles_documents_and_is_used_up) {
    new_document("K1");
    anna.set("CB1", side.code == 631 ? "预收冲应收" : "预付冲应付");
    pay("500");
    save();
    EXPECT_EQ(document("初K1"), "500.00 3100.00");
    EXPECT_EQ(books.value("SELECT YSM FROM V" + side.heads + " WHERE KH_GYS_ID='K1'"), "0.00");
    EXPECT_EQ(books.value("SELECT XJYS FROM V" + side.heads + " WHERE KH_GYS_ID='K1'"),
              "127581.00"); // as before: 128081 - 500
}

TEST_P(SingleAccount, using_more_than_was_paid_in_advance_turns_the_line_red) {
    new_document("K1");
    anna.set("CB1", side.code == 631 ? "预收冲应收" : "预付冲应付");
    const auto red = [this] {
        int colour = -1;
        anna.inside([&colour] {
            auto* line = dynamic_cast<host::TControl*>(
                host::the_host().forms.back()->FindComponent("BalanceLine"));
            colour = line->FontColor;
        });
        return colour == host::clRed;
    };
    pay("500");
    EXPECT_FALSE(red());
    pay("500.01");
    EXPECT_TRUE(red());
    pay("600");
    books.execute("INSERT INTO SYS_SETTING (NAME,VALUE) VALUES ('advance_limit','1')");
    expect_not_saved(side.code == 631 ? "预收款余额不足,请更正!" : "预付款余额不足,请更正!");
    books.execute("DELETE FROM SYS_SETTING WHERE NAME='advance_limit'");
    save(); // books that do not forbid it only show it
    EXPECT_EQ(books.value("SELECT YSM FROM V" + side.heads + " WHERE KH_GYS_ID='K1'"), "-100.00");
}

TEST_P(SingleAccount, the_cursor_waits_at_the_party_of_the_next_document) {
    new_document("");
    EXPECT_EQ(anna.focused(), "CB1");
    anna.set("KH_GYS_ID", "K2");
    pay("5");
    anna.click("Act_Save");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.close();
    anna.click("Act_Add");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
}

TEST_P(SingleAccount, a_thousand_open_items_are_spread_while_the_amount_is_typed) {
    std::string batch;
    for (int number = 1000; number < 2000; ++number)
        batch += "INSERT INTO " + side.documents +
                 " (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES ('V" +
                 std::to_string(number) + "',0,'K2','2024-03-05','admin',10,10);";
    books.execute(batch);
    new_document("K2");
    anna.focus("MONEY");
    for (const char* digit : {"8", "0", "0", "5"}) anna.key(digit);
    EXPECT_EQ(anna.value("ShareTotal"), "8005.00");
    EXPECT_EQ(anna.rows()[502].at("MONEY"), "5.00"); // 1000 + 2000 + 500 * 10
    save();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM " + side.lines), "503");
}

// ---- changing ----

TEST_P(SingleAccount, a_changed_document_settles_anew_what_it_settled_before) {
    new_document();
    pay("80000", "120");
    save();
    EXPECT_EQ(document("S3"), "5969.00 46681.00");
    EXPECT_EQ(settled(side.returns, "T1"), "3510.00 0.00");
    anna.click("Act_Modify");
    for (const char* fixed : {"Edit1", "KH_GYS_ID", "CB1"})
        EXPECT_TRUE(anna.control(fixed)["readOnly"].get<bool>()) << fixed;
    // Its own lines are not among the settled, so all of each item is there to be paid again.
    for (const Row& row : anna.rows()) EXPECT_EQ(row.at("SUMMONEY"), "0.00") << row.at("NOID");
    pay("70000", "0"); // the return stands first now: 73510 for 3600, 46800 and 23110 of S2
    save();
    EXPECT_EQ(document("初K1"), "3600.00 0.00");
    EXPECT_EQ(document("S2"), "23110.00 4151.00");
    EXPECT_EQ(document("S3"), "0.00 52650.00");
    EXPECT_EQ(settled(side.returns, "T1"), "3510.00 0.00");
}

TEST_P(SingleAccount, a_deleted_document_opens_again_what_it_settled) {
    new_document();
    pay("80000", "120");
    save();
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“" + side.number + "”吗？");
    EXPECT_EQ(last_batch(), "delete from d" + std::to_string(side.code) + " Where NOID='" +
                                side.number + "'");
    EXPECT_EQ(document("S3"), "0.00 52650.00");
    EXPECT_EQ(settled(side.returns, "T1"), "0.00 3510.00");
    EXPECT_EQ(settled(side.others, "Q1"), "0.00 1280.00");
    EXPECT_EQ(anna.row_count(), 0);
}

TEST_P(SingleAccount, a_copy_is_a_new_document_for_the_same_party) {
    new_document();
    pay("3600");
    save();
    anna.click("Act_CopyAdd");
    EXPECT_NE(anna.value("Edit1"), side.number);
    EXPECT_EQ(anna.value("KH_GYS_ID"), "K1");
    EXPECT_EQ(anna.value("MONEY"), "");
    EXPECT_EQ(shares(), "46800.00 27261.00 -3510.00 52650.00 1280.00");
}

TEST_P(SingleAccount, what_somebody_else_settled_meanwhile_is_not_settled_twice) {
    new_document("K2");
    pay("1000");
    books.execute("INSERT INTO " + side.heads +
                  " (NOID,KH_GYS_ID,JY_ID,MONEY,MONEY_SS,BDATE,USER_ID) VALUES "
                  "('M1','K2','1',400,400,'2024-03-14','li');INSERT INTO " +
                  side.lines + " (NOID,C," + side.documents +
                  "NOID,KH_GYS_ID,MONEY) VALUES ('M1',0,'U1','K2',400);");
    anna.click("Act_Save");
    EXPECT_NE(anna.next_message().find("U1”已被他人核销或更改,不能保存!"), std::string::npos);
    EXPECT_EQ(document("U1"), "400.00 600.00");
    anna.key("F5");
    EXPECT_EQ(shares(), "600.00 2000.00");
    anna.key("F7");
    EXPECT_EQ(shares(), "600.00 400.00");
    save();
    EXPECT_EQ(document("U1"), "1000.00 0.00");
    EXPECT_EQ(document("U2"), "400.00 1600.00");
}

TEST_P(SingleAccount, a_document_changed_by_somebody_else_is_not_written_over) {
    new_document("K2");
    pay("1000");
    save();
    anna.click("Act_Modify");
    anna.set("PH", "工行回单");
    books.execute("UPDATE " + side.heads + " SET PH='别的'");
    anna.click("Act_Save");
    EXPECT_NE(anna.next_message(), "");
    EXPECT_EQ(books.value("SELECT PH FROM " + side.heads), "别的");
}

// ---- opened by a report ----

TEST_P(SingleAccount, an_audit_or_report_shows_the_document_without_touching_it) {
    new_document();
    pay("80000", "120");
    anna.set("PH", "A'B");
    save();
    anna.click("Act_Modify");
    EXPECT_EQ(anna.value("PH"), "A'B");
    EXPECT_EQ(anna.value("MONEY"), "80000.00");
    EXPECT_EQ(anna.value("YH"), "120.00");
    EXPECT_EQ(shares(), "-3510.00 3600.00 46800.00 27261.00 5969.00"); // as it was written off
    EXPECT_FALSE(anna.enabled("Act_Save"));
}

} // namespace
} // namespace tests
