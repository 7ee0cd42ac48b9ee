// A person before one of the dialogs that post or close the current period.
#pragma once

#include "tests/forms/form_desk.h"

namespace tests {

class PeriodDesk : public FormDesk {
protected:
    using FormDesk::FormDesk;
    // The period and the vouchers that wait in it, from the next look on.
    void answer_counts(const std::string& period, const std::string& to_post,
                       const std::string& not_audited) {
        data.answer(select_counts, {"param text", "I int", "J int"},
                    {{period, to_post, not_audited}});
    }
    void answer_mode(const std::string& mode) {
        data.answer("SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'", {"VALUE text"}, {{mode}});
    }
    void expect_period(const std::string& period, const std::string& to_post,
                       const std::string& not_audited) {
        EXPECT_EQ(person().value("BDATE"), period);
        EXPECT_EQ(person().value("Label7"), to_post);
        EXPECT_EQ(person().value("Label9"), not_audited);
    }
    // Books that were never opened, or not any more, offer neither way.
    void expect_nothing_offered() {
        EXPECT_EQ(person().value("BDATE"),
                  "没有初始建帐!请从  [会计科目初始]  模块进行首次建帐!");
        EXPECT_FALSE(person().enabled("btn_ok"));
        EXPECT_FALSE(person().enabled("btn_re"));
    }
    // They were reset while the dialog stood open: each way says so and writes nothing.
    void expect_reset_books_to_refuse() {
        Person& anna = person();
        answer_counts("", "0", "0");
        anna.click("btn_ok");
        anna.expect_message("没有初始建帐!请从[会计科目初始]模块进行首次建帐!");
        EXPECT_TRUE(data.executed().empty());
        expect_nothing_offered();
    }

    static constexpr const char* select_counts =
        "SELECT param,(SELECT COUNT(*) AS I FROM D6601 WHERE (D = 0) and (t = 1) AND (PZQJ "
        "=(SELECT PARAM FROM D6600 WHERE ID=2))) AS I,(SELECT COUNT(*) AS j FROM D6601 WHERE (t = "
        "0) AND (PZQJ =(SELECT PARAM FROM D6600 WHERE ID=2))) AS J FROM d6600 where id=2";
};

} // namespace tests
