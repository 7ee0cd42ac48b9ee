// Looks whether money and balances of the trade are those of the ledger.
#pragma once

#include "app/demo/told_months.h"
#include "app/demo/trade_story.h"
#include "engines/session.h"

namespace app {

// At the end of the month every money account holds what its ledger account does, and every
// customer and supplier stands at what his does. Throws Refusal that names what differs.
void verify_trade(engines::Session& session, const TradeStory& trade, const ToldMonth& month);

} // namespace app
