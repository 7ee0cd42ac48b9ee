// What is written in the repository can be understood and used from the repository alone.
#include <gtest/gtest.h>
#include <regex>

#include "tests/architecture/repository.h"

namespace tests {

namespace {

// A pattern that must not occur, and what to write instead. The patterns are put together from
// pieces so that this table does not contain what it looks for.
struct Banned {
    std::string hint; // stands in every match; looked for first, for speed
    std::regex pattern;
    const char* instead;
};

Banned banned(std::string hint, const std::string& pattern, const char* instead) {
    return {std::move(hint), std::regex(pattern, std::regex::ECMAScript | std::regex::optimize),
            instead};
}

const std::vector<Banned>& references() {
    static const std::vector<Banned> table = {
        banned("pec", std::string("\\b[Ss]") + "pec(ification)?s?\\b",
               "say the rule itself, in the words of bookkeeping"),
        banned("ar"
               "t",
               std::string("\\bPar") + "ts? [0-9]+(\\.[0-9]+)?", "say the rule itself"),
        banned("ssue", std::string("\\b[Ii]ss") + "ues? #?[0-9]",
               "say what is so, not who asked for it"),
        banned("/", std::string("(^|[\\s\"'`(=])/") + "(work|home|root)/",
               "a path of one machine is of no use on another"),
        banned("DO", std::string("\\bTO") + "DO\\b", "do it, or leave it out"),
        banned("FIX", std::string("\\bFIX") + "ME\\b", "do it, or leave it out"),
        banned("XX", std::string("\\bXX") + "X\\b", "do it, or leave it out"),
    };
    return table;
}

void look_for(const std::vector<Banned>& table, const SourceFile& file, Offences& offences) {
    for (std::size_t at = 0; at < file.lines.size(); ++at) {
        for (const Banned& one : table) {
            std::smatch found;
            if (file.lines[at].find(one.hint) == std::string::npos) continue;
            if (!std::regex_search(file.lines[at], found, one.pattern)) continue;
            offences.add(file, at + 1, found.str() + " (" + one.instead + ")");
        }
    }
}

} // namespace

TEST(Wording, nothing_refers_to_what_a_reader_cannot_open) {
    Offences offences("a reference leads out of the repository");
    for (const SourceFile& file : repository()) look_for(references(), file, offences);
}

TEST(Wording, text_is_free_of_tabs_and_trailing_blanks) {
    Offences offences("invisible characters");
    for (const SourceFile& file : repository()) {
        if (!file.is_code()) continue;
        for (std::size_t at = 0; at < file.lines.size(); ++at) {
            const std::string& line = file.lines[at];
            if (line.find('\t') != std::string::npos) offences.add(file, at + 1, "a tab");
            if (!line.empty() && line.back() == ' ') offences.add(file, at + 1, "trailing blank");
        }
    }
}

} // namespace tests
