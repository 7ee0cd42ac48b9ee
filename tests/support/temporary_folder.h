// A folder that goes with the test.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace tests {

// Empty at first, removed with everything in it. Two at once are two folders.
//
//     TemporaryFolder folder;
//     create_books({folder.file("a.zf"), …});
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        static std::atomic<int> made{0};
        path_ = parent /
                ("zf-test-" + std::to_string(::getpid()) + "-" + std::to_string(made++));
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::size_t files() const {
        namespace fs = std::filesystem;
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
    }

private:
    std::filesystem::path path_;
};

} // namespace tests
