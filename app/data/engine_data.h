// The host's door to the database, with an engine behind it.
#pragma once

#include <string>

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

    void query(std::string_view sql, host::RowReceiver& receiver) override;
    void execute(std::string_view batch, const host::LogEntry& entry) override;

private:
    engines::Session& session_;
    const host::Clock& clock_;
    std::string user_;
};

} // namespace app
