// Runs a batch on a connection of its own.
#include "app/workplace/query_window.h"

#include "app/books/open.h"
#include "app/data/direct_changes.h"
#include "app/workplace/workplace.h"
#include "automation/sql/result_json.h"

namespace app {

QueryWindow::QueryWindow(std::string books, bool allowed, std::string user,
                         std::optional<host::Date> today)
    : books_(std::move(books)), allowed_(allowed), user_(std::move(user)), today_(today),
      clock_(today) {}

std::string QueryWindow::run(const std::string& batch) {
    if (!session_) {
        session_ = open_books(books_);
        fix_clock(*session_, today_);
        log_direct_changes(*session_, clock_, user_);
    }
    using nlohmann::ordered_json;
    return automation::json_of(automation::collect(*session_, batch))
        .dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

} // namespace app
