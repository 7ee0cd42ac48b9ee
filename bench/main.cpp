// Measures the program against the same work written by hand and prints the table.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "bench/measures/all.h"

namespace {

struct Measure {
    std::string_view name;
    std::vector<bench::Row> (*run)(const bench::BigBooks&);
    bool at_every_size = true; // else in the smaller books only
};

constexpr Measure measures[] = {
    {"compilation", bench::compilation, false}, {"posting", bench::posting},
    {"saving", bench::saving},                  {"trial_balance", bench::trial_balance},
    {"voucher_list", bench::voucher_list},      {"detailed_ledger", bench::detailed_ledger},
    {"general_ledger", bench::general_ledger},  {"statement", bench::statement},
    {"loading", bench::loading, false},         {"demonstration", bench::demonstration, false},
#ifdef ZF_WITH_DESKTOP
    {"printing", bench::printing, false},
#endif
};

// Without a name every measure is wanted.
bool wanted(const Measure& measure, int argc, char** argv) {
    for (int i = 2; i < argc; ++i)
        if (measure.name == argv[i]) return true;
    return argc <= 2;
}

} // namespace

// zf_bench [FOLDER [MEASURE …]]
int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : ".";
    const bool small = std::getenv("ZF_BENCH_SMALL") != nullptr;
    try {
        std::vector<bench::Row> rows;
        const int sizes[] = {10'000, small ? 100'000 : 1'000'000};
        for (int vouchers : sizes) {
            std::fprintf(stderr, "books of %d vouchers …\n", vouchers);
            const bench::BigBooks books = bench::big_books(folder, vouchers);
            for (const Measure& measure : measures) {
                if (!wanted(measure, argc, argv)) continue;
                if (!measure.at_every_size && vouchers != sizes[0]) continue;
                const std::vector<bench::Row> more = measure.run(books);
                rows.insert(rows.end(), more.begin(), more.end());
            }
        }
        bench::print(rows);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
