// The one place where the host writes a file itself.
#include "host/forms/parts/text_file.h"

#include <filesystem>
#include <fstream>

#include "host/ports/document_files.h"
#include "host/values/text.h"

namespace host {

std::string file_name(const std::string& title, const std::string& ending) {
    std::string name;
    for (const char c : replaced(title, " ", ""))
        if (std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos) name += c;
    return name + "." + ending;
}

std::string write_text_file(const std::string& path, const std::string& text) {
    std::ofstream file(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    return file ? "" : cannot_write(path);
}

} // namespace host
