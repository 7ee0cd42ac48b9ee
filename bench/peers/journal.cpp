// Reads the books by bare SQLite and prints transactions.
#include "bench/peers/journal.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <unordered_map>

#include "host/values/period.h"

namespace bench::peers {

namespace {

constexpr std::int64_t ticks_a_day = 25'920'000; // moments are kept in 1/300 seconds

using Names = std::unordered_map<std::string, std::string>;

// A parent's code comes before its children's in the order of codes.
Names names_of(const hand::Connection& books) {
    Names names;
    hand::Statement read(books, "SELECT KM_ID, OID FROM D6801 ORDER BY KM_J, KM_ID");
    while (read.step()) {
        const std::string code(read.text(0));
        const auto parent = names.find(std::string(read.text(1)));
        names[code] = parent == names.end() ? code : parent->second + ":" + code;
    }
    return names;
}

std::string amount(std::int64_t cents) {
    const std::int64_t size = cents < 0 ? -cents : cents;
    char text[32];
    std::snprintf(text, sizeof text, "%s%lld.%02lld", cents < 0 ? "-" : "",
                  static_cast<long long>(size / 100), static_cast<long long>(size % 100));
    return text;
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

void write_posting(std::FILE* out, const std::string& name, std::int64_t cents) {
    std::fprintf(out, "    %s  %s\n", name.c_str(), amount(cents).c_str());
}

void write_openings(const hand::Connection& books, const Names& names, std::FILE* out) {
    hand::Statement first(books, "SELECT PARAM FROM D6600 WHERE ID=1");
    first.step();
    const host::Period before = host::Period::parse(first.text(0))->previous();
    std::fprintf(out, "%s opening\n", before.last_day().to_text().c_str());
    hand::Statement read(books, "SELECT B.KM_ID, B.J-B.D FROM D6602 B WHERE B.QJ=?1 AND B.INX=1 "
                                "AND NOT EXISTS (SELECT 1 FROM D6801 C WHERE C.OID=B.KM_ID)");
    const std::string period = before.to_text();
    read.bind(1, period);
    while (read.step()) {
        const std::string code(read.text(0));
        if (read.integer(1) != 0) write_posting(out, names.at(code), read.integer(1));
    }
    std::fputs("\n", out);
}

} // namespace

void write_journal(const hand::Connection& books, const std::string& file) {
    const File out(std::fopen(file.c_str(), "w"), std::fclose);
    if (!out) throw std::runtime_error("cannot write " + file);
    const Names names = names_of(books);
    write_openings(books, names, out.get());
    hand::Statement read(books, "SELECT H.BDATE, H.PZZ, H.PZZ_H, A.KM_ID, A.J-A.D, H.NOID FROM "
                                "D6601 H JOIN D6601A A ON A.NOID=H.NOID "
                                "ORDER BY H.BDATE, H.PZZ, H.PZZ_H, A.INX");
    const host::Date origin = *host::Date::of(1900, 1, 1);
    std::string key;
    while (read.step()) {
        if (read.text(5) != key) {
            if (!key.empty()) std::fputs("\n", out.get());
            key = read.text(5);
            const auto days = static_cast<int>(read.integer(0) / ticks_a_day);
            const host::Date day = origin.plus_days(days);
            std::fprintf(out.get(), "%s %s%s\n", day.to_text().c_str(),
                         std::string(read.text(1)).c_str(), std::string(read.text(2)).c_str());
        }
        write_posting(out.get(), names.at(std::string(read.text(3))), read.integer(4));
    }
    std::fputs("\n", out.get());
}

std::string journal_account(const hand::Connection& books, const std::string& code) {
    return names_of(books).at(code);
}

} // namespace bench::peers
