// Pick a common summary for a voucher line.
#pragma once

#include "module/vouchers/voucher_picker.h"

namespace module {

class TF6661_2 : public VoucherPicker {
public:
    // What the user sees, from top to bottom.
    TEdit wl_name{this, "wl_name", "摘要"}; // text searched for, or pinyin initials
    TButton BTN_INS{this, "BTN_INS", "加入(INS)"};

    // What the user does.
    explicit TF6661_2(TForm* parent);
    const char* ClassName() const override { return "TF6661_2"; }
    void init(TClientDataSet& lines, const std::string& function); // the line that gets the summary
    void wl_nameChange();

protected:
    // Steps of every picker that differ here.
    void FormShow() override;
    void search_changed() override { wl_nameChange(); }
    void hand_over() override;

private:
    TClientDataSet* lines_ = nullptr;
    TClientDataSet all_; // the common summaries
};

} // namespace module
