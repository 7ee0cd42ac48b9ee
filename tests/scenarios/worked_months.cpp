// Months of bookkeeping whose figures were worked out by hand: what the bookkeeper does.
#include "tests/scenarios/worked_months.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/scenarios/naive_ledger.h"

namespace tests {

using nlohmann::json;

namespace {

using Told = Bookkeeper::Told;

constexpr const char* begins[] = {"begin2", "begin3", "begin4", "begin5"};

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

} // namespace

std::string text_in(const json& object, const char* name) {
    const json value = object.value(name, json(""));
    return value.is_string() ? value.get<std::string>() : value.dump();
}

WorkedMonths::WorkedMonths(const json& file, Books& books, Person& person)
    : file_(file), books_(books), anna_(person), first_(file.at("start")) {}

void WorkedMonths::run() {
    make_accounts();
    set_up();
    std::string last = first_;
    for (const json& voucher : file_.at("vouchers")) {
        last = std::max(last, text_in(voucher, "period"));
    }
    for (const auto& [period, expected] : file_.at("expected").at("periods").items()) {
        last = std::max(last, period);
    }
    for (std::string period = first_; period <= last; period = month_after(period)) {
        SCOPED_TRACE("period " + period);
        work(period);
        if (testing::Test::HasFatalFailure()) return;
    }
}

// ---- before the first period

// Accounts the books have already are taken as they are, on the side that the figures mean.
void WorkedMonths::make_accounts() {
    for (const json& account : file_.at("accounts")) {
        const std::string code = text_in(account, "km_id");
        const std::string side = text_in(account, "fx");
        const int category = account.at("km_fl");
        const std::string kept = books_.value("SELECT FX FROM D6801 WHERE KM_ID=" + quoted(code));
        if (!kept.empty()) {
            if (kept == side) continue;
            EXPECT_EQ(anna_.change_side(code, category, side), Told{}) << code;
            continue;
        }
        const std::string parent = text_in(account, "oid");
        const std::string mark = text_in(account, "km_k");
        EXPECT_EQ(anna_.add_account({code, text_in(account, "km_name"), side,
                                     parent == "Z" ? "" : parent, category,
                                     mark == "1" || mark == "true"}),
                  Told{})
            << code;
    }
    for (const json& opening : file_.at("opening")) {
        const bool blank = std::all_of(std::begin(begins), std::end(begins), [&](const char* name) {
            return text_in(opening, name).find_first_of("123456789") == std::string::npos;
        });
        if (!blank) make_room_for(text_in(opening, "km_id"));
    }
    for (const json& voucher : file_.at("vouchers")) {
        for (const json& line : voucher.at("lines")) make_room_for(text_in(line, "km_id"));
    }
}

// Sub-accounts that new books have ready but this company does not use would keep their parent
// from taking entries.
void WorkedMonths::make_room_for(const std::string& account) {
    const Rows below = books_.table("SELECT KM_ID, KM_FL FROM D6801 WHERE OID=" + quoted(account));
    for (const Row& row : below) {
        make_room_for(row.at("KM_ID"));
        EXPECT_EQ(anna_.remove_account(row.at("KM_ID"), std::stoi(row.at("KM_FL"))), Told{});
    }
}

void WorkedMonths::set_up() {
    std::vector<TypedOpening> openings;
    for (const json& one : file_.at("opening")) {
        openings.push_back({text_in(one, "km_id"), text_in(one, "begin2"), text_in(one, "begin3"),
                            text_in(one, "begin4"), text_in(one, "begin5")});
    }
    EXPECT_EQ(anna_.type_openings(openings), Told{});
    Row sums;
    const int words = std::stoi(text_in(file_, "scheme"));
    EXPECT_EQ(anna_.set_up(text_in(file_, "start_date"), words, &sums), Told{});
    const json totals = file_.at("expected").value("opening_totals", json::object());
    for (const char* sum : {"b1", "b2", "c1", "c2", "d1", "d2"}) {
        if (!totals.contains(sum)) continue;
        const std::string field = std::string(1, sum[0] - 'a' + 'A') + sum[1];
        EXPECT_EQ(sums[field], text_in(totals, sum)) << "opening test, " << sum;
    }
    ASSERT_EQ(books_.value("SELECT PARAM FROM D6600 WHERE ID=2"), first_);
    expect_sound("the set-up");
}

// ---- a period

void WorkedMonths::work(const std::string& period) {
    const json& periods = file_.at("expected").at("periods");
    const json expected = periods.value(period, json::object());
    enter(period, false);
    audit_and_post("the vouchers");
    if (expected.contains("voucher_count_before_carry_forward")) {
        EXPECT_EQ(books_.value("SELECT COUNT(*) FROM D6601 WHERE D=1 AND PZQJ=" + quoted(period)),
                  text_in(expected, "voucher_count_before_carry_forward"));
    }
    carry_forward(period, expected);
    enter(period, true);
    audit_and_post("what came after");
    expect_sound("the last posting");
    compare_figures(period, expected);
    close(period);
}

void WorkedMonths::enter(const std::string& period, bool after) {
    std::vector<TypedVoucher> typed;
    std::vector<std::string> keys;
    for (const json& voucher : file_.at("vouchers")) {
        if (text_in(voucher, "period") != period) continue;
        if (voucher.value("after", false) != after) continue;
        TypedVoucher& one = typed.emplace_back();
        one.word = voucher.contains("word") ? text_in(voucher, "word") : text_in(file_, "word");
        one.date = text_in(voucher, "date");
        one.attachments = voucher.value("attachments", 0);
        for (const json& line : voucher.at("lines")) {
            one.lines.push_back({text_in(line, "zy"), text_in(line, "km_id"), text_in(line, "j"),
                                 text_in(line, "d")});
        }
        for (const json& share : voucher.value("cash", json::array())) {
            one.cash.push_back({text_in(share, "id"), text_in(share, "j"), text_in(share, "d")});
        }
        std::string number = text_in(voucher, "number");
        if (number.size() < 3) number.insert(0, 3 - number.size(), '0');
        keys.push_back(period + one.word + number);
    }
    if (typed.empty()) return;
    EXPECT_EQ(anna_.enter(typed), Told{});
    for (const std::string& key : keys) {
        EXPECT_EQ(books_.value("SELECT COUNT(*) FROM D6601 WHERE NOID=" + quoted(key)), "1") << key;
    }
}

// With several voucher words every word counts from 1, which the check for gaps does not expect.
void WorkedMonths::audit_and_post(const std::string& what) {
    EXPECT_EQ(anna_.audit_all(), Told{}) << what;
    EXPECT_EQ(books_.value("SELECT COUNT(*) FROM D6601 WHERE T=0"), "0") << what;
    EXPECT_EQ(anna_.post(text_in(file_, "scheme") != "1"), Told{"登帐完成!"}) << what;
}

void WorkedMonths::carry_forward(const std::string& period, const json& expected) {
    if (expected.contains("profit_and_loss_balances")) {
        compare_profit_accounts(expected.at("profit_and_loss_balances"));
    }
    const json carried = expected.value("carry_forward", json());
    if (!carried.is_object()) return;
    EXPECT_EQ(anna_.carry_forward(text_in(carried, "date"), text_in(carried, "zy"), "314115"),
              Told{});
    compare_carry_forward(period, carried);
    audit_and_post("the carry-forward");
}

void WorkedMonths::close(const std::string& period) {
    EXPECT_EQ(anna_.close_period(), Told{"结帐完成!"});
    ASSERT_EQ(books_.value("SELECT PARAM FROM D6600 WHERE ID=2"), month_after(period));
}

} // namespace tests
