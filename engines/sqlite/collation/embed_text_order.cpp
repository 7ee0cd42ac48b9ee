// Build step: turns the frozen order of characters into a C++ table of ranks.
//
// usage: embed_text_order text_order.txt table.cpp
#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace {

// Ranks of the basic plane; 0 is a character that the order does not name.
std::array<std::uint32_t, 0x10000> ranks{};
std::uint32_t last_rank = 0;

void read_code_points(const std::string& words) {
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        const auto dots = word.find("..");
        const auto first = std::stoul(word, nullptr, 16);
        if (dots != std::string::npos) {
            const auto last = std::stoul(word.substr(dots + 2), nullptr, 16);
            for (auto code = first; code <= last; ++code) ranks.at(code) = ++last_rank;
            continue;
        }
        ++last_rank;
        for (std::size_t place = 0; place < word.size();) {
            const auto end = std::min(word.find('=', place), word.size());
            ranks.at(std::stoul(word.substr(place, end - place), nullptr, 16)) = last_rank;
            place = end + 1;
        }
    }
}

// The characters of these lines all take three bytes.
void read_characters(const std::string& text) {
    for (std::size_t i = 0; i + 3 <= text.size(); i += 3) {
        const auto byte = [&](std::size_t at) {
            return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i + at]));
        };
        ranks.at((byte(0) & 15) << 12 | (byte(1) & 63) << 6 | (byte(2) & 63)) = ++last_rank;
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) return 2;
    std::ifstream in(arguments[1]);
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("U ", 0) == 0) read_code_points(line.substr(2));
        if (line.rfind("C ", 0) == 0) read_characters(line.substr(2));
    }
    if (last_rank == 0) return 1;
    // What was not assigned when the order was frozen comes last, by its number.
    for (auto& rank : ranks)
        if (rank == 0) rank = ++last_rank;
    if (last_rank > 0xFFFF) return 1;
    std::FILE* out = std::fopen(arguments[2], "w");
    if (out == nullptr) return 1;
    std::fprintf(out, "// Made from text_order.txt by embed_text_order.\n"
                      "#include \"engines/sqlite/collation/text_order.h\"\n\n"
                      "namespace engines {\n\n"
                      "const std::array<std::uint16_t, 0x10000> text_order = {");
    for (std::size_t code = 0; code < ranks.size(); ++code)
        std::fprintf(out, "%s%u,", code % 16 == 0 ? "\n    " : "", ranks[code]);
    std::fprintf(out, "\n};\n\n}  // namespace engines\n");
    return std::fclose(out) == 0 ? 0 : 1;
}
