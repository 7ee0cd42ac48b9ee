// Creates the demonstration books and types the story into them, month by month.
#include "app/demo/demo_books.h"

#include "app/books/create.h"
#include "app/books/open.h"
#include "app/books/pending_file.h"
#include "app/demo/told_months.h"
#include "app/demo/told_trade.h"
#include "app/demo/trade_tables.h"
#include "app/demo/typed_story.h"
#include "app/demo/typed_trade.h"
#include "app/demo/verify_month.h"
#include "app/demo/verify_trade.h"
#include "app/login/password.h"
#include "app/refusal.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/workplace.h"
#include "automation/check/check.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"
#include "schema/schema.h"

namespace app {

namespace {

using nlohmann::json;

// A person who is busy with one part of the story on one day.
struct Sitting {
    host::Date today;
    std::string what; // "正在录入2023-05的凭证"
    std::vector<json> requests;
    std::string from_elsewhere = {};  // what other modules wrote before
    const ToldMonth* month = nullptr; // looked at afterwards
};

void create_empty(const std::string& books, const Story& story) {
    NewBooks wanted;
    wanted.books = books;
    wanted.company = story.company;
    wanted.template_name = schema::default_template;
    create_books(wanted, SystemClock(story.start.first_day()));
}

// Before the books are opened: the chart, the parties of the trade, what everything stood at.
void begin(const Story& story, const TradeStory& trade, std::vector<Sitting>& sittings) {
    const host::Date day = story.start.first_day();
    sittings.push_back({day, "正在录入科目", typed_chart(story)});
    sittings.push_back({day, "正在录入往来期初余额", typed_trade_start(story, trade),
                        trade_masters(story, trade)});
    sittings.push_back({day, "正在录入期初余额", typed_opening(story)});
}

// The trade of a month is entered first, its vouchers after.
std::vector<Sitting> sittings_of(const Story& story, const TradeStory& trade,
                                 const std::vector<ToldMonth>& months) {
    std::vector<Sitting> sittings;
    begin(story, trade, sittings);
    TradeTeller teller(trade);
    for (const ToldMonth& month : months) {
        const std::vector<TradeDocument> documents = teller.documents_of(month);
        const std::string name = month.period.to_text();
        Sitting sitting{month.period.last_day(), "正在录入" + name + "的单据和凭证",
                        typed_documents(story, trade, documents), goods_documents(documents),
                        &month};
        for (json& request : typed_month(month)) sitting.requests.push_back(std::move(request));
        sittings.push_back(std::move(sitting));
    }
    sittings.push_back({story.today, "正在存凭证模板",
                        typed_templates(template_places(story, months.back()))});
    return sittings;
}

class Typist {
public:
    Typist(std::string books, const TradeStory& trade, const DemoProgress& progress,
           std::int64_t total)
        : books_(std::move(books)), trade_(trade), progress_(progress), total_(total) {}

    void sit(Sitting& sitting) {
        Workplace work(books_, sitting.today, Access::Unpublished);
        work.log_in("admin", [] { return std::optional<std::string>(); });
        ScriptedPerson person(std::move(sitting.requests),
                              [&] { return go_on(sitting.what); });
        work.data().begin_unit(); // what a sitting breaks off is thrown away with the books
        if (!sitting.from_elsewhere.empty())
            automation::rows_of(work.session(), sitting.from_elsewhere);
        run_driver(person, person);
        if (stopped_) throw Refusal("已取消,没有建立演示帐套。");
        if (!person.trouble().empty())
            throw Refusal("演示数据没有全部录入: " + person.trouble());
        if (sitting.month) {
            verify_month(work.session(), *sitting.month);
            verify_trade(work.session(), trade_, *sitting.month);
        }
        work.data().keep_unit();
    }

private:
    // A person looks up now and then, not at every key.
    bool go_on(const std::string& what) {
        const bool looks = done_ % 32 == 0 || done_ + 1 == total_;
        if (looks) stopped_ = stopped_ || !progress_(what, done_, total_);
        ++done_;
        return !stopped_;
    }

    std::string books_;
    const TradeStory& trade_;
    const DemoProgress& progress_;
    std::int64_t done_ = 0, total_ = 0; // requests
    bool stopped_ = false;
};

void type_in(const std::string& books, const Story& story, const DemoProgress& progress) {
    const std::vector<ToldMonth> months = told_months(story);
    const TradeStory trade = told_trade_story();
    std::vector<Sitting> sittings = sittings_of(story, trade, months);
    std::size_t total = 0;
    for (const Sitting& sitting : sittings) total += sitting.requests.size();
    Typist typist(books, trade, progress, static_cast<std::int64_t>(total));
    for (Sitting& sitting : sittings) typist.sit(sitting);
}

void finish(const std::string& books, const Story& story, const std::string& password) {
    auto session = open_books(books);
    const auto findings = automation::check_books(*session);
    if (!findings.empty())
        throw Refusal("演示帐套没有通过检查: " + findings.front().check + ": " +
                      findings.front().text);
    automation::rows_of(*session,
                        "UPDATE SYS_USER SET PASSWORD_HASH = " + host::quoted(hash_of(password)) +
                            " WHERE USER_ID = 'admin';"
                            "INSERT INTO SYS_SETTING (NAME, VALUE) VALUES ('today', " +
                            host::quoted(story.today.to_text()) + ")");
}

} // namespace

void create_demo_books(const std::string& books, const std::string& password,
                       const DemoProgress& progress) {
    const Story story = told_story();
    PendingFile pending(books);
    create_empty(pending.path(), story);
    try {
        type_in(pending.path(), story, progress);
        finish(pending.path(), story, password);
    } catch (const engines::Failure& failure) {
        throw Refusal("演示帐套没有建成: " + opening_sentence(books, failure.error()));
    }
    pending.publish();
}

} // namespace app
