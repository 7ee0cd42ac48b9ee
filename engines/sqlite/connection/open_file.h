// Opens a file of books, or says why it is none.
#pragma once

#include <string>

#include "engines/engine.h"
#include "engines/sqlite/connection/connection.h"

namespace engines {

// Marks a file as a set of books; stands in the file's header.
inline constexpr std::int32_t books_application_id = 0x5A464231;
// Layout of the engine's own tables; a file with a higher number was written by a newer program.
inline constexpr std::int32_t books_format = 1;

// Opens or creates the file, or ":memory:", ready to work: write-ahead log, synchronous commits,
// foreign keys, readable and writable by its owner only. Throws Failure, see Engine::open.
ConnectionHandle open_books(const std::string& path, const OpenOptions& options);

// Makes an empty file that only its owner may read. Throws Failure when it exists already.
void create_private_file(const std::string& path);

} // namespace engines
