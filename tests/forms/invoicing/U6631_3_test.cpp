// Sales documents: what is typed, what is refused, what reaches the books.
#include "host/contract/U_glo.h"
#include "tests/forms/invoicing/invoicing_desk.h"

namespace tests {
namespace {

const std::string number = "202240315001";
const std::string receipt = number + "SYS";

class Invoice : public InvoicingDesk {
protected:
    Invoice() {
        anna.inside([] { host::G_SKSTR = "1"; }); // approved as they are made
        new_invoice();
    }
    ~Invoice() override { host::G_SKSTR = ""; }
    // A line of `quantity` at `price`.
    void line(int row, const std::string& good, const std::string& quantity,
              const std::string& price) {
        anna.line(row, {{"WL_ID", good}, {"SL", quantity}, {"SJ", price}});
    }
    void head() {
        anna.set("KH_GYS_ID", "K1");
        anna.set("CK_ID", "C1");
    }
    static std::string settlement(const std::string& document) {
        return "IF NOT EXISTS (SELECT * FROM D631A where (D8102NOID = '" + document +
               "')) UPDATE d8102 set sumMONEY =0 WHERE (d8102.NOID= '" + document +
               "')ELSE update d8102 set sumMONEY = t.money FROM (SELECT D8102NOID, "
               "ISNULL(SUM(MONEY),0) AS MONEY FROM D631A where(D8102NOID = '" +
               document +
               "') GROUP BY D8102NOID   )  t where d8102.NOID= t.D8102NOID; update D8102 set "
               "ysmoney=tolmoney-remoney-summoney  WHERE (d8102.NOID= '" +
               document + "')";
    }
    std::string figures(int row) {
        std::string text;
        const Rows rows = anna.rows();
        for (const char* field : {"SL", "DW_J", "DW_L", "SJ", "SMONEY", "DJ", "MONEY"})
            text += (text.empty() ? "" : " ") + rows[static_cast<std::size_t>(row)].at(field);
        return text;
    }
};

const std::string insert_line =
    "INSERT INTO D8102A(D8101AID,NOID,WL_ID,ADW,CK_ID,SL,DW_J,DW_L,DW_ZH,SJ,SMONEY, DJ, MONEY, "
    "NOTE,ID)  VALUES (";

// ---- a new one

TEST_F(Invoice, begins_with_a_number_today_and_the_warehouse_at_hand) {
    EXPECT_EQ(anna.caption(), "销售开单");
    EXPECT_EQ(anna.value("Edit1"), number);
    EXPECT_EQ(anna.value("BDATE"), "2024-03-15");
    EXPECT_EQ(anna.row_count(), 0);
    EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    anna.close();
    anna.inside([] {
        host::G_ckid = "C1";
        host::G_CkName = "总仓";
    });
    new_invoice();
    EXPECT_EQ(shown("CK_ID"), "C1 总仓");
    anna.inside([] { host::G_ckid = host::G_CkName = ""; });
}

TEST_F(Invoice, a_customer_brings_his_address_route_and_salesman) {
    anna.set("KH_GYS_ID", "k1");
    anna.focus("NOTE");
    EXPECT_EQ(anna.sent_texts().front(),
              "SELECT D1102.TEL,D1102.ADDR,D1011.SEND_ID,D1011.SEND_NAME,D1101.YW_NAME, "
              "D1101.YW_ID FROM D1102 INNER JOIN D1011 ON D1102.SEND_ID = D1011.SEND_ID LEFT "
              "OUTER JOIN D1101 ON D1102.KM_IDA = D1101.YW_ID WHERE D1102.KH_GYS_ID='k1'");
    EXPECT_EQ(shown("KH_GYS_ID"), "K1 常熟建材");
    EXPECT_EQ(anna.value("FULL_NAME"), "常熟盛源建材有限公司");
    EXPECT_EQ(anna.value("TEL"), "0512-1");
    EXPECT_EQ(anna.value("ADDR"), "虞山镇 18 号");
    EXPECT_EQ(shown("SEND_ID"), "S1 城区专线");
    EXPECT_EQ(shown("YW_ID"), "Y1 李敏");
    anna.set("YW_ID", "Y2"); // typed over, and kept while the customer stays
    anna.focus("KH_GYS_ID");
    anna.focus("NOTE");
    EXPECT_EQ(shown("YW_ID"), "Y2 陈晓雯");
    for (const char* wrong : {"K9", "K3"}) { // unknown, and without a route
        anna.set("KH_GYS_ID", wrong);
        anna.refused({{"op", "focus"}, {"control", "NOTE"}});
        anna.expect_message("客户资料不存在,请重新录入!");
        EXPECT_EQ(anna.focused(), "KH_GYS_ID");
    }
}

TEST_F(Invoice, a_number_that_is_empty_or_taken_gives_way_to_a_fresh_one) {
    books.execute("INSERT INTO D8102 (NOID,KH_GYS_ID,BDATE,USER_ID) VALUES "
                  "('X1','K1','2024-03-01','admin')");
    anna.set("Edit1", "X1");
    anna.mark();
    anna.focus("NOTE");
    EXPECT_EQ(anna.sent_texts().front(), "SELECT NOID FROM d8102 WHERE NOID='X1'");
    EXPECT_EQ(anna.value("Edit1"), "202240315002");
}

// ---- lines

TEST_F(Invoice, a_good_is_typed_by_code_bar_code_or_name) {
    // typed  good  unit
    const char* const cases[][3] = {
        {"W1", "W1", "瓶"}, {"690002", "W1", "箱"}, {"绿茶", "W2", "瓶"}, {"yf", "W3", ""}};
    for (const auto& [typed, good, unit] : cases) {
        anna.cell(0, "WL_ID", typed);
        EXPECT_EQ(anna.rows()[0].at("WL_ID"), good) << typed;
        EXPECT_EQ(anna.rows()[0].at("DW_NAME"), unit) << typed;
    }
    anna.cannot_cell(0, "WL_ID", "W9");
    anna.expect_message("商品“W9”不存在!请按 F4 选择商品。");
    anna.lookup_cell(0, "WL_ID");
    EXPECT_EQ(anna.row_count(), 3); // a good in two units is one good
    anna.double_click(1, "CODE");
    EXPECT_EQ(anna.rows()[0].at("WL_NAME"), "绿茶");
    EXPECT_EQ(anna.rows()[0].at("WL_GG"), "1L");
}

TEST_F(Invoice, each_figure_of_a_line_follows_from_the_others) {
    anna.cell(0, "WL_ID", "W1");
    // typed into a field      quantity, whole units, rest, price, amount, cost price, cost
    const char* const cases[][3] = {{"SL", "3", "3.00 3.00 0.00  0.00  0.00"},
                                    {"SJ", "33.33", "3.00 3.00 0.00 33.33 99.99  0.00"},
                                    {"DJ", "20", "3.00 3.00 0.00 33.33 99.99 20.00 60.00"},
                                    {"SMONEY", "100", "3.00 3.00 0.00 33.33 100.00 20.00 60.00"},
                                    {"MONEY", "45", "3.00 3.00 0.00 33.33 100.00 15.00 45.00"},
                                    {"DW_J", "4", "4.00 4.00 0.00 33.33 133.32 15.00 60.00"},
                                    {"DW_L", "0.5", "4.50 4.00 0.50 33.33 149.99 15.00 67.50"}};
    for (const auto& [field, typed, expected] : cases) {
        anna.cell(0, field, typed);
        EXPECT_EQ(figures(0), expected) << field;
    }
    EXPECT_EQ(anna.footer("SL"), "4.50");
    EXPECT_EQ(anna.footer("SMONEY"), "149.99");
    EXPECT_EQ(anna.footer("MONEY"), "67.50");
}

TEST_F(Invoice, a_unit_is_one_of_the_goods_units_and_stays_on_a_line_from_an_order) {
    head();
    anna.cell(0, "WL_ID", "W1");
    anna.cell(0, "DW_NAME", "箱");
    EXPECT_EQ(anna.rows()[0].at("TM"), "690002");
    anna.cannot_cell(0, "DW_NAME", "吨");
    anna.expect_message("商品“W1”没有单位“吨”!请按 F4 选择单位。");
    anna.lookup_cell(0, "DW_NAME");
    anna.double_click(0, "CODE");
    EXPECT_EQ(anna.rows()[0].at("DW_NAME"), "瓶");
    anna.lookup_cell(0, "NOID");
    anna.double_click(0, "CODE");
    EXPECT_EQ(anna.rows()[0].at("NOID"), "D240301");
    anna.cannot_cell(0, "DW_NAME", "箱");
    anna.expect_message("从订单取的销售记录不可更改单位!");
    anna.lookup_cell(0, "DW_NAME");
    anna.expect_message("从订单取的销售记录不可更改单位!");
    anna.cell(0, "NOID", ""); // no order's line any more
    anna.cell(0, "DW_NAME", "箱");
    EXPECT_EQ(anna.rows()[0].at("D8101AID"), "");
}

TEST_F(Invoice, order_lines_are_picked_for_a_customer_and_a_warehouse) {
    anna.cell(0, "WL_ID", "W1");
    anna.lookup_cell(0, "NOID");
    anna.expect_message("在选择订单前应先填写一个有效的客户!");
    anna.set("KH_GYS_ID", "K1");
    anna.lookup_cell(0, "NOID");
    anna.expect_message("在选择订单前应先填写一个有效的仓库!");
    anna.set("CK_ID", "C1");
    anna.lookup_cell(0, "NOID");
    EXPECT_EQ(anna.row_count(), 2);
    anna.click("btn_Cancel");
    EXPECT_EQ(anna.rows()[0].at("NOID"), "");
}

// ---- checking

TEST_F(Invoice, a_line_needs_its_good_and_a_quantity) {
    head();
    anna.cell(0, "NOTE", "无商品");
    anna.click("Act_Save");
    anna.expect_message("单据明细不可保存空白的商品编号!请将此行删除!");
    line(0, "W1", "0", "5");
    anna.click("Act_Save");
    anna.expect_message("数量必须大于0");
    anna.cell(0, "SL", "-1");
    anna.click("Act_Save");
    anna.expect_message("数量必须大于0");
    anna.check("CK2");
    anna.cell(0, "SL", "0");
    anna.click("Act_Save");
    anna.expect_message("数量不能为0，可以为负数");
    anna.cell(0, "SL", "-1");
    anna.cell(1, "NOTE", "空行"); // the blank line one stands on goes silently
    anna.click("Act_Save");
    EXPECT_EQ(settled(number), "-5.00 0.00 -5.00");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D8102A"), "1");
}

TEST_F(Invoice, without_a_customer_or_a_line_nothing_is_saved) {
    anna.set("NOTE", "急");
    anna.click("Act_Save");
    anna.expect_message("客户资料不存在,请重新录入!");
    head();
    anna.click("Act_Save");
    anna.expect_message("请至少录入一行商品!");
    EXPECT_EQ(batch_sent(), "");
}

TEST_F(Invoice, a_good_stands_once_unless_that_is_allowed_and_an_order_line_always_once) {
    head();
    line(0, "W1", "1", "5");
    line(1, "W1", "2", "5");
    anna.click("Act_Save");
    anna.expect_message("商品“W1”重复，请合并成一行，或勾选“充许重复商品”!");
    for (int row : {0, 1}) { // the same line of the order twice
        anna.lookup_cell(row, "NOID");
        anna.double_click(0, "CODE");
    }
    anna.click("Act_Save");
    anna.expect_message("订单行“O1”重复，请删去重复的行!");
    anna.lookup_cell(1, "NOID");
    anna.double_click(1, "CODE");
    anna.click("Act_Save"); // the same good, ordered twice
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D8102A WHERE D8101AID IN ('O1','O2')"), "2");
    head();
    line(0, "W1", "1", "5");
    line(1, "W1", "2", "5");
    anna.check("CK3");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D8102A WHERE D8101AID IS NULL"), "2");
}

// ---- saving

TEST_F(Invoice, money_taken_at_once_makes_its_receipt) {
    head();
    anna.set("NOTE", "急'送");
    line(0, "690002", "26", "24.5"); // 637.00
    anna.cell(0, "DJ", "18");        // costs 468.00
    line(1, "W3", "1", "13.5");
    anna.cell(1, "NOTE", "代'垫");
    anna.lookup_cell(1, "NOID");
    anna.double_click(0, "CODE");
    anna.set("BQMONEY", "600");
    anna.set("YHMONEY", "0.5");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(
        batch_sent(),
        "INSERT INTO D8102(C,T,NOID,KH_GYS_ID,CK_ID, BDATE, SEND_ID,YW_ID, USER_ID, "
        "NOTE,TOLMONEY,YSMONEY,BQMONEY,YHMONEY) VALUES (0,'1','" +
            number + "','K1','C1','2024-03-15','S1','Y1','admin','急''送','650.50','650.50',"
                     "'600.00','0.50');" +
            insert_line + "NULL,'" + number +
            "','W1',2,'C1','             26.00','             26.00','              0.00',"
            "'              1.00','             24.50','            637.00',"
            "'             18.00','            468.00','','" +
            number + "-1000');" + insert_line + "'O1','" + number +
            "','W3',NULL,'C1','              1.00','              1.00','              0.00',"
            "'              1.00','             13.50','             13.50',"
            "'              0.00','              0.00','代''垫','" +
            number + "-1001');" +
            "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,MONEY_YH,MONEY,"
            "BDATE, EDATE, PH, USER_ID) values (1,'" +
            receipt + "','K1','0','1001','1','600.00','0.50',(600.00+0.50),'2024-03-15',NULL,'',"
                      "'admin');INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES ('" +
            receipt + "','0','" + number + "','K1',(600.00+0.50));" + settlement(number));
    EXPECT_EQ(settled(number), "650.50 600.50 50.00");
    EXPECT_EQ(books.value("SELECT XJYS FROM VD631 WHERE KH_GYS_ID='K1'"), "50.00");
    EXPECT_EQ(anna.value("Edit1"), "202240315002"); // ready for the next
    anna.close();
    EXPECT_EQ(anna.rows().back().at("NOID"), receipt); // the list behind shows it
}

TEST_F(Invoice, without_money_it_stays_open_and_has_no_receipt) {
    head();
    line(0, "W2", "2", "50");
    anna.click("Act_Save");
    EXPECT_EQ(batch_sent().find("INSERT INTO D631 "), std::string::npos);
    EXPECT_EQ(settled(number), "100.00 0.00 100.00");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D631"), "0");
}

class StoredInvoice : public Invoice {
protected:
    // 100 of goods, 30 taken at once; then opened again to be changed.
    StoredInvoice() {
        head();
        line(0, "W2", "2", "50");
        anna.set("BQMONEY", "30");
        anna.click("Act_Save");
        open_again();
    }
    void open_again() {
        anna.click("Act_Other");
        anna.expect_active("TLinkHint");
        anna.double_click(0, "CODE");
        anna.expect_active("TF6631_3");
        anna.mark();
    }
};

TEST_F(StoredInvoice, shows_what_was_saved) {
    EXPECT_EQ(anna.value("Edit1"), number);
    EXPECT_TRUE(anna.control("Edit1").at("readOnly").get<bool>());
    EXPECT_EQ(shown("KH_GYS_ID"), "K1 常熟建材");
    EXPECT_EQ(shown("CK_ID"), "C1 总仓");
    EXPECT_EQ(anna.value("BQMONEY"), "30.00");
    EXPECT_EQ(figures(0), "2.00 2.00 0.00 50.00 100.00 0.00 0.00");
}

TEST_F(StoredInvoice, a_change_writes_its_own_receipt_anew_and_keeps_the_others) {
    books.execute("INSERT INTO D631 (T,NOID,KH_GYS_ID,JY_KM,KM_ID,JY_ID,MONEY,MONEY_SS,BDATE,"
                  "USER_ID) VALUES (1,'R1','K1',0,'1001','1',20,20,'2024-03-20','admin');"
                  "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID,MONEY) VALUES "
                  "('R1',0,'" + number + "','K1',20)");
    anna.close();
    new_invoice();
    open_again(); // as it is after the receipt
    anna.cell(0, "SL", "3");
    anna.set("BQMONEY", "40");
    anna.click("Act_Save");
    EXPECT_EQ(
        batch_sent(),
        "UPDATE D8102 SET EDATE=GETDATE(), KH_GYS_ID='K1',CK_ID='C1',BDATE='2024-03-15',"
        "SEND_ID='S1',YW_ID='Y1',USER_ID='admin',NOTE='',YSMONEY=150.00-summoney-remoney,"
        "TOLMONEY='150.00',BQMONEY='40.00',YHMONEY='0.00' WHERE noid='" +
            number + "';delete from d631 WHERE NOID='" + receipt +
            "';delete from  d8102A WHERE NOID='" + number + "';" + insert_line + "NULL,'" + number +
            "','W2',3,'C1','              3.00','              3.00','              0.00',"
            "'              1.00','             50.00','            150.00',"
            "'              0.00','              0.00','','" +
            number + "-1000');INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY_SS,"
                     "MONEY_YH,MONEY,BDATE, EDATE, PH, USER_ID) values (1,'" +
            receipt + "','K1','0','1001','1','40.00','0.00',(40.00+0.00),'2024-03-15',NULL,'',"
                      "'admin');INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES ('" +
            receipt + "','0','" + number + "','K1',(40.00+0.00));" + settlement(number));
    EXPECT_EQ(settled(number), "150.00 60.00 90.00"); // 20 and 40
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D631A"), "2");
}

TEST_F(StoredInvoice, lowered_to_no_money_it_loses_its_receipt) {
    anna.set("BQMONEY", "0");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D631"), "0");
    EXPECT_EQ(settled(number), "100.00 0.00 100.00");
}

TEST_F(StoredInvoice, changed_by_somebody_else_meanwhile_is_not_written_over) {
    books.execute("UPDATE D8102 SET NOTE='别人' WHERE NOID='" + number + "'");
    anna.set("BQMONEY", "100");
    anna.click("Act_Save");
    anna.expect_message("单据在打开之后已被他人修改或核销,不能保存!请退出后重新打开该单据。");
    EXPECT_EQ(settled(number), "100.00 30.00 70.00");
}

// ---- printing, options

TEST_F(StoredInvoice, printed_bears_its_mark_and_can_still_be_changed) {
    const PrintedPaper paper = anna.print();
    EXPECT_EQ(batch_sent(), "UPDATE D8102 SET T_PRINT='*' WHERE NOID='" + number + "';");
    EXPECT_EQ(books.value("SELECT T_PRINT FROM D8102"), "*");
    anna.set("BQMONEY", "100");
    anna.click("Act_Save");
    EXPECT_EQ(settled(number), "100.00 100.00 0.00");
}

TEST_F(Invoice, a_new_one_is_printed_as_soon_as_it_is_saved_where_that_is_asked_for) {
    anna.key("F6");
    EXPECT_TRUE(anna.checked("CK1"));
    head();
    line(0, "W2", "2", "50");
    anna.request({{"op", "answer"}, {"file", "paper.pdf"}});
    anna.click("Act_Save");
    anna.expect_message("已打印 1 页到 paper.pdf");
    EXPECT_TRUE(batch_sent().ends_with("UPDATE D8102 SET T_PRINT='*' WHERE NOID='" + number +
                                       "';"));
    EXPECT_EQ(books.value("SELECT T_PRINT FROM D8102"), "*");
}

TEST_F(Invoice, options_are_kept_from_one_day_to_the_next) {
    anna.check("CK2");
    anna.check("CK3");
    anna.answer_next(true);
    anna.close();
    anna.forget_messages();
    anna.close(); // the list, and with it the form
    anna.open(631);
    new_invoice();
    EXPECT_FALSE(anna.checked("CK1"));
    EXPECT_TRUE(anna.checked("CK2"));
    EXPECT_TRUE(anna.checked("CK3"));
}

} // namespace
} // namespace tests
