// zhangfang [BOOKS]
#include <memory>

#include "app/command_line/commands.h"
#include "app/workplace/desktop_session.h"

namespace app {

void add_desktop(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<DesktopWanted>();
    program.add_option("BOOKS", wanted->books, "帐套文件;不给时打开上次的帐套");
    program.add_option("--screenshot", wanted->screenshot, "只画一幅图片到这个文件");
    program.add_option("--function", wanted->function, "图片中打开的功能号");
    program.add_option("--key", wanted->keys, "图片中先按的键")->allow_extra_args(false);
    program.final_callback([wanted, &chosen] {
        if (!chosen) chosen = [wanted] { return run_desktop(*wanted); };
    });
}

} // namespace app
