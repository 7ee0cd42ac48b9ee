// Enter or change one code of a tree of codes: an account of the chart, a cash-flow item.
#include "module/masterdata/code_tree_dialog.h"

#include "host/contract/Zpy.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/masterdata/new_code.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

CodeTreeDialog::CodeTreeDialog(TForm* parent, const CodeTreeKind& kind)
    : TFrm_Base_Node_d(parent), kind_(kind) {
    t0.Caption = std::string(kind.code_caption);
    t0.MaxLength = kind.code_length;
    t0.UpperCase = true;
    t1.Caption = std::string(kind.name_caption);
    t1.MaxLength = 100;
    RB1.Caption = std::string(kind.side);
    RB2.Caption = std::string(kind.other_side);
    RB1.GroupIndex = RB2.GroupIndex = 1;
    RB1.Checked = true;
    t0.OnExit = [this] { t0Exit(); };
    t1.OnExit = [this] { t1Exit(); };
    layout = Rows({Field(kind.code_caption, t0, 24), Field(kind.name_caption, t1, 40),
                   Group(kind.side_caption, {Columns({Control(RB1), Control(RB2), Spring()})}),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void CodeTreeDialog::RefreshData() {
    show_more(nullptr);
    FirstField = adding() ? &t0 : &t1;
    LockedField = adding() ? nullptr : &t0;
    if (Mode == "Add") {
        t0.Text = "";
        t1.Text = "";
    } else {
        load_selected();
    }
    TFrm_Base_Node_d::RefreshData();
}

void CodeTreeDialog::load_selected() {
    TClientDataSet row;
    opensql(row, FunctionCode, kind_.row_of_code + quoted(selected_code()) + ")");
    if (row.IsEmpty()) {
        refuse(kind_.item + ("“" + selected_code()) + "”已被删除!请刷新后再试。");
    }
    t0.Text = row.FieldByName(kind_.code_field).AsText();
    t1.Text = row.FieldByName(kind_.name_field).AsText();
    const bool first = row.FieldByName(kind_.side_field).AsText() == kind_.side;
    RB1.Checked = first;
    RB2.Checked = !first;
    loaded_on_first_side_ = first;
    show_more(&row);
}

// ---- leaving a field ----

void CodeTreeDialog::t0Exit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_code(*this, t0, kind_.code_label, kind_.rows_with_code + quoted(t0.Text.get()),
                     kind_.code_known);
}

void CodeTreeDialog::t1Exit() {
    if (!leaving_by_cancel()) CheckBlank(t1, kind_.name_label);
}

// ---- statements ----

std::string CodeTreeDialog::name() const {
    return quoted(t1.Text.get());
}

std::string CodeTreeDialog::side() const {
    return quoted(RB1.Checked ? kind_.side : kind_.other_side);
}

std::string CodeTreeDialog::initials() const {
    return quoted(GetPY(trimmed(t1.Text.get())));
}

std::string CodeTreeDialog::insert() const {
    return kind_.insert + quoted(t0.Text.get()) + "," + name() + "," + side() + "," +
           quoted(parent_code()) + "," + initials() + further_values() + ")";
}

// ---- saving ----

void CodeTreeDialog::SaveData() {
    const std::string statement = adding() ? insert() : update();
    saved_ = ExecSql(FunctionCode, t0.Text, Mode, statement) == "Y";
    if (saved_) show_in_tree();
}

std::string CodeTreeDialog::selected_code() const {
    const TTreeNode* node = Tree->Selected();
    return node ? GETCODE(node->Text) : "";
}

std::string CodeTreeDialog::parent_code() const {
    const TTreeNode* node = Tree->Selected();
    if (Mode == "CopyAdd") return selected_code();
    return node && node->Parent ? GETCODE(node->Parent->Text) : kind_.top;
}

void CodeTreeDialog::show_in_tree() {
    TTreeNode* node = Tree->Selected();
    if (Mode == "Edit") {
        Tree->SetText(node, trimmed(t0.Text.get()) + " " + trimmed(t1.Text.get()));
        return;
    }
    const std::string text = t0.Text.get() + " " + t1.Text.get();
    Tree->Select(Mode == "CopyAdd" ? Tree->AddChild(node, text) : Tree->AddSibling(node, text));
}

} // namespace module
