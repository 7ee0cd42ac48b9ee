// Where the focus is and where keys go.
#include <algorithm>

#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

void gather(const LayoutNode& node, std::vector<TWinControl*>& controls) {
    if (auto* control = dynamic_cast<TWinControl*>(node.control)) controls.push_back(control);
    for (const LayoutNode& child : node.children) gather(child, controls);
}

bool wants_focus(const TWinControl& control) {
    if (!control.usable() || !control.TabStop) return false;
    // A line that only shows something is passed by; grids and memos are walked in.
    const bool line = dynamic_cast<const TEdit*>(&control) != nullptr;
    return !(line && control.ReadOnly);
}

// Keeps the target visible to exit handlers for as long as they run.
class Heading {
public:
    Heading(TWinControl*& target, TWinControl* to) : target_(target) { target_ = to; }
    ~Heading() { target_ = nullptr; }
    Heading(const Heading&) = delete;
    Heading& operator=(const Heading&) = delete;

private:
    TWinControl*& target_;
};

char32_t character_of(const Key& key) {
    if (key.ctrl || key.alt) return 0;
    switch (key.code) {
    case KeyCode::Character: return key.character;
    case KeyCode::Space: return ' ';
    case KeyCode::Enter: return 13;
    default: return 0;
    }
}

} // namespace

TComponent* TForm::FindComponent(const std::string& name) const {
    for (TComponent* component : components_)
        if (same_text(component->Name(), name)) return component;
    return nullptr;
}

std::vector<TWinControl*> TForm::TabOrder() const {
    std::vector<TWinControl*> order;
    gather(layout, order);
    if (order.empty())
        for (TComponent* component : components_)
            if (auto* control = dynamic_cast<TWinControl*>(component)) order.push_back(control);
    std::erase_if(order, [](const TWinControl* control) { return !wants_focus(*control); });
    return order;
}

void TForm::SetFocusTo(TWinControl& control) {
    if (active_ == &control || target_ == &control) return;
    TWinControl* const before = active_;
    // An exit handler that sends the focus elsewhere is not asked a second time on the way.
    const bool being_left = target_ != nullptr;
    if (before != nullptr && before->usable() && !being_left) {
        const Heading heading(target_, &control);
        before->leave();
        if (before->OnExit) before->OnExit();
    }
    if (active_ != before) return; // the exit handler sent the focus somewhere itself
    active_ = &control;
    if (auto* edit = dynamic_cast<TEdit*>(active_)) edit->SelectAll();
    if (before != nullptr) before->changed();
    active_->changed();
    if (control.OnEnter) control.OnEnter();
}

void TForm::CommitActive() {
    if (active_ == nullptr || !active_->usable()) return;
    TWinControl& control = *active_;
    const Heading heading(target_, &control);
    control.leave();
    if (control.OnExit) control.OnExit();
}

void TForm::SelectNext(bool backward) {
    const std::vector<TWinControl*> order = TabOrder();
    if (order.empty()) return;
    const auto at = std::find(order.begin(), order.end(), active_);
    const auto count = std::ssize(order);
    const auto from = at == order.end() ? (backward ? 0 : -1) : at - order.begin();
    SetFocusTo(*order[static_cast<std::size_t>((from + (backward ? count - 1 : 1)) % count)]);
}

bool TForm::press_shortcut(const Key& key) {
    const std::string name = key.to_text();
    for (TComponent* component : components_) {
        auto* action = dynamic_cast<TAction*>(component);
        if (action == nullptr || action->ShortCut.empty() || !action->usable()) continue;
        if (!same_text(action->ShortCut, name)) continue;
        action->Execute();
        return true;
    }
    return false;
}

bool TForm::press_button_for(const Key& key) {
    const bool enter = key.code == KeyCode::Enter, esc = key.code == KeyCode::Esc;
    if (key.ctrl || key.alt || key.shift || !(enter || esc)) return false;
    for (TComponent* component : components_) {
        auto* button = dynamic_cast<TButton*>(component);
        if (button == nullptr || !button->usable()) continue;
        if (!(enter ? button->Default : button->Cancel)) continue;
        if (esc && !CloseQuery()) return true; // unsaved work keeps it open
        SetFocusTo(*button);
        button->Click();
        return true;
    }
    return false;
}

// The active control's share of a key: its own handlers, then what the control does by itself.
bool TForm::press_key(Key key) {
    if (active_ == nullptr || !active_->usable()) return false;
    TWinControl& control = *active_;
    if (control.OnKeyDown) {
        control.OnKeyDown(key);
        if (key.code == KeyCode::None) return true;
    }
    if (key.code == KeyCode::Character && !key.ctrl && !key.alt) {
        char32_t character = key.character;
        auto* grid_like = &control;
        // A grid asks its own handler in type(); other controls have it asked here.
        if (control.OnKeyPress && std::string(control.ClassName()) != "TDBGridEh")
            control.OnKeyPress(character);
        if (character != 0) grid_like->type(character);
        return true;
    }
    if (control.key_down(key)) return true;
    if (key.code != KeyCode::Space || key.ctrl || key.alt) return false;
    control.type(' ');
    return true;
}

bool TForm::KeyDown(Key key) {
    FormKeyDown(key);
    if (key.code == KeyCode::None) return true;
    if (char32_t character = character_of(key)) {
        const char32_t before = character;
        FormKeyPress(character);
        if (character == 0) return true;
        if (character != before) key.character = character;
    }
    if (press_key(key) || press_shortcut(key) || press_button_for(key)) return true;
    const bool plain = !key.ctrl && !key.alt;
    if (plain && (key.code == KeyCode::Enter || key.code == KeyCode::Tab)) {
        SelectNext(key.shift);
        return true;
    }
    return false;
}

} // namespace host
