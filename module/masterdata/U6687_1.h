// Enter or change one income or expense category and the account it belongs to.
#pragma once

#include <memory>

#include "host/forms/Base_Detail.h"
#include "module/host_names.h"

namespace module {

class TFLINK_6801;

class TF6687_1 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TComboBox SZLB_CLASS{this, "SZLB_CLASS", "收支类别"}; // kind
    TEdit Edit1{this, "Edit1", "代    码"};               // code, unique among all kinds
    TEdit SZLB_NAME{this, "SZLB_NAME", "名    称"};
    TLinkEdit KM_ID{this, "KM_ID", "科目代码"};           // account, its name beside it
    TCheckBox T{this, "T", "计入企业经营利润表"};

    // What the user does.
    explicit TF6687_1(TForm* parent);
    ~TF6687_1() override;
    const char* ClassName() const override { return "TF6687_1"; }
    void Edit1Exit();        // code left: must be well formed and new
    void SZLB_NAMEExit();    // name left: must not be blank
    void BM_IDButtonClick(); // picks the account
    void CheckId();          // account left: must be in the chart

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    void SaveData() override;
    bool CheckAll() override;

    int KindOffered = -1; // kind a new category begins with; -1: the user chooses

private:
    // This form's own rules.
    bool adding() const { return Mode != "Edit"; }
    std::string save_category() const;
    std::unique_ptr<TFLINK_6801> FLINK_6801;
};

} // namespace module
