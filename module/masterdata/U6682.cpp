// List the voucher words and mark the default one.
#include "module/masterdata/U6682.h"

#include "module/masterdata/U6682_1.h"
#include "module/masterdata/code_list_layout.h"

namespace module {

TF6682* F6682 = nullptr;

// ---- opening ----

TF6682::TF6682(TForm* parent) : TFrm_Base_Outer(parent) {
    Caption = "凭证字";
    AddColumn("PZZ", "凭证字", 10);         // voucher word
    AddColumn("PZZ_PRINT", "打印标题", 24); // printed title
    AddColumn("T", "是否默认", 8).Align = Alignment::Center;
    layout = code_list_layout(*this);
}

TF6682::~TF6682() = default;

void TF6682::InitForm(const Trecord& record) {
    SqlText = "select * From d6802";
    DeleteStatement = "delete from d6802 Where pzz=%S";
    KeyField = "pzz";
    NameField = "PZZ_PRINT";
    Uses = {{"SELECT COUNT(*) AS I FROM D6601 WHERE PZZ=%S", "已有凭证使用该凭证字"}};
    F6682_1 = std::make_unique<TF6682_1>(this);
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TF6682::Dialog() {
    return F6682_1.get();
}

} // namespace module
