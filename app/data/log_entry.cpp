// Reads where the log ends and chains the new row to it.
#include "app/data/log_entry.h"

#include "app/data/log_text.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"
#include "schema/log_chain.h"

namespace app {

namespace {

class LastRow : public engines::ResultReceiver {
public:
    std::int64_t id = 0;
    std::string hash;
    bool found = false;
    bool row(std::span<const engines::Value> cells) override {
        id = cells[0].as_integer();
        hash = cells[1].as_text();
        found = true;
        return false;
    }
};

// The log is kept to the second; the clock's milliseconds are dropped.
std::string to_the_second(host::DateTime moment) {
    moment.milliseconds -= moment.milliseconds % 1000;
    std::string text = moment.to_text();
    return text.size() == 10 ? text + " 00:00:00" : text;
}

// At most `most` characters, never cut inside one.
std::string cut(std::string_view text, std::size_t most) {
    std::size_t characters = 0, i = 0;
    for (; i < text.size(); ++i)
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80 && ++characters > most) break;
    std::string kept(text.substr(0, i));
    while (kept.ends_with(' ')) kept.pop_back();
    return kept;
}

// The end of the log as its head tells it. Without a head, which somebody took away, the log's own
// last row counts; the check of the books tells of it.
engines::Outcome read_end(engines::Session& session, LastRow& last) {
    engines::Outcome read = session.execute("SELECT LAST_ID, HASH FROM SYS_LOG_HEAD", last);
    if (!read.ok() || last.found) return read;
    return session.execute("SELECT TOP 1 ID, HASH FROM SYS_LOG ORDER BY ID DESC", last);
}

std::string insert_row(const schema::LogRow& row, const std::string& hash) {
    std::string insert = "INSERT INTO SYS_LOG (ID, LOG_TIME, USER_ID, FUNCTION_CODE, DOC_KEY, "
                         "OPERATION, DIGEST, HASH) VALUES (" +
                         std::to_string(row.id);
    for (const std::string* cell :
         {&row.time, &row.user, &row.function, &row.key, &row.operation, &row.digest, &hash})
        insert += "," + host::quoted(*cell);
    return insert + ");";
}

} // namespace

bool keeps_log(engines::Session& session) {
    return automation::rows_of(session, "SELECT OBJECT_ID('SYS_LOG_TEXT')")[0][0].has_value();
}

engines::Outcome begin_log_head(engines::Session& session) {
    engines::ResultReceiver nobody;
    return session.execute(
        "INSERT INTO SYS_LOG_HEAD (LAST_ID, HASH, FIRST_TEXT) SELECT ISNULL(MAX(ID), 0), "
        "RTRIM(ISNULL((SELECT TOP 1 HASH FROM SYS_LOG ORDER BY ID DESC), '')), "
        "ISNULL(MAX(ID), 0) + 1 FROM SYS_LOG",
        nobody);
}

engines::Outcome append_log_row(engines::Session& session, host::DateTime now,
                                const std::string& user, const host::LogEntry& entry,
                                std::string_view batch) {
    LastRow last;
    if (engines::Outcome read = read_end(session, last); !read.ok()) return read;
    const std::string text = without_secrets(batch);
    // Half of what the columns take, since a character outside the basic plane counts two there;
    // names of functions have none.
    const schema::LogRow row{last.id + 1,           to_the_second(now),
                             cut(user, 20),         cut(entry.function, 10),
                             cut(entry.key, 100),   cut(entry.operation, 20),
                             schema::digest_of(text)};
    const std::string hash = schema::chained_hash(last.hash, row);
    const std::string id = std::to_string(row.id);
    engines::ResultReceiver nobody;
    return session.execute(
        insert_row(row, hash) + "INSERT INTO SYS_LOG_TEXT (ID, BATCH) VALUES (" + id + "," +
            host::quoted(text) + ");UPDATE SYS_LOG_HEAD SET LAST_ID=" + id + ",HASH=" +
            host::quoted(hash),
        nobody);
}

} // namespace app
