// Enter or change one role.
#include "app/administration/role.h"

#include "app/administration/new_id.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace app {

using namespace host;

// ---- opening ----

TFrm_Role::TFrm_Role(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "角色";
    ROLE_ID.MaxLength = 20;
    ROLE_NAME.MaxLength = 50;
    ROLE_ID.OnExit = [this] { ROLE_IDExit(); };
    ROLE_NAME.OnExit = [this] { ROLE_NAMEExit(); };
    btn_row.OnClick = [this] { sheet_.mark_row(true); };
    btn_row_none.OnClick = [this] { sheet_.mark_row(false); };
    btn_all.OnClick = [this] { sheet_.mark_all(true); };
    btn_none.OnClick = [this] { sheet_.mark_all(false); };
    PreferredWidth = 122;
    layout = Rows({Columns({Field("角色号", ROLE_ID, 18), Field("角色", ROLE_NAME, 24), Spring()}),
                   Rest(DBGridEh),
                   Columns({Control(btn_row), Control(btn_row_none), Control(btn_all),
                            Control(btn_none), Spring()}),
                   Text("权限的改动在用户下次登录时生效。灰色的格子没有这项操作。"),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TFrm_Role::RefreshData() {
    FirstField = adding() ? &ROLE_ID : &ROLE_NAME;
    LockedField = adding() ? nullptr : &ROLE_ID;
    ROLE_ID.ReadOnly = !adding();
    ROLE_ID.Text = adding() ? "" : Key;
    ROLE_NAME.Text = adding() ? "" : List->FieldByName("ROLE_NAME").AsText();
    sheet_.read(FunctionCode, Mode == "Add" ? "" : Key);
    TFrm_Base_Detail::RefreshData();
}

// ---- leaving a field ----

void TFrm_Role::ROLE_IDExit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_id(*this, ROLE_ID, "角色号", "SELECT ROLE_ID FROM SYS_ROLE WHERE ROLE_ID=");
}

void TFrm_Role::ROLE_NAMEExit() {
    if (!leaving_by_cancel()) CheckBlank(ROLE_NAME, "角色");
}

bool TFrm_Role::has_unsaved_work() const {
    return TFrm_Base_Detail::has_unsaved_work() || (Shown() && !saved_ && AdoQry_Main.Modified());
}

// ---- saving ----

void TFrm_Role::SaveData() {
    const std::string role = trimmed(ROLE_ID.Text.get());
    const std::string name = quoted(trimmed(ROLE_NAME.Text.get()));
    const std::string head = adding() ? "INSERT INTO SYS_ROLE (ROLE_ID,ROLE_NAME) VALUES (" +
                                            quoted(role) + "," + name + ");"
                                      : "UPDATE SYS_ROLE SET ROLE_NAME=" + name +
                                            " WHERE ROLE_ID=" + quoted(role) + ";";
    saved_ = ExecSql(FunctionCode, role, Mode, head + sheet_.save_batch(role)) == "Y";
    if (saved_) Key = role;
}

} // namespace app
