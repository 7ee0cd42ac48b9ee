// Turns rules into vouchers while the books run along in mind.
#include "app/demo/told_months.h"

#include <algorithm>
#include <stdexcept>

#include "app/demo/formula.h"

namespace app {

namespace {

using host::Amount;
using host::Period;

class Teller {
public:
    explicit Teller(const Story& story) : story_(story) {
        for (const StoryBalance& balance : story.opening)
            books_.open(balance.account, balance.debit_side ? balance.amount : -balance.amount);
        for (const StoryProduct& product : story.products)
            books_.bring_in(product.key, product.opening);
    }

    ToldMonth tell(Period period, std::size_t number) {
        number_ = number;
        ToldMonth month;
        month.period = period;
        for (const StoryRule& rule : story_.rules)
            if (happens(rule, period)) tell(rule, period, month.vouchers);
        month.closes = period != story_.open_period;
        if (month.closes) {
            books_.carry_forward();
            if (period.month() == 12)
                for (const StoryRule& rule : story_.year_end)
                    tell(rule, period, month.after_carrying);
        } else {
            month.posted = through(story_.posted_through, month);
            month.audited = through(story_.audited_through, month);
        }
        month.after = books_;
        books_.end_month();
        if (period.month() == 12) books_.end_year();
        return month;
    }

private:
    static bool happens(const StoryRule& rule, Period period) {
        if (rule.only) return *rule.only == period;
        return rule.months.empty() ||
               std::find(rule.months.begin(), rule.months.end(), period.month()) !=
                   rule.months.end();
    }

    static std::size_t through(int day, const ToldMonth& month) {
        return static_cast<std::size_t>(
            std::count_if(month.vouchers.begin(), month.vouchers.end(),
                          [&](const ToldVoucher& voucher) { return voucher.date.day() <= day; }));
    }

    void tell(const StoryRule& rule, Period period, std::vector<ToldVoucher>& to) {
        pieces_.clear();
        for (const auto* moves : {&rule.sells, &rule.buys})
            for (const auto& [product, formula] : *moves)
                pieces_[product] = worked_out("whole(" + formula + ")", names());
        ToldVoucher voucher;
        voucher.date = period.first_day().plus_days(
            std::min(rule.day, period.last_day().day()) - 1);
        voucher.attachments = rule.attachments;
        voucher.cash_item = rule.cash_item;
        add_lines(rule, voucher);
        if (voucher.lines.empty()) return;
        for (const auto& [product, formula] : rule.sells) sell(product, voucher);
        for (const auto& [product, formula] : rule.buys) books_.bring_in(product, whole(product));
        books_.book(voucher);
        to.push_back(std::move(voucher));
    }

    void sell(const std::string& product, const ToldVoucher& voucher) {
        books_.take_out(product, whole(product));
        if (books_.in_stock(product) < 0)
            throw std::runtime_error("story.json: too few for " + voucher.lines[0].summary + ", " +
                                     voucher.date.to_text());
    }

    void add_lines(const StoryRule& rule, ToldVoucher& voucher) {
        Amount lacking; // on the credit side
        for (const StoryLine& line : rule.lines)
            if (line.amount != "rest") lacking += line.debit ? amount(line) : -amount(line);
        for (const StoryLine& line : rule.lines) {
            const bool rest = line.amount == "rest";
            const Amount value = !rest ? amount(line) : line.debit ? -lacking : lacking;
            if (value.is_zero()) continue;
            voucher.lines.push_back({filled_in(line.summary.empty() ? rule.summary : line.summary),
                                     line.account, line.debit ? value : Amount(),
                                     line.debit ? Amount() : value});
        }
    }

    Amount amount(const StoryLine& line) { return worked_out(line.amount, names()).rounded(2); }
    int whole(const std::string& product) {
        return static_cast<int>(pieces_.at(product).units() / Amount::scale);
    }

    // Formulas in braces give way to their whole numbers.
    std::string filled_in(const std::string& summary) {
        std::string text;
        std::size_t from = 0;
        for (std::size_t open; (open = summary.find('{', from)) != std::string::npos;) {
            const std::size_t end = summary.find('}', open);
            if (end == std::string::npos) break;
            text += summary.substr(from, open - from) +
                    worked_out(summary.substr(open + 1, end - open - 1), names()).to_plain_text();
            from = end + 1;
        }
        return text + summary.substr(from);
    }

    FormulaNames names() {
        return {[this](std::string_view name) { return value_of(name); },
                [this](std::string_view function, std::string_view argument) {
                    return looked_up(function, argument);
                }};
    }

    const StoryProduct& product(std::string_view key) const {
        for (const StoryProduct& product : story_.products)
            if (product.key == key) return product;
        throw FormulaError("no such product: " + std::string(key));
    }

    // n.tv: pieces of this voucher; tv.price, tv.cost, tv.sold, tv.bought.
    Amount value_of(std::string_view name) const {
        const std::size_t dot = name.find('.');
        if (dot == std::string_view::npos) throw FormulaError("no such name: " + std::string(name));
        const std::string_view before = name.substr(0, dot), after = name.substr(dot + 1);
        if (before == "n") {
            const auto found = pieces_.find(std::string(after));
            if (found == pieces_.end()) throw FormulaError("no pieces: " + std::string(name));
            return found->second;
        }
        const StoryProduct& which = product(before);
        if (after == "price") return which.price;
        if (after == "cost") return which.cost;
        if (after == "sold") return Amount::from_whole(which.sold.at(number_));
        if (after == "bought") return Amount::from_whole(which.bought.at(number_));
        throw FormulaError("no such name: " + std::string(name));
    }

    Amount looked_up(std::string_view function, std::string_view argument) const {
        if (function == "dr") return books_.balance(argument);
        if (function == "cr") return -books_.balance(argument);
        if (function == "month") return books_.moved_in_month(argument);
        if (function == "year") return books_.moved_in_year(argument);
        if (function == "cost")
            return books_.cost_of_sold(std::string(argument), product(argument).stock_account);
        throw FormulaError("no such function: " + std::string(function));
    }

    const Story& story_;
    RunningBooks books_;
    std::size_t number_ = 0; // of the month, from 0
    std::map<std::string, Amount> pieces_;
};

} // namespace

std::vector<ToldMonth> told_months(const Story& story) {
    Teller teller(story);
    std::vector<ToldMonth> months;
    for (Period period = story.start; period <= story.open_period; period = period.next())
        months.push_back(teller.tell(period, months.size()));
    return months;
}

std::vector<std::size_t> template_places(const Story& story, const ToldMonth& month) {
    std::vector<std::size_t> places;
    for (const std::string& summary : story.templates) {
        const auto found = std::find_if(month.vouchers.begin(), month.vouchers.end(),
                                        [&](const ToldVoucher& voucher) {
                                            return voucher.lines.front().summary == summary;
                                        });
        if (found == month.vouchers.end())
            throw std::runtime_error("story.json: no voucher " + summary);
        places.push_back(static_cast<std::size_t>(found - month.vouchers.begin()));
    }
    return places;
}

} // namespace app
