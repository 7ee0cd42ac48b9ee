// Reads the periods from the parameters of the books and the closings in the log.
#include "automation/check/open_periods.h"

#include <algorithm>

#include "automation/sql/collected_result.h"

namespace automation {

namespace {

std::string period_of(int year, int month) {
    const std::string text = std::to_string(month);
    return std::to_string(year) + "-" + (text.size() == 1 ? "0" : "") + text;
}

std::string parameter(engines::Session& session, const char* id) {
    const auto rows =
        rows_of(session, std::string("SELECT LEFT(PARAM, 7) FROM D6600 WHERE ID = ") + id);
    const std::string period = rows.empty() ? "" : rows[0][0].value_or("");
    return is_period(period) ? period : "";
}

// Closing writes the period it closes behind its own name; taking a closing back writes another.
std::string last_closed(engines::Session& session) {
    const auto rows = rows_of(session, "SELECT MAX(RIGHT(DOC_KEY, 7)) FROM SYS_LOG "
                                       "WHERE FUNCTION_CODE = '668' AND DOC_KEY LIKE '期末结帐%'");
    return rows.empty() ? "" : rows[0][0].value_or("");
}

} // namespace

bool is_period(const std::string& text) {
    const auto digit = [&text](std::size_t at) { return text[at] >= '0' && text[at] <= '9'; };
    if (text.size() != 7 || text[4] != '-') return false;
    for (const std::size_t at : {0, 1, 2, 3, 5, 6})
        if (!digit(at)) return false;
    const int month = (text[5] - '0') * 10 + (text[6] - '0');
    return month >= 1 && month <= 12;
}

std::string previous_period(const std::string& period) {
    const int year = std::stoi(period.substr(0, 4)), month = std::stoi(period.substr(5, 2));
    return month == 1 ? period_of(year - 1, 12) : period_of(year, month - 1);
}

std::string next_period(const std::string& period) {
    const int year = std::stoi(period.substr(0, 4)), month = std::stoi(period.substr(5, 2));
    return month == 12 ? period_of(year + 1, 1) : period_of(year, month + 1);
}

OpenPeriods read_open_periods(engines::Session& session) {
    OpenPeriods periods{parameter(session, "1"), parameter(session, "2"), ""};
    periods.latest = periods.current;
    const std::string closed = last_closed(session);
    if (periods.set_up() && is_period(closed))
        periods.latest = std::max(periods.current, next_period(closed));
    return periods;
}

} // namespace automation
