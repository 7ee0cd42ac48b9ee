// Ledgers: the lines of a busy account for one month, and a year of the accounts at the top.
#include <functional>
#include <stdexcept>

#include "bench/hand/ledgers.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "module/ledgers/ledger_call.h"

namespace bench {

namespace {

constexpr double budget = 1.5;

// What both sides read must be the same to the cell, or the ratio says nothing.
Row compared(const std::string& work, const BigBooks& books, const std::string& call,
             const std::function<void(host::RowReceiver&)>& by_hand) {
    OurSession ours(books.file);
    CollectingReceiver expected, read;
    by_hand(expected);
    ours.data().query(call, read);
    if (read.rows.empty() || read.rows != expected.rows)
        throw std::runtime_error(work + ": both ways read different rows");
    const auto read_by_hand = [&] {
        SummingReceiver receiver;
        by_hand(receiver);
    };
    Row row = measure(work + ", books of " + std::to_string(books.vouchers) + " vouchers", 25,
                      {read_by_hand}, {[&] { ours.read(call); }});
    row.budget_ratio = budget;
    row.note = std::to_string(read.rows.size()) + " rows";
    return row;
}

} // namespace

std::vector<Row> detailed_ledger(const BigBooks& books) {
    hand::DetailedLedger by_hand(books.file);
    const std::string period = books.last.to_text();
    const module::LedgerCall call{.before = books.last.previous().to_text(),
                                  .show = "0",
                                  .first_account = books.busy_account,
                                  .last_account = books.busy_account,
                                  .first = period,
                                  .last = period};
    return {compared("detailed ledger of a busy account for one month", books,
                     module::detailed_ledger_call(call), [&](host::RowReceiver& receiver) {
                         by_hand.read(books.busy_account, books.last, receiver);
                     })};
}

std::vector<Row> general_ledger(const BigBooks& books) {
    hand::GeneralLedger by_hand(books.file);
    const int year = books.last.previous().year() - (books.last.previous().month() == 12 ? 0 : 1);
    const host::Period first = host::Period::of(year, 1);
    const module::LedgerCall call{.before = first.previous().to_text(),
                                  .show = "1",
                                  .first_account = "7000",
                                  .last_account = "7999",
                                  .first = first.to_text(),
                                  .last = host::Period::of(year, 12).to_text()};
    return {compared("general ledger of a year at level 1", books,
                     module::general_ledger_call(call, 1), [&](host::RowReceiver& receiver) {
                         by_hand.read("7000", "7999", 1, year, receiver);
                     })};
}

} // namespace bench
