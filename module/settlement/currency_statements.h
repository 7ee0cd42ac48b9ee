// The statements of a receipt in any currency: split over accounts, with over-receipts.
#pragma once

#include <string>
#include <vector>

#include "module/settlement/settlement_statements.h"

namespace module {

// What such a head holds beside the one on a single account; the amount of `paid` is the sum of
// the split, there is no discount.
struct CurrencyHead : SettlementHead {
    std::string over_receipt; // as the user sees it
    std::string foreign;      // amount in the currency
    std::string currency, rate;
};

// What came in on one money account.
struct AccountShare {
    std::string account;
    Amount money;
};

extern const char* const currency_heads; // a condition follows
extern const char* const currency_lines; // "%s" stands for the quoted number

std::string select_currency_head(const std::string& number);
// Open documents and other receivables, the oldest first; before them a row for each income
// category, where money beyond what is owed is typed.
std::string select_currency_items(const std::string& customer);
std::string select_accounts(const std::string& number); // with the split of that receipt
std::string select_currency(const std::string& currency);

std::string insert_currency_head(const CurrencyHead& head);
std::string update_currency_head(const CurrencyHead& head); // and removes what it wrote before
// Write-off lines and over-receipts in order.
std::string insert_currency_lines(const CurrencyHead& head, const std::vector<WriteOff>& lines);
std::string update_over_receipt(const std::string& number, Amount over_receipt);
std::string insert_split(const std::string& number, const std::vector<AccountShare>& split);

} // namespace module
