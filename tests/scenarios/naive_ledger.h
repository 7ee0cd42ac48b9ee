// The balances of a set of books by plain addition, to hold the program against.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tests {

using Cents = std::int64_t;

struct NaiveAccount {
    std::string code;
    std::string parent; // "Z" at the top
    bool debit = true;  // the account's own side
    bool profit = false;
    bool cash = false; // its lines are allocated to cash-flow items
};

struct NaiveLine {
    std::string account;
    Cents debit = 0, credit = 0;
};

struct NaiveCash {
    Cents in = 0, out = 0;
};

struct NaiveVoucher {
    std::string key, period, word;
    int number = 0;
    std::vector<NaiveLine> lines;
    std::map<std::string, NaiveCash> cash; // by cash-flow item
    bool audited = false, posted = false, carried = false;
};

struct NaiveOpening {
    Cents debit = 0, credit = 0, balance = 0, profit = 0; // BEGIN2 to BEGIN5
};

// One row of the balances: period, account, kind (0 movements, 1 closing).
struct NaiveKey {
    std::string period, account;
    int kind = 0;
    auto operator<=>(const NaiveKey&) const = default;
};
struct NaiveFigures {
    Cents debit = 0, credit = 0, carried_debit = 0, carried_credit = 0;
    bool operator==(const NaiveFigures&) const = default;
};
using NaiveBalances = std::map<NaiveKey, NaiveFigures>;

// A plain list of accounts and vouchers. Every posting adds up everything again from the list, back
// to the opening. It knows what a bookkeeper may do and what is refused, in the words that the
// forms show.
class NaiveLedger {
public:
    explicit NaiveLedger(const std::vector<NaiveAccount>& chart);

    // The chart.
    const std::map<std::string, NaiveAccount>& chart() const { return chart_; }
    const NaiveAccount& account(const std::string& code) const { return chart_.at(code); }
    bool is_leaf(const std::string& code) const;
    int level(const std::string& code) const;
    bool in_use(const std::string& code) const; // has lines or figures
    bool has_balance(const std::string& code) const; // closed some period with one
    void add_account(const NaiveAccount& account) { chart_[account.code] = account; }
    void turn(const std::string& code) { chart_.at(code).debit = !chart_.at(code).debit; }
    bool stands_below(const std::string& code, const std::string& above) const; // or the same
    std::vector<std::string> leaves() const;
    std::vector<std::string> profit_leaves() const; // those carried forward, in order

    // Setting up. `start` is a day; the balances stand at the month before it.
    void set_up(const std::string& start, const std::map<std::string, NaiveOpening>& openings);

    // Periods: "" before the set-up.
    const std::string& first() const { return first_; }
    const std::string& current() const { return current_; }
    bool opened_inside_a_month() const { return opened_at_ == first_; }
    // The period was posted, and no period before it was posted or taken back since.
    bool stands(const std::string& period) const {
        return posted_.contains(period) && !overtaken_.contains(period);
    }
    std::string close_period();  // the text shown
    std::string reopen_period(); // the same

    // Vouchers of the current period.
    int next_number(const std::string& word) const;
    NaiveVoucher* find(const std::string& key);
    std::vector<NaiveVoucher>& vouchers() { return vouchers_; }
    const std::vector<NaiveVoucher>& vouchers() const { return vouchers_; }
    void remove(const std::string& key);
    bool moves_cash(const NaiveVoucher& voucher) const;
    // The voucher in red under the next number of the current period: every amount negative.
    NaiveVoucher reversed(const NaiveVoucher& voucher) const;

    // Posting and carrying forward.
    void post();
    void unpost();
    Cents closing(const std::string& account) const; // of the current period, on its own side
    // Adds the carry-forward voucher; false when there is nothing to carry.
    bool carry_forward();

    const NaiveBalances& balances() const { return balances_; }
    // Every month from the first to the last was posted after the one before it.
    bool balances_run_on() const;

private:
    Cents moved(const std::string& account, const std::string& period, bool debit,
                bool only_carried) const;
    Cents before(const std::string& account, const std::string& period) const;
    void overtake_later_periods();
    void write_opening(const std::string& year_row, const std::string& month);

    std::map<std::string, NaiveAccount> chart_;
    std::vector<NaiveVoucher> vouchers_;
    std::map<std::string, NaiveOpening> openings_;
    std::string first_, current_, opened_at_; // opened_at_: month of the opening balances
    std::set<std::string> posted_;            // periods whose balances came from a posting
    std::set<std::string> overtaken_; // posted before an earlier period was posted or taken back
    NaiveBalances balances_;                  // as they stand since the last act on each period
};

// "2024-12" → "2025-01" and back.
std::string month_after(const std::string& period);
std::string month_before(const std::string& period);
std::string voucher_key(const NaiveVoucher& voucher); // "2024-03记005"
std::string money(Cents cents);           // "-12.05"
Cents cents_of(const std::string& amount); // "-12.05", "2.5", "7", "" for nothing

} // namespace tests
