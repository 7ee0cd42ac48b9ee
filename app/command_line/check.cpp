// zhangfang check BOOKS
#include <iostream>
#include <memory>

#include "app/books/open.h"
#include "app/command_line/commands.h"
#include "automation/check/check.h"

namespace app {

void add_check(CLI::App& program, Chosen& chosen) {
    auto books = std::make_shared<std::string>();
    CLI::App* command = program.add_subcommand("check", "检查帐套");
    command->add_option("BOOKS", *books, "帐套文件")->required();
    command->callback([books, &chosen] {
        chosen = [books] {
            const auto findings = automation::check_books(*open_books(*books));
            for (const automation::Finding& finding : findings)
                std::cout << finding.check << ": " << finding.text << '\n';
            std::cout.flush();
            tell(findings.empty() ? "帐套没有发现问题。"
                                  : "发现 " + std::to_string(findings.size()) + " 处问题。");
            return findings.empty() ? 0 : 1;
        };
    });
}

} // namespace app
