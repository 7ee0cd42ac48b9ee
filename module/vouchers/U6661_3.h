// Pick an account that takes entries, by code, name or pinyin.
#pragma once

#include "module/vouchers/voucher_picker.h"

namespace module {

class TF6661_3 : public VoucherPicker {
public:
    // What the user sees, from top to bottom.
    TEdit wl_id{this, "wl_id", "科目"}; // text searched for
    TButton btn_ins{this, "btn_ins", "加入(INS)"};

    // What the user does.
    explicit TF6661_3(TForm* parent);
    const char* ClassName() const override { return "TF6661_3"; }
    // What gets the account: a line's fields for its code and name, or `edit` when there is one.
    void init(TClientDataSet& lines, TLinkEdit* edit, const std::string& function,
              const std::string& code_field, const std::string& name_field,
              const std::string& kind);
    void WL_IDChange();

protected:
    // Steps of every picker that differ here.
    void FormShow() override;
    void search_changed() override { WL_IDChange(); }
    void hand_over() override;

private:
    // This form's own rules.
    void load_leaf_accounts();
    TClientDataSet* lines_ = nullptr;
    TLinkEdit* edit_ = nullptr;
    std::string code_field_, name_field_;
    bool loaded_ = false;
};

} // namespace module
