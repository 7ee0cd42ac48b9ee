// zhangfang demo BOOKS
#include <csignal>
#include <memory>

#include "app/command_line/commands.h"
#include "app/command_line/terminal_progress.h"
#include "app/demo/demo_books.h"
#include "app/login/password.h"
#include "app/login/password_source.h"

namespace app {

namespace {

volatile std::sig_atomic_t asked_to_stop = 0;

// Ctrl+C stops the work; a second one ends the program as ever.
void stop_on_interrupt() {
    std::signal(SIGINT, [](int) {
        asked_to_stop = 1;
        std::signal(SIGINT, SIG_DFL);
    });
}

// The progress is wiped off the terminal before anything else is said.
void make(const std::string& books, const std::string& password) {
    TerminalProgress terminal;
    create_demo_books(books, password,
                      [&](const std::string& what, std::int64_t done, std::int64_t total) {
                          terminal.report(what, done, total);
                          return asked_to_stop == 0;
                      });
}

} // namespace

void add_demo(CLI::App& program, Chosen& chosen) {
    auto books = std::make_shared<std::string>();
    CLI::App* command = program.add_subcommand("demo", "建立演示帐套");
    command->add_option("BOOKS", *books, "帐套文件")->required();
    command->callback([books, &chosen] {
        chosen = [books] {
            const std::string password = new_password("管理员 admin 的密码: ").value_or("");
            stop_on_interrupt();
            make(*books, password);
            tell("已建立演示帐套 " + *books + "。");
            return 0;
        };
    });
}

} // namespace app
