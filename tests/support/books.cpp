// Fresh books for a test: made once a program, copied for each test, gone afterwards.
#include "tests/support/books.h"

#include <gtest/gtest.h>
#include <map>

#include "app/books/open.h"
#include "app/data/engine_data.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "host/values/text.h"
#include "tests/support/fresh_books.h"
#include "tests/support/surroundings.h"
#include "tests/support/temporary_folder.h"

namespace tests {

namespace {

constexpr std::int64_t days_from_1900_to_1970 = 25567;

std::unique_ptr<engines::Session> open(const std::string& file, const host::Clock& clock) {
    auto session = app::open_books(file);
    session->set_clock(clock.today().days() + days_from_1900_to_1970);
    return session;
}

FreshBooks kind_of(const BooksOptions& options) {
    return {options.start, options.scheme, options.company};
}

void prepare(const std::string& file, const BooksOptions& options) {
    engines::ResultReceiver nobody;
    const auto session = open(file, FixedClock(options.today));
    const engines::Outcome outcome = session->execute_atomically(options.prepare, nobody);
    if (!outcome.ok()) ADD_FAILURE() << options.prepare << "\n" << outcome.error->text;
}

// The file that holds fresh books of this kind after `prepare`; made at the first call.
const std::string& prepared_books(const BooksOptions& options) {
    static TemporaryFolder folder;
    static std::map<std::pair<FreshBooks, std::string>, std::string> made;
    std::string& file = made[{kind_of(options), options.prepare}];
    if (!file.empty()) return file;
    const std::string path = folder.file("prepared" + std::to_string(made.size()) + ".zf");
    make_fresh_books(kind_of(options), path);
    prepare(path, options);
    return file = path;
}

void make_books(const BooksOptions& options, const std::filesystem::path& file) {
    if (options.prepare.empty()) return make_fresh_books(kind_of(options), file);
    std::filesystem::copy_file(prepared_books(options), file);
}

} // namespace

struct Books::Parts {
    explicit Parts(BooksOptions wanted)
        : options(std::move(wanted)), folder(options.folder), file(folder.path() / "books.zf"),
          clock(options.today) {
        make_books(options, file);
        session = open(file.string(), clock);
        data = std::make_unique<app::EngineData>(*session, clock, "admin");
        reader = open(file.string(), clock);
    }

    BooksOptions options;
    TemporaryFolder folder;
    std::filesystem::path file;
    FixedClock clock;
    std::unique_ptr<engines::Session> session;
    std::unique_ptr<app::EngineData> data;
    std::unique_ptr<engines::Session> reader;
};

Books::Books(BooksOptions options) : parts_(std::make_unique<Parts>(std::move(options))) {}

Books::~Books() = default;

host::DataPort& Books::data() {
    return *parts_->data;
}

const std::filesystem::path& Books::file() const {
    return parts_->file;
}

PersonOptions Books::person() const {
    PersonOptions person;
    person.today = parts_->options.today;
    person.company = parts_->options.company;
    return person;
}

Rows Books::table(const std::string& select) {
    const automation::CollectedResult result = automation::collect(*parts_->reader, select);
    if (!result.outcome.ok()) ADD_FAILURE() << select << "\n" << result.outcome.error->text;
    Rows rows;
    if (result.sets.empty()) return rows;
    const automation::ResultSet& set = result.sets.front();
    for (const automation::TextRow& cells : set.rows) {
        Row row;
        for (std::size_t at = 0; at < cells.size(); ++at) {
            row[host::upper_case(set.columns[at])] = cells[at].value_or("<null>");
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string Books::value(const std::string& select) {
    const automation::CollectedResult result = automation::collect(*parts_->reader, select);
    if (!result.outcome.ok()) ADD_FAILURE() << select << "\n" << result.outcome.error->text;
    if (result.sets.empty() || result.sets.front().rows.empty()) return {};
    return result.sets.front().rows.front().front().value_or("<null>");
}

std::string Books::findings() {
    std::string all;
    for (const automation::Finding& finding : automation::check_books(*parts_->reader))
        all += finding.check + ": " + finding.text + "\n";
    return all;
}

void Books::execute(const std::string& batch) {
    engines::ResultReceiver nobody;
    const engines::Outcome outcome = parts_->reader->execute_atomically(batch, nobody);
    if (!outcome.ok()) ADD_FAILURE() << batch << "\n" << outcome.error->text;
}

} // namespace tests
