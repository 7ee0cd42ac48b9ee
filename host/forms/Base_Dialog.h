// A modal dialog with OK and cancel.
#pragma once

#include "host/forms/Base_Common.h"

namespace host {

class TFrm_Base_Dialog : public TFrm_Base_Common {
public:
    explicit TFrm_Base_Dialog(TForm* parent);

    TButton btn_ok{this, "btn_ok", "确定"};         // F2
    TButton btn_Cancel{this, "btn_Cancel", "取消"}; // Esc

    virtual bool CheckAll(); // all fields in order; false keeps the dialog open
    virtual std::string Condition_t(const std::string& field, const std::string& operation,
                                    const std::string& value); // "(field op 'value')"
    virtual void btn_okClick();     // CheckAll, then ModalResult 1
    virtual void btn_CancelClick(); // ModalResult 2

protected:
    void FormKeyDown(Key& key) override; // F2 goes to OK and presses it
    void press(TButton& button);
};

} // namespace host
