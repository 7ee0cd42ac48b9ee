// The statements of a receipt or payment on one account: how it is read and written.
#pragma once

#include <string>
#include <vector>

#include "module/settlement/settlement_kind.h"
#include "module/settlement/write_off.h"

namespace module {

// The head as it is written. Amounts are texts as the user sees them, "0" for a blank.
struct SettlementHead {
    std::string number, party, purpose, date, account, slip, user;
    std::string paid;     // money that moved
    std::string discount;
};

// Name, and what stands open: YM owed, YSM paid in advance, XJYS the difference.
std::string select_party(const SettlementKind& kind, const std::string& party);
// What a new document may write off, the oldest first; returns stand there negated.
std::string select_open_items(const SettlementKind& kind, const std::string& party);
std::string select_head(const SettlementKind& kind, const std::string& number);
// The lines of a saved document as they stood when it was made: what it wrote off itself is not
// among the settled. "%s" stands for the quoted number.
std::string lines_query(const SettlementKind& kind);

std::string insert_head(const SettlementKind& kind, const SettlementHead& head);
std::string update_head(const SettlementKind& kind, const SettlementHead& head);
std::string delete_lines(const SettlementKind& kind, const std::string& number);
// One line each for the items with an amount, in order.
std::string insert_write_offs(const SettlementKind& kind, const SettlementHead& head,
                              const std::vector<WriteOff>& lines);

} // namespace module
