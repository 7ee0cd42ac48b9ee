// A reader finds the way: first lines, READMEs, and every source in the build.
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

constexpr std::size_t longest_readme = 20;

const char* comment_sign(const SourceFile& file) {
    if (file.is_code()) return "// ";
    if (file.ends_with(".sql")) return "--";
    if (file.ends_with(".sh") || file.ends_with(".cmake") || file.name() == "CMakeLists.txt") {
        return "# ";
    }
    return nullptr;
}

// "host/values/CMakeLists.txt", then "host/CMakeLists.txt".
std::vector<const SourceFile*> build_files_above(const SourceFile& file) {
    std::vector<const SourceFile*> found;
    for (const SourceFile& other : repository()) {
        if (other.name() != "CMakeLists.txt" || other.directory().empty()) continue;
        if (file.path.starts_with(other.directory() + "/")) found.push_back(&other);
    }
    return found;
}

bool mentions(const SourceFile& build_file, const std::string& source) {
    static const std::string parts = " \t()\"";
    for (const std::string& line : build_file.lines) {
        for (std::size_t at = line.find(source); at != std::string::npos;
             at = line.find(source, at + 1)) {
            const std::size_t end = at + source.size();
            const bool starts = at == 0 || parts.find(line[at - 1]) != std::string::npos;
            const bool stops = end == line.size() || parts.find(line[end]) != std::string::npos;
            if (starts && stops) return true;
        }
    }
    return false;
}

// A source that another folder's test borrows.
bool listed_by_full_path(const SourceFile& file) {
    const auto& files = repository();
    return std::any_of(files.begin(), files.end(), [&](const SourceFile& build) {
        return build.name() == "CMakeLists.txt" &&
               mentions(build, "${CMAKE_SOURCE_DIR}/" + file.path);
    });
}

} // namespace

TEST(Signposts, every_source_opens_with_a_line_that_says_its_job) {
    Offences offences("the first line does not say what the file is for");
    for (const SourceFile& file : repository()) {
        const char* sign = comment_sign(file);
        if (sign == nullptr) continue;
        const std::size_t first = !file.lines.empty() && file.lines[0].starts_with("#!") ? 1 : 0;
        if (file.lines.size() <= first || !file.lines[first].starts_with(sign)) {
            offences.add(file, first + 1, "no comment");
        }
    }
}

TEST(Signposts, every_source_is_listed_in_the_build) {
    Offences offences("no CMakeLists.txt lists this source");
    for (const SourceFile& file : repository()) {
        // What makes a file that is kept is compiled by hand, not with the program.
        if (!file.is_cpp() || file.folder == "tools") continue;
        const auto above = build_files_above(file);
        const bool listed = std::any_of(above.begin(), above.end(), [&](const SourceFile* build) {
            return mentions(*build, file.path.substr(build->directory().size() + 1));
        });
        if (!listed && !listed_by_full_path(file)) offences.add(file.path);
    }
}

TEST(Signposts, folders_of_the_first_two_levels_have_a_short_readme) {
    std::set<std::string> wanted;
    std::map<std::string, const SourceFile*> readmes;
    for (const SourceFile& file : repository()) {
        if (file.name() == "README.md") readmes[file.directory()] = &file;
        if (!file.is_code() && !file.ends_with(".sql")) continue;
        const std::size_t first = file.path.find('/');
        wanted.insert(file.path.substr(0, first));
        const std::size_t second = file.path.find('/', first + 1);
        if (second != std::string::npos) wanted.insert(file.path.substr(0, second));
    }
    Offences offences("a README is missing or too long");
    for (const std::string& folder : wanted) {
        const auto readme = readmes.find(folder);
        if (readme == readmes.end()) {
            offences.add(folder + "/README.md is missing");
        } else if (readme->second->lines.size() > longest_readme && !folder.starts_with("module")) {
            offences.add(folder + "/README.md has more than " + std::to_string(longest_readme) +
                         " lines");
        }
    }
}

TEST(Signposts, a_document_that_is_mentioned_exists) {
    std::set<std::string> names;
    for (const SourceFile& file : repository()) names.insert(file.name());
    static const std::regex document(R"(\b[A-Za-z0-9_-]+\.md\b)");
    Offences offences("no such document in the repository");
    for (const SourceFile& file : repository()) {
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            const std::string& line = file.lines[at];
            if (line.find(".md") == std::string::npos) continue;
            for (auto match = std::sregex_iterator(line.begin(), line.end(), document);
                 match != std::sregex_iterator(); ++match) {
                if (!names.contains(match->str())) offences.add(file, at + 1, match->str());
            }
        }
    }
}

} // namespace tests
