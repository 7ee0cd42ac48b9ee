// Calls that would bend an amount, look past the host's ports or let a text change a statement.
#include <gtest/gtest.h>
#include <regex>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

// Where it is forbidden, which words, as a call or as a name, and what to use.
struct Forbidden {
    std::vector<std::string> folders;
    std::vector<std::string> words;
    std::regex call;
    const char* instead;
};

Forbidden forbidden(std::vector<std::string> folders, std::vector<std::string> words,
                    const std::string& behind, const char* instead) {
    std::string any;
    for (const std::string& word : words) any += (any.empty() ? "" : "|") + word;
    return {std::move(folders), std::move(words),
            std::regex("\\b(" + any + ")" + behind, std::regex::optimize), instead};
}

const std::vector<Forbidden>& forbidden_calls() {
    static const std::vector<Forbidden> table = {
        forbidden({"host", "module"}, {"double", "float", "stod", "stof", "strtod", "atof"}, "\\b",
                  "amounts are host::Amount, exact to the last digit"),
        forbidden({"host", "module", "automation"}, {"system_clock", "localtime", "gmtime"}, "\\b",
                  "the time comes from the host's clock"),
        forbidden({"host", "module", "automation"}, {"random_device", "mt19937"}, "\\b",
                  "chance comes from the host's random source"),
        forbidden({"host", "module", "tsql"},
                  {"getenv", "fopen", "ifstream", "ofstream", "cout", "cerr", "printf"}, "\\b",
                  "the outside is reached through the host's ports"),
        forbidden({"host", "module", "tsql", "engines", "automation", "app", "desktop"},
                  {"strcpy", "strcat", "sprintf", "gets", "rand", "atoi", "atol"}, "\\s*\\(",
                  "std::string, from_chars, the host's random source"),
    };
    return table;
}

// The one place where a grid is written into a file that the person chose.
constexpr const char* writes_exports = "host/forms/parts/text_file.cpp";

// A quick look before the slow one: does any of the words occur at all?
bool may_match(const Forbidden& rule, const std::string& code) {
    return std::any_of(rule.words.begin(), rule.words.end(), [&](const std::string& word) {
        return code.find(word) != std::string::npos;
    });
}

bool applies(const Forbidden& rule, const SourceFile& file) {
    if (file.path == writes_exports) return false;
    return std::find(rule.folders.begin(), rule.folders.end(), file.folder) != rule.folders.end();
}

} // namespace

TEST(Calls, what_a_folder_must_not_call_it_does_not_call) {
    Offences offences("a forbidden call");
    for (const SourceFile& file : repository()) {
        if (!file.is_code() || file.is_test()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            const std::string code = code_of(file.lines[at]);
            for (const Forbidden& rule : forbidden_calls()) {
                std::smatch found;
                if (!applies(rule, file) || !may_match(rule, code)) continue;
                if (!std::regex_search(code, found, rule.call)) continue;
                offences.add(file, at + 1, found.str() + ": " + rule.instead);
            }
        }
    }
}

// Forms of the module stand on the host's classes in every line; its own header says so once.
constexpr const char* names_the_host = "module/host_names.h";

TEST(Calls, a_header_leaves_names_their_namespace) {
    static const std::regex opened(R"(\busing namespace\b)");
    Offences offences("a header opens a namespace for all who include it");
    for (const SourceFile& file : repository()) {
        // The host's names are the module's own words; opened inside its namespace alone.
        if (!file.is_header() || file.path == "module/host_names.h") continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            if (file.lines[at].find("using") == std::string::npos) continue;
            if (std::regex_search(code_of(file.lines[at]), opened)) offences.add(file, at + 1, "");
        }
    }
}

// "…='" + KM_ID.Text would let a quote in the text end the literal. What a helper returned that
// cannot hold a quote, or doubled them, may stand there.
TEST(Calls, a_text_between_quotes_of_a_statement_goes_through_the_quoting_helper) {
    static const std::regex joined(R"re('"\s*\+\s*([A-Za-z_:.]+))re");
    static const std::regex safe(R"re((host::)?(escaped|FormatAmount|boltos|[a-z_]+\.to_text))re");
    Offences offences("a text enters a statement unquoted; use quoted() or escaped()");
    for (const SourceFile& file : repository()) {
        if (file.folder != "module" && file.folder != "host") continue;
        if (!file.is_code() || file.is_test()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            std::smatch found;
            if (file.lines[at].find("'\"") == std::string::npos) continue;
            if (!std::regex_search(file.lines[at], found, joined)) continue;
            if (!std::regex_match(found[1].str(), safe)) {
                offences.add(file, at + 1, found.str());
            }
        }
    }
}

} // namespace tests
