// Chooses the command, and turns every way of failing into a message and a status.
#include "app/command_line/command_line.h"

#include <iostream>

#include "app/command_line/commands.h"
#include "app/refusal.h"
#include "engines/error.h"
#include "app/data/error_sentence.h"
#include "host/values/errors.h"

namespace app {

namespace {

constexpr int done = 0, refused = 1, wrong_usage = 2;

int run(const Chosen& chosen) {
    try {
        return chosen();
    } catch (const Refusal& refusal) {
        tell(refusal.what());
    } catch (const host::DataError& error) {
        tell(error.what());
        tell(error.cause);
    } catch (const engines::Failure& failure) {
        tell(sentence_for(failure.error()));
        tell(failure.what());
    } catch (const std::exception& error) {
        tell(std::string("程序内部出错: ") + error.what());
    }
    return refused;
}

} // namespace

void tell(const std::string& text) { std::cerr << text << std::endl; }

void add_day_option(CLI::App& command, const std::string& name, std::optional<host::Date>& day,
                    const std::string& description) {
    command
        .add_option_function<std::string>(
            name,
            [&day, name](const std::string& text) {
                day = host::Date::parse(text);
                if (!day || day->to_text() != text)
                    throw CLI::ValidationError(name, "请写成 YYYY-MM-DD: " + text);
            },
            description)
        ->type_name("YYYY-MM-DD");
}

int run_command_line(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    CLI::App program("帐房:贸易公司的财务与会计系统", "zhangfang");
    program.set_help_flag("-h,--help", "显示用法");
    program.require_subcommand(0, 1);
    Chosen chosen;
    add_desktop(program, chosen);
    for (const auto add :
         {add_new, add_demo, add_drive, add_trial_balance, add_sql, add_check, add_backup,
          add_restore})
        add(program, chosen);
    try {
        program.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << program.help();
        return done;
    } catch (const CLI::ParseError& error) {
        tell(std::string("命令的用法不对: ") + error.what());
        tell("用 zhangfang --help 查看用法。");
        return wrong_usage;
    }
    return run(chosen);
}

} // namespace app
