// The conditions of the voucher list, word for word.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class VoucherFilter : public VoucherDesk {
protected:
    void ask() {
        if (!anna) start();
        anna->click("Act_Locate");
        anna->expect_active("TF6661F");
    }
    // The condition that OK put into the list's statement.
    std::string condition() {
        anna->mark();
        anna->click("btn_ok");
        for (const std::string& text : anna->sent_texts()) {
            const std::size_t where = text.find(" WHERE ");
            const std::size_t order = text.find(" ORDER BY D6601");
            if (text.starts_with(" SELECT D6601.*") && where != std::string::npos) {
                return text.substr(where + 7, order - where - 7);
            }
        }
        return "";
    }
};

const std::string march =
    "(D6601.BDATE>='2024-03-01') AND (D6601.BDATE<'2024-04-01') AND (D6601.PZZ_H>=1) AND "
    "(D6601.PZZ_H<=999999)";

TEST_F(VoucherFilter, offers_the_current_period_and_all_numbers) {
    ask();
    EXPECT_EQ(anna->value("BDATE"), "2024-03-01");
    EXPECT_EQ(anna->value("EDATE"), "2024-03-31");
    EXPECT_EQ(anna->value("titDATE"), "(31天)");
    EXPECT_EQ(condition(), march);
    anna->expect_active("TF6661");
    EXPECT_EQ(anna->value("ConditionLabel"),
              " ●凭证日期:(2024-03-01 至 2024-03-31)     ●凭 证 号:(1 至 999999)");
}

TEST_F(VoucherFilter, posting_and_audit_states_narrow_the_list) {
    struct Choice {
        const char* posted;
        const char* audited;
        const char* added;
    };
    const Choice choices[] = {
        {"R1", "S1", ""},
        {"R2", "S1", " AND (D6601.D=1)"},
        {"R3", "S1", " AND (D6601.D=0)"},
        {"R1", "S2", " AND (D6601.T=1)"},
        {"R1", "S3", " AND (D6601.T=0)"},
        {"R3", "S2", " AND (D6601.D=0) AND (D6601.T=1)"},
    };
    for (const Choice& choice : choices) {
        ask();
        anna->check(choice.posted);
        anna->check(choice.audited);
        EXPECT_EQ(condition(), march + choice.added);
    }
}

TEST_F(VoucherFilter, one_day_is_a_range_of_one_day) {
    ask();
    anna->set("BDATE", "2024-03-05");
    anna->set("EDATE", "2024-03-05");
    EXPECT_EQ(anna->value("titDATE"), "(1天)");
    EXPECT_TRUE(
        condition().starts_with("(D6601.BDATE>='2024-03-05') AND (D6601.BDATE<'2024-03-06')"));
}

TEST_F(VoucherFilter, a_range_that_ends_before_it_starts_is_refused) {
    ask();
    anna->set("BDATE", "2024-04-01");
    EXPECT_EQ(condition(), "");
    anna->expect_message("开始日期不能大于结束日期!");
    anna->expect_active("TF6661F");
    EXPECT_EQ(anna->focused(), "BDATE");
}

TEST_F(VoucherFilter, a_word_beyond_all_of_them_narrows_the_list) {
    answer_word_scheme(data, "3");
    ask();
    EXPECT_EQ(anna->value("PZZ"), "所有");
    anna->set("PZZ", "银付");
    EXPECT_EQ(condition(), march + " AND (D6601.pzz='银付')");
}

TEST_F(VoucherFilter, the_states_are_offered_again_next_time) {
    ask();
    anna->check("R2");
    anna->click("btn_ok");
    anna->open(661);
    anna->click("Act_Locate");
    EXPECT_TRUE(anna->checked("R2"));
}

TEST_F(VoucherFilter, cancel_leaves_the_list_as_it_was) {
    ask();
    anna->set("BDATE", "2024-02-01");
    anna->mark();
    anna->click("btn_Cancel");
    EXPECT_TRUE(anna->sent_texts().empty());
    anna->expect_active("TF6661");
}

} // namespace
} // namespace tests
