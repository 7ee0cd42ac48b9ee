// Measures the program against the same work written by hand and prints the table.
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "bench/measures/all.h"

int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : ".";
    const bool small = std::getenv("ZF_BENCH_SMALL") != nullptr;
    try {
        std::vector<bench::Row> rows;
        const auto add = [&rows](const std::vector<bench::Row>& more) {
            rows.insert(rows.end(), more.begin(), more.end());
        };
        const int sizes[] = {small ? 10'000 * 3 : 100'000, small ? 100'000 : 1'000'000};
        for (int vouchers : sizes) {
            std::fprintf(stderr, "books of %d vouchers …\n", vouchers);
            const bench::BigBooks books = bench::big_books(folder, vouchers);
            if (vouchers == sizes[0]) add(bench::compilation(books));
            add(bench::posting(books));
            add(bench::saving(books));
            add(bench::trial_balance(books));
            add(bench::voucher_list(books));
        }
        bench::print(rows);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
