// Our side: the data port that forms write through, over an open set of books.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "app/data/engine_data.h"
#include "app/settings/surroundings.h"
#include "engines/session.h"

namespace bench {

// A ledger's rows, and the sums of its columns J, D and E in cents.
struct LedgerRead {
    int rows = 0;
    std::array<std::int64_t, 3> sums{};
};

// Opens the books as the program does. Statements go through the same adapter as a form's.
class OurSession {
public:
    explicit OurSession(const std::string& file);
    host::DataPort& data() { return *data_; }
    engines::Session& session() { return *session_; }
    // Runs a query and reads every cell; the sum keeps the compiler from leaving the work out.
    std::int64_t read(const std::string& query);
    LedgerRead read_ledger(const std::string& call);

private:
    app::SystemClock clock_;
    std::unique_ptr<engines::Session> session_;
    std::unique_ptr<app::EngineData> data_;
};

} // namespace bench
