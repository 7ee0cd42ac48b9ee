// List the roles and how many users have each.
#include "app/administration/roles.h"

#include "app/administration/role.h"

namespace app {

using namespace host;

TFrm_Roles::TFrm_Roles(TForm* frame) : AdministrationList(frame, "roles", "角色与权限") {
    Act_CopyAdd.Visible = true; // a new role is often an old one with a little less
    AddColumn("ROLE_ID", "角色号", 16);
    AddColumn("ROLE_NAME", "角色", 24);
    AddColumn("FUNCTIONS", "可用功能数", 12).Align = Alignment::Right;
    AddColumn("USERS", "用户", -1);
}

TFrm_Roles::~TFrm_Roles() = default;

void TFrm_Roles::InitForm(const Trecord& record) {
    SqlText =
        "SELECT ROLE_ID,ROLE_NAME,(SELECT COUNT(*) FROM SYS_ROLE_RIGHT R WHERE R.ROLE_ID="
        "SYS_ROLE.ROLE_ID AND R.ACTION='open') AS FUNCTIONS,(SELECT STRING_AGG(P.USER_NAME,'、') "
        "FROM SYS_USER_ROLE U INNER JOIN SYS_USER P ON P.USER_ID=U.USER_ID WHERE U.ROLE_ID="
        "SYS_ROLE.ROLE_ID) AS USERS FROM SYS_ROLE ORDER BY ROLE_ID";
    KeyField = "ROLE_ID";
    NameField = "ROLE_NAME";
    DeleteStatement = "DECLARE @R nvarchar(20);SET @R=%S;DELETE FROM SYS_ROLE_RIGHT WHERE "
                      "ROLE_ID=@R;DELETE FROM SYS_ROLE WHERE ROLE_ID=@R";
    Uses = {{"SELECT COUNT(*) AS I FROM SYS_USER_ROLE WHERE ROLE_ID=%S", "还有用户属于该角色"}};
    dialog_ = std::make_unique<TFrm_Role>(this);
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TFrm_Roles::Dialog() { return dialog_.get(); }

} // namespace app
