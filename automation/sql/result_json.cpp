// Puts columns, rows and errors into JSON.
#include "automation/sql/result_json.h"

namespace automation {

using nlohmann::ordered_json;

ordered_json json_of(const ResultSet& set) {
    ordered_json rows = ordered_json::array();
    for (const TextRow& row : set.rows) {
        ordered_json cells = ordered_json::array();
        for (const TextCell& cell : row) cells.push_back(cell ? ordered_json(*cell) : nullptr);
        rows.push_back(std::move(cells));
    }
    return {{"columns", set.columns}, {"rows", std::move(rows)}};
}

ordered_json json_of(const CollectedResult& result) {
    ordered_json answer = ordered_json::object();
    if (!result.sets.empty()) answer = json_of(result.sets.front());
    if (result.sets.size() > 1) {
        ordered_json sets = ordered_json::array();
        for (const ResultSet& set : result.sets) sets.push_back(json_of(set));
        answer["sets"] = std::move(sets);
    }
    answer["affected"] = result.outcome.affected;
    if (const auto& error = result.outcome.error)
        answer["error"] = {{"number", error->number},
                           {"line", error->line},
                           {"column", error->column},
                           {"text", error->text}};
    return answer;
}

} // namespace automation
