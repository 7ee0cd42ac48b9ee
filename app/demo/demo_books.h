// Demonstration books: a trading company, a closed year of vouchers and an open January.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace app {

// Called again and again while the books are made, with what is being done and how much of it is;
// answers false to stop.
using DemoProgress = std::function<bool(const std::string& what, std::int64_t done,
                                        std::int64_t total)>;

// Creates the books and fills them as a person would, through the module's own forms: accounts in
// the chart, opening balances, vouchers one by one, and every month audited, posted, carried
// forward and closed, the year with its statements; the last month stays open, part posted, part
// audited. A failure or a stop leaves nothing. password: of the user admin, "" for none. Throws
// Refusal.
void create_demo_books(const std::string& books, const std::string& password,
                       const DemoProgress& progress);

} // namespace app
