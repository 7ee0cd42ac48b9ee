// Ask which vouchers to list: dates, numbers, word, posted or not, audited or not.
#pragma once

#include "host/forms/Sys_Filter.h"
#include "module/host_names.h"

namespace module {

class TF6661F : public TFrm_Sys_Filter {
public:
    // What the user sees, from top to bottom.
    TDateEdit BDATE{this, "BDATE", "凭证日期"}; // first day
    TDateEdit EDATE{this, "EDATE", "至："};     // last day
    TLabel titDATE{this, "titDATE"};            // length of the range
    TButton btn_dateset{this, "btn_dateset", "时段选择"};
    TNumberEdit PZZ_H1{this, "PZZ_H1", "凭 证 号"}; // first number
    TNumberEdit PZZ_H2{this, "PZZ_H2", "至："};     // last number
    TComboBox PZZ{this, "PZZ", "凭 证 字"};         // voucher word
    TRadioButton R1{this, "R1", "全部"};
    TRadioButton R2{this, "R2", "已过帐"}; // posted
    TRadioButton R3{this, "R3", "未过帐"};
    TRadioButton S1{this, "S1", "全部"};
    TRadioButton S2{this, "S2", "已审核"}; // audited
    TRadioButton S3{this, "S3", "未审核"};

    // What the user does.
    explicit TF6661F(TForm* parent);
    const char* ClassName() const override { return "TF6661F"; }
    void InitForm() override;
    void InitFocu() override;
    void btn_okClick() override;

private:
    // This form's own rules.
    std::string condition() const;
    bool by_kind_ = false; // the books use several voucher words
};

} // namespace module
