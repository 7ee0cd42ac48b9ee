// The host's door to the database, with an engine behind it.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "app/data/remembered_readings.h"
#include "engines/session.h"
#include "host/ports/data_port.h"
#include "host/ports/surroundings.h"

namespace app {

// Reads and writes one set of books for one person. An error of the engine becomes a
// host::DataError whose sentence a bookkeeper can act on. Every execute() adds its row to the
// operation log in the same transaction: a batch without its row, or a row without its batch,
// cannot be.
//
//     EngineData data(*session, clock, "admin");
//     data.execute("UPDATE …", {"661", "2024-03记005", "Edit"});
class EngineData : public host::DataPort {
public:
    // session and clock must outlive this object.
    EngineData(engines::Session& session, const host::Clock& clock, std::string user);

    // Hears of long work: a write tells its statements done and in all, a query the rows read, of
    // 0. The last call of a piece of work has done == total, whatever became of it. false stops
    // the work: a write is undone as a whole, a query leaves its dataset as it was. Nothing is
    // told of work shorter than `every`.
    using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;
    void report_progress(Progress progress, std::chrono::milliseconds every);

    // From now on all that is written is one unit of work: others see it, and it is on the disk,
    // only when keep_unit() returns; this session sees it at once. A batch that is refused has not
    // happened, the ones before it stay in the unit. Without keep_unit() nothing of it stays.
    // Others who write wait meanwhile. Throws DataError, as keep_unit() does when the unit could
    // not be kept or was undone on the way (an error that ends a whole transaction).
    void begin_unit();
    void keep_unit();
    void undo_unit();

    // Both throw DataError also when called from inside a progress report.
    void query(std::string_view sql, host::RowReceiver& receiver) override;
    void execute(std::string_view batch, const host::LogEntry& entry,
                 const host::WhyNot& why_not = {}) override;
    void hold_readings() override { readings_.begin_act(); }
    void release_readings() override { readings_.end_act(); }

private:
    class Listening;
    void refuse_within_report() const;
    void refuse_after_undoing() const;
    void write(std::string_view batch, const host::LogEntry& entry, const host::WhyNot& why_not);
    engines::Session& session_;
    const host::Clock& clock_;
    std::string user_;
    RememberedReadings readings_;
    Progress progress_;
    std::chrono::milliseconds every_{100};
    bool reporting_ = false;
    bool unit_ = false; // of work is begun and neither kept nor undone
};

} // namespace app
