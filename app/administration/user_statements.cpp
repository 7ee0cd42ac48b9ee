// The statements that keep users.
#include "app/administration/user_statements.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace app {

using namespace host;

namespace {

const std::string no_administrator = "至少要有一个启用的系统管理员,请先指定另一个系统管理员!";

std::string administrator_left() {
    return "IF NOT EXISTS (SELECT 1 FROM SYS_USER WHERE ADMINISTRATOR=1 AND ACTIVE=1) "
           "THROW 50001,N" +
           quoted(no_administrator) + ",1;";
}

std::string flag(bool on) { return on ? "1" : "0"; }

std::string give_roles(const UserRow& user) {
    std::string batch = "DELETE FROM SYS_USER_ROLE WHERE USER_ID=" + quoted(user.id) + ";";
    for (const std::string& role : user.roles)
        batch += "INSERT INTO SYS_USER_ROLE (USER_ID,ROLE_ID) VALUES (" + quoted(user.id) + "," +
                 quoted(role) + ");";
    return batch;
}

} // namespace

std::string insert_user(const UserRow& user, const std::string& password_hash) {
    return "INSERT INTO SYS_USER (USER_ID,USER_NAME,PASSWORD_HASH,ADMINISTRATOR,ACTIVE) VALUES (" +
           quoted(user.id) + "," + quoted(user.name) + "," + quoted(password_hash) + "," +
           flag(user.administrator) + "," + flag(user.active) + ");" + give_roles(user) +
           administrator_left();
}

std::string update_user(const UserRow& user) {
    return "UPDATE SYS_USER SET USER_NAME=" + quoted(user.name) +
           ",ADMINISTRATOR=" + flag(user.administrator) + ",ACTIVE=" + flag(user.active) +
           " WHERE USER_ID=" + quoted(user.id) + ";" + give_roles(user) + administrator_left();
}

std::string delete_user(const std::string& key) {
    return "DECLARE @U nvarchar(20);SET @U=" + key +
           ";DELETE FROM SYS_USER_ROLE WHERE USER_ID=@U;DELETE FROM SYS_USER WHERE USER_ID=@U;" +
           administrator_left();
}

std::string set_password(const std::string& user, const std::string& password_hash) {
    return "UPDATE SYS_USER SET PASSWORD_HASH=" + quoted(password_hash) +
           " WHERE USER_ID=" + quoted(user) + ";";
}

void require_other_administrator(const std::string& function, const std::string& user) {
    TClientDataSet others;
    opensql(others, function,
            "SELECT COUNT(*) AS N FROM SYS_USER WHERE ADMINISTRATOR=1 AND ACTIVE=1 AND USER_ID<>" +
                quoted(user));
    if (!others.IsEmpty() && others.FieldByName("N").AsInteger() > 0) return;
    DISPINFO(no_administrator, 5);
    Abort();
}

} // namespace app
