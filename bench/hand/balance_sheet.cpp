// Reads formulas and reckons them on the posted balances.
#include "bench/hand/balance_sheet.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "host/values/period.h"

namespace bench::hand {

namespace {

// Debits less credits of the accounts meant by a range: those in it whose parent is not.
std::string sum_of_meant(const char* kind) {
    return "SELECT ifnull(sum(B.J-B.D),0) FROM D6801 A JOIN D6602 B ON B.KM_ID=A.KM_ID AND "
           "B.QJ=?3 AND B.INX=" +
           std::string(kind) +
           " WHERE A.KM_ID>=?1 AND A.KM_ID<=?2 AND (A.OID='Z' OR NOT (A.OID>=?1 AND A.OID<=?2))";
}

int number_of(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

// "12.50" in cents; a blank is nothing.
std::int64_t cents_of(std::string_view text) {
    std::int64_t whole = 0, cents = 0;
    const bool minus = !text.empty() && text.front() == '-';
    if (minus) text.remove_prefix(1);
    const auto point = text.find('.');
    const std::string_view left = text.substr(0, point);
    std::from_chars(left.data(), left.data() + left.size(), whole);
    if (point != std::string_view::npos) {
        std::string right(text.substr(point + 1, 2));
        right.resize(2, '0');
        std::from_chars(right.data(), right.data() + 2, cents);
    }
    return minus ? -(whole * 100 + cents) : whole * 100 + cents;
}

std::string unquoted(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    if (text.size() > 1 && text.front() == '\'') text = text.substr(1, text.size() - 2);
    return std::string(text);
}

} // namespace

std::vector<Term> terms_of(std::string_view query) {
    const std::string whole(query);
    std::vector<Term> terms;
    bool minus = false;
    std::size_t at = query.find("dbo.");
    while (at != std::string_view::npos) {
        const std::size_t open = query.find('(', at), close = query.find(')', at);
        if (close == std::string_view::npos || open > close)
            throw std::runtime_error("a formula that is not understood: " + whole);
        Term term{minus, std::string(query.substr(at + 4, open - at - 4)), {}};
        for (std::size_t from = open + 1; from <= close;) {
            const std::size_t to = std::min(query.find(',', from), close);
            term.arguments.push_back(unquoted(query.substr(from, to - from)));
            from = to + 1;
        }
        terms.push_back(std::move(term));
        at = query.find("dbo.", close);
        const std::string between = unquoted(query.substr(close + 1, at - close - 1));
        minus = between == "-";
        if (between != "-" && between != "+" && between != "as a")
            throw std::runtime_error("a formula that is not understood: " + whole);
    }
    return terms;
}

BalanceSheet::BalanceSheet(const std::string& file)
    : connection_(file), begin_(connection_, "SELECT PARAM FROM D6600 WHERE ID=1"),
      side_(connection_, "SELECT FX FROM D6801 WHERE KM_ID>=?1 AND KM_ID<=?2 ORDER BY KM_ID "
                         "LIMIT 1"),
      closing_(connection_, sum_of_meant("1").c_str()),
      moved_(connection_, sum_of_meant("0").c_str()),
      lines_(connection_, "SELECT A2, A3, A4, B2, B3, B4 FROM D6830 WHERE G=?1") {}

std::int64_t BalanceSheet::on_debit(Statement& statement, const std::string& period,
                                    const std::string& first, const std::string& last) {
    statement.bind(1, first).bind(2, last).bind(3, period).step();
    const std::int64_t cents = statement.integer(0);
    statement.reset();
    return cents;
}

std::int64_t BalanceSheet::balance(bool beginning, const std::string& period,
                                   const std::string& first, const std::string& last) {
    side_.bind(1, first).bind(2, last);
    const bool debit = !side_.step() || side_.text(0) == "借";
    side_.reset();
    std::string closing = period;
    if (beginning) {
        begin_.step();
        const std::string books_begin(begin_.text(0));
        begin_.reset();
        const std::string year = period.substr(0, 4);
        const std::string from = books_begin.starts_with(year) ? books_begin : year + "-01";
        closing = host::Period::parse(from)->previous().to_text();
    }
    std::int64_t cents = on_debit(closing_, closing, first, last);
    if (beginning) cents -= on_debit(moved_, period.substr(0, 4) + "-00", first, last);
    return debit ? cents : -cents;
}

std::int64_t BalanceSheet::lines(std::int64_t layout, bool beginning, int first, int last) {
    std::int64_t sum = 0;
    lines_.bind(1, layout);
    while (lines_.step())
        for (const int half : {0, 3}) {
            const std::string_view line = lines_.text(half);
            if (line.empty()) continue;
            const int number = number_of(line);
            if (number < first || number > last) continue;
            sum += cents_of(lines_.text(half + (beginning ? 1 : 2)));
        }
    lines_.reset();
    return sum;
}

std::int64_t BalanceSheet::figure(const Term& term) {
    const auto& given = term.arguments;
    if (term.function == "fasc" && given.size() == 4 && (given[0] == "0" || given[0] == "1"))
        return balance(given[0] == "1", given[1], given[2], given[3]);
    if (term.function == "fsum" && given.size() == 5)
        return lines(number_of(given[0]), given[1] == "1", number_of(given[3]),
                     number_of(given[4]));
    if (term.function == "fd" && given.size() == 4)
        return lines(number_of(given[0]), given[1] == "1", number_of(given[3]),
                     number_of(given[3]));
    throw std::runtime_error("no figure known by hand: " + term.function);
}

std::int64_t BalanceSheet::reckon(const std::vector<Term>& terms) {
    std::int64_t cents = 0;
    for (const Term& term : terms) cents += term.minus ? -figure(term) : figure(term);
    return cents;
}

} // namespace bench::hand
