// Other receipts entered: settled at once or left open, by income category.
#include "tests/forms/other_documents/other_document_desk.h"

namespace tests {
namespace {

const std::string number = "646240315001";

class OtherReceipt : public OtherDocumentDesk {
protected:
    OtherReceipt() { new_document(646); }
    void amount(int row, const std::string& typed) { anna.cell(row, "MONEY", typed); }
    // Closes the form without saving.
    void leave() {
        anna.answer_next(true);
        anna.click("Act_Quit");
        anna.forget_messages();
    }
    std::string shown(const std::string& control) {
        return anna.value(control) + " " + anna.control(control).at("display").get<std::string>();
    }
};

const std::string insert_head = "INSERT INTO D651 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, "
                                "ZY, USER_ID, TOLMONEY,SUMMONEY) VALUES ('";
const std::string insert_line =
    "INSERT INTO D651A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES ('" + number + "','";

// ---- a new one

TEST_F(OtherReceipt, begins_with_every_income_category_a_number_cash_and_today) {
    EXPECT_EQ(anna.caption(), "其他应收款");
    EXPECT_EQ(anna.value("Edit1"), number);
    EXPECT_EQ(anna.value("BDATE"), "2024-03-15");
    EXPECT_EQ(anna.value("CB1"), "收款结算");
    EXPECT_EQ(shown("JY_ID"), "1 现金");
    EXPECT_EQ(anna.value("TOLMONEY"), "0");
    EXPECT_EQ(anna.value("SUMMONEY"), "0");
    const Rows rows = anna.rows();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[1].at("SZLB"), "02");
    EXPECT_EQ(rows[1].at("SZLB_NAME"), "罚款收入");
    EXPECT_EQ(rows[1].at("MONEY"), "0.00");
    EXPECT_FALSE(anna.enabled("Act_Save"));
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
}

TEST_F(OtherReceipt, settled_at_once_is_written_with_its_total_settled_and_without_empty_lines) {
    anna.set("KH_GYS_ID", "K1");
    anna.set("YW_ID", "Y1");
    anna.set("BM_ID", "B1");
    anna.set("JY_ID", "2");
    anna.set("NOTE", "罚'款");
    amount(1, "70");
    amount(2, "-12.345"); // to the cent, half away from zero
    anna.cell(2, "NOTE", "退'租");
    EXPECT_EQ(anna.footer("MONEY"), "57.65");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(), insert_head + "0','" + number +
                                "','K1','Y1','B1','2','2024-03-15','罚''款','admin','57.65',"
                                "'57.65');" +
                                insert_line + "02','70.00','',0);" + insert_line +
                                "03','-12.35','退''租',0);");
    EXPECT_EQ(documents("D651"), number + " 0 57.65 57.65 0.00 2");
    EXPECT_EQ(anna.value("Edit1"), "646240315002"); // ready for the next
    EXPECT_EQ(anna.value("KH_GYS_ID"), "");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
}

TEST_F(OtherReceipt, left_open_lies_on_account_0_whatever_account_is_shown) {
    anna.set("CB1", "其他应收");
    anna.set("KH_GYS_ID", "K1");
    anna.set("JY_ID", "2");
    amount(0, "120");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(), insert_head + "1','" + number +
                                "','K1','','','0','2024-03-15','','admin','120.00','0');"
                                "UPDATE D651 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='" +
                                number + "';" + insert_line + "01','120.00','',0);");
    EXPECT_EQ(documents("D651"), number + " 1 120.00 0.00 120.00 0");
}

TEST_F(OtherReceipt, is_seen_by_the_receivables_only_while_it_is_open) {
    anna.set("KH_GYS_ID", "K1");
    amount(0, "70");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT YM FROM VD631 WHERE KH_GYS_ID='K1'"), "0.00");
    anna.set("CB1", "其他应收");
    anna.set("KH_GYS_ID", "K1");
    amount(0, "120");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT YM FROM VD631 WHERE KH_GYS_ID='K1'"), "120.00");
}

// ---- checking

TEST_F(OtherReceipt, somebody_must_be_named_and_an_open_one_needs_its_customer) {
    amount(0, "5");
    anna.click("Act_Save");
    anna.expect_message("客户,经手人,部门,至少选填一项!");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.set("CB1", "其他应收");
    anna.set("YW_ID", "Y1");
    anna.click("Act_Save");
    anna.expect_message("单据类别为[其他应收]情况下必须填写客户!");
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.set("CB1", "收款结算");
    anna.click("Act_Save"); // the person who handled it will do
    EXPECT_EQ(documents("D651"), number + " 0 5.00 5.00 0.00 1");
}

TEST_F(OtherReceipt, nothing_is_sent_without_an_amount) {
    anna.set("KH_GYS_ID", "K1");
    anna.click("Act_Save");
    anna.expect_message("表格至少有一行填写金额!");
    EXPECT_EQ(batch_sent(), "");
    leave();
}

TEST_F(OtherReceipt, the_blank_line_one_stands_on_goes_silently_any_other_is_refused) {
    anna.set("KH_GYS_ID", "K1");
    amount(0, "5");
    anna.cell(3, "NOTE", "没有类别");
    anna.cell(4, "NOTE", "也没有");
    anna.click("Act_Save"); // line 5 goes, line 4 stays
    anna.expect_message("收支类别  不可以为空白!请将此行删除!");
    EXPECT_EQ(anna.row_count(), 4);
    anna.click("Act_Save"); // the refusal went to line 4: now it is the one
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D651A"), "1");
}

// ---- leaving a field

TEST_F(OtherReceipt, a_number_that_is_empty_or_taken_gives_way_to_a_fresh_one) {
    anna.set("Edit1", "");
    anna.focus("NOTE");
    EXPECT_EQ(anna.value("Edit1"), "646240315002");
    books.execute("INSERT INTO D651 (NOID,BDATE,USER_ID) VALUES ('X1','2024-03-01','admin')");
    anna.set("Edit1", "X1");
    anna.mark();
    anna.focus("NOTE");
    EXPECT_EQ(anna.sent_texts().front(), "SELECT NOID FROM d651 WHERE NOID='X1'");
    EXPECT_EQ(anna.value("Edit1"), "646240315003");
    anna.set("Edit1", "自编1号");
    anna.focus("NOTE");
    EXPECT_EQ(anna.value("Edit1"), "自编1号"); // a number of one's own is kept
}

TEST_F(OtherReceipt, a_code_is_looked_up_when_it_is_left) {
    // field  no such code  message                                   a code  its name
    const struct {
        const char *field, *wrong, *message, *code, *name;
    } attempts[] = {
        {"KH_GYS_ID", "K'9", "客户“K'9”不存在!请按 F4 选择客户。", "k1", "K1 常熟建材"},
        {"JY_ID", "0", "结算帐户“0”不存在!请按 F4 选择结算帐户。", "2", "2 工行园区支行"},
        {"YW_ID", "Z", "业务员“Z”不存在!请按 F4 选择业务员。", "Y1", "Y1 李敏"},
        {"BM_ID", "Z", "部门“Z”不存在!请按 F4 选择部门。", "B1", "B1 行政部"}};
    for (const auto& attempt : attempts) {
        anna.set(attempt.field, attempt.wrong);
        anna.refused({{"op", "focus"}, {"control", "NOTE"}});
        anna.expect_message(attempt.message);
        EXPECT_EQ(anna.focused(), attempt.field);
        anna.set(attempt.field, attempt.code);
        anna.focus("NOTE");
        EXPECT_EQ(shown(attempt.field), attempt.name);
    }
    anna.set("JY_ID", "");
    anna.refused({{"op", "focus"}, {"control", "NOTE"}});
    anna.expect_message("收款帐户不能为空，请录入!");
}

TEST_F(OtherReceipt, customer_account_and_summary_are_picked_from_their_lists) {
    books.execute("INSERT INTO D6803 (GUID,ZY,PYM) VALUES ('S1','收罚款','SFK')");
    anna.lookup("KH_GYS_ID");
    EXPECT_EQ(anna.row_count(), 2);
    anna.double_click(1, "KH_GYS_ID");
    EXPECT_EQ(shown("KH_GYS_ID"), "K2 园区商贸");
    anna.lookup("JY_ID");
    EXPECT_EQ(anna.row_count(), 2); // account 0 holds no money
    anna.double_click(1, "JY_ID");
    EXPECT_EQ(shown("JY_ID"), "2 工行园区支行");
    anna.lookup("NOTE");
    anna.expect_active("TFLINK_KM");
    anna.set("wl_id", "sfk");
    anna.double_click(0, "ZY");
    EXPECT_EQ(anna.value("NOTE"), "收罚款");
}

// ---- lines

TEST_F(OtherReceipt, a_category_is_typed_by_code_name_or_pinyin_and_then_stays) {
    EXPECT_NE(anna.cannot_cell(0, "SZLB", "02"), "");
    for (const char* typed : {"02", "罚", "fksr"}) {
        anna.cell(3, "SZLB", typed);
        EXPECT_EQ(anna.rows()[3].at("SZLB"), "02") << typed;
        EXPECT_EQ(anna.rows()[3].at("SZLB_NAME"), "罚款收入") << typed;
    }
    anna.row(0);
    EXPECT_NE(anna.cannot_cell(3, "SZLB", "01"), "");
    anna.forget_messages();
    EXPECT_NE(anna.cannot_cell(4, "SZLB", "21"), "");
    anna.expect_message("收入类别“21”不存在!请按 F4 选择，或先在收支类别中新增。");
    EXPECT_NE(anna.cannot_cell(4, "SZLB", "收入"), "");
    anna.expect_message("有 2 个收入类别与“收入”相符!请录入完整的代码，或按 F4 选择。");
}

TEST_F(OtherReceipt, a_category_is_picked_among_income_alone) {
    anna.cell(3, "NOTE", "另加");
    anna.mark();
    anna.lookup_cell(3, "SZLB");
    anna.expect_active("TFLINK_6804");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  "SELECT SZLB, SZLB_NAME,PYM,0 AS I FROM D6804 WHERE SZLB_CLASS=0"}));
    anna.double_click(2, "SZLB");
    anna.expect_active("TF6646_1");
    EXPECT_EQ(anna.rows()[3].at("SZLB_NAME"), "租金收入");
}

// ---- a change, a copy

class StoredReceipt : public OtherReceipt {
protected:
    // A document of 70 left open (kind 1) or settled at once (0), then opened to be changed.
    void store(int kind) {
        anna.set("CB1", kind == 1 ? "其他应收" : "收款结算");
        anna.set("KH_GYS_ID", "K1");
        amount(1, "70");
        anna.click("Act_Save");
        anna.close();
        anna.click("Act_Modify");
        anna.expect_active("TF6646_1");
        anna.mark();
    }
};

TEST_F(StoredReceipt, settled_is_changed_but_for_its_number_and_type) {
    store(0);
    for (const char* field : {"Edit1", "CB1"})
        EXPECT_TRUE(anna.control(field).at("readOnly").get<bool>()) << field;
    EXPECT_EQ(anna.row_count(), 1);
    EXPECT_EQ(anna.value("TOLMONEY"), "70.00");
    EXPECT_EQ(anna.value("SUMMONEY"), "70.00");
    anna.set("JY_ID", "2");
    amount(0, "80");
    anna.cell(1, "SZLB", "01");
    anna.cell(1, "MONEY", "1.5");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(),
              "UPDATE d651 SET KH_GYS_ID='K1',BDATE='2024-03-15',JY_ID='2',bm_ID='',YW_ID='',ZY='',"
              "TOLMONEY='81.50',sumMONEY='81.50',USER_ID='admin',C='0' WHERE noid='" +
                  number + "';delete from  d651A WHERE NOID='" + number + "';" + insert_line +
                  "02','80.00','',0);" + insert_line +
                  "01','1.50','',0);");
    anna.expect_active("TF6646");
    EXPECT_EQ(documents("D651"), number + " 0 81.50 81.50 0.00 2");
    EXPECT_EQ(anna.rows()[0].at("TOLMONEY"), "81.50");
}

TEST_F(StoredReceipt, open_keeps_its_account_too) {
    store(1);
    EXPECT_EQ(shown("JY_ID"), "0 应收款帐户");
    for (const char* field : {"Edit1", "CB1", "JY_ID"})
        EXPECT_TRUE(anna.control(field).at("readOnly").get<bool>()) << field;
    EXPECT_EQ(anna.value("SUMMONEY"), "0.00");
    amount(0, "90");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent(),
              "UPDATE d651 SET KH_GYS_ID='K1',BDATE='2024-03-15',JY_ID='0',bm_ID='',YW_ID='',ZY='',"
              "TOLMONEY='90.00',USER_ID='admin',C='1' WHERE noid='" +
                  number + "';UPDATE D651 SET YSMONEY=TOLMONEY-SUMMONEY WHERE NOID='" + number +
                  "';delete from  d651A WHERE NOID='" + number + "';" + insert_line +
                  "02','90.00','',0);");
    EXPECT_EQ(documents("D651"), number + " 1 90.00 0.00 90.00 0");
}

TEST_F(StoredReceipt, changed_by_somebody_else_meanwhile_is_not_written_over) {
    store(1);
    written_past_forms = true;
    books.execute("UPDATE D651 SET ZY='别人' WHERE NOID='" + number + "'");
    amount(0, "90");
    anna.click("Act_Save");
    anna.expect_message("单据在打开之后已被他人修改或核销,不能保存!请退出后重新打开该单据。");
    EXPECT_EQ(documents("D651"), number + " 1 70.00 0.00 70.00 0");
}

TEST_F(StoredReceipt, copied_is_a_new_one_with_the_same_lines) {
    store(1);
    anna.close();
    anna.click("Act_CopyAdd");
    anna.expect_active("TF6646_1");
    EXPECT_EQ(anna.value("Edit1"), "646240315003");
    EXPECT_EQ(anna.value("TOLMONEY"), "0");
    EXPECT_EQ(anna.rows()[0].at("MONEY"), "70.00");
    EXPECT_EQ(shown("KH_GYS_ID"), "K1 常熟建材");
    anna.set("CB1", "收款结算"); // which needs an account that holds money
    EXPECT_EQ(shown("JY_ID"), "1 现金");
    anna.click("Act_Save");
    EXPECT_EQ(documents("D651"),
              number + " 1 70.00 0.00 70.00 0\n646240315003 0 70.00 70.00 0.00 1");
}

} // namespace
} // namespace tests
