// Finds the books, opens them, and hands the desktop what it needs.
#include "app/workplace/desktop_session.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "app/administration/administration.h"
#include "app/data/error_sentence.h"
#include "app/demo/demo_books.h"
#include "app/login/attempts.h"
#include "app/login/password_source.h"
#include "app/refusal.h"
#include "app/workplace/desktop_restore.h"
#include "app/workplace/module.h"
#include "app/workplace/pdf_writer.h"
#include "app/workplace/workplace.h"
#include "desktop/desktop.h"
#include "desktop/printing/pdf_file.h"
#include "host/contract/function_table.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace app {

namespace fs = std::filesystem;

namespace {

constexpr const char* settings_section = "program";
constexpr const char* last_books = "last_books";
constexpr const char* last_user = "last_user";

char program_name[] = "zhangfang";

bool is_set(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && value[0] != '\0';
}

bool has_display() {
    return is_set("DISPLAY") || is_set("WAYLAND_DISPLAY") || is_set("QT_QPA_PLATFORM");
}

// The demonstration books are made the first time they are wanted.
std::string demonstration_books() {
    const std::string books = data_folder() + "/demo.zf";
    std::error_code ignored;
    if (fs::exists(books, ignored)) return books;
    char* argv[] = {program_name, nullptr};
    desktop::work_with_progress(1, argv, [&books](const desktop::ReportProgress& report) {
        create_demo_books(books, "", report);
    });
    return books;
}

std::string books_to_open(const std::string& given) {
    if (!given.empty()) return fs::absolute(given).string();
    const std::string last = SettingsFile(settings_path()).read(settings_section, last_books, "");
    std::error_code ignored;
    return !last.empty() && fs::exists(last, ignored) ? last : demonstration_books();
}

// Another set of books begins with a fresh program: nothing of the old one can stay behind.
void start_over(const std::string& books) {
    std::string name = books;
    char* arguments[] = {program_name, name.data(), nullptr};
    ::execv("/proc/self/exe", arguments);
}

// "" when the person is in, else why not.
std::string try_login(Workplace& work, const std::string& user, const std::string& password) {
    try {
        work.log_in(user, [&password] { return password; });
        work.settings().write(settings_section, last_user, user);
        return "";
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

host::Trecord menu_pick(int code) {
    host::Trecord record;
    record.set_code(code);
    return record;
}

desktop::DesktopServices services_for(const DesktopWanted& wanted, const std::string& books,
                                      Workplace& work, host::TForm& frame) {
    desktop::DesktopServices services;
    services.books = [&work, books] {
        return desktop::BooksLabel{work.company(), work.user().name,
                                   fs::path(books).filename().string(), "本机",
                                   work.setting("mode") == "strict" ? "严格" : "小企业"};
    };
    services.open_function = [&frame](int code) {
        Module::loaded().open(menu_pick(code), &frame);
    };
    host::the_host().open_function = services.open_function;
    services.open_administration = [&frame](const std::string& name) {
        open_administration(name, &frame);
    };
    services.has_function = [](const std::string& key) {
        const host::Function* function = host::function_of(key);
        return (function != nullptr && function->actions == 0) ||
               host::the_host().may({key, "open"});
    };
    services.log_in = [&work, attempts = std::make_shared<LoginAttempts>()](
                          const std::string& user, const std::string& password) {
        return attempts->attempt([&] { return try_login(work, user, password); });
    };
    services.last_user = work.settings().read(settings_section, last_user, "admin");
    services.recent_books = {books};
    services.open_books = start_over;
    services.restore_question = [&work, books](const std::string& file) {
        return restore_question(file, books, work.user().administrator);
    };
    if (!wanted.screenshot.empty())
        services.screenshot = desktop::Screenshot{wanted.function, wanted.screenshot, wanted.keys,
                                                  wanted.width, wanted.height};
    return services;
}

// Books with one user who has no password are opened without a question: there is nobody to tell
// apart. A picture is taken for the user whose password the environment gives.
bool let_in_without_asking(Workplace& work, const DesktopWanted& wanted, const std::string& user) {
    const std::optional<std::string> alone = only_user(work.session());
    if (!alone && wanted.screenshot.empty()) return false;
    try {
        work.log_in(alone.value_or(user), [&wanted]() -> std::optional<std::string> {
            if (wanted.screenshot.empty()) return std::nullopt;
            return given_password("密码: ");
        });
        return true;
    } catch (const Refusal&) {
        return false;
    }
}

// What is left to do when the window and the books are closed.
struct Ended {
    int status = 0;
    std::string backup; // to be put in the place of the books; "" for none
    std::string user;   // who chose it
};

Ended run_on(const DesktopWanted& wanted, const std::string& books, int argc, char** argv) {
    Ended ended;
    Module::loaded();
    Workplace work(books, wanted.today);
    work.files().offer_pdf(pdf_writer());
    host::TForm frame(nullptr); // owns the forms: they go before the books are closed
    work.settings().write(settings_section, last_books, books);
    desktop::DesktopServices services = services_for(wanted, books, work, frame);
    if (let_in_without_asking(work, wanted, services.last_user)) services.log_in = nullptr;
    services.restore = [&](const std::string& file) {
        ended.backup = file;
        ended.user = work.user().id;
    };
    ended.status = desktop::run(argc, argv, services);
    return ended;
}

} // namespace

PdfWriter pdf_writer() { return desktop::write_pdf; }

int run_desktop(const DesktopWanted& wanted) {
    if (!has_display())
        throw Refusal("这里没有图形显示,不能打开桌面;请用 zhangfang drive、sql 或 check!");
    char* argv[] = {program_name, nullptr};
    try {
        const std::string books = books_to_open(wanted.books);
        const Ended ended = run_on(wanted, books, 1, argv);
        if (ended.backup.empty()) return ended.status;
        restore_on_desktop(ended.backup, books, ended.user);
        start_over(books);
        return ended.status;
    } catch (const Refusal& refusal) {
        if (!wanted.screenshot.empty()) throw; // nobody is there to read it in a window
        return desktop::show_failure(1, argv, refusal.what());
    } catch (const engines::Failure& failure) {
        if (!wanted.screenshot.empty()) throw;
        return desktop::show_failure(1, argv, sentence_for(failure.error()));
    }
}

} // namespace app
