// Every closing balance is the one before plus the movement, and the books balance as a whole.
#include <iterator>
#include <set>

#include "automation/check/findings.h"
#include "automation/check/ledger.h"

namespace automation {

namespace {

std::string previous_period(const std::string& period) {
    int year = std::stoi(period.substr(0, 4)), month = std::stoi(period.substr(5, 2)) - 1;
    if (month == 0) {
        month = 12;
        --year;
    }
    const std::string text = std::to_string(month);
    return std::to_string(year) + "-" + (text.size() == 1 ? "0" : "") + text;
}

// The periods that hold movements: those before the books began have closing balances only.
std::set<std::string> periods_of(const Ledger& ledger) {
    std::set<std::string> periods;
    for (const auto& [at, movement] : ledger.movements)
        if (!at.first.ends_with("-00") && at.first.size() == 7) periods.insert(at.first);
    return periods;
}

// The open period gets its closing balances when it is posted; until then its rows are empty.
bool not_posted_yet(const Ledger& ledger, const std::string& period) {
    if (period < ledger.current) return false;
    for (const auto& [id, account] : ledger.accounts) {
        const auto closing = ledger.closings.find({period, id});
        const auto movement = ledger.movements.find({period, id});
        if (closing != ledger.closings.end() && closing->second != Movement{}) return false;
        if (movement != ledger.movements.end() && movement->second != Movement{}) return false;
    }
    return true;
}

Movement at(const std::map<PeriodAccount, Movement>& rows, const PeriodAccount& key) {
    const auto found = rows.find(key);
    return found == rows.end() ? Movement{} : found->second;
}

void check_period(const Ledger& ledger, const std::string& period, Findings& findings) {
    const std::string before = previous_period(period);
    std::int64_t top = 0;
    for (const auto& [id, account] : ledger.accounts) {
        const Movement opening = at(ledger.closings, {before, id});
        const Movement movement = at(ledger.movements, {period, id});
        const Movement closing = at(ledger.closings, {period, id});
        Movement expected;
        if (account.debit_side)
            expected.debit = opening.debit + movement.debit - movement.credit;
        else
            expected.credit = opening.credit + movement.credit - movement.debit;
        if (closing.debit != expected.debit || closing.credit != expected.credit)
            findings.add(period + " " + id + ": 余额表 借 " + money(closing.debit) + " 贷 " +
                         money(closing.credit) + ",应为 借 " + money(expected.debit) + " 贷 " +
                         money(expected.credit));
        if (account.parent == "Z") top += closing.debit - closing.credit;
    }
    if (top != 0) findings.add(period + ": 一级科目余额借贷相差 " + money(top));
}

// A month that was closed without being posted has no balances, and the month after it begins with
// nothing.
void check_month_before(const Ledger& ledger, const std::string& period, Findings& findings) {
    const std::string before = previous_period(period);
    const auto next = ledger.closings.lower_bound({before, ""});
    if (next != ledger.closings.end() && next->first.first == before) return;
    if (next == ledger.closings.begin()) return; // the books begin here
    const std::string last = std::prev(next)->first.first;
    for (auto row = ledger.closings.lower_bound({last, ""}); row != next; ++row) {
        if (row->second == Movement{}) continue;
        findings.add(period + ": 之前的 " + before + " 没有登帐," + last +
                     " 的余额没有转过来;请反结到 " + before + ",逐月登帐");
        return;
    }
}

} // namespace

void check_closing_balances(engines::Session& session, Findings& findings) {
    const Ledger ledger = read_ledger(session);
    for (const std::string& period : periods_of(ledger))
        if (!not_posted_yet(ledger, period)) {
            check_month_before(ledger, period, findings);
            check_period(ledger, period, findings);
        }
}

} // namespace automation
