// zhangfang backup BOOKS FILE, zhangfang restore FILE BOOKS
#include <memory>

#include "app/books/backup.h"
#include "app/command_line/commands.h"
#include "app/command_line/terminal_progress.h"
#include "app/data/direct_changes.h"
#include "app/settings/surroundings.h"

namespace app {

namespace {

struct Names {
    std::string books, file;
};

CopyProgress shown_on(TerminalProgress& terminal) {
    return [&terminal](const std::string& what, std::int64_t done, std::int64_t all) {
        return terminal.report(what, done, all);
    };
}

// Both wipe their progress off the terminal before anything else is said.
void back_up(const Names& names) {
    TerminalProgress terminal;
    backup_books(names.books, names.file, shown_on(terminal));
}

std::string restore(const Names& names) {
    TerminalProgress terminal;
    return restore_books(names.file, names.books, {system_user(), SystemClock().now()},
                         shown_on(terminal));
}

} // namespace

void add_backup(CLI::App& program, Chosen& chosen) {
    auto names = std::make_shared<Names>();
    CLI::App* command = program.add_subcommand("backup", "备份帐套");
    command->add_option("BOOKS", names->books, "帐套文件")->required();
    command->add_option("FILE", names->file, "备份文件")->required();
    command->callback([names, &chosen] {
        chosen = [names] {
            back_up(*names);
            tell("已备份到 " + names->file + "。");
            return 0;
        };
    });
}

void add_restore(CLI::App& program, Chosen& chosen) {
    auto names = std::make_shared<Names>();
    CLI::App* command = program.add_subcommand("restore", "从备份恢复帐套");
    command->add_option("FILE", names->file, "备份文件")->required();
    command->add_option("BOOKS", names->books, "帐套文件")->required();
    command->callback([names, &chosen] {
        chosen = [names] {
            const std::string aside = restore(*names);
            if (!aside.empty()) tell("原帐套已改名为 " + aside + "。");
            tell("已恢复帐套 " + names->books + "。");
            return 0;
        };
    });
}

} // namespace app
