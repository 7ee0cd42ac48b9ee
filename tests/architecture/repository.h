// The files of this repository as the rules of its architecture look at them.
#pragma once

#include <string>
#include <vector>

namespace tests {

struct SourceFile {
    std::string path;   // from the root, "host/values/amount.h"
    std::string folder; // of the first level, "host"; "" at the root
    std::vector<std::string> lines;

    bool ends_with(const std::string& ending) const { return path.ends_with(ending); }
    bool is_header() const { return ends_with(".h"); }
    bool is_cpp() const { return ends_with(".cpp"); }
    bool is_code() const { return is_header() || is_cpp(); }
    bool is_test() const;          // a unit test beside what it tests, or anything below tests/
    std::string name() const;      // "amount.h"
    std::string directory() const; // "host/values"
};

// Every text file below the folders of the project; what was built and what is hidden is left out.
const std::vector<SourceFile>& repository();

// The line without its comment and with the contents of its literals blanked.
std::string code_of(const std::string& line);

// How many characters a person sees in UTF-8 text.
std::size_t characters_in(const std::string& text);

// Collects offences and fails the test once, naming all of them.
class Offences {
public:
    explicit Offences(std::string rule) : rule_(std::move(rule)) {}
    ~Offences();
    void add(const SourceFile& file, std::size_t line, const std::string& what);
    void add(const std::string& what) { found_.push_back(what); }

private:
    std::string rule_;
    std::vector<std::string> found_;
};

} // namespace tests
