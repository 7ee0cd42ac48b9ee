// Pick a common summary for a voucher line.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"

namespace module {

class TF6661_2 : public TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    TEdit wl_name{this, "wl_name", "摘要"}; // text searched for, or pinyin initials
    TClientDataSet AdoQry_Main;             // summaries that fit
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    TButton BTN_INS{this, "BTN_INS", "加入(INS)"};

    // What the user does.
    explicit TF6661_2(TForm* parent);
    const char* ClassName() const override { return "TF6661_2"; }
    void init(TClientDataSet& lines, const std::string& function); // the line that gets the summary
    void wl_nameChange();
    void BTN_INSClick(); // fills the line and stays open
    void btn_okClick() override;

protected:
    void FormShow() override;
    void FormKeyDown(Key& key) override;

private:
    // This form's own rules.
    void hand_over();
    TClientDataSet* lines_ = nullptr;
};

} // namespace module
