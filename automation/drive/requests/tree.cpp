// tree: the nodes of a tree in display order.
#include "automation/drive/requests/requests.h"

#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json tree(Driver& driver, const Request& request) {
    const host::TTreeView& tree = tree_of(form_to_read(driver, request), request);
    json nodes = json::array();
    for (const host::TTreeNode* node : tree.in_display_order()) {
        json shown = {{"text", node->Text}, {"level", node->level()}};
        if (node == tree.Selected()) shown["selected"] = true;
        nodes.push_back(std::move(shown));
    }
    return {{"tree", nodes}, {"nodes", nodes}};
}

} // namespace automation::requests
