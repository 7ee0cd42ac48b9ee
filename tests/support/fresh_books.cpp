// Fresh books as the program makes them, in a moment.
#include "tests/support/fresh_books.h"

#include <map>
#include <stdexcept>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

void make(const FreshBooks& kind, const std::string& path) {
    std::vector<std::string> arguments = {"new",      path,        "--company",
                                          kind.company, "--scheme", kind.scheme};
    if (!kind.start.empty()) arguments.insert(arguments.end(), {"--start", kind.start});
    const ProgramRun run = run_program(arguments);
    if (run.status != 0) throw std::runtime_error("no fresh books: " + run.errors);
}

// The file that holds untouched books of this kind; made at the first call.
const std::string& pattern_of(const FreshBooks& kind) {
    static TemporaryFolder folder;
    static std::map<FreshBooks, std::string> made;
    std::string& file = made[kind];
    if (!file.empty()) return file;
    const std::string path = folder.file("pattern" + std::to_string(made.size()) + ".zf");
    make(kind, path);
    return file = path;
}

} // namespace

void make_fresh_books(const FreshBooks& kind, const std::filesystem::path& file) {
    std::filesystem::copy_file(pattern_of(kind), file);
}

} // namespace tests
