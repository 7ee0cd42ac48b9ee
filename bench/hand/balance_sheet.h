// The formulas of a balance sheet reckoned by hand: one query a figure, lines added up in C++.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "bench/hand/connection.h"

namespace bench::hand {

// A figure that a formula adds or takes off, as it is sent: fasc(0,'2024-03','1001','1009').
struct Term {
    bool minus = false;
    std::string function; // fasc, fsum or fd
    std::vector<std::string> arguments;
};

// The terms of "select dbo.fasc(…)-dbo.fasc(…) as a". Throws std::runtime_error at anything else.
std::vector<Term> terms_of(std::string_view query);

// Closing balances and those of a year's beginning, of ranges of accounts; sums of lines.
class BalanceSheet {
public:
    explicit BalanceSheet(const std::string& file);
    // In cents. Throws std::runtime_error for a figure of another kind.
    std::int64_t reckon(const std::vector<Term>& terms);

private:
    std::int64_t figure(const Term& term);
    std::int64_t balance(bool beginning, const std::string& period, const std::string& first,
                         const std::string& last);
    std::int64_t on_debit(Statement& statement, const std::string& period, const std::string& first,
                          const std::string& last);
    std::int64_t lines(std::int64_t layout, bool beginning, int first, int last);

    Connection connection_;
    Statement begin_, side_, closing_, moved_, lines_;
};

} // namespace bench::hand
