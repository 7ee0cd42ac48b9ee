// Requests out, answers in.
#include "app/workplace/scripted_person.h"

namespace app {

std::optional<std::string> ScriptedPerson::next() {
    if (waiting_.empty() || !trouble_.empty()) return std::nullopt;
    asked_ = std::move(waiting_.front());
    waiting_.pop_front();
    return asked_.dump();
}

void ScriptedPerson::write(const std::string& line) {
    nlohmann::json answer = nlohmann::json::parse(line, nullptr, false);
    if (trouble_.empty() && !(answer.is_object() && answer.value("ok", false)))
        trouble_ = asked_.dump() + " → " + line;
    answers_[asked_.value("op", "")] = std::move(answer);
}

} // namespace app
