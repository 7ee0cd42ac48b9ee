// Ledgers: the lines of a busy account for one month, and a year of the accounts at the top.
#include <functional>
#include <stdexcept>

#include "bench/hand/ledger_statements.h"
#include "bench/hand/ledgers.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "module/ledgers/ledger_call.h"

namespace bench {

namespace {

// One way of reading a ledger by hand, and how many times its time ours may take: the statement a
// person would write for this database, and the least that reads and adds up the same rows.
struct ByHand {
    std::string way;
    double budget;
    std::function<void(host::RowReceiver&)> read;
};

// What all sides read must be the same to the cell, or the ratios say nothing.
std::vector<Row> compared(const std::string& work, const BigBooks& books, const std::string& call,
                          const std::vector<ByHand>& ways) {
    OurSession ours(books.file);
    CollectingReceiver read;
    ours.data().query(call, read);
    std::vector<Row> rows;
    for (const ByHand& way : ways) {
        CollectingReceiver expected;
        way.read(expected);
        if (read.rows.empty() || read.rows != expected.rows)
            throw std::runtime_error(work + ", " + way.way + ": both sides read different rows");
        const auto read_by_hand = [&] {
            SummingReceiver receiver;
            way.read(receiver);
        };
        Row row = measure(work + ", " + way.way + ", books of " + std::to_string(books.vouchers) +
                              " vouchers",
                          25, {read_by_hand}, {[&] { ours.read(call); }});
        row.budget_ratio = way.budget;
        row.note = std::to_string(read.rows.size()) + " rows";
        rows.push_back(row);
    }
    return rows;
}

} // namespace

std::vector<Row> detailed_ledger(const BigBooks& books) {
    hand::DetailedLedgerStatement statement(books.file);
    hand::DetailedLedger loop(books.file);
    const std::string period = books.last.to_text();
    const module::LedgerCall call{.before = books.last.previous().to_text(),
                                  .show = "0",
                                  .first_account = books.busy_account,
                                  .last_account = books.busy_account,
                                  .first = period,
                                  .last = period};
    const auto by = [&books](auto& hand) {
        return [&](host::RowReceiver& receiver) {
            hand.read(books.busy_account, books.last, receiver);
        };
    };
    return compared("detailed ledger of a busy account for one month", books,
                    module::detailed_ledger_call(call),
                    {{"to one SQL statement", 1.5, by(statement)},
                     {"to a loop in C++", 2, by(loop)}});
}

std::vector<Row> general_ledger(const BigBooks& books) {
    hand::GeneralLedgerStatement statement(books.file);
    hand::GeneralLedger loop(books.file);
    const int year = books.last.previous().year() - (books.last.previous().month() == 12 ? 0 : 1);
    const host::Period first = host::Period::of(year, 1);
    const module::LedgerCall call{.before = first.previous().to_text(),
                                  .show = "1",
                                  .first_account = "7000",
                                  .last_account = "7999",
                                  .first = first.to_text(),
                                  .last = host::Period::of(year, 12).to_text()};
    const auto by = [year](auto& hand) {
        return [&, year](host::RowReceiver& receiver) {
            hand.read("7000", "7999", 1, year, receiver);
        };
    };
    return compared("general ledger of a year at level 1", books,
                    module::general_ledger_call(call, 1),
                    {{"to one SQL statement", 1.5, by(statement)},
                     {"to a loop in C++", 2, by(loop)}});
}

} // namespace bench
