// Change the own password.
#include "app/administration/own_password.h"

#include "app/administration/password_entry.h"
#include "app/administration/user_statements.h"
#include "app/login/password.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace app {

using namespace host;

TFrm_Password::TFrm_Password(TForm* parent) : TFrm_Base_Dialog(parent) {
    FunctionCode = "password";
    Caption = "修改密码";
    for (TEdit* edit : {&OLD, &PASSWORD1, &PASSWORD2}) edit->Password = true;
    layout = Rows({Field("原密码", OLD, 24), Field("新密码", PASSWORD1, 24),
                   Field("再次输入", PASSWORD2, 24), Text("没有密码时“原密码”不填。"),
                   Buttons({&btn_ok, &btn_Cancel})});
}

// Everybody may change his own password: no right is asked for.
void TFrm_Password::InitForm(const Trecord& record) { record_ = record; }

std::string TFrm_Password::verifier() const {
    TClientDataSet own;
    opensql(own, FunctionCode,
            "SELECT PASSWORD_HASH FROM SYS_USER WHERE USER_ID=" + quoted(G_UserId));
    return own.IsEmpty() ? "" : own.FieldByName("PASSWORD_HASH").AsText();
}

void TFrm_Password::btn_okClick() {
    if (!fits(OLD.Text, verifier())) {
        DISPINFO("原密码不对,请重新输入!", 5);
        SetFocusTo(OLD);
        OLD.SelectAll();
        Abort();
    }
    require_same_password(*this, PASSWORD1, PASSWORD2);
    const std::string batch = set_password(G_UserId, hash_of(PASSWORD1.Text));
    if (ExecSql(FunctionCode, G_UserId, "Password", batch) != "Y") return;
    DISPINFO("密码已修改,下次登录时使用新密码。", 5);
    ModalResult = mrOk;
}

} // namespace app
