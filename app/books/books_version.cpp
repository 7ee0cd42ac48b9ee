// One row of the settings of the books.
#include "app/books/books_version.h"

#include <charconv>

#include "automation/sql/collected_result.h"
#include "schema/schema.h"

namespace app {

int version_of(engines::Session& session) {
    const auto rows = automation::rows_of(
        session, "SELECT VALUE FROM SYS_SETTING WHERE NAME = 'schema_version'");
    const std::string text = rows.empty() ? "" : rows[0][0].value_or("");
    int version = 0;
    std::from_chars(text.data(), text.data() + text.size(), version);
    return version;
}

std::string write_version() {
    return "DELETE FROM SYS_SETTING WHERE NAME = 'schema_version';"
           "INSERT INTO SYS_SETTING (NAME, VALUE) VALUES ('schema_version','" +
           std::to_string(schema::version) + "');";
}

std::string why_too_new(engines::Session& session) {
    const int version = version_of(session);
    if (version <= schema::version) return "";
    return "帐套已由更新版本的程序使用过(帐套版本 " + std::to_string(version) +
           ",本程序只认识到 " + std::to_string(schema::version) + "),请先升级本程序,帐套没有改变!";
}

} // namespace app
