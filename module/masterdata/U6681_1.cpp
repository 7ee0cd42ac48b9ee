// Enter or change one account of the chart.
#include "module/masterdata/U6681_1.h"

#include "host/contract/Zpy.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/masterdata/account_level.h"
#include "module/masterdata/new_code.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

TF6681_1::TF6681_1(TForm* parent) : TFrm_Base_Node_d(parent) {
    Caption = "会计科目";
    t0.MaxLength = 50;
    t0.UpperCase = true;
    t1.MaxLength = 100;
    RB1.GroupIndex = RB2.GroupIndex = 1;
    RB1.Checked = true;
    t0.OnExit = [this] { t0Exit(); };
    t1.OnExit = [this] { t1Exit(); };
    layout = Rows({Field("科目代号", t0, 24), Field("科目名称", t1, 40),
                   Group("余额方向", {Columns({Control(RB1), Control(RB2), Spring()})}),
                   Control(CK1), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6681_1::initbtn(const TSpeedButton& category) {
    category_ = category.Tag;
}

void TF6681_1::RefreshData() {
    CK1.Checked = false;
    FirstField = adding() ? &t0 : &t1;
    LockedField = adding() ? nullptr : &t0;
    if (Mode == "Add") {
        t0.Text = "";
        t1.Text = "";
    } else {
        load_selected_account();
    }
    TFrm_Base_Node_d::RefreshData();
}

void TF6681_1::load_selected_account() {
    TClientDataSet account;
    opensql(account, FunctionCode,
            "SELECT *  FROM D6801 WHERE (KM_ID=" + quoted(selected_code()) + ")");
    if (account.IsEmpty()) {
        refuse("科目“" + selected_code() + "”已被删除!请刷新后再试。");
    }
    t0.Text = account.FieldByName("km_id").AsText();
    t1.Text = account.FieldByName("km_name").AsText();
    const bool debit = account.FieldByName("FX").AsText() == "借";
    RB1.Checked = debit;
    RB2.Checked = !debit;
    CK1.Checked = account.FieldByName("KM_k").AsBoolean();
}

// ---- leaving a field ----

void TF6681_1::t0Exit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_code(*this, t0, "科目代号",
                     "select km_id from D6801  where km_id=" + quoted(t0.Text.get()),
                     "科目代号 已登记!");
}

void TF6681_1::t1Exit() {
    if (!leaving_by_cancel()) CheckBlank(t1, "科目名称");
}

// ---- statements ----

std::string TF6681_1::insert_account(const std::string& level) const {
    return "insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) ValueS(" +
           quoted(t0.Text.get()) + "," + quoted(t1.Text.get()) + "," + quoted(side()) + "," +
           quoted(parent_code()) + "," + quoted(GetPY(trimmed(t1.Text.get()))) + "," +
           quoted(std::to_string(category_)) + "," + quoted(level) + "," +
           quoted(boltos(CK1.Checked)) + ")";
}

std::string TF6681_1::update_account(const std::string& level) const {
    return "UPDATE D6801 SET  km_NAME = " + quoted(t1.Text.get()) + ",km_J= " + quoted(level) +
           ",km_k= " + quoted(boltos(CK1.Checked)) + ",fx= " + quoted(side()) +
           ",PYM=" + quoted(GetPY(trimmed(t1.Text.get()))) +
           " where km_id=" + quoted(selected_code());
}

// ---- saving ----

void TF6681_1::SaveData() {
    if (!may_allocate_cash_flow(t0.Text)) CK1.Checked = false;
    const TTreeNode* node = Tree->Selected();
    const int level = Mode == "CopyAdd" ? level_below(node) : level_beside(node);
    const std::string text = std::to_string(level);
    const std::string statement = adding() ? insert_account(text) : update_account(text);
    saved_ = ExecSql(FunctionCode, t0.Text, Mode, statement) == "Y";
    if (saved_) show_in_tree();
}

std::string TF6681_1::selected_code() const {
    const TTreeNode* node = Tree->Selected();
    return node ? GETCODE(node->Text) : "";
}

std::string TF6681_1::parent_code() const {
    const TTreeNode* node = Tree->Selected();
    if (Mode == "CopyAdd") return selected_code();
    return node && node->Parent ? GETCODE(node->Parent->Text) : "Z";
}

void TF6681_1::show_in_tree() {
    TTreeNode* node = Tree->Selected();
    if (Mode == "Edit") {
        Tree->SetText(node, trimmed(t0.Text.get()) + " " + trimmed(t1.Text.get()));
        return;
    }
    const std::string text = t0.Text.get() + " " + t1.Text.get();
    Tree->Select(Mode == "CopyAdd" ? Tree->AddChild(node, text) : Tree->AddSibling(node, text));
}

} // namespace module
