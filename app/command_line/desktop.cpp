// zhangfang [BOOKS] [--today YYYY-MM-DD]
#include <cstdio>
#include <memory>

#include "app/command_line/commands.h"
#include "app/workplace/desktop_session.h"

namespace app {

namespace {

// "1366x768": the size of the window in the picture.
void add_size_option(CLI::App& program, DesktopWanted& wanted) {
    program
        .add_option_function<std::string>(
            "--size",
            [&wanted](const std::string& text) {
                char rest = 0;
                if (std::sscanf(text.c_str(), "%dx%d%c", &wanted.width, &wanted.height, &rest) != 2)
                    throw CLI::ValidationError("--size", "请写成 宽x高: " + text);
            },
            "图片的大小")
        ->type_name("宽x高");
}

} // namespace

void add_desktop(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<DesktopWanted>();
    program.add_option("BOOKS", wanted->books, "帐套文件;不给时打开上次的帐套");
    program.add_option("--screenshot", wanted->screenshot, "只画一幅图片到这个文件");
    program.add_option("--function", wanted->function, "图片中打开的功能号");
    program.add_option("--key", wanted->keys, "图片中先按的键")->allow_extra_args(false);
    add_size_option(program, *wanted);
    add_day_option(program, "--today", wanted->today, "当作今天的日期");
    program.final_callback([wanted, &chosen] {
        if (!chosen) chosen = [wanted] { return run_desktop(*wanted); };
    });
}

} // namespace app
