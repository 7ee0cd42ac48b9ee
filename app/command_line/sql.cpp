// zhangfang sql BOOKS [--jsonl]
#include <iostream>
#include <memory>

#include "app/books/open.h"
#include "app/command_line/commands.h"
#include "app/data/direct_changes.h"
#include "app/settings/surroundings.h"
#include "automation/sql/sql_command.h"

namespace app {

void add_sql(CLI::App& program, Chosen& chosen) {
    struct Wanted {
        std::string books;
        bool json_lines = false;
    };
    auto wanted = std::make_shared<Wanted>();
    CLI::App* command = program.add_subcommand("sql", "从标准输入读 T-SQL,打印结果");
    command->add_option("BOOKS", wanted->books, "帐套文件,或 :memory:")->required();
    command->add_flag("--jsonl", wanted->json_lines, "每行一个 JSON 对象");
    command->callback([wanted, &chosen] {
        chosen = [wanted] {
            const SystemClock clock;
            auto session = open_database(wanted->books);
            log_direct_changes(*session, clock, system_user());
            const bool all_well =
                wanted->json_lines
                    ? automation::run_sql_json_lines(*session, std::cin, std::cout)
                    : automation::run_sql(*session, std::cin, std::cout, std::cerr);
            return all_well ? 0 : 1;
        };
    });
}

} // namespace app
