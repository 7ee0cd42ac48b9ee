// Maintenance of a tree.
#include "host/forms/Base_Node.h"

#include <algorithm>
#include <map>

#include "host/forms/Base_Node_d.h"
#include "host/forms/parts/list_search.h"
#include "host/forms/parts/paper_job.h"
#include "host/forms/parts/sheet_export.h"
#include "host/ports/host.h"
#include "host/printing/grid_sheet.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

TFrm_Base_Node::TFrm_Base_Node(TForm* parent) : TFrm_Base_Common(parent) {
    Act_Add.OnExecute = [this] { Act_AddExecute(); };
    Act_CopyAdd.OnExecute = [this] { Act_CopyAddExecute(); };
    Act_Modify.OnExecute = [this] { Act_ModifyExecute(); };
    Act_Delete.OnExecute = [this] { Act_DeleteExecute(); };
    Act_Refresh.OnExecute = [this] { Act_RefreshExecute(); };
    Act_Print.OnExecute = [this] { Act_PrintExecute(); };
    Act_Preview.OnExecute = [this] { Act_PreviewExecute(); };
    Act_Export.OnExecute = [this] { Act_ExportExecute(); };
    Act_Quit.OnExecute = [this] { Close(); };
    Act_Add.Right = Act_CopyAdd.Right = "add";
    Act_Modify.Right = "change";
    Act_Delete.Right = "delete";
    Act_Print.Right = Act_Preview.Right = "print";
    Act_Export.Right = "export";
    Act_Print.Visible = Act_Preview.Visible = can_print();
    TreeView1.OnDblClick = [this] { Act_Modify.Execute(); };
    SearchBox.OnChange = [this] { search(false); };
    layout = Rows({ToolBar({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, nullptr, &Act_Refresh,
                            nullptr, &Act_Print, &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Columns({Field("", SearchBox, 24), Spring()}), Rest(TreeView1)});
}

void TFrm_Base_Node::InitForm(const Trecord& record) {
    OpenFunction(record);
    if (!ListQuery.empty()) Act_RefreshExecute();
    Show();
    SetFocusTo(TreeView1);
}

void TFrm_Base_Node::GetData() { opensql(AdoQry_Main, FunctionCode, ListQuery); }

// A row whose parent is not in the list stands at the top, so that nothing is hidden.
void TFrm_Base_Node::GetList() {
    TreeView1.Clear();
    const int key = AdoQry_Main.FieldByName(KeyField).index();
    const int name = AdoQry_Main.FieldByName(NameField).index();
    const int parent = AdoQry_Main.FieldByName(ParentField).index();
    std::map<std::string, std::vector<int>> children; // rows by their parent's code
    std::map<std::string, int> row_of;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row)
        row_of[upper_case(trimmed(AdoQry_Main.text_at(row, key)))] = row;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const std::string above = upper_case(trimmed(AdoQry_Main.text_at(row, parent)));
        const bool known = row_of.contains(above) && row_of[above] != row;
        children[known ? above : RootParent].push_back(row);
    }
    const std::function<void(const std::string&, TTreeNode*)> add = [&](const std::string& code,
                                                                        TTreeNode* above) {
        const auto rows = children.extract(code); // taken once: a ring of parents ends here
        if (rows.empty()) return;
        for (const int row : rows.mapped()) {
            const std::string own = trimmed(AdoQry_Main.text_at(row, key));
            TTreeNode* node =
                TreeView1.AddChild(above, own + " " + trimmed(AdoQry_Main.text_at(row, name)));
            add(upper_case(own), node);
        }
    };
    add(RootParent, nullptr);
}

void TFrm_Base_Node::select_code(const std::string& code) {
    TTreeNode* wanted = nullptr;
    for (TTreeNode* node : TreeView1.in_display_order())
        if (same_text(GETCODE(node->Text), code)) wanted = node;
    if (wanted == nullptr && !TreeView1.Roots.empty()) wanted = TreeView1.Roots.front().get();
    TreeView1.Select(wanted);
}

void TFrm_Base_Node::Act_RefreshExecute() {
    const TTreeNode* selected = TreeView1.Selected();
    const std::string code = selected == nullptr ? "" : GETCODE(selected->Text);
    GetData();
    GetList();
    select_code(code);
}

void TFrm_Base_Node::open_dialog(const char* mode) {
    TFrm_Base_Node_d* dialog = Dialog();
    if (dialog == nullptr) return;
    dialog->FunctionCode = FunctionCode;
    const TTreeNode* selected = TreeView1.Selected();
    dialog->Open(mode, selected == nullptr ? "" : GETCODE(selected->Text), &AdoQry_Main,
                 &TreeView1);
}

void TFrm_Base_Node::Act_AddExecute() { open_dialog("Add"); }

void TFrm_Base_Node::Act_CopyAddExecute() {
    if (TreeView1.Selected() != nullptr) open_dialog("CopyAdd");
}

void TFrm_Base_Node::Act_ModifyExecute() {
    if (TreeView1.Selected() != nullptr) open_dialog("Edit");
}

void TFrm_Base_Node::Act_DeleteExecute() {
    TTreeNode* node = TreeView1.Selected();
    if (node == nullptr) return;
    if (!node->Children.empty()) {
        DISPINFO("“" + node->Text + "”下面还有下级，不能删除；请先删除它的下级!", 5);
        return;
    }
    const std::string code = GETCODE(node->Text);
    allow_delete(Uses, FunctionCode, code, node->Text);
    if (ExecSql(FunctionCode, code, "Delete", with_key(DeleteStatement, code)) == "Y")
        TreeView1.Remove(node);
}

void TFrm_Base_Node::Act_PrintExecute() {
    the_host().ui->print(*paper_of(sheet_of(TreeView1, Caption)), false);
}

void TFrm_Base_Node::Act_PreviewExecute() {
    the_host().ui->print(*paper_of(sheet_of(TreeView1, Caption)), true);
}

void TFrm_Base_Node::Act_ExportExecute() { export_sheet(sheet_of(TreeView1, Caption)); }

void TFrm_Base_Node::search(bool next) {
    const std::string typed = trimmed(SearchBox.Text.get());
    const std::vector<TTreeNode*> nodes = TreeView1.in_display_order();
    if (typed.empty() || nodes.empty()) return;
    const auto at = std::find(nodes.begin(), nodes.end(), TreeView1.Selected());
    std::size_t from = at == nodes.end() ? 0 : static_cast<std::size_t>(at - nodes.begin());
    if (next) ++from;
    for (std::size_t step = 0; step < nodes.size(); ++step) {
        TTreeNode* node = nodes[(from + step) % nodes.size()];
        if (!matches_typed(node->Text, typed)) continue;
        TreeView1.Select(node);
        return;
    }
}

void TFrm_Base_Node::FormKeyDown(Key& key) {
    TFrm_Base_Common::FormKeyDown(key);
    if (key.code != KeyCode::Enter || key.ctrl || key.alt || !SearchBox.focused()) return;
    key = {};
    search(true);
}

} // namespace host
