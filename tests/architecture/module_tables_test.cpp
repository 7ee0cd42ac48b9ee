// The tables in the module's READMEs name every unit, and nothing else, in the unit's own words.
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

// A unit is a file whose name is fixed: it begins with a capital letter.
bool is_unit(const SourceFile& file) {
    const bool header = file.is_header() || file.name() == "Qmx600.cpp";
    return file.folder == "module" && header &&
           std::isupper(static_cast<unsigned char>(file.name()[0]));
}

std::string unit_name(const SourceFile& file) {
    return file.name().substr(0, file.name().find('.'));
}

// "U6661" → "vouchers/U6661".
std::string key_of(const SourceFile& file) {
    return file.directory() + "/" + unit_name(file);
}

std::vector<std::string> cells_of(const std::string& line) {
    std::vector<std::string> cells;
    std::size_t start = 1;
    while (start < line.size()) {
        const std::size_t end = std::min(line.find('|', start), line.size());
        std::string cell = line.substr(start, end - start);
        cell.erase(0, cell.find_first_not_of(' '));
        cell.erase(cell.find_last_not_of(' ') + 1);
        cells.push_back(std::move(cell));
        start = end + 1;
    }
    return cells;
}

// What each row of the units' tables says the user does there, by folder and unit.
std::map<std::string, std::string> purposes_in_tables() {
    std::map<std::string, std::string> purposes;
    for (const SourceFile& file : repository()) {
        if (file.folder != "module" || file.name() != "README.md") continue;
        if (file.directory() == "module") continue;
        for (const std::string& line : file.lines) {
            if (!line.starts_with("| ")) continue;
            const auto cells = cells_of(line);
            if (cells.size() < 5 || cells[0] == "unit") continue;
            purposes[file.directory() + "/" + cells[0]] = cells[4];
        }
    }
    return purposes;
}

} // namespace

TEST(ModuleTables, every_unit_has_a_row_that_says_what_its_first_line_says) {
    const auto purposes = purposes_in_tables();
    Offences offences("a unit and its row in the README differ");
    for (const SourceFile& file : repository()) {
        if (!is_unit(file)) continue;
        const auto row = purposes.find(key_of(file));
        if (row == purposes.end()) {
            offences.add(file, 1, "no row");
        } else if (file.lines.empty() || file.lines[0] != "// " + row->second) {
            offences.add(file, 1, "the row says: " + row->second);
        }
    }
}

TEST(ModuleTables, every_row_has_its_unit) {
    std::set<std::string> units;
    for (const SourceFile& file : repository()) {
        if (is_unit(file)) units.insert(key_of(file));
    }
    Offences offences("a row names no unit");
    for (const auto& [unit, purpose] : purposes_in_tables()) {
        if (!units.contains(unit)) offences.add(unit);
    }
}

} // namespace tests
