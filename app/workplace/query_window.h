// The administrator's view into the tables of the open books.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/settings/surroundings.h"
#include "automation/drive/ports.h"
#include "engines/session.h"
#include "host/values/date.h"

namespace app {

// Its connection is its own, so that a transaction begun here never holds a form's work in
// it. What is changed here stands in the operation log.
class QueryWindow : public automation::QueryPort {
public:
    // user: in whose name changes are logged. today: the fixed day of GETDATE(), if any.
    QueryWindow(std::string books, bool allowed, std::string user,
                std::optional<host::Date> today);
    bool allowed() const override { return allowed_; }
    std::string run(const std::string& batch) override;

private:
    std::string books_;
    bool allowed_;
    std::string user_;
    std::optional<host::Date> today_;
    SystemClock clock_;
    std::unique_ptr<engines::Session> session_; // opened with the first query
};

} // namespace app
