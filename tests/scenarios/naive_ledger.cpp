// The balances of a set of books by plain addition, to hold the program against.
#include "tests/scenarios/naive_ledger.h"

#include <algorithm>

namespace tests {

namespace {

std::string month_text(int year, int month) {
    std::string text = std::to_string(month);
    if (text.size() < 2) text = "0" + text;
    return std::to_string(year) + "-" + text;
}

int year_of(const std::string& period) {
    return std::stoi(period.substr(0, 4));
}

int month_of(const std::string& period) {
    return std::stoi(period.substr(5, 2));
}

} // namespace

std::string month_after(const std::string& period) {
    const int year = year_of(period), month = month_of(period);
    return month == 12 ? month_text(year + 1, 1) : month_text(year, month + 1);
}

std::string month_before(const std::string& period) {
    const int year = year_of(period), month = month_of(period);
    return month == 1 ? month_text(year - 1, 12) : month_text(year, month - 1);
}

std::string money(Cents cents) {
    const Cents size = cents < 0 ? -cents : cents;
    std::string fraction = std::to_string(size % 100);
    if (fraction.size() < 2) fraction = "0" + fraction;
    return (cents < 0 ? "-" : "") + std::to_string(size / 100) + "." + fraction;
}

std::string voucher_key(const NaiveVoucher& voucher) {
    std::string number = std::to_string(voucher.number);
    if (number.size() < 3) number.insert(0, 3 - number.size(), '0');
    return voucher.period + voucher.word + number;
}

Cents cents_of(const std::string& amount) {
    if (amount.empty()) return 0;
    const std::size_t point = amount.find('.');
    if (point == std::string::npos) return 100 * std::stoll(amount);
    return std::stoll(amount.substr(0, point) + (amount.substr(point + 1) + "00").substr(0, 2));
}

NaiveLedger::NaiveLedger(const std::vector<NaiveAccount>& chart) {
    for (const NaiveAccount& one : chart) add_account(one);
}

// ---- the chart

bool NaiveLedger::is_leaf(const std::string& code) const {
    return std::none_of(chart_.begin(), chart_.end(),
                        [&](const auto& one) { return one.second.parent == code; });
}

int NaiveLedger::level(const std::string& code) const {
    const std::string& parent = account(code).parent;
    return parent == "Z" ? 1 : level(parent) + 1;
}

bool NaiveLedger::stands_below(const std::string& code, const std::string& above) const {
    if (code == above) return true;
    const std::string& parent = account(code).parent;
    return parent != "Z" && stands_below(parent, above);
}

bool NaiveLedger::in_use(const std::string& code) const {
    for (const NaiveVoucher& voucher : vouchers_) {
        for (const NaiveLine& line : voucher.lines) {
            if (line.account == code) return true;
        }
    }
    return std::any_of(balances_.begin(), balances_.end(), [&](const auto& row) {
        return row.first.account == code && row.second != NaiveFigures{};
    });
}

bool NaiveLedger::has_balance(const std::string& code) const {
    return std::any_of(balances_.begin(), balances_.end(), [&](const auto& row) {
        return row.first.account == code && row.first.kind == 1 &&
               (row.second.debit != 0 || row.second.credit != 0);
    });
}

std::vector<std::string> NaiveLedger::leaves() const {
    std::vector<std::string> codes;
    for (const auto& [code, one] : chart_) {
        if (is_leaf(one.code)) codes.push_back(code);
    }
    return codes;
}

std::vector<std::string> NaiveLedger::profit_leaves() const {
    std::vector<std::string> codes;
    for (const auto& [code, one] : chart_) {
        if (one.profit && code != "5801" && is_leaf(code)) codes.push_back(code);
    }
    return codes;
}

// ---- setting up

// A January's opening stands at the year and the December before it. A start inside a month puts
// its balances into that month itself.
void NaiveLedger::set_up(const std::string& start,
                         const std::map<std::string, NaiveOpening>& openings) {
    openings_ = openings;
    vouchers_.clear();
    balances_.clear();
    posted_.clear();
    overtaken_.clear();
    first_ = current_ = start.substr(0, 7);
    const bool january = month_of(first_) == 1;
    const int year = year_of(first_) - (january ? 1 : 0);
    opened_at_ = january || start.substr(8) == "01" ? month_before(first_) : first_;
    write_opening(std::to_string(year) + "-00", opened_at_);
    for (const auto& [own, one] : chart_) {
        balances_.try_emplace({first_, one.code, 0});
        balances_.try_emplace({first_, one.code, 1});
    }
}

void NaiveLedger::write_opening(const std::string& year_row, const std::string& month) {
    for (const auto& [own, one] : chart_) {
        NaiveFigures& year = balances_[{year_row, one.code, 0}];
        Cents on_debit = 0;
        for (const auto& [code, opening] : openings_) {
            if (!stands_below(code, one.code)) continue;
            year.debit += opening.debit;
            year.credit += opening.credit;
            on_debit += account(code).debit ? opening.balance : -opening.balance;
        }
        if (is_leaf(one.code) && openings_.contains(one.code)) {
            const Cents profit = openings_.at(one.code).profit;
            (one.debit ? year.carried_debit : year.carried_credit) = profit;
        }
        NaiveFigures& closing = balances_[{month, one.code, 1}];
        (one.debit ? closing.debit : closing.credit) = one.debit ? on_debit : -on_debit;
    }
}

// ---- periods

std::string NaiveLedger::close_period() {
    for (const NaiveVoucher& one : vouchers_) {
        const bool open = one.period == current_ && (!one.audited || !one.posted);
        if (open) return "本期还有未登帐的凭证，不可以进行结帐!";
    }
    current_ = month_after(current_);
    return "结帐完成!";
}

std::string NaiveLedger::reopen_period() {
    if (current_ != first_) {
        current_ = month_before(current_);
        return "反结帐完成!";
    }
    current_ = first_ = "";
    return "反结帐完成!请从[会计科目初始化]模块进行首次期初建帐!";
}

// ---- vouchers

int NaiveLedger::next_number(const std::string& word) const {
    int highest = 0;
    for (const NaiveVoucher& one : vouchers_) {
        if (one.period == current_ && one.word == word) highest = std::max(highest, one.number);
    }
    return highest + 1;
}

NaiveVoucher* NaiveLedger::find(const std::string& key) {
    for (NaiveVoucher& one : vouchers_) {
        if (one.key == key) return &one;
    }
    return nullptr;
}

void NaiveLedger::remove(const std::string& key) {
    std::erase_if(vouchers_, [&](const NaiveVoucher& one) { return one.key == key; });
}

bool NaiveLedger::moves_cash(const NaiveVoucher& voucher) const {
    return std::any_of(voucher.lines.begin(), voucher.lines.end(),
                       [&](const NaiveLine& line) { return account(line.account).cash; });
}

NaiveVoucher NaiveLedger::reversed(const NaiveVoucher& voucher) const {
    NaiveVoucher red = voucher;
    red.period = current_;
    red.number = next_number(red.word);
    red.key = voucher_key(red);
    red.audited = red.posted = red.carried = false;
    for (NaiveLine& line : red.lines) line.debit = -line.debit, line.credit = -line.credit;
    for (auto& [item, share] : red.cash) share = {-share.in, -share.out};
    return red;
}

// ---- posting

// The audited lines of a period on an account and everything below it.
Cents NaiveLedger::moved(const std::string& account, const std::string& period, bool debit,
                         bool only_carried) const {
    Cents sum = 0;
    for (const NaiveVoucher& voucher : vouchers_) {
        if (voucher.period != period || !voucher.audited) continue;
        if (only_carried && !voucher.carried) continue;
        for (const NaiveLine& line : voucher.lines) {
            if (stands_below(line.account, account)) sum += debit ? line.debit : line.credit;
        }
    }
    return sum;
}

// The balance on the debit side with which a period begins: everything that was booked in the
// posted periods right before it, and the opening where they reach back to it. A month that was
// passed over without posting ends with nothing, and posting the month of an opening inside it
// begins at nothing too.
Cents NaiveLedger::before(const std::string& account, const std::string& period) const {
    std::string month = month_before(period);
    if (overtaken_.contains(month)) { // it still closes with what it was posted with
        const auto closing = balances_.find({month, account, 1});
        return closing == balances_.end() ? 0 : closing->second.debit - closing->second.credit;
    }
    Cents sum = 0;
    for (; posted_.contains(month); month = month_before(month)) {
        sum += moved(account, month, true, false) - moved(account, month, false, false);
    }
    if (month != opened_at_ || !balances_.contains({month, account, 1})) return sum;
    for (const auto& [code, opening] : openings_) {
        if (!stands_below(code, account)) continue;
        sum += this->account(code).debit ? opening.balance : -opening.balance;
    }
    return sum;
}

// A later period keeps its balances until it is posted again itself.
void NaiveLedger::overtake_later_periods() {
    for (const std::string& period : posted_) {
        if (period > current_) overtaken_.insert(period);
    }
}

void NaiveLedger::post() {
    for (NaiveVoucher& voucher : vouchers_) {
        if (voucher.period != current_) continue;
        for (const NaiveLine& line : voucher.lines) {
            if (line.account == "3131") voucher.carried = true;
        }
        if (voucher.audited) voucher.posted = true;
    }
    for (const auto& [own, one] : chart_) {
        NaiveFigures movement;
        movement.debit = moved(one.code, current_, true, false);
        movement.credit = moved(one.code, current_, false, false);
        movement.carried_debit = moved(one.code, current_, false, true); // the sides are swapped
        movement.carried_credit = moved(one.code, current_, true, true);
        NaiveFigures closing;
        const Cents on_debit = before(one.code, current_) + movement.debit - movement.credit;
        (one.debit ? closing.debit : closing.credit) = one.debit ? on_debit : -on_debit;
        if (!is_leaf(one.code)) { // a parent's closing row takes the carried part along, unread
            closing.carried_debit = movement.carried_debit;
            closing.carried_credit = movement.carried_credit;
        }
        balances_[{current_, one.code, 0}] = movement;
        balances_[{current_, one.code, 1}] = closing;
    }
    posted_.insert(current_);
    if (overtaken_.contains(month_before(current_)))
        overtaken_.insert(current_);
    else
        overtaken_.erase(current_);
    overtake_later_periods();
}

void NaiveLedger::unpost() {
    for (NaiveVoucher& voucher : vouchers_) {
        if (voucher.period == current_) voucher.posted = false;
    }
    std::erase_if(balances_, [&](const auto& row) { return row.first.period == current_; });
    posted_.erase(current_);
    overtaken_.erase(current_);
    overtake_later_periods();
}

bool NaiveLedger::balances_run_on() const {
    if (current_.empty() || opened_at_ == first_ || !overtaken_.empty()) return false;
    std::string end = current_;
    if (!posted_.empty() && *posted_.rbegin() >= end) end = month_after(*posted_.rbegin());
    for (std::string month = first_; month < end; month = month_after(month)) {
        if (!posted_.contains(month)) return false;
    }
    return true;
}

Cents NaiveLedger::closing(const std::string& code) const {
    const auto row = balances_.find({current_, code, 1});
    if (row == balances_.end()) return 0;
    return account(code).debit ? row->second.debit - row->second.credit
                               : row->second.credit - row->second.debit;
}

bool NaiveLedger::carry_forward() {
    NaiveVoucher voucher;
    Cents on_debit = 0, on_credit = 0;
    for (const std::string& code : profit_leaves()) {
        const Cents balance = closing(code);
        if (balance == 0) continue;
        const bool debit = account(code).debit;
        (debit ? on_debit : on_credit) += balance;
        voucher.lines.push_back({code, debit ? 0 : balance, debit ? balance : 0});
    }
    if (on_debit + on_credit == 0) return false;
    if (on_debit != 0) voucher.lines.push_back({"3131", on_debit, 0});
    if (on_credit != 0) voucher.lines.push_back({"3131", 0, on_credit});
    voucher.period = current_;
    voucher.word = "记";
    voucher.number = next_number("记");
    voucher.key = current_ + "记" + std::to_string(voucher.number);
    voucher.carried = true;
    vouchers_.push_back(voucher);
    return true;
}

} // namespace tests
