// What went wrong in a batch: numbered as a SQL Server numbers it, with the place in the text.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace engines {

// What kind of trouble an error is; decides what a user is told to do.
enum class ErrorCategory : std::uint8_t {
    syntax,       // the text is not T-SQL, or names what does not exist; nothing of it ran
    constraint,   // a key, NOT NULL, CHECK or foreign key forbids the row
    conversion,   // a value does not fit its target type, or a text is too long
    arithmetic,   // division by zero, overflow
    user,         // RAISERROR or THROW
    transaction,  // COMMIT or ROLLBACK without a transaction, nesting too deep
    busy,         // another connection is writing; trying again later may succeed
    interrupted,  // Session::interrupt ended it
    read_only,    // the books may be read but not written
    disk_full,    // no room on the disk, or the file may not grow
    damaged,      // the file is damaged; go back to a backup
    foreign_file, // the file is something else than a set of books
    newer_file,   // the books were written by a newer version of this program
    access,       // no such file, no permission, or it is a directory
    io,           // the disk failed
    internal      // an assumption of the engine does not hold
};

// One error of a batch.
//
// Example: {2627, 14, 1, 24, constraint, "Violation of PRIMARY KEY constraint 'PK_D6801' …"}.
struct Error {
    int number = 0;    // as SQL Server numbers it; 50000 and above are user errors
    int severity = 16; // 11 to 19 in the sense of RAISERROR
    int state = 1;     // the state given to RAISERROR or THROW, else 1
    int line = 0;      // 1-based place in the batch, 0 when there is none
    int column = 0;    // in characters, 1-based
    ErrorCategory category = ErrorCategory::internal;
    int engine_code = 0;   // the database library's own code, 0 when it had no part in it
    std::string text;      // in the words of the server, for log and support
    std::string statement; // the statement that failed, cut to a readable length
};

// The category that an error number of SQL Server belongs to.
ErrorCategory category_of(int number);

// Lower-case English name of a category ("busy", "disk full"), for logs and --jsonl.
std::string_view name_of(ErrorCategory category);

// Thrown where there is no batch to report in: opening, creating, backing up.
class Failure : public std::runtime_error {
public:
    explicit Failure(Error error) : std::runtime_error(error.text), error_(std::move(error)) {}
    const Error& error() const { return error_; }

private:
    Error error_;
};

} // namespace engines
