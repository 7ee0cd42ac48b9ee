// Turns what a batch delivers into text.
#include "automation/sql/collected_result.h"

#include "engines/value_text.h"

namespace automation {

namespace {

class Collector : public engines::ResultReceiver {
public:
    explicit Collector(CollectedResult& result) : result_(result) {}

    void begin_set(std::span<const engines::Column> columns) override {
        ResultSet& set = result_.sets.emplace_back();
        for (const engines::Column& column : columns) set.columns.push_back(column.name);
    }
    bool row(std::span<const engines::Value> cells) override {
        TextRow& row = result_.sets.back().rows.emplace_back();
        row.reserve(cells.size());
        for (const engines::Value& cell : cells) {
            if (cell.is_null())
                row.emplace_back();
            else
                row.emplace_back(engines::text_of(cell));
        }
        return true;
    }
    void message(std::string_view text) override { result_.messages.emplace_back(text); }

private:
    CollectedResult& result_;
};

} // namespace

CollectedResult collect(engines::Session& session, std::string_view batch) {
    CollectedResult result;
    Collector collector(result);
    result.outcome = session.execute(batch, collector);
    return result;
}

std::vector<TextRow> rows_of(engines::Session& session, std::string_view batch) {
    CollectedResult result = collect(session, batch);
    if (!result.outcome.ok()) throw engines::Failure(*result.outcome.error);
    if (result.sets.empty()) return {};
    return std::move(result.sets.front().rows);
}

} // namespace automation
