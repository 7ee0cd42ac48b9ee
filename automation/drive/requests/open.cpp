// open: one pick from the menu, with the call record that the host would hand over; or one of the
// host's own functions by its name.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"

namespace automation::requests {

namespace {

void require_no_modal(Driver& driver) {
    if (const host::TForm* modal = driver.forms().modal()) {
        throw Refusal("the menu waits until " + driver.forms().name_of(*modal) +
                      " has been closed");
    }
}

json open_administration(Driver& driver, const std::string& name) {
    require_no_modal(driver);
    bool known = false;
    act(driver, [&] {
        known = true; // a refusal that aborts was one of a function that exists
        const auto& administration = driver.ports().administration;
        known = administration && administration(name);
    });
    if (!known) throw Refusal("the host has no function \"" + name + "\"");
    return json::object();
}

} // namespace

json open(Driver& driver, const Request& request) {
    if (request.has("host")) return open_administration(driver, request.text("host"));
    host::Trecord record;
    const std::int64_t code = request.number("code");
    if (code < INT32_MIN || code > INT32_MAX) throw Refusal("\"code\" is too large");
    record.set_code(static_cast<std::int32_t>(code));
    if (request.has("user")) {
        const json& user = request.member("user");
        if (!user.is_array() || user.size() > record.user.size()) {
            throw Refusal("\"user\" must be an array of at most six texts");
        }
        for (std::size_t at = 0; at < user.size(); ++at) {
            if (!user[at].is_string()) throw Refusal("\"user\" must hold texts only");
            record.user[at] = user[at].get<std::string>();
        }
    }
    require_no_modal(driver);
    act(driver, [&] { driver.ports().menu(record); });
    return json::object();
}

} // namespace automation::requests
