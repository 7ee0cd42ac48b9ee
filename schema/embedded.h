// The files of this folder as they stand in the program.
#pragma once

#include <span>
#include <string_view>

namespace schema {

struct EmbeddedFile {
    std::string_view path; // below schema/: "tables/D6601.sql"
    std::string_view text;
};

// In the order of CMakeLists.txt, which is the order in which objects are created.
std::span<const EmbeddedFile> embedded_files();

} // namespace schema
