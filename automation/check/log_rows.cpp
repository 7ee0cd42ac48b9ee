// The operation log: numbered without a gap, every row chained to the one before.
#include "automation/check/findings.h"
#include "automation/sql/collected_result.h"
#include "schema/log_chain.h"

namespace automation {

namespace {

schema::LogRow row_of(const TextRow& cells) {
    schema::LogRow row;
    row.id = std::stoll(cells[0].value_or("0"));
    row.time = cells[1].value_or("").substr(0, 19); // whole seconds
    row.user = cells[2].value_or("");
    row.function = cells[3].value_or("");
    row.key = cells[4].value_or("");
    row.operation = cells[5].value_or("");
    row.digest = cells[6].value_or("");
    return row;
}

} // namespace

void check_log(engines::Session& session, Findings& findings) {
    std::string previous;
    std::int64_t expected = 1;
    for (const TextRow& cells :
         rows_of(session, "SELECT ID, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, OPERATION, "
                          "DIGEST, HASH FROM SYS_LOG ORDER BY ID")) {
        const schema::LogRow row = row_of(cells);
        if (row.id != expected)
            findings.add("缺少第 " + std::to_string(expected) + " 条到第 " +
                         std::to_string(row.id - 1) + " 条记录");
        else if (cells[7] != schema::chained_hash(previous, row))
            findings.add("第 " + std::to_string(row.id) + " 条记录(" + row.time + " " + row.user +
                         " " + row.function + " " + row.key + ")被改动过");
        previous = cells[7].value_or("");
        expected = row.id + 1;
    }
}

} // namespace automation
