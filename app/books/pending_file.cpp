// A name beside the target, and an atomic rename that replaces nothing.
#include "app/books/pending_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "app/refusal.h"

namespace app {

namespace fs = std::filesystem;

namespace {

void refuse_existing(const std::string& target) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(target, ignored)))
        throw Refusal("文件 " + target + " 已经存在,不会被覆盖,请换一个名称!");
}

// Where only the file of a set of books was deleted, its journal still stands beside it and would
// be taken for the new file's: the new books would be damaged at once.
void refuse_orphaned_journal(const std::string& target) {
    std::error_code ignored;
    for (const char* suffix : {"-wal", "-journal"})
        if (fs::exists(fs::symlink_status(target + suffix, ignored)))
            throw Refusal("文件 " + target + suffix +
                          " 是以前的同名帐套留下的,请先移走它,或换一个名称!");
}

void sync(const std::string& path, int flags) {
    const int file = ::open(path.c_str(), flags);
    if (file < 0) return;
    ::fsync(file);
    ::close(file);
}

std::string folder_of(const std::string& path) {
    const fs::path folder = fs::path(path).parent_path();
    return folder.empty() ? "." : folder.string();
}

} // namespace

PendingFile::PendingFile(std::string target) : target_(std::move(target)) {
    refuse_existing(target_);
    refuse_orphaned_journal(target_);
    std::error_code ignored;
    if (!fs::is_directory(folder_of(target_), ignored))
        throw Refusal("文件夹 " + folder_of(target_) + " 不存在,请先建立!");
    path_ = target_ + ".new-" + std::to_string(::getpid());
    remove_leavings();
}

PendingFile::~PendingFile() { remove_leavings(); }

void PendingFile::publish() {
    sync(path_, O_RDONLY);
    // A hard link fails where the name is taken; a rename would replace it.
    if (::link(path_.c_str(), target_.c_str()) != 0) {
        if (errno == EEXIST) refuse_existing(target_);
        // Some file systems know no hard links; then the check at the start must do.
        refuse_existing(target_);
        if (::rename(path_.c_str(), target_.c_str()) != 0)
            throw Refusal("不能建立文件 " + target_ + ": " + std::strerror(errno));
    }
    sync(folder_of(target_), O_RDONLY | O_DIRECTORY);
}

void PendingFile::remove_leavings() const {
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(path_ + suffix, ignored);
}

} // namespace app
