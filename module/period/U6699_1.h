// See whether the opening figures balance; only then may they be posted.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Detail.h"
#include "module/host_names.h"

namespace module {

class TF6699_1 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TClientDataSet AdoQry_Main; // every account's opening figures, side by side
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    TLabel Verdict{this, "Verdict"};

    // What the user does.
    explicit TF6699_1(TForm* parent);
    const char* ClassName() const override { return "TF6699_1"; }
    void InitForm(const std::string& key, TClientDataSet* list) override;
    void btn_okClick() override;
    void btn_CancelClick() override;
    bool accepted() const { return accepted_; }

private:
    // This form's own rules.
    bool balanced() const;
    bool accepted_ = false;
};

} // namespace module
