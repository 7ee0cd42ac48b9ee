// List the income and expense categories, all or one kind at a time.
#include "module/masterdata/U6687.h"

#include "module/masterdata/U6687_1.h"
#include "module/masterdata/code_list_layout.h"

namespace module {

TF6687* F6687 = nullptr;

namespace {

constexpr int every_kind = 3;

// A category whose account is gone from the chart is not listed.
std::string categories_of(int kind) {
    const std::string condition =
        kind == every_kind ? "" : " where SZLB_CLASS=" + std::to_string(kind);
    return "SELECT D6804.*, V6801.KM_NAME_NEW,CASE SZLB_CLASS WHEN 0 THEN '收入类别' WHEN 1 THEN "
           "'支出类别' WHEN 2 THEN '费用类别' END AS SZLB_CLASSN FROM V6801 INNER JOIN  D6804 ON "
           "V6801.KM_ID = D6804.KM_ID " +
           condition + " ORDER BY D6804.SZLB_CLASS,D6804.SZLB";
}

} // namespace

// ---- opening ----

TF6687::TF6687(TForm* parent) : TFrm_Base_Outer(parent) {
    Caption = "收支类别";
    AddColumn("SZLB_CLASSN", "收支类别", 10); // kind in words
    AddColumn("SZLB", "代码", 8);
    AddColumn("SZLB_NAME", "名称", 24);
    AddColumn("KM_ID", "科目代码", 16);        // account its documents belong to
    AddColumn("KM_NAME_NEW", "科目名称", -1);
    AddColumn("T", "计入企业经营利润表", 18).CheckBox = true;
    int kind = 0;
    for (TSpeedButton* button : {&SP0, &SP1, &SP2, &SP3}) {
        button->Tag = kind++;
        button->GroupIndex = 1;
        button->OnClick = [this, button] { spclick(*button); };
    }
    layout = code_list_layout(*this, {&SP0, &SP1, &SP2, &SP3});
}

TF6687::~TF6687() = default;

void TF6687::InitForm(const Trecord& record) {
    SqlText = categories_of(every_kind);
    SP3.Down = true;
    DeleteStatement = "delete from D6804 Where SZLB=%S";
    KeyField = "SZLB";
    NameField = "SZLB_NAME";
    Uses = {{"SELECT COUNT(*) AS I FROM D651A WHERE SZLB=%S", "已有收款单使用该收支类别"},
            {"SELECT COUNT(*) AS I FROM D652A WHERE SZLB=%S", "已有付款单使用该收支类别"}};
    F6687_1 = std::make_unique<TF6687_1>(this);
    TFrm_Base_Outer::InitForm(record);
}

TFrm_Base_Detail* TF6687::Dialog() {
    return F6687_1.get();
}

// ---- lines ----

void TF6687::spclick(const TSpeedButton& sender) {
    SqlText = categories_of(sender.Tag);
    Act_RefreshExecute();
}

} // namespace module
