// List the common summaries that voucher lines offer.
#include "module/masterdata/U6683.h"

#include "module/masterdata/U6683_1.h"
#include "module/masterdata/code_list_layout.h"

namespace module {

TF6683* F6683 = nullptr;

// ---- opening ----

TF6683::TF6683(TForm* parent) : TFrm_Base_Outer(parent) {
    Caption = "常用摘要";
    AddColumn("ZY", "摘要", -1);
    layout = code_list_layout(*this);
}

TF6683::~TF6683() = default;

void TF6683::InitForm(const Trecord& record) {
    SqlText = "select * From d6803";
    DeleteStatement = "delete from d6803 Where GUID=%S";
    KeyField = "GUID";
    NameField = "ZY";
    F6683_1 = std::make_unique<TF6683_1>(this);
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TF6683::Dialog() {
    return F6683_1.get();
}

} // namespace module
