// Pick an account that takes entries, by code, name or pinyin.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"

namespace module {

class TF6661_3 : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TEdit wl_id{this, "wl_id", "科目"}; // text searched for
    TClientDataSet AdoQry_Main;         // leaf accounts; those that fit are in view
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    TButton btn_ins{this, "btn_ins", "加入(INS)"};

    // What the user does.
    explicit TF6661_3(TForm* parent);
    const char* ClassName() const override { return "TF6661_3"; }
    // The line that gets the account: the fields of its code and name.
    void init(TClientDataSet& lines, TLinkEdit* edit, const std::string& function,
              const std::string& code_field, const std::string& name_field,
              const std::string& kind);
    void WL_IDChange();
    void BTN_INSClick(); // fills the line and stays open
    void btn_okClick() override;

protected:
    void FormShow() override;
    void FormKeyDown(Key& key) override;

private:
    // This form's own rules.
    void load_leaf_accounts();
    void hand_over();
    TClientDataSet* lines_ = nullptr;
    TLinkEdit* edit_ = nullptr;
    std::string code_field_, name_field_;
    bool loaded_ = false;
};

} // namespace module
