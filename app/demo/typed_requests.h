// Requests to the driver, put down one after the other as a person would act.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

namespace app {

inline constexpr const char* main_grid = "DBGridEh";

class Requests {
public:
    void open(int code) { add({{"op", "open"}, {"code", code}}); }
    void click(const std::string& control) { add({{"op", "click"}, {"control", control}}); }
    void set(const std::string& control, const nlohmann::json& value) {
        add({{"op", "set"}, {"control", control}, {"value", value}});
    }
    // row: a number, or what stands in the row, {"KM_ID": "1001"}, after the rows were read.
    void cell(const std::string& grid, const nlohmann::json& row, const char* field,
              const std::string& value) {
        add({{"op", "cell"}, {"control", grid}, {"row", row}, {"field", field}, {"value", value}});
    }
    void rows(const std::string& grid) {
        add({{"op", "rows"}, {"control", grid}, {"count", 1000}});
    }
    void node(const std::string& text) {
        add({{"op", "node"}, {"control", "TreeView1"}, {"text", text}});
    }
    void row(std::size_t row) { add({{"op", "row"}, {"control", main_grid}, {"row", row}}); }
    void close() { add({{"op", "close"}}); }
    std::vector<nlohmann::json> take() { return std::move(all_); }

private:
    void add(nlohmann::json request) { all_.push_back(std::move(request)); }
    std::vector<nlohmann::json> all_;
};

} // namespace app
