// Fresh books as the program makes them, in a moment.
#pragma once

#include <filesystem>
#include <string>

namespace tests {

struct FreshBooks {
    std::string start = "2024-03"; // first period; "" leaves the books not set up
    std::string scheme = "1";      // voucher words: 1 记; 2 收付转; 3 现收现付银收银付转
    std::string company = "测试公司";
    auto operator<=>(const FreshBooks&) const = default;
};

// Writes fresh books to `file`. The program makes those of a kind once a test program; each call
// copies them.
void make_fresh_books(const FreshBooks& kind, const std::filesystem::path& file);

} // namespace tests
