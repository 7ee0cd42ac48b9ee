// Fills big books: the empty books are made as the program makes them, the rows written directly.
#include "bench/books.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <set>
#include <unordered_map>

#include "app/books/create.h"
#include "app/settings/surroundings.h"
#include "bench/hand/connection.h"

namespace bench {

namespace {

constexpr int vouchers_a_period = 10'000;
constexpr int vouchers_a_quiet_period = 100;
constexpr int least_periods = 13; // a whole year before the last period
constexpr std::int64_t opening_of_a_leaf = 100'000; // cents, on the account's own side
constexpr std::int64_t ticks_a_day = 25'920'000; // moments are kept in 1/300 seconds

struct Account {
    std::string code, parent, side;
    int level = 1;
};

// Forty accounts at the top, each with a chain down to level five and leaves at every level below:
// 2,000 in all, codes of one digit group a level.
std::vector<Account> chart() {
    std::vector<Account> accounts;
    for (int top = 0; top < 40; ++top) {
        const std::string first = std::to_string(7000 + top);
        const std::string side = top % 2 == 0 ? "借" : "贷";
        accounts.push_back({first, "Z", side, 1});
        std::string parent = first;
        for (int level = 2; level <= 5; ++level) {
            const int children = level == 5 ? 13 : 12;
            for (int child = 1; child <= children; ++child)
                accounts.push_back({fmt::format("{}{:02}", parent, child), parent, side, level});
            parent += "01";
        }
    }
    return accounts;
}

bool takes_entries(const Account& account) {
    return account.level == 5 || (account.level > 1 && !account.code.ends_with("01"));
}

struct Moved {
    std::int64_t debit = 0, credit = 0; // cents
};

// What stands on the accounts while vouchers are written, each amount added to an account and to
// all above it.
class Ledger {
public:
    explicit Ledger(const std::vector<Account>& accounts)
        : accounts_(accounts), moved_(accounts.size()), on_debit_(accounts.size()) {
        for (std::size_t i = 0; i < accounts.size(); ++i) places_.emplace(accounts[i].code, i);
        std::set<std::string> parents;
        for (const Account& account : accounts) parents.insert(account.parent);
        for (const Account& account : accounts)
            if (!parents.contains(account.code))
                each_above(account.code, [&](std::size_t at) {
                    on_debit_[at] += account.side == "借" ? opening_of_a_leaf : -opening_of_a_leaf;
                });
    }
    const std::vector<Account>& accounts() const { return accounts_; }
    const Moved& moved(const Account& account) const { return moved_[places_.at(account.code)]; }
    std::int64_t on_debit(const Account& account) const {
        return on_debit_[places_.at(account.code)];
    }
    void add(const std::string& account, std::int64_t debit, std::int64_t credit) {
        each_above(account, [&](std::size_t at) {
            moved_[at].debit += debit, moved_[at].credit += credit;
            on_debit_[at] += debit - credit;
        });
    }
    void begin_period() { std::fill(moved_.begin(), moved_.end(), Moved{}); }

private:
    template <class Act> void each_above(const std::string& code, const Act& act) {
        for (auto at = places_.find(code); at != places_.end();
             at = places_.find(accounts_[at->second].parent))
            act(at->second);
    }
    const std::vector<Account>& accounts_;
    std::unordered_map<std::string, std::size_t> places_;
    std::vector<Moved> moved_;
    std::vector<std::int64_t> on_debit_;
};

std::int64_t days_since_1900(host::Date day) { return day - *host::Date::of(1900, 1, 1); }

void write_accounts(hand::Connection& connection, const std::vector<Account>& accounts) {
    hand::Statement insert(connection,
                           "INSERT INTO D6801 (KM_ID,KM_NAME,KM_NAME2,FX,OID,PYM,KM_FL,KM_J,KM_K,"
                           "BEGIN1,BEGIN2,BEGIN3,BEGIN4,BEGIN5) "
                           "VALUES (?1,?1,?1,?2,?3,?1,1,?4,0,0,0,0,0,0)");
    for (const Account& account : accounts)
        insert.bind(1, account.code).bind(2, account.side).bind(3, account.parent)
            .bind(4, std::int64_t{account.level}).run();
}

class VoucherWriter {
public:
    VoucherWriter(hand::Connection& connection, const std::vector<std::string>& leaves,
                  Ledger& ledger)
        : head_(connection, "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID,T,D,T_SY) "
                            "VALUES (?1,?2,'记',?3,1,?4,'admin',1,?5,0)"),
          line_(connection, "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) "
                            "VALUES (?1,?2,?3,?4,?5,?6)"),
          leaves_(leaves), ledger_(ledger) {}

    void write(const host::Period& period, int number, bool posted) {
        const std::string key = fmt::format("{}记{:03}", period.to_text(), number);
        const int days = period.last_day() - period.first_day() + 1;
        const int passed = number * days / (vouchers_a_period + 1);
        const host::Date day = period.first_day().plus_days(passed);
        head_.bind(1, key).bind(2, period.to_text()).bind(3, std::int64_t{number})
            .bind(4, days_since_1900(day) * ticks_a_day).bind(5, std::int64_t{posted}).run();
        // Four lines, now and then more: 40,700 lines a period.
        const int lines = number % 100 < 7 ? 5 : 4;
        std::int64_t sum = 0;
        for (int i = 0; i < lines; ++i) {
            const bool closing = i == lines - 1;
            const std::int64_t cents = closing ? sum : std::int64_t(random_() % 1'000'000) + 1;
            sum += closing ? 0 : cents;
            // Every fifth voucher touches the busy account, as a company's main bank account.
            const std::string& account =
                i == 0 && number % 5 == 0 ? leaves_.front() : leaves_[random_() % leaves_.size()];
            line_.bind(1, key).bind(2, "货款往来结算").bind(3, account)
                .bind(4, closing ? std::int64_t{0} : cents).bind(5, closing ? cents : 0)
                .bind(6, std::int64_t{i}).run();
            ledger_.add(account, closing ? 0 : cents, closing ? cents : 0);
        }
    }

private:
    hand::Statement head_, line_;
    const std::vector<std::string>& leaves_;
    Ledger& ledger_;
    std::mt19937_64 random_{20240101};
};

// Rows of the balances, as posting leaves them: two an account and period.
class BalanceWriter {
public:
    BalanceWriter(hand::Connection& connection, const Ledger& ledger)
        : insert_(connection, "INSERT OR REPLACE INTO D6602 (QJ,KM_ID,INX,J,D,SY_J,SY_D) "
                              "VALUES (?1,?2,?3,?4,?5,0,0)"),
          ledger_(ledger) {}

    void write_closing(const std::string& period) {
        for (const Account& account : ledger_.accounts()) {
            const std::int64_t balance = ledger_.on_debit(account);
            const bool debit = account.side == "借";
            row(period, account, 1, debit ? balance : 0, debit ? 0 : -balance);
        }
    }
    void write_movements(const std::string& period) {
        for (const Account& account : ledger_.accounts()) {
            const Moved& moved = ledger_.moved(account);
            row(period, account, 0, moved.debit, moved.credit);
        }
    }

private:
    void row(const std::string& period, const Account& account, std::int64_t kind,
             std::int64_t debit, std::int64_t credit) {
        insert_.bind(1, period).bind(2, account.code).bind(3, kind).bind(4, debit).bind(5, credit)
            .run();
    }
    hand::Statement insert_;
    const Ledger& ledger_;
};

void create_empty(const std::string& file) {
    app::SystemClock clock;
    app::NewBooks wanted;
    wanted.books = file;
    wanted.company = "测算用帐套";
    wanted.template_name = "four_digit";
    app::create_books(wanted, clock);
}

void set_period(hand::Connection& connection, std::int64_t id, const host::Period& period) {
    hand::Statement update(connection, "UPDATE D6600 SET PARAM=?2 WHERE ID=?1");
    const std::string text = period.to_text();
    update.bind(1, id).bind(2, text).run();
}

// The accounts of the template, which the statements ask for.
std::vector<Account> accounts_of_the_template(hand::Connection& connection) {
    std::vector<Account> accounts;
    hand::Statement read(connection, "SELECT KM_ID, OID, FX, KM_J FROM D6801 ORDER BY KM_ID");
    while (read.step())
        accounts.push_back({std::string(read.text(0)), std::string(read.text(1)),
                            std::string(read.text(2)), static_cast<int>(read.integer(3))});
    return accounts;
}

void add_leaves(const std::vector<Account>& accounts, std::vector<std::string>& leaves) {
    std::set<std::string> parents;
    for (const Account& account : accounts) parents.insert(account.parent);
    for (const Account& account : accounts)
        if (!parents.contains(account.code)) leaves.push_back(account.code);
}

void fill(const BigBooks& books, const std::vector<Account>& chart) {
    hand::Connection connection(books.file);
    connection.run("PRAGMA synchronous=OFF; BEGIN");
    set_period(connection, 1, books.first);
    set_period(connection, 2, books.last);
    std::vector<Account> accounts = accounts_of_the_template(connection);
    std::vector<std::string> leaves = books.leaves; // the busy account first
    add_leaves(accounts, leaves);
    write_accounts(connection, chart);
    accounts.insert(accounts.end(), chart.begin(), chart.end());
    Ledger ledger(accounts);
    VoucherWriter vouchers(connection, leaves, ledger);
    BalanceWriter balances(connection, ledger);
    balances.write_closing(books.first.previous().to_text());
    host::Period busy_from = books.last; // the vouchers asked for fill whole periods to the last
    for (int left = books.vouchers; left > vouchers_a_period; left -= vouchers_a_period)
        busy_from = busy_from.previous();
    for (host::Period period = books.first; period <= books.last; period = period.next()) {
        const int count = period < busy_from ? vouchers_a_quiet_period : vouchers_a_period;
        ledger.begin_period();
        for (int number = 1; number <= count; ++number)
            vouchers.write(period, number, period < books.last);
        if (period == books.last) break;
        balances.write_movements(period.to_text());
        balances.write_closing(period.to_text());
    }
    connection.run("COMMIT; PRAGMA wal_checkpoint(TRUNCATE)");
}

} // namespace

BigBooks big_books(const std::string& folder, int vouchers) {
    const std::vector<Account> accounts = chart();
    BigBooks books;
    books.file = folder + "/bench-books-" + std::to_string(vouchers) + ".zf";
    books.vouchers = vouchers;
    for (const Account& account : accounts)
        if (takes_entries(account)) books.leaves.push_back(account.code);
    books.busy_account = books.leaves.front();
    const int busy = (vouchers + vouchers_a_period - 1) / vouchers_a_period;
    books.last = books.first;
    for (int i = 1; i < std::max(busy, least_periods); ++i) books.last = books.last.next();
    if (std::filesystem::exists(books.file)) return books;
    const std::string unfinished = books.file + ".making";
    for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(unfinished + tail);
    BigBooks making = books;
    making.file = unfinished;
    create_empty(unfinished);
    fill(making, accounts);
    std::filesystem::rename(unfinished, books.file);
    return books;
}

} // namespace bench
