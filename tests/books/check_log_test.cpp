// The operation log: every way of bending it shows, as far as it can without help from outside.
#include "automation/check/log_seal.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

// Row 1 made the books, row 2 set them up, rows 3 to 6 wrote the vouchers 1 to 4.
class CheckLog : public Ledger {
protected:
    CheckLog() {
        for (int number = 1; number <= 4; ++number)
            voucher(number, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        EXPECT_EQ(findings(), "");
    }
    std::string last() { return value("SELECT LAST_ID FROM SYS_LOG_HEAD"); }
};

} // namespace

TEST_F(CheckLog, a_row_changed) {
    damage("UPDATE SYS_LOG SET USER_ID = 'li' WHERE ID = 4");
    EXPECT_TRUE(finds("操作日志", "第 4 条记录(2024-03-15 ")) << findings();
    EXPECT_TRUE(finds("操作日志", " li 661 2024-03记002)被改动过")) << findings();
    damage("UPDATE SYS_LOG SET USER_ID = 'admin' WHERE ID = 4");
    EXPECT_EQ(findings(), "");
}

TEST_F(CheckLog, rows_taken_out_of_the_middle) {
    damage("DELETE FROM SYS_LOG WHERE ID = 2 OR ID = 3");
    EXPECT_TRUE(finds("操作日志", "缺少第 2 条到第 3 条记录")) << findings();
    EXPECT_TRUE(finds("操作日志", "内容没有所属的记录: 第 2 条")) << findings();
}

TEST_F(CheckLog, the_first_row_taken_out) {
    damage("DELETE FROM SYS_LOG WHERE ID = 1");
    EXPECT_TRUE(finds("操作日志", "缺少第 1 条记录")) << findings();
}

TEST_F(CheckLog, a_row_slipped_in_before_the_first) {
    damage("INSERT INTO SYS_LOG (ID, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, OPERATION, DIGEST, "
           "HASH) SELECT 0, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, OPERATION, DIGEST, HASH "
           "FROM SYS_LOG WHERE ID = 1");
    EXPECT_TRUE(finds("操作日志", "第 0 条记录")) << findings();
}

TEST_F(CheckLog, rows_cut_off_the_end) {
    damage("DELETE FROM SYS_LOG WHERE ID = " + last());
    EXPECT_TRUE(finds("操作日志", "日志末尾被截去: 缺少第 6 条记录")) << findings();
    damage("DELETE FROM SYS_LOG WHERE ID > 2; DELETE FROM SYS_LOG_TEXT WHERE ID > 2");
    EXPECT_TRUE(finds("操作日志", "日志末尾被截去: 缺少第 3 条到第 6 条记录")) << findings();
}

TEST_F(CheckLog, an_end_cut_off_stays_visible_when_work_goes_on) {
    damage("DELETE FROM SYS_LOG WHERE ID > 4; DELETE FROM SYS_LOG_TEXT WHERE ID > 4");
    voucher(5, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    EXPECT_TRUE(finds("操作日志", "缺少第 5 条到第 6 条记录")) << findings();
}

TEST_F(CheckLog, a_row_put_behind_the_end) {
    damage("INSERT INTO SYS_LOG (ID, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, OPERATION, DIGEST, "
           "HASH) SELECT 7, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, OPERATION, DIGEST, HASH "
           "FROM SYS_LOG WHERE ID = 6");
    EXPECT_TRUE(finds("操作日志", "日志末尾被添加: 第 7 条记录在记载的末尾之后")) << findings();
}

TEST_F(CheckLog, the_last_row_written_anew_with_a_fitting_chain) {
    // The hash of the row is what the head holds: changing both the row and its hash shows there.
    damage("UPDATE SYS_LOG SET HASH = REPLICATE('0', 64) WHERE ID = 6");
    EXPECT_TRUE(finds("操作日志", "日志末尾被改动: 第 6 条记录与记载的末尾不符")) << findings();
}

TEST_F(CheckLog, the_head_taken_away) {
    damage("DELETE FROM SYS_LOG_HEAD");
    EXPECT_TRUE(finds("操作日志", "日志末尾的记载(SYS_LOG_HEAD)不见了")) << findings();
    voucher(5, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    EXPECT_TRUE(finds("操作日志", "日志末尾的记载(SYS_LOG_HEAD)不见了")) << findings();
    EXPECT_FALSE(finds("操作日志", "缺少")) << findings();
}

TEST_F(CheckLog, a_text_changed_or_taken_away) {
    damage("UPDATE SYS_LOG_TEXT SET BATCH = REPLACE(BATCH, '100.00', '900.00') WHERE ID = 5");
    damage("DELETE FROM SYS_LOG_TEXT WHERE ID = 4");
    EXPECT_TRUE(finds("操作日志", "661 2024-03记003)的内容被改动过")) << findings();
    EXPECT_TRUE(finds("操作日志", "661 2024-03记002)的内容被删去")) << findings();
}

TEST_F(CheckLog, a_seal_kept_outside_shows_a_log_made_anew) {
    const std::string seal = automation::log_seal(*session_);
    EXPECT_TRUE(seal.starts_with("6-"));
    voucher(5, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    EXPECT_EQ(automation::broken_seal(*session_, seal), ""); // what followed does not break it
    damage("DELETE FROM SYS_LOG; DELETE FROM SYS_LOG_TEXT;"
           "UPDATE SYS_LOG_HEAD SET LAST_ID = 0, HASH = ''");
    EXPECT_FALSE(finds("操作日志", "")) << "a log emptied together with its head shows nothing";
    EXPECT_EQ(automation::log_seal(*session_), "");
    EXPECT_EQ(automation::broken_seal(*session_, seal), "封条 " + seal + " 对不上: 没有第 6 条记录");
    for (int number = 6; number <= 11; ++number)
        voucher(number, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    EXPECT_TRUE(automation::broken_seal(*session_, seal)->starts_with(
        "封条 " + seal + " 对不上: 第 6 条记录的校验码是 "));
}

TEST_F(CheckLog, what_is_no_seal_is_not_compared) {
    for (const char* text : {"", "5", "x-0123456789abcdef", "5-0123", "0-0123456789abcdef",
                             "5-0123456789ABCDEF", "5-0123456789abcdef0", "-0123456789abcdef"})
        EXPECT_EQ(automation::broken_seal(*session_, text), std::nullopt) << text;
}

} // namespace tests
