// Do the documents of trade say what the vouchers say?
#include "app/demo/told_trade.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace app {
namespace {

using host::Amount;

const Story story = told_story();
const std::vector<ToldMonth> months = told_months(story);
const TradeStory trade = told_trade_story();

const StoryParty& party(const std::string& code) {
    for (const StoryParty& party : trade.parties)
        if (party.code == code) return party;
    throw std::runtime_error(code);
}

// What stands on a ledger account, debit less credit, as the documents move it.
struct Standing {
    std::map<std::string, Amount> money, parties;

    void move(const std::string& code, Amount amount) {
        if (!code.empty()) money[code] += amount;
    }
    void book(const TradeDocument& document) {
        const Amount amount = document.amount;
        switch (document.kind) {
        case TradeKind::Sale:
        case TradeKind::OtherReceivable: parties[document.party] += amount; break;
        case TradeKind::SaleReturn:
        case TradeKind::Purchase: parties[document.party] += -amount; break;
        case TradeKind::Receipt: settle(document, -amount - document.discount, amount); break;
        case TradeKind::Payment: settle(document, amount + document.discount, -amount); break;
        case TradeKind::OtherReceipt: move(document.money, amount); break;
        case TradeKind::OtherPayment: move(document.money, -amount); break;
        case TradeKind::Transfer:
            move(document.money, -amount);
            move(document.to_money, amount);
        }
    }
    // An advance that is used moves neither the balance nor money.
    void settle(const TradeDocument& document, Amount party, Amount moved) {
        if (document.settling == Settling::AdvanceUsed) return;
        parties[document.party] += party;
        move(document.money, moved);
    }
};

Amount opening_of(const std::string& account) {
    for (const StoryBalance& balance : story.opening)
        if (balance.account == account)
            return balance.debit_side ? balance.amount : -balance.amount;
    return {};
}

TEST(Trade, documents_move_money_and_balances_as_the_ledger_does_month_by_month) {
    TradeTeller teller(trade);
    Standing standing;
    for (const StoryMoney& one : trade.money) standing.money[one.code] = opening_of(one.account);
    for (const StoryParty& one : trade.parties)
        standing.parties[one.code] = opening_of(one.account);
    for (const ToldMonth& month : months) {
        for (const TradeDocument& document : teller.documents_of(month)) standing.book(document);
        SCOPED_TRACE(month.period.to_text());
        for (const StoryMoney& one : trade.money)
            EXPECT_EQ(standing.money[one.code].to_text(),
                      month.after.balance(one.account).to_text())
                << one.name;
        for (const StoryParty& one : trade.parties)
            EXPECT_EQ(standing.parties[one.code].to_text(),
                      month.after.balance(one.account).to_text())
                << one.name;
    }
}

TEST(Trade, every_money_account_of_the_ledger_is_one_of_the_trade) {
    for (const ToldMonth& month : months)
        for (const ToldVoucher& voucher : month.vouchers)
            for (const ToldLine& line : voucher.lines)
                EXPECT_TRUE(!is_money(line.account) || trade.money_of(line.account) != nullptr)
                    << line.account;
}

TEST(Trade, every_kind_of_document_happens_and_every_amount_is_above_nothing) {
    TradeTeller teller(trade);
    std::set<TradeKind> kinds;
    std::set<Settling> settlings;
    std::set<std::string> parties, categories;
    for (const ToldMonth& month : months)
        for (const TradeDocument& document : teller.documents_of(month)) {
            kinds.insert(document.kind);
            settlings.insert(document.settling);
            parties.insert(document.party);
            categories.insert(document.category);
            EXPECT_LT(Amount(), document.amount) << document.summary;
            EXPECT_FALSE(document.discount.is_negative()) << document.summary;
        }
    EXPECT_EQ(kinds.size(), 9u);
    EXPECT_EQ(settlings.size(), 3u);
    for (const StoryParty& one : trade.parties) EXPECT_TRUE(parties.contains(one.code));
    for (const StoryCategory& one : trade.categories)
        EXPECT_TRUE(categories.contains(one.code)) << one.name;
}

TEST(Trade, the_goods_of_a_sale_are_whole_pieces_at_the_price_of_the_story) {
    TradeTeller teller(trade);
    for (const ToldMonth& month : months)
        for (const TradeDocument& document : teller.documents_of(month)) {
            if (document.kind != TradeKind::Sale) continue;
            EXPECT_FALSE(document.goods.empty());
            for (const auto& [key, amount] : document.goods)
                for (const StoryProduct& product : story.products)
                    EXPECT_TRUE(product.key != key ||
                                amount.units() % product.price.units() == 0)
                        << document.summary;
        }
}

// A customer pays no more than he owes, so that every receipt finds its documents.
TEST(Trade, nobody_settles_more_than_stands_open) {
    TradeTeller teller(trade);
    std::map<std::string, Amount> open;
    for (const StoryParty& one : trade.parties) {
        const Amount owed = one.customer ? opening_of(one.account) : -opening_of(one.account);
        if (!owed.is_negative()) open[one.code] = owed;
    }
    for (const ToldMonth& month : months)
        for (const TradeDocument& document : teller.documents_of(month)) {
            Amount& owed = open[document.party];
            switch (document.kind) {
            case TradeKind::Sale:
            case TradeKind::Purchase:
            case TradeKind::OtherReceivable: owed += document.amount; break;
            case TradeKind::SaleReturn: owed += -document.amount; break;
            case TradeKind::Receipt:
            case TradeKind::Payment:
                if (document.settling != Settling::Advance)
                    owed += -(document.amount + document.discount);
                EXPECT_FALSE(owed.is_negative())
                    << party(document.party).name << " " << document.summary << " "
                    << document.date.to_text();
                break;
            default: break;
            }
        }
}

} // namespace
} // namespace app
