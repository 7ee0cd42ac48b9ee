// Enter or change one account of the chart.
#include "module/masterdata/U6681_1.h"

#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "module/masterdata/account_level.h"
#include "module/refuse.h"

namespace module {

namespace {

constexpr CodeTreeKind accounts{
    .item = "科目",
    .code_caption = "科目代号",
    .name_caption = "科目名称",
    .code_label = "科目代号",
    .name_label = "科目名称",
    .code_known = "科目代号 已登记!",
    .code_length = 50,
    .side_caption = "余额方向",
    .side = "借",
    .other_side = "贷",
    .top = "Z",
    .rows_with_code = "select km_id from D6801  where km_id=",
    .row_of_code = "SELECT *  FROM D6801 WHERE (KM_ID=",
    .code_field = "km_id",
    .name_field = "km_name",
    .side_field = "FX",
    .insert = "insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) ValueS("};

} // namespace

// ---- opening ----

TF6681_1::TF6681_1(TForm* parent) : CodeTreeDialog(parent, accounts) {
    Caption = "会计科目";
    layout = Rows({Field(accounts.code_caption, t0, 24), Field(accounts.name_caption, t1, 40),
                   Group(accounts.side_caption, {Columns({Control(RB1), Control(RB2), Spring()})}),
                   Control(CK1), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6681_1::initbtn(const TSpeedButton& category) {
    category_ = category.Tag;
}

void TF6681_1::show_more(TClientDataSet* row) {
    CK1.Checked = row != nullptr && row->FieldByName("KM_k").AsBoolean();
}

// ---- statements ----

std::string TF6681_1::level() const {
    const TTreeNode* node = Tree->Selected();
    return quoted(std::to_string(Mode == "CopyAdd" ? level_below(node) : level_beside(node)));
}

std::string TF6681_1::cash_flow_mark() const {
    return quoted(boltos(CK1.Checked));
}

std::string TF6681_1::further_values() const {
    return "," + quoted(std::to_string(category_)) + "," + level() + "," + cash_flow_mark();
}

std::string TF6681_1::update() const {
    return "UPDATE D6801 SET  km_NAME = " + name() + ",km_J= " + level() +
           ",km_k= " + cash_flow_mark() + ",fx= " + side() + ",PYM=" + initials() +
           " where km_id=" + quoted(selected_code());
}

// ---- saving ----

// A balance stands on its account's own side: turned round, the account would begin the next month
// without it.
void TF6681_1::refuse_turning_account_with_balance() {
    TClientDataSet balances;
    opensql(balances, FunctionCode,
            "SELECT COUNT(*) AS I FROM D6602 WHERE KM_ID=" + quoted(selected_code()) +
                " AND INX=1 AND (J<>0 OR D<>0)");
    if (balances.IsEmpty() || balances.FieldByName("I").AsInteger() == 0) return;
    refuse("科目“" + Tree->Selected()->Text +
           "”已有余额,不能改变余额方向!请另增科目,用凭证把余额转过去。");
}

void TF6681_1::SaveData() {
    if (Mode == "Edit" && side_changed()) refuse_turning_account_with_balance();
    if (!may_allocate_cash_flow(t0.Text)) CK1.Checked = false;
    CodeTreeDialog::SaveData();
}

} // namespace module
