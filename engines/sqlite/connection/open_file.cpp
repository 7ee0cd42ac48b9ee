// Looks at a file before SQLite does, so that each trouble gets its own clear words.
#include "engines/sqlite/connection/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "engines/sqlite/connection/sqlite_error.h"

namespace engines {
namespace {

constexpr const char* memory = ":memory:";

[[noreturn]] void refuse(ErrorCategory category, const std::string& text) {
    Error error;
    error.number = category == ErrorCategory::read_only ? 3906 : 5120;
    error.category = category;
    error.text = text;
    throw Failure(std::move(error));
}

[[noreturn]] void refuse_by_errno(const std::string& path, int code) {
    const std::string reason = std::strerror(code);
    if (code == EROFS) refuse(ErrorCategory::read_only, "'" + path + "' lies on a read-only disk.");
    if (code == ENOSPC || code == EDQUOT)
        refuse(ErrorCategory::disk_full, "There is no room for '" + path + "'.");
    refuse(ErrorCategory::access, "'" + path + "' cannot be opened: " + reason + ".");
}

std::uint32_t big_endian(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
           static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

// The header of the file format tells a set of books from anything else.
void check_header(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) refuse_by_errno(path, errno);
    std::array<unsigned char, 100> header{};
    const ssize_t size = read(file, header.data(), header.size());
    const int code = errno;
    close(file);
    if (size < 0) refuse_by_errno(path, code);
    const bool sqlite = size == 100 && std::memcmp(header.data(), "SQLite format 3", 16) == 0;
    if (!sqlite) refuse(ErrorCategory::foreign_file, "'" + path + "' is not a set of books.");
    if (big_endian(&header[68]) != static_cast<std::uint32_t>(books_application_id))
        refuse(ErrorCategory::foreign_file,
               "'" + path + "' is a database of another program, not a set of books.");
    if (big_endian(&header[60]) > static_cast<std::uint32_t>(books_format))
        refuse(ErrorCategory::newer_file,
               "'" + path + "' was written by a newer version of this program.");
}

void check_existing(const std::string& path, const OpenOptions& options) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) refuse(ErrorCategory::access, "There is no file '" + path + "'.");
        refuse_by_errno(path, errno);
    }
    if (S_ISDIR(status.st_mode)) refuse(ErrorCategory::access, "'" + path + "' is a directory.");
    if (!S_ISREG(status.st_mode)) refuse(ErrorCategory::access, "'" + path + "' is not a file.");
    check_header(path);
    if (!options.read_only && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        refuse(ErrorCategory::read_only, "'" + path +
                                             "' may not be written; give the right to "
                                             "write it, or open it for reading only.");
}

ConnectionHandle open_connection(const std::string& name, int flags) {
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &raw, flags | SQLITE_OPEN_EXRESCODE, nullptr);
    ConnectionHandle connection(raw);
    if (code != SQLITE_OK) {
        if (raw != nullptr) throw_last_error(raw);
        throw SqliteFailure(code, 0, sqlite3_errstr(code));
    }
    return connection;
}

void set_up(sqlite3* connection, const OpenOptions& options, bool in_memory) {
    sqlite3_busy_timeout(connection, static_cast<int>(options.busy_timeout.count()));
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    // The filters that SQLite puts before a join take texts of different length as different, but
    // trailing blanks do not count here.
    constexpr int join_filters = 0x00080000 | 0x00100000;
    sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, connection, join_filters);
    run_text(connection, "PRAGMA cache_size=-" + std::to_string(options.cache_bytes / 1024));
    run_text(connection, "PRAGMA temp_store=MEMORY; PRAGMA foreign_keys=ON;"
                         "PRAGMA secure_delete=OFF; PRAGMA recursive_triggers=OFF;"
                         "PRAGMA trusted_schema=ON; PRAGMA cell_size_check=ON");
    if (in_memory || options.read_only) return;
    if (text_of_cell(connection, "PRAGMA journal_mode=WAL") != "wal")
        refuse(ErrorCategory::access, "The disk does not allow a write-ahead log.");
    run_text(connection, std::string("PRAGMA synchronous=") + (options.durable ? "FULL" : "OFF") +
                             "; PRAGMA wal_autocheckpoint=2000");
}

void mark_as_books(sqlite3* connection) {
    run_text(connection, "PRAGMA application_id=" + std::to_string(books_application_id) +
                             "; PRAGMA user_version=" + std::to_string(books_format));
}

// A read-only file on a read-only disk has no room for the shared memory of the log.
ConnectionHandle open_read_only(const std::string& path) {
    ConnectionHandle connection = open_connection(path, SQLITE_OPEN_READONLY);
    try {
        integer_of(connection.get(), "SELECT count(*) FROM sqlite_schema");
        return connection;
    } catch (const SqliteFailure& failure) {
        const int code = failure.code & 0xFF;
        if (code != SQLITE_CANTOPEN && code != SQLITE_READONLY) throw;
    }
    std::string uri = "file:";
    for (const char c : path) {
        if (c == '?' || c == '#' || c == '%') {
            static constexpr char digits[] = "0123456789ABCDEF";
            uri += '%';
            uri += digits[static_cast<unsigned char>(c) >> 4];
            uri += digits[c & 15];
        } else {
            uri += c;
        }
    }
    return open_connection(uri + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

ConnectionHandle open_any(const std::string& path, const OpenOptions& options) {
    constexpr int writing = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (path == memory) {
        ConnectionHandle connection = open_connection(path, writing | SQLITE_OPEN_CREATE);
        set_up(connection.get(), options, true);
        mark_as_books(connection.get());
        return connection;
    }
    if (options.create) {
        create_private_file(path);
        try {
            ConnectionHandle connection = open_connection(path, writing);
            mark_as_books(connection.get());
            set_up(connection.get(), options, false);
            return connection;
        } catch (...) {
            unlink(path.c_str());
            throw;
        }
    }
    check_existing(path, options);
    ConnectionHandle connection =
        options.read_only ? open_read_only(path) : open_connection(path, writing);
    set_up(connection.get(), options, false);
    integer_of(connection.get(), "SELECT count(*) FROM sqlite_schema");
    return connection;
}

} // namespace

void create_private_file(const std::string& path) {
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600);
    if (file < 0) {
        if (errno == EEXIST)
            refuse(ErrorCategory::access, "'" + path + "' exists already and is left alone.");
        refuse_by_errno(path, errno);
    }
    close(file);
}

ConnectionHandle open_books(const std::string& path, const OpenOptions& options) {
    try {
        return open_any(path, options);
    } catch (const SqliteFailure& failure) {
        throw Failure(explain(failure, nullptr));
    }
}

} // namespace engines
