// Lays the tool buttons out by hand: visibility changes and narrow windows are both common.
#include "desktop/renderers/tool_strip.h"

#include <QPainter>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/controls/buttons.h"

namespace desktop {
namespace {

using Detail = HintedButton::Detail;

constexpr int gap = 2, rule_room = 13;

bool leaves(const host::TAction& action) { return action.Icon == "log-out"; }

// What a form is opened for; reading and filtering are not.
bool is_purpose(const host::TAction& action) {
    return action.Icon == "plus" || action.Icon == "save" || action.Icon == "stamp" ||
           action.Icon == "calculator";
}

} // namespace

ToolStrip::ToolStrip(const std::vector<host::TAction*>& actions, FormView& view) : QWidget(&view) {
    setFixedHeight(token::tool_bar);
    for (host::TAction* action : actions) {
        if (action) add_button(*action, view);
        else entries_.push_back({});
    }
    arrange();
}

void ToolStrip::add_button(host::TAction& action, FormView& view) {
    auto* button = new HintedButton(this, ButtonLook::Tool);
    button->setFocusPolicy(Qt::NoFocus); // its key reaches it from everywhere
    entries_.push_back({&action, button});
    view.listen(action, [this, button, &action] {
        button->set_drawing(action.Icon);
        button->set_texts(qt(action.Caption.get()), qt(action.ShortCut));
        button->setToolTip(qt(action.Hint.get()));
        button->setEnabled(action.Enabled);
        arrange();
    });
    QObject::connect(button, &QPushButton::clicked, button, [&action, &view] {
        if (view.form()) view.run([&action] { action.Execute(); });
    });
}

void ToolStrip::arrange() {
    bool first = true;
    for (auto& entry : entries_) {
        if (!entry.action) continue;
        const bool filled = first && entry.action->Visible && is_purpose(*entry.action);
        if (entry.action->Visible) first = false;
        entry.button->set_look(filled ? ButtonLook::PrimaryTool : ButtonLook::Tool);
    }
    auto width_at = [this](Detail detail) {
        int width = 16;
        for (auto& entry : entries_)
            if (!entry.action) width += rule_room;
            else if (entry.action->Visible) width += entry.button->width_at(detail) + 2 + gap;
        return width;
    };
    Detail detail = Detail::Full;
    if (width_at(detail) > width()) detail = Detail::NoHint;
    if (width_at(detail) > width()) detail = Detail::IconOnly;
    int x = 8;
    bool rule_due = false;
    rules_.clear();
    for (auto& entry : entries_) {
        if (!entry.action) {
            rule_due = x > 8;
            continue;
        }
        entry.button->setVisible(entry.action->Visible);
        if (!entry.action->Visible) continue;
        entry.button->set_detail(detail);
        const int wide = entry.button->sizeHint().width();
        if (leaves(*entry.action)) {
            entry.button->setGeometry(width() - 8 - wide, 6, wide, token::control);
            continue;
        }
        if (rule_due) {
            rules_.push_back(x + rule_room / 2 - gap);
            x += rule_room;
            rule_due = false;
        }
        entry.button->setGeometry(x, 6, wide, token::control);
        x += wide + gap;
    }
    update();
}

void ToolStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void ToolStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, height() - 1, width(), 1, token::rule_1);
    for (int x : rules_) painter.fillRect(x, 10, 1, 20, token::rule_2);
}

} // namespace desktop
