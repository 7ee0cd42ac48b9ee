// Reading: the trial balance of a period and the voucher list of a month.
#include "bench/hand/connection.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "module/ledgers/trial_balance_query.h"

namespace bench {

namespace {

// Every cell is read, as a grid would; the sum keeps the work from being left out.
std::int64_t read_all(hand::Statement& statement, int columns) {
    std::int64_t sum = 0;
    while (statement.step())
        for (int i = 0; i < columns; ++i)
            sum += static_cast<std::int64_t>(statement.text(i).size());
    statement.reset();
    return sum;
}

constexpr const char* hand_trial_balance =
    "SELECT M.KM_ID, A.KM_NAME2, A.OID, A.KM_J, ifnull(B.J,0), ifnull(B.D,0), M.J, M.D, E.J, E.D "
    "FROM D6602 M JOIN D6801 A ON A.KM_ID=M.KM_ID "
    "JOIN D6602 E ON E.QJ=?1 AND E.INX=1 AND E.KM_ID=M.KM_ID "
    "LEFT JOIN D6602 B ON B.QJ=?2 AND B.INX=1 AND B.KM_ID=M.KM_ID "
    "WHERE M.QJ=?1 AND M.INX=0 AND A.KM_J<=5 AND NOT (ifnull(B.J,0)=0 AND ifnull(B.D,0)=0 AND "
    "M.J=0 AND M.D=0 AND E.J=0 AND E.D=0) ORDER BY M.KM_ID";

constexpr const char* hand_list =
    "SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 JOIN SYS_USER ON D6601.USER_ID=SYS_USER.USER_ID "
    "WHERE BDATE>=?1 AND BDATE<?2 AND PZZ_H>=0 AND PZZ_H<=99999 ORDER BY PZQJ, PZZ, PZZ_H";

std::string in_books(const std::string& work, const BigBooks& books) {
    return work + ", books of " + std::to_string(books.vouchers) + " vouchers";
}

} // namespace

std::vector<Row> trial_balance(const BigBooks& books) {
    hand::Connection connection(books.file);
    hand::Statement by_hand(connection, hand_trial_balance);
    OurSession ours(books.file);
    // The last posted period, so that opening, turnover and closing all have rows.
    const host::Period period = books.last.previous();
    const std::string text = period.to_text(), before = period.previous().to_text();
    const std::string query = module::trial_balance_query(period, 5);
    Row row = measure(in_books("trial balance to level 5", books), 9,
                      {[&] { read_all(by_hand.bind(1, text).bind(2, before), 10); }},
                      {[&] { ours.read(query); }});
    row.budget_ratio = 1.5;
    return {row};
}

std::vector<Row> voucher_list(const BigBooks& books) {
    hand::Connection connection(books.file);
    hand::Statement by_hand(connection, hand_list);
    OurSession ours(books.file);
    const host::Period period = books.last.previous();
    const host::Date origin = *host::Date::of(1900, 1, 1);
    const std::int64_t from = std::int64_t{period.first_day() - origin} * 25'920'000;
    const std::int64_t to = std::int64_t{period.last_day().plus_days(1) - origin} * 25'920'000;
    const std::string query =
        " SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER ON D6601.USER_ID = "
        "SYS_USER.USER_ID  where (D6601.BDATE>='" + period.first_day().to_text() +
        "') AND (D6601.BDATE<'" + period.last_day().plus_days(1).to_text() +
        "') AND (D6601.PZZ_H>=0) AND (D6601.PZZ_H<=99999) "
        "ORDER BY D6601.PZQJ,D6601.PZZ,D6601.PZZ_H";
    Row row = measure(in_books("voucher list of one month", books), 9,
                      {[&] { read_all(by_hand.bind(1, from).bind(2, to), 13); }},
                      {[&] { ours.read(query); }});
    row.budget_ratio = 1.5;
    return {row};
}

} // namespace bench
