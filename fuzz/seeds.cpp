// Writes the T-SQL texts of the repository, one a file, and a dictionary of its words.
#include "tests/support/case_file.h"
#include "tsql/lexer/keyword.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

void add_case_files(Texts& texts, const std::string& folder) {
    for (const std::string& path : support::files_below(folder, ".case"))
        for (const support::Case& one :
             support::read_case_file(path, {"tree", "refused", "bound", "sqlite"}).cases)
            texts.push_back(one.text);
}

void add_json_lines(Texts& texts, const std::string& path) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const nlohmann::json one = nlohmann::json::parse(line);
        for (const auto& [member, value] : one.items()) {
            if (member != "sql" && member != "setup" && member != "check") continue;
            if (value.is_string()) texts.push_back(value.get<std::string>());
            if (value.is_array())
                for (const auto& text : value) texts.push_back(text.get<std::string>());
        }
    }
}

void add_sql_file(Texts& texts, const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

Texts all_texts() {
    Texts texts;
    const std::string source = ZF_SOURCE_DIR;
    add_case_files(texts, source + "/tsql");
    for (const char* folder : {"/tests/tsql", "/schema"}) {
        if (!fs::exists(source + folder)) continue;
        add_case_files(texts, source + folder);
        for (const std::string& path : support::files_below(source + folder, ".jsonl"))
            add_json_lines(texts, path);
        for (const std::string& path : support::files_below(source + folder, ".sql"))
            add_sql_file(texts, path);
    }
    return texts;
}

void write_dictionary(const fs::path& path) {
    std::ofstream out(path);
#define TSQL_KEYWORD(id, word, reserved) out << "\"" << (word) << "\"\n";
#include "tsql/lexer/keywords.inc"
#undef TSQL_KEYWORD
    for (const char* sign :
         {"<>", "!=", "!<", "+=", "@@", "/*", "*/", "--", "N'", "0x", ".*", "''"})
        out << "\"" << sign << "\"\n";
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: zf_fuzz_seeds FOLDER   writes FOLDER/seeds/ and FOLDER/tsql.dict\n";
        return 2;
    }
    const fs::path folder = arguments[1];
    fs::create_directories(folder / "seeds");
    const Texts texts = all_texts();
    for (std::size_t i = 0; i < texts.size(); ++i)
        std::ofstream(folder / "seeds" / std::to_string(i), std::ios::binary) << texts[i];
    write_dictionary(folder / "tsql.dict");
    std::cout << texts.size() << " seeds\n";
    return 0;
}
