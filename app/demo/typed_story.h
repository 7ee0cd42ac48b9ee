// The story as requests to the driver: what a person would type to enter it.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "app/demo/told_months.h"

namespace app {

// Accounts into the chart.
std::vector<nlohmann::json> typed_chart(const Story& story);

// Opening balances, trial balance, initial posting.
std::vector<nlohmann::json> typed_opening(const Story& story);

// A month's vouchers one by one with the allocation of their cash, audit, posting; a month that
// closes also has its profit and loss carried forward and is closed; a year ends with its
// statements.
std::vector<nlohmann::json> typed_month(const ToldMonth& month);

// Keeps these vouchers, by their places in the list of the open period, as templates.
std::vector<nlohmann::json> typed_templates(const std::vector<std::size_t>& places);

} // namespace app
