// Ask for the period and the account level of the trial balance.
#pragma once

#include "host/forms/Sys_Filter.h"
#include "host/values/period.h"
#include "module/host_names.h"

namespace module {

class TF6689F : public TFrm_Sys_Filter {
public:
    // What the user sees, from top to bottom.
    TNumberEdit EDT1{this, "EDT1", "会计年度:"}; // year
    TComboBox EDT2{this, "EDT2", "会计期间:"};   // month
    TNumberEdit EDT3{this, "EDT3", "科目级别:"}; // deepest account level shown, kept for next time
    TLabel Books{this, "Books"};                 // first and current period of the books

    // What the user does.
    explicit TF6689F(TForm* parent);
    const char* ClassName() const override { return "TF6689F"; }
    void InitForm() override;
    void InitFocu() override;
    void btn_okClick() override;
    // The statement for another level of the period last shown; false before the first OK.
    bool ShowLevel(std::int64_t level);

protected:
    void FormActivate() override;

private:
    // This form's own rules.
    std::string chosen_period() const;
    void check_period(const std::string& period);
    void write_result();
    std::optional<Period> shown_; // period of the last OK
};

} // namespace module
