// Clicks: buttons, check marks, radio groups, actions.
#include "host/controls/buttons.h"

#include "host/contract/U_function.h"
#include "host/forms/form.h"
#include "host/ports/held_readings.h"

namespace host {

namespace {

bool presses(const Key& key) {
    const bool plain = !key.ctrl && !key.shift && !key.alt;
    return plain && (key.code == KeyCode::Enter || key.code == KeyCode::Space);
}

// Lets go of the other members of a group of which one was just taken.
template <class Member, class Flag>
void release_others(Member& taken, Flag flag) {
    if (taken.form() == nullptr || taken.GroupIndex == 0) return;
    for (TComponent* part : taken.form()->components()) {
        auto* other = dynamic_cast<Member*>(part);
        if (other != nullptr && other != &taken && other->GroupIndex == taken.GroupIndex)
            other->*flag = false;
    }
}

} // namespace

void TButton::Click() {
    if (!usable()) return;
    if (OnClick) {
        const HeldReadings held;
        OnClick();
    }
    if (ModalResult != mrNone && form() != nullptr) form()->ModalResult = ModalResult;
}

bool TButton::key_down(Key key) {
    if (!presses(key)) return false;
    Click();
    return true;
}

void TSpeedButton::Click() {
    if (!usable()) return;
    if (GroupIndex != 0) Down = true;
    if (OnClick) OnClick();
}

void TSpeedButton::changed() {
    if (Down) release_others(*this, &TSpeedButton::Down);
    TControl::changed();
}

void TCheckBox::set_checked(bool on) {
    if (Checked == on) return;
    Checked = on;
    if (OnClick) OnClick();
}

bool TCheckBox::key_down(Key key) {
    if (key.code != KeyCode::Space || ReadOnly) return false;
    set_checked(!Checked);
    return true;
}

void TRadioButton::set_checked(bool on) {
    if (Checked == on) return;
    Checked = on;
    if (on && OnClick) OnClick();
}

bool TRadioButton::key_down(Key key) {
    if (key.code != KeyCode::Space || ReadOnly) return false;
    set_checked(true);
    return true;
}

void TRadioButton::changed() {
    if (Checked) release_others(*this, &TRadioButton::Checked);
    TWinControl::changed();
}

TAction::TAction(TForm* form, std::string name, std::string caption, std::string shortcut,
                 std::string icon)
    : TControl(form, std::move(name), std::move(caption)), ShortCut(std::move(shortcut)),
      Icon(std::move(icon)) {}

bool TAction::Execute() {
    if (!usable() || (OnUpdate && !OnUpdate())) return false;
    const std::string function = form() == nullptr ? "" : form()->RightsFunction();
    if (!Right.empty() && !the_host().may({function, Right})) {
        DISPINFO("您没有“" + label() + "”的权限，请与系统管理员联系。", 5);
        return false;
    }
    if (!OnExecute) return true;
    const HeldReadings held;
    OnExecute();
    return true;
}

TMenuItem::TMenuItem(TForm* form, std::string name, std::string caption)
    : TAction(form, std::move(name), std::move(caption)) {
    IsMenuItem = true;
}

} // namespace host
