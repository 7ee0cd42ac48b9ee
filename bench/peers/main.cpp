// Compares the program with two plain-text accounting programs: first the figures, then the time.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include "bench/measures/session.h"
#include "bench/peers/journal.h"
#include "bench/peers/process.h"
#include "bench/peers/readers.h"
#include "module/vouchers/posting_batch.h"

namespace bench::peers {

namespace {

constexpr int rounds = 3;

// A copy of the measured books with the last period posted.
BigBooks posted_copy(const BigBooks& books) {
    BigBooks copy = books;
    copy.file += ".posted";
    for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(copy.file + tail);
    std::filesystem::copy_file(books.file, copy.file);
    OurSession session(copy.file);
    session.data().execute(module::posting_batch(copy.last), {"663", copy.last.to_text(), "Edit"});
    return copy;
}

template <class Answer>
void require_same(const Reader& reader, const char* what, const Answer& theirs,
                  const Answer& ours) {
    if (theirs == ours) return;
    throw std::runtime_error(reader.name + " gives another " + what + " than we do: " +
                             std::to_string(theirs.size()) + " figures against " +
                             std::to_string(ours.size()));
}

// Every account's balance and every line's amount; empty answers would agree for nothing.
void compare(const std::vector<Reader>& readers) {
    Balances balances;
    Register lines;
    for (const Reader& reader : readers) {
        const Ran balance = run(reader.trial_balance, reader.trial_balance_input);
        const Ran account = run(reader.account_register, reader.register_input);
        const Balances its_balances = reader.balances(balance.output);
        const Register its_lines = reader.lines(account.output);
        if (balances.empty()) {
            balances = its_balances;
            lines = its_lines;
        }
        if (its_balances.empty() || its_lines.empty())
            throw std::runtime_error(reader.name + " answered nothing");
        require_same(reader, "trial balance", its_balances, balances);
        require_same(reader, "register", its_lines, lines);
    }
    std::printf("  same to the cent in %zu programs: %zu balances, %zu lines of the account\n",
                readers.size(), balances.size(), lines.size());
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The programs in turn, so that a machine whose speed drifts bends all alike.
void time_in_turn(const char* work, const std::vector<Reader>& readers,
                  std::vector<std::string> Reader::*command, std::string Reader::*input) {
    std::vector<std::vector<double>> times(readers.size());
    for (int round = 0; round <= rounds; ++round)
        for (std::size_t i = 0; i < readers.size(); ++i) {
            const double cpu_ms = run(readers[i].*command, readers[i].*input).cpu_ms;
            if (round > 0) times[i].push_back(cpu_ms);
        }
    const double ours = median(times[0]);
    for (std::size_t i = 0; i < readers.size(); ++i)
        std::printf("  %-34s %-10s %10.1f ms %8.1f x\n", work, readers[i].name.c_str(),
                    median(times[i]), median(times[i]) / ours);
}

void measure_books(const std::string& folder, const std::string& program, int vouchers) {
    const BigBooks books = posted_copy(big_books(folder, vouchers));
    const std::string journal = books.file + ".journal";
    std::string account;
    {
        const hand::Connection connection(books.file);
        write_journal(connection, journal);
        account = journal_account(connection, books.busy_account);
    }
    std::vector<Reader> readers{ours(program, books)};
    if (is_installed("ledger")) readers.push_back(ledger(journal, books, account));
    if (is_installed("hledger")) readers.push_back(hledger(journal, books, account));
    std::printf("books of %d vouchers\n", vouchers);
    compare(readers);
    time_in_turn("trial balance", readers, &Reader::trial_balance, &Reader::trial_balance_input);
    time_in_turn("an account's lines of one month", readers, &Reader::account_register,
                 &Reader::register_input);
    std::filesystem::remove(journal);
    for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(books.file + tail);
}

} // namespace

} // namespace bench::peers

// zf_bench_peers [FOLDER]
int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : ".";
    try {
        for (const char* name : {"ledger", "hledger"})
            if (!bench::peers::is_installed(name))
                std::printf("%s is not installed and left out; bench/peers/packages.txt names the "
                            "package.\n", name);
        const auto here = std::filesystem::read_symlink("/proc/self/exe").parent_path();
        std::printf("whole processes, processor time, median of %d\n", bench::peers::rounds);
        for (const int vouchers : {10'000, 100'000})
            bench::peers::measure_books(folder, (here / "zhangfang").string(), vouchers);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
