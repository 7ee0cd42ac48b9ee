// Enter or change one common summary.
#pragma once

#include "host/forms/Base_Detail.h"
#include "module/host_names.h"

namespace module {

class TF6683_1 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TEdit ID{this, "ID", "ID"};   // key of the summary, hidden
    TEdit ZY{this, "ZY", "摘要"}; // summary text; may repeat

    // What the user does.
    explicit TF6683_1(TForm* parent);
    const char* ClassName() const override { return "TF6683_1"; }
    void ZYExit(); // summary left: must not be blank

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

private:
    // This form's own rules.
    bool adding() const { return Mode != "Edit"; }
    std::string save_summary() const;
};

} // namespace module
