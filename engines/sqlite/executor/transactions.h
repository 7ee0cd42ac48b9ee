// Transactions as T-SQL counts them, on one connection of SQLite.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "engines/sqlite/catalogue/identities.h"
#include "engines/sqlite/connection/connection.h"
#include "tsql/catalog/catalog.h"

namespace engines {

// BEGIN counts up, COMMIT counts down and at one writes, ROLLBACK undoes everything. The catalogue
// goes back with the rows.
class Transactions {
public:
    Transactions(sqlite3* connection, tsql::Catalog& catalog, Identities& identities)
        : connection_(connection), catalog_(catalog), identities_(identities) {}

    // @@TRANCOUNT
    int depth() const { return depth_; }
    // A transaction that can only be undone: an error under XACT_ABORT was caught by TRY.
    bool doomed() const { return doomed_; }
    void doom() { doomed_ = depth_ > 0; }
    // Runs inside every transaction just after it began; what it throws undoes the beginning.
    void set_after_begin(std::function<void()> action) { after_begin_ = std::move(action); }
    // Runs inside the transaction just before its commit.
    void set_before_commit(std::function<void()> action) { before_commit_ = std::move(action); }
    // A reader's transaction does not take the right to write.
    void set_read_only(bool read_only) { read_only_ = read_only; }

    // Whether the present transaction wrote to anything but temporary tables.
    bool changed_books() const { return changed_books_; }
    void note_change() { changed_books_ = true; }

    void begin();
    // A transaction that sees the state of one instant and does not take the right to write; the
    // executor sees to it that nothing but temporary tables is written in it. Joins the one that
    // is open already.
    void begin_reading();
    bool reading() const { return reading_; }
    // Error 3902 without a transaction, 3930 when it is doomed.
    void commit();
    void rollback();
    void save(const std::string& name);
    // To a savepoint; false when there is none of that name.
    bool rollback_to(const std::string& name);
    // Forgets a savepoint and keeps what was done since: open ones make every write dearer.
    void release(const std::string& name);
    // Notices that SQLite undid the transaction by itself, as it does when the disk is full.
    bool lost();

private:
    friend class StatementScope;
    struct Savepoint {
        std::string name;
        int number;
        tsql::Catalog::State catalog;
    };

    // What SQLite is told of a savepoint.
    enum class Word : std::uint8_t { set, undo, release };
    static constexpr int kept_numbers = 8; // savepoints within one another are few

    void start(StatementHandle& statement, const char* text);
    void start_writing();
    void finish();
    void run(StatementHandle& statement, const std::string& text);
    // A number that no open savepoint has; small ones come again, so that their words are kept.
    int new_number() { return ++numbers_; }
    void tell(Word word, int number);
    void forget_savepoints(std::size_t keep) {
        savepoints_.resize(std::min(keep, savepoints_.size()));
    }

    sqlite3* connection_;
    tsql::Catalog& catalog_;
    Identities& identities_;
    std::function<void()> after_begin_;
    std::function<void()> before_commit_;
    int depth_ = 0;
    int numbers_ = 0;
    int open_scopes_ = 0; // statements around the running one that have a savepoint
    bool doomed_ = false;
    bool reading_ = false; // begun by begin_reading
    bool changed_books_ = false;
    bool read_only_ = false;
    tsql::Catalog::State at_begin_;
    std::vector<Savepoint> savepoints_;
    StatementHandle begin_;
    StatementHandle begin_reading_;
    StatementHandle commit_;
    StatementHandle rollback_;
    std::array<std::array<StatementHandle, 3>, kept_numbers> words_; // by number and word
};

// One writing statement: all of it or nothing. Outside a transaction it is one of its own.
//
//     StatementScope scope(transactions, true);
//     … write …
//     scope.done();           // without it the destructor undoes everything
class StatementScope {
public:
    // undoable false: an error undoes the whole transaction anyway, so that no savepoint is needed.
    StatementScope(Transactions& transactions, bool undoable);
    ~StatementScope();
    StatementScope(const StatementScope&) = delete;
    StatementScope& operator=(const StatementScope&) = delete;

    void done();
    // Whether the statement is a transaction of its own.
    bool implicit() const { return implicit_; }

private:
    Transactions& transactions_;
    bool implicit_ = false;
    bool savepoint_ = false;
    bool finished_ = false;
    int number_ = 0;
    tsql::Catalog::State catalog_;
};

} // namespace engines
