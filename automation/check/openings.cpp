// The rows of the initial posting follow from the opening figures of the chart.
#include "automation/check/openings.h"

#include "automation/check/findings.h"

namespace automation {

namespace {

// Books that begin in a January have the opening of the year before.
std::string year_row(const std::string& first) {
    const bool january = first.ends_with("-01");
    return (january ? previous_period(first) : first).substr(0, 4) + "-00";
}

std::string amounts(const Movement& movement) {
    std::string text = "借 " + money(movement.debit) + " 贷 " + money(movement.credit);
    if (movement.sy_debit != 0 || movement.sy_credit != 0)
        text += " 损益借 " + money(movement.sy_debit) + " 损益贷 " + money(movement.sy_credit);
    return text;
}

void compare(const std::string& period, const std::map<AccountId, Movement>& expected,
             const std::map<PeriodAccount, Movement>& stored, Findings& findings) {
    for (const auto& [id, movement] : expected)
        if (const Movement found = at(stored, {period, id}); found != movement)
            findings.add(period + " " + id + ": 余额表 " + amounts(found) + ",期初数据 " +
                         amounts(movement));
}

bool holds(const std::map<PeriodAccount, Movement>& rows, const std::string& period) {
    const auto found = rows.lower_bound({period, ""});
    return found != rows.end() && found->first.first == period;
}

} // namespace

Openings openings_of(const Ledger& ledger) {
    const std::string& first = ledger.periods.first;
    Openings openings{year_row(first), previous_period(first), {}, {}};
    std::map<AccountId, Movement> sides;
    for (const auto& [id, account] : ledger.accounts) {
        add_upwards(ledger, id, [&](const AccountId& up) {
            openings.movements[up] += {account.year_debit, account.year_credit, 0, 0};
            sides[up] += account.debit_side ? Movement{account.balance, 0, 0, 0}
                                            : Movement{0, account.balance, 0, 0};
        });
        // Profit and loss of the year stays on the account it was typed for.
        openings.movements[id] += account.debit_side ? Movement{0, 0, account.year_profit, 0}
                                                     : Movement{0, 0, 0, account.year_profit};
    }
    for (const auto& [id, account] : ledger.accounts) {
        const std::int64_t net = sides[id].debit - sides[id].credit;
        openings.balances[id] =
            account.debit_side ? Movement{net, 0, 0, 0} : Movement{0, -net, 0, 0};
    }
    return openings;
}

bool openings_wait_in_first_period(const Ledger& ledger, const Openings& openings) {
    if (holds(ledger.closings, openings.before)) return false;
    for (const auto& [id, balance] : openings.balances)
        if (at(ledger.closings, {ledger.periods.first, id}) != balance) return false;
    return true;
}

void check_openings(engines::Session& session, Findings& findings) {
    const Ledger ledger = read_ledger(session);
    if (!ledger.periods.set_up()) return;
    const Openings openings = openings_of(ledger);
    compare(openings.year, openings.movements, ledger.movements, findings);
    if (!openings_wait_in_first_period(ledger, openings))
        compare(openings.before, openings.balances, ledger.closings, findings);
}

} // namespace automation
