// Add up the vouchers of a range of days by top-level account.
#include "module/ledgers/U6684.h"

#include "module/filters/U6684f.h"
#include "module/ledgers/U6685.h"

namespace module {

TF6684* F6684 = nullptr;

// ---- opening ----

TF6684::TF6684(TForm* parent) : TFrm_Base_Qry(parent) {
    Caption = "科目汇总表";
    AddColumn("KM_ID", "科目", 12);
    AddColumn("KM_NAME", "会计科目", -1);
    AddAmountColumn("J", "借方金额", 20);
    AddAmountColumn("D", "贷方金额", 20);
    DBGridEh.EmptyText = "没有数据，请按 F3 选择查询条件";
    Act_Open.OnExecute = [this] { DBGridEhDblClick(); };
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Open, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Rest(DBGridEh)});
}

void TF6684::InitForm(const Trecord& record) {
    SumFields = "j,d";
    KeyField = "km_id";
    TFrm_Base_Qry::InitForm(record);
}

std::unique_ptr<TFrm_Sys_Filter> TF6684::CreateFilter() {
    auto dialog = std::make_unique<TF6684F>(this);
    F6684F = dialog.get();
    return dialog;
}

// ---- lines ----

void TF6684::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    const std::string account = AdoQry_Main.FieldByName("KM_ID").AsText();
    open_detailed_ledger(this, F6684F->MonthsOf(account),
                         account + " " + AdoQry_Main.FieldByName("KM_NAME").AsText());
}

} // namespace module
