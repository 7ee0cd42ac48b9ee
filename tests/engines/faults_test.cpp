// Files that are no books, disks that are full, others who write: each has its own clear error.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

using engines::ErrorCategory;

// The category of the refusal to open; internal when it opened.
ErrorCategory refusal(const std::string& path, engines::OpenOptions options = {}) {
    try {
        open(path, options);
    } catch (const engines::Failure& failure) {
        EXPECT_NE(failure.error().text, "");
        return failure.error().category;
    }
    return ErrorCategory::internal;
}

void write_file(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

void run_plain_sqlite(const std::string& path, const char* text) {
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &raw), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(raw, text, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(raw);
}

// Works as a user without special rights for the time of a scope.
class OrdinaryUser {
public:
    OrdinaryUser() : before_(geteuid()) {
        if (before_ == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~OrdinaryUser() {
        if (before_ == 0) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }

private:
    uid_t before_;
};

// Files may not grow beyond the limit for the time of a scope.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit small = before_;
        small.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

} // namespace

TEST(Opening, what_is_no_set_of_books_is_named) {
    const TemporaryFolder folder;
    const std::string text = folder.file("text.zf");
    write_file(text, std::string(5000, 'x'));
    EXPECT_EQ(refusal(text), ErrorCategory::foreign_file);
    const std::string empty = folder.file("empty.zf");
    write_file(empty, "");
    EXPECT_EQ(refusal(empty), ErrorCategory::foreign_file);
    const std::string other = folder.file("other.db");
    run_plain_sqlite(other, "CREATE TABLE x(a); INSERT INTO x VALUES(1)");
    EXPECT_EQ(refusal(other), ErrorCategory::foreign_file);
    EXPECT_EQ(refusal(folder.path().string()), ErrorCategory::access);
    EXPECT_EQ(refusal(folder.file("missing.zf")), ErrorCategory::access);
}

TEST(Opening, books_of_a_newer_program_are_left_alone) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create(path).reset();
    run_plain_sqlite(path, "PRAGMA user_version=1000");
    EXPECT_EQ(refusal(path), ErrorCategory::newer_file);
}

TEST(Opening, creating_never_touches_a_file_that_exists) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    write_file(path, "letter to a friend");
    engines::OpenOptions options;
    options.create = true;
    EXPECT_EQ(refusal(path, options), ErrorCategory::access);
    std::ifstream in(path);
    std::string content;
    std::getline(in, content);
    EXPECT_EQ(content, "letter to a friend");
}

TEST(Opening, only_the_owner_may_read_new_books) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto session = create(path);
    for (const char* suffix : {"", "-wal", "-shm"}) {
        struct stat status {};
        ASSERT_EQ(stat((path + suffix).c_str(), &status), 0) << suffix;
        EXPECT_EQ(status.st_mode & 0777, 0600U) << suffix;
    }
}

TEST(ReadOnly, a_file_that_may_not_be_written_is_refused_unless_opened_for_reading) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create(path).reset();
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    const OrdinaryUser ordinary;
    EXPECT_EQ(refusal(path), ErrorCategory::read_only);
    engines::OpenOptions options;
    options.read_only = true;
    const auto session = open(path, options);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), "3");
}

TEST(ReadOnly, writing_is_refused_and_reading_goes_on) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create(path).reset();
    engines::OpenOptions options;
    options.read_only = true;
    const auto session = open(path, options);
    const engines::Outcome outcome = run(*session, "INSERT INTO T VALUES (9,'x')");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, ErrorCategory::read_only);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), "3");
}

TEST(Damage, pages_overwritten_are_found_and_reported_as_damage) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create(path, 2000).reset();
    {
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        file.seekg(0, std::ios::end);
        const auto size = static_cast<long>(file.tellg());
        ASSERT_GT(size, 40000);
        // All but the pages of the schema.
        file.seekp(32768);
        file << std::string(static_cast<std::size_t>(size - 32768), '\x5A');
    }
    const auto session = open(path);
    EXPECT_FALSE(session->check_integrity().empty());
    const engines::Outcome outcome = run(*session, "SELECT SUM(ID) FROM T WHERE V='row'");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, ErrorCategory::damaged);
}

TEST(Damage, sound_books_have_no_findings) {
    const TemporaryFolder folder;
    EXPECT_TRUE(create(folder.file("a.zf"), 100)->check_integrity().empty());
}

TEST(FullDisk, an_answered_row_stays_and_work_goes_on_when_there_is_room_again) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    auto session = create(path);
    int saved = 3;
    engines::Outcome outcome;
    {
        const SmallDisk disk(400'000);
        while (outcome.ok() && saved < 100000) {
            outcome = run(*session, "INSERT INTO T VALUES (" + std::to_string(saved + 1) + ",'" +
                                        std::string(200, 'x') + "')");
            if (outcome.ok()) ++saved;
        }
    }
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, ErrorCategory::disk_full) << outcome.error->text;
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), std::to_string(saved));
    EXPECT_TRUE(run(*session, "INSERT INTO T VALUES (0,'again')").ok());
    session.reset();
    session = open(path);
    EXPECT_EQ(cell(*session, "SELECT COUNT(*) FROM T"), std::to_string(saved + 1));
    EXPECT_TRUE(session->check_integrity().empty());
}

TEST(SecondWriter, waits_then_says_busy_and_succeeds_afterwards) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    engines::OpenOptions options;
    options.busy_timeout = std::chrono::milliseconds(30);
    const auto second = open(path, options);
    ASSERT_TRUE(first->begin().ok());
    ASSERT_TRUE(run(*first, "UPDATE T SET V='a' WHERE ID=1").ok());
    // Readers see the state before.
    EXPECT_EQ(cell(*second, "SELECT V FROM T WHERE ID=1"), "row");
    const engines::Outcome outcome = run(*second, "UPDATE T SET V='b' WHERE ID=1");
    ASSERT_FALSE(outcome.ok());
    EXPECT_EQ(outcome.error->category, ErrorCategory::busy);
    ASSERT_TRUE(first->commit().ok());
    EXPECT_TRUE(run(*second, "UPDATE T SET V=V+'b' WHERE ID=1").ok());
    EXPECT_EQ(cell(*first, "SELECT V FROM T WHERE ID=1"), "ab");
}

TEST(SecondWriter, keeps_nobody_from_opening_reading_and_copying) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    const auto first = create(path);
    ASSERT_TRUE(first->begin().ok());
    ASSERT_TRUE(run(*first, "UPDATE T SET V='a' WHERE ID=1").ok());
    engines::OpenOptions options;
    options.busy_timeout = std::chrono::milliseconds(30);
    const auto second = open(path, options);
    EXPECT_EQ(cell(*second, "SELECT V FROM T WHERE ID=1"), "row");
    EXPECT_TRUE(second->check_integrity().empty());
    second->backup_to(folder.file("copy.zf"), {});
    EXPECT_EQ(cell(*open(folder.file("copy.zf")), "SELECT V FROM T WHERE ID=1"), "row");
}

} // namespace tests
