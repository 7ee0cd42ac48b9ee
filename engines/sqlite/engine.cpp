// The embedded engine as one of the engines.
#include "engines/engine.h"

#include <unistd.h>

#include "engines/sqlite/session.h"

namespace engines {
namespace {

class SqliteEngine : public Engine {
public:
    // Every name that is not of another engine's form is a path.
    bool accepts(std::string_view books) const override {
        return !books.empty() && books.find("://") == std::string_view::npos &&
               !books.starts_with("odbc:");
    }
    bool exists(const std::string& books) const override {
        return books != ":memory:" && access(books.c_str(), F_OK) == 0;
    }
    std::unique_ptr<Session> open(const std::string& books,
                                  const OpenOptions& options) const override {
        return std::make_unique<SqliteSession>(books, options);
    }
};

} // namespace

const Engine& sqlite_engine() {
    static const SqliteEngine engine;
    return engine;
}

} // namespace engines
