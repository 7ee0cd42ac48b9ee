// zhangfang drive BOOKS [--user U] [--today YYYY-MM-DD] [--together]
#include <iostream>
#include <memory>

#include "app/command_line/commands.h"
#include "app/login/password_source.h"
#include "app/refusal.h"
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
    bool together = false;
};

// Notices when requests break off, as they do when whoever sends them is gone.
class WatchedRequests : public automation::RequestLines {
public:
    explicit WatchedRequests(automation::RequestLines& requests) : requests_(requests) {}
    std::optional<std::string> next() override {
        auto line = requests_.next();
        if (!line) broke_off_ = true;
        return line;
    }
    bool broke_off() const { return broke_off_; }

private:
    automation::RequestLines& requests_;
    bool broke_off_ = false;
};

int drive(const Wanted& wanted) {
    Module::loaded();
    Workplace work(wanted.books, wanted.today);
    work.files().offer_pdf(pdf_writer());
    work.log_in(wanted.user, [&] { return given_password("用户 " + wanted.user + " 的密码: "); });
    QueryWindow window(wanted.books, work.user().administrator, work.user().id, work.today());
    automation::StreamRequests lines(std::cin);
    WatchedRequests requests(lines);
    automation::StreamAnswers answers(std::cout);
    if (wanted.together) work.data().begin_unit();
    run_driver(requests, answers, &window);
    if (!wanted.together) return 0;
    if (requests.broke_off()) {
        work.data().undo_unit();
        throw Refusal("请求没有以 quit 结束,这一次录入的内容都没有保存!");
    }
    work.data().keep_unit();
    return 0;
}

} // namespace

void add_drive(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<Wanted>();
    CLI::App* command = program.add_subcommand("drive", "自动化接口:每行一个 JSON 请求");
    command->add_option("BOOKS", wanted->books, "帐套文件")->required();
    command->add_option("--user", wanted->user, "用户")->capture_default_str();
    add_day_option(*command, "--today", wanted->today, "当作今天的日期");
    command->add_flag("--together", wanted->together, "以 quit 结束时一起保存,否则一条不留");
    command->callback([wanted, &chosen] { chosen = [wanted] { return drive(*wanted); }; });
}

} // namespace app
