// sql: the statements handed to the data operations since a position.
#include "automation/drive/requests/requests.h"

#include "host/ports/host.h"

namespace automation::requests {

json sql(Driver&, const Request& request) {
    const auto& sent = host::the_host().statements;
    const std::int64_t since = request.number_or("since", 0);
    if (since < 0) throw Refusal("\"since\" must not be negative");
    json list = json::array();
    for (auto at = static_cast<std::size_t>(since); at < sent.size(); ++at) {
        const host::SentStatement& one = sent[at];
        list.push_back({{"n", at},
                        {"call", one.call},
                        {"function", one.function},
                        {"key", one.key},
                        {"operation", one.operation},
                        {"text", one.text},
                        {"answer", one.answer}});
    }
    return {{"sql", std::move(list)}, {"next", sent.size()}};
}

} // namespace automation::requests
