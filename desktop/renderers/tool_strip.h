// The tool bar of a form: its actions as buttons, leaving at the far right.
#pragma once

#include <QWidget>

#include <vector>

#include "desktop/renderers/hinted_button.h"

namespace host {
class TAction;
}

namespace desktop {

class FormView;

// Null actions part groups. The first shown action is filled when it is what the form is for
// (add, save, audit, compute). When the window is narrow the key hints go first, the captions next,
// each from the right; what a button does not say then stands in its balloon.
class ToolStrip : public QWidget {
public:
    ToolStrip(const std::vector<host::TAction*>& actions, FormView& view);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void add_button(host::TAction& action, FormView& view);
    void arrange();
    void fit();
    void place();
    int used_width() const;
    bool shorten_one(HintedButton::Detail detail);
    struct Entry {
        host::TAction* action = nullptr; // null: a rule between groups
        HintedButton* button = nullptr;
    };
    std::vector<Entry> entries_;
    std::vector<int> rules_; // x of the group rules shown
};

} // namespace desktop
