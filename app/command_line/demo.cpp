// zhangfang demo BOOKS
#include <memory>

#include "app/command_line/commands.h"
#include "app/demo/demo_books.h"
#include "app/login/password.h"
#include "app/login/password_source.h"

namespace app {

void add_demo(CLI::App& program, Chosen& chosen) {
    auto books = std::make_shared<std::string>();
    CLI::App* command = program.add_subcommand("demo", "建立演示帐套");
    command->add_option("BOOKS", *books, "帐套文件")->required();
    command->callback([books, &chosen] {
        chosen = [books] {
            create_demo_books(*books, new_password("管理员 admin 的密码: ").value_or(""));
            tell("已建立演示帐套 " + *books + "。");
            return 0;
        };
    });
}

} // namespace app
