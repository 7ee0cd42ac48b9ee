// Queries, logged writes, and errors as sentences.
#include "app/data/engine_data.h"

#include "app/data/cell_conversion.h"
#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "host/values/errors.h"

namespace app {

namespace {

// Hands the first result set on; further ones are nobody's business.
class FirstSet : public engines::ResultReceiver {
public:
    explicit FirstSet(host::RowReceiver& receiver) : receiver_(receiver) {}

    void begin_set(std::span<const engines::Column> columns) override {
        wanted_ = !seen_;
        seen_ = true;
        if (!wanted_) return;
        std::vector<host::ColumnDescription> descriptions;
        for (const engines::Column& column : columns)
            descriptions.push_back(description_of(column));
        cells_.resize(columns.size());
        storage_.resize(columns.size());
        receiver_.columns(descriptions);
    }
    bool row(std::span<const engines::Value> values) override {
        if (!wanted_) return false;
        for (std::size_t i = 0; i < values.size(); ++i)
            cells_[i] = view_of(values[i], storage_[i]);
        receiver_.row(cells_);
        return true;
    }

private:
    host::RowReceiver& receiver_;
    std::vector<host::CellView> cells_;
    std::vector<std::string> storage_;
    bool seen_ = false;
    bool wanted_ = false;
};

[[noreturn]] void raise(const engines::Error& error) {
    throw host::DataError(sentence_for(error), error.text, error.number);
}

void require(const engines::Outcome& outcome) {
    if (!outcome.ok()) raise(*outcome.error);
}

// Undoes what was not committed, whatever way the block is left.
class Transaction {
public:
    explicit Transaction(engines::Session& session) : session_(session) {
        require(session_.begin());
        open_ = true;
    }
    ~Transaction() {
        if (open_) session_.rollback();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit() {
        require(session_.commit());
        open_ = false;
    }

private:
    engines::Session& session_;
    bool open_ = false;
};

} // namespace

EngineData::EngineData(engines::Session& session, const host::Clock& clock, std::string user)
    : session_(session), clock_(clock), user_(std::move(user)) {}

void EngineData::query(std::string_view sql, host::RowReceiver& receiver) {
    FirstSet first(receiver);
    require(session_.execute(sql, first));
}

void EngineData::execute(std::string_view batch, const host::LogEntry& entry) {
    Transaction transaction(session_);
    engines::ResultReceiver nobody;
    require(session_.execute_atomically(batch, nobody));
    require(append_log_row(session_, clock_.now(), user_, entry, batch));
    transaction.commit();
}

} // namespace app
