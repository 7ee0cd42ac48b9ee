// List the bank deposits and withdrawals; enter, change and delete them.
#include "module/cash/U6648.h"

#include "host/forms/parts/list_search.h"
#include "host/forms/parts/sum_footers.h"
#include "host/printing/sheet.h"
#include "module/cash/U6648_1.h"
#include "module/cash/U6648f.h"
#include "module/cash/bank_transfer.h"

namespace module {

TF6648* F6648 = nullptr;

// ---- opening ----

TF6648::TF6648(TForm* parent) : TFrm_Base_Outer(parent) {
    Caption = "银行存取款单";
    Act_Locate.Visible = true;
    AddColumn("NOID", "单号", 15);
    AddColumn("BDATE", "开单日期", 11);
    AddColumn("JY_NAME_FK", "付款帐户", 13);
    AddColumn("JY_NAME_SK", "收款帐户", 13);
    AddAmountColumn("MONEY", "金额", 14);
    AddColumn("ZY", "摘要", -1);
    AddColumn("YW_NAME", "经手人", 8);
    AddColumn("BM_NAME", "部门", 9);
    AddColumn("USER_NAME", "制单人", 8);
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    add_sum_footers(DBGridEh, "MONEY");
    DBGridEh.EmptyText = "没有符合条件的银行存取款单";
    layout = Rows({ToolBar({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, nullptr, &Act_Locate,
                            &Act_Refresh, nullptr, &Act_Print, &Act_Preview, &Act_Export, nullptr,
                            &Act_Quit}),
                   Columns({Control(ConditionLabel), Spring(), Field("查找", SearchBox, 24)}),
                   Rest(DBGridEh)});
}

TF6648::~TF6648() = default;

void TF6648::InitForm(const Trecord& record) {
    OpenFunction(record);
    KeyField = "NOID";
    DeleteStatement = "delete from D653 Where NOID=%S";
    F6648_1 = std::make_unique<TF6648_1>(this);
    F6648F = std::make_unique<TF6648F>(this);
    F6648F->InitForm();
    if (F6648F->Preset()) take_condition();
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TF6648::Dialog() {
    return F6648_1.get();
}

// ---- rows ----

void TF6648::take_condition() {
    SqlText = select_transfers() + " WHERE " + F6648F->ResultText;
    ConditionLabel.Caption = F6648F->Description;
}

void TF6648::GetData() {
    const std::string key = current_key(AdoQry_Main, KeyField);
    TFrm_Base_Outer::GetData();
    if (!AdoQry_Main.sorted_by().empty()) return;
    AdoQry_Main.SortBy("BDATE,NOID", false);
    if (!return_to_key(AdoQry_Main, KeyField, key)) AdoQry_Main.First();
}

void TF6648::Act_LocateExecute() {
    if (F6648F->ShowModal() != mrOk) return;
    take_condition();
    GetData();
}

// ---- printing ----

Sheet TF6648::MakeSheet() {
    Sheet sheet = TFrm_Base_Outer::MakeSheet();
    if (!ConditionLabel.Caption->empty()) sheet.conditions = {ConditionLabel.Caption};
    return sheet;
}

} // namespace module
