// An open set of books and a receiver that reads all it is given.
#include "bench/measures/session.h"

#include "app/books/engines.h"
#include "app/books/upgrade.h"
#include "engines/engine.h"

namespace bench {

namespace {

struct SummingReceiver : host::RowReceiver {
    std::int64_t sum = 0;
    void columns(const std::vector<host::ColumnDescription>&) override {}
    void row(const std::vector<host::CellView>& cells) override {
        for (const host::CellView& cell : cells)
            sum += cell.integer + static_cast<std::int64_t>(cell.text.size());
    }
};

constexpr std::int64_t ten_thousandths_a_cent = 100;

struct LedgerReceiver : host::RowReceiver {
    LedgerRead read;
    std::array<std::size_t, 3> places{};
    void columns(const std::vector<host::ColumnDescription>& columns) override {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i].name == "J") places[0] = i;
            if (columns[i].name == "D") places[1] = i;
            if (columns[i].name == "E") places[2] = i;
        }
    }
    void row(const std::vector<host::CellView>& cells) override {
        ++read.rows;
        for (std::size_t i = 0; i < places.size(); ++i)
            read.sums[i] += cells[places[i]].integer / ten_thousandths_a_cent;
    }
};

} // namespace

OurSession::OurSession(const std::string& file)
    : session_(app::engine_for(file).open(file, {})),
      data_(std::make_unique<app::EngineData>(*session_, clock_, "admin")) {
    // The books may have been made before a table came into being.
    app::create_what_is_missing(*session_, clock_, "admin");
}

std::int64_t OurSession::read(const std::string& query) {
    SummingReceiver receiver;
    data_->query(query, receiver);
    return receiver.sum;
}

LedgerRead OurSession::read_ledger(const std::string& call) {
    LedgerReceiver receiver;
    data_->query(call, receiver);
    return receiver.read;
}

} // namespace bench
