// The story's own account of what stands on the accounts and in the warehouse, voucher by voucher.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/values/amount.h"
#include "host/values/date.h"

namespace app {

struct ToldLine {
    std::string summary, account;
    host::Amount debit, credit; // one of them is zero
};

struct ToldVoucher {
    host::Date date;
    int attachments = 1;
    std::vector<ToldLine> lines;
    std::string cash_item; // cash-flow item of its cash lines, "" when money only changed its place
};

// Cash in hand, banks and other monetary funds.
bool is_money(std::string_view account);

// What the cash lines of a voucher brought in, negative for what went out.
host::Amount money_received(const ToldVoucher& voucher);

class RunningBooks {
public:
    void open(const std::string& account, host::Amount debit_less_credit);
    void book(const ToldVoucher& voucher);
    // Profit and loss accounts (5…) go to the profit of the year, 3131.
    void carry_forward();
    void end_month(); // the month's turnover and sales begin again
    void end_year();

    // Debit less credit of all accounts whose code begins so.
    host::Amount balance(std::string_view code) const;
    // The same of what was booked since the month or year began, carrying forward left out.
    host::Amount moved_in_month(std::string_view code) const;
    host::Amount moved_in_year(std::string_view code) const;
    const std::map<std::string, host::Amount, std::less<>>& balances() const { return balances_; }

    // Pieces of a product.
    void bring_in(const std::string& product, int pieces);
    void take_out(const std::string& product, int pieces);
    int in_stock(const std::string& product) const;
    // Their cost at the average of what was there and what came in this month.
    host::Amount cost_of_sold(const std::string& product, std::string_view stock_account) const;

private:
    struct Pieces {
        int came = 0; // there when the month began and brought in since
        int went = 0; // in this month
    };

    std::map<std::string, host::Amount, std::less<>> balances_, month_, year_;
    std::map<std::string, Pieces> pieces_;
};

} // namespace app
