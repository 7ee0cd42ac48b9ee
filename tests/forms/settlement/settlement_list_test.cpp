// The lists of receipts and payments: what they show, ask for, refuse. Both sides.
#include "tests/forms/settlement/settlement_desk.h"

namespace tests {
namespace {

class SettlementListed : public BothSides {
protected:
    bool receipt() const { return side.code == 631; }
    std::string caption() const { return receipt() ? "销售收款" : "采购付款"; }
    void head(const std::string& number, const std::string& date, const std::string& party,
              const std::string& money) {
        books.execute("INSERT INTO " + side.heads +
                      " (NOID,KH_GYS_ID,JY_ID,MONEY,MONEY_SS,BDATE,PH,USER_ID) VALUES ('" + number +
                      "','" + party + "','1'," + money + "," + money + ",'" + date +
                      "','票" + number + "','admin');INSERT INTO " + side.lines + " (NOID,C," +
                      side.documents + "NOID,KH_GYS_ID,MONEY) VALUES ('" + number + "',0,'" +
                      (party == "K1" ? "S1" : "U1") + "','" + party + "'," + money + ");");
    }
    std::string numbers() {
        std::string text;
        for (const Row& row : anna.rows()) text += row.at("NOID") + " ";
        return text;
    }
    std::string asked() {
        for (const std::string& text : anna.sent_texts()) {
            const std::size_t at = text.find(" WHERE (");
            if (at != std::string::npos) return text.substr(at + 7);
        }
        return "";
    }
};
INSTANTIATE_TEST_SUITE_P(Trade, SettlementListed, testing::Values(&receipts, &payments),
                         name_of_side);

TEST_P(SettlementListed, the_columns_in_their_order) {
    anna.open(side.code);
    EXPECT_EQ(anna.caption(), caption());
    std::string titles;
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid["columns"])
        titles += column["title"].get<std::string>() + ",";
    EXPECT_EQ(titles, receipt() ? "单号,开单日期,客户代号,客户简称,类型代号,收款类型,收款方式,"
                                  "收款帐户,实收金额,优惠金额,票号,最后更改,用户号,开单,"
                                : "单号,开单日期,供应商代号,供应商简称,类型代号,付款类型,付款方式,"
                                  "付款帐户,实付金额,优惠金额,票号,最后更改,用户号,开单,");
}

TEST_P(SettlementListed, the_current_period_is_shown_at_once_with_sums_and_the_lines_below) {
    head("A1", "2024-03-31", "K1", "100");
    head("A0", "2024-02-29", "K1", "900");
    head("A2", "2024-03-01", "K2", "50");
    anna.open(side.code);
    EXPECT_EQ(numbers(), "A2 A1 "); // by date
    EXPECT_EQ(anna.footer("MONEY_SS"), "150.00");
    EXPECT_EQ(anna.rows()[1].at("JY_KM_NAME"), receipt() ? "应收帐款" : "应付帐款");
    anna.row(1);
    const Rows lines = anna.rows("DBGridEhLine");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].at(side.documents + "NOID"), "S1");
    EXPECT_EQ(lines[0].at("C_NAME"), receipt() ? "销售单" : "采购进货");
    EXPECT_EQ(lines[0].at("TOLMONEY"), "46800.00");
    EXPECT_EQ(lines[0].at("SUMMONEY"), "900.00"); // by A0
    EXPECT_EQ(lines[0].at("MONEY"), "100.00");
    EXPECT_EQ(anna.footer("MONEY", "DBGridEhLine"), "100.00");
}

TEST_P(SettlementListed, the_dialog_asks_for_dates_party_and_number_or_slip) {
    head("A1", "2024-03-31", "K1", "100");
    head("B2", "2024-03-10", "K2", "50");
    anna.open(side.code);
    anna.key("F3");
    anna.expect_active("TF6" + std::to_string(side.code) + "F");
    anna.set("BDATE", "2024-03-10");
    anna.set("EDATE", "2024-03-10");
    EXPECT_EQ(anna.value("titDATE"), "(1天)");
    anna.mark();
    anna.click("btn_ok");
    EXPECT_EQ(asked(), "(" + side.heads + ".BDATE>='2024-03-10') AND (" + side.heads +
                           ".BDATE<'2024-03-11') ORDER BY " + side.heads + ".BDATE," +
                           side.heads + ".NOID");
    EXPECT_EQ(numbers(), "B2 ");
    anna.key("F3");
    anna.set("EDATE", "2024-03-31");
    anna.set("KH_GYS_ID", "K1");
    anna.set("NOID", "票A");
    anna.mark();
    anna.click("btn_ok");
    const auto sent = anna.sent_texts();
    const std::string wanted = " AND (" + side.heads + ".KH_GYS_ID='K1') AND ((" + side.heads +
                               ".noid like '%票A%') or (" + side.heads + ".ph like '%票A%'))";
    EXPECT_TRUE(std::any_of(sent.begin(), sent.end(), [&](const std::string& text) {
        return text.find(wanted) != std::string::npos;
    }));
    EXPECT_EQ(numbers(), "A1 ");
}

TEST_P(SettlementListed, dates_in_the_wrong_order_are_refused) {
    anna.open(side.code);
    anna.key("F3");
    anna.set("BDATE", "2024-03-11");
    anna.set("EDATE", "2024-03-10");
    anna.click("btn_ok");
    anna.expect_message("开始日期不能大于结束日期!");
    anna.expect_active("TF6" + std::to_string(side.code) + "F");
}

TEST_P(SettlementListed, what_a_sale_or_purchase_made_is_not_changed_here) {
    const std::string refusal =
        receipt() ? "单号以SYS结尾是由 销售开单  模块自动生成，不可以进行任何更改，如果更改，"
                    "请从销售开单进行更改。"
                  : "单号以SYS结尾是由 采购收货  模块自动生成，不可以进行任何更改，如果更改，"
                    "请从采购收货进行更改。";
    head("U1SYS", "2024-03-10", "K2", "50");
    anna.open(side.code);
    const std::string list = anna.active();
    for (const char* act : {"Act_Modify", "Act_Delete"}) {
        anna.click(act);
        anna.expect_message(refusal);
        anna.expect_active(list);
    }
    anna.double_click(0, "NOID"); // looking is allowed
    anna.expect_active(side.entry);
    EXPECT_EQ(anna.value("Edit1"), "U1SYS");
    EXPECT_TRUE(anna.control("MONEY")["readOnly"].get<bool>());
    anna.close();
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM " + side.heads), "1");
}

TEST_P(SettlementListed, a_new_document_appears_in_the_list) {
    new_document("K2");
    pay("1000");
    save();
    EXPECT_EQ(numbers(), side.number + " ");
    EXPECT_EQ(anna.rows("DBGridEhLine")[0].at("MONEY"), "1000.00");
}

class ReceiptsListed : public SettlementDesk {
protected:
    ReceiptsListed() : SettlementDesk(receipts) {}
};

TEST_F(ReceiptsListed, a_receipt_with_an_over_receipt_is_changed_where_it_was_made) {
    books.execute("INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES (0,'01','租金','5102');"
                  "INSERT INTO D631 (NOID,KH_GYS_ID,JY_ID,MONEY,MONEY_SS,MONEY_RS,BDATE,USER_ID) "
                  "VALUES ('A1','K2','1',200,200,0.02,'2024-03-10','admin');"
                  "INSERT INTO D651A (D631NOID,SZLB,MONEY,SZLB_CLASS) VALUES ('A1','01',200,0);");
    anna.open(631);
    anna.click("Act_Modify");
    anna.expect_message("“A1”含有按收入类别登记的溢收，请在“销售收款 · 外币”（功能 630）中修改!");
    EXPECT_TRUE(anna.control("MONEY")["readOnly"].get<bool>());
    anna.close();
    anna.answer_next(true);
    anna.click("Act_Delete"); // deleting is the same everywhere
    anna.expect_question("确定要删除“A1”吗？");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D651A"), "0");
}

} // namespace
} // namespace tests
