// The two sides of trade, which differ in words, tables and procedures only.
#pragma once

#include <cstdint>

#include "module/trade/trade_code.h"

namespace module {

struct TradeSide {
    // Words.
    const char* opening;        // 期初应收
    const char* added;          // 本期应收
    const char* settled;        // 收款
    const char* settled_in_all; // where no column of its own shows the discounts
    const char* discount;       // 优惠
    const char* closing;        // 期末应收
    const TradeCode& parties;
    // The documents of one party; the first day, the day after the last one and the party follow.
    const char* documents_of_party;
    std::int32_t detail_function;
};

inline constexpr TradeSide receivables = {
    .opening = "期初应收",
    .added = "本期应收",
    .settled = "收款",
    .settled_in_all = "收款(含优惠)",
    .discount = "优惠",
    .closing = "期末应收",
    .parties = customers,
    .documents_of_party = "EXEC SYS_YS @PARAM=1,@PARAM1=0,@PARAM2=0,@BDATE=",
    .detail_function = 632,
};

inline constexpr TradeSide payables = {
    .opening = "期初应付",
    .added = "本期应付",
    .settled = "付款",
    .settled_in_all = "付款(含优惠)",
    .discount = "优惠",
    .closing = "期末应付",
    .parties = suppliers,
    .documents_of_party = "EXEC SYS_Yf @PARAM=1,@PARAM1=0,@PARAM2=0,@BDATE=",
    .detail_function = 642,
};

} // namespace module
