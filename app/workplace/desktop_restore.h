// Put a backup in the place of the books that the desktop has open.
#pragma once

#include <string>

namespace app {

// What the person is asked before: names the backup, what it holds, and what becomes of the books.
// Throws Refusal: somebody who is no administrator, a file that is no backup.
std::string restore_question(const std::string& file, const std::string& books,
                             bool administrator);

// Carries it out, once the desktop has closed the books: shows how far it has come and tells the
// outcome in a window. Books that could not be replaced stay as they were. user: who stands in the
// log of the restored books.
void restore_on_desktop(const std::string& file, const std::string& books,
                        const std::string& user);

} // namespace app
