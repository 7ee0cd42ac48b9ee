// The documents of trade behind the story's vouchers: what was sold and bought, received and paid.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/demo/told_months.h"
#include "app/demo/trade_story.h"

namespace app {

enum class TradeKind {
    Sale,            // goods to a customer, paid later
    SaleReturn,      // goods back, to be set against what he owes
    Purchase,        // goods from a supplier, paid later
    Receipt,         // money of a customer
    Payment,         // money to a supplier
    OtherReceivable, // paid for a customer, to be had back
    OtherReceipt,    // money in that settles nothing
    OtherPayment,    // money out that settles nothing
    Transfer         // from one money account to another
};

// What a receipt or payment does; the numbers are those of the forms.
enum class Settling { Documents = 0, Advance = 1, AdvanceUsed = 3 };

struct TradeDocument {
    TradeKind kind;
    host::Date date;
    std::string summary;
    host::Amount amount; // goods with tax; of receipts and payments the money that moved
    std::string party = {};
    std::string money = {}, to_money = {}; // money accounts
    Settling settling = Settling::Documents;
    host::Amount discount = {}; // settles documents beside the money
    std::string category = {}, department = {};
    std::vector<std::pair<std::string, host::Amount>> goods = {}; // of a sale, without tax
};

// Reads the vouchers of month after month. A debt written off as lost waits for the customer's next
// receipt and stands there as its discount. A voucher that moves money or a party's balance in a
// way that no document knows throws std::runtime_error.
class TradeTeller {
public:
    explicit TradeTeller(const TradeStory& trade) : trade_(trade) {}
    std::vector<TradeDocument> documents_of(const ToldMonth& month);

private:
    class Reading;
    const TradeStory& trade_;
    std::map<std::string, host::Amount> lost_; // by party
};

} // namespace app
