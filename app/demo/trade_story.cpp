// Reads the trade of the embedded story.
#include "app/demo/trade_story.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "app/demo/embedded.h"

namespace app {

namespace {

using nlohmann::json;

StoryParty party_of(const json& from, bool customer) {
    StoryParty party{.code = from.at(0), .name = from.at(1), .full_name = from.at(2),
                     .account = from.at(3), .contact = "", .phone = "", .customer = customer};
    if (customer) {
        party.contact = from.at(4);
        party.phone = from.at(5);
    }
    return party;
}

std::vector<StoryCode> codes_of(const json& from) {
    std::vector<StoryCode> codes;
    for (const json& one : from) codes.push_back({one.at(0), one.at(1)});
    return codes;
}

} // namespace

const StoryMoney* TradeStory::money_of(const std::string& account) const {
    const auto found = std::find_if(money.begin(), money.end(), [&](const StoryMoney& one) {
        return one.account == account;
    });
    return found == money.end() ? nullptr : &*found;
}

const StoryParty* TradeStory::party_of(const std::string& account) const {
    const auto found = std::find_if(parties.begin(), parties.end(), [&](const StoryParty& one) {
        return one.account == account;
    });
    return found == parties.end() ? nullptr : &*found;
}

TradeStory told_trade_story() {
    const json from = json::parse(embedded_files()[0].text).at("trade");
    TradeStory trade;
    for (const json& one : from.at("money_accounts"))
        trade.money.push_back({one.at(0), one.at(1), one.at(2)});
    for (const json& one : from.at("customers")) trade.parties.push_back(party_of(one, true));
    for (const json& one : from.at("suppliers")) trade.parties.push_back(party_of(one, false));
    trade.staff = codes_of(from.at("staff"));
    trade.departments = codes_of(from.at("departments"));
    for (const json& one : from.at("goods"))
        trade.goods.push_back({one.at(0), one.at(1), one.at(2), one.at(3), one.at(4)});
    for (const bool expense : {false, true})
        for (const json& one : from.at(expense ? "expense" : "income"))
            trade.categories.push_back({one.at(0), one.at(1), one.at(2),
                                        one.at(3).get<std::vector<std::string>>(), expense});
    return trade;
}

} // namespace app
