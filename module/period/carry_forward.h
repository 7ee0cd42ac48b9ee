// The voucher that carries profit and loss forward: one account after the other into 3131.
#pragma once

#include <string>
#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

// An account to be cleared: its closing balance, signed on its own side.
struct CarriedAccount {
    std::string code;
    std::string target; // receives the balance: 3131
    bool debit_side;
    Amount balance;
    friend bool operator==(const CarriedAccount&, const CarriedAccount&) = default;
};

// What goes forward from each side. Accounts without a balance count for nothing.
struct CarriedTotals {
    Amount debit;  // expenses
    Amount credit; // income
    void add(const CarriedAccount& account);
    Amount sum() const { return debit + credit; }
};

struct CarryForwardVoucher {
    std::string period, number, date, user, summary; // date and summary as typed
    // Period, word and number without leading zeros: "2024-03记5".
    std::string key() const;
};

// Head first, then a line an account on the side opposite to its own, then what the target receives
// from each side. Between the accounts and the target one line index stays free; indexes only order
// the lines.
std::string carry_forward_batch(const CarryForwardVoucher& voucher,
                                const std::vector<CarriedAccount>& accounts,
                                const CarriedTotals& totals);

} // namespace module
