// An open set of books and what reads all it is given.
#include "bench/measures/session.h"

#include "app/books/engines.h"
#include "app/books/upgrade.h"
#include "engines/engine.h"

namespace bench {

void SummingReceiver::row(const std::vector<host::CellView>& cells) {
    for (const host::CellView& cell : cells)
        sum += cell.integer + static_cast<std::int64_t>(cell.text.size());
}

void CollectingReceiver::row(const std::vector<host::CellView>& cells) {
    std::string row;
    for (const host::CellView& cell : cells)
        row += cell.null ? "-|" : std::to_string(cell.integer) + " " + std::string(cell.text) + "|";
    rows.push_back(std::move(row));
}

OurSession::OurSession(const std::string& file)
    : session_(app::engine_for(file).open(file, {})),
      data_(std::make_unique<app::EngineData>(*session_, clock_, "admin")) {
    // The books may have been made before a table came into being.
    app::bring_up_to_date(*session_, clock_, "admin");
}

std::int64_t OurSession::read(const std::string& query) {
    SummingReceiver receiver;
    data_->query(query, receiver);
    return receiver.sum;
}

} // namespace bench
