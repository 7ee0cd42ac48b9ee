// The movements of every posted period equal what its posted vouchers give.
#include "automation/check/findings.h"
#include "automation/check/ledger.h"

namespace automation {

namespace {

std::string difference(const PeriodAccount& at, const Movement& stored, const Movement& given) {
    const auto amounts = [](const Movement& m) {
        return "借 " + money(m.debit) + " 贷 " + money(m.credit) + " 损益借 " + money(m.sy_debit) +
               " 损益贷 " + money(m.sy_credit);
    };
    return at.first + " " + at.second + ": 余额表 " + amounts(stored) + ",凭证 " + amounts(given);
}

} // namespace

void check_movements(engines::Session& session, Findings& findings) {
    const Ledger ledger = read_ledger(session);
    const auto given = movements_of_vouchers(session, ledger);
    for (const auto& [at, stored] : ledger.movements) {
        if (at.first.ends_with("-00")) continue; // typed in before the books were opened
        const auto found = given.find(at);
        const Movement vouchers = found == given.end() ? Movement{} : found->second;
        if (stored != vouchers) findings.add(difference(at, stored, vouchers));
    }
    for (const auto& [at, vouchers] : given)
        if (!ledger.movements.contains(at) && vouchers != Movement{})
            findings.add(difference(at, {}, vouchers));
}

} // namespace automation
