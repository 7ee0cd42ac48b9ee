// Standard roles as a table, expanded over the functions of the suite.
#include "app/login/standard_roles.h"

#include <string_view>

#include "host/contract/function_table.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

constexpr std::string_view roles[] = {"会计主管", "制单会计", "审核", "出纳", "查询"};

// What a role may in one function or in all functions of an area; an empty place is everywhere.
// Of the actions named only those count that mean something in the function.
struct Grant {
    std::string_view role, area;
    int code;
    std::string_view actions;
};

constexpr std::string_view all = "open add change delete audit post print export";
constexpr std::string_view write = "open add change delete print export";
constexpr std::string_view read = "open print export";
constexpr std::string_view look = "open";

constexpr Grant grants[] = {
    {"会计主管", "", 0, all},

    {"制单会计", "凭证", 661, write},     {"制单会计", "帐簿", 0, read},
    {"制单会计", "报表", 0, read},        {"制单会计", "应收应付", 0, write},
    {"制单会计", "现金银行", 0, write},   {"制单会计", "基础资料", 0, read},
    {"制单会计", "基础资料", 683, write},

    {"审核", "凭证", 661, read},          {"审核", "凭证", 662, all},
    {"审核", "帐簿", 0, read},            {"审核", "报表", 0, read},
    {"审核", "应收应付", 0, "open audit print export"},
    {"审核", "现金银行", 0, "open audit print export"},
    {"审核", "基础资料", 0, look},

    {"出纳", "应收应付", 630, write},     {"出纳", "应收应付", 631, write},
    {"出纳", "应收应付", 641, write},     {"出纳", "应收应付", 646, write},
    {"出纳", "应收应付", 647, write},     {"出纳", "现金银行", 0, write},
    {"出纳", "凭证", 661, look},          {"出纳", "帐簿", 690, read},

    {"查询", "凭证", 661, read},          {"查询", "帐簿", 0, read},
    {"查询", "报表", 0, read},            {"查询", "应收应付", 0, read},
    {"查询", "现金银行", 0, read},        {"查询", "基础资料", 0, read},
};

bool names(std::string_view actions, std::string_view action) {
    return (" " + std::string(actions) + " ").find(" " + std::string(action) + " ") !=
           std::string::npos;
}

bool granted(std::string_view role, const host::WorkArea& area, const host::Function& function,
             const host::RightsAction& action) {
    for (const Grant& grant : grants) {
        const bool here = (grant.area.empty() || grant.area == area.name) &&
                          (grant.code == 0 || grant.code == function.code);
        if (here && grant.role == role && names(grant.actions, action.name)) return true;
    }
    return false;
}

std::string rights_of(std::string_view role) {
    std::string rows;
    for (const host::WorkArea& area : host::work_areas())
        for (const host::Function& function : area.functions)
            for (const host::RightsAction& action : host::rights_actions()) {
                // The host's own functions stay with the administrator until he gives them away.
                if (function.code == 0 || !function.has(action)) continue;
                if (!granted(role, area, function, action)) continue;
                rows += (rows.empty() ? "" : ",") + std::string("(") + host::quoted(role) + "," +
                        host::quoted(function.key()) + "," + host::quoted(action.name) + ")";
            }
    return "INSERT INTO SYS_ROLE_RIGHT (ROLE_ID, FUNCTION_CODE, ACTION) VALUES " + rows + ";";
}

} // namespace

std::string standard_roles_batch() {
    std::string batch;
    for (const std::string_view role : roles)
        batch += "INSERT INTO SYS_ROLE (ROLE_ID, ROLE_NAME) VALUES (" + host::quoted(role) + "," +
                 host::quoted(role) + ");" + rights_of(role);
    return batch;
}

} // namespace app
