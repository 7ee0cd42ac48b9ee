// List the users of the books with their roles.
#include "app/administration/users.h"

#include "app/administration/user.h"
#include "app/administration/user_statements.h"
#include "host/contract/U_glo.h"

namespace app {

using namespace host;

namespace {

constexpr Color grey = 0x808080;

const char* const select_users =
    "SELECT USER_ID,USER_NAME,(SELECT STRING_AGG(R.ROLE_NAME,'、') FROM SYS_USER_ROLE U INNER JOIN "
    "SYS_ROLE R ON R.ROLE_ID=U.ROLE_ID WHERE U.USER_ID=SYS_USER.USER_ID) AS ROLES,ADMINISTRATOR,"
    "ACTIVE,CASE WHEN PASSWORD_HASH='' THEN '未设' ELSE '已设' END AS HAS_PASSWORD FROM SYS_USER "
    "ORDER BY USER_ID";

} // namespace

TFrm_Users::TFrm_Users(TForm* frame) : AdministrationList(frame, "users", "用户") {
    AddColumn("USER_ID", "用户号", 14);
    AddColumn("USER_NAME", "姓名", 16);
    AddColumn("ROLES", "角色", -1);
    AddColumn("ADMINISTRATOR", "系统管理员", 10).CheckBox = true;
    AddColumn("ACTIVE", "启用", 6).CheckBox = true;
    AddColumn("HAS_PASSWORD", "密码", 6).Align = Alignment::Center;
}

TFrm_Users::~TFrm_Users() = default;

// Who made a voucher or a row of the log keeps his name there: he is made inactive instead.
void TFrm_Users::InitForm(const Trecord& record) {
    SqlText = select_users;
    KeyField = "USER_ID";
    NameField = "USER_NAME";
    DeleteStatement = delete_user("%S");
    const char* const busy = "已有该用户制作或操作的记录,请改为停用";
    Uses = {{"SELECT COUNT(*) AS I FROM D6601 WHERE USER_ID=%S", busy},
            {"SELECT COUNT(*) AS I FROM SYS_LOG WHERE USER_ID=%S", busy}};
    dialog_ = std::make_unique<TFrm_User>(this);
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TFrm_Users::Dialog() { return dialog_.get(); }

void TFrm_Users::Act_DeleteExecute() {
    if (AdoQry_Main.IsEmpty()) return;
    require_other_administrator(FunctionCode, AdoQry_Main.FieldByName("USER_ID").AsText());
    TFrm_Base_Outer::Act_DeleteExecute();
}

void TFrm_Users::DBGridEhGetCellParams(TField& field, CellParams& params) {
    AdministrationList::DBGridEhGetCellParams(field, params);
    if (!AdoQry_Main.FieldByName("ACTIVE").AsBoolean()) params.Font = grey;
}

} // namespace app
