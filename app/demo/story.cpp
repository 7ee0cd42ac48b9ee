// Reads the embedded story.
#include "app/demo/story.h"

#include <nlohmann/json.hpp>

#include "app/demo/embedded.h"

namespace app {

namespace {

using nlohmann::json;

StoryAccount account_of(const json& from) {
    return {from.at("code"), from.at("name"), from.at("side"), from.at("parent"),
            from.at("category")};
}

StoryVoucher voucher_of(const json& from) {
    StoryVoucher voucher{from.at("date"), from.at("attachments"), {}};
    for (const json& line : from.at("lines"))
        voucher.lines.push_back({line.at(0), line.at(1), line.at(2), line.at(3)});
    return voucher;
}

} // namespace

Story told_story() {
    const json from = json::parse(embedded_files()[0].text);
    Story story{from.at("company"), from.at("period"), from.at("today"), from.at("posted"),
                from.at("audited"), {}, {}};
    for (const json& account : from.at("accounts")) story.accounts.push_back(account_of(account));
    for (const json& voucher : from.at("vouchers")) story.vouchers.push_back(voucher_of(voucher));
    return story;
}

} // namespace app
