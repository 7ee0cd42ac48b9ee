// zhangfang check BOOKS
#include <iostream>
#include <memory>

#include "app/books/open.h"
#include "app/command_line/commands.h"
#include "app/command_line/terminal_progress.h"
#include "automation/check/check.h"
#include "automation/check/log_seal.h"

namespace app {

namespace {

struct Wanted {
    std::string books, seal;
};

automation::Audit audit(engines::Session& session) {
    TerminalProgress terminal;
    return *automation::audit_books(
        session, [&](const std::string& check, std::int64_t done, std::int64_t all) {
            return terminal.report("正在核对: " + check, done, all);
        });
}

// A text that is no seal breaks none, but cannot be compared either.
void compare_seal(engines::Session& session, const std::string& seal, automation::Audit& audit) {
    if (seal.empty()) return;
    const auto broken = automation::broken_seal(session, seal);
    if (!broken)
        audit.findings.push_back({"操作日志", "封条 " + seal + " 的写法不对,应如 12-0123456789abcdef"});
    else if (!broken->empty())
        audit.findings.push_back({"操作日志", *broken});
}

int check(const Wanted& wanted) {
    const auto session = open_books(wanted.books);
    automation::Audit found = audit(*session);
    compare_seal(*session, wanted.seal, found);
    for (const automation::Finding& finding : found.findings)
        std::cout << finding.check << ": " << finding.text << '\n';
    std::cout.flush();
    for (const automation::Finding& hint : found.hints)
        tell("提示: " + hint.check + ": " + hint.text);
    tell(found.findings.empty() ? "帐套没有发现问题。"
                                : "发现 " + std::to_string(found.findings.size()) + " 处问题。");
    if (const std::string seal = automation::log_seal(*session); !seal.empty())
        tell("操作日志封条: " + seal);
    return found.findings.empty() ? 0 : 1;
}

} // namespace

void add_check(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<Wanted>();
    CLI::App* command = program.add_subcommand("check", "检查帐套");
    command->add_option("BOOKS", wanted->books, "帐套文件")->required();
    command->add_option("--seal", wanted->seal, "以前记下的操作日志封条");
    command->callback([wanted, &chosen] {
        chosen = [wanted] { return check(*wanted); };
    });
}

} // namespace app
