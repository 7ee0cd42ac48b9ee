// Lays the tool buttons out by hand: visibility changes and narrow windows are both common.
#include "desktop/renderers/tool_strip.h"

#include <QPainter>

#include "desktop/renderers/form_view.h"
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

// The form's own hint; a button that lost its caption or key says them here.
QString balloon_of(const host::TAction& action, Detail detail) {
    const QString hint = qt(action.Hint.get()), key = qt(action.ShortCut);
    if (!hint.isEmpty() || detail == Detail::Full) return hint;
    return key.isEmpty() ? qt(action.Caption.get()) : qt(action.Caption.get()) + "  " + key;
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
    fit();
    place();
}

int ToolStrip::used_width() const {
    int used = 16;
    for (const auto& entry : entries_)
        if (!entry.action) used += rule_room;
        else if (entry.action->Visible) used += entry.button->sizeHint().width() + gap;
    return used;
}

// The last button that still says more than `detail` says that little; false when there is none.
bool ToolStrip::shorten_one(Detail detail) {
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        if (!entry->action || !entry->action->Visible) continue;
        HintedButton& button = *entry->button;
        if (button.width_at(detail) >= button.width_at(button.detail())) continue;
        button.set_detail(detail);
        button.setToolTip(balloon_of(*entry->action, detail));
        return true;
    }
    return false;
}

void ToolStrip::fit() {
    for (auto& entry : entries_) {
        if (!entry.action) continue;
        entry.button->set_detail(Detail::Full);
        entry.button->setToolTip(balloon_of(*entry.action, Detail::Full));
    }
    for (const Detail detail : {Detail::NoHint, Detail::IconOnly})
        while (used_width() > width() && shorten_one(detail)) {}
}

void ToolStrip::place() {
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
