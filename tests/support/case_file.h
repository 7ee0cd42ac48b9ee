// Tests kept as data: files of texts, each with what is to come out of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace support {

// A case: the text, the word behind the `-- ` that says what kind of outcome stands below it, and
// that outcome. Cases are parted by a line of four equal signs; lines that begin with # before the
// first case tell what the file is about.
//
//     SELECT KM_IDX FROM D6801
//     -- refused
//     1:8 (207) Invalid column name 'KM_IDX'.
struct Case {
    int line = 0; // where its text begins in the file
    std::string text;
    std::string kind;
    std::string outcome;
};

struct CaseFile {
    std::string path;
    std::string head; // the # lines
    std::vector<Case> cases;
};

// `kinds` are the words that may stand behind `-- `; other comments belong to the text.
CaseFile read_case_file(const std::string& path, const std::vector<std::string>& kinds);

// All files of a folder of the source tree with this ending, sorted by name.
std::vector<std::string> files_below(const std::string& folder, const std::string& ending);

struct Outcome {
    std::string kind;
    std::string text;
};

// Runs every case and compares kind and outcome; a difference is a test failure that names file
// and line. With ZF_REWRITE=1 in the environment the files are rewritten instead: the new outcome
// is then read in the diff.
void check_case_files(const std::vector<std::string>& paths, const std::vector<std::string>& kinds,
                      const std::function<Outcome(const std::string& text)>& run);

} // namespace support
