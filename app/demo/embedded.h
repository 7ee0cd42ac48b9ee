// The story file as it stands in the program.
#pragma once

#include <span>
#include <string_view>

namespace app {

struct EmbeddedFile {
    std::string_view path;
    std::string_view text;
};

std::span<const EmbeddedFile> embedded_files();

} // namespace app
