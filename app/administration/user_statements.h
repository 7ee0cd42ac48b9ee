// The statements that keep users, and the rule that somebody can always administer the books.
#pragma once

#include <string>
#include <vector>

namespace app {

// A row of SYS_USER as the dialog holds it.
struct UserRow {
    std::string id, name;
    bool administrator = false;
    bool active = true;
    std::vector<std::string> roles; // their ids
};

// Each batch ends with a check in the database that an active administrator is left, for two
// administrators may work at once.
std::string insert_user(const UserRow& user, const std::string& password_hash);
std::string update_user(const UserRow& user);
// `key` is put in as it stands: the place holder of a list's delete.
std::string delete_user(const std::string& key);
// The password alone; one batch with update_user when both change.
std::string set_password(const std::string& user, const std::string& password_hash);

// Refuses with a message and Abort() when `user` is the only active administrator.
void require_other_administrator(const std::string& function, const std::string& user);

} // namespace app
