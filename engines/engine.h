// Opens and creates sets of books of one kind of database.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "engines/session.h"

namespace engines {

// A procedure of the books that runs at the end of every transaction whose rows left something to
// settle: whenever the pending table holds rows, inside the transaction, just before its commit.
// Books without these objects have nothing to settle.
struct BeforeCommit {
    std::string procedure = "SYS_TRANSACTION_END"; // without parameters
    std::string pending_table = "SYS_6601_GONE";
};

struct OpenOptions {
    bool create = false;    // make new, empty books; refused when they exist
    bool read_only = false; // nothing may be written
    // A commit is on the disk before it is answered. False for books that nobody relies on yet:
    // whoever makes them sees to it when they are complete.
    bool durable = true;
    // How long a statement waits for another connection that writes before it reports busy.
    std::chrono::milliseconds busy_timeout{10000};
    // Room for pages kept in memory.
    std::size_t cache_bytes = std::size_t{64} << 20;
    BeforeCommit before_commit;
};

// One kind of database. books names a set as the user does: a path, "postgres://…", "odbc:…".
class Engine {
public:
    virtual ~Engine() = default;
    // Whether books is a name of this engine's form.
    virtual bool accepts(std::string_view books) const = 0;
    virtual bool exists(const std::string& books) const = 0;
    // Opens a session. Throws Failure whose category says why: access, foreign_file, newer_file,
    // damaged, busy, read_only, disk_full, io.
    virtual std::unique_ptr<Session> open(const std::string& books,
                                          const OpenOptions& options) const = 0;
};

// The embedded engine: a file, or ":memory:" for an empty database that lives with the session.
const Engine& sqlite_engine();

} // namespace engines
