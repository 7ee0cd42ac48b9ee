// The small vocabulary in which a form says how its parts stand: rows, columns, groups,
// splitters, and the grid that takes the rest. Renderers place widgets from it.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace host {

class TControl;
class TAction;

// A node of the layout; built with the functions below.
//
//     layout = Rows({ToolBar({&Act_Save, nullptr, &Act_Quit}),
//                    Columns({Field("凭证字", PZZ, 6), Field("", PZZ_H, 8), Spring(),
//                             Title("记帐凭证"), Spring(), Field("日期", BDATE, 12)}),
//                    Rest(DBGridEh)});
struct LayoutNode {
    enum class Kind { Rows, Columns, Group, Splitter, Field, Control, Rest, ToolBar, Title, Text,
                      Spring, Space, Rule, Buttons, StatusLine };
    Kind kind = Kind::Rows;
    std::vector<LayoutNode> children;
    std::string text;                 // label of a field, title of a group
    TControl* control = nullptr;
    std::vector<TAction*> actions;    // of a tool bar; null parts groups
    int width = 0;                    // characters; 0 natural, -1 takes the rest
    int share = 50;                   // of a splitter: percent of the first child
    bool horizontal = false;          // splitter with its parts side by side
};

LayoutNode Rows(std::vector<LayoutNode> children);
LayoutNode Columns(std::vector<LayoutNode> children);
LayoutNode Group(std::string title, std::vector<LayoutNode> rows);
LayoutNode Splitter(LayoutNode first, LayoutNode second, int share, bool side_by_side = false);
// A control with its label to the left; an empty label uses the control's own caption.
LayoutNode Field(std::string label, TControl& control, int width = 0);
LayoutNode Control(TControl& control, int width = 0);
LayoutNode Rest(TControl& grid); // takes what is left of the window
LayoutNode ToolBar(std::vector<TAction*> actions);
LayoutNode Title(std::string text);          // document title, serif, double rule below
LayoutNode Text(std::string text);           // fixed hint text
LayoutNode Spring();                         // pushes what follows to the far side
LayoutNode Space(int width = 1);
LayoutNode Rule();
LayoutNode Buttons(std::vector<TControl*> buttons); // bottom right of a dialog
LayoutNode StatusLine(std::vector<LayoutNode> parts); // the quiet line at the bottom of a document

} // namespace host
