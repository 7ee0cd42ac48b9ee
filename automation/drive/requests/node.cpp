// node: selects a node of a tree by its text or the code in front of it.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

namespace {

// The node with that text; else the one whose code, the text before the first blank, it is.
host::TTreeNode* find_node(const host::TTreeView& tree, const std::string& text) {
    host::TTreeNode* by_code = nullptr;
    for (host::TTreeNode* node : tree.in_display_order()) {
        if (node->Text == text) return node;
        if (by_code == nullptr && node->Text.substr(0, node->Text.find(' ')) == text)
            by_code = node;
    }
    return by_code;
}

} // namespace

json node(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    host::TTreeView& tree = tree_of(form, request);
    const std::string text = request.text("text");
    host::TTreeNode* node = find_node(tree, text);
    if (node == nullptr) throw Refusal(tree.Name() + " has no node \"" + text + "\"");
    move_focus(driver, form, tree);
    act_fully(driver, [&] { tree.Select(node); });
    return json::object();
}

} // namespace automation::requests
