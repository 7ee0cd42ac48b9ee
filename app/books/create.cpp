// Builds the database and puts in what new books begin with.
#include "app/books/create.h"

#include <algorithm>

#include "app/books/books_version.h"
#include "app/books/engines.h"
#include "app/books/open.h"
#include "app/books/pending_file.h"
#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "app/login/standard_roles.h"
#include "app/refusal.h"
#include "host/values/sql_text.h"
#include "schema/schema.h"

namespace app {

namespace {

// Rows of one INSERT: few enough for the server's limit of 1000, many enough to be quick.
constexpr std::size_t rows_an_insert = 200;

void require(const engines::Outcome& outcome, std::string_view what) {
    if (outcome.ok()) return;
    throw Refusal("建立帐套失败(" + std::string(what) + "): " + sentence_for(*outcome.error) + " " +
                  outcome.error->text);
}

void run(engines::Session& session, std::string_view batch, std::string_view what) {
    engines::ResultReceiver nobody;
    require(session.execute(batch, nobody), what);
}

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : ",") + text;
    return all;
}

std::string values(const std::vector<std::string>& cells) {
    std::vector<std::string> quoted_cells;
    for (const std::string& cell : cells) quoted_cells.push_back(host::quoted(cell));
    return "(" + joined(quoted_cells) + ")";
}

void insert_rows(engines::Session& session, const schema::TemplateTable& table) {
    for (std::size_t from = 0; from < table.rows.size(); from += rows_an_insert) {
        const std::size_t to = std::min(from + rows_an_insert, table.rows.size());
        std::string batch =
            "INSERT INTO " + table.name + " (" + joined(table.columns) + ") VALUES ";
        for (std::size_t i = from; i < to; ++i)
            batch += (i == from ? "" : ",") + values(table.rows[i]);
        run(session, batch, table.name);
    }
}

// The template knows the words of every scheme; books keep those of their own, and 记 besides,
// under which the carry-forward writes its voucher.
std::string keep_words_of(int scheme) {
    const char* words = scheme == 2   ? "'收','付','转'"
                        : scheme == 3 ? "'现收','现付','银收','银付','转'"
                                      : "'记'";
    return "DELETE FROM D6802 WHERE PZZ NOT IN ('记'," + std::string(words) + ");";
}

std::string own_rows(const NewBooks& wanted) {
    const auto setting = [](const char* name, const std::string& value) {
        return "INSERT INTO SYS_SETTING (NAME, VALUE) VALUES (" + host::quoted(name) + "," +
               host::quoted(value) + ");";
    };
    return "INSERT INTO D6600 (ID, PARAM) VALUES (1,''),(2,''),(3,'" +
           std::to_string(wanted.scheme) + "');" + keep_words_of(wanted.scheme) +
           "INSERT INTO SYS_USER (USER_ID, USER_NAME, PASSWORD_HASH, ADMINISTRATOR) VALUES "
           "('admin','管理员'," +
           host::quoted(wanted.password_hash) + ",1);" + setting("company", wanted.company) +
           setting("template", wanted.template_name) + setting("mode", wanted.mode) +
           write_version() + standard_roles_batch();
}

void build(engines::Session& session, const NewBooks& wanted, const host::Clock& clock) {
    require(session.begin(), "开始");
    for (const schema::Object& object : schema::objects()) run(session, object.text, object.name);
    for (const schema::TemplateTable& table : schema::template_tables(wanted.template_name))
        insert_rows(session, table);
    run(session, own_rows(wanted), "帐套参数");
    require(begin_log_head(session), "操作日志");
    require(append_log_row(session, clock.now(), "admin", {"new", "", "Add"}, ""), "操作日志");
    require(session.commit(), "保存");
}

void refuse_impossible(const NewBooks& wanted) {
    if (wanted.company.find_first_not_of(' ') == std::string::npos)
        throw Refusal("请用 --company 给出公司名称!");
    const auto names = schema::template_names();
    if (std::find(names.begin(), names.end(), wanted.template_name) == names.end())
        throw Refusal("没有模板 " + wanted.template_name + ",可用的模板: " + joined(names));
    if (!is_file(wanted.books)) throw Refusal("新帐套必须是一个文件,请给出路径!");
}

} // namespace

void create_books(const NewBooks& wanted, const host::Clock& clock) {
    const engines::Engine& engine = engine_for(wanted.books);
    refuse_impossible(wanted);
    PendingFile pending(wanted.books);
    engines::OpenOptions options;
    options.create = true;
    try {
        build(*engine.open(pending.path(), options), wanted, clock);
    } catch (const engines::Failure& failure) {
        throw Refusal("建立帐套失败: " + opening_sentence(wanted.books, failure.error()));
    }
    pending.publish();
}

} // namespace app
