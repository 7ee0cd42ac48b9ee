// A batch's result as the JSON object that the automation interface prints.
#pragma once

#include <nlohmann/json.hpp>

#include "automation/sql/collected_result.h"

namespace automation {

// "columns" and "rows" of the first result set, absent when there is none; "sets" with all of them
// when there are several; "affected"; "error" with number, line, column and text when there is one.
nlohmann::ordered_json json_of(const CollectedResult& result);

nlohmann::ordered_json json_of(const ResultSet& set);

} // namespace automation
