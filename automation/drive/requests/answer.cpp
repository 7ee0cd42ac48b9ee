// answer: queues what the next question, or the next choice of a file, is answered.
#include "automation/drive/requests/requests.h"

#include "automation/drive/driver.h"

namespace automation::requests {

json answer(Driver& driver, const Request& request) {
    if (request.has("file")) {
        driver.queue_file(request.text("file"));
        return json::object();
    }
    const auto yes = as_flag(request.member("value"));
    if (!yes) throw Refusal("\"value\" must be \"y\" or \"n\"");
    driver.queue_answer(*yes);
    return json::object();
}

} // namespace automation::requests
