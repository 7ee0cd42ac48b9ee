// What happens in one random set of books: chart, opening, and the acts of a bookkeeper.
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/scenarios/naive_ledger.h"

namespace tests {

enum class Act {
    Enter,         // one to three vouchers
    Change,        // amounts, and sometimes the number, of a voucher
    Remove,        // a voucher
    AuditSome,     // of those not audited
    AuditAll,
    TakeAuditBack, // of some
    Post,
    Unpost,
    CarryForward,
    Close,
    Reopen,        // before the first period: back to the opening, which is typed anew
    Red,           // a posted voucher is taken back by a red one
    AddAccount,    // below any account
    TurnAccount,   // to the other side
};

// What an act does in detail is drawn from `chance` and from what the books hold then, so that a
// plan still makes sense when steps are left out of it.
struct Step {
    Act act;
    std::uint32_t chance;
};

struct BookPlan {
    std::uint32_t seed = 0;
    int words = 1;                                // voucher word scheme
    bool strict = false; // nothing posted is taken back, and one person enters, another audits
    std::string start;                            // day of the opening
    std::map<std::string, NaiveOpening> openings; // by account; balanced
    std::vector<Step> steps;
};

// The same plan for the same seed: a start in any month, now and then inside one, often with
// figures of the year so far; two to five periods, some of them reopened; every fourth set of books
// is kept in the strict way, where that is refused.
BookPlan plan_books(std::uint32_t seed);

// Every plan's books begin with these accounts; the deepest stand at the fifth level.
const std::vector<NaiveAccount>& starting_chart();

std::map<std::string, NaiveOpening> balanced_openings(const NaiveLedger& ledger,
                                                      std::mt19937& chance);

// "seed 17, words 2, start 2024-05-01, 12 steps: Enter(8234) AuditAll(1) …"
std::string text_of(const BookPlan& plan);

// A whole number from 0 to limit - 1.
int below(int limit, std::mt19937& chance);

} // namespace tests
