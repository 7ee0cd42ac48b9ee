// Asks, restores, tells.
#include "app/workplace/desktop_restore.h"

#include <filesystem>

#include "app/books/backup.h"
#include "app/refusal.h"
#include "app/settings/surroundings.h"
#include "desktop/desktop.h"

namespace app {

namespace {

std::string name_of(const std::string& file) {
    return std::filesystem::path(file).filename().string();
}

std::string restored(const std::string& file, const std::string& books,
                     const std::string& user, const desktop::ReportProgress& report) {
    try {
        const std::string aside =
            restore_books(file, books, {user, SystemClock().now()}, report);
        return "已从备份恢复。原来的帐套改名保留为 " + name_of(aside) + "。";
    } catch (const Refusal& refusal) {
        return std::string("没有恢复: ") + refusal.what();
    }
}

} // namespace

std::string restore_question(const std::string& file, const std::string& books,
                             bool administrator) {
    if (!administrator) throw Refusal("只有系统管理员可以恢复备份!");
    return "要用备份 " + name_of(file) + "(" + contents_of_backup(file) + ")替换当前帐套 " +
           name_of(books) +
           " 吗?备份之后录入的内容将不在帐套里;原来的帐套改名保留在同一文件夹。"
           "请先让其他用户退出。";
}

void restore_on_desktop(const std::string& file, const std::string& books,
                        const std::string& user) {
    char program_name[] = "zhangfang";
    char* argv[] = {program_name, nullptr};
    std::string outcome;
    desktop::work_with_progress(1, argv, [&](const desktop::ReportProgress& report) {
        outcome = restored(file, books, user, report);
    });
    desktop::tell(1, argv, outcome);
}

} // namespace app
