// key: one key stroke to a control or to wherever the focus is.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "host/controls/key.h"
#include "host/forms/form.h"

namespace automation::requests {

json key(Driver& driver, const Request& request) {
    const std::string name = request.text("key");
    const auto key = host::Key::parse(name);
    if (!key) {
        throw Refusal("no key is named \"" + name +
                      "\"; known: F1 to F12, Enter, Tab, Esc, Space, Insert, Delete, Backspace, "
                      "Home, End, PageUp, PageDown, Up, Down, Left, Right, one character, with "
                      "Ctrl+, Shift+ or Alt+ in front");
    }
    host::TForm& form = form_to_act_on(driver, request);
    if (request.has("control")) focus(driver, request);
    if (!driver.forms().is_open(form)) throw Refusal("the form was closed");
    act(driver, [&] { form.KeyDown(*key); });
    return json::object();
}

} // namespace automation::requests
