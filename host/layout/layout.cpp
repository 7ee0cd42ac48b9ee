// Builders of the layout vocabulary.
#include "host/layout/layout.h"

#include <utility>

namespace host {

namespace {

LayoutNode node(LayoutNode::Kind kind) {
    LayoutNode result;
    result.kind = kind;
    return result;
}

LayoutNode branch(LayoutNode::Kind kind, std::vector<LayoutNode> children) {
    LayoutNode result = node(kind);
    result.children = std::move(children);
    return result;
}

LayoutNode leaf(LayoutNode::Kind kind, TControl& control, int width) {
    LayoutNode result = node(kind);
    result.control = &control;
    result.width = width;
    return result;
}

LayoutNode words(LayoutNode::Kind kind, std::string text) {
    LayoutNode result = node(kind);
    result.text = std::move(text);
    return result;
}

} // namespace

LayoutNode Rows(std::vector<LayoutNode> children) {
    return branch(LayoutNode::Kind::Rows, std::move(children));
}

LayoutNode Columns(std::vector<LayoutNode> children) {
    return branch(LayoutNode::Kind::Columns, std::move(children));
}

LayoutNode Group(std::string title, std::vector<LayoutNode> rows) {
    LayoutNode result = branch(LayoutNode::Kind::Group, std::move(rows));
    result.text = std::move(title);
    return result;
}

LayoutNode Splitter(LayoutNode first, LayoutNode second, int share, bool side_by_side) {
    LayoutNode result = node(LayoutNode::Kind::Splitter);
    result.children.push_back(std::move(first));
    result.children.push_back(std::move(second));
    result.share = share;
    result.horizontal = side_by_side;
    return result;
}

LayoutNode Field(std::string label, TControl& control, int width) {
    LayoutNode result = leaf(LayoutNode::Kind::Field, control, width);
    result.text = std::move(label);
    return result;
}

LayoutNode Control(TControl& control, int width) {
    return leaf(LayoutNode::Kind::Control, control, width);
}

LayoutNode Rest(TControl& grid) { return leaf(LayoutNode::Kind::Rest, grid, -1); }

LayoutNode ToolBar(std::vector<TAction*> actions) {
    LayoutNode result = node(LayoutNode::Kind::ToolBar);
    result.actions = std::move(actions);
    return result;
}

LayoutNode Title(std::string text) { return words(LayoutNode::Kind::Title, std::move(text)); }
LayoutNode Text(std::string text) { return words(LayoutNode::Kind::Text, std::move(text)); }
LayoutNode Spring() { return node(LayoutNode::Kind::Spring); }

LayoutNode Space(int width) {
    LayoutNode result = node(LayoutNode::Kind::Space);
    result.width = width;
    return result;
}

LayoutNode Rule() { return node(LayoutNode::Kind::Rule); }

LayoutNode Buttons(std::vector<TControl*> buttons) {
    LayoutNode result = node(LayoutNode::Kind::Buttons);
    for (TControl* button : buttons) result.children.push_back(Control(*button));
    return result;
}

LayoutNode StatusLine(std::vector<LayoutNode> parts) {
    return branch(LayoutNode::Kind::StatusLine, std::move(parts));
}

} // namespace host
