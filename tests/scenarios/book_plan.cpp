// What happens in one random set of books: chart, opening, and the acts of a bookkeeper.
#include "tests/scenarios/book_plan.h"

namespace tests {

namespace {

const char* name_of(Act act) {
    switch (act) {
    case Act::Enter: return "Enter";
    case Act::Change: return "Change";
    case Act::Remove: return "Remove";
    case Act::AuditSome: return "AuditSome";
    case Act::AuditAll: return "AuditAll";
    case Act::TakeAuditBack: return "TakeAuditBack";
    case Act::Post: return "Post";
    case Act::Unpost: return "Unpost";
    case Act::CarryForward: return "CarryForward";
    case Act::Close: return "Close";
    case Act::Reopen: return "Reopen";
    case Act::Red: return "Red";
    case Act::AddAccount: return "AddAccount";
    case Act::TurnAccount: return "TurnAccount";
    }
    return "";
}

// Puts steps together; each gets its own chance, so that leaving one out changes no other.
class Planner {
public:
    explicit Planner(std::mt19937& chance) : chance_(chance) {}

    bool now_and_then(int percent) { return below(100, chance_) < percent; }
    void act(Act one) { steps_.push_back({one, static_cast<std::uint32_t>(chance_())}); }
    void maybe(int percent, Act one) {
        if (now_and_then(percent)) act(one);
    }

    void work() {
        const int times = below(4, chance_);
        for (int i = 0; i < times; ++i) act(Act::Enter);
        maybe(8, Act::AddAccount);
        maybe(5, Act::TurnAccount);
        maybe(30, Act::AuditSome);
        maybe(40, Act::Change);
        maybe(30, Act::Remove);
        maybe(20, Act::TakeAuditBack);
        maybe(20, Act::Enter);
    }
    void post() {
        maybe(95, Act::AuditAll);
        maybe(96, Act::Post);
    }
    void second_thoughts() {
        act(Act::Unpost);
        maybe(80, Act::TakeAuditBack);
        maybe(60, Act::Change);
        maybe(40, Act::Remove);
        maybe(40, Act::Enter);
        post();
    }
    void period() {
        work();
        post();
        if (now_and_then(60)) {
            act(Act::CarryForward);
            post();
        }
        if (now_and_then(25)) second_thoughts();
        maybe(35, Act::Red);
        maybe(10, Act::Enter);
        post();
        act(Act::Close);
    }
    void go_back() {
        const int periods = 1 + below(3, chance_);
        for (int i = 0; i < periods; ++i) {
            act(Act::Reopen);
            if (now_and_then(50)) second_thoughts();
        }
        for (int i = 0; i < periods; ++i) {
            if (now_and_then(60)) second_thoughts(); // balances carried on from a changed month
            post();
            act(Act::Close);
        }
    }
    std::vector<Step> take() { return std::move(steps_); }

private:
    std::mt19937& chance_;
    std::vector<Step> steps_;
};

std::string day_text(int year, int month, int day) {
    const auto two = [](int number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    return std::to_string(year) + "-" + two(month) + "-" + two(day);
}

} // namespace

int below(int limit, std::mt19937& chance) {
    return static_cast<int>(chance() % static_cast<std::uint32_t>(limit));
}

const std::vector<NaiveAccount>& starting_chart() {
    static const std::vector<NaiveAccount> chart = {
        // code, parent, debit side, profit and loss, cash
        {"1001", "Z", true, false, true},
        {"1002", "Z", true, false, true},
        {"100201", "1002", true, false, true},
        {"10020101", "100201", true, false, true},
        {"1002010101", "10020101", true, false, true},
        {"100201010101", "1002010101", true, false, true},
        {"100202", "1002", false, false, true}, // an overdraft below a debit account
        {"1131", "Z", true, false},
        {"1141", "Z", false, false},
        {"2121", "Z", false, false},
        {"2171", "Z", false, false},
        {"217101", "2171", false, false},
        {"21710101", "217101", true, false}, // input tax below a credit account
        {"21710105", "217101", false, false},
        {"3101", "Z", false, false},
        {"3131", "Z", false, false},
        {"3141", "Z", false, false},
        {"314115", "3141", false, false},
        {"5101", "Z", false, true},
        {"510101", "5101", false, true},
        {"510102", "5101", false, true},
        {"5401", "Z", true, true},
        {"5502", "Z", true, true},
        {"550201", "5502", true, true},
        {"5801", "Z", false, true}}; // former years: never carried forward
    return chart;
}

// Pairs of equal amounts on two accounts: the opening of the year, then the movements of the year,
// so that all three pairs of sums agree.
std::map<std::string, NaiveOpening> balanced_openings(const NaiveLedger& ledger,
                                                      std::mt19937& chance) {
    std::map<std::string, NaiveOpening> openings;
    const std::vector<std::string> leaves = ledger.leaves();
    const auto any = [&] {
        return leaves[static_cast<std::size_t>(below(static_cast<int>(leaves.size()), chance))];
    };
    const auto add = [&](const std::string& code, Cents on_debit) {
        openings[code].balance += ledger.account(code).debit ? on_debit : -on_debit;
    };
    const int pairs = below(6, chance);
    for (int i = 0; i < pairs; ++i) {
        const Cents amount = below(1'000'000, chance) - 200'000;
        add(any(), amount);
        add(any(), -amount);
    }
    const int movements = below(3, chance) == 0 ? below(6, chance) : 0;
    for (int i = 0; i < movements; ++i) {
        const Cents amount = 1 + below(1'000'000, chance);
        const std::string on = any(), against = any();
        openings[on].debit += amount;
        openings[against].credit += amount;
        add(on, amount);
        add(against, -amount);
        if (ledger.account(on).profit) openings[on].profit = amount;
    }
    return openings;
}

BookPlan plan_books(std::uint32_t seed) {
    std::mt19937 chance(seed);
    BookPlan plan;
    plan.seed = seed;
    plan.words = 1 + below(3, chance);
    plan.strict = below(4, chance) == 0;
    const int month = 1 + below(12, chance);
    const int day = below(20, chance) == 0 ? 2 + below(27, chance) : 1;
    plan.start = day_text(2024, month, day);
    plan.openings = balanced_openings(NaiveLedger(starting_chart()), chance);
    Planner planner(chance);
    const int periods = 2 + below(4, chance);
    for (int i = 0; i < periods; ++i) {
        planner.period();
        if (planner.now_and_then(15)) planner.go_back();
    }
    planner.work();
    planner.maybe(70, Act::AuditAll);
    planner.maybe(70, Act::Post);
    plan.steps = planner.take();
    return plan;
}

std::string text_of(const BookPlan& plan) {
    std::string text = "seed " + std::to_string(plan.seed) + ", words " +
                       std::to_string(plan.words) + (plan.strict ? ", strict" : "") +
                       ", start " + plan.start + ", " +
                       std::to_string(plan.openings.size()) + " opening figures, " +
                       std::to_string(plan.steps.size()) + " steps:";
    for (const Step& step : plan.steps) {
        text += std::string(" ") + name_of(step.act) + "(" + std::to_string(step.chance) + ")";
    }
    return text;
}

} // namespace tests
