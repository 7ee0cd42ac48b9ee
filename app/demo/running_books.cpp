// Sums by account and counts by product.
#include "app/demo/running_books.h"

namespace app {

namespace {

using host::Amount;
using Sums = std::map<std::string, Amount, std::less<>>;

constexpr std::string_view profit_of_the_year = "3131";

Amount sum_below(const Sums& sums, std::string_view code) {
    Amount sum;
    for (auto at = sums.lower_bound(code); at != sums.end() && at->first.starts_with(code); ++at)
        sum += at->second;
    return sum;
}

} // namespace

bool is_money(std::string_view account) {
    return account < "1010";
}

Amount money_received(const ToldVoucher& voucher) {
    Amount received;
    for (const ToldLine& line : voucher.lines)
        if (is_money(line.account)) received += line.debit - line.credit;
    return received;
}

void RunningBooks::open(const std::string& account, Amount debit_less_credit) {
    balances_[account] += debit_less_credit;
}

void RunningBooks::book(const ToldVoucher& voucher) {
    for (const ToldLine& line : voucher.lines)
        for (Sums* sums : {&balances_, &month_, &year_})
            (*sums)[line.account] += line.debit - line.credit;
}

void RunningBooks::carry_forward() {
    for (auto at = balances_.lower_bound("5"); at != balances_.end(); ++at) {
        balances_[std::string(profit_of_the_year)] += at->second;
        at->second = Amount();
    }
}

void RunningBooks::end_month() {
    month_.clear();
    for (auto& [product, pieces] : pieces_) pieces = {pieces.came - pieces.went, 0};
}

void RunningBooks::end_year() {
    year_.clear();
}

Amount RunningBooks::balance(std::string_view code) const {
    return sum_below(balances_, code);
}

Amount RunningBooks::moved_in_month(std::string_view code) const {
    return sum_below(month_, code);
}

Amount RunningBooks::moved_in_year(std::string_view code) const {
    return sum_below(year_, code);
}

void RunningBooks::bring_in(const std::string& product, int pieces) {
    pieces_[product].came += pieces;
}

void RunningBooks::take_out(const std::string& product, int pieces) {
    pieces_[product].went += pieces;
}

int RunningBooks::in_stock(const std::string& product) const {
    const auto found = pieces_.find(product);
    return found == pieces_.end() ? 0 : found->second.came - found->second.went;
}

Amount RunningBooks::cost_of_sold(const std::string& product,
                                  std::string_view stock_account) const {
    const auto found = pieces_.find(product);
    if (found == pieces_.end() || found->second.came == 0) return {};
    return balance(stock_account).times(found->second.went, found->second.came);
}

} // namespace app
