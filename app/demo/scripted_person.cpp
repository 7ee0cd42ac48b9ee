// Requests out, answers in.
#include "app/demo/scripted_person.h"

namespace app {

std::optional<std::string> ScriptedPerson::next() {
    if (waiting_.empty() || !trouble_.empty()) return std::nullopt;
    asked_ = std::move(waiting_.front());
    waiting_.pop_front();
    return asked_.dump();
}

void ScriptedPerson::write(const std::string& line) {
    last_answer_ = nlohmann::json::parse(line, nullptr, false);
    if (trouble_.empty() && !last_answer_.value("ok", false))
        trouble_ = asked_.dump() + " → " + line;
}

} // namespace app
