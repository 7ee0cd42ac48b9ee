// Calls that would bend an amount, look past the host's ports or let a text change a statement.
#include <gtest/gtest.h>
#include <regex>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

// Where it is forbidden, what, and what to use.
struct Forbidden {
    std::vector<std::string> folders;
    std::regex call;
    const char* instead;
};

const std::vector<Forbidden>& forbidden_calls() {
    static const std::vector<Forbidden> table = {
        {{"host", "module"},
         std::regex(R"(\b(double|float|stod|stof|strtod|atof)\b)"),
         "amounts are host::Amount, exact to the last digit"},
        {{"host", "module", "automation"},
         std::regex(R"(\b(system_clock|localtime|gmtime|time\s*\(\s*(NULL|nullptr|0)))"),
         "the time comes from the host's clock"},
        {{"host", "module", "automation"},
         std::regex(R"(\b(random_device|mt19937|rand\s*\())"),
         "chance comes from the host's random source"},
        {{"host", "module", "tsql"},
         std::regex(R"(\b(getenv|fopen|ifstream|ofstream|cout|cerr|printf)\b)"),
         "the outside is reached through the host's ports"},
        {{"host", "module", "tsql", "engines", "automation", "app", "desktop"},
         std::regex(R"(\b(strcpy|strcat|sprintf|gets|atoi|atol)\s*\()"),
         "std::string and from_chars"},
    };
    return table;
}

// The one place where a grid is written into a file that the person chose.
constexpr const char* writes_exports = "host/forms/parts/text_file.cpp";

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
                if (!applies(rule, file) || !std::regex_search(code, found, rule.call)) continue;
                offences.add(file, at + 1, found.str() + ": " + rule.instead);
            }
        }
    }
}

TEST(Calls, a_header_leaves_names_their_namespace) {
    static const std::regex opened(R"(\busing namespace\b)");
    Offences offences("a header opens a namespace for all who include it");
    for (const SourceFile& file : repository()) {
        // The host's names are the module's own words; opened inside its namespace alone.
        if (!file.is_header() || file.path == "module/host_names.h") continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            if (std::regex_search(code_of(file.lines[at]), opened)) offences.add(file, at + 1, "");
        }
    }
}

// "…='" + KM_ID.Text would let a quote in the text end the literal. What a helper returned that
// cannot hold a quote, or doubled them, may stand there.
TEST(Calls, a_text_between_quotes_of_a_statement_goes_through_the_quoting_helper) {
    static const std::regex joined(R"re(='"\s*\+\s*([A-Za-z_:.]+))re");
    static const std::regex safe(R"re((host::)?(escaped|FormatAmount|boltos|[a-z_]+\.to_text))re");
    Offences offences("a text enters a statement unquoted; use quoted() or escaped()");
    for (const SourceFile& file : repository()) {
        if (file.folder != "module" && file.folder != "host") continue;
        if (!file.is_code() || file.is_test()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            std::smatch found;
            if (!std::regex_search(file.lines[at], found, joined)) continue;
            if (!std::regex_match(found[1].str(), safe)) {
                offences.add(file, at + 1, found.str());
            }
        }
    }
}

} // namespace tests
