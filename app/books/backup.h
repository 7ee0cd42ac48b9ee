// Copies books to a backup file and back.
#pragma once

#include <string>

namespace app {

// A consistent copy of the books while others work in them. The copy is opened and checked before
// it gets its name; an existing file is never replaced. Throws Refusal.
void backup_books(const std::string& books, const std::string& file);

// Makes the books what the backup holds. Books that exist are kept beside under a name with the
// moment of restoring; the name is answered ("" when there were none). Refused while somebody
// else has the books open, and when the backup is damaged. Throws Refusal.
std::string restore_books(const std::string& file, const std::string& books,
                          const std::string& moment);

} // namespace app
