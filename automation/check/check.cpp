// The table of checks, in the order in which they are told.
#include "automation/check/check.h"

#include "automation/check/findings.h"

namespace automation {

namespace {

struct Check {
    const char* name;
    void (*run)(engines::Session&, Findings&);
};

constexpr Check checks[] = {
    {"文件", check_storage},
    {"凭证借贷不平", check_unbalanced_vouchers},
    {"孤立的记录", check_orphans},
    {"会计科目", check_accounts},
    {"发生额与凭证不符", check_movements},
    {"期末余额不符", check_closing_balances},
    {"往来单据结算不符", check_settlements},
    {"收付款单金额不符", check_receipts},
    {"操作日志", check_log},
};

} // namespace

std::vector<Finding> check_books(engines::Session& session) {
    std::vector<Finding> all;
    for (const Check& check : checks) {
        Findings findings;
        try {
            check.run(session, findings);
        } catch (const engines::Failure& failure) {
            findings.add(std::string("这一项没有查完: ") + failure.what());
        }
        for (std::string& text : findings.take()) all.push_back({check.name, std::move(text)});
    }
    return all;
}

} // namespace automation
