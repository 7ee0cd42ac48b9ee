// What other modules write into the books of the demonstration: whom it trades with, and the goods
// that came and went.
#pragma once

#include <string>
#include <vector>

#include "app/demo/told_trade.h"

namespace app {

// Money accounts with what was in them, customers, suppliers, staff, departments, goods.
std::string trade_masters(const Story& story, const TradeStory& trade);

// The warehouse that goods leave from.
inline constexpr const char* warehouse = "01";

// Returns and purchases among the documents, as their own modules keep them; "" when there are
// none. The others have forms and are typed.
std::string goods_documents(const std::vector<TradeDocument>& documents);

} // namespace app
