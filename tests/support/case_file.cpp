// Reads, checks and rewrites files of cases.
#include "tests/support/case_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace support {

namespace {

constexpr const char* separator = "====";

std::vector<std::string> lines_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

void append_line(std::string& text, const std::string& line) {
    if (!text.empty()) text += '\n';
    text += line;
}

bool names_kind(const std::string& line, const std::vector<std::string>& kinds) {
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](const std::string& kind) { return line == "-- " + kind; });
}

void write_case_file(const CaseFile& file) {
    std::ofstream out(file.path, std::ios::binary | std::ios::trunc);
    out << file.head << "\n";
    for (std::size_t i = 0; i < file.cases.size(); ++i) {
        const Case& one = file.cases[i];
        if (i > 0) out << separator << "\n";
        out << one.text << "\n-- " << one.kind << "\n" << one.outcome << "\n";
    }
}

} // namespace

CaseFile read_case_file(const std::string& path, const std::vector<std::string>& kinds) {
    CaseFile file;
    file.path = path;
    const std::vector<std::string> lines = lines_of(path);
    std::size_t i = 0;
    for (; i < lines.size() && lines[i].starts_with('#'); ++i) append_line(file.head, lines[i]);
    Case one;
    for (; i <= lines.size(); ++i) {
        if (i == lines.size() || lines[i] == separator) {
            if (!one.text.empty()) file.cases.push_back(one);
            one = {};
        } else if (one.kind.empty() && names_kind(lines[i], kinds)) {
            one.kind = lines[i].substr(3);
        } else if (one.kind.empty()) {
            if (one.line == 0) one.line = static_cast<int>(i) + 1;
            append_line(one.text, lines[i]);
        } else {
            append_line(one.outcome, lines[i]);
        }
    }
    return file;
}

std::vector<std::string> files_below(const std::string& folder, const std::string& ending) {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().string().ends_with(ending))
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

void check_case_files(const std::vector<std::string>& paths, const std::vector<std::string>& kinds,
                      const std::function<Outcome(const std::string& text)>& run) {
    const char* wish = std::getenv("ZF_REWRITE");
    const bool rewrite = wish != nullptr && std::string(wish) == "1";
    for (const std::string& path : paths) {
        CaseFile file = read_case_file(path, kinds);
        EXPECT_FALSE(file.cases.empty()) << path << " holds no case";
        for (Case& one : file.cases) {
            const Outcome outcome = run(one.text);
            if (rewrite) {
                one.kind = outcome.kind;
                one.outcome = outcome.text;
                continue;
            }
            EXPECT_EQ(outcome.kind, one.kind) << path << ":" << one.line << "\n" << one.text;
            EXPECT_EQ(outcome.text, one.outcome) << path << ":" << one.line << "\n" << one.text;
        }
        if (rewrite) write_case_file(file);
    }
}

} // namespace support
