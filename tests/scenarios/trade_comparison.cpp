// Trade kept twice: what the program's columns, views and reports hold against plain addition.
#include <gtest/gtest.h>

#include "tests/scenarios/trade_run.h"

namespace tests {

namespace {

const char* const tomorrow = "2024-04-01";
const char* const long_ago = "2000-01-01";

} // namespace

void TradeRun::same(const std::string& what, const std::string& found, Cents expected) {
    EXPECT_EQ(found, money(expected)) << what;
    ++count_.figures;
}

// Settlement columns are their lines; the view is the sum of what stands open.
void TradeRun::compare(const Ledger& ledger) {
    compare_items(ledger);
    for (const Row& row : books_.table("SELECT * FROM " + std::string(ledger.side->balances))) {
        const std::string party = row.at("KH_GYS_ID");
        const Cents owed = ledger.trade.owed(party), advance = ledger.trade.advance_at_hand(party);
        same(party + " YM", row.at("YM"), owed);
        same(party + " YSM", row.at("YSM"), advance);
        same(party + " XJYS", row.at("XJYS"), owed - advance);
    }
}

void TradeRun::compare_both_sides() {
    for (const Ledger* ledger : {&sales_, &purchases_}) compare(*ledger);
}

void TradeRun::compare_items(const Ledger& ledger) {
    std::map<std::string, Row> stored;
    const TradeSide& side = *ledger.side;
    for (const std::string& query :
         {"SELECT NOID,SUMMONEY,YSMONEY FROM " + std::string(side.goods) + " WHERE C<3",
          "SELECT NOID,SUMMONEY,YSMONEY FROM " + std::string(side.returns) + " WHERE JY_ID='0'",
          "SELECT NOID,SUMMONEY,YSMONEY FROM " + std::string(side.others) + " WHERE C<>0"})
        for (const Row& row : books_.table(query)) stored[row.at("NOID")] = row;
    EXPECT_EQ(stored.size(), ledger.trade.items.size());
    for (const NaiveItem& item : ledger.trade.items) {
        const Row& row = stored[item.number];
        if (row.empty()) {
            ADD_FAILURE() << item.number << " is missing";
            continue;
        }
        same(item.number + " SUMMONEY", row.at("SUMMONEY"), ledger.trade.settled(item));
        same(item.number + " YSMONEY", row.at("YSMONEY"), ledger.trade.open(item));
    }
}

// The summary, and the documents that add up to it.
void TradeRun::compare_ranges(const Ledger& ledger, const std::string& from,
                              const std::string& until) {
    SCOPED_TRACE(std::string(ledger.side->report) + " " + from + " " + until);
    const std::string call = std::string("EXEC ") + ledger.side->report +
                             " @PARAM1=0,@PARAM2=0,@BDATE='" + from + "',@EDATE='" + until + "'";
    const Rows summary = books_.table(call + ",@PARAM=0");
    EXPECT_EQ(summary.size(), 3u);
    std::map<std::string, NaiveBalance> documents;
    for (const Row& row : books_.table(call + ",@PARAM=1")) {
        NaiveBalance& sum = documents[row.at("KH_GYS_ID")];
        sum.opening += cents_of(row.at("A"));
        sum.added += cents_of(row.at("B"));
        sum.settled += cents_of(row.at("C")) + cents_of(row.at("F"));
        same("a row's D", row.at("D"), cents_of(row.at("A")) + cents_of(row.at("B")) -
                                           cents_of(row.at("C")) - cents_of(row.at("F")));
    }
    for (const Row& row : summary) {
        const std::string party = row.at("KH_GYS_ID");
        const NaiveBalance expected = ledger.trade.balance(party, from, until);
        const NaiveBalance& detail = documents[party];
        same(party + " A", row.at("A"), expected.opening);
        same(party + " B", row.at("B"), expected.added);
        same(party + " C", row.at("C"), expected.settled);
        same(party + " D", row.at("D"), expected.closing());
        EXPECT_EQ(detail.opening, expected.opening) << party;
        EXPECT_EQ(detail.added, expected.added) << party;
        EXPECT_EQ(detail.settled, expected.settled) << party;
    }
}

Cents TradeRun::money_before(const std::string& account, const std::string& day) const {
    Cents sum = account == "2" ? 100000 : 0;
    for (const Money& one : money_)
        if (one.account == account && one.date < day) sum += one.moved;
    for (const Ledger* ledger : {&sales_, &purchases_})
        for (const NaiveSettlement& one : ledger->trade.settlements) {
            if (one.date >= day) continue;
            const auto share = one.split.find(account);
            if (one.split.empty() ? one.account != account : share == one.split.end()) continue;
            const Cents moved = ledger->side->money_direction *
                                (one.split.empty() ? one.paid : share->second);
            if (one.purpose == NaiveSettlement::refund) sum -= moved;
            else if (one.purpose != NaiveSettlement::set_off) sum += moved;
        }
    return sum;
}

// The cash report and the sum of all movements say what plain addition says.
void TradeRun::compare_money(const std::string& from, const std::string& until) {
    SCOPED_TRACE("SYS_XJ " + from + " " + until);
    for (const Row& row : books_.table("EXEC SYS_XJ @PARAM=0,@BDATE='" + from + "',@EDATE='" +
                                       until + "'")) {
        const std::string account = row.at("JY_ID");
        const Cents opening = money_before(account, from), closing = money_before(account, until);
        same(account + " QC", row.at("QC"), opening);
        same(account + " YE", row.at("YE"), closing);
        same(account + " in less out",
             money(cents_of(row.at("INMONEY")) - cents_of(row.at("OUTMONEY"))), closing - opening);
        const std::string moved = books_.value(
            "SELECT A.BEGIN_MONEY+ISNULL((SELECT SUM(INMONEY-OUTMONEY) FROM VIEW_XJ X WHERE "
            "X.JY_ID=A.JY_ID AND X.BDATE<'" + until + "'),0) FROM D1010 A WHERE A.JY_ID='" +
            account + "'");
        same(account + " movements", moved, closing);
    }
}

void TradeRun::compare_reports() {
    std::string from = day(), until = day();
    if (until < from) std::swap(from, until);
    for (const auto& [first, last] : {std::pair<std::string, std::string>{long_ago, tomorrow},
                                      {from, until},
                                      {until, tomorrow}}) {
        for (const Ledger* ledger : {&sales_, &purchases_}) compare_ranges(*ledger, first, last);
        compare_money(first, last);
    }
    EXPECT_EQ(books_.findings(), "");
}

} // namespace tests
