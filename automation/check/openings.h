// What the initial posting made of the opening figures.
#pragma once

#include <map>
#include <string>

#include "automation/check/ledger.h"

namespace automation {

// The opening rows that follow from the chart's opening figures, rolled up.
struct Openings {
    std::string year;                         // "2024-00", the period of the movements
    std::string before;                       // the month before the books begin: the balances
    std::map<AccountId, Movement> movements;  // of the year up to the start
    std::map<AccountId, Movement> balances;   // each on its account's own side
};

// Of books that are set up.
Openings openings_of(const Ledger& ledger);

// Books begun in the middle of a month keep their opening balances in that month itself, until it
// is posted.
bool openings_wait_in_first_period(const Ledger& ledger, const Openings& openings);

} // namespace automation
