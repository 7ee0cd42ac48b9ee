// Posting that the person stops: the books stay as they were, to the last row.
#include "app/data/engine_data.h"
#include "automation/check/check.h"
#include "app/books/open.h"
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class StoppedPosting : public LedgerDesk {
protected:
    StoppedPosting() {
        new_voucher();
        save_voucher("1001", "1002", "100");
        audit_all();
    }
    // What the person answers while the database works; nullptr ends the listening.
    void while_working(app::EngineData::Progress answer) {
        anna.inside([&] {
            static_cast<app::EngineData&>(books.data())
                .report_progress(std::move(answer), std::chrono::milliseconds{0});
        });
    }
    std::string balances() {
        return books.value("SELECT CAST(COUNT(*) AS varchar) + '/' + CAST(SUM(J+D) AS varchar) "
                           "FROM D6602 WHERE QJ='2024-03'");
    }
    std::string posted() { return books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"); }
    std::string logged() { return books.value("SELECT LAST_ID FROM SYS_LOG_HEAD"); }
};

} // namespace

TEST_F(StoppedPosting, leaves_the_books_as_they_were_and_says_so) {
    const std::string before = balances(), log = logged();
    // Stopped in the middle: half of the statements have run.
    while_working([](std::int64_t done, std::int64_t total) {
        return total == 1 || done < total / 2;
    });
    anna.open(663);
    anna.click("btn_ok");
    anna.expect_message("操作已取消,没有改动任何数据!");
    EXPECT_EQ(anna.sent().back().call, "ExecSql");
    EXPECT_NE(anna.sent().back().answer, "Y");
    EXPECT_EQ(balances(), before);
    EXPECT_EQ(posted(), "0");
    EXPECT_EQ(logged(), log);
    EXPECT_TRUE(automation::check_books(*app::open_books(books.file().string())).empty());
    while_working(nullptr);
    anna.click("btn_ok");
    anna.expect_message("登帐完成!");
    EXPECT_EQ(posted(), "1");
}

TEST_F(StoppedPosting, unposting_can_be_stopped_too) {
    post();
    const std::string before = balances();
    while_working([](std::int64_t done, std::int64_t total) { return done == total; });
    anna.open(663);
    anna.click("btn_re");
    // Short work may be done before anybody can stop it; then it is done as a whole.
    const std::string message = anna.next_message();
    while_working(nullptr);
    if (message == "操作已取消,没有改动任何数据!") {
        EXPECT_EQ(balances(), before);
        EXPECT_EQ(posted(), "1");
    } else {
        EXPECT_EQ(message, "反登帐完成!");
        EXPECT_EQ(posted(), "0");
    }
}

TEST_F(StoppedPosting, progress_of_posting_never_goes_back_and_ends) {
    std::vector<std::pair<std::int64_t, std::int64_t>> told;
    while_working([&](std::int64_t done, std::int64_t total) {
        told.emplace_back(done, total);
        return true;
    });
    post();
    while_working(nullptr);
    // The form's queries tell their rows, of 0; posting tells its statements.
    std::int64_t last = -1, calls = 0, statements = 0;
    for (const auto& [done, total] : told) statements = std::max(statements, total);
    EXPECT_GT(statements, 5);
    for (const auto& [done, total] : told) {
        if (total != statements) continue;
        EXPECT_GE(done, last);
        EXPECT_LT(done, total);
        last = done;
        ++calls;
    }
    EXPECT_GT(calls, 5);
    EXPECT_EQ(told.back().first, told.back().second);
}

} // namespace tests
