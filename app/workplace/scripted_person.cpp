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
    static const nlohmann::json none = nlohmann::json::array();
    const nlohmann::json& answer = answer_to("rows");
    const nlohmann::json& rows = answer.contains("rows") ? answer.at("rows") : none;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        bool same = true;
        for (const auto& [field, text] : cells.items()) same = same && rows[row][field] == text;
        if (same) return row;
    }
    trouble_ = asked_.dump() + " → no such row";
    return nullptr;
}

// Most answers say the same as one before, and few are looked at again: an answer is read when its
// text is new, and kept as text.
void ScriptedPerson::write(const std::string& line) {
    Answer& answer = answers_[asked_.value("op", "")];
    answer.line = line;
    answer.members.reset();
    if (line == good_line_) return;
    const nlohmann::json members = nlohmann::json::parse(line, nullptr, false);
    if (members.is_object() && members.value("ok", false))
        good_line_ = line;
    else if (trouble_.empty())
        trouble_ = asked_.dump() + " → " + line;
}

const nlohmann::json& ScriptedPerson::answer_to(const std::string& op) {
    Answer& answer = answers_[op];
    if (!answer.members)
        answer.members = answer.line.empty() ? nlohmann::json()
                                             : nlohmann::json::parse(answer.line, nullptr, false);
    return *answer.members;
}

} // namespace app
