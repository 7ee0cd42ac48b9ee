// Looks the user up and compares the password.
#include "app/login/login.h"

#include "app/data/error_sentence.h"
#include "app/login/password.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

std::vector<automation::TextRow> rows_of_user(engines::Session& session, const std::string& user) {
    try {
        return automation::rows_of(session,
                                   "SELECT USER_ID, USER_NAME, PASSWORD_HASH, ADMINISTRATOR "
                                   "FROM SYS_USER WHERE ACTIVE = 1 AND USER_ID = " +
                                       host::quoted(user));
    } catch (const engines::Failure& failure) {
        throw Refusal("不能读取用户: " + sentence_for(failure.error()));
    }
}

} // namespace

User log_in(engines::Session& session, const std::string& user, const PasswordSource& password) {
    const auto rows = rows_of_user(session, user);
    if (rows.empty()) throw Refusal("用户名或密码不对!");
    const auto& cells = rows.front();
    const std::string verifier = cells[2].value_or("");
    if (!verifier.empty()) {
        const auto given = password();
        if (!given) throw Refusal("用户 " + user + " 有密码,请用环境变量 ZHANGFANG_PASSWORD 给出!");
        if (!fits(*given, verifier)) throw Refusal("用户名或密码不对!");
    }
    return {cells[0].value_or(""), cells[1].value_or(""), cells[3] == "1"};
}

std::optional<std::string> only_user(engines::Session& session) {
    const auto rows = automation::rows_of(
        session, "SELECT USER_ID, PASSWORD_HASH FROM SYS_USER WHERE ACTIVE = 1");
    if (rows.size() != 1 || !rows[0][1].value_or("").empty()) return std::nullopt;
    return rows[0][0];
}

} // namespace app
