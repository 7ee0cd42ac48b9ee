// A tree of texts: building it, moving in it.
#include "host/controls/tree_view.h"

#include <algorithm>

namespace host {

namespace {

void gather(const std::vector<std::unique_ptr<TTreeNode>>& nodes, std::vector<TTreeNode*>& all) {
    for (const auto& node : nodes) {
        all.push_back(node.get());
        gather(node->Children, all);
    }
}

} // namespace

int TTreeNode::level() const {
    int level = 0;
    for (const TTreeNode* up = Parent; up != nullptr; up = up->Parent) ++level;
    return level;
}

TTreeView::TTreeView(TForm* form, std::string name, std::string caption)
    : TWinControl(form, std::move(name), std::move(caption)) {}

void TTreeView::Select(TTreeNode* node) {
    if (node == selected_) return;
    selected_ = node;
    changed();
    if (OnChange) OnChange();
}

TTreeNode* TTreeView::AddChild(TTreeNode* parent, std::string text) {
    auto& siblings = parent == nullptr ? Roots : parent->Children;
    siblings.push_back(std::make_unique<TTreeNode>());
    TTreeNode* node = siblings.back().get();
    node->Text = std::move(text);
    node->Parent = parent;
    changed();
    return node;
}

TTreeNode* TTreeView::AddRoot(std::string text) { return AddChild(nullptr, std::move(text)); }

TTreeNode* TTreeView::AddSibling(TTreeNode* beside, std::string text) {
    return AddChild(beside == nullptr ? nullptr : beside->Parent, std::move(text));
}

void TTreeView::Remove(TTreeNode* node) {
    auto& siblings = node->Parent == nullptr ? Roots : node->Parent->Children;
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [&](const auto& sibling) { return sibling.get() == node; });
    if (at == siblings.end()) return;
    TTreeNode* next = node->Parent;
    if (std::next(at) != siblings.end())
        next = std::next(at)->get();
    else if (at != siblings.begin())
        next = std::prev(at)->get();
    bool selection_goes = false;
    for (TTreeNode* up = selected_; up != nullptr; up = up->Parent)
        selection_goes = selection_goes || up == node;
    siblings.erase(at);
    if (selection_goes) {
        selected_ = nullptr;
        Select(next);
    }
    changed();
}

void TTreeView::SetText(TTreeNode* node, std::string text) {
    if (node->Text == text) return;
    node->Text = std::move(text);
    changed();
}

void TTreeView::Clear() {
    Roots.clear();
    selected_ = nullptr;
    changed();
}

std::vector<TTreeNode*> TTreeView::in_display_order() const {
    std::vector<TTreeNode*> all;
    gather(Roots, all);
    return all;
}

TTreeNode* TTreeView::find(const std::string& text) const {
    for (TTreeNode* node : in_display_order())
        if (node->Text == text) return node;
    return nullptr;
}

std::string TTreeView::value_text() const { return selected_ == nullptr ? "" : selected_->Text; }

bool TTreeView::key_down(Key key) {
    if (key.ctrl || key.alt || key.shift) return false;
    if (key.code == KeyCode::Enter && OnDblClick && selected_ != nullptr) {
        OnDblClick();
        return true;
    }
    const int step = key.code == KeyCode::Up ? -1 : key.code == KeyCode::Down ? 1 : 0;
    const std::vector<TTreeNode*> all = in_display_order();
    if (step == 0 || all.empty()) return false;
    const auto at = std::find(all.begin(), all.end(), selected_);
    const auto index = at == all.end() ? -1 : at - all.begin();
    const auto to = std::clamp<std::ptrdiff_t>(index + step, 0, std::ssize(all) - 1);
    Select(all[static_cast<std::size_t>(to)]);
    return true;
}

} // namespace host
