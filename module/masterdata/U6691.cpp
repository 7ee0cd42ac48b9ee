// Maintain the cash-flow items as a tree.
#include "module/masterdata/U6691.h"

#include "module/masterdata/U6691_1.h"

namespace module {

TF6691* F6691 = nullptr;

// ---- opening ----

TF6691::TF6691(TForm* parent) : TFrm_Base_Node(parent) {
    Caption = "现金流量项目";
}

TF6691::~TF6691() = default;

void TF6691::InitForm(const Trecord& record) {
    FunctionCode = std::to_string(record.code());
    ListQuery = "SELECT * FROM D6820 ORDER BY OID,ID";
    KeyField = "id";
    NameField = "XJLL";
    ParentField = "oid";
    RootParent = "ZZZ";
    DeleteStatement = "delete from D6820 Where id=%S";
    Uses = {{"SELECT COUNT(*) AS I FROM D6601B WHERE D6820ID=%S", "已有凭证的现金流量分配到该项目"}};
    F6691_1 = std::make_unique<TF6691_1>(this);
    TFrm_Base_Node::InitForm(record);
}

TFrm_Base_Node_d* TF6691::Dialog() {
    return F6691_1.get();
}

} // namespace module
