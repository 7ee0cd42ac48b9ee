// Fresh books for a test: made once a program, copied for each test, gone afterwards.
#include "tests/support/books.h"

#include <gtest/gtest.h>

#include "app/books/open.h"
#include "app/data/engine_data.h"
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

} // namespace

struct Books::Parts {
    explicit Parts(BooksOptions wanted)
        : options(std::move(wanted)), file(folder.path() / "books.zf"), clock(options.today) {
        make_fresh_books({options.start, options.scheme, options.company}, file);
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

void Books::execute(const std::string& batch) {
    engines::ResultReceiver nobody;
    const engines::Outcome outcome = parts_->reader->execute_atomically(batch, nobody);
    if (!outcome.ok()) ADD_FAILURE() << batch << "\n" << outcome.error->text;
}

} // namespace tests
