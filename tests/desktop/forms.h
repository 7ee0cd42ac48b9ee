// Small forms for the tests of the desktop: a voucher, a list, a tree, a dialog. No database.
#pragma once

#include "host/controls/grid.h"
#include "host/controls/tree_view.h"
#include "host/forms/form.h"

namespace tests {

// A voucher-like entry form: header, ruled lines, live difference, checks before saving.
class TVoucherForm : public host::TForm {
public:
    explicit TVoucherForm(host::TForm* parent = nullptr);
    const char* ClassName() const override { return "TVoucherForm"; }

    host::TComboBox PZZ{this, "PZZ", "凭证字"};
    host::TNumberEdit PZZ_H{this, "PZZ_H", "号"};
    host::TDateEdit BDATE{this, "BDATE", "日期"};
    host::TNumberEdit PZZ_Z{this, "PZZ_Z", "附单据(张)"};
    host::TLabel PZQJ{this, "PZQJ", "第 2016-06 期"};
    host::TLabel Maker{this, "Maker", "李敏"};
    host::TPanel Difference{this, "Difference"};
    host::TClientDataSet Lines;
    host::TDBGridEh DBGridEh{this, "DBGridEh", &Lines};
    host::TAction Act_Save{this, "Act_Save", "保存", "F2", "save"};
    host::TAction Act_AddLine{this, "Act_AddLine", "加行", "Insert", "plus"};
    host::TAction Act_Print{this, "Act_Print", "打印", "Ctrl+P", "printer"};
    host::TAction Act_Quit{this, "Act_Quit", "退出", "Esc", "log-out"};

    void add_line(const std::string& summary, const std::string& account, host::Amount debit,
                  host::Amount credit);
    int saved = 0; // vouchers that passed the checks

protected:
    bool has_unsaved_work() const override { return Lines.Modified(); }

private:
    void build_grid();
    void show_difference();
    void save();
};

// A list with colours, check marks, grouped titles, footers and several marked rows.
class TListForm : public host::TForm {
public:
    explicit TListForm(int rows, host::TForm* parent = nullptr);
    const char* ClassName() const override { return "TListForm"; }

    host::TLabel ConditionLabel{this, "ConditionLabel",
                                " ●凭证日期:(2016-06-01 至 2016-06-30)     ●凭 证 号:(1 至 9999)"};
    host::TPanel Balanced{this, "Balanced", "试算平衡"};
    host::TClientDataSet Heads;
    host::TDBGridEh DBGridEh{this, "DBGridEh", &Heads};
    host::TAction Act_Add{this, "Act_Add", "新增", "Insert", "plus"};
    host::TAction Act_Modify{this, "Act_Modify", "修改", "Enter", "pencil"};
    host::TAction Act_Refresh{this, "Act_Refresh", "刷新", "F5", "refresh-cw"};
    host::TAction Act_Quit{this, "Act_Quit", "退出", "Esc", "log-out"};
    int refreshed = 0;
};

// A modal dialog with every kind of field; the code must not be "X".
class TDialogForm : public host::TForm {
public:
    explicit TDialogForm(host::TForm* parent = nullptr);
    const char* ClassName() const override { return "TDialogForm"; }

    host::TEdit Code{this, "Code", "代    号"};
    host::TNumberEdit Year{this, "Year", "会计年度:"};
    host::TComboBox Month{this, "Month", "会计期间:"};
    host::TLinkEdit Account{this, "Account", "科目代码:"};
    host::TRadioButton Debit{this, "Debit", "借"};
    host::TRadioButton Credit{this, "Credit", "贷"};
    host::TCheckBox Cash{this, "Cash", "包含未过帐凭证"};
    host::TButton btn_ok{this, "btn_ok", "确定"};
    host::TButton btn_Cancel{this, "btn_Cancel", "取消"};
};

class TTreeForm : public host::TForm {
public:
    explicit TTreeForm(host::TForm* parent = nullptr);
    const char* ClassName() const override { return "TTreeForm"; }
    host::TTreeView Tree{this, "TreeView1"};
    host::TSpeedButton One{this, "One", "资产"};
    host::TSpeedButton Two{this, "Two", "负债"};
    host::TAction Act_Quit{this, "Act_Quit", "退出", "Esc", "log-out"};
};

} // namespace tests
