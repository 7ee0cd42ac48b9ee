// zhangfang trial-balance BOOKS [--level N]
#include <iostream>
#include <memory>

#include "app/command_line/commands.h"
#include "app/workplace/printed_trial_balance.h"

namespace app {

void add_trial_balance(CLI::App& program, Chosen& chosen) {
    struct Wanted {
        std::string books;
        int level = 1;
    };
    auto wanted = std::make_shared<Wanted>();
    CLI::App* command = program.add_subcommand("trial-balance", "打印当前期间的试算平衡表");
    command->add_option("BOOKS", wanted->books, "帐套文件")->required();
    command->add_option("--level", wanted->level, "科目级别")->check(CLI::Range(1, 5));
    command->callback([wanted, &chosen] {
        chosen = [wanted] {
            print_trial_balance(wanted->books, wanted->level, std::cout);
            return 0;
        };
    });
}

} // namespace app
