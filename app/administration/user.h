// Enter or change one user: name, roles, password, whether he may come in.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Detail.h"

namespace app {

struct UserRow;

class TFrm_User : public host::TFrm_Base_Detail {
public:
    host::TClientDataSet AdoQry_Roles; // every role; HAS marks those of the user

    // What the user sees, from top to bottom.
    host::TEdit USER_ID{this, "USER_ID", "用户号"}; // what is typed at the login
    host::TEdit USER_NAME{this, "USER_NAME", "姓名"};
    host::TCheckBox ACTIVE{this, "ACTIVE", "启用（停用后不能登录，已做的单据保留姓名）"};
    host::TCheckBox ADMINISTRATOR{this, "ADMINISTRATOR", "系统管理员（不受角色限制）"};
    host::TDBGridEh Roles{this, "Roles", &AdoQry_Roles};
    host::TCheckBox RESET{this, "RESET", "重设密码"};
    host::TEdit PASSWORD1{this, "PASSWORD1", "新密码"};
    host::TEdit PASSWORD2{this, "PASSWORD2", "再次输入"};

    explicit TFrm_User(host::TForm* parent);
    const char* ClassName() const override { return "TFrm_User"; }
    void USER_IDExit(); // left: well formed and new
    void USER_NAMEExit();
    void RESETClick(); // the passwords are asked for only when they are to be set

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    bool CheckAll() override;
    void SaveData() override;

protected:
    bool has_unsaved_work() const override;

private:
    bool adding() const { return Mode != "Edit"; }
    void read_roles();
    UserRow row() const;
};

} // namespace app
