// A person with one function open, on a database that knows its answers by heart.
#include "tests/forms/form_desk.h"

namespace tests {

Person& FormDesk::person() {
    if (!anna_) {
        anna_ = std::make_unique<Person>(data);
        anna_->open(code_);
    }
    return *anna_;
}

std::string FormDesk::columns_shown() {
    const nlohmann::json grid = person().control("DBGridEh");
    std::string shown;
    for (const auto& column : grid.at("columns")) {
        if (!column.at("visible").get<bool>()) continue;
        if (!shown.empty()) shown += ", ";
        shown += column.at("field").get<std::string>() + " ";
        shown += column.at("title").get<std::string>();
    }
    return shown;
}

std::string FormDesk::last_batch() const {
    return data.executed().empty() ? "" : data.executed().back().batch;
}

} // namespace tests
