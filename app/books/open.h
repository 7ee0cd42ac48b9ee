// Opens a set of books for work.
#pragma once

#include <memory>
#include <string>

#include "engines/session.h"

namespace app {

// Unpublished: read and written without waiting for the disk, as long as the books have no name of
// their own (pending_file.h makes them durable with it).
enum class Access { ReadAndWrite, ReadOnly, Unpublished };

// Throws Refusal that names the books: missing, no permission, foreign, damaged, used by a newer
// program, or a database without the tables of a set of books. Books of an earlier program open as
// they are and work with the objects that they hold (a login brings them up to date).
std::unique_ptr<engines::Session> open_books(const std::string& books,
                                             Access access = Access::ReadAndWrite);

// As above, but takes any database of an engine, also an empty one: `zhangfang sql :memory:`.
std::unique_ptr<engines::Session> open_database(const std::string& books,
                                                Access access = Access::ReadAndWrite);

// The sentence for a failed opening, with the name of the books in it.
std::string opening_sentence(const std::string& books, const engines::Error& error);

} // namespace app
