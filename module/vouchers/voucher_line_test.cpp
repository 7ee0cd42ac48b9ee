// A voucher is saved only when its lines are complete and its debits equal its credits.
#include "module/vouchers/voucher_line.h"

namespace module {
namespace {

VoucherLine line(const char* summary, const char* account, const char* debit, const char* credit) {
    return {summary, account, *Amount::parse(debit), *Amount::parse(credit)};
}

const char* const no_summary = "摘要不能为空!";
const char* const no_amount = "请填写借或贷的金额!";
const char* const too_few = "必须有两行以上完整地填写科目，及借或贷金额!";
const char* const unbalanced = "借贷不平衡!";

struct Attempt {
    const char* rule;
    std::vector<VoucherLine> lines;
    const char* verdict; // "" saved
};

std::vector<Attempt> attempts() {
    const VoucherLine debit = line("收货款", "1002", "100", "0");
    const VoucherLine credit = line("收货款", "1131", "0", "100");
    const VoucherLine blank = line("", "", "0", "0");
    return {
        // rule, lines, verdict
        {"two lines that balance", {debit, credit}, ""},
        {"blank lines do not matter", {debit, blank, credit, blank}, ""},
        {"a cent is missing", {debit, line("收货款", "1131", "0", "99.99")}, unbalanced},
        {"an account without summary", {debit, credit, line(" ", "1001", "0", "0")}, no_summary},
        {"a line without amount", {debit, credit, line("提现", "1001", "0", "0")}, no_amount},
        {"debit and credit cancel each other",
         {debit, credit, line("提现", "1001", "100", "-100")},
         no_amount},
        {"the last faulty line is told",
         {line("", "1002", "100", "0"), line("提现", "1131", "0", "0")},
         no_amount},
        {"one line alone", {line("收货款", "1002", "100", "0")}, too_few},
        {"one line with an account", {debit, line("收货款", "", "0", "100")}, too_few},
        {"no line at all", {}, too_few},
        {"a negative debit balances a negative credit",
         {line("冲销", "1002", "-100", "0"), line("冲销", "1131", "0", "-100")},
         ""},
        {"an amount without summary and account is counted on the screen",
         {debit, credit, line("", "", "50", "0")},
         unbalanced},
        {"what is left out must balance as well",
         {debit, line("收货款", "1131", "0", "60"), line("", "", "0", "40")},
         unbalanced},
        {"amounts left out on both sides",
         {debit, credit, line("", "", "50", "0"), line("", "", "0", "50")},
         ""},
        {"an amount with summary needs an account",
         {debit, credit, line("运费", "", "5", "0"), line("运费", "", "0", "5")},
         "第 3 行没有科目!请录入科目代号,或删除该行。"},
        {"a summary alone is a remark", {debit, credit, line("运费", "", "0", "0")}, ""},
    };
}

TEST(VoucherLine, decides_whether_a_voucher_is_saved) {
    for (const Attempt& attempt : attempts()) {
        const auto refusal = why_not_saved(attempt.lines);
        EXPECT_EQ(refusal ? refusal->message : "", attempt.verdict) << attempt.rule;
    }
}

TEST(VoucherLine, lines_without_a_summary_and_summaries_only_repeated_are_not_saved) {
    const std::vector<VoucherLine> lines = {
        line("收货款", "1002", "100", "0"), line("  ", "", "0", "0"),
        line("收货款", "1131", "0", "100"), line("收货款", "", "0", "0"), // by Enter
        line("见合同 12 号", "", "0", "0"), line("", "", "7", "0"),
    };
    std::string kept;
    for (const VoucherLine& one : lines_to_save(lines)) kept += one.summary + one.account + ";";
    EXPECT_EQ(kept, "收货款1002;收货款1131;见合同 12 号;");
}

TEST(VoucherLine, remarks_and_unnamed_lines_move_no_account) {
    EXPECT_TRUE(line("收货款", "1002", "100", "0").is_booked());
    EXPECT_FALSE(line("收货款", "", "0", "0").is_booked());
    EXPECT_FALSE(line("  ", "", "100", "0").is_booked());
    EXPECT_FALSE(line("", "", "0", "0").is_booked());
}

} // namespace
} // namespace module
