// Receivables, or payables, kept by plain addition.
#include "tests/scenarios/naive_trade.h"

#include <algorithm>
#include <tuple>

namespace tests {

Cents NaiveTrade::settled(const NaiveItem& item) const {
    Cents sum = 0;
    for (const NaiveSettlement& settlement : settlements)
        for (const NaiveShare& share : settlement.shares)
            if (share.item == item.number) sum += share.amount;
    return item.kind == NaiveItem::goods_back ? -sum : sum;
}

Cents NaiveTrade::open(const NaiveItem& item) const {
    return item.total - item.credited - settled(item);
}

std::vector<NaiveShare> NaiveTrade::offered(const std::string& party, bool with_returns) const {
    std::vector<const NaiveItem*> found;
    for (const NaiveItem& item : items)
        if (item.party == party && open(item) > 0 &&
            (with_returns || item.kind != NaiveItem::goods_back))
            found.push_back(&item);
    std::sort(found.begin(), found.end(), [](const NaiveItem* a, const NaiveItem* b) {
        return std::tie(a->date, a->kind, a->number) < std::tie(b->date, b->kind, b->number);
    });
    std::vector<NaiveShare> shares;
    for (const NaiveItem* item : found)
        shares.push_back(
            {item->number, item->kind == NaiveItem::goods_back ? -open(*item) : open(*item)});
    return shares;
}

std::vector<NaiveShare> NaiveTrade::spread(const std::string& party, Cents money,
                                           bool with_returns) const {
    std::vector<NaiveShare> shares;
    for (const NaiveShare& item : offered(party, with_returns)) {
        const Cents taken = money == 0 ? 0 : std::min(item.amount, money);
        if (taken != 0) shares.push_back({item.item, taken});
        money -= taken;
    }
    return shares;
}

Cents NaiveTrade::owed(const std::string& party) const {
    Cents sum = 0;
    for (const NaiveItem& item : items)
        if (item.party == party)
            sum += item.kind == NaiveItem::goods_back ? -open(item) : open(item);
    return sum;
}

Cents NaiveTrade::advance_at_hand(const std::string& party) const {
    const auto began = opening_advances.find(party);
    Cents sum = began == opening_advances.end() ? 0 : began->second;
    for (const NaiveSettlement& settlement : settlements) {
        if (settlement.party != party || settlement.purpose == NaiveSettlement::settles) continue;
        sum += settlement.purpose == NaiveSettlement::advance ? settlement.paid
                                                              : -settlement.paid;
    }
    return sum;
}

std::vector<NaiveTrade::Movement> NaiveTrade::movements(const std::string& party) const {
    std::vector<Movement> all;
    if (const auto began = opening_advances.find(party); began != opening_advances.end())
        all.push_back({"", -began->second, 0});
    for (const NaiveItem& item : items) {
        if (item.party != party) continue;
        const Cents amount = item.total - item.credited;
        all.push_back({item.kind == NaiveItem::opening ? "" : item.date,
                       item.kind == NaiveItem::goods_back ? -amount : amount, 0});
    }
    for (const NaiveSettlement& settlement : settlements) {
        if (settlement.party != party) continue;
        Cents amount = 0;
        for (const NaiveShare& share : settlement.shares) amount += share.amount;
        if (settlement.purpose == NaiveSettlement::advance) amount = settlement.paid;
        if (settlement.purpose == NaiveSettlement::refund) amount = -settlement.paid;
        // The advance stood to the party's good before: using it moves nothing.
        if (settlement.purpose == NaiveSettlement::set_off) amount -= settlement.paid;
        all.push_back({settlement.date, 0, amount});
    }
    return all;
}

NaiveBalance NaiveTrade::balance(const std::string& party, const std::string& from,
                                 const std::string& until) const {
    NaiveBalance sum;
    for (const Movement& movement : movements(party)) {
        if (movement.date >= until) continue;
        if (movement.date < from) {
            sum.opening += movement.added - movement.settled;
        } else {
            sum.added += movement.added;
            sum.settled += movement.settled;
        }
    }
    return sum;
}

bool NaiveTrade::in_use(const std::string& item) const {
    for (const NaiveSettlement& settlement : settlements)
        for (const NaiveShare& share : settlement.shares)
            if (share.item == item) return true;
    return false;
}

} // namespace tests
