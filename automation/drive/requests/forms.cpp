// forms: the open forms, the active one first.
#include "automation/drive/requests/requests.h"

#include "automation/drive/driver.h"
#include "host/forms/form.h"

namespace automation::requests {

json forms(Driver& driver, const Request&) {
    json list = json::array();
    for (const host::TForm* form : driver.forms().in_order()) {
        list.push_back({{"form", driver.forms().name_of(*form)},
                        {"class", form->ClassName()},
                        {"caption", form->Caption.get()},
                        {"modal", driver.forms().is_modal(*form)},
                        {"tag", form->Tag}});
    }
    return {{"forms", std::move(list)}};
}

} // namespace automation::requests
