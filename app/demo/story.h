// The story of the demonstration books, as told in story.json: what happens every month by rule,
// what happens once, and how much is sold and bought.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/values/amount.h"
#include "host/values/date.h"
#include "host/values/period.h"

namespace app {

struct StoryAccount {
    std::string code, name;
    std::string side;   // 借 or 贷
    std::string parent; // an account of the template
    int category = 0;   // 1 assets … 5 profit and loss
};

struct StoryBalance {
    std::string account;
    bool debit_side = true; // the account's own side
    host::Amount amount;    // on that side, negative when it lies on the other
};

struct StoryProduct {
    std::string key, name;      // "tv", 电视机; formulas say tv.price, tv.cost, tv.sold, tv.bought
    std::string stock_account;
    host::Amount price, cost;   // of a piece, without tax
    int opening = 0;            // pieces
    std::vector<int> sold, bought; // pieces planned, a month each from the first
};

// A line whose amount is a formula; "rest" is what the voucher lacks.
struct StoryLine {
    std::string account;
    bool debit = true;
    std::string amount;
    std::string summary; // "" for the voucher's
};

// A voucher that is made in every month, in some, or on one day. Summaries may hold formulas in
// braces: "赊销电视机{n.tv}台".
struct StoryRule {
    int day = 0;              // 31 is the last day of every month
    std::vector<int> months;  // 1 to 12; empty: all
    std::optional<host::Period> only; // in this period only
    std::string summary;
    int attachments = 1;
    std::string cash_item;    // cash-flow item of its cash lines
    // Formulas of pieces by product; n.tv is their whole number in the voucher's other formulas.
    std::vector<std::pair<std::string, std::string>> sells, buys;
    std::vector<StoryLine> lines;
};

struct Story {
    std::string company;
    host::Period start, open_period; // every period before the open one is closed
    host::Date today;                // the day that is today in these books
    int posted_through = 0, audited_through = 0; // days of the open period
    std::vector<StoryAccount> accounts;
    std::vector<StoryBalance> opening;
    std::vector<StoryProduct> products;
    std::vector<StoryRule> rules;    // by day; on the same day in this order
    std::vector<StoryRule> year_end; // in December, after the profit was carried forward
    std::vector<std::string> templates; // summaries of the open month's vouchers kept so
};

// The story that the program carries. A text that is no story throws std::runtime_error.
Story told_story();

} // namespace app
