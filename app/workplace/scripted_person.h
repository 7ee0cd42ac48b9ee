// Plays requests to the driver one after the other and stops at the first that is refused.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "automation/drive/ports.h"

namespace app {

// Both ends of a driver: hands out the requests, reads the answers.
//
// A row may be named by what stands in it, {"row": {"KM_ID": "1001"}}: it is looked for in the last
// answer to "rows".
class ScriptedPerson : public automation::RequestLines, public automation::AnswerLines {
public:
    // go_on is asked before each request; at its first no the person stops, without trouble.
    explicit ScriptedPerson(std::vector<nlohmann::json> requests,
                            std::function<bool()> go_on = [] { return true; })
        : waiting_(std::make_move_iterator(requests.begin()),
                   std::make_move_iterator(requests.end())),
          go_on_(std::move(go_on)) {}

    std::optional<std::string> next() override;
    void write(const std::string& line) override;

    // The request that was refused and why; "" while all went well.
    const std::string& trouble() const { return trouble_; }
    // The last answer to a request of this kind ("rows"); null when there was none.
    const nlohmann::json& answer_to(const std::string& op);

private:
    // The number of the first row that holds these cells; none is trouble.
    nlohmann::json found_row(const nlohmann::json& cells);

    std::deque<nlohmann::json> waiting_;
    nlohmann::json asked_;
    struct Answer {
        std::string line;
        std::optional<nlohmann::json> members; // once somebody looked
    };
    std::map<std::string, Answer> answers_; // the last of each kind of request
    std::string good_line_;                 // the last that was read and found well
    std::function<bool()> go_on_;
    std::string trouble_;
};

} // namespace app
