// Our side: the data port that forms write through, over an open set of books.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/data/engine_data.h"
#include "app/settings/surroundings.h"
#include "engines/session.h"

namespace bench {

// Looks at every cell; the sum keeps the compiler from leaving the work out.
struct SummingReceiver : host::RowReceiver {
    std::int64_t sum = 0;
    void columns(const std::vector<host::ColumnDescription>&) override {}
    void row(const std::vector<host::CellView>& cells) override;
};

// Every row as one text, to hold two ways against each other.
struct CollectingReceiver : host::RowReceiver {
    std::vector<std::string> rows;
    void columns(const std::vector<host::ColumnDescription>&) override {}
    void row(const std::vector<host::CellView>& cells) override;
};

// Opens the books as the program does. Statements go through the same adapter as a form's.
class OurSession {
public:
    explicit OurSession(const std::string& file);
    host::DataPort& data() { return *data_; }
    engines::Session& session() { return *session_; }
    // Runs a query and reads every cell.
    std::int64_t read(const std::string& query);

private:
    app::SystemClock clock_;
    std::unique_ptr<engines::Session> session_;
    std::unique_ptr<app::EngineData> data_;
};

} // namespace bench
