// The ledgers on real books: what was entered and posted stands in them, to the cent.
#include "tests/forms/ledger_desk.h"

#include <algorithm>

namespace tests {

namespace {

// March 2024: 1000.00 of capital paid in cash, 30.50 and 12.25 spent on selling (in two
// sub-accounts), 200.00 put aside as other money; all posted. Then 50.00 taken in cash, not posted.
class LedgerFigures : public LedgerDesk {
protected:
    LedgerFigures() {
        new_voucher();
        save_voucher("1001", "3101", "1000");
        save_voucher("550109", "1001", "30.50");
        save_voucher("550101", "1001", "12.25");
        save_voucher("100901", "1001", "200");
        anna.close();
        audit_all();
        post();
        new_voucher();
        save_voucher("1001", "5102", "50");
        anna.close();
    }
    void detailed_ledger(const std::string& first, const std::string& last, bool unposted) {
        anna.open(685);
        anna.set("KM1", first);
        anna.set("KM2", last);
        anna.check("YS", unposted);
        anna.click("btn_ok");
        anna.expect_active("TF6685");
    }
    // "期初余额   平 0.00", a line a row; a voucher's number stands before its summary.
    std::string ledger() {
        std::string text;
        for (const Row& row : anna.rows()) {
            const std::string& voucher = row.at("PZZ");
            text += (voucher.empty() ? row.at("ZY") : voucher) + " " + row.at("J") + " " +
                    row.at("D") + " " + row.at("FX") + " " + row.at("E") + "\n";
        }
        return text;
    }
    // The rows of one account in a grid of several.
    Rows rows_of(const std::string& account_code) {
        Rows found;
        for (const Row& row : anna.rows())
            if (row.at("KM_ID") == account_code) found.push_back(row);
        return found;
    }
};

const std::string posted_cash = "期初余额   平 0.00\n"
                                "记-1 1000.00 0.00 借 1000.00\n"
                                "记-2 0.00 30.50 借 969.50\n"
                                "记-3 0.00 12.25 借 957.25\n"
                                "记-4 0.00 200.00 借 757.25\n";

} // namespace

TEST_F(LedgerFigures, the_balance_runs_from_line_to_line) {
    detailed_ledger("1001", "1001", false);
    EXPECT_EQ(ledger(), posted_cash + "本期合计 1000.00 242.75 借 757.25\n"
                                      "本年累计 1000.00 242.75 借 757.25\n");
    EXPECT_EQ(anna.rows()[1].at("BDATE"), "2024-03-15");
}

TEST_F(LedgerFigures, unposted_vouchers_stand_in_it_when_asked_for) {
    detailed_ledger("1001", "1001", true);
    EXPECT_EQ(ledger(), posted_cash + "记-5 50.00 0.00 借 807.25\n"
                                      "本期合计 1050.00 242.75 借 807.25\n"
                                      "本年累计 1050.00 242.75 借 807.25\n");
}

TEST_F(LedgerFigures, one_account_brings_the_lines_of_everything_below_it) {
    detailed_ledger("5501", "5501", false);
    EXPECT_EQ(ledger(), "期初余额   平 0.00\n"
                        "记-2 30.50 0.00 借 30.50\n"
                        "记-3 12.25 0.00 借 42.75\n"
                        "本期合计 42.75 0.00 借 42.75\n"
                        "本年累计 42.75 0.00 借 42.75\n");
}

TEST_F(LedgerFigures, a_range_lists_account_after_account) {
    detailed_ledger("1001", "3101", false);
    EXPECT_EQ(rows_of("1001").size(), 7U);
    EXPECT_EQ(rows_of("3101")[1].at("FX"), "贷");
    EXPECT_EQ(rows_of("3101")[1].at("E"), "1000.00");
    for (const Row& group : anna.rows("GroupGrid")) {
        if (group.at("KM_ID") == "100901") {
            EXPECT_EQ(group.at("E"), "200.00");
        }
        EXPECT_NE(group.at("KM_ID"), "1009"); // its lines stand below it
    }
}

TEST_F(LedgerFigures, the_general_ledger_agrees_with_the_trial_balance_and_leads_to_the_lines) {
    anna.open(686);
    anna.set("KM1", "1001");
    anna.set("KM2", "1009");
    anna.click("btn_ok");
    const Rows cash = rows_of("1001");
    ASSERT_EQ(cash.size(), 3U); // opening, month, year
    EXPECT_EQ(cash[1].at("J"), "1000.00");
    EXPECT_EQ(cash[1].at("D"), "242.75");
    EXPECT_EQ(cash[1].at("E"), "757.25");
    EXPECT_EQ(rows_of("1009")[1].at("J"), "200.00");
    EXPECT_TRUE(rows_of("1002").empty()); // no turnover
    anna.double_click(1, "J");
    anna.expect_active("TF6685");
    EXPECT_EQ(ledger(), posted_cash + "本期合计 1000.00 242.75 借 757.25\n"
                                      "本年累计 1000.00 242.75 借 757.25\n");
    anna.double_click(2, "D");
    anna.expect_active("TF6661_1");
    EXPECT_EQ(anna.value("PZZ_H"), "2");
}

TEST_F(LedgerFigures, the_general_ledger_goes_down_to_the_level_asked_for) {
    anna.open(686);
    anna.set("KM1", "1009");
    anna.set("PZZ_H", "2");
    anna.click("btn_ok");
    EXPECT_EQ(rows_of("100901")[1].at("J"), "200.00");
    EXPECT_EQ(rows_of("550109")[1].at("J"), "30.50");
    anna.key("F3");
    anna.set("KM1", "1009");
    anna.set("KM2", "1009");
    anna.set("PZZ_H", "1");
    anna.check("YS", false);
    anna.click("btn_ok");
    EXPECT_EQ(anna.row_count(), 3);
}

TEST_F(LedgerFigures, the_trial_balance_goes_down_to_its_level_and_sums_the_top_level_alone) {
    const auto deepest = [&] {
        int level = 0;
        for (const Row& row : anna.rows()) level = std::max(level, std::stoi(row.at("KM_J")));
        return level;
    };
    for (const int level : {1, 2, 5}) {
        trial_balance(std::to_string(level));
        EXPECT_EQ(deepest(), std::min(level, 2));
        for (const char* sum : {"C1", "C2"}) EXPECT_EQ(anna.footer(sum), "1242.75");
        for (const char* sum : {"D1", "D2"}) EXPECT_EQ(anna.footer(sum), "1000.00");
        EXPECT_TRUE(account("1002").empty()); // no figures
        anna.close();
    }
}

TEST_F(LedgerFigures, an_account_without_its_closing_balance_is_not_in_the_trial_balance) {
    written_past_forms = true;
    trial_balance("1");
    EXPECT_FALSE(account("1001").empty());
    anna.close();
    books.execute("DELETE FROM D6602 WHERE KM_ID='1001' AND INX=1 AND QJ='2024-03'");
    trial_balance("1");
    EXPECT_TRUE(account("1001").empty());
    EXPECT_TRUE(anna.visible("Unbalanced"));
    EXPECT_FALSE(anna.visible("Balanced"));
}

TEST_F(LedgerFigures, a_balance_of_the_trial_balance_leads_to_its_lines) {
    trial_balance("2");
    int row = 0;
    for (const Row& one : anna.rows()) {
        if (one.at("KM_ID") == "550109") break;
        ++row;
    }
    anna.double_click(row, "D1");
    anna.expect_active("TF6685");
    EXPECT_EQ(ledger(), "期初余额   平 0.00\n"
                        "记-2 30.50 0.00 借 30.50\n"
                        "本期合计 30.50 0.00 借 30.50\n"
                        "本年累计 30.50 0.00 借 30.50\n");
}

TEST_F(LedgerFigures, sub_accounts_are_added_up_under_their_top_level_account) {
    anna.open(684);
    anna.click("btn_ok");
    EXPECT_EQ(account("5501").at("J"), "42.75");
    EXPECT_EQ(account("1001").at("J"), "1050.00");
    EXPECT_EQ(account("1001").at("D"), "242.75");
    EXPECT_EQ(account("1009").at("J"), "200.00");
    EXPECT_EQ(anna.footer("J"), "1292.75"); // 1000 + 30.50 + 12.25 + 200 + 50
    EXPECT_EQ(anna.footer("D"), "1292.75");
    EXPECT_NE(anna.value("ConditionLabel").find("●凭证共：5 张   ●附件共:0 张"),
              std::string::npos);
}

TEST_F(LedgerFigures, a_top_level_code_that_no_account_has_drops_out_of_the_account_summary) {
    written_past_forms = true;
    books.execute("UPDATE D6601A SET KM_ID='550X01' WHERE KM_ID='550101'");
    anna.open(684);
    anna.click("btn_ok");
    EXPECT_EQ(account("5501").at("J"), "30.50");
    EXPECT_EQ(anna.footer("J"), "1280.50"); // without the 12.25
    EXPECT_TRUE(account("550X").empty());
}

TEST_F(LedgerFigures, the_account_summary_tells_posted_from_unposted) {
    anna.open(684);
    anna.check("R3");
    anna.click("btn_ok");
    EXPECT_EQ(anna.row_count(), 2);
    EXPECT_EQ(account("1001").at("J"), "50.00");
    EXPECT_EQ(account("5102").at("D"), "50.00");
    anna.key("F3");
    anna.check("R1");
    anna.set("PZZ_H1", "2");
    anna.set("PZZ_H2", "3");
    anna.click("btn_ok");
    EXPECT_EQ(anna.footer("J"), "42.75");
    anna.key("F3");
    anna.set("BDATE", "2024-04-01");
    anna.set("EDATE", "2024-04-30");
    anna.click("btn_ok");
    EXPECT_EQ(anna.row_count(), 0);
    EXPECT_TRUE(anna.value("ConditionLabel").ends_with("●凭证共：0 张   ●附件共:0 张"));
}

TEST_F(LedgerFigures, the_journal_offers_cash_and_bank_accounts_and_names_the_other_side) {
    anna.open(690);
    for (const Row& row : anna.rows()) {
        const std::string start = row.at("KM_ID").substr(0, 4);
        EXPECT_TRUE(start == "1001" || start == "1002") << row.at("KM_ID");
    }
    EXPECT_EQ(anna.rows()[0].at("KM_ID"), "1001");
    anna.row(0);
    anna.click("btn_ok");
    anna.expect_active("TF6690");
    const Rows rows = anna.rows();
    ASSERT_EQ(rows.size(), 8U);
    const char* others[] = {"", "实收资本", "营业费用-", "营业费用-", "其他货币资金-",
                            "其他业务收入", "", ""};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string other = rows[i].at("KM_ID_DF") == "<null>" ? "" : rows[i].at("KM_ID_DF");
        EXPECT_TRUE(other.starts_with(others[i])) << i << " " << other;
    }
    EXPECT_EQ(rows[5].at("E"), "807.25");
}

TEST_F(LedgerFigures, a_journal_before_the_books_began_is_empty) {
    anna.open(690);
    anna.row(0);
    anna.set("EDT2", "1");
    anna.set("EDT3", "1");
    anna.click("btn_ok");
    anna.expect_active("TF6690");
    EXPECT_EQ(anna.row_count(), 3); // opening and totals of January, all 0
    EXPECT_EQ(anna.rows()[2].at("E"), "0.00");
}

} // namespace tests
