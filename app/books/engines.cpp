// Tells paths from addresses of servers.
#include "app/books/engines.h"

#include "app/refusal.h"

namespace app {

namespace {

bool names_server(std::string_view books) {
    return books.starts_with("postgres://") || books.starts_with("postgresql://") ||
           books.starts_with("odbc:");
}

} // namespace

const engines::Engine& engine_for(const std::string& books) {
    if (books.empty()) throw Refusal("请给出帐套:一个文件的路径!");
    if (names_server(books))
        throw Refusal("本程序只带有嵌入式数据库,不能连接 " + books.substr(0, books.find(':')) +
                      " 服务器,请给出帐套文件的路径!");
    return engines::sqlite_engine();
}

bool is_file(const std::string& books) { return books != ":memory:" && !names_server(books); }

} // namespace app
