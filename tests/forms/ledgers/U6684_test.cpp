// The account summary: its conditions word for word, its counts, the way to the lines.
#include "tests/forms/form_desk.h"
#include "tests/forms/ledgers/ledger_answers.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

const std::string march = "(D6601.BDATE>='2024-03-01') AND (D6601.BDATE<'2024-04-01')";
const std::string numbers = " AND (D6601.PZZ_H>=1) AND (D6601.PZZ_H<=9999)";

class AccountSummary : public FormDesk {
protected:
    AccountSummary() : FormDesk(684) {}
    void SetUp() override {
        answer_as_small_books(data);
        answer_detailed_ledger(data);
        scheme("1");
        answer_counts("2", "3");
        data.answer("SELECT tmp.*, D6801.KM_NAME AS KM_NAME FROM",
                    {"KM_ID text", "J money", "D money", "KM_NAME text"},
                    {{"1001", "585", "0", "现金"}, {"1131", "-3", "585", "应收帐款"}});
    }
    void scheme(const std::string& words) {
        data.answer("SELECT id,param  FROM d6600 where id=3", {"id int", "param text"},
                    {{"3", words}});
    }
    void answer_counts(const std::string& vouchers, const std::string& attachments) {
        data.answer("SELECT COUNT(*) AS A, isnull(SUM(PZZ_Z),0) AS B FROM D6601",
                    {"A int", "B int"}, {{vouchers, attachments}});
    }
    // The condition that OK put into the counting statement.
    std::string condition() {
        const std::string counting =
            " SELECT COUNT(*) AS A, isnull(SUM(PZZ_Z),0) AS B FROM D6601 where ";
        person().mark();
        person().click("btn_ok");
        for (const std::string& text : person().sent_texts()) {
            if (text.starts_with(counting)) return text.substr(counting.size());
        }
        return "";
    }
};

TEST_F(AccountSummary, offers_the_current_period_and_all_numbers) {
    Person& anna = person();
    anna.expect_active("TF6684F");
    EXPECT_EQ(anna.value("BDATE"), "2024-03-01");
    EXPECT_EQ(anna.value("EDATE"), "2024-03-31");
    EXPECT_EQ(anna.value("titDATE"), "(31天)");
    EXPECT_EQ(anna.value("PZZ_H1"), "1");
    EXPECT_EQ(anna.value("PZZ_H2"), "9999");
    EXPECT_TRUE(anna.checked("R1"));
    for (const char* number : {"PZZ_H1", "PZZ_H2"}) {
        for (const char* outside : {"0", "10000"}) {
            anna.cannot_set(number, outside);
            EXPECT_TRUE(anna.next_message().ends_with("请录入 1 到 9999 之间的数字。"));
        }
    }
    bool asked = false;
    for (const std::string& text : anna.sent_texts())
        asked = asked || text == "SELECT id,param  FROM d6600 where id=3";
    EXPECT_TRUE(asked);
}

TEST_F(AccountSummary, counts_the_vouchers_and_adds_up_their_lines) {
    Person& anna = person();
    anna.mark();
    anna.click("btn_ok");
    anna.expect_active("TF6684");
    EXPECT_EQ(anna.sent_texts(),
              (std::vector<std::string>{
                  " SELECT COUNT(*) AS A, isnull(SUM(PZZ_Z),0) AS B FROM D6601 where " + march +
                      numbers,
                  "SELECT tmp.*, D6801.KM_NAME AS KM_NAME FROM (SELECT LEFT(D6601A.KM_ID, 4) AS "
                  "KM_ID, SUM(D6601A.J) AS J, SUM(D6601A. D) AS D  FROM D6601A INNER JOIN  D6601 "
                  "ON D6601A.NOID = D6601.NOID  WHERE " +
                      march + numbers +
                      " GROUP BY LEFT(D6601A.KM_ID, 4)) tmp INNER JOIN  D6801 ON tmp.KM_ID = "
                      "D6801.KM_ID  order by D6801.KM_ID"}));
    EXPECT_EQ(anna.sent().back().function, "684");
    EXPECT_EQ(anna.value("ConditionLabel"),
              " ●凭证日期:  (2024-03-01 至 2024-03-31)     ●凭 证 号: (1 至 9999) "
              "●凭证共：2 张   ●附件共:3 张");
    EXPECT_EQ(anna.footer("J"), "582.00"); // 585 less 3
    EXPECT_EQ(anna.footer("D"), "585.00");
    EXPECT_EQ(anna.colors(1).at("J").at("font"), 255);
    EXPECT_TRUE(anna.colors(0).is_null());
}

TEST_F(AccountSummary, the_last_day_counts_in_full) {
    person().set("BDATE", "2016-03-01");
    person().set("EDATE", "2016-03-31");
    EXPECT_EQ(condition(),
              "(D6601.BDATE>='2016-03-01') AND (D6601.BDATE<'2016-04-01')" + numbers);
}

TEST_F(AccountSummary, a_range_that_ends_before_it_starts_is_refused) {
    person().set("BDATE", "2024-04-01");
    EXPECT_EQ(condition(), "");
    person().expect_message("开始日期不能大于结束日期!");
    person().expect_active("TF6684F");
    EXPECT_EQ(person().focused(), "BDATE");
}

TEST_F(AccountSummary, one_day_is_a_range_of_one_day) {
    person().set("BDATE", "2024-03-05");
    person().set("EDATE", "2024-03-05");
    EXPECT_EQ(person().value("titDATE"), "(1天)");
    EXPECT_EQ(condition(),
              "(D6601.BDATE>='2024-03-05') AND (D6601.BDATE<'2024-03-06')" + numbers);
}

TEST_F(AccountSummary, posted_and_unposted_vouchers_may_be_told_apart_and_the_choice_is_kept) {
    person().check("R2");
    EXPECT_EQ(condition(), march + numbers + " AND (D6601.D=1)");
    person().key("F3");
    EXPECT_TRUE(person().checked("R2"));
    person().check("R3");
    EXPECT_EQ(condition(), march + numbers + " AND (D6601.D=0)");
    person().open(684);
    EXPECT_TRUE(person().checked("R3"));
}

TEST_F(AccountSummary, a_word_beyond_all_of_them_narrows_the_range) {
    scheme("3");
    EXPECT_EQ(person().value("PZZ"), "所有");
    EXPECT_EQ(condition(), march + numbers);
    person().key("F3");
    person().set("PZZ", "银收");
    EXPECT_EQ(condition(), march + numbers + " AND (D6601.pzz='银收')");
}

TEST_F(AccountSummary, books_with_one_word_offer_no_choice) {
    EXPECT_FALSE(person().enabled("PZZ"));
    EXPECT_EQ(person().value("PZZ"), "记");
    EXPECT_EQ(condition(), march + numbers);
    leave();
    scheme("2");
    EXPECT_TRUE(person().enabled("PZZ"));
    person().set("PZZ", "转");
}

TEST_F(AccountSummary, a_range_without_vouchers_counts_none) {
    answer_counts("0", "0");
    person().click("btn_ok");
    EXPECT_TRUE(person().value("ConditionLabel").ends_with("●凭证共：0 张   ●附件共:0 张"));
}

TEST_F(AccountSummary, cancelled_it_shows_nothing_and_refresh_says_why) {
    person().click("btn_Cancel");
    EXPECT_EQ(person().row_count(), 0);
    person().click("Act_Refresh");
    person().expect_message("您还没选择任何查询参数,请按【F3】呼出查询选项!");
}

TEST_F(AccountSummary, a_double_click_asks_for_the_lines_of_the_account_in_those_months) {
    struct Range {
        const char *first, *last, *posted, *before, *show, *months;
    };
    const Range ranges[] = {
        {"2024-03-01", "2024-03-31", "R1", "2024-02", "0",
         "@P_month1='2024-03',@P_month2='2024-03'"},
        {"2024-01-15", "2024-03-10", "R2", "2023-12", "1",
         "@P_month1='2024-01',@P_month2='2024-03'"},
        // A ledger lies in one year.
        {"2023-11-01", "2024-02-29", "R1", "2023-12", "0",
         "@P_month1='2024-01',@P_month2='2024-02'"},
    };
    for (const Range& range : ranges) {
        leave();
        Person& anna = person();
        anna.set("BDATE", range.first);
        anna.set("EDATE", range.last);
        anna.check(range.posted);
        anna.click("btn_ok");
        anna.mark();
        anna.double_click(1, "D");
        anna.expect_active("TF6685");
        EXPECT_EQ(anna.sent_texts(),
                  std::vector<std::string>{"EXEC SYS_685 @P_year='" + std::string(range.before) +
                                           "',@p_show='" + range.show +
                                           "',@KM_ID1='1131',@KM_ID2='1131'," + range.months});
        EXPECT_EQ(anna.value("ConditionLabel"), "1131 应收帐款");
        anna.close();
        anna.expect_active("TF6684");
    }
}

} // namespace
} // namespace tests
