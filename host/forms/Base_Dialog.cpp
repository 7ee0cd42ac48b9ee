// A modal dialog: OK by F2, cancel by Esc.
#include "host/forms/Base_Dialog.h"

#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace host {

TFrm_Base_Dialog::TFrm_Base_Dialog(TForm* parent) : TFrm_Base_Common(parent) {
    btn_ok.KeyHint = "F2";
    btn_Cancel.KeyHint = "Esc";
    btn_Cancel.Cancel = true;
    btn_ok.OnClick = [this] { btn_okClick(); };
    btn_Cancel.OnClick = [this] { btn_CancelClick(); };
}

bool TFrm_Base_Dialog::CheckAll() {
    LeaveAllFields();
    return true;
}

std::string TFrm_Base_Dialog::Condition_t(const std::string& field, const std::string& operation,
                                          const std::string& value) {
    return "(" + field + operation + quoted(value) + ")";
}

void TFrm_Base_Dialog::btn_okClick() {
    if (CheckAll()) ModalResult = mrOk;
}

// Nothing is asked: pressing 取消 says what is meant. Esc, which may be a slip, asks first.
void TFrm_Base_Dialog::btn_CancelClick() { ModalResult = mrCancel; }

// Pressing a button by its key is going there and pressing it: the field left is checked first.
void TFrm_Base_Dialog::press(TButton& button) {
    if (!button.usable()) return;
    SetFocusTo(button);
    button.Click();
}

void TFrm_Base_Dialog::FormKeyDown(Key& key) {
    const bool plain = !key.ctrl && !key.alt && !key.shift;
    if (!plain || key.code != KeyCode::F2) return;
    key = {};
    press(btn_ok);
}

} // namespace host
