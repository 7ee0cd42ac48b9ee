// Reads the embedded story.
#include "app/demo/story.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "app/demo/embedded.h"

namespace app {

namespace {

using host::Amount;
using nlohmann::json;

template <typename Value> Value known(std::optional<Value> value, const std::string& text) {
    if (!value) throw std::runtime_error("story.json: " + text);
    return *value;
}

Amount amount_of(const std::string& text) {
    return known(Amount::parse(text), text);
}

host::Period period_of(const std::string& text) {
    return known(host::Period::parse(text), text);
}

StoryAccount account_of(const json& from) {
    return {from.at("code"), from.at("name"), from.at("side"), from.at("parent"),
            from.at("category")};
}

StoryProduct product_of(const json& from) {
    return {from.at("key"),
            from.at("name"),
            from.at("stock"),
            amount_of(from.at("price")),
            amount_of(from.at("cost")),
            from.at("opening"),
            from.at("sold").get<std::vector<int>>(),
            from.at("bought").get<std::vector<int>>()};
}

bool is_debit(const std::string& side) {
    if (side != "借" && side != "贷") throw std::runtime_error("story.json: 借 or 贷, not " + side);
    return side == "借";
}

StoryLine line_of(const json& from) {
    return {from.at(0), is_debit(from.at(1)), from.at(2), from.size() > 3 ? from.at(3) : ""};
}

std::vector<std::pair<std::string, std::string>> pieces_of(const json& rule, const char* name) {
    std::vector<std::pair<std::string, std::string>> pieces;
    if (const auto found = rule.find(name); found != rule.end())
        for (const auto& [product, formula] : found->items())
            pieces.emplace_back(product, formula);
    return pieces;
}

StoryRule rule_of(const json& from) {
    StoryRule rule;
    if (from.contains("date")) {
        const std::string text = from.at("date");
        const host::Date date = known(host::Date::parse(text), text);
        rule.day = date.day();
        rule.only = host::Period::of(date);
    } else {
        rule.day = from.at("day");
    }
    rule.months = from.value("months", std::vector<int>());
    rule.summary = from.at("zy");
    rule.attachments = from.value("attachments", 1);
    rule.cash_item = from.value("item", "");
    rule.sells = pieces_of(from, "sells");
    rule.buys = pieces_of(from, "buys");
    for (const json& line : from.at("lines")) rule.lines.push_back(line_of(line));
    return rule;
}

// What happened once comes before what happens every month on that day.
std::vector<StoryRule> rules_of(const json& from) {
    std::vector<StoryRule> rules;
    for (const char* list : {"events", "every_month"})
        for (const json& rule : from.at(list)) rules.push_back(rule_of(rule));
    std::stable_sort(rules.begin(), rules.end(),
                     [](const StoryRule& a, const StoryRule& b) { return a.day < b.day; });
    return rules;
}

} // namespace

Story told_story() {
    const json from = json::parse(embedded_files()[0].text);
    Story story;
    story.company = from.at("company");
    story.start = period_of(from.at("start"));
    story.open_period = period_of(from.at("open_period"));
    story.today = story.open_period.last_day();
    story.posted_through = from.at("posted_through");
    story.audited_through = from.at("audited_through");
    for (const json& account : from.at("accounts")) story.accounts.push_back(account_of(account));
    for (const json& balance : from.at("opening"))
        story.opening.push_back(
            {balance.at(0), is_debit(balance.at(1)), amount_of(balance.at(2))});
    for (const json& product : from.at("products")) story.products.push_back(product_of(product));
    story.rules = rules_of(from);
    for (const json& rule : from.at("year_end")) story.year_end.push_back(rule_of(rule));
    story.templates = from.at("templates").get<std::vector<std::string>>();
    return story;
}

} // namespace app
