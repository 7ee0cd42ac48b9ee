// Reads balances and posted lines, and adds lines up along the chart.
#include "automation/check/ledger.h"

#include <set>

#include "automation/sql/collected_result.h"
#include "engines/value_text.h"

namespace automation {

namespace {

// Cents of an amount column's text ("-12.50"); sums of such columns show two decimals too.
std::int64_t cents(const TextCell& cell) {
    if (!cell) return 0;
    std::int64_t value = 0;
    for (const char c : *cell)
        if (c >= '0' && c <= '9') value = value * 10 + (c - '0');
    return cell->starts_with('-') ? -value : value;
}

std::set<AccountId> parents_of(const Ledger& ledger) {
    std::set<AccountId> parents;
    for (const auto& [id, account] : ledger.accounts) parents.insert(account.parent);
    return parents;
}

} // namespace

Movement& Movement::operator+=(const Movement& other) {
    debit += other.debit;
    credit += other.credit;
    sy_debit += other.sy_debit;
    sy_credit += other.sy_credit;
    return *this;
}

std::string money(std::int64_t cents) {
    std::string text;
    engines::append_decimal(cents, 2, text);
    return text;
}

Ledger read_ledger(engines::Session& session) {
    Ledger ledger;
    for (const TextRow& row : rows_of(session, "SELECT KM_ID, OID, FX, BEGIN2, BEGIN3, BEGIN4, "
                                               "BEGIN5 FROM D6801"))
        ledger.accounts[*row[0]] = {*row[1],       *row[2] == "借", cents(row[3]),
                                    cents(row[4]), cents(row[5]),   cents(row[6])};
    for (const TextRow& row :
         rows_of(session, "SELECT B.QJ, A.KM_ID, B.INX, B.J, B.D, B.SY_J, B.SY_D FROM D6602 B "
                          "INNER JOIN D6801 A ON A.KM_ID = B.KM_ID")) {
        if (*row[2] != "0" && *row[2] != "1") continue; // the check of the rows tells of it
        auto& rows = *row[2] == "0" ? ledger.movements : ledger.closings;
        rows[{*row[0], *row[1]}] = {cents(row[3]), cents(row[4]), cents(row[5]), cents(row[6])};
    }
    ledger.periods = read_open_periods(session);
    return ledger;
}

Movement at(const std::map<PeriodAccount, Movement>& rows, const PeriodAccount& key) {
    const auto found = rows.find(key);
    return found == rows.end() ? Movement{} : found->second;
}

void add_upwards(const Ledger& ledger, AccountId id,
                 const std::function<void(const AccountId&)>& add) {
    // The chart is at most six deep; a ring of parents must not hold the check up.
    for (int level = 0; level < 8; ++level) {
        add(id);
        const auto account = ledger.accounts.find(id);
        if (account == ledger.accounts.end() || account->second.parent == "Z") break;
        id = account->second.parent;
    }
}

std::map<PeriodAccount, Movement> movements_of_vouchers(engines::Session& session,
                                                        const Ledger& ledger) {
    const auto parents = parents_of(ledger);
    std::map<PeriodAccount, Movement> sums;
    for (const TextRow& row :
         rows_of(session, "SELECT H.PZQJ, A.KM_ID, H.T_SY, SUM(L.J), SUM(L.D) FROM D6601 H "
                          "INNER JOIN D6601A L ON L.NOID = H.NOID "
                          "INNER JOIN D6801 A ON A.KM_ID = L.KM_ID WHERE H.D = 1 "
                          "GROUP BY H.PZQJ, A.KM_ID, H.T_SY")) {
        const std::string& period = *row[0];
        const AccountId& id = *row[1];
        // A line on an account with accounts below it has no place in the roll-up; the check of
        // the chart tells of it.
        if (parents.contains(id)) continue;
        Movement line{cents(row[3]), cents(row[4]), 0, 0};
        if (*row[2] == "1") {
            line.sy_debit = line.credit;
            line.sy_credit = line.debit;
        }
        add_upwards(ledger, id, [&](const AccountId& up) { sums[{period, up}] += line; });
    }
    return sums;
}

} // namespace automation
