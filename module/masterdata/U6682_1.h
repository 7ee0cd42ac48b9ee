// Enter or change one voucher word, its printed title and whether it is the default.
#pragma once

#include "host/forms/Base_Detail.h"
#include "module/host_names.h"

namespace module {

class TF6682_1 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "凭 证 字"};         // voucher word, unique
    TEdit PZZ_PRINT{this, "PZZ_PRINT", "打印标题"}; // title printed on the voucher
    // at most one word is the default
    TCheckBox T{this, "T", "是否默认    (仅可定义一个默认，定义后其他默认失效，刷新显示最终效果)"};

    // What the user does.
    explicit TF6682_1(TForm* parent);
    const char* ClassName() const override { return "TF6682_1"; }
    void Edit1Exit();     // word left: must be well formed and new
    void PZZ_PRINTExit(); // title left: must not be blank

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

private:
    // This form's own rules.
    bool adding() const { return Mode != "Edit"; }
    std::string save_word() const;
};

} // namespace module
