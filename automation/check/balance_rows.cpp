// The rows of D6602: two an account and posted period, those of the opening, and no others.
#include <set>

#include "automation/check/findings.h"
#include "automation/check/openings.h"
#include "automation/sql/collected_result.h"

namespace automation {

namespace {

constexpr const char* odd_rows =
    "SELECT QJ, KM_ID + ': 余额表有不认识的行,INX', INX FROM D6602 "
    "WHERE INX NOT IN (0, 1) ORDER BY QJ, KM_ID";

// Which periods may hold rows: both kinds, and the two of the opening one kind each.
void check_superfluous(engines::Session& session, const OpenPeriods& periods,
                       const Openings& openings, Findings& findings) {
    for (const TextRow& row : rows_of(session, "SELECT QJ, INX, COUNT(*) FROM D6602 "
                                               "WHERE INX IN (0, 1) GROUP BY QJ, INX "
                                               "ORDER BY QJ, INX")) {
        const std::string& period = *row[0];
        const bool movements = *row[1] == "0";
        const bool month = is_period(period) && period >= periods.first &&
                           period <= periods.latest;
        const bool opening = period == (movements ? openings.year : openings.before);
        if (!month && !opening)
            findings.add(period + ": 余额表有多余的" + (movements ? "发生额" : "余额") + "行 " +
                         *row[2] + " 行(帐套从 " + periods.first + " 到 " + periods.latest + ")");
    }
}

using Accounts = std::set<AccountId>;

std::map<std::string, Accounts> by_period(const std::map<PeriodAccount, Movement>& rows) {
    std::map<std::string, Accounts> periods;
    for (const auto& [key, row] : rows) periods[key.first].insert(key.second);
    return periods;
}

// An account has both rows of a period or none, and those that had rows before have them again.
void check_period(const std::string& period, const Accounts& movements, const Accounts& closings,
                  const Accounts& known, Findings& findings) {
    Accounts all = known;
    all.insert(movements.begin(), movements.end());
    all.insert(closings.begin(), closings.end());
    for (const AccountId& id : all) {
        if (!movements.contains(id)) findings.add(period + " " + id + ": 余额表缺发生额行(INX 0)");
        if (!closings.contains(id)) findings.add(period + " " + id + ": 余额表缺余额行(INX 1)");
    }
}

void check_missing(const Ledger& ledger, const Openings& openings, Findings& findings) {
    auto movements = by_period(ledger.movements), closings = by_period(ledger.closings);
    // Books begun in the middle of a month have no row of the month before.
    const Accounts& opened = movements[openings.year];
    if (!closings[openings.before].empty())
        check_period(openings.year + " / " + openings.before, opened, closings[openings.before], {},
                     findings);
    Accounts known = opened;
    for (std::string period = ledger.periods.first; period <= ledger.periods.latest;
         period = next_period(period)) {
        if (movements[period].empty() && closings[period].empty()) continue; // not posted
        check_period(period, movements[period], closings[period], known, findings);
        known.insert(movements[period].begin(), movements[period].end());
    }
}

} // namespace

void check_balance_rows(engines::Session& session, Findings& findings) {
    add_rows(session, odd_rows, findings);
    const Ledger ledger = read_ledger(session);
    if (!ledger.periods.set_up()) return;
    const Openings openings = openings_of(ledger);
    check_superfluous(session, ledger.periods, openings, findings);
    check_missing(ledger, openings, findings);
}

} // namespace automation
