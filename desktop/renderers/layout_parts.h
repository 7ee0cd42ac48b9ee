// The pieces a form's layout is put together from.
#pragma once

#include "host/layout/layout.h"

class QBoxLayout;
class QFrame;
class QWidget;

namespace desktop {

class FormView;

// What a piece needs to know of the place it stands in.
struct LayoutPlace {
    FormView& view;
    int label_width = 0;   // of the first label of a row; 0 natural
    bool in_rows = false;  // directly below others, so labels line up
    bool quiet = false;    // in the line at the bottom, or beside the conditions of a list
    bool formula = false;  // in the line about a cell: its rest holds the cell's formula
    int label_height = 0;  // least height of a label that stands in a row; 0 natural
};

// Adds the node and everything in it at the end of `box`.
void add_node(const host::LayoutNode& node, QBoxLayout& box, LayoutPlace place);
// The width that the first labels of these rows share.
int shared_label_width(const std::vector<host::LayoutNode>& rows);
// The natural width of a control's widget when the form gives none.
void give_width(const host::LayoutNode& node, QWidget& widget);

} // namespace desktop
