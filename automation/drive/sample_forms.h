// Two forms with one of every control, for the driver's own tests.
#pragma once

#include "host/contract/U_function.h"
#include "host/contract/U_glo.h"
#include "host/controls/grid.h"
#include "host/controls/tree_view.h"
#include "host/forms/form.h"
#include "host/values/errors.h"

namespace automation {

// A dialog with one field that must not be blank.
class TF100_1 final : public host::TForm {
public:
    explicit TF100_1(host::TForm* parent) : TForm(parent) {
        Caption = "选择";
        Edit1.OnExit = [this] {
            if (FocusTarget() == &btn_Cancel || !Edit1.Text->empty()) return;
            host::DISPINFO("代号不能为空!", 5);
            host::Abort();
        };
        btn_ok.OnClick = [this] { ModalResult = host::mrOk; };
        btn_Cancel.OnClick = [this] { ModalResult = host::mrCancel; };
    }
    const char* ClassName() const override { return "TF100_1"; }

    host::TEdit Edit1{this, "Edit1", "代号"};
    host::TButton btn_ok{this, "btn_ok", "确定"};
    host::TButton btn_Cancel{this, "btn_Cancel", "取消"};
};

// A list with an edit panel: what it does is told by messages.
class TF100 final : public host::TForm {
public:
    explicit TF100(host::TForm* parent);
    const char* ClassName() const override { return "TF100"; }
    void choose_then_tell(); // opens the dialog, tells its result

    host::TClientDataSet lines;
    TF100_1 dialog{this};
    host::TEdit KM_ID{this, "KM_ID", "科目代号"};
    host::TEdit Locked{this, "Locked", "锁定"};
    host::TNumberEdit PZZ_H{this, "PZZ_H", "号"};
    host::TDateEdit BDATE{this, "BDATE", "日期"};
    host::TComboBox PZZ{this, "PZZ", "凭证字"};
    host::TLinkEdit KH_GYS_ID{this, "KH_GYS_ID", "客户"};
    host::TCheckBox CK1{this, "CK1", "现金流量"};
    host::TRadioButton R1{this, "R1", "全部"};
    host::TRadioButton R2{this, "R2", "已过帐"};
    host::TSpeedButton SpeedButton1{this, "SpeedButton1", "资产"};
    host::TSpeedButton SpeedButton2{this, "SpeedButton2", "负债"};
    host::TLabel LA1{this, "LA1", "第一步"};
    host::TLabel LA2{this, "LA2", "只是文字"};
    host::TButton btn_more{this, "btn_more", "更多"};
    host::TAction Act_Save{this, "Act_Save", "保存", "F2"};
    host::TAction Act_Print{this, "Act_Print", "打印"};
    host::TMenuItem N2{this, "N2", "存为模板"};
    host::TPopupMenu Menu{this, "Menu"};
    host::TTreeView TreeView1{this, "TreeView1"};
    host::TDBGridEh DBGridEh{this, "DBGridEh", &lines};

private:
    void prepare_lines();
    void prepare_controls();
    void prepare_deeds();
};

// Opens TF100 for code 100; any other code answers as the module does.
void open_sample(const host::Trecord& record, host::TForm& frame);

} // namespace automation
