// click: a button, an action, a menu item, a label that reacts, a mark.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

namespace {

// The menu an item stands in is opened first, for it settles there which items can be used.
void open_menu_of(Driver& driver, const host::TForm& form, const host::TAction& item) {
    for (host::TComponent* part : form.components()) {
        const auto* menu = dynamic_cast<host::TPopupMenu*>(part);
        if (menu == nullptr || !menu->OnPopup) continue;
        if (std::find(menu->Items.begin(), menu->Items.end(), &item) == menu->Items.end()) continue;
        act(driver, [&] { menu->OnPopup(); });
    }
}

void click_action(Driver& driver, const host::TForm& form, host::TAction& action) {
    open_menu_of(driver, form, action);
    require_usable(action);
    const std::string name = action.Name();
    bool executed = true;
    const Ending ending = act(driver, [&] { executed = action.Execute(); });
    if (ending == Ending::Done && !executed) {
        throw Refusal(name + " was refused: " + driver.last_message());
    }
}

// Buttons and marks take the focus before they react, so the field left is checked first.
bool click_window(Driver& driver, host::TForm& form, host::TWinControl& window) {
    std::function<void()> deed;
    if (auto* button = dynamic_cast<host::TButton*>(&window)) {
        deed = [button] { button->Click(); };
    } else if (auto* box = dynamic_cast<host::TCheckBox*>(&window)) {
        require_writable(*box);
        deed = [box] { box->set_checked(!box->Checked); };
    } else if (auto* radio = dynamic_cast<host::TRadioButton*>(&window)) {
        require_writable(*radio);
        deed = [radio] { radio->set_checked(true); };
    } else {
        return false;
    }
    move_focus(driver, form, window);
    act(driver, deed);
    return true;
}

} // namespace

json click(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    host::TControl& control = control_of(form, request);
    if (auto* action = dynamic_cast<host::TAction*>(&control)) {
        click_action(driver, form, *action);
        return json::object();
    }
    require_usable(control);
    if (auto* window = dynamic_cast<host::TWinControl*>(&control)) {
        if (click_window(driver, form, *window)) return json::object();
    } else if (auto* speed = dynamic_cast<host::TSpeedButton*>(&control)) {
        act(driver, [&] { speed->Click(); });
        return json::object();
    } else if (auto* label = dynamic_cast<host::TLabel*>(&control); label && label->OnClick) {
        act(driver, [&] { label->OnClick(); });
        return json::object();
    }
    throw Refusal(control.Name() + " (" + control.ClassName() + ") does nothing when clicked");
}

} // namespace automation::requests
