// Creates the demonstration books and types the story into them.
#include "app/demo/demo_books.h"

#include <filesystem>
#include <unistd.h>

#include "app/books/create.h"
#include "app/books/open.h"
#include "app/books/pending_file.h"
#include "app/demo/story.h"
#include "app/demo/typed_story.h"
#include "app/login/password.h"
#include "app/refusal.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/set_up.h"
#include "app/workplace/workplace.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"
#include "schema/schema.h"

namespace app {

namespace {

void create_empty(const std::string& books, const Story& story) {
    NewBooks wanted;
    wanted.books = books;
    wanted.company = story.company;
    wanted.template_name = schema::default_template;
    create_books(wanted, SystemClock(host::Date::parse(story.today)));
}

void type_in(const std::string& books, const Story& story) {
    Workplace work(books, host::Date::parse(story.today));
    work.log_in("admin", [] { return std::optional<std::string>(); });
    ScriptedPerson person(typed(story));
    run_driver(person, person);
    if (!person.trouble().empty())
        throw Refusal("演示数据没有全部录入: " + person.trouble());
}

std::size_t count(engines::Session& session, const std::string& condition) {
    return std::stoul(*automation::rows_of(
        session, "SELECT COUNT(*) FROM D6601 WHERE " + condition)[0][0]);
}

// A refusal that only shows a message leaves a voucher out; better no books than wrong ones.
void verify(engines::Session& session, const Story& story) {
    if (count(session, "PZQJ = " + host::quoted(story.period)) != story.vouchers.size() ||
        count(session, "D = 1") != story.posted || count(session, "T = 1") != story.audited)
        throw Refusal("演示数据没有全部录入,请把这个问题报告给开发者!");
    const auto findings = automation::check_books(session);
    if (!findings.empty())
        throw Refusal("演示帐套没有通过检查: " + findings.front().check + ": " +
                      findings.front().text);
}

void finish(const std::string& books, const Story& story, const std::string& password) {
    auto session = open_books(books);
    verify(*session, story);
    automation::rows_of(*session,
                        "UPDATE SYS_USER SET PASSWORD_HASH = " + host::quoted(hash_of(password)) +
                            " WHERE USER_ID = 'admin';"
                            "INSERT INTO SYS_SETTING (NAME, VALUE) VALUES ('today', " +
                            host::quoted(story.today) + ")");
}

} // namespace

void create_demo_books(const std::string& books, const std::string& password) {
    const Story story = told_story();
    PendingFile pending(books);
    create_empty(pending.path(), story);
    try {
        set_up_books(pending.path(), *host::Period::parse(story.period),
                     [] { return std::optional<std::string>(); });
        type_in(pending.path(), story);
        finish(pending.path(), story, password);
    } catch (const engines::Failure& failure) {
        throw Refusal("演示帐套没有建成: " + opening_sentence(books, failure.error()));
    }
    pending.publish();
}

} // namespace app
