// Maintain the chart of accounts, one tree a category.
#include "module/masterdata/U6681.h"

#include "host/values/sql_text.h"
#include "module/masterdata/U6681_1.h"
#include "module/masterdata/account_level.h"
#include "module/refuse.h"

namespace module {

TF6681* F6681 = nullptr;

namespace {

// Balances, movements, or profit and loss of the year so far.
const char* const has_figures = "(J<>0 OR D<>0 OR SY_J<>0 OR SY_D<>0)";

std::string accounts_of_category(int category) {
    return "SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=" + std::to_string(category) +
           " ORDER BY OID,KM_ID";
}

} // namespace

// ---- opening ----

TF6681::TF6681(TForm* parent) : TFrm_Base_Node(parent) {
    Caption = "会计科目";
    const std::pair<TSpeedButton*, int> categories[] = {{&SpeedButton1, 1},
                                                        {&SpeedButton2, 2},
                                                        {&SpeedButton3, 4},
                                                        {&SpeedButton4, 3},
                                                        {&SpeedButton5, 5}};
    for (const auto& [button, category] : categories) {
        button->Tag = category;
        button->GroupIndex = 1;
        button->OnClick = [this, button = button] { SpeedButton2Click(*button); };
    }
    layout = Rows({ToolBar({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, nullptr, &Act_Refresh,
                            nullptr, &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Control(SpeedButton1), Control(SpeedButton2), Control(SpeedButton3),
                            Control(SpeedButton4), Control(SpeedButton5), Spring(),
                            Field("", SearchBox, 24)}),
                   Rest(TreeView1)});
}

TF6681::~TF6681() = default;

void TF6681::InitForm(const Trecord& record) {
    FunctionCode = std::to_string(record.code());
    KeyField = "KM_ID";
    NameField = "KM_NAME";
    ParentField = "oid";
    RootParent = "Z";
    DeleteStatement = "delete from D6801 Where km_ID=%S";
    Uses = {{"SELECT COUNT(*) AS I FROM D6601A WHERE KM_ID=%S", "已有凭证使用该科目"},
            {"SELECT COUNT(*) AS I FROM D6601M WHERE KM_ID=%S", "已有凭证模板使用该科目"},
            {std::string("SELECT COUNT(*) AS I FROM D6602 WHERE KM_ID=%S AND ") + has_figures,
             "该科目已有余额或发生额"},
            {"SELECT COUNT(*) AS I FROM D6804 WHERE KM_ID=%S", "已有收支类别使用该科目"}};
    F6681_1 = std::make_unique<TF6681_1>(this);
    SpeedButton1.Down = true;
    show_category(SpeedButton1);
    TFrm_Base_Node::InitForm(record);
}

TFrm_Base_Node_d* TF6681::Dialog() {
    return F6681_1.get();
}

// ---- lines ----

void TF6681::SpeedButton2Click(TSpeedButton& sender) {
    show_category(sender);
    Act_RefreshExecute();
}

void TF6681::show_category(const TSpeedButton& category) {
    ListQuery = accounts_of_category(category.Tag);
    F6681_1->initbtn(category);
}

// ---- checking ----

void TF6681::Act_CopyAddExecute() {
    if (TreeView1.Selected()) refuse_below_account_in_use();
    TFrm_Base_Node::Act_CopyAddExecute();
}

// Posting sets a parent's figures to the sum of its children, so what was booked on the account
// itself would leave the books with its first sub-account.
void TF6681::refuse_below_account_in_use() {
    const TTreeNode* node = TreeView1.Selected();
    if (level_below(node) > deepest_account_level) {
        refuse("会计科目最多五级,不能在“" + node->Text + "”下再增加下级科目!");
    }
    const std::string own_code = GETCODE(node->Text);
    if (own_code == profit_of_the_year) {
        refuse("科目“" + node->Text + "”由结转损溢直接记帐,不能增加下级科目!");
    }
    if (!node->Children.empty()) return;
    const std::string code = quoted(own_code);
    TClientDataSet use;
    opensql(use, FunctionCode,
            "SELECT (SELECT COUNT(*) FROM D6601A WHERE KM_ID=" + code +
                ")+(SELECT COUNT(*) FROM D6602 WHERE KM_ID=" + code + " AND " + has_figures +
                ") AS I");
    if (use.IsEmpty() || use.FieldByName("I").AsInteger() == 0) return;
    refuse("科目“" + node->Text + "”已有凭证或余额,不能再增加下级科目!请在同级新增科目。");
}

} // namespace module
