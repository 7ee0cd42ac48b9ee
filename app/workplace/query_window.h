// The administrator's view into the tables of the open books.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "automation/drive/ports.h"
#include "engines/session.h"
#include "host/values/date.h"

namespace app {

// Its connection is its own, so that a transaction begun here never holds a form's work in it.
class QueryWindow : public automation::QueryPort {
public:
    // today: the fixed day of GETDATE(), if any.
    QueryWindow(std::string books, bool allowed, std::optional<host::Date> today);
    bool allowed() const override { return allowed_; }
    std::string run(const std::string& batch) override;

private:
    std::string books_;
    bool allowed_;
    std::optional<host::Date> today_;
    std::unique_ptr<engines::Session> session_; // opened with the first query
};

} // namespace app
