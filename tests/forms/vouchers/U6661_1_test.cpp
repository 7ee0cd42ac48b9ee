// Entering one voucher: what is typed, what is refused, what is saved.
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class VoucherEntry : public VoucherDesk {};

using Cell = std::pair<std::string, std::string>;
using Line = std::vector<Cell>;

// ---- opening ----

TEST_F(VoucherEntry, a_new_voucher_has_the_next_number_today_and_the_maker) {
    new_voucher();
    EXPECT_EQ(anna->value("PZZ"), "记");
    EXPECT_EQ(anna->value("PZZ_H"), "9");
    EXPECT_EQ(anna->value("BDATE"), "2024-03-15");
    EXPECT_EQ(anna->value("PZQJ"), "2024-03");
    EXPECT_EQ(anna->value("USER_ID"), "李敏");
    EXPECT_EQ(anna->value("EDATE"), "");
}

TEST_F(VoucherEntry, the_next_number_is_asked_for_period_and_word) {
    start();
    anna->mark();
    anna->click("Act_Add");
    const auto sent = anna->sent_texts();
    EXPECT_NE(std::find(sent.begin(), sent.end(),
                        "SELECT * FROM ( SELECT 1 AS I  UNION ALL SELECT MAX(PZZ_H)+1 AS I  FROM "
                        "D6601 WHERE (PZQJ = '2024-03') AND (PZZ = '记')) A ORDER BY I DESC "),
              sent.end());
}

TEST_F(VoucherEntry, shows_at_least_six_lines) {
    new_voucher();
    EXPECT_EQ(anna->row_count(), 6);
}

TEST_F(VoucherEntry, the_scheme_of_the_books_gives_the_words) {
    struct Scheme {
        const char* parameter;
        std::vector<std::string> words;
        bool can_choose;
    };
    const Scheme schemes[] = {
        {"", {"记"}, true},
        {"1", {"记"}, false},
        {"2", {"收", "付", "转"}, true},
        {"3", {"现收", "现付", "银收", "银付", "转"}, true},
    };
    for (const Scheme& scheme : schemes) {
        anna.reset();
        answer_word_scheme(data, scheme.parameter);
        new_voucher();
        EXPECT_EQ(anna->enabled("PZZ"), scheme.can_choose) << scheme.parameter;
        EXPECT_EQ(anna->value("PZZ"), scheme.words.front());
        if (!scheme.can_choose) continue;
        for (const std::string& word : scheme.words) anna->set("PZZ", word);
        EXPECT_NE(anna->cannot_set("PZZ", scheme.parameter == std::string("2") ? "记" : "收款"),
                  "");
    }
}

TEST_F(VoucherEntry, another_word_has_its_own_numbers) {
    answer_word_scheme(data, "2");
    new_voucher();
    anna->mark();
    anna->set("PZZ", "付");
    bool asked = false;
    for (const std::string& text : anna->sent_texts()) {
        asked = asked || text.find("(PZZ = '付')") != std::string::npos;
    }
    EXPECT_TRUE(asked);
}

TEST_F(VoucherEntry, saving_is_possible_once_something_changed) {
    new_voucher();
    EXPECT_FALSE(anna->enabled("Act_Save"));
    anna->cell(0, "ZY", "收货款");
    EXPECT_TRUE(anna->enabled("Act_Save"));
}

TEST_F(VoucherEntry, templates_are_offered_for_new_vouchers_only) {
    new_voucher();
    EXPECT_TRUE(anna->enabled("Act_Other"));
    anna->close();
    anna->click("Act_Modify");
    EXPECT_FALSE(anna->enabled("Act_Other"));
}

// ---- lines ----

TEST_F(VoucherEntry, an_account_is_typed_by_code_name_or_pinyin) {
    new_voucher();
    const std::pair<const char*, const char*> typed[] = {// typed, account
                                                         {"1131", "1131"},
                                                         {" 1131 ", "1131"},
                                                         {"１００１", "1001"},
                                                         {"主营业务收入", "5101"},
                                                         {"qtysk", "1133"},
                                                         {"工行", "100201"}};
    int row = 0;
    for (const auto& [text, code] : typed) {
        anna->cell(row, "KM_ID", text);
        EXPECT_EQ(anna->rows()[static_cast<std::size_t>(row)].at("KM_ID"), code) << text;
        ++row;
    }
    EXPECT_EQ(anna->rows()[5].at("KM_NAME_NEW"), "银行存款-工行");
}

TEST_F(VoucherEntry, an_account_that_takes_no_entries_is_refused_with_the_reason) {
    new_voucher();
    const std::pair<const char*, const char*> refusals[] = {
        {"1002", "科目 1002 银行存款 还有下级科目,不能直接记帐!请录入它的末级科目。"},
        {"9999", "科目 9999 不存在!请按 F4 选择科目,或先在会计科目中新增。"},
        {"应收", "有 2 个科目与“应收”相符!请录入完整的科目代号,或按 F4 选择。"},
    };
    for (const auto& [typed, message] : refusals) {
        anna->cannot_cell(0, "KM_ID", typed);
        anna->expect_message(message);
        EXPECT_EQ(anna->rows()[0].at("KM_ID"), "");
    }
}

TEST_F(VoucherEntry, a_line_carries_an_amount_on_one_side_only) {
    new_voucher();
    struct Step {
        const char* field;
        const char* typed;
        const char* debit;
        const char* credit;
    };
    const Step steps[] = {
        // field typed  debit    credit
        {"J", "100", "100.00", "0.00"},   {"D", "30", "0.00", "30.00"},
        {"J", "0", "0.00", "30.00"},      {"J", "-5", "-5.00", "30.00"},
        {"J", "12.345", "12.35", "0.00"}, {"D", "-12.35", "12.35", "-12.35"},
    };
    for (const Step& step : steps) {
        anna->cell(0, step.field, step.typed);
        const Row line = anna->rows()[0];
        EXPECT_EQ(line.at("J"), step.debit) << step.field << step.typed;
        EXPECT_EQ(line.at("D"), step.credit) << step.field << step.typed;
    }
}

TEST_F(VoucherEntry, a_negative_amount_is_red) {
    new_voucher();
    anna->cell(0, "D", "-12.35");
    EXPECT_EQ(anna->colors(0).at("D").at("font"), 255);
    EXPECT_FALSE(anna->colors(0).contains("J"));
}

TEST_F(VoucherEntry, space_in_an_amount_swaps_the_sides) {
    new_voucher();
    anna->line(0, {{"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna->key("Space", "DBGridEh");
    EXPECT_EQ(anna->rows()[0].at("J"), "0.00");
    EXPECT_EQ(anna->rows()[0].at("D"), "100.00");
    anna->key("Space", "DBGridEh");
    EXPECT_EQ(anna->rows()[0].at("J"), "100.00");
}

TEST_F(VoucherEntry, an_equals_sign_fills_in_what_balances_the_voucher) {
    new_voucher();
    anna->cell(0, "J", "100");
    anna->cell(1, "J", "17");
    anna->cell(2, "D", "=");
    EXPECT_EQ(anna->rows()[2].at("D"), "117.00");
    EXPECT_FALSE(anna->visible("Difference"));
}

TEST_F(VoucherEntry, the_difference_is_shown_with_its_side) {
    new_voucher();
    anna->cell(0, "J", "100");
    EXPECT_EQ(anna->value("Difference"), "差额 借多 100.00");
    anna->cell(1, "D", "129.5");
    EXPECT_EQ(anna->value("Difference"), "差额 贷多 29.50");
    EXPECT_EQ(anna->footer("J"), "100.00");
    EXPECT_EQ(anna->footer("D"), "129.50");
    EXPECT_EQ(anna->footer("KM_NAME_NEW"), "壹佰元整");
}

TEST_F(VoucherEntry, the_keyboard_alone_is_enough) {
    new_voucher();
    anna->focus("DBGridEh");
    const auto type = [this](const std::string& text) {
        for (const char character : text) anna->key(std::string(1, character));
    };
    for (const char* account : {"1001", "1131", "1133", "5101", "1001", "1131", "1133", "5101"}) {
        type("sale");
        anna->key("Enter"); // to the account
        type(account);
        anna->key("Enter"); // to the debit
        type("5");
        anna->key("Enter"); // to the credit
        anna->key("Enter"); // to the next line
    }
    const Rows lines = anna->rows();
    ASSERT_GE(lines.size(), 8u);
    for (int row = 0; row < 8; ++row) {
        const Row& line = lines[static_cast<std::size_t>(row)];
        EXPECT_EQ(line.at("ZY"), "sale") << row;
        EXPECT_EQ(line.at("J"), "5.00") << row;
    }
    EXPECT_EQ(lines[7].at("KM_ID"), "5101");
}

TEST_F(VoucherEntry, enter_in_the_last_summary_appends_a_line) {
    new_voucher();
    anna->cell(5, "ZY", "收货款");
    anna->key("Enter", "DBGridEh");
    EXPECT_EQ(anna->row_count(), 7);
}

TEST_F(VoucherEntry, enter_in_a_blank_line_takes_over_the_summary_above) {
    new_voucher();
    anna->line(0, {{"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna->row(1);
    anna->cell(1, "ZY", "");
    anna->key("Enter", "DBGridEh");
    EXPECT_EQ(anna->rows()[1].at("ZY"), "收货款");
}

TEST_F(VoucherEntry, the_summary_picker_finds_by_text_and_pinyin) {
    new_voucher();
    anna->lookup_cell(0, "ZY");
    anna->expect_active("TF6661_2");
    EXPECT_EQ(anna->row_count(), 2);
    anna->mark();
    anna->set("wl_name", "货");
    EXPECT_EQ(anna->row_count(), 1);
    anna->set("wl_name", "无'");
    EXPECT_EQ(anna->row_count(), 0);
    anna->set("wl_name", "tx");
    EXPECT_EQ(anna->row_count(), 1);
    EXPECT_EQ(anna->sent_texts(),
              (std::vector<std::string>{" SELECT * FROM D6803 WHERE (ZY like '%货%')",
                                        " SELECT * FROM D6803 WHERE (ZY like '%无''%')",
                                        " SELECT * FROM D6803 WHERE (ZY like '%tx%')"}));
    anna->set("wl_name", "");
    EXPECT_EQ(anna->sent_texts().back(), " SELECT * FROM D6803");
    anna->set("wl_name", "tx");
    anna->click("btn_ok");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->rows()[0].at("ZY"), "提现");
}

TEST_F(VoucherEntry, the_account_picker_finds_by_code_name_and_pinyin) {
    new_voucher();
    anna->lookup_cell(0, "KM_ID");
    anna->expect_active("TF6661_3");
    const std::pair<const char*, int> searches[] = {
        {"", 5}, {"113", 2}, {"应收", 2}, {"ys", 2}, {" XJ ", 1}, {"1002", 1}, {"无", 0}};
    for (const auto& [text, hits] : searches) {
        anna->set("wl_id", text);
        EXPECT_EQ(anna->row_count(), hits) << text;
    }
    anna->set("wl_id", "qt");
    anna->click("btn_ins");
    anna->expect_active("TF6661_3");
    anna->click("btn_Cancel");
    EXPECT_EQ(anna->rows()[0].at("KM_ID"), "1133");
    EXPECT_EQ(anna->rows()[0].at("KM_NAME_NEW"), "其他应收款");
}

TEST_F(VoucherEntry, allocation_needs_a_line_on_a_cash_account) {
    new_voucher();
    anna->line(0, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"J", "100"}});
    anna->click("Act_xj");
    anna->expect_message("当前凭证没有现金流量核算的科目存在!不需要进行现金流量的分配!");
}

// What the grid offers while the text is typed in the first line, a row a text.
std::vector<std::string> offered(Person& anna, const std::string& field, const std::string& typed) {
    std::vector<std::string> rows;
    anna.focus("DBGridEh");
    anna.row(0);
    anna.inside([&] {
        host::TForm& form = *host::the_host().active;
        auto& grid = dynamic_cast<host::TDBGridEh&>(*form.FindComponent("DBGridEh"));
        grid.SelectField(field);
        grid.start_edit();
        grid.set_edit_text(typed);
        for (const host::Suggestion& one : grid.suggestions()) {
            std::string row;
            for (const std::string& cell : one.cells) row += (row.empty() ? "" : " ") + cell;
            rows.push_back(row);
        }
        grid.cancel_edit();
    });
    return rows;
}

TEST_F(VoucherEntry, accounts_are_suggested_with_their_side_and_balance) {
    new_voucher();
    EXPECT_EQ(offered(*anna, "KM_ID", "ys"),
              (std::vector<std::string>{"1131 应收帐款 YSZK 借 585.00",
                                        "1133 其他应收款 QTYSK 平 0.00"}));
    EXPECT_EQ(offered(*anna, "KM_ID", "1").front(), "1001 现金 XJ 借 350.00");
    EXPECT_EQ(offered(*anna, "KM_ID", "现").size(), 1u);
    EXPECT_TRUE(offered(*anna, "KM_ID", "无此科目").empty());
}

TEST_F(VoucherEntry, summaries_are_suggested_by_text_and_pinyin) {
    new_voucher();
    EXPECT_EQ(offered(*anna, "ZY", "tx"), (std::vector<std::string>{"提现 TX"}));
    EXPECT_EQ(offered(*anna, "ZY", "").size(), 2u);
}

TEST_F(VoucherEntry, a_picker_is_worked_by_keys_alone) {
    new_voucher();
    anna->focus("DBGridEh");
    anna->key("F4");
    anna->expect_active("TF6661_2");
    anna->key("Down");
    anna->key("Enter");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->rows()[0].at("ZY"), "提现");
    anna->key("Enter");
    anna->key("F4");
    anna->expect_active("TF6661_3");
    for (const char* letter : {"y", "s"}) anna->key(letter);
    anna->key("Down");
    anna->key("Insert");
    anna->key("Esc");
    anna->expect_active("TF6661_1");
    EXPECT_EQ(anna->rows()[0].at("KM_ID"), "1133");
}

TEST_F(VoucherEntry, a_summary_holds_a_hundred_characters) {
    new_voucher();
    std::string hundred;
    for (int i = 0; i < 100; ++i) hundred += "帐";
    anna->cell(0, "ZY", hundred);
    EXPECT_EQ(anna->rows()[0].at("ZY"), hundred);
    anna->cannot_cell(1, "ZY", hundred + "帐");
    EXPECT_NE(anna->next_message().find("100"), std::string::npos);
}

TEST_F(VoucherEntry, a_text_is_no_amount) {
    new_voucher();
    for (const char* typed : {"abc", "1;2", "--5", "1e9", "99999999999999999999"}) {
        anna->cannot_cell(0, "J", typed);
        EXPECT_NE(anna->next_message(), "") << typed;
    }
}

TEST_F(VoucherEntry, a_number_below_one_is_refused) {
    new_voucher();
    anna->cannot_set("PZZ_H", "0");
    EXPECT_NE(anna->next_message().find("1"), std::string::npos);
}

} // namespace
} // namespace tests
