// Verified copies, and the old books put aside.
#include "app/books/backup.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "app/books/engines.h"
#include "app/books/open.h"
#include "app/books/pending_file.h"
#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"

namespace app {

namespace fs = std::filesystem;

namespace {

// What the embedded engine keeps beside a file while somebody has it open.
constexpr const char* companions[] = {"-wal", "-shm"};

[[noreturn]] void refuse_stopped() { throw Refusal("操作已取消,没有留下文件,帐套没有改变!"); }

// Runs the storage check of a copy and tells how long it takes.
std::vector<std::string> findings_of(engines::Session& copy, const CopyProgress& progress) {
    bool stopped = false;
    if (progress)
        copy.set_progress(
            [&](std::int64_t, std::int64_t) {
                stopped = stopped || !progress("正在检查副本…", 0, 0);
                return !stopped;
            },
            std::chrono::milliseconds{100});
    std::vector<std::string> findings = copy.check_integrity();
    if (stopped) refuse_stopped();
    return findings;
}

void copy_verified(engines::Session& source, const std::string& name, PendingFile& pending,
                   const CopyProgress& progress) {
    try {
        source.backup_to(pending.path(), [&](std::int64_t left, std::int64_t all) {
            return !progress || progress("正在复制帐套…", all - left, all + 1);
        });
    } catch (const engines::Failure& failure) {
        if (failure.error().category == engines::ErrorCategory::interrupted) refuse_stopped();
        throw Refusal("复制 " + name + " 失败: " + opening_sentence(name, failure.error()));
    }
    const auto findings = findings_of(*open_books(pending.path()), progress);
    if (!findings.empty())
        throw Refusal(name + " 的副本没有通过检查(" + findings.front() + "),已放弃!");
}

// Whatever becomes of the work, its end is told.
class Ending {
public:
    explicit Ending(const CopyProgress& progress) : progress_(progress) {}
    ~Ending() {
        if (progress_) progress_("", 1, 1);
    }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;

private:
    const CopyProgress& progress_;
};

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

// The log goes on from where the backup stood; its reader is told why something is missing. Books
// of a time without such a log stay without.
void log_restoring(const std::string& copy, const std::string& file, const Restoring& by) {
    const auto session = open_books(copy);
    if (!keeps_log(*session)) return;
    const auto require = [](const engines::Outcome& outcome) {
        if (!outcome.ok()) throw Refusal("不能写入操作日志: " + sentence_for(*outcome.error));
    };
    std::error_code ignored;
    require(session->begin());
    require(append_log_row(*session, by.moment, by.user,
                           {"restore", fs::path(file).filename().string(), "Restore"},
                           "恢复自 " + fs::absolute(file, ignored).string()));
    require(session->commit());
}

void move_aside(const std::string& books, const std::string& aside) {
    std::error_code error;
    fs::rename(books, aside, error);
    if (error) throw Refusal("不能把原帐套改名为 " + aside + ": " + error.message());
    for (const char* suffix : companions) fs::rename(books + suffix, aside + suffix, error);
}

} // namespace

void backup_session(engines::Session& session, const std::string& name, const std::string& file,
                    const CopyProgress& progress) {
    const Ending ending(progress);
    PendingFile pending(file);
    copy_verified(session, name, pending, progress);
    pending.publish();
}

void backup_books(const std::string& books, const std::string& file,
                  const CopyProgress& progress) {
    require_file(books);
    backup_session(*open_books(books), books, file, progress);
}

std::string contents_of_backup(const std::string& file) {
    const auto backup = open_backup(file);
    const auto told = automation::rows_of(
        *backup, "SELECT (SELECT VALUE FROM SYS_SETTING WHERE NAME='company'),"
                 "(SELECT PARAM FROM D6600 WHERE ID=2)");
    const std::string period = told[0][1].value_or("");
    return told[0][0].value_or("") + (period.empty() ? ",还没有建帐" : ",会计期间 " + period);
}

std::string moment_in_name(const host::DateTime& moment) {
    std::string text = moment.to_text().substr(0, 19);
    std::erase_if(text, [](char c) { return c == '-' || c == ':'; });
    std::replace(text.begin(), text.end(), ' ', '-');
    return text;
}

std::string restore_books(const std::string& file, const std::string& books,
                          const Restoring& by, const CopyProgress& progress) {
    require_file(books);
    const Ending ending(progress);
    const auto backup = open_backup(file);
    std::error_code ignored;
    const bool replaces = fs::exists(books, ignored);
    if (replaces && fs::equivalent(file, books, ignored))
        throw Refusal("备份文件和帐套是同一个文件!");
    const std::string aside = books + ".before-restore-" + moment_in_name(by.moment);
    // The copy is made and checked before the old books are touched.
    PendingFile pending(replaces ? aside + ".copy" : books);
    copy_verified(*backup, file, pending, progress);
    log_restoring(pending.path(), file, by);
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
