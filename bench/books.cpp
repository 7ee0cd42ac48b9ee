// Fills big books: the empty books are made as the program makes them, the rows written directly.
#include "bench/books.h"

#include <cstdio>
#include <filesystem>
#include <random>

#include "app/books/create.h"
#include "app/settings/surroundings.h"
#include "bench/hand/connection.h"

namespace bench {

namespace {

constexpr int vouchers_a_period = 10'000;
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
            for (int child = 0; child < children; ++child) {
                char code[8];
                std::snprintf(code, sizeof code, "%02d", child + 1);
                accounts.push_back({parent + code, parent, side, level});
            }
            parent += "01";
        }
    }
    return accounts;
}

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
    VoucherWriter(hand::Connection& connection, const std::vector<std::string>& leaves)
        : head_(connection, "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID,T,D,T_SY) "
                            "VALUES (?1,?2,'记',?3,1,?4,'admin',1,?5,0)"),
          line_(connection, "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) "
                            "VALUES (?1,?2,?3,?4,?5,?6)"),
          leaves_(leaves) {}

    void write(const host::Period& period, int number, bool posted) {
        char key[64];
        std::snprintf(key, sizeof key, "%s记%03d", period.to_text().c_str(), number);
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
        }
    }

private:
    hand::Statement head_, line_;
    const std::vector<std::string>& leaves_;
    std::mt19937_64 random_{20240101};
};

// Closing balances of the posted periods: two rows an account, as posting leaves them.
void write_balances(hand::Connection& connection, const host::Period& period) {
    hand::Statement insert(
        connection, "INSERT OR REPLACE INTO D6602 (QJ,KM_ID,INX,J,D,SY_J,SY_D) "
                    "SELECT ?1, D6801.KM_ID, ?2, CASE FX WHEN '借' THEN 100000 ELSE 0 END,"
                    "CASE FX WHEN '借' THEN 0 ELSE 100000 END,0,0 FROM D6801");
    const std::string text = period.to_text();
    for (std::int64_t kind = 0; kind <= 1; ++kind) insert.bind(1, text).bind(2, kind).run();
}

void create_empty(const std::string& file) {
    app::SystemClock clock;
    app::NewBooks wanted;
    wanted.books = file;
    wanted.company = "测算用帐套";
    wanted.template_name = "four_digit";
    app::create_books(wanted, clock);
}

void fill(const BigBooks& books, const std::vector<Account>& accounts, host::Period period) {
    hand::Connection connection(books.file);
    connection.run("PRAGMA synchronous=OFF; BEGIN");
    hand::Statement first(connection, "UPDATE D6600 SET PARAM=?1 WHERE ID=1");
    const std::string start = period.to_text();
    first.bind(1, start).run();
    write_accounts(connection, accounts);
    VoucherWriter writer(connection, books.leaves);
    for (int written = 0; written < books.vouchers; period = period.next()) {
        const bool last = period == books.last;
        for (int number = 1; number <= vouchers_a_period && written < books.vouchers; ++number) {
            writer.write(period, number, !last);
            ++written;
        }
        if (!last) write_balances(connection, period);
    }
    hand::Statement current(connection, "UPDATE D6600 SET PARAM=?1 WHERE ID=2");
    const std::string last = books.last.to_text();
    current.bind(1, last).run();
    connection.run("COMMIT; PRAGMA wal_checkpoint(TRUNCATE)");
}

} // namespace

BigBooks big_books(const std::string& folder, int vouchers) {
    const std::vector<Account> accounts = chart();
    BigBooks books;
    books.file = folder + "/bench-" + std::to_string(vouchers) + ".zf";
    books.vouchers = vouchers;
    for (const Account& account : accounts) {
        const bool parent = account.level < 5 && account.code.size() >= 4 &&
                            (account.level == 1 || account.code.ends_with("01"));
        if (!parent) books.leaves.push_back(account.code);
    }
    books.busy_account = books.leaves.front();
    const int periods = (vouchers + vouchers_a_period - 1) / vouchers_a_period;
    const host::Period start = host::Period::of(2010, 1);
    books.last = start;
    for (int i = 1; i < periods; ++i) books.last = books.last.next();
    if (std::filesystem::exists(books.file)) return books;
    const std::string unfinished = books.file + ".making";
    for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(unfinished + tail);
    BigBooks making = books;
    making.file = unfinished;
    create_empty(unfinished);
    fill(making, accounts, start);
    std::filesystem::rename(unfinished, books.file);
    return books;
}

} // namespace bench
