// The cash-flow items of new books, and their maintenance on real books.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

struct StandardItem {
    const char* code;
    const char* name;
    const char* side;
    const char* parent;
};

// The lines of the cash flow statement that amounts are allocated to, under the heads of the
// statement's three sections and of the effect of exchange rates.
constexpr StandardItem standard_items[] = {
    {"1", "经营活动产生的现金流量", "流入", "ZZZ"},
    {"11", "经营活动现金流入", "流入", "1"},
    {"1101", "销售商品、提供劳务收到的现金", "流入", "11"},
    {"1102", "收到的税费返还", "流入", "11"},
    {"1109", "收到的其他与经营活动有关的现金", "流入", "11"},
    {"12", "经营活动现金流出", "流出", "1"},
    {"1201", "购买商品、接受劳务支付的现金", "流出", "12"},
    {"1202", "支付给职工以及为职工支付的现金", "流出", "12"},
    {"1203", "支付的各项税费", "流出", "12"},
    {"1209", "支付的其他与经营活动有关的现金", "流出", "12"},
    {"2", "投资活动产生的现金流量", "流入", "ZZZ"},
    {"21", "投资活动现金流入", "流入", "2"},
    {"2101", "收回投资所收到的现金", "流入", "21"},
    {"2102", "取得投资收益所收到的现金", "流入", "21"},
    {"2103", "处置固定资产、无形资产和其他长期资产所收回的现金净额", "流入", "21"},
    {"2109", "收到的其他与投资活动有关的现金", "流入", "21"},
    {"22", "投资活动现金流出", "流出", "2"},
    {"2201", "购建固定资产、无形资产和其他长期资产所支付的现金", "流出", "22"},
    {"2202", "投资所支付的现金", "流出", "22"},
    {"2209", "支付的其他与投资活动有关的现金", "流出", "22"},
    {"3", "筹资活动产生的现金流量", "流入", "ZZZ"},
    {"31", "筹资活动现金流入", "流入", "3"},
    {"3101", "吸收投资所收到的现金", "流入", "31"},
    {"3102", "借款所收到的现金", "流入", "31"},
    {"3109", "收到的其他与筹资活动有关的现金", "流入", "31"},
    {"32", "筹资活动现金流出", "流出", "3"},
    {"3201", "偿还债务所支付的现金", "流出", "32"},
    {"3202", "分配股利、利润或偿付利息所支付的现金", "流出", "32"},
    {"3209", "支付的其他与筹资活动有关的现金", "流出", "32"},
    {"4", "汇率变动对现金的影响", "流入", "ZZZ"},
    {"41", "汇率变动", "流入", "4"},
    {"4101", "汇率变动对现金的影响额", "流入", "41"}};

class ItemLedger : public LedgerDesk {};

TEST_F(ItemLedger, new_books_have_the_items_of_the_cash_flow_statement) {
    anna.open(691);
    const std::vector<std::string> tree = anna.tree();
    const Rows rows = books.table("SELECT ID, XJLL, IO, OID FROM D6820 ORDER BY ID");
    ASSERT_EQ(rows.size(), std::size(standard_items));
    ASSERT_EQ(tree.size(), std::size(standard_items));
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const StandardItem& item = standard_items[at];
        EXPECT_EQ(rows[at], (Row{{"ID", item.code},
                                 {"XJLL", item.name},
                                 {"IO", item.side},
                                 {"OID", item.parent}}));
        const std::size_t digits = std::string(item.code).size();
        const std::string indent(digits == 1 ? 0 : digits, ' '); // two blanks a level
        EXPECT_EQ(tree[at], indent + item.code + " " + item.name);
    }
}

TEST_F(ItemLedger, an_item_added_here_has_its_parent_and_goes_again_when_nobody_uses_it) {
    anna.open(691);
    anna.node("1201 购买商品、接受劳务支付的现金");
    anna.click("Act_CopyAdd");
    anna.set("t0", "120101");
    anna.set("t1", "付'华东'货款");
    anna.click("btn_ok");
    EXPECT_EQ(books.table("SELECT * FROM D6820 WHERE ID='120101'"),
              (Rows{{{"ID", "120101"},
                     {"XJLL", "付'华东'货款"},
                     {"IO", "流出"},
                     {"OID", "1201"},
                     {"PYM", "FHDHK"}}}));
    anna.click("Act_Refresh");
    anna.node("120101 付'华东'货款");
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.expect_question("确定要删除“120101 付'华东'货款”吗？");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6820 WHERE ID='120101'"), "0");
}

TEST_F(ItemLedger, an_item_with_an_allocation_or_with_sub_items_stays) {
    new_voucher();
    save_voucher("1001", "1131", "100");
    books.execute("INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('2024-03记001','1101','100',"
                  "'0')");
    anna.open(691);
    anna.node("1101 销售商品、提供劳务收到的现金");
    anna.click("Act_Delete");
    anna.expect_message("“1101 销售商品、提供劳务收到的现金”不能删除："
                        "已有凭证的现金流量分配到该项目!");
    anna.node("11 经营活动现金流入");
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("下面还有下级"), std::string::npos);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6820"), "32");
}

} // namespace
} // namespace tests
