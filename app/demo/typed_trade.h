// The trade of the story as requests to the driver: what a person would type to enter it.
#pragma once

#include <nlohmann/json.hpp>
#include <vector>

#include "app/demo/told_trade.h"

namespace app {

// Income and expense categories, and what customers and suppliers stood at when the books begin.
std::vector<nlohmann::json> typed_trade_start(const Story& story, const TradeStory& trade);

// The documents that have forms, a form after the other, each in the order given: what is owed
// comes before what settles it.
std::vector<nlohmann::json> typed_documents(const Story& story, const TradeStory& trade,
                                            const std::vector<TradeDocument>& documents);

} // namespace app
