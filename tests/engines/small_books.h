// Books with one small table, for tests of sessions.
#pragma once

#include <memory>
#include <string>

#include "engines/engine.h"
#include "engines/value_text.h"
#include "tests/support/temporary_folder.h"

namespace tests {

// The first cell of a batch's first result set as text; the error's text when there was one.
inline std::string cell(engines::Session& session, const std::string& batch) {
    struct First : engines::ResultReceiver {
        bool row(std::span<const engines::Value> cells) override {
            if (text.empty()) text = cells[0].is_null() ? "NULL" : engines::text_of(cells[0]);
            return true;
        }
        std::string text;
    } first;
    const engines::Outcome outcome = session.execute(batch, first);
    return outcome.ok() ? first.text : outcome.error->text;
}

inline engines::Outcome run(engines::Session& session, const std::string& batch) {
    engines::ResultReceiver unheard;
    return session.execute(batch, unheard);
}

inline engines::Outcome run_atomically(engines::Session& session, const std::string& batch) {
    engines::ResultReceiver unheard;
    return session.execute_atomically(batch, unheard);
}

inline std::unique_ptr<engines::Session> open(const std::string& path,
                                              engines::OpenOptions options = {}) {
    return engines::sqlite_engine().open(path, options);
}

// New books with the table T (ID, V) of so many rows.
inline std::unique_ptr<engines::Session> create(const std::string& path, int rows = 3) {
    engines::OpenOptions options;
    options.create = true;
    auto session = open(path, options);
    run(*session, "CREATE TABLE T (ID int NOT NULL PRIMARY KEY, V varchar(200))");
    session->begin();
    for (int i = 1; i <= rows; ++i) {
        run(*session, "INSERT INTO T VALUES (" + std::to_string(i) + ", 'row')");
    }
    session->commit();
    return session;
}

} // namespace tests
