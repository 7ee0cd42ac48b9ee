// query: an administrator looks at the tables directly.
#include "automation/drive/requests/requests.h"

#include "automation/drive/driver.h"

namespace automation::requests {

json query(Driver& driver, const Request& request) {
    QueryPort* window = driver.ports().query;
    if (window == nullptr) throw Refusal("these books have no query window");
    if (!window->allowed()) throw Refusal("only an administrator may query the tables");
    json told = json::parse(window->run(request.text("sql")));
    if (told.contains("error")) {
        const json& error = told["error"];
        throw Refusal(error.is_object() && error.contains("text")
                          ? "Msg " + error.value("number", json(0)).dump() + ": " +
                                error["text"].get<std::string>()
                          : error.dump());
    }
    told.erase("id");
    return told;
}

} // namespace automation::requests
