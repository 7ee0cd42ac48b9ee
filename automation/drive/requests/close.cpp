// close: the close button of a form, which may ask about unsaved work first.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/finding.h"
#include "host/forms/form.h"

namespace automation::requests {

json close(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    act(driver, [&] { form.Close(); });
    return json::object();
}

} // namespace automation::requests
