// Enter or change one user.
#include "app/administration/user.h"

#include "app/administration/new_id.h"
#include "app/administration/password_entry.h"
#include "app/administration/user_statements.h"
#include "app/login/password.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace app {

using namespace host;

// ---- opening ----

TFrm_User::TFrm_User(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "用户";
    USER_ID.MaxLength = 20;
    USER_NAME.MaxLength = 50;
    PASSWORD1.Password = PASSWORD2.Password = true;
    USER_ID.OnExit = [this] { USER_IDExit(); };
    USER_NAME.OnExit = [this] { USER_NAMEExit(); };
    RESET.OnClick = [this] { RESETClick(); };
    AdoQry_Roles.DefineField("HAS", FieldType::Boolean);
    Roles.Columns = {{.FieldName = "HAS", .Title = "有", .Width = 4, .CheckBox = true},
                     {.FieldName = "ROLE_NAME", .Title = "角色", .Width = -1, .ReadOnly = true}};
    Roles.AppendOnEnter = false;
    PreferredWidth = 56;
    layout = Rows({Columns({Field("用户号", USER_ID, 16), Field("姓名", USER_NAME, 18), Spring()}),
                   Control(ACTIVE), Control(ADMINISTRATOR), Rest(Roles), Control(RESET),
                   Columns({Field("新密码", PASSWORD1, 16), Field("再次输入", PASSWORD2, 16),
                            Spring()}),
                   Text("权限的改动在该用户下次登录时生效。"), Buttons({&btn_ok, &btn_Cancel})});
}

void TFrm_User::read_roles() {
    const std::string user = quoted(adding() ? "" : Key);
    opensql(AdoQry_Roles, FunctionCode,
            "SELECT CAST(CASE WHEN U.USER_ID IS NULL THEN 0 ELSE 1 END AS bit) AS HAS,R.ROLE_ID,"
            "R.ROLE_NAME FROM SYS_ROLE R LEFT JOIN SYS_USER_ROLE U ON U.ROLE_ID=R.ROLE_ID AND "
            "U.USER_ID=" +
                user + " ORDER BY R.ROLE_ID");
    AdoQry_Roles.MarkSaved();
}

void TFrm_User::RefreshData() {
    FirstField = adding() ? &USER_ID : &USER_NAME;
    LockedField = adding() ? nullptr : &USER_ID;
    USER_ID.ReadOnly = !adding();
    const auto text = [this](const char* field) {
        return adding() ? std::string() : List->FieldByName(field).AsText();
    };
    USER_ID.Text = text("USER_ID");
    USER_NAME.Text = text("USER_NAME");
    ACTIVE.Checked = adding() || List->FieldByName("ACTIVE").AsBoolean();
    ADMINISTRATOR.Checked = !adding() && List->FieldByName("ADMINISTRATOR").AsBoolean();
    RESET.Checked = adding();
    RESET.Visible = !adding();
    PASSWORD1.Text = "";
    PASSWORD2.Text = "";
    RESETClick();
    read_roles();
    TFrm_Base_Detail::RefreshData();
}

// ---- leaving a field ----

void TFrm_User::USER_IDExit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_id(*this, USER_ID, "用户号", "SELECT USER_ID FROM SYS_USER WHERE USER_ID=");
}

void TFrm_User::USER_NAMEExit() {
    if (!leaving_by_cancel()) CheckBlank(USER_NAME, "姓名");
}

void TFrm_User::RESETClick() {
    PASSWORD1.Enabled = RESET.Checked.get();
    PASSWORD2.Enabled = RESET.Checked.get();
}

// ---- checking ----

bool TFrm_User::CheckAll() {
    if (!TFrm_Base_Detail::CheckAll()) return false;
    if (RESET.Checked) require_same_password(*this, PASSWORD1, PASSWORD2);
    const bool keeps_administering = ADMINISTRATOR.Checked && ACTIVE.Checked;
    if (!adding() && !keeps_administering) require_other_administrator(FunctionCode, Key);
    return true;
}

bool TFrm_User::has_unsaved_work() const {
    return TFrm_Base_Detail::has_unsaved_work() || (Shown() && !saved_ && AdoQry_Roles.Modified());
}

// ---- saving ----

UserRow TFrm_User::row() const {
    UserRow user{trimmed(USER_ID.Text.get()), trimmed(USER_NAME.Text.get()), ADMINISTRATOR.Checked,
                 ACTIVE.Checked, {}};
    const int has = AdoQry_Roles.FieldByName("HAS").index();
    const int role = AdoQry_Roles.FieldByName("ROLE_ID").index();
    for (int at = 0; at < AdoQry_Roles.RecordCount(); ++at)
        if (AdoQry_Roles.text_at(at, has) == "True")
            user.roles.push_back(AdoQry_Roles.text_at(at, role));
    return user;
}

void TFrm_User::SaveData() {
    AdoQry_Roles.LeaveRow();
    const UserRow user = row();
    const std::string hash = RESET.Checked ? hash_of(PASSWORD1.Text) : "";
    std::string batch = adding() ? insert_user(user, hash) : update_user(user);
    if (!adding() && RESET.Checked) batch += set_password(user.id, hash);
    saved_ = ExecSql(FunctionCode, user.id, Mode, batch) == "Y";
    if (saved_) Key = user.id;
}

} // namespace app
