// Online backup in portions, from one snapshot.
#include "engines/sqlite/connection/backup.h"

#include <unistd.h>

#include "engines/sqlite/connection/open_file.h"
#include "engines/sqlite/connection/sqlite_error.h"

namespace engines {
namespace {

// Holds the snapshot while the copy is made; inside a transaction there is one already.
class Snapshot {
public:
    explicit Snapshot(sqlite3* connection)
        : connection_(connection), own_(sqlite3_get_autocommit(connection) != 0) {
        if (!own_) return;
        run_text(connection_, "BEGIN");
        integer_of(connection_, "SELECT count(*) FROM sqlite_schema");
    }
    ~Snapshot() {
        if (own_) sqlite3_exec(connection_, "COMMIT", nullptr, nullptr, nullptr);
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

private:
    sqlite3* connection_;
    bool own_;
};

void copy_pages(sqlite3* from, sqlite3* to, const Session::Progress& progress) {
    constexpr int portion = 2000;
    const Snapshot snapshot(from);
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
    if (backup == nullptr) throw_last_error(to);
    int code = SQLITE_OK;
    bool go_on = true;
    while (code == SQLITE_OK && go_on) {
        code = sqlite3_backup_step(backup, portion);
        if (progress)
            go_on = progress(sqlite3_backup_remaining(backup), sqlite3_backup_pagecount(backup));
    }
    sqlite3_backup_finish(backup);
    if (code != SQLITE_OK && code != SQLITE_DONE) throw_last_error(to);
    if (code != SQLITE_DONE) throw SqliteFailure(SQLITE_INTERRUPT, 0, "interrupted");
}

} // namespace

void copy_books(sqlite3* connection, const std::string& file, const Session::Progress& progress) {
    create_private_file(file);
    try {
        sqlite3* raw = nullptr;
        const int code = sqlite3_open_v2(file.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
        const ConnectionHandle target(raw);
        if (code != SQLITE_OK) throw_last_error(raw);
        copy_pages(connection, target.get(), progress);
    } catch (const SqliteFailure& failure) {
        unlink(file.c_str());
        throw Failure(explain(failure, nullptr));
    } catch (...) {
        unlink(file.c_str());
        throw;
    }
}

std::vector<std::string> integrity_findings(sqlite3* connection) {
    std::vector<std::string> findings;
    try {
        const StatementHandle check = prepare(connection, "PRAGMA integrity_check", false);
        int code = SQLITE_OK;
        while ((code = sqlite3_step(check.get())) == SQLITE_ROW) {
            const std::string line =
                reinterpret_cast<const char*>(sqlite3_column_text(check.get(), 0));
            if (line != "ok") findings.push_back(line);
        }
        if (code != SQLITE_DONE) throw_last_error(connection);
        const StatementHandle keys = prepare(connection, "PRAGMA foreign_key_check", false);
        while ((code = sqlite3_step(keys.get())) == SQLITE_ROW) {
            findings.push_back(std::string("row without its parent in ") +
                               reinterpret_cast<const char*>(sqlite3_column_text(keys.get(), 0)));
        }
        if (code != SQLITE_DONE) throw_last_error(connection);
    } catch (const SqliteFailure& failure) {
        findings.push_back(failure.what());
    }
    return findings;
}

} // namespace engines
