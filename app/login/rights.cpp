// Reads the rights of a user's roles.
#include "app/login/rights.h"

#include "app/data/error_sentence.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "host/contract/function_table.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

constexpr int unknown_object = 208;

std::vector<automation::TextRow> rows_of_rights(engines::Session& session,
                                                const std::string& user) {
    try {
        return automation::rows_of(
            session, "SELECT DISTINCT R.FUNCTION_CODE, R.ACTION FROM SYS_USER_ROLE U INNER JOIN "
                     "SYS_ROLE_RIGHT R ON R.ROLE_ID = U.ROLE_ID WHERE U.USER_ID = " +
                         host::quoted(user));
    } catch (const engines::Failure& failure) {
        if (failure.error().number == unknown_object)
            throw Refusal("本帐套还没有角色与权限,请先由系统管理员登录一次,再用其他用户登录!");
        throw Refusal("不能读取用户的权限: " + sentence_for(failure.error()));
    }
}

} // namespace

Rights Rights::of(engines::Session& session, const User& user) {
    Rights rights;
    rights.all_ = user.administrator;
    if (rights.all_) return rights;
    for (const automation::TextRow& row : rows_of_rights(session, user.id))
        rights.granted_.emplace(row[0].value_or(""), row[1].value_or(""));
    return rights;
}

bool Rights::allow(const host::Right& right) const {
    if (all_) return true;
    if (host::for_administrators_only(right.function)) return false;
    return granted_.contains({right.function, right.action});
}

} // namespace app
