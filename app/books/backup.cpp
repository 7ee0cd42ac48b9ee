// Verified copies, and the old books put aside.
#include "app/books/backup.h"

#include <filesystem>

#include "app/books/engines.h"
#include "app/books/open.h"
#include "app/books/pending_file.h"
#include "app/refusal.h"

namespace app {

namespace fs = std::filesystem;

namespace {

// What the embedded engine keeps beside a file while somebody has it open.
constexpr const char* companions[] = {"-wal", "-shm"};

void copy_verified(engines::Session& source, const std::string& name, PendingFile& pending) {
    try {
        source.backup_to(pending.path(), [](std::int64_t, std::int64_t) { return true; });
    } catch (const engines::Failure& failure) {
        throw Refusal("复制 " + name + " 失败: " + opening_sentence(name, failure.error()));
    }
    const auto findings = open_books(pending.path())->check_integrity();
    if (!findings.empty())
        throw Refusal(name + " 的副本没有通过检查(" + findings.front() + "),已放弃!");
}

void require_file(const std::string& books) {
    engine_for(books);
    if (!is_file(books)) throw Refusal("只有帐套文件可以备份和恢复!");
}

// Closing the last connection removes the companions; what is left shows another user.
void refuse_while_in_use(const std::string& books) {
    try {
        open_database(books).reset();
    } catch (const Refusal&) {
        return; // damaged or foreign: nobody can be working in it
    }
    std::error_code ignored;
    for (const char* suffix : companions)
        if (fs::exists(books + suffix, ignored))
            throw Refusal("帐套 " + books + " 正在被使用,请先关闭所有打开它的程序!");
}

// A backup may lie where nothing can be written. Elsewhere it is opened for writing, since a reader
// leaves the companions behind.
std::unique_ptr<engines::Session> open_backup(const std::string& file) {
    try {
        return open_books(file);
    } catch (const Refusal&) {
        return open_books(file, Access::ReadOnly);
    }
}

void move_aside(const std::string& books, const std::string& aside) {
    std::error_code error;
    fs::rename(books, aside, error);
    if (error) throw Refusal("不能把原帐套改名为 " + aside + ": " + error.message());
    for (const char* suffix : companions) fs::rename(books + suffix, aside + suffix, error);
}

} // namespace

void backup_books(const std::string& books, const std::string& file) {
    require_file(books);
    auto session = open_books(books);
    PendingFile pending(file);
    copy_verified(*session, books, pending);
    pending.publish();
}

std::string restore_books(const std::string& file, const std::string& books,
                          const std::string& moment) {
    require_file(books);
    const auto backup = open_backup(file);
    std::error_code ignored;
    const bool replaces = fs::exists(books, ignored);
    if (replaces && fs::equivalent(file, books, ignored))
        throw Refusal("备份文件和帐套是同一个文件!");
    const std::string aside = books + ".before-restore-" + moment;
    // The copy is made and checked before the old books are touched.
    PendingFile pending(replaces ? aside + ".copy" : books);
    copy_verified(*backup, file, pending);
    if (!replaces) {
        pending.publish();
        return "";
    }
    refuse_while_in_use(books);
    move_aside(books, aside);
    fs::rename(pending.path(), books, ignored);
    if (ignored) {
        fs::rename(aside, books, ignored);
        throw Refusal("不能建立帐套 " + books + ",原帐套没有改变!");
    }
    return aside;
}

} // namespace app
