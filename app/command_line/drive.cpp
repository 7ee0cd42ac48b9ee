// zhangfang drive BOOKS [--user U] [--today YYYY-MM-DD]
#include <iostream>
#include <memory>

#include "app/command_line/commands.h"
#include "app/login/password_source.h"
#include "app/workplace/module.h"
#include "app/workplace/query_window.h"
#include "app/workplace/pdf_writer.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/workplace.h"
#include "automation/drive/stream_lines.h"

namespace app {

namespace {

struct Wanted {
    std::string books;
    std::string user = "admin";
    std::optional<host::Date> today;
};

int drive(const Wanted& wanted) {
    Module::loaded();
    Workplace work(wanted.books, wanted.today);
    work.files().offer_pdf(pdf_writer());
    work.log_in(wanted.user, [&] { return given_password("用户 " + wanted.user + " 的密码: "); });
    QueryWindow window(wanted.books, work.user().administrator, work.today());
    automation::StreamRequests requests(std::cin);
    automation::StreamAnswers answers(std::cout);
    run_driver(requests, answers, &window);
    return 0;
}

} // namespace

void add_drive(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<Wanted>();
    CLI::App* command = program.add_subcommand("drive", "自动化接口:每行一个 JSON 请求");
    command->add_option("BOOKS", wanted->books, "帐套文件")->required();
    command->add_option("--user", wanted->user, "用户")->capture_default_str();
    add_day_option(*command, "--today", wanted->today, "当作今天的日期");
    command->callback([wanted, &chosen] { chosen = [wanted] { return drive(*wanted); }; });
}

} // namespace app
