// Ask for the period and the account level of the trial balance.
#pragma once

#include "module/filters/period_filter.h"

namespace module {

class TF6689F : public PeriodFilter {
public:
    // What the user sees beside year and month.
    TNumberEdit EDT3{this, "EDT3", "科目级别:"}; // deepest account level shown, kept for next time

    // What the user does.
    explicit TF6689F(TForm* parent);
    const char* ClassName() const override { return "TF6689F"; }
    void InitForm() override;
    void btn_okClick() override;
    // The statement for another level of the period last shown; false before the first OK.
    bool ShowLevel(std::int64_t level);
    // The period last shown; none before the first OK.
    const std::optional<Period>& ShownPeriod() const { return shown_; }

private:
    // This form's own rules.
    void write_result();
    std::optional<Period> shown_;
};

} // namespace module
