// What the program remembers between runs, in one file of the user.
#pragma once

#include <map>
#include <string>

#include "host/ports/surroundings.h"

namespace app {

// Sections of names and values, kept as JSON. Several programs may share the file: a write reads it
// anew under a lock, changes its one value and replaces the file as a whole. A file that cannot
// be read counts as empty; one that cannot be written is left, for remembered check boxes are not
// worth stopping the work.
class SettingsFile : public host::SettingsStore {
public:
    explicit SettingsFile(std::string path);
    std::string read(const std::string& section, const std::string& name,
                     const std::string& fallback) const override;
    void write(const std::string& section, const std::string& name,
               const std::string& value) override;

private:
    using Sections = std::map<std::string, std::map<std::string, std::string>>;
    Sections load() const;
    void store(const Sections& sections) const;

    std::string path_;
    Sections sections_;
};

// The user's own: $XDG_CONFIG_HOME/zhangfang/settings.json, else below ~/.config.
std::string settings_path();

// The user's folder for books made by the program itself: $XDG_DATA_HOME/zhangfang, else below
// ~/.local/share. Created when missing.
std::string data_folder();

} // namespace app
