// zhangfang new BOOKS --company NAME [--template T] [--start YYYY-MM] [--scheme 1|2|3]
// [--mode small|strict]
#include <memory>

#include "app/books/create.h"
#include "app/books/pending_file.h"
#include "app/command_line/commands.h"
#include "app/login/password.h"
#include "app/login/password_source.h"
#include "app/settings/surroundings.h"
#include "app/workplace/set_up.h"
#include "schema/schema.h"

namespace app {

namespace {

host::Period period_of(const std::string& text) {
    const auto period = host::Period::parse(text);
    if (!period || period->month() == 0 || period->to_text() != text)
        throw CLI::ValidationError("--start", "请写成 YYYY-MM: " + text);
    return *period;
}

// What is to be made, and when the books begin: without a start they wait to be set up.
struct Wanted {
    NewBooks books;
    std::optional<host::Period> start;
};

void make(const Wanted& wanted) {
    const std::optional<std::string> password = new_password("管理员 admin 的密码: ");
    NewBooks books = wanted.books;
    books.password_hash = hash_of(password.value_or(""));
    if (!wanted.start) return create_books(books, SystemClock());
    PendingFile pending(wanted.books.books); // books half set up are no books
    books.books = pending.path();
    create_books(books, SystemClock());
    set_up_books(books.books, *wanted.start, [&] { return password; });
    pending.publish();
}

} // namespace

void add_new(CLI::App& program, Chosen& chosen) {
    auto wanted = std::make_shared<Wanted>();
    NewBooks& books = wanted->books;
    books.template_name = schema::default_template;
    CLI::App* command = program.add_subcommand("new", "建立新帐套");
    command->add_option("BOOKS", books.books, "帐套文件")->required();
    command->add_option("--company", books.company, "公司名称")->required();
    command->add_option("--template", books.template_name, "模板")->capture_default_str();
    command->add_option_function<std::string>(
        "--start", [wanted](const std::string& text) { wanted->start = period_of(text); },
        "启用期间 YYYY-MM,期初余额为零");
    command->add_option("--scheme", books.scheme, "凭证字: 1 记, 2 收付转, 3 现收现付银收银付转")
        ->check(CLI::IsMember({1, 2, 3}));
    command->add_option("--mode", books.mode, "管理方式: small 小企业, strict 严格")
        ->check(CLI::IsMember({"small", "strict"}))
        ->capture_default_str();
    command->callback([wanted, &chosen] {
        chosen = [wanted] {
            make(*wanted);
            tell("已建立帐套 " + wanted->books.books + "。");
            return 0;
        };
    });
}

} // namespace app
