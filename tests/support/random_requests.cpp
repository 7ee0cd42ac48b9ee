// Requests as nobody sane would send them, chosen from what the open forms really show.
#include "tests/support/random_requests.h"

namespace tests {

using nlohmann::json;

namespace {

const std::vector<std::string> texts = {"",
                                        "1",
                                        "1001",
                                        "1002",
                                        "100.25",
                                        "-0.01",
                                        "记",
                                        "提现",
                                        "2024-03-05",
                                        "2024-02-30",
                                        "true",
                                        "O'Brien",
                                        "'; --",
                                        "\"",
                                        "%S",
                                        "%",
                                        "😀𠀀",
                                        "a\tb\nc",
                                        "\x01",
                                        "9999999999",
                                        "1e9",
                                        "922337203685477.5807",
                                        "0x10",
                                        "　",
                                        "NULL",
                                        "1001 库存现金",
                                        "##",
                                        "' OR '1'='1",
                                        "99999999999999999999"};

const std::vector<std::string> keys = {
    "F1",        "F2",    "F3",     "F4",     "F5",  "F7",    "Enter",  "Tab",
    "Esc",       "Space", "Insert", "Delete", "Up",  "Down",  "Ctrl+A", "Ctrl+Delete",
    "Shift+Tab", "a",     "1",      "'",      "F13", "Ctrl+", "中"};

} // namespace

RandomRequests::RandomRequests(std::uint32_t seed, std::vector<int> functions)
    : chance_(seed), functions_(std::move(functions)) {}

int RandomRequests::below(int limit) {
    return static_cast<int>(chance_() % static_cast<std::uint32_t>(limit));
}

const std::string& RandomRequests::one_of(const std::vector<std::string>& from) {
    return from[static_cast<std::size_t>(below(static_cast<int>(from.size())))];
}

std::string RandomRequests::text() {
    if (below(50) == 0) return std::string(10000, 'x');
    return one_of(texts);
}

json RandomRequests::on_grid(const json& grid) {
    const std::string name = grid.at("name");
    const int rows = grid.at("rowCount");
    std::string field = "NOFIELD";
    const json& columns = grid.at("columns");
    if (!columns.empty() && below(20) != 0) {
        field =
            columns[static_cast<std::size_t>(below(static_cast<int>(columns.size())))].at("field");
    }
    const int row = below(rows + 2) - (below(30) == 0 ? 2 : 0);
    switch (below(8)) {
    case 0: return {{"op", "rows"}, {"control", name}, {"raw", true}, {"colors", true}};
    case 1: return {{"op", "footer"}, {"control", name}};
    case 2: return {{"op", "row"}, {"control", name}, {"row", row}, {"mark", below(2) == 0}};
    case 3: return {{"op", "dblclick"}, {"control", name}, {"row", row}, {"field", field}};
    case 4: return {{"op", "lookup"}, {"control", name}, {"row", row}, {"field", field}};
    case 5: return {{"op", "key"}, {"control", name}, {"key", one_of(keys)}};
    default:
        return {
            {"op", "cell"}, {"control", name}, {"row", row}, {"field", field}, {"value", text()}};
    }
}

json RandomRequests::acting(const json& control) {
    const std::string name = control.at("name");
    if (control.contains("rowCount") && below(4) != 0) return on_grid(control);
    switch (below(7)) {
    case 0: return {{"op", "set"}, {"control", name}, {"value", text()}};
    case 1: {
        const json items = control.value("items", json::array());
        if (items.empty()) return {{"op", "set"}, {"control", name}, {"value", below(2) == 0}};
        const auto at = static_cast<std::size_t>(below(static_cast<int>(items.size())));
        return {{"op", "set"}, {"control", name}, {"value", items[at]}};
    }
    case 2: return {{"op", "lookup"}, {"control", name}};
    case 3: return {{"op", "key"}, {"control", name}, {"key", one_of(keys)}};
    case 4: return {{"op", "tree"}, {"control", name}};
    case 5: return {{"op", "focus"}, {"control", name}};
    default: return {{"op", "click"}, {"control", name}};
    }
}

json RandomRequests::next(Person& person) {
    const int kind = below(100);
    const auto function = static_cast<std::size_t>(below(static_cast<int>(functions_.size())));
    if (kind < 5) return {{"op", "open"}, {"code", functions_[function]}};
    if (kind < 8) return {{"op", "answer"}, {"value", below(2) == 0 ? "y" : "n"}};
    if (kind < 11) return {{"op", "key"}, {"key", one_of(keys)}};
    if (kind < 12) return {{"op", "close"}};
    if (kind < 13) return {{"op", "node"}, {"control", "TreeView1"}, {"text", text()}};
    if (kind < 14) return {{"op", text()}, {"control", text()}};
    const json shown = person.request({{"op", "controls"}});
    const json controls = shown.value("controls", json::array());
    if (controls.empty()) return {{"op", "open"}, {"code", functions_[function]}};
    const auto at = static_cast<std::size_t>(below(static_cast<int>(controls.size())));
    return acting(controls[at]);
}

} // namespace tests
