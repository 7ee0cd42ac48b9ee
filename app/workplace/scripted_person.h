// Plays requests to the driver one after the other and stops at the first that is refused.
#pragma once

#include <deque>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "automation/drive/ports.h"

namespace app {

// Both ends of a driver: hands out the requests, reads the answers.
class ScriptedPerson : public automation::RequestLines, public automation::AnswerLines {
public:
    explicit ScriptedPerson(std::vector<nlohmann::json> requests)
        : waiting_(std::make_move_iterator(requests.begin()),
                   std::make_move_iterator(requests.end())) {}

    std::optional<std::string> next() override;
    void write(const std::string& line) override;

    // The request that was refused and why; "" while all went well.
    const std::string& trouble() const { return trouble_; }
    // The last answer to a request of this kind ("rows"); null when there was none.
    const nlohmann::json& answer_to(const std::string& op) { return answers_[op]; }

private:
    std::deque<nlohmann::json> waiting_;
    nlohmann::json asked_;
    std::map<std::string, nlohmann::json> answers_;
    std::string trouble_;
};

} // namespace app
