// Include lines point one way only: from what knows more to what knows less.
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

// What the files of a folder may include of the project, and which libraries beside the standard
// one. The longest folder that a path begins with decides; "*" is anything.
struct Arrow {
    const char* from;
    std::set<std::string> to;
    std::set<std::string> libraries;
};

const std::vector<Arrow>& arrows() {
    static const std::vector<Arrow> table = {
        {"tsql/", {"tsql/"}, {}},
        {"engines/", {"engines/", "tsql/"}, {"*"}},
        {"schema/", {"schema/"}, {"sodium.h"}},
        {"host/", {"host/"}, {"unicode/", "fmt/"}},
        {"module/", {"module/", "host/"}, {}},
        {"automation/drive/", {"automation/drive/", "host/"}, {"nlohmann/"}},
        {"automation/sql/", {"automation/sql/", "engines/"}, {"nlohmann/", "fmt/"}},
        {"automation/check/",
         {"automation/check/", "automation/sql/", "engines/", "schema/"},
         {"nlohmann/", "fmt/"}},
        {"desktop/", {"desktop/", "host/"}, {"*"}},
        {"app/", {"*"}, {"*"}},
        {"tests/", {"*"}, {"*"}},
        {"bench/", {"*"}, {"*"}},
        {"fuzz/", {"*"}, {"*"}},
        {"tools/", {"*"}, {"*"}},
    };
    return table;
}

const Arrow* arrow_of(const SourceFile& file) {
    for (const Arrow& arrow : arrows()) {
        if (file.path.starts_with(arrow.from)) return &arrow;
    }
    return nullptr;
}

bool allowed(const std::set<std::string>& beginnings, const std::string& included) {
    return std::any_of(beginnings.begin(), beginnings.end(), [&](const std::string& beginning) {
        return beginning == "*" || included.starts_with(beginning);
    });
}

bool is_standard(const std::string& included) {
    return included.find('/') == std::string::npos && included.find('.') == std::string::npos;
}

// What each file includes: the path, whether in quotes, and the line.
struct Include {
    std::string path;
    bool quoted;
    std::size_t line;
};

std::vector<Include> includes_of(const SourceFile& file) {
    static const std::regex form(R"re(^\s*#\s*include\s+(["<])([^">]+)[">].*)re");
    std::vector<Include> includes;
    for (std::size_t at = 0; at < file.lines.size(); ++at) {
        std::smatch parts;
        if (file.lines[at].find("include") == std::string::npos) continue;
        if (!std::regex_match(file.lines[at], parts, form)) continue;
        includes.push_back({parts[2], parts[1] == "\"", at + 1});
    }
    return includes;
}

bool is_test_library(const std::string& included) {
    return included.starts_with("gtest/") || included.starts_with("gmock/");
}

} // namespace

TEST(Arrows, a_file_includes_only_what_its_folder_may_know) {
    Offences offences("an include points the wrong way");
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        const Arrow* arrow = arrow_of(file);
        if (arrow == nullptr) {
            offences.add(file, 1, "no rule says what this folder may include");
            continue;
        }
        for (const Include& include : includes_of(file)) {
            if (!include.quoted) continue;
            if (allowed(arrow->to, include.path)) continue;
            if (file.is_test() && include.path.starts_with("tests/")) continue;
            offences.add(file, include.line, include.path);
        }
    }
}

TEST(Arrows, a_file_uses_only_the_libraries_of_its_folder) {
    Offences offences("a library does not belong here");
    for (const SourceFile& file : repository()) {
        const Arrow* arrow = file.is_code() ? arrow_of(file) : nullptr;
        if (arrow == nullptr) continue;
        for (const Include& include : includes_of(file)) {
            if (include.quoted || is_standard(include.path)) continue;
            if (file.is_test() && is_test_library(include.path)) continue;
            const bool hidden = file.folder != "host" || file.is_cpp();
            if (hidden && allowed(arrow->libraries, include.path)) continue;
            offences.add(file, include.line, include.path);
        }
    }
}

TEST(Arrows, an_include_is_written_from_the_root_and_exists) {
    std::set<std::string> paths;
    for (const SourceFile& file : repository()) paths.insert(file.path);
    Offences offences("an include names no file of the repository");
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        for (const Include& include : includes_of(file)) {
            if (include.quoted && !paths.contains(include.path)) {
                offences.add(file, include.line, include.path);
            }
        }
    }
}

TEST(Arrows, every_header_is_included_somewhere) {
    std::set<std::string> included;
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        for (const Include& include : includes_of(file)) included.insert(include.path);
    }
    Offences offences("nobody includes this header");
    for (const SourceFile& file : repository()) {
        if (file.is_header() && !included.contains(file.path)) offences.add(file.path);
    }
}

} // namespace tests
