// Copies books to a backup file and back.
#pragma once

#include <functional>
#include <string>

#include "engines/session.h"
#include "host/values/date.h"

namespace app {

// How far a copy has come: what is being done, pages copied and in all. False stops it; no file is
// left then, and books stay as they were.
using CopyProgress = std::function<bool(const std::string& what, std::int64_t done,
                                        std::int64_t all)>;

// A consistent copy of the books while others work in them. The copy is opened and checked before
// it gets its name; an existing file is never replaced. Throws Refusal, also when it was stopped.
void backup_books(const std::string& books, const std::string& file,
                  const CopyProgress& progress = {});

// The same of books that are open.
void backup_session(engines::Session& session, const std::string& name, const std::string& file,
                    const CopyProgress& progress);

// Whose books a backup holds and how far they are: "测试公司,会计期间 2024-03". Throws Refusal when
// the file is no set of books.
std::string contents_of_backup(const std::string& file);

// A moment as it stands in the name of books kept beside: "20240305-140506".
std::string moment_in_name(const host::DateTime& moment);

// Who restores, and when, for the log of the restored books.
struct Restoring {
    std::string user; // of the books, or as the system knows him: "(anna)"
    host::DateTime moment;
};

// Makes the books what the backup holds, with one row more in their log: "恢复自 " and the file.
// Books that exist are kept beside under a name with the moment of restoring (moment_in_name); the
// name is answered ("" when there were none). Refused while somebody else has the books open, and
// when the backup is damaged. Throws Refusal, also when it was stopped: which it can be until the
// copy is complete.
std::string restore_books(const std::string& file, const std::string& books,
                          const Restoring& by, const CopyProgress& progress = {});

} // namespace app
