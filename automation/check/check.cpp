// The table of checks, in the order in which they are told.
#include "automation/check/check.h"

#include <chrono>
#include <span>

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
    {"凭证状态不对", check_voucher_states},
    {"凭证号", check_voucher_numbers},
    {"孤立的记录", check_orphans},
    {"会计科目", check_accounts},
    {"余额表行不对", check_balance_rows},
    {"期初余额不符", check_openings},
    {"发生额与凭证不符", check_movements},
    {"期末余额不符", check_closing_balances},
    {"往来单据结算不符", check_settlements},
    {"收付款单金额不符", check_receipts},
    {"操作日志", check_log}, // the last one: it is also asked for alone
};

constexpr std::chrono::milliseconds a_moment{100};

// Tells how far the audit is, also in the middle of a statement, until it is stopped.
class Telling {
public:
    Telling(engines::Session& session, const AuditProgress& progress, std::int64_t all)
        : session_(session), progress_(progress), all_(all) {
        if (!progress_) return;
        session_.set_progress([this](std::int64_t, std::int64_t) { return tell(); }, a_moment);
    }
    ~Telling() {
        if (!progress_) return;
        session_.set_progress({}, a_moment);
        progress_("", 1, 1);
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

    bool begin(const char* check) {
        check_ = check;
        ++done_;
        return tell();
    }
    bool stopped() const { return stopped_; }

private:
    bool tell() {
        if (progress_ && !stopped_) stopped_ = !progress_(check_, done_, all_);
        return !stopped_;
    }
    engines::Session& session_;
    const AuditProgress& progress_;
    const std::int64_t all_;
    const char* check_ = "";
    std::int64_t done_ = -1; // checks that ended
    bool stopped_ = false;
};

// All checks look at one instant: what somebody saves between two of them contradicts neither.
// Where that cannot be had, the checks themselves tell what keeps the books from being read.
class OneInstant {
public:
    explicit OneInstant(engines::Session& session) : session_(session) {
        session_.begin_reading();
    }
    ~OneInstant() { session_.rollback(); }
    OneInstant(const OneInstant&) = delete;
    OneInstant& operator=(const OneInstant&) = delete;

private:
    engines::Session& session_;
};

void run(const Check& check, engines::Session& session, Audit& audit) {
    Findings findings;
    try {
        check.run(session, findings);
    } catch (const engines::Failure& failure) {
        findings.add(std::string("这一项没有查完: ") + failure.what());
    }
    for (std::string& text : findings.take()) audit.findings.push_back({check.name, text});
    for (std::string& text : findings.take_hints()) audit.hints.push_back({check.name, text});
}

std::optional<Audit> run_all(std::span<const Check> wanted, engines::Session& session,
                             const AuditProgress& progress) {
    Audit audit;
    const OneInstant instant(session);
    Telling telling(session, progress, std::ssize(wanted));
    for (const Check& check : wanted) {
        if (telling.begin(check.name)) run(check, session, audit);
        if (telling.stopped()) return std::nullopt;
    }
    return audit;
}

} // namespace

std::optional<Audit> audit_books(engines::Session& session, const AuditProgress& progress) {
    return run_all(checks, session, progress);
}

std::optional<Audit> audit_log(engines::Session& session, const AuditProgress& progress) {
    return run_all(std::span(checks).last<1>(), session, progress);
}

std::vector<Finding> check_books(engines::Session& session) {
    return audit_books(session)->findings;
}

} // namespace automation
