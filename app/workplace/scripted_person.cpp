// Requests out, answers in.
#include "app/workplace/scripted_person.h"

namespace app {

std::optional<std::string> ScriptedPerson::next() {
    if (waiting_.empty() || !trouble_.empty() || !go_on_()) return std::nullopt;
    asked_ = std::move(waiting_.front());
    waiting_.pop_front();
    if (const auto row = asked_.find("row"); row != asked_.end() && row->is_object())
        *row = found_row(*row);
    if (!trouble_.empty()) return std::nullopt;
    return asked_.dump();
}

nlohmann::json ScriptedPerson::found_row(const nlohmann::json& cells) {
    const nlohmann::json& rows = answers_["rows"]["rows"];
    for (std::size_t row = 0; row < rows.size(); ++row) {
        bool same = true;
        for (const auto& [field, text] : cells.items()) same = same && rows[row][field] == text;
        if (same) return row;
    }
    trouble_ = asked_.dump() + " → no such row";
    return nullptr;
}

void ScriptedPerson::write(const std::string& line) {
    nlohmann::json answer = nlohmann::json::parse(line, nullptr, false);
    if (trouble_.empty() && !(answer.is_object() && answer.value("ok", false)))
        trouble_ = asked_.dump() + " → " + line;
    answers_[asked_.value("op", "")] = std::move(answer);
}

} // namespace app
