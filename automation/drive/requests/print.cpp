// print: prints the form into a PDF file.
#include "automation/drive/requests/requests.h"

#include "automation/drive/driver.h"

namespace automation::requests {

json print(Driver& driver, const Request& request) {
    json body;
    driver.with_file(request.text("file"), [&] {
        nlohmann::json members = {{"op", "click"}, {"control", "Act_Print"}};
        if (request.has("form")) members["form"] = request.text("form");
        body = click(driver, Request::parse(members.dump()));
    });
    return body;
}

} // namespace automation::requests
