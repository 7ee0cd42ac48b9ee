// The commands of the three programs and the shapes of their answers.
#include "bench/peers/readers.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <stdexcept>

#include "module/ledgers/ledger_call.h"
#include "module/ledgers/trial_balance_query.h"

namespace bench::peers {

namespace {

// "-1234.5" or "1,234.50" in cents; what has more than two decimals is refused.
std::int64_t cents(const std::string& text) {
    std::int64_t value = 0;
    int decimals = -1;
    for (const char c : text) {
        if (c == '.') decimals = 0;
        if (c < '0' || c > '9') continue;
        value = value * 10 + (c - '0');
        if (decimals >= 0) ++decimals;
    }
    if (decimals > 2) throw std::runtime_error("more than two decimals: " + text);
    for (int digits = std::max(decimals, 0); digits < 2; ++digits) value *= 10;
    return text.find('-') == std::string::npos ? value : -value;
}

std::string own_code(const std::string& account) {
    const std::size_t colon = account.rfind(':');
    return colon == std::string::npos ? account : account.substr(colon + 1);
}

using Cells = std::vector<std::string>;

// Lines of cells; cells may be quoted, and hold no quotes.
std::vector<Cells> table(const std::string& output, char separator) {
    std::vector<Cells> rows;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        Cells cells(1);
        bool quoted = false;
        for (const char c : line) {
            if (c == '"')
                quoted = !quoted;
            else if (c == separator && !quoted)
                cells.emplace_back();
            else
                cells.back() += c;
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

void keep(Balances& balances, const std::string& account, std::int64_t amount) {
    if (amount != 0) balances[account] = amount;
}

// ---- ledger: account and amount, or the amount alone

Balances ledger_balances(const std::string& output) {
    Balances balances;
    for (const Cells& cells : table(output, '\t'))
        keep(balances, own_code(cells.at(0)), cents(cells.at(1)));
    return balances;
}

Register ledger_lines(const std::string& output) {
    Register amounts;
    for (const Cells& cells : table(output, '\t')) amounts.push_back(cents(cells.at(0)));
    return amounts;
}

// ---- hledger: comma-separated, a heading first

Balances hledger_balances(const std::string& output) {
    Balances balances;
    std::vector<Cells> rows = table(output, ',');
    for (std::size_t i = 1; i < rows.size(); ++i)
        keep(balances, own_code(rows[i].at(0)), cents(rows[i].at(1)));
    return balances;
}

Register hledger_lines(const std::string& output) {
    constexpr std::size_t amount = 5;
    Register amounts;
    std::vector<Cells> rows = table(output, ',');
    for (std::size_t i = 1; i < rows.size(); ++i) amounts.push_back(cents(rows[i].at(amount)));
    return amounts;
}

// ---- ours: a JSON object with the names of the columns and the rows

struct Answer {
    std::map<std::string, std::size_t> places;
    nlohmann::json rows;
    std::string text(const nlohmann::json& row, const std::string& column) const {
        const nlohmann::json& cell = row.at(places.at(column));
        return cell.is_null() ? "" : cell.get<std::string>();
    }
};

Answer answer_in(const std::string& output) {
    const auto line = nlohmann::json::parse(output);
    Answer answer;
    for (const auto& name : line.at("columns")) answer.places.emplace(name, answer.places.size());
    answer.rows = line.at("rows");
    return answer;
}

// Parents repeat what stands below them, so only accounts without any below are kept.
Balances our_balances(const std::string& output) {
    const Answer answer = answer_in(output);
    std::set<std::string> parents;
    for (const auto& row : answer.rows) parents.insert(answer.text(row, "OID"));
    Balances balances;
    for (const auto& row : answer.rows)
        if (const std::string code = answer.text(row, "KM_ID"); !parents.contains(code))
            keep(balances, code, cents(answer.text(row, "D1")) - cents(answer.text(row, "D2")));
    return balances;
}

Register our_lines(const std::string& output) {
    const Answer answer = answer_in(output);
    Register amounts;
    for (const auto& row : answer.rows)
        if (answer.text(row, "inx") != "-1")
            amounts.push_back(cents(answer.text(row, "J")) - cents(answer.text(row, "D")));
    return amounts;
}

std::string request(const std::string& batch) {
    return nlohmann::json{{"sql", batch}}.dump() + "\n";
}

} // namespace

Reader ours(const std::string& program, const BigBooks& books) {
    const std::string period = books.last.to_text();
    const module::LedgerCall call{books.last.previous().to_text(), "1",    books.busy_account,
                                  books.busy_account,              period, period};
    const std::vector<std::string> command{program, "sql", "--jsonl", books.file};
    constexpr int deepest_level = 5;
    return {"zhangfang",
            command,
            command,
            request(module::trial_balance_query(books.last, deepest_level)),
            request(module::detailed_ledger_call(call)),
            our_balances,
            our_lines};
}

Reader ledger(const std::string& journal, const BigBooks& books, const std::string& account) {
    return {"ledger",
            {"ledger", "--args-only", "-f", journal, "balance", "--flat", "--no-total",
             "--balance-format", "%(account)\t%(amount)\n"},
            {"ledger", "--args-only", "-f", journal, "register", "^" + account + "$", "-b",
             books.last.first_day().to_text(), "-e", books.last.next().first_day().to_text(),
             "--register-format", "%(amount)\n"},
            "",
            "",
            ledger_balances,
            ledger_lines};
}

Reader hledger(const std::string& journal, const BigBooks& books, const std::string& account) {
    return {"hledger",
            {"hledger", "-f", journal, "balance", "--flat", "--no-total", "-O", "csv"},
            {"hledger", "-f", journal, "register", "acct:^" + account + "$", "-b",
             books.last.first_day().to_text(), "-e", books.last.next().first_day().to_text(), "-O",
             "csv"},
            "",
            "",
            hledger_balances,
            hledger_lines};
}

} // namespace bench::peers
