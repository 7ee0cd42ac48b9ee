// Templates on real books: kept, found by their lines, applied, deleted.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class TemplateLedger : public LedgerDesk {
protected:
    // Saves a voucher of two lines and keeps it as a template.
    void keep(const std::string& summary, const std::string& debit, const std::string& credit) {
        anna.line(0, {{"ZY", summary}, {"KM_ID", debit}, {"J", "100"}});
        anna.line(1, {{"ZY", "转入"}, {"KM_ID", credit}, {"D", "100"}});
        anna.click("Act_Save");
        anna.close();
        const int last = anna.row_count() - 1;
        anna.row(last);
        anna.click("Action1");
        anna.forget_messages();
        anna.click("Act_Add");
    }
};

TEST_F(TemplateLedger, a_template_is_listed_whole_when_one_line_fits) {
    new_voucher();
    keep("付房租", "1133", "1002");
    keep("提现", "1001", "1002");
    keep("收货款", "1001", "1131");
    anna.click("Act_Other");
    EXPECT_EQ(anna.row_count(), 6);
    struct Search {
        const char* text;
        std::vector<std::string> groups;
    };
    const Search searches[] = {
        {"房租", {"10000", "10000"}},                   // summary of one line
        {"银行", {"10000", "10000", "10001", "10001"}}, // name of one account
        {"yszk", {"10002", "10002"}},                   // pinyin of one account
        {"转入", {"10000", "10000", "10001", "10001", "10002", "10002"}},
        {"'", {}},
    };
    for (const Search& search : searches) {
        anna.set("Edit1", search.text);
        std::vector<std::string> groups;
        for (const Row& row : anna.rows()) groups.push_back(row.at("NOID"));
        EXPECT_EQ(groups, search.groups) << search.text;
    }
}

TEST_F(TemplateLedger, a_template_applied_with_an_amount_is_saved_as_a_voucher) {
    new_voucher();
    keep("收货款", "1001", "1131");
    anna.click("Act_Other");
    anna.set("MONEY", "58.5");
    anna.click("btn_ok");
    anna.click("Act_Save");
    EXPECT_EQ(books.table("SELECT ZY,KM_ID,J,D FROM D6601A WHERE NOID='2024-03记002' ORDER BY INX"),
              (Rows{{{"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "58.50"}, {"D", "0.00"}},
                    {{"ZY", "转入"}, {"KM_ID", "1131"}, {"J", "0.00"}, {"D", "58.50"}}}));
}

TEST_F(TemplateLedger, a_deleted_template_leaves_the_others) {
    new_voucher();
    keep("收货款", "1001", "1131");
    keep("提现", "1001", "1002");
    anna.click("Act_Other");
    anna.row(1);
    anna.click("btn_del");
    EXPECT_EQ(anna.row_count(), 2);
    EXPECT_EQ(books.table("SELECT DISTINCT NOID FROM D6601M"), (Rows{{{"NOID", "10001"}}}));
    anna.click("btn_ok");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "提现");
}

} // namespace
} // namespace tests
