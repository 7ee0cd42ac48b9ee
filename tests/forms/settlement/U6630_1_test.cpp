// A receipt in any currency, split over accounts, with over-receipts: statements and figures.
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

// Beside the open items: two income categories, dollars at 7.1, and 1000 dollars owed by 乙.
class CurrencyReceipt : public SettlementDesk {
protected:
    CurrencyReceipt() : SettlementDesk(currency_receipts) {
        books.execute(
            "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES (0,'01','租金','5102'),"
            "(0,'02','利息','5102'),(1,'11','房租','5502');"
            "INSERT INTO D1013 (HB_ID,HB_NAME,HB_BW,HB_HL) VALUES ('US','USD',0,7.1);"
            "INSERT INTO D8102 (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY,HB_ID,HL,"
            "TOLSMONEY) VALUES ('U3',0,'K2','2024-03-04','admin',7100,7100,'US',7.1,1000);");
    }
    void on_account(int row, const std::string& money) {
        anna.cell(row, "MONEY", money, "cd_jy");
    }
    std::string on_accounts() {
        std::string text;
        for (const Row& row : anna.rows("cd_jy"))
            text += row.at("JY_ID") + ":" + row.at("MONEY") + " ";
        return text;
    }
    std::string over_receipt() { return books.value("SELECT MONEY_RS FROM D631"); }
};

// ---- opening ----

TEST_F(CurrencyReceipt, begins_with_cash_in_the_base_currency) {
    new_document("");
    for (const auto& [control, value] : std::vector<std::pair<std::string, std::string>>{
             {"Edit1", "630240315001"},
             {"CB1", "应收帐款"},
             {"JY_ID", "1"},
             {"JY_NAME", "现金"},
             {"HB_ID", "RM"},
             {"HB_NAME", "RMB"},
             {"HL", "1"},
             {"BDATE", "2024-03-15"},
             {"CB2", "全部"}})
        EXPECT_EQ(anna.value(control), value) << control;
    for (const char* hidden : {"MONEY", "yh", "MONEY_RS"}) EXPECT_FALSE(anna.visible(hidden));
    EXPECT_EQ(on_accounts(), "1:0.00 2:0.00 ");
}

TEST_F(CurrencyReceipt, income_categories_stand_before_the_items_and_nothing_is_offered_yet) {
    new_document("K2");
    std::string items;
    for (const Row& row : anna.rows())
        items += row.at("C_NAME") + " " + row.at("HB_NAME") + " " + row.at("YSW") + " " +
                 row.at("YSB") + " " + row.at("MONEY") + ";";
    EXPECT_EQ(items, "其他应收-租金    0.00;其他应收-利息    0.00;"
                     "销货单 RMB 1000.00 1000.00 0.00;销货单 RMB 2000.00 2000.00 0.00;"
                     "销货单 USD 1000.00 7100.00 0.00;");
}

TEST_F(CurrencyReceipt, income_categories_stand_by_their_codes) {
    books.execute("INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES "
                  "(0,'00','罚款','5102')");
    const auto categories = [this] {
        std::string codes;
        for (const Row& row : anna.rows()) codes += row.at("SZLB") + " ";
        return codes;
    };
    new_document("K2");
    EXPECT_EQ(categories(), "00 01 02    ");
    on_account(0, "1000");
    save();
    anna.click("Act_Modify");
    EXPECT_EQ(categories(), "00 01 02  ");
    anna.set("PH", "改");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT PH FROM D631"), "改");
}

TEST_F(CurrencyReceipt, the_columns_in_their_order) {
    new_document();
    EXPECT_EQ(columns(true),
              "C_NAME 单据类型,D8102NOID 单号,BDATE 开单日期,HB_NAME 结算货币,HL 汇率,"
              "TOLSMONEY 本单应收款|外币,TOLMONEY 本单应收款|本位币,YSW 应收款|外币,"
              "YSB 应收款|本位币,SUMMONEY 累计收款,REMONEY 累计退款,MONEY 本次收款,");
    EXPECT_EQ(columns(false),
              "NOID 销售单号,HB_ID 货币代号,C 类型,SZLB 收支代码,COLORVALUE 颜色,");
    for (const char* summed : {"YSW", "YSB", "MONEY"}) EXPECT_NE(anna.footer(summed), "");
    for (const char* not_summed : {"TOLSMONEY", "TOLMONEY", "SUMMONEY"})
        EXPECT_EQ(anna.footer(not_summed), "");
}

TEST_F(CurrencyReceipt, reads_the_accounts_and_the_open_items) {
    anna.open(630);
    anna.mark();
    anna.click("Act_Add");
    const std::string accounts =
        "SELECT D1010.JY_ID, D1010.JY_NAME, ISNULL(D631B.MONEY, 0.00) AS MONEY FROM D1010 LEFT "
        "OUTER JOIN D631B ON D1010.JY_ID = D631B.JY_ID  AND D631B.NOID='630240315001'"
        "WHERE (D1010.JY_ID <> '0')";
    const auto opened = anna.sent_texts();
    EXPECT_NE(std::find(opened.begin(), opened.end(), accounts), opened.end());
    anna.set("KH_GYS_ID", "K1");
    anna.mark();
    anna.focus("PH");
    const auto read = anna.sent_texts();
    EXPECT_EQ(read.back(),
              "SELECT NULL AS SZLB, NOID,C,case c when 2 then '期初应收' else NOID end as "
              "d8102NOID,CASE C WHEN 2 THEN '期初应收' ELSE '销货单' END AS C_NAME, bdate, "
              "TOLMONEY, SUMMONEY, REMONEY, 0.00 AS MONEY,YSMONEY AS YSB,YSMONEY/hl as YSW,"
              "D1013.HB_ID,D1013.HB_NAME,D8102.TOLSMONEY, D8102.HL FROM D8102 INNER JOIN D1013 ON "
              "D8102.HB_ID = D1013.HB_ID  where (C < 3) and (d8102.KH_gys_ID='K1') and "
              "(YSMONEY>0)UNION ALL SELECT null,NOID,5,NOID,'其他应收', BDATE,TOLMONEY,SUMMONEY,"
              "0.00,0.00 AS MONEY, YSMONEY AS YSB,YSMONEY as YSW,(SELECT HB_ID FROM D1013 WHERE "
              "(HB_BW = 1)) as HB_ID,(SELECT HB_NAME FROM D1013 WHERE (HB_BW = 1)) as HB_NAME,"
              "D651.TOLMONEY,1.00 as hl FROM D651 WHERE (KH_GYS_ID='K1') AND (YSMONEY>0) union "
              "all SELECT D6804.SZLB,NULL,0,null,'其他应收-'+SZLB_NAME,NULL,null,NULL,NULL,0.00,"
              "null,null,NULL,NULL,null,NULL FROM D6804 WHERE D6804.SZLB_CLASS=0    order by "
              "bdate,C,NOID ");
}

// ---- amounts ----

TEST_F(CurrencyReceipt, what_comes_in_on_the_accounts_is_spread_oldest_first) {
    new_document("K2");
    on_account(0, "800");
    on_account(1, "700");
    EXPECT_EQ(anna.value("MONEY"), "1500.00");
    EXPECT_EQ(anna.value("WBMONEY"), "1500.00");
    EXPECT_EQ(shares(), "0.00 0.00 1000.00 500.00 0.00");
    EXPECT_EQ(anna.footer("MONEY", "cd_jy"), "1500.00");
}

TEST_F(CurrencyReceipt, an_amount_in_the_currency_is_worth_its_rate) {
    new_document("K2");
    anna.mark();
    anna.set("HB_ID", "US");
    anna.focus("PH");
    EXPECT_EQ(anna.sent_texts(),
              std::vector<std::string>{"SELECT * FROM d1013 WHERE hb_id='US'"});
    EXPECT_EQ(anna.value("HL"), "7.1");
    EXPECT_EQ(anna.value("HB_NAME"), "USD");
    anna.set("WBMONEY", "333.33");
    EXPECT_EQ(anna.value("MONEY"), "2366.64"); // 2366.643
    EXPECT_EQ(on_accounts(), "1:2366.64 2:0.00 "); // the account of the head
    EXPECT_EQ(shares(), "0.00 0.00 1000.00 1366.64 0.00");
    anna.set("HL", "7.2");
    EXPECT_EQ(anna.value("MONEY"), "2399.98"); // 2399.976
    on_account(1, "7200");
    EXPECT_EQ(anna.value("MONEY"), "9599.98");
    EXPECT_EQ(anna.value("WBMONEY"), "1333.33"); // 9599.98 / 7.2
    anna.set("WBMONEY", "1000"); // another account holds money: the split stays as typed
    EXPECT_EQ(on_accounts(), "1:2399.98 2:7200.00 ");
}

TEST_F(CurrencyReceipt, an_unknown_currency_is_refused) {
    new_document("K2");
    anna.set("HB_ID", "XX");
    anna.refused({{"op", "focus"}, {"control", "PH"}});
    anna.expect_message("币种“XX”不存在!请按 F4 选择币种。");
    anna.set("HB_ID", "RM");
    anna.focus("PH");
}

TEST_F(CurrencyReceipt, items_of_one_currency_alone_can_be_shown) {
    new_document("K2");
    anna.set("CB2", "USD");
    EXPECT_EQ(shares(), "0.00");
    on_account(0, "1500"); // goes to what is seen
    EXPECT_EQ(shares(), "1500.00");
    anna.set("CB2", "RMB");
    EXPECT_EQ(shares(), "0.00 0.00");
    EXPECT_EQ(anna.value("Difference"), "误差: 1500.00");
    expect_not_saved("本单累计收款金额必须大于0");
    anna.set("CB2", "全部"); // looking elsewhere moved nothing
    EXPECT_EQ(shares(), "0.00 0.00 0.00 0.00 1500.00");
    save();
    anna.click("Act_Modify");
    EXPECT_FALSE(anna.enabled("CB2"));
}

// ---- checking ----

TEST_F(CurrencyReceipt, writes_something_off_and_exactly_what_came_in) {
    new_document("K2");
    anna.set("PH", "x");
    expect_not_saved("本单累计收款金额必须大于0");
    on_account(0, "1500");
    anna.cell(2, "MONEY", "900");
    EXPECT_EQ(anna.value("Difference"), "误差: 100.00");
    expect_not_saved("本单累计收款必须与表格中明细累计收款一致");
    anna.cell(0, "MONEY", "100");
    EXPECT_EQ(anna.value("OverReceipts"), "100.00");
    EXPECT_EQ(anna.value("LeftOpen"), "8700.00"); // 1000 + 2000 + 7100 - 900 - 500
    EXPECT_EQ(anna.value("Difference"), "误差: 0.00");
    anna.click("Act_Save");
    EXPECT_EQ(document("U1"), "900.00 100.00");
}

// ---- saving ----

TEST_F(CurrencyReceipt, writes_head_lines_over_receipt_and_split) {
    new_document();
    on_account(0, "50000");
    on_account(1, "31480");
    anna.set("PH", "工'行");
    anna.cell(0, "MONEY", "200");
    anna.cell(1, "MONEY", "35.4");
    anna.cell(4, "MONEY", "27261");
    anna.cell(5, "MONEY", "2303.6");
    anna.cell(6, "MONEY", "1280");
    anna.click("Act_Save"); // 200 + 35.4 + 3600 + 46800 + 27261 + 2303.6 + 1280 = 81480
    EXPECT_EQ(last_batch(),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY,MONEY_SS,MONEY_YH,"
              "MONEY_RS, WBMONEY, HB_ID, HL, BDATE, EDATE, PH, USER_ID) values "
              "(1,'630240315001','K1','0','1001','1','81480.00','81480.00','0','0.00','81480.00',"
              "'RM','1','2024-03-15',NULL,'工''行','admin');"
              "INSERT INTO D651A (D631NOID, SZLB, MONEY, SZLB_CLASS)  VALUES "
              "('630240315001','01','200',0);"
              "INSERT INTO D651A (D631NOID, SZLB, MONEY, SZLB_CLASS)  VALUES "
              "('630240315001','02','35.4',0);"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','2','初K1','K1','           3600.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','0','S1','K1','          46800.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','0','S2','K1','          27261.00');"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','0','S3','K1','           2303.60');"
              "INSERT INTO D631A (NOID,C,D651NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','5','Q1','K1','           1280.00');"
              "UPDATE D631 SET  MONEY_rs='0.0235' WHERE noid='630240315001';" // 0.02 + 0.00354
              "INSERT INTO D631B (INX, NOID, JY_ID, MONEY) VALUES "
              "('0','630240315001','1','          50000.00');"
              "INSERT INTO D631B (INX, NOID, JY_ID, MONEY) VALUES "
              "('0','630240315001','2','          31480.00');");
    EXPECT_EQ(document("S3"), "2303.60 50346.40");
    EXPECT_EQ(settled("D651", "Q1"), "1280.00 0.00");
    EXPECT_EQ(over_receipt(), "0.0235");
    EXPECT_EQ(books.value("SELECT SUM(INMONEY) FROM VIEW_XJ WHERE JY_ID='2'"), "31480.00");
}

TEST_F(CurrencyReceipt, income_alone_writes_no_document_off) {
    new_document("K2");
    on_account(0, "200");
    anna.key("F8");
    anna.cell(0, "MONEY", "200");
    save();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D631A"), "0");
    EXPECT_EQ(over_receipt(), "0.0200");
    EXPECT_EQ(books.value("SELECT SUM(MONEY) FROM D651A WHERE D631NOID='630240315001'"), "200.00");
    EXPECT_EQ(document("U1"), "0.00 1000.00");
}

TEST_F(CurrencyReceipt, an_advance_keeps_the_head_alone_and_says_which_account_takes_it) {
    new_document("K2");
    on_account(1, "700");
    EXPECT_EQ(anna.value("AccountHint"), "");
    anna.set("CB1", "预收款");
    EXPECT_EQ(anna.row_count(), 0);
    EXPECT_EQ(anna.value("AccountHint"), "预收、退款整笔记入收款帐户，不按上表分帐户");
    anna.set("JY_ID", "2");
    EXPECT_EQ(anna.value("AccountHint"), "");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY,MONEY_SS,MONEY_YH,"
              "MONEY_RS, WBMONEY, HB_ID, HL, BDATE, EDATE, PH, USER_ID) values "
              "(1,'630240315001','K2','1','1001','2','700.00','700.00','0','0.00','700.00','RM',"
              "'1','2024-03-15',NULL,'','admin');");
    EXPECT_EQ(books.value("SELECT YSM FROM VD631 WHERE KH_GYS_ID='K2'"), "700.00");
}

TEST_F(CurrencyReceipt, a_changed_one_writes_lines_split_and_over_receipts_anew) {
    new_document("K2");
    on_account(1, "1300");
    anna.cell(0, "MONEY", "300");
    anna.cell(3, "MONEY", "0");
    save();
    EXPECT_EQ(document("U1"), "1000.00 0.00");
    anna.click("Act_Modify");
    EXPECT_EQ(on_accounts(), "1:0.00 2:1300.00 ");
    EXPECT_EQ(shares(), "300.00 0.00 1000.00"); // categories, and what it wrote off
    EXPECT_EQ(anna.rows()[2].at("SUMMONEY"), "0.00");
    EXPECT_EQ(anna.rows()[2].at("YSB"), "1000.00");
    EXPECT_EQ(anna.value("MONEY"), "1300.00");
    on_account(1, "0");
    on_account(0, "900"); // spread: all of it on the document
    EXPECT_EQ(shares(), "0.00 0.00 900.00");
    anna.mark();
    anna.click("Act_Save");
    EXPECT_EQ(last_batch(),
              "UPDATE D631 SET edate=getdate(), KH_GYS_ID='K2',JY_KM='0',BDATE='2024-03-15',"
              "JY_ID='1',KM_ID='1001',PH='',MONEY='900.00',MONEY_ss='900.00',MONEY_rs='0.03',"
              "MONEY_YH='0',WBMONEY='900.00',HB_ID='RM',HL='1',USER_ID='admin' "
              "WHERE noid='630240315001';"
              "delete from  D631A WHERE NOID='630240315001';"
              "delete from  D631B WHERE NOID='630240315001';"
              "delete from  D651A WHERE D631NOID='630240315001';"
              "INSERT INTO D631A (NOID,C,D8102NOID,KH_GYS_ID, MONEY) VALUES "
              "('630240315001','0','U1','K2','            900.00');"
              "UPDATE D631 SET  MONEY_rs='0' WHERE noid='630240315001';"
              "INSERT INTO D631B (INX, NOID, JY_ID, MONEY) VALUES "
              "('0','630240315001','1','            900.00');");
    EXPECT_EQ(document("U1"), "900.00 100.00");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D651A"), "0");
}

TEST_F(CurrencyReceipt, a_receipt_without_a_split_stands_on_the_account_of_its_head) {
    anna.open(631);
    anna.click("Act_Add");
    anna.set("KH_GYS_ID", "K2");
    anna.set("JY_ID", "2");
    anna.set("MONEY", "1500");
    anna.click("Act_Save");
    anna.close();
    anna.close();
    anna.open(630);
    anna.click("Act_Modify");
    EXPECT_EQ(on_accounts(), "1:0.00 2:1500.00 ");
    anna.set("PH", "改");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT JY_ID FROM D631B"), "2");
    EXPECT_EQ(document("U2"), "500.00 1500.00");
}

TEST_F(CurrencyReceipt, its_money_is_changed_where_it_was_split) {
    new_document("K2");
    on_account(0, "1000");
    save();
    anna.close();
    anna.open(631);
    anna.click("Act_Modify");
    anna.set("MONEY", "900");
    anna.click("Act_Save");
    anna.expect_message("本单的收款 1000.00 已分到各帐户，实收金额请在“销售收款 · 外币”（功能 630）"
                        "中修改!");
    anna.set("MONEY", "1000");
    anna.set("PH", "工行");
    anna.click("Act_Save");
    EXPECT_EQ(books.value("SELECT PH FROM D631"), "工行");
    EXPECT_EQ(books.value("SELECT SUM(MONEY) FROM D631B"), "1000.00");
}

} // namespace
} // namespace tests
