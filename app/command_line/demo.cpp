// zhangfang demo BOOKS
#include <csignal>
#include <cstdio>
#include <memory>
#include <unistd.h>

#include "app/command_line/commands.h"
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

// One line on a terminal, written anew at each step; nothing where nobody looks.
bool show_progress(const std::string& what, std::int64_t done, std::int64_t total) {
    static std::string shown;
    const std::string line = what + " " + std::to_string(done * 100 / total) + "%";
    if (isatty(STDERR_FILENO) != 0 && line != shown)
        std::fprintf(stderr, "\r\033[K%s%s", line.c_str(), done + 1 == total ? "\r\033[K" : "");
    shown = line;
    return asked_to_stop == 0;
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
            create_demo_books(*books, password, show_progress);
            tell("已建立演示帐套 " + *books + "。");
            return 0;
        };
    });
}

} // namespace app
