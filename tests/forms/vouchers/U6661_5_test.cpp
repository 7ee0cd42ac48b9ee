// Allocating a voucher's cash to cash-flow items: what is shown, typed and saved with the voucher.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class Allocation : public VoucherDesk {
protected:
    void allocate() {
        anna->click("Act_xj");
        anna->expect_active("TF6661_5");
    }
    // A new voucher that brings 100 in cash, before its allocation.
    void new_receipt() {
        new_voucher();
        type_balanced_lines();
    }
    void change_voucher_7() {
        start();
        anna->row(0);
        anna->click("Act_Modify");
        anna->expect_active("TF6661_1");
    }
    void amount(int row, const char* side, const char* typed) {
        anna->cell(row, side, typed, "GRID2");
    }
    bool sent(const std::string& text) {
        const auto texts = anna->sent_texts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }
};

std::string items_of(const std::string& key) {
    return "SELECT D6820_1.ID, D6820_1.XJLL,A.J,A.D FROM D6820 INNER JOIN D6820 D6820_1 ON "
           "D6820.ID = D6820_1.OID LEFT JOIN (SELECT D6820ID, J, D FROM D6601B WHERE (NOID = '" +
           key + "')) A ON D6820_1.ID=A.D6820ID WHERE (D6820.OID <> 'ZZZ') ";
}

std::string row_of(const std::string& key, const std::string& item, const std::string& inflow,
                   const std::string& outflow) {
    return "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('" + key + "','" + item + "','" +
           inflow + "','" + outflow + "');";
}

std::string old_gone(const std::string& key) {
    return "delete from d6601b where noid='" + key + "';";
}

// ---- what is shown ----

TEST_F(Allocation, the_items_are_read_for_the_key_the_new_voucher_will_have) {
    new_receipt();
    anna->mark();
    allocate();
    EXPECT_EQ(anna->sent_texts(), (std::vector<std::string>{items_of("2024-03记009")}));
    EXPECT_EQ(anna->caption(), "现金流量金额分配");
    const Rows items = anna->rows("GRID2");
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].at("ID"), "1101");
    EXPECT_EQ(items[0].at("XJLL"), "销售商品、提供劳务收到的现金");
    EXPECT_EQ(items[0].at("J"), "");
    EXPECT_EQ(items[0].at("D"), "");
}

TEST_F(Allocation, a_saved_voucher_shows_what_it_has) {
    answer_allocation(data, {{"1109", "585.00", "<null>"}});
    start();
    anna->row(0);
    anna->mark();
    anna->click("Act_Modify");
    EXPECT_TRUE(sent(items_of("2024-03记007")));
    EXPECT_FALSE(anna->enabled("Act_Save"));
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[1].at("J"), "585.00");
    EXPECT_EQ(anna->footer("J", "GRID2"), "585.00");
    EXPECT_EQ(anna->value("CashHint"),
              "本凭证现金净额 流入 585.00    已分配 流入 585.00    未分配 0.00");
}

TEST_F(Allocation, the_hint_compares_what_is_allocated_with_the_cash_lines) {
    new_voucher();
    anna->line(0, {{"ZY", "付款"}, {"KM_ID", "1131"}, {"J", "130"}});
    anna->line(1, {{"ZY", "付款"}, {"KM_ID", "1001"}, {"D", "30"}});
    anna->line(2, {{"ZY", "付款"}, {"KM_ID", "100201"}, {"D", "100"}});
    allocate();
    EXPECT_EQ(anna->value("CashHint"),
              "本凭证现金净额 流出 130.00    已分配 0.00    未分配 流出 130.00");
    amount(2, "D", "50");
    EXPECT_EQ(anna->value("CashHint"),
              "本凭证现金净额 流出 130.00    已分配 流出 50.00    未分配 流出 80.00");
    amount(2, "D", "150");
    anna->click("btn_ok"); // more than the cash: pointed out, not refused
    anna->expect_active("TF6661_1");
}

TEST_F(Allocation, drawing_cash_from_the_bank_leaves_nothing_to_allocate) {
    new_voucher();
    anna->line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "500"}});
    anna->line(1, {{"ZY", "提现"}, {"KM_ID", "100201"}, {"D", "500"}});
    allocate();
    EXPECT_EQ(anna->value("CashHint"), "本凭证现金净额 0.00    已分配 0.00    未分配 0.00");
}

// ---- what is typed ----

TEST_F(Allocation, item_and_name_are_passed_over) {
    new_receipt();
    allocate();
    for (const char* column : {"ID", "XJLL"}) {
        EXPECT_NE(anna->cannot_cell(1, column, "x", "GRID2"), "") << column;
    }
    anna->focus("GRID2");
    for (const char* digit : {"7", "0"}) anna->key(digit);
    anna->key("Enter");
    EXPECT_EQ(anna->rows("GRID2")[1].at("J"), "70.00") << "the refused columns led to the inflow";
    anna->key("3");
    anna->key("Enter");
    EXPECT_EQ(anna->rows("GRID2")[1].at("D"), "3.00");
    anna->key("5");
    anna->key("Enter");
    EXPECT_EQ(anna->rows("GRID2")[2].at("J"), "5.00") << "on to the next item's inflow";
}

TEST_F(Allocation, no_item_is_added_here) {
    new_receipt();
    allocate();
    EXPECT_NE(anna->cannot_cell(3, "J", "5", "GRID2"), "");
    EXPECT_EQ(anna->row_count("GRID2"), 3);
}

TEST_F(Allocation, an_equals_sign_fills_in_what_is_left) {
    new_receipt();
    allocate();
    amount(0, "J", "30");
    amount(1, "J", "=");
    EXPECT_EQ(anna->rows("GRID2")[1].at("J"), "70.00");
    amount(1, "J", "=");
    EXPECT_EQ(anna->rows("GRID2")[1].at("J"), "70.00");
    anna->cannot_cell(2, "D", "=", "GRID2");
    anna->expect_message("这一栏没有剩余的金额可以分配!流入填借方,流出填贷方。");
    amount(1, "J", "100");
    amount(2, "D", "=");
    EXPECT_EQ(anna->rows("GRID2")[2].at("D"), "30.00");
}

TEST_F(Allocation, amounts_are_kept_to_the_cent) {
    new_receipt();
    allocate();
    amount(0, "J", "12.345");
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "12.35");
    anna->cannot_cell(0, "J", "abc", "GRID2");
    EXPECT_NE(anna->next_message(), "");
}

TEST_F(Allocation, the_first_amount_typed_makes_saving_possible) {
    answer_allocation(data, {{"1109", "585.00", "<null>"}});
    change_voucher_7();
    allocate();
    anna->click("btn_ok");
    EXPECT_FALSE(anna->enabled("Act_Save")) << "nothing was changed";
    allocate();
    amount(1, "J", "580");
    anna->click("btn_ok");
    EXPECT_TRUE(anna->enabled("Act_Save"));
}

TEST_F(Allocation, cancelling_puts_back_what_was_there) {
    answer_allocation(data, {{"1109", "585.00", "<null>"}});
    change_voucher_7();
    allocate();
    amount(1, "J", "580");
    amount(2, "D", "5");
    anna->click("btn_Cancel");
    EXPECT_FALSE(anna->enabled("Act_Save"));
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[1].at("J"), "585.00");
    EXPECT_EQ(anna->rows("GRID2")[2].at("D"), "");
    amount(0, "J", "1");
    anna->row(1, "GRID2");
    anna->answer_next(true);
    anna->key("Esc"); // may be a slip: asks
    EXPECT_NE(anna->next_message(), "");
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "");
}

TEST_F(Allocation, in_an_audited_voucher_it_is_only_shown) {
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    start();
    anna->row(1);
    anna->double_click(1, "PZZ_H");
    anna->expect_active("TF6661_1");
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "585.00");
    EXPECT_NE(anna->cannot_cell(0, "J", "1", "GRID2"), "");
    anna->focus("GRID2");
    anna->key("1");
    anna->key("Enter");
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "585.00");
    anna->click("btn_ok");
    EXPECT_FALSE(anna->enabled("Act_Save"));
}

// ---- what is saved ----

TEST_F(Allocation, it_is_written_with_the_voucher_under_the_voucher_s_key) {
    new_receipt();
    allocate();
    amount(0, "J", "70.5");
    amount(1, "J", "29.5");
    anna->click("btn_ok");
    EXPECT_TRUE(data.executed().empty()) << "the dialog itself writes nothing";
    anna->set("PZZ_H", "12");
    anna->click("Act_Save");
    const std::string key = "2024-03记012";
    EXPECT_TRUE(last_batch().ends_with(",'1131','              0.00','            100.00',1);" +
                                       old_gone(key) + row_of(key, "1101", "70.5", "0") +
                                       row_of(key, "1109", "29.5", "0")))
        << last_batch();
}

TEST_F(Allocation, what_was_typed_survives_another_look_and_a_changed_number) {
    new_receipt();
    allocate();
    amount(0, "J", "100");
    anna->click("btn_ok");
    anna->set("PZZ_H", "15");
    anna->mark();
    allocate();
    EXPECT_TRUE(anna->sent_texts().empty()) << "not read again";
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "100.00");
}

TEST_F(Allocation, the_next_voucher_begins_without_one) {
    new_receipt();
    allocate();
    amount(0, "J", "100");
    anna->click("btn_ok");
    anna->click("Act_Save");
    type_balanced_lines();
    anna->click("Act_Save");
    EXPECT_EQ(last_batch().find("6601B"), std::string::npos) << last_batch();
    EXPECT_EQ(last_batch().find("6601b"), std::string::npos) << last_batch();
    type_balanced_lines();
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "");
}

TEST_F(Allocation, a_save_that_is_refused_keeps_what_was_typed) {
    new_receipt();
    allocate();
    amount(0, "J", "100");
    anna->click("btn_ok");
    data.refuse_next_batch("磁盘已满!");
    anna->click("Act_Save");
    anna->expect_message("磁盘已满!");
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "100.00");
}

TEST_F(Allocation, a_number_that_belongs_to_another_voucher_shows_none_of_its_amounts) {
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    new_receipt();
    anna->set("PZZ_H", "7");
    allocate();
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "");
}

TEST_F(Allocation, a_changed_number_takes_it_along) {
    answer_allocation(data, {{"1101", "600.00", "<null>"}, {"1201", "<null>", "15.00"}});
    change_voucher_7();
    anna->set("PZZ_H", "12");
    anna->click("Act_Save");
    const std::string key = "2024-03记012";
    EXPECT_TRUE(last_batch().ends_with(old_gone(key) + row_of(key, "1101", "600", "0") +
                                       row_of(key, "1201", "0", "15")))
        << last_batch();
    EXPECT_EQ(last_batch().find("delete from D6601 WHERE NOID='2024-03记007';"), 0u);
}

TEST_F(Allocation, an_untouched_one_stays_with_the_voucher_and_is_not_written_again) {
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    change_voucher_7();
    anna->cell(0, "ZY", "收贷款");
    anna->click("Act_Save");
    anna->expect_active("TF6661");
    EXPECT_EQ(last_batch().find("D6601B"), std::string::npos) << last_batch();
}

TEST_F(Allocation, one_that_was_looked_at_and_accepted_is_written_as_it_stands) {
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    change_voucher_7();
    allocate();
    anna->click("btn_ok");
    EXPECT_FALSE(anna->enabled("Act_Save")) << "nothing was changed";
    anna->cell(0, "ZY", "收贷款");
    anna->click("Act_Save");
    anna->expect_active("TF6661");
    const std::string key = "2024-03记007";
    EXPECT_TRUE(last_batch().ends_with(old_gone(key) + row_of(key, "1101", "585", "0")))
        << last_batch();
}

TEST_F(Allocation, all_amounts_cleared_leave_the_old_allocation_as_it_is) {
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    change_voucher_7();
    allocate();
    amount(0, "J", "");
    EXPECT_EQ(anna->rows("GRID2")[0].at("J"), "");
    anna->click("btn_ok");
    anna->click("Act_Save");
    anna->expect_active("TF6661");
    EXPECT_EQ(last_batch().find("d6601b"), std::string::npos) << last_batch();
    EXPECT_EQ(last_batch().find("D6601B"), std::string::npos) << last_batch();
}

TEST_F(Allocation, one_that_others_changed_meanwhile_is_not_overwritten) {
    change_voucher_7();
    anna->cell(0, "ZY", "收贷款");
    answer_allocation(data, {{"1101", "585.00", "<null>"}});
    anna->click("Act_Save");
    anna->expect_message(
        "凭证在打开之后已被他人修改、审核或登帐,不能保存!请退出后重新打开该凭证。");
    EXPECT_TRUE(data.executed().empty());
}

} // namespace
} // namespace tests
