// Every closing balance is the one before plus the movement, and the books balance as a whole.
#include <iterator>
#include <set>

#include "automation/check/findings.h"
#include "automation/check/openings.h"

namespace automation {

namespace {

// The periods that hold movements: those before the books began have closing balances only.
std::set<std::string> periods_of(const Ledger& ledger) {
    std::set<std::string> periods;
    for (const auto& [at, movement] : ledger.movements)
        if (is_period(at.first)) periods.insert(at.first);
    return periods;
}

// The open period gets its closing balances when it is posted; until then its rows are empty.
bool not_posted_yet(const Ledger& ledger, const std::string& period) {
    if (period < ledger.periods.current) return false;
    for (const auto& [id, account] : ledger.accounts)
        if (at(ledger.closings, {period, id}) != Movement{} ||
            at(ledger.movements, {period, id}) != Movement{})
            return false;
    return true;
}

// On the account's own side, whatever its sign.
Movement expected_closing(const Account& account, const Movement& opening,
                          const Movement& movement) {
    Movement closing;
    if (account.debit_side)
        closing.debit = opening.debit + movement.debit - movement.credit;
    else
        closing.credit = opening.credit + movement.credit - movement.debit;
    return closing;
}

std::string sides(const Movement& movement) {
    return "借 " + money(movement.debit) + " 贷 " + money(movement.credit);
}

// The carried-forward part of a closing row is empty; rolling up leaves that of the movements on
// accounts with others below them.
bool carried_forward_fits(const Movement& closing, const Movement& movement) {
    const bool empty = closing.sy_debit == 0 && closing.sy_credit == 0;
    return empty || (closing.sy_debit == movement.sy_debit &&
                     closing.sy_credit == movement.sy_credit);
}

void check_period(const Ledger& ledger, const std::string& period, Findings& findings) {
    const std::string before = previous_period(period);
    std::int64_t top = 0;
    for (const auto& [id, account] : ledger.accounts) {
        const Movement movement = at(ledger.movements, {period, id});
        const Movement closing = at(ledger.closings, {period, id});
        const Movement expected =
            expected_closing(account, at(ledger.closings, {before, id}), movement);
        if (closing.debit != expected.debit || closing.credit != expected.credit)
            findings.add(period + " " + id + ": 余额表 " + sides(closing) + ",应为 " +
                         sides(expected));
        if (!carried_forward_fits(closing, movement))
            findings.add(period + " " + id + ": 余额行的损益借 " + money(closing.sy_debit) +
                         " 损益贷 " + money(closing.sy_credit) + ",应为空或与发生额行相同");
        if (account.parent == "Z") top += closing.debit - closing.credit;
    }
    if (top != 0) findings.add(period + ": 一级科目余额借贷相差 " + money(top));
}

// A period after the open one was posted before a closing was taken back: posting what lies before
// it anew leaves it behind until it is posted again itself.
void check_later_period(const Ledger& ledger, const std::string& period, Findings& findings) {
    Findings found;
    check_period(ledger, period, found);
    if (!found.take().empty())
        findings.hint(period + ": 余额是反结帐前登的帐,与 " + previous_period(period) +
                      " 不衔接;结帐到这个期间后请重新登帐");
}

bool has_balances(const Ledger& ledger, const std::string& period) {
    for (auto row = ledger.closings.lower_bound({period, ""});
         row != ledger.closings.end() && row->first.first == period; ++row)
        if (row->second.debit != 0 || row->second.credit != 0) return true;
    return false;
}

// A closed period that was never posted hands no balances on.
void check_left_out(const Ledger& ledger, const std::set<std::string>& posted,
                    Findings& findings) {
    for (std::string period = ledger.periods.first; period < ledger.periods.current;
         period = next_period(period))
        if (const std::string before = previous_period(period);
            !posted.contains(period) && has_balances(ledger, before))
            findings.add(period + ": 已结帐却没有登帐," + before + " 的余额没有转过来;请反结到 " +
                         period + ",逐月登帐");
}

} // namespace

void check_closing_balances(engines::Session& session, Findings& findings) {
    const Ledger ledger = read_ledger(session);
    const std::set<std::string> periods = periods_of(ledger);
    if (!ledger.periods.set_up()) {
        if (!periods.empty()) findings.hint("帐套还没有启用(或已反结至建帐前),余额没有核对");
        return;
    }
    const bool waiting = openings_wait_in_first_period(ledger, openings_of(ledger));
    for (const std::string& period : periods) {
        if (not_posted_yet(ledger, period)) continue;
        if (waiting && period == ledger.periods.first) continue;
        if (period > ledger.periods.current)
            check_later_period(ledger, period, findings);
        else
            check_period(ledger, period, findings);
    }
    check_left_out(ledger, periods, findings);
}

} // namespace automation
