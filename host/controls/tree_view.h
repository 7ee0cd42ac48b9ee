// A tree of texts, such as the chart of accounts.
#pragma once

#include <memory>

#include "host/controls/control.h"

namespace host {

class TTreeNode {
public:
    std::string Text;
    TTreeNode* Parent = nullptr;
    std::vector<std::unique_ptr<TTreeNode>> Children;
    int level() const; // 0 for a root
};

class TTreeView : public TWinControl {
public:
    TTreeView(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TTreeView"; }

    std::vector<std::unique_ptr<TTreeNode>> Roots;
    TTreeNode* Selected() const { return selected_; }
    void Select(TTreeNode* node); // null selects nothing; runs OnChange when it changes
    TTreeNode* AddRoot(std::string text);
    TTreeNode* AddChild(TTreeNode* parent, std::string text); // null parent: a root
    TTreeNode* AddSibling(TTreeNode* beside, std::string text);
    void Remove(TTreeNode* node); // selects the next sibling, the previous one or the parent
    void SetText(TTreeNode* node, std::string text);
    void Clear();
    std::vector<TTreeNode*> in_display_order() const;
    TTreeNode* find(const std::string& text) const;
    std::function<void()> OnChange;
    std::function<void()> OnDblClick;
    std::string value_text() const override;
    bool key_down(Key key) override; // up, down; Enter as a double click

private:
    TTreeNode* selected_ = nullptr;
};

} // namespace host
