// Files, functions and lines stay small enough to be read at a glance.
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <regex>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

constexpr std::size_t longest_line = 100, longest_function = 70, longest_file = 600;

std::size_t indentation_of(const std::string& line) {
    return line.find_first_not_of(' ');
}

// A head such as "Amount total(const Lines& lines) const {", the last line of it.
bool opens_a_body(const std::string& code) {
    static const std::regex body(R"(.*\)[^;=]*\{\s*$)");
    static const std::regex other(R"(^\s*(namespace|class|struct|enum|union|extern)\b.*)");
    return std::regex_match(code, body) && !std::regex_match(code, other);
}

// The line that closes what `start` opened: a brace at the same indentation, or further out where
// the head's last line is indented, as that of a constructor with initialisers.
std::size_t end_of_body(const SourceFile& file, std::size_t start) {
    const std::size_t depth = indentation_of(file.lines[start]);
    for (std::size_t at = start + 1; at < file.lines.size(); ++at) {
        const std::size_t indentation = indentation_of(file.lines[at]);
        if (indentation <= depth && file.lines[at][indentation] == '}') return at;
    }
    return start;
}

void print_statistics(const std::string& folder, std::vector<std::size_t> sizes) {
    std::sort(sizes.begin(), sizes.end());
    std::size_t lines = 0;
    for (const std::size_t size : sizes) lines += size;
    std::cout << folder << ": " << sizes.size() << " files, " << lines << " lines; median "
              << sizes[sizes.size() / 2] << ", nine in ten up to " << sizes[sizes.size() * 9 / 10]
              << ", longest " << sizes.back() << "\n";
}

} // namespace

TEST(Sizes, a_line_has_at_most_a_hundred_characters) {
    Offences offences("a line is too long");
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            const std::size_t length = characters_in(file.lines[at]);
            if (length <= longest_line) continue;
            // A statement's text is not broken where that would hide its wording.
            if (file.lines[at].find("R\"") != std::string::npos) continue;
            offences.add(file, at + 1, std::to_string(length) + " characters");
        }
    }
}

TEST(Sizes, a_function_has_at_most_seventy_lines) {
    Offences offences("a function is too long");
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            if (!opens_a_body(code_of(file.lines[at]))) continue;
            const std::size_t length = end_of_body(file, at) - at + 1;
            if (length > longest_function) {
                offences.add(file, at + 1, std::to_string(length) + " lines");
            }
        }
    }
}

TEST(Sizes, a_file_has_at_most_six_hundred_lines) {
    Offences offences("a file is too long");
    for (const SourceFile& file : repository()) {
        if (file.is_code() && file.lines.size() > longest_file) {
            offences.add(file, file.lines.size(), "last line");
        }
    }
}

TEST(Sizes, most_files_are_much_smaller) {
    std::map<std::string, std::vector<std::size_t>> by_folder;
    std::vector<std::size_t> all;
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        by_folder[file.folder].push_back(file.lines.size());
        all.push_back(file.lines.size());
    }
    for (const auto& [folder, sizes] : by_folder) print_statistics(folder, sizes);
    print_statistics("all", all);
    std::sort(all.begin(), all.end());
    EXPECT_LT(all[all.size() / 2], 150U) << "the median file";
    EXPECT_LT(all[all.size() * 9 / 10], 400U) << "nine files in ten";
}

} // namespace tests
