// Random books kept twice: by the program's forms and by plain addition.
#include "tests/scenarios/book_run.h"

#include <algorithm>

#include "app/books/open.h"
#include "automation/check/check.h"
#include "tests/scenarios/book_comparison.h"
#include "tests/scenarios/ledger_comparison.h"
#include "tests/scenarios/statement_comparison.h"
#include "tests/support/bookkeeper.h"

namespace tests {

namespace {

using Told = Bookkeeper::Told;

constexpr int deepest_level = 5;

int category(const std::string& account) {
    return account[0] - '0';
}

std::string in_one(const Told& told) {
    std::string all;
    for (const std::string& text : told) all += (all.empty() ? "" : " | ") + text;
    return all;
}

void expect(const std::string& what, const Told& told, const Told& expected) {
    if (told == expected) return;
    throw Difference(what + ": shown “" + in_one(told) + "”, expected “" + in_one(expected) + "”");
}

void expect_reason(const std::string& what, const Told& told, const std::string& reason) {
    if (in_one(told).find(reason) != std::string::npos) return;
    throw Difference(what + ": shown “" + in_one(told) + "”, expected “…" + reason + "…”");
}

// The small chart in place of the template's.
std::string replace_chart() {
    const NaiveLedger ledger(starting_chart());
    std::string batch = "DELETE FROM D6801;";
    for (const auto& [code, one] : ledger.chart()) {
        batch += "INSERT INTO D6801 (KM_ID,KM_NAME,FX,OID,KM_FL,KM_J,KM_K) VALUES ('" + code +
                 "','" + code + "','" + (one.debit ? "借" : "贷") + "','" + one.parent + "'," +
                 std::to_string(category(code)) + "," + std::to_string(ledger.level(code)) + "," +
                 (one.cash ? "1" : "0") + ");";
    }
    return batch;
}

std::string keep_strictly() {
    return "DELETE FROM SYS_SETTING WHERE NAME='mode' OR NAME='two_persons';"
           "INSERT INTO SYS_SETTING (NAME,VALUE) VALUES ('mode','strict');";
}

// Items below a heading, of each kind of cash flow; in the order of their codes.
const std::vector<std::string>& cash_items() {
    static const std::vector<std::string> items = {"1101", "1109", "1201", "1209", "2103",
                                                   "2201", "3102", "3202", "4101"};
    return items;
}

const std::vector<std::string>& words_of(int scheme) {
    static const std::vector<std::string> words[] = {
        {"记"}, {"收", "付", "转"}, {"现收", "现付", "银收", "银付", "转"}};
    return words[scheme - 1];
}

class BookRun {
public:
    explicit BookRun(const BookPlan& plan)
        : plan_(plan), books_(small_books(plan.words, plan.strict)), ledger_(starting_chart()) {
        sit_down("admin");
    }

    void run(BookVerdict& verdict) {
        set_up(plan_.openings, plan_.start);
        verdict.figures += compare_books(books_, ledger_);
        for (const Step& step : plan_.steps) {
            std::mt19937 chance(step.chance);
            take(step.act, chance);
            ++verdict.steps;
            verdict.vouchers = typed_;
            verdict.allocated = allocated_;
            verdict.reversed = reversed_;
            verdict.figures += compare_books(books_, ledger_);
        }
        verdict.ledger_figures = compare_ledgers(books_, ledger_);
        verdict.statement_figures = compare_statements(*anna_, ledger_);
        if (!ledger_.balances_run_on()) return;
        const auto session = app::open_books(books_.file().string(), app::Access::ReadOnly);
        for (const automation::Finding& finding : automation::check_books(*session)) {
            throw Difference("the audit finds " + finding.check + ": " + finding.text);
        }
        verdict.audited = true;
    }

private:
    void sit_down(const std::string& user);
    void take(Act act, std::mt19937& chance);
    void unpost();
    void set_up(const std::map<std::string, NaiveOpening>& openings, const std::string& start);
    void enter(std::mt19937& chance);
    void change(std::mt19937& chance);
    void remove(std::mt19937& chance);
    void reverse(std::mt19937& chance);
    void audit(bool all, std::mt19937& chance);
    void take_audit_back(std::mt19937& chance);
    void carry_forward(std::mt19937& chance);
    void reopen(std::mt19937& chance);
    void add_account(std::mt19937& chance);
    void turn_account(std::mt19937& chance);

    NaiveAccount any_account(std::mt19937& chance) const;
    std::string any_day(std::mt19937& chance) const;
    NaiveVoucher draw_voucher(std::mt19937& chance) const;
    TypedVoucher typed(const NaiveVoucher& voucher, const std::string& date) const;
    std::vector<TypedAllocation> draw_cash(NaiveVoucher& voucher, std::mt19937& chance) const;
    NaiveVoucher* any_voucher(std::mt19937& chance);
    std::vector<TypedCell> draw_change(NaiveVoucher& voucher, std::mt19937& chance) const;
    void change_number(NaiveVoucher& changed, const std::vector<TypedCell>& cells,
                       std::mt19937& chance);

    const BookPlan& plan_;
    Books books_;
    std::unique_ptr<Person> person_;
    std::unique_ptr<Bookkeeper> anna_;
    NaiveLedger ledger_;
    std::map<std::string, NaiveOpening> typed_openings_;
    std::set<std::string> turned_; // since their opening was typed
    std::size_t typed_ = 0, allocated_ = 0, reversed_ = 0;
};

// One person works at a time.
void BookRun::sit_down(const std::string& user) {
    anna_.reset();
    person_.reset();
    PersonOptions options = books_.person();
    options.user_id = options.user_name = user;
    person_ = std::make_unique<Person>(books_.data(), options);
    anna_ = std::make_unique<Bookkeeper>(*person_);
}

void BookRun::take(Act act, std::mt19937& chance) {
    switch (act) {
    case Act::Enter: return enter(chance);
    case Act::Change: return change(chance);
    case Act::Remove: return remove(chance);
    case Act::AuditSome: return audit(false, chance);
    case Act::AuditAll: return audit(true, chance);
    case Act::TakeAuditBack: return take_audit_back(chance);
    case Act::Post:
        ledger_.post();
        return expect("posting", anna_->post(true), {"登帐完成!"});
    case Act::Unpost: return unpost();
    case Act::CarryForward: return carry_forward(chance);
    case Act::Close: return expect("closing", anna_->close_period(), {ledger_.close_period()});
    case Act::Reopen: return reopen(chance);
    case Act::Red: return reverse(chance);
    case Act::AddAccount: return add_account(chance);
    case Act::TurnAccount: return turn_account(chance);
    }
}

void BookRun::unpost() {
    const Told told = anna_->unpost(true);
    if (plan_.strict) return expect_reason("unposting", told, "不能反登帐!请用红字凭证更正。");
    expect("unposting", told, {"反登帐完成!"});
    ledger_.unpost();
}

// ---- the opening

void BookRun::set_up(const std::map<std::string, NaiveOpening>& openings,
                     const std::string& start) {
    std::vector<TypedOpening> typed;
    for (const std::string& code : ledger_.leaves()) {
        const auto now = openings.find(code);
        const NaiveOpening figures = now == openings.end() ? NaiveOpening{} : now->second;
        const NaiveOpening before = typed_openings_[code];
        const bool all = turned_.contains(code);
        const auto text = [all](Cents is, Cents was) { return is == was && !all ? "" : money(is); };
        const TypedOpening row{code, text(figures.debit, before.debit),
                               text(figures.credit, before.credit),
                               text(figures.balance, before.balance),
                               text(figures.profit, before.profit)};
        if (!(row.debit + row.credit + row.balance + row.profit).empty()) typed.push_back(row);
        typed_openings_[code] = figures;
    }
    turned_.clear();
    if (!typed.empty()) expect("typing the opening", anna_->type_openings(typed), {});
    expect("setting up", anna_->set_up(start, plan_.words), {});
    ledger_.set_up(start, typed_openings_);
}

void BookRun::reopen(std::mt19937& chance) {
    const Told told = anna_->reopen_period();
    if (plan_.strict) return expect_reason("reopening", told, "不能反结帐!请用红字凭证更正。");
    expect("reopening", told, {ledger_.reopen_period()});
    if (ledger_.current().empty()) set_up(balanced_openings(ledger_, chance), plan_.start);
}

// ---- vouchers

std::string BookRun::any_day(std::mt19937& chance) const {
    const int day = 1 + below(28, chance);
    return ledger_.current() + (day < 10 ? "-0" : "-") + std::to_string(day);
}

NaiveVoucher BookRun::draw_voucher(std::mt19937& chance) const {
    const std::vector<std::string> leaves = ledger_.leaves();
    const auto any = [&] {
        return leaves[static_cast<std::size_t>(below(static_cast<int>(leaves.size()), chance))];
    };
    const auto& words = words_of(plan_.words);
    NaiveVoucher voucher;
    voucher.period = ledger_.current();
    voucher.word = words[static_cast<std::size_t>(below(static_cast<int>(words.size()), chance))];
    Cents left = 0; // debits less credits
    const int lines = 1 + below(4, chance);
    for (int i = 0; i < lines; ++i) {
        const bool red = below(8, chance) == 0;
        const Cents amount = (1 + below(500'000, chance)) * (red ? -1 : 1);
        const bool debit = below(2, chance) == 0;
        voucher.lines.push_back({any(), debit ? amount : 0, debit ? 0 : amount});
        left += debit ? amount : -amount;
    }
    if (left == 0) {
        voucher.lines.push_back({any(), 100, 0});
        left = 100;
    }
    const bool on_credit = left > 0 || below(4, chance) == 0;
    voucher.lines.push_back({any(), on_credit ? 0 : -left, on_credit ? left : 0});
    if (ledger_.moves_cash(voucher) && below(3, chance) != 0) draw_cash(voucher, chance);
    return voucher;
}

// What comes in and goes out need not agree with the cash lines: nothing demands it.
std::vector<TypedAllocation> BookRun::draw_cash(NaiveVoucher& voucher, std::mt19937& chance) const {
    std::vector<TypedAllocation> typed;
    const int items = 1 + below(3, chance);
    for (int i = 0; i < items; ++i) {
        const auto at = static_cast<std::size_t>(
            below(static_cast<int>(cash_items().size()), chance));
        const Cents amount = 1 + below(300'000, chance);
        const bool in = below(2, chance) == 0;
        NaiveCash& share = voucher.cash[cash_items()[at]];
        (in ? share.in : share.out) = amount;
        typed.push_back({cash_items()[at], in ? money(amount) : "", in ? "" : money(amount)});
    }
    return typed;
}

TypedVoucher BookRun::typed(const NaiveVoucher& voucher, const std::string& date) const {
    TypedVoucher paper;
    paper.word = voucher.word;
    paper.date = date;
    for (const NaiveLine& line : voucher.lines) {
        paper.lines.push_back({"往来", line.account, line.debit == 0 ? "" : money(line.debit),
                               line.credit == 0 ? "" : money(line.credit)});
    }
    for (const auto& [item, share] : voucher.cash) {
        paper.cash.push_back({item, money(share.in), money(share.out)});
    }
    return paper;
}

void BookRun::enter(std::mt19937& chance) {
    std::vector<TypedVoucher> papers;
    const int count = 1 + below(3, chance);
    for (int i = 0; i < count; ++i) {
        NaiveVoucher voucher = draw_voucher(chance);
        voucher.number = ledger_.next_number(voucher.word);
        voucher.key = voucher_key(voucher);
        if (!voucher.cash.empty()) ++allocated_;
        papers.push_back(typed(voucher, any_day(chance)));
        ledger_.vouchers().push_back(std::move(voucher));
    }
    typed_ += papers.size();
    expect("entering vouchers", anna_->enter(papers), {});
}

NaiveVoucher* BookRun::any_voucher(std::mt19937& chance) {
    std::vector<NaiveVoucher*> here;
    for (NaiveVoucher& one : ledger_.vouchers()) {
        if (one.period == ledger_.current()) here.push_back(&one);
    }
    if (here.empty()) return nullptr;
    return here[static_cast<std::size_t>(below(static_cast<int>(here.size()), chance))];
}

// Two lines change by the same amount, so that the voucher still balances.
std::vector<TypedCell> BookRun::draw_change(NaiveVoucher& voucher, std::mt19937& chance) const {
    const int lines = static_cast<int>(voucher.lines.size());
    const int first = below(lines, chance);
    const int second = (first + 1 + below(lines - 1, chance)) % lines;
    NaiveLine& one = voucher.lines[static_cast<std::size_t>(first)];
    NaiveLine& other = voucher.lines[static_cast<std::size_t>(second)];
    const bool same_side = (one.debit != 0) == (other.debit != 0);
    const auto amount = [](NaiveLine& line) -> Cents& {
        return line.debit != 0 ? line.debit : line.credit;
    };
    Cents change = 1 + below(100'000, chance);
    while (amount(one) + change == 0 || amount(other) + (same_side ? -change : change) == 0) {
        ++change;
    }
    const auto cell = [&](int row, NaiveLine& line, Cents by) {
        const std::string field = line.debit != 0 ? "J" : "D";
        amount(line) += by;
        return TypedCell{row, field, money(amount(line))};
    };
    return {cell(first, one, change), cell(second, other, same_side ? -change : change)};
}

void BookRun::change(std::mt19937& chance) {
    NaiveVoucher* voucher = any_voucher(chance);
    if (voucher == nullptr) return;
    if (voucher->audited) {
        const Told told = anna_->change(voucher->key, {});
        return expect_reason("changing", told, voucher->posted ? "已登帐" : "已审核");
    }
    NaiveVoucher changed = *voucher;
    const std::vector<TypedCell> cells = draw_change(changed, chance);
    if (below(4, chance) == 0) return change_number(changed, cells, chance);
    // Typed into a red allocation, an amount would drive out the negative ones.
    const bool red = std::any_of(changed.cash.begin(), changed.cash.end(), [](const auto& share) {
        return share.second.in < 0 || share.second.out < 0;
    });
    std::vector<TypedAllocation> cash;
    if (!red && ledger_.moves_cash(changed) && below(3, chance) == 0) {
        cash = draw_cash(changed, chance);
    }
    // Saved anew: the carry-forward's key is padded from here on, its mark is set by posting.
    changed.key = voucher_key(changed);
    changed.carried = false;
    expect("changing", anna_->change(voucher->key, cells, "", cash), {});
    *voucher = changed;
}

void BookRun::change_number(NaiveVoucher& changed, const std::vector<TypedCell>& cells,
                            std::mt19937& chance) {
    const std::string old_key = changed.key;
    changed.number = 1 + below(ledger_.next_number(changed.word) + 2, chance);
    changed.key = voucher_key(changed);
    changed.carried = false;
    const auto& all = ledger_.vouchers();
    const auto taken = std::find_if(all.begin(), all.end(), [&](const NaiveVoucher& one) {
        return one.key != old_key && one.period == changed.period && one.word == changed.word &&
               one.number == changed.number;
    });
    const Told told = anna_->change(old_key, cells, std::to_string(changed.number));
    if (taken != all.end()) {
        // The key of a carry-forward is not padded: there the number itself is refused.
        const char* reason = taken->key == changed.key ? "已存在" : "已被使用";
        return expect_reason("taking a number again", told, reason);
    }
    expect("renumbering", told, {});
    *ledger_.find(old_key) = changed;
}

void BookRun::remove(std::mt19937& chance) {
    const NaiveVoucher* voucher = any_voucher(chance);
    if (voucher == nullptr) return;
    const std::string key = voucher->key;
    const Told told = anna_->remove(key);
    if (voucher->audited) {
        return expect_reason("removing", told, voucher->posted ? "已登帐" : "已审核");
    }
    expect("removing", told, {});
    ledger_.remove(key);
}

void BookRun::reverse(std::mt19937& chance) {
    const NaiveVoucher* voucher = any_voucher(chance);
    if (voucher == nullptr || !voucher->posted) return;
    const NaiveVoucher red = ledger_.reversed(*voucher);
    expect("taking back in red", anna_->reverse(voucher->key), {});
    ++reversed_;
    ledger_.vouchers().push_back(red);
}

// ---- audit

// In strict books nobody audits what he entered.
void BookRun::audit(bool all, std::mt19937& chance) {
    std::vector<std::string> keys;
    for (NaiveVoucher& one : ledger_.vouchers()) {
        if (one.period != ledger_.current() || one.audited) continue;
        if (!all && below(2, chance) == 0) continue;
        one.audited = true;
        keys.push_back(one.key);
    }
    if (keys.empty()) return;
    if (plan_.strict) {
        expect_reason("auditing one's own", anna_->audit(keys), "不能由您审核");
        sit_down("reviewer");
    }
    expect("auditing", anna_->audit(keys), {});
    if (plan_.strict) sit_down("admin");
}

void BookRun::take_audit_back(std::mt19937& chance) {
    std::vector<std::string> keys;
    bool posted = false;
    for (NaiveVoucher& one : ledger_.vouchers()) {
        if (one.period != ledger_.current() || !one.audited || below(2, chance) == 0) continue;
        keys.push_back(one.key);
        posted = posted || one.posted;
    }
    if (keys.empty()) return;
    const Told told = anna_->take_audit_back(keys);
    if (posted) return expect_reason("taking an audit back", told, "已登帐");
    expect("taking an audit back", told, {});
    for (const std::string& key : keys) ledger_.find(key)->audited = false;
}

// ---- periods and chart

void BookRun::carry_forward(std::mt19937& chance) {
    const Told told = anna_->carry_forward(any_day(chance), "结转本期损益", "314115");
    expect("carrying forward", told,
           ledger_.carry_forward() ? Told{} : Told{"没有可结转的数据!"});
}

NaiveAccount BookRun::any_account(std::mt19937& chance) const {
    const int at = below(static_cast<int>(ledger_.chart().size()), chance);
    return std::next(ledger_.chart().begin(), at)->second;
}

void BookRun::add_account(std::mt19937& chance) {
    const NaiveAccount above = any_account(chance);
    NaiveAccount account = above;
    account.parent = above.code;
    account.debit = below(3, chance) == 0 ? !above.debit : above.debit;
    int number = 1;
    do {
        account.code = above.code + (number < 10 ? "0" : "") + std::to_string(number);
        ++number;
    } while (ledger_.chart().contains(account.code));
    const Told told = anna_->add_account({account.code, account.code, account.debit ? "借" : "贷",
                                         above.code, category(above.code), above.cash});
    if (ledger_.level(above.code) >= deepest_level) {
        return expect_reason("adding an account", told, "最多五级");
    }
    if (above.code == "3131") return expect_reason("adding an account", told, "结转损溢");
    if (ledger_.is_leaf(above.code) && ledger_.in_use(above.code)) {
        return expect_reason("adding an account", told, "不能再增加下级科目");
    }
    expect("adding an account", told, {});
    ledger_.add_account(account);
}

void BookRun::turn_account(std::mt19937& chance) {
    const NaiveAccount account = any_account(chance);
    const Told told =
        anna_->change_side(account.code, category(account.code), account.debit ? "贷" : "借");
    if (ledger_.has_balance(account.code)) {
        return expect_reason("turning an account", told, "不能改变余额方向");
    }
    expect("turning an account", told, {});
    ledger_.turn(account.code);
    turned_.insert(account.code);
}

} // namespace

BooksOptions small_books(int words, bool strict) {
    BooksOptions options;
    options.start = "";
    options.scheme = std::to_string(words);
    options.today = "2024-06-15";
    options.prepare = replace_chart() + (strict ? keep_strictly() : "");
    if (std::filesystem::exists("/dev/shm")) options.folder = "/dev/shm";
    return options;
}

BookVerdict keep_books(const BookPlan& plan) {
    BookVerdict verdict;
    try {
        BookRun(plan).run(verdict);
    } catch (const std::exception& reason) {
        verdict.difference = reason.what();
    }
    return verdict;
}

// ---- the shortest plan

BookPlan shrink(BookPlan plan, int times, const std::function<bool(const BookPlan&)>& fails) {
    const auto still_fails = [&](const BookPlan& shorter) { return times-- > 0 && fails(shorter); };
    BookPlan bare = plan;
    bare.openings.clear();
    if (still_fails(bare)) plan = bare;
    // Runs of steps, long ones first, then single steps until none can be missed.
    std::size_t length = plan.steps.size();
    while (length > 0 && times > 0) {
        const std::size_t before = plan.steps.size();
        for (std::size_t at = 0; at < plan.steps.size();) {
            BookPlan shorter = plan;
            const auto from = shorter.steps.begin() + static_cast<std::ptrdiff_t>(at);
            const std::size_t count = std::min(length, plan.steps.size() - at);
            shorter.steps.erase(from, from + static_cast<std::ptrdiff_t>(count));
            if (still_fails(shorter))
                plan = shorter;
            else
                at += length;
        }
        if (length > 1 || plan.steps.size() == before) length /= 2;
    }
    return plan;
}

} // namespace tests
