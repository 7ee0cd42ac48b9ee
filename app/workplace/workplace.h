// A person at work: the books open, the login done, the host set up around them.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/books/open.h"
#include "app/data/engine_data.h"
#include "app/documents/files.h"
#include "app/login/login.h"
#include "app/login/rights.h"
#include "app/settings/settings_file.h"
#include "app/settings/surroundings.h"
#include "engines/session.h"

namespace app {

// Fixes GETDATE() of a session to a day, or leaves it running.
void fix_clock(engines::Session& session, const std::optional<host::Date>& today);

// Opens the books and gives the host its clock, settings and random source; logging in adds the
// data and the globals. The user interface is set by whoever shows forms. One at a time in a
// process.
//
//     Workplace work("books.zf", {});
//     work.log_in("admin", password);
//     host::the_host().ui = &driver;
class Workplace {
public:
    // today fixes what forms and GETDATE() take as today; without it the books' own day counts
    // (setting 'today', of demonstration books), else the real one. Throws Refusal.
    Workplace(const std::string& books, const std::optional<host::Date>& today,
              Access access = Access::ReadAndWrite);
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    // Throws Refusal. Books of an earlier program are brought up to date (books/upgrade.h); then
    // forms may open, as far as the person's rights go.
    void log_in(const std::string& user, const PasswordSource& password);

    const User& user() const { return user_; } // after the login
    const std::string& company() const { return company_; }
    // A setting of the books as it stands now; "" where there is none.
    std::string setting(const std::string& name);
    const std::optional<host::Date>& today() const { return today_; }
    SettingsFile& settings() { return settings_; }
    Files& files() { return files_; } // spreadsheets; PDF once a writer was offered
    engines::Session& session() { return *session_; }
    EngineData& data() { return *data_; } // after the login

private:
    SettingsFile settings_;
    std::unique_ptr<engines::Session> session_;
    std::optional<host::Date> today_;
    SystemClock clock_;
    SystemRandom random_;
    Files files_;
    std::string company_;
    User user_;
    Rights rights_;
    std::unique_ptr<EngineData> data_;
};

} // namespace app
