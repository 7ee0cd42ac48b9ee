// Compares the tables of a set of books with the plain ledger, row by row.
#include "tests/scenarios/book_comparison.h"

#include <algorithm>

namespace tests {

namespace {

// Two sorted lists of lines of text; the first line that is not in both is told.
void compare_lists(const std::string& what, std::vector<std::string> kept,
                   std::vector<std::string> expected) {
    std::sort(kept.begin(), kept.end());
    std::sort(expected.begin(), expected.end());
    if (kept == expected) return;
    std::vector<std::string> more, missing;
    std::set_difference(kept.begin(), kept.end(), expected.begin(), expected.end(),
                        std::back_inserter(more));
    std::set_difference(expected.begin(), expected.end(), kept.begin(), kept.end(),
                        std::back_inserter(missing));
    throw Difference(what + ": the books hold “" + (more.empty() ? "" : more.front()) +
                     "”, expected “" + (missing.empty() ? "" : missing.front()) + "”");
}

void compare_periods(Books& books, const NaiveLedger& ledger) {
    std::vector<std::string> kept;
    for (const Row& row : books.table("SELECT ID, PARAM FROM D6600 WHERE ID<3")) {
        kept.push_back(row.at("ID") + " " + row.at("PARAM"));
    }
    compare_lists("periods", kept, {"1 " + ledger.first(), "2 " + ledger.current()});
}

void compare_vouchers(Books& books, const NaiveLedger& ledger) {
    std::vector<std::string> kept, expected;
    for (const Row& row :
         books.table("SELECT NOID,PZQJ,PZZ,PZZ_H,T,D,T_SY FROM D6601")) {
        kept.push_back(row.at("NOID") + " " + row.at("PZQJ") + " " + row.at("PZZ") + " " +
                       row.at("PZZ_H") + " " + row.at("T") + row.at("D") + row.at("T_SY"));
    }
    for (const NaiveVoucher& one : ledger.vouchers()) {
        expected.push_back(one.key + " " + one.period + " " + one.word + " " +
                           std::to_string(one.number) + " " + (one.audited ? "1" : "0") +
                           (one.posted ? "1" : "0") + (one.carried ? "1" : "0"));
    }
    compare_lists("vouchers", kept, expected);
}

void compare_lines(Books& books, const NaiveLedger& ledger) {
    std::vector<std::string> kept, expected;
    for (const Row& row : books.table("SELECT NOID,KM_ID,J,D FROM D6601A")) {
        kept.push_back(row.at("NOID") + " " + row.at("KM_ID") + " " + row.at("J") + " " +
                       row.at("D"));
    }
    for (const NaiveVoucher& one : ledger.vouchers()) {
        for (const NaiveLine& line : one.lines) {
            expected.push_back(one.key + " " + line.account + " " + money(line.debit) + " " +
                               money(line.credit));
        }
    }
    compare_lists("lines", kept, expected);
}

void compare_allocations(Books& books, const NaiveLedger& ledger) {
    std::vector<std::string> kept, expected;
    for (const Row& row : books.table("SELECT NOID,D6820ID,J,D FROM D6601B")) {
        kept.push_back(row.at("NOID") + " " + row.at("D6820ID") + " " + row.at("J") + " " +
                       row.at("D"));
    }
    for (const NaiveVoucher& one : ledger.vouchers()) {
        for (const auto& [item, share] : one.cash) {
            expected.push_back(one.key + " " + item + " " + money(share.in) + " " +
                               money(share.out));
        }
    }
    compare_lists("cash-flow allocations", kept, expected);
}

std::string text_of(const NaiveFigures& figures) {
    return "J " + money(figures.debit) + " D " + money(figures.credit) + " SY_J " +
           money(figures.carried_debit) + " SY_D " + money(figures.carried_credit);
}

std::string text_of(const NaiveKey& key) {
    return key.period + " " + key.account + " INX " + std::to_string(key.kind);
}

void compare_row(const NaiveKey& key, const NaiveFigures& kept, const NaiveBalances& expected) {
    const auto row = expected.find(key);
    if (row == expected.end()) {
        throw Difference("balances: a row too many, " + text_of(key) + ": " + text_of(kept));
    }
    if (row->second == kept) return;
    throw Difference("balances of " + text_of(key) + ": the books hold " + text_of(kept) +
                     ", expected " + text_of(row->second));
}

std::size_t compare_balances(Books& books, const NaiveLedger& ledger) {
    const NaiveBalances& expected = ledger.balances();
    NaiveBalances kept;
    for (const Row& row : books.table("SELECT QJ,KM_ID,INX,J,D,SY_J,SY_D FROM D6602")) {
        const NaiveKey key{row.at("QJ"), row.at("KM_ID"), std::stoi(row.at("INX"))};
        kept[key] = {cents_of(row.at("J")), cents_of(row.at("D")), cents_of(row.at("SY_J")),
                     cents_of(row.at("SY_D"))};
    }
    for (const auto& [key, figures] : kept) compare_row(key, figures, expected);
    for (const auto& [key, figures] : expected) {
        if (!kept.contains(key)) throw Difference("balances: no row " + text_of(key));
    }
    return 4 * kept.size();
}

} // namespace

std::size_t compare_books(Books& books, const NaiveLedger& ledger) {
    compare_periods(books, ledger);
    compare_vouchers(books, ledger);
    compare_lines(books, ledger);
    compare_allocations(books, ledger);
    return compare_balances(books, ledger);
}

} // namespace tests
