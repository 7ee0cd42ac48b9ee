// quit: ends the session; what is unsaved is given up.
#include "automation/drive/requests/requests.h"

#include "automation/drive/driver.h"

namespace automation::requests {

json quit(Driver& driver, const Request&) {
    driver.stop();
    return json::object();
}

} // namespace automation::requests
