// Places the widgets of a form as its layout says.
#pragma once

namespace host {
struct LayoutNode;
}

class QVBoxLayout;

namespace desktop {

class FormView;

// What the form looks like as a whole: a list fills its window to the edges, a document has
// margins and a title, a dialog has its buttons at the bottom.
enum class FormKind { List, Document, Dialog };
FormKind kind_of(const host::LayoutNode& root);

// Adds the node's rows to `bands` from top to bottom: tool bars and grids to the edges, fields in
// blocks whose labels line up, buttons and the status line below a rule.
void add_bands(const host::LayoutNode& node, QVBoxLayout& bands, FormView& view, FormKind kind);

// Gives `view` its widgets and their places; once, when the view is made.
void build_layout(const host::LayoutNode& root, FormView& view);

} // namespace desktop
