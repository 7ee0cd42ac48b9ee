// The trade of the story: with whom it deals, which money it has, what it earns and spends on.
#pragma once

#include <string>
#include <vector>

#include "host/values/amount.h"

namespace app {

// A money account of the trade side and the ledger account that holds the same money. Drafts are
// money here too: a customer who gives one owes nothing any more.
struct StoryMoney {
    std::string code, name, account;
};

// A customer or supplier and the ledger account on which he stands.
struct StoryParty {
    std::string code, name, full_name, account;
    std::string contact, phone; // of customers
    bool customer = true;
    // Pays, or is paid, before the goods move: 2131, 1151.
    bool in_advance() const { return account.starts_with("2131") || account.starts_with("1151"); }
};

struct StoryCode {
    std::string code, name; // of a person or a department
};

struct StoryGood {
    std::string product; // the story's own key, "tv"
    std::string code, name, model;
    std::string revenue; // ledger account of its sales
};

// What money comes in for, or goes out for, by the ledger accounts on the other side.
struct StoryCategory {
    std::string code, name, department;
    std::vector<std::string> accounts; // beginnings of codes; the first one is the category's own
    bool expense = false;
};

struct TradeStory {
    std::vector<StoryMoney> money;
    std::vector<StoryParty> parties; // customers first
    std::vector<StoryCode> staff, departments;
    std::vector<StoryGood> goods;
    std::vector<StoryCategory> categories;

    // Null for an account that is none of theirs.
    const StoryMoney* money_of(const std::string& account) const;
    const StoryParty* party_of(const std::string& account) const;
};

// The trade of the story that the program carries. A text that is none throws.
TradeStory told_trade_story();

} // namespace app
