// Change the own password.
#pragma once

#include "host/forms/Base_Dialog.h"

namespace app {

class TFrm_Password : public host::TFrm_Base_Dialog {
public:
    host::TEdit OLD{this, "OLD", "原密码"};
    host::TEdit PASSWORD1{this, "PASSWORD1", "新密码"};
    host::TEdit PASSWORD2{this, "PASSWORD2", "再次输入"};

    explicit TFrm_Password(host::TForm* parent);
    const char* ClassName() const override { return "TFrm_Password"; }
    void InitForm(const host::Trecord& record);
    void btn_okClick() override; // the old one must fit

private:
    std::string verifier() const;
};

} // namespace app
