// The files of this repository as the rules of its architecture look at them.
#include "tests/architecture/repository.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace tests {

namespace {

namespace fs = std::filesystem;

constexpr const char* folders[] = {"module",  "host",       "schema", "tsql",  "engines",
                                   "desktop", "automation", "app",    "tests", "bench",
                                   "fuzz",    "docs",       "tools",  "cmake"};
constexpr const char* endings[] = {".h",  ".cpp",   ".sql", ".inc", ".txt",
                                   ".md", ".cmake", ".sh",  ".py"};

bool is_text(const fs::path& path) {
    const std::string name = path.filename().string();
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](const char* ending) { return name.ends_with(ending); });
}

SourceFile read(const fs::path& path, const std::string& from_root) {
    SourceFile file;
    file.path = from_root;
    const std::size_t slash = from_root.find('/');
    if (slash != std::string::npos) file.folder = from_root.substr(0, slash);
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) file.lines.push_back(line);
    return file;
}

std::vector<SourceFile> read_all() {
    const fs::path root = ZF_SOURCE_DIR;
    std::vector<SourceFile> files;
    for (const auto& entry : fs::directory_iterator(root)) {
        if (entry.is_regular_file() && is_text(entry.path())) {
            files.push_back(read(entry.path(), entry.path().filename().string()));
        }
    }
    for (const char* folder : folders) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (!entry.is_regular_file() || !is_text(entry.path())) continue;
            files.push_back(read(entry.path(), fs::relative(entry.path(), root).string()));
        }
    }
    std::sort(files.begin(), files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

} // namespace

bool SourceFile::is_test() const {
    return folder == "tests" || ends_with("_test.cpp");
}

std::string SourceFile::name() const {
    return path.substr(path.rfind('/') + 1);
}

std::string SourceFile::directory() const {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

const std::vector<SourceFile>& repository() {
    static const std::vector<SourceFile> files = read_all();
    return files;
}

std::string code_of(const std::string& line) {
    std::string code;
    char quote = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char letter = line[at];
        if (quote != 0) {
            if (letter == '\\')
                ++at;
            else if (letter == quote)
                quote = 0;
            code += letter == quote || quote != 0 ? ' ' : letter;
        } else if (letter == '"' ||
                   (letter == '\'' &&
                    (at == 0 || !std::isalnum(static_cast<unsigned char>(line[at - 1]))))) {
            quote = letter;
            code += letter;
        } else if (line.compare(at, 2, "//") == 0) {
            break;
        } else {
            code += letter;
        }
    }
    return code;
}

std::size_t characters_in(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
}

Offences::~Offences() {
    if (found_.empty()) return;
    std::string list;
    for (const std::string& one : found_) list += "\n  " + one;
    ADD_FAILURE() << rule_ << list;
}

void Offences::add(const SourceFile& file, std::size_t line, const std::string& what) {
    found_.push_back(file.path + ":" + std::to_string(line) + ": " + what);
}

} // namespace tests
