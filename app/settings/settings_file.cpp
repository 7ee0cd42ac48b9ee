// Reads and replaces the settings file.
#include "app/settings/settings_file.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sys/file.h>
#include <unistd.h>

namespace app {

namespace fs = std::filesystem;

namespace {

// Held while the file is read and replaced.
class FileLock {
public:
    explicit FileLock(const std::string& path)
        : file_(::open((path + ".lock").c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600)) {
        if (file_ >= 0) ::flock(file_, LOCK_EX);
    }
    ~FileLock() {
        if (file_ >= 0) ::close(file_);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int file_;
};

void sync(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    ::fsync(file);
    ::close(file);
}

// A folder of the XDG rules: the variable's, else one below the home folder.
std::string own_folder(const char* variable, const char* below_home) {
    const char* given = std::getenv(variable);
    if (given != nullptr && given[0] == '/') return std::string(given) + "/zhangfang";
    const char* home = std::getenv("HOME");
    return std::string(home != nullptr ? home : ".") + "/" + below_home + "/zhangfang";
}

} // namespace

SettingsFile::SettingsFile(std::string path) : path_(std::move(path)), sections_(load()) {}

SettingsFile::Sections SettingsFile::load() const {
    std::ifstream in(path_);
    const auto json = nlohmann::json::parse(in, nullptr, false);
    Sections sections;
    if (!json.is_object()) return sections;
    for (const auto& [section, values] : json.items()) {
        if (!values.is_object()) continue;
        for (const auto& [name, value] : values.items())
            if (value.is_string()) sections[section][name] = value.get<std::string>();
    }
    return sections;
}

void SettingsFile::store(const Sections& sections) const {
    using nlohmann::json;
    const std::string pending = path_ + ".new-" + std::to_string(::getpid());
    {
        std::ofstream out(pending);
        out << json(sections).dump(1, ' ', false, json::error_handler_t::replace) << '\n';
        if (!out.flush()) {
            std::error_code ignored;
            fs::remove(pending, ignored);
            return;
        }
    }
    sync(pending);
    std::error_code ignored;
    fs::rename(pending, path_, ignored);
}

std::string SettingsFile::read(const std::string& section, const std::string& name,
                               const std::string& fallback) const {
    const auto values = sections_.find(section);
    if (values == sections_.end()) return fallback;
    const auto value = values->second.find(name);
    return value == values->second.end() ? fallback : value->second;
}

void SettingsFile::write(const std::string& section, const std::string& name,
                         const std::string& value) {
    const auto known = sections_[section].find(name);
    if (known != sections_[section].end() && known->second == value) return;
    std::error_code ignored;
    fs::create_directories(fs::path(path_).parent_path(), ignored);
    FileLock lock(path_);
    sections_ = load();
    sections_[section][name] = value;
    store(sections_);
}

std::string settings_path() {
    return own_folder("XDG_CONFIG_HOME", ".config") + "/settings.json";
}

std::string data_folder() {
    const std::string folder = own_folder("XDG_DATA_HOME", ".local/share");
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    return folder;
}

} // namespace app
