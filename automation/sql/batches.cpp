// Reads lines up to GO.
#include "automation/sql/batches.h"

namespace automation {

namespace {

bool is_go(const std::string& line) {
    const std::size_t from = line.find_first_not_of(" \t\r");
    if (from == std::string::npos) return false;
    const std::size_t to = line.find_last_not_of(" \t\r");
    return to - from == 1 && (line[from] | 0x20) == 'g' && (line[to] | 0x20) == 'o';
}

} // namespace

bool read_batch(std::istream& in, std::string& batch) {
    batch.clear();
    bool something = false;
    for (std::string line; std::getline(in, line);) {
        if (is_go(line)) {
            if (something) return true;
            batch.clear();
            continue;
        }
        something = something || line.find_first_not_of(" \t\r") != std::string::npos;
        batch += line;
        batch += '\n';
    }
    return something;
}

} // namespace automation
