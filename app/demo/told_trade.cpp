// Reads each voucher as the documents that a trader would keep of it.
#include "app/demo/told_trade.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace app {

namespace {

using host::Amount;

bool is_revenue(const std::string& account) {
    return account.starts_with("51");
}

bool is_goods(const std::string& account) {
    return account.starts_with("12");
}

template <typename Part> struct Move {
    const Part* part;
    Amount amount; // on the debit side
};

} // namespace

// One voucher: its lines by what they move, and the documents found so far.
class TradeTeller::Reading {
public:
    Reading(const TradeStory& trade, std::map<std::string, Amount>& lost,
            const ToldVoucher& voucher, std::vector<TradeDocument>& documents)
        : trade_(trade), lost_(lost), voucher_(voucher), documents_(documents) {
        for (const ToldLine& line : voucher.lines) take(line);
    }

    void read() {
        for (const auto& [party, amount] : parties_) {
            if (amount.is_zero()) continue;
            party->customer ? read_customer(*party, amount) : read_supplier(*party, amount);
        }
        read_transfers();
        for (const auto& [money, amount] : money_)
            if (!amount.is_zero()) add_other(*money, amount);
    }

private:
    template <typename Part>
    static void add(std::vector<Move<Part>>& moves, const Part* part, Amount amount) {
        for (Move<Part>& move : moves)
            if (move.part == part) return void(move.amount += amount);
        moves.push_back({part, amount});
    }

    void take(const ToldLine& line) {
        const Amount amount = line.debit - line.credit;
        if (const StoryMoney* money = trade_.money_of(line.account)) {
            add(money_, money, amount);
        } else if (const StoryParty* party = trade_.party_of(line.account)) {
            add(parties_, party, amount);
        } else {
            others_.push_back(line);
            revenue_ = revenue_ || is_revenue(line.account);
            goods_ = goods_ || is_goods(line.account);
        }
    }

    [[noreturn]] void unknown() const {
        throw std::runtime_error("story.json: no document of trade for " +
                                 voucher_.lines[0].summary + ", " + voucher_.date.to_text());
    }

    TradeDocument& document(TradeKind kind, Amount amount) {
        documents_.push_back({.kind = kind, .date = voucher_.date,
                              .summary = voucher_.lines[0].summary, .amount = amount});
        return documents_.back();
    }

    // The one account on which the party's money moved; that money is then told of.
    Move<StoryMoney> take_money() {
        if (money_.size() != 1) unknown();
        const Move<StoryMoney> moved = money_.front();
        money_.clear();
        return moved;
    }

    // On the first money account, which is as good as any where no money moves.
    TradeDocument& settle(TradeKind kind, const StoryParty& party, Settling how, Amount amount) {
        TradeDocument& document = this->document(kind, amount);
        document.party = party.code;
        document.settling = how;
        document.money = trade_.money.front().code;
        return document;
    }

    void read_customer(const StoryParty& party, Amount amount) {
        if (revenue_) return read_sale(party, amount);
        if (!amount.is_negative()) {
            // Paid for him: he owes it, and the money went out for it.
            TradeDocument& owed = document(TradeKind::OtherReceivable, amount);
            owed.party = party.code;
            find_category(owed, party.account, false);
            others_.push_back({voucher_.lines[0].summary, party.account, amount, Amount()});
            return;
        }
        if (money_.empty()) return void(lost_[party.code] += -amount);
        const Move<StoryMoney> moved = take_money();
        if (moved.amount != -amount) unknown();
        const Settling settling = party.in_advance() ? Settling::Advance : Settling::Documents;
        TradeDocument& receipt = settle(TradeKind::Receipt, party, settling, moved.amount);
        receipt.money = moved.part->code;
        receipt.discount = std::exchange(lost_[party.code], Amount());
    }

    void read_sale(const StoryParty& party, Amount amount) {
        if (!money_.empty()) unknown();
        if (amount.is_negative()) {
            document(TradeKind::SaleReturn, -amount).party = party.code;
            return;
        }
        TradeDocument& sale = document(TradeKind::Sale, amount);
        sale.party = party.code;
        for (const ToldLine& line : others_)
            for (const StoryGood& good : trade_.goods)
                if (good.revenue == line.account)
                    sale.goods.emplace_back(good.product, line.credit - line.debit);
        if (party.in_advance())
            settle(TradeKind::Receipt, party, Settling::AdvanceUsed, amount);
    }

    void read_supplier(const StoryParty& party, Amount amount) {
        if (!goods_) {
            const Move<StoryMoney> moved = take_money();
            const Amount paid = -moved.amount;
            if (paid.is_negative() || amount < paid) unknown();
            const Settling settling = party.in_advance() ? Settling::Advance : Settling::Documents;
            TradeDocument& payment = settle(TradeKind::Payment, party, settling, paid);
            payment.money = moved.part->code;
            payment.discount = amount - paid;
            return;
        }
        if (!amount.is_negative()) unknown();
        std::optional<Move<StoryMoney>> rest;
        if (!money_.empty()) rest = take_money();
        const Amount paid = rest ? -rest->amount : Amount();
        document(TradeKind::Purchase, paid - amount).party = party.code;
        if (party.in_advance())
            settle(TradeKind::Payment, party, Settling::AdvanceUsed, -amount);
        if (rest)
            settle(TradeKind::Payment, party, Settling::Documents, paid).money = rest->part->code;
    }

    // What goes out of one money account and into another has only changed its place.
    void read_transfers() {
        for (auto& [from, out] : money_)
            for (auto& [to, in] : money_) {
                if (!out.is_negative() || !(Amount() < in)) continue;
                const Amount moved = std::min(-out, in);
                TradeDocument& transfer = document(TradeKind::Transfer, moved);
                transfer.money = from->code;
                transfer.to_money = to->code;
                out += moved;
                in += -moved;
            }
    }

    void add_other(const StoryMoney& money, Amount amount) {
        const bool expense = amount.is_negative();
        const TradeKind kind = expense ? TradeKind::OtherPayment : TradeKind::OtherReceipt;
        TradeDocument& other = document(kind, expense ? -amount : amount);
        other.money = money.code;
        // The line that moves most against the money says what it was for.
        const ToldLine* main = nullptr;
        const auto against = [&](const ToldLine& line) {
            return expense ? line.debit - line.credit : line.credit - line.debit;
        };
        for (const ToldLine& line : others_)
            if (main == nullptr || against(*main) < against(line)) main = &line;
        if (main == nullptr) unknown();
        find_category(other, main->account, expense);
    }

    void find_category(TradeDocument& document, const std::string& account, bool expense) const {
        for (const StoryCategory& category : trade_.categories)
            for (const std::string& beginning : category.accounts)
                if (category.expense == expense && account.starts_with(beginning)) {
                    document.category = category.code;
                    document.department = category.department;
                    return;
                }
        unknown();
    }

    const TradeStory& trade_;
    std::map<std::string, Amount>& lost_;
    const ToldVoucher& voucher_;
    std::vector<TradeDocument>& documents_;
    std::vector<Move<StoryMoney>> money_;
    std::vector<Move<StoryParty>> parties_;
    std::vector<ToldLine> others_;
    bool revenue_ = false, goods_ = false;
};

std::vector<TradeDocument> TradeTeller::documents_of(const ToldMonth& month) {
    std::vector<TradeDocument> documents;
    for (const auto* vouchers : {&month.vouchers, &month.after_carrying})
        for (const ToldVoucher& voucher : *vouchers)
            Reading(trade_, lost_, voucher, documents).read();
    return documents;
}

} // namespace app
