// Requests, a form after the other.
#include "app/demo/typed_trade.h"

#include <algorithm>

#include "app/demo/trade_tables.h"
#include "app/demo/typed_requests.h"

namespace app {

namespace {

using host::Amount;
using nlohmann::json;

// ---- before the first month ----

void enter_categories(const TradeStory& trade, Requests& to) {
    to.open(687);
    for (const StoryCategory& category : trade.categories) {
        to.click("Act_Add");
        to.set("SZLB_CLASS", category.expense ? "支出类别" : "收入类别");
        to.set("Edit1", category.code);
        to.set("SZLB_NAME", category.name);
        to.set("KM_ID", category.accounts.front());
        to.click("btn_ok");
    }
    to.close();
}

// What a party owes on balance is an opening amount, what it has to its good an advance.
void enter_openings(const Story& story, const TradeStory& trade, bool customers, Requests& to) {
    to.open(customers ? 628 : 629);
    to.rows(main_grid);
    for (const StoryBalance& balance : story.opening) {
        const StoryParty* party = trade.party_of(balance.account);
        if (party == nullptr || party->customer != customers) continue;
        const Amount owed =
            balance.debit_side == customers ? balance.amount : -balance.amount;
        to.cell(main_grid, {{"KH_GYS_ID", party->code}},
                owed.is_negative() ? "BEGINYS_MONEY" : "BEGIN_MONEY",
                owed.is_negative() ? (-owed).to_text() : owed.to_text());
    }
    to.click("Act_Save");
    to.close();
}

// ---- a month ----

// Fields of one form, typed for every document that is entered in it.
class FormTypist {
public:
    FormTypist(const std::vector<TradeDocument>& documents, Requests& to)
        : documents_(documents), to_(to) {}

    // Opens the list of `code` and by `action` its entry form, unless nothing is entered there.
    template <typename Enters, typename Type>
    void enter(int code, Enters enters, bool lines_are_named, Type type,
               const char* action = "Act_Add") {
        bool begun = false;
        for (const TradeDocument& document : documents_) {
            if (!enters(document)) continue;
            if (!begun) {
                to_.open(code);
                to_.click(action);
                if (lines_are_named) to_.rows(main_grid);
            }
            begun = true;
            type(document);
            to_.click("Act_Save");
        }
        if (!begun) return;
        to_.close(); // the document
        to_.close(); // the list
    }

private:
    const std::vector<TradeDocument>& documents_;
    Requests& to_;
};

void type_other(const TradeDocument& document, const char* kind, Requests& to) {
    to.set("CB1", kind);
    to.set("BDATE", document.date.to_text());
    to.set("NOTE", document.summary);
    if (!document.money.empty()) to.set("JY_ID", document.money);
    if (!document.party.empty()) to.set("KH_GYS_ID", document.party);
    to.set("BM_ID", document.department);
    to.cell(main_grid, {{"SZLB", document.category}}, "MONEY", document.amount.to_text());
}

void type_settlement(const TradeDocument& document, const char* const (&kinds)[4], Requests& to) {
    to.set("CB1", kinds[static_cast<int>(document.settling)]);
    to.set("KH_GYS_ID", document.party);
    to.set("BDATE", document.date.to_text());
    to.set("JY_ID", document.money);
    to.set("MONEY", document.amount.to_text());
    if (!document.discount.is_zero()) to.set("YH", document.discount.to_text());
}

constexpr int tax_percent = 13;

// A line a good, at its price with tax.
void type_sale(const Story& story, const TradeStory& trade, const TradeDocument& sale,
               Requests& to) {
    to.set("KH_GYS_ID", sale.party);
    to.set("CK_ID", warehouse);
    to.set("BDATE", sale.date.to_text());
    to.set("NOTE", sale.summary);
    for (std::size_t line = 0; line < sale.goods.size(); ++line) {
        const auto& [key, net] = sale.goods[line];
        for (const StoryGood& good : trade.goods)
            if (good.product == key) to.cell(main_grid, line, "WL_ID", good.code);
        for (const StoryProduct& product : story.products) {
            if (product.key != key) continue;
            const Amount pieces = net.times(Amount::scale, product.price.units(), 4);
            to.cell(main_grid, line, "SL", pieces.to_plain_text());
            to.cell(main_grid, line, "SJ",
                    product.price.times(100 + tax_percent, 100, 4).to_plain_text());
        }
    }
}

constexpr const char* receipt_kinds[] = {"应收帐款", "预收款", "预收退款", "预收冲应收"};
constexpr const char* payment_kinds[] = {"应付帐款", "预付款", "预付退款", "预付冲应付"};

void enter_transfers(const std::vector<TradeDocument>& documents, Requests& to) {
    to.open(648);
    for (const TradeDocument& document : documents) {
        if (document.kind != TradeKind::Transfer) continue;
        to.click("Act_Add");
        to.set("BDATE", document.date.to_text());
        to.set("JY_ID_FK", document.money);
        to.set("JY_ID_SK", document.to_money);
        to.set("MONEY", document.amount.to_text());
        to.set("EDIT2", document.summary);
        to.click("btn_ok");
    }
    to.close();
}

} // namespace

std::vector<json> typed_trade_start(const Story& story, const TradeStory& trade) {
    Requests requests;
    enter_categories(trade, requests);
    for (const bool customers : {true, false}) enter_openings(story, trade, customers, requests);
    return requests.take();
}

std::vector<json> typed_documents(const Story& story, const TradeStory& trade,
                                  const std::vector<TradeDocument>& documents) {
    Requests requests;
    FormTypist typist(documents, requests);
    const auto of_kind = [](TradeKind kind) {
        return [kind](const TradeDocument& document) { return document.kind == kind; };
    };
    typist.enter(631, of_kind(TradeKind::Sale), false,
                 [&](const TradeDocument& document) {
                     type_sale(story, trade, document, requests);
                 },
                 "Act_Invoice");
    typist.enter(
        646,
        [](const TradeDocument& document) {
            return document.kind == TradeKind::OtherReceipt ||
                   document.kind == TradeKind::OtherReceivable;
        },
        true, [&](const TradeDocument& document) {
            const bool open = document.kind == TradeKind::OtherReceivable;
            type_other(document, open ? "其他应收" : "收款结算", requests);
        });
    typist.enter(647, of_kind(TradeKind::OtherPayment), true, [&](const TradeDocument& document) {
        type_other(document, "费用结算", requests);
    });
    enter_transfers(documents, requests);
    typist.enter(631, of_kind(TradeKind::Receipt), false, [&](const TradeDocument& document) {
        type_settlement(document, receipt_kinds, requests);
    });
    typist.enter(641, of_kind(TradeKind::Payment), false, [&](const TradeDocument& document) {
        type_settlement(document, payment_kinds, requests);
    });
    return requests.take();
}

} // namespace app
