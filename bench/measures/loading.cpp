// Loading a year of vouchers through the form, and what of it is whose.
#include <filesystem>
#include <stdexcept>

#include "app/books/create.h"
#include "app/demo/told_months.h"
#include "app/demo/typed_story.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/workplace.h"
#include "automation/drive/request.h"
#include "bench/hand/connection.h"
#include "bench/measures/all.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"
#include "schema/schema.h"

namespace bench {

namespace {

// A set of books for one run; gone afterwards.
class ScratchBooks {
public:
    explicit ScratchBooks(const BigBooks& beside)
        : file(std::filesystem::path(beside.file).parent_path() / "bench-loading.zf") {
        remove();
    }
    ~ScratchBooks() { remove(); }
    void remove() const {
        for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(file + tail);
    }

    const std::string file;
};

void create(const ScratchBooks& books, const app::Story& story) {
    books.remove();
    app::NewBooks wanted;
    wanted.books = books.file;
    wanted.company = story.company;
    wanted.template_name = schema::default_template;
    app::create_books(wanted, app::SystemClock(story.start.first_day()));
}

// When what was loaded is on the disk: each voucher when it is answered, or all at the end.
enum class Saved { Each, Together };

using Script = std::vector<std::string>; // requests as lines

// Types and keeps the lines that came to the driver.
Script type(const ScratchBooks& books, host::Date today, std::vector<nlohmann::json> requests) {
    struct Overheard : automation::RequestLines {
        explicit Overheard(app::ScriptedPerson& person) : person(person) {}
        std::optional<std::string> next() override {
            auto line = person.next();
            if (line) lines.push_back(*line);
            return line;
        }
        app::ScriptedPerson& person;
        Script lines;
    };
    app::Workplace work(books.file, today);
    work.log_in("admin", [] { return std::optional<std::string>(); });
    app::ScriptedPerson person(std::move(requests));
    Overheard overheard(person);
    app::run_driver(overheard, person);
    if (!person.trouble().empty()) throw std::runtime_error(person.trouble());
    return std::move(overheard.lines);
}

// A program that sends a script and looks whether each request was carried out.
class Sender : public automation::RequestLines, public automation::AnswerLines {
public:
    explicit Sender(const Script& script) : script_(script) {}
    std::optional<std::string> next() override {
        if (sent_ == script_.size()) return std::nullopt;
        return script_[sent_++];
    }
    void write(const std::string& line) override {
        if (line.find("\"ok\":true") == std::string::npos)
            throw std::runtime_error(script_[sent_ - 1] + " → " + line);
    }

private:
    const Script& script_;
    std::size_t sent_ = 0;
};

void play(const ScratchBooks& books, host::Date today, const Script& script, Saved saved) {
    app::Workplace work(books.file, today);
    work.log_in("admin", [] { return std::optional<std::string>(); });
    Sender sender(script);
    if (saved == Saved::Together) work.data().begin_unit();
    app::run_driver(sender, sender);
    if (saved == Saved::Together) work.data().keep_unit();
}

// A year of vouchers in the first month, so that no month's end comes between.
app::ToldMonth all_in_one(const std::vector<app::ToldMonth>& months) {
    app::ToldMonth all;
    all.period = months.front().period;
    for (const app::ToldMonth& month : months)
        for (app::ToldVoucher voucher : month.vouchers) {
            voucher.date = all.period.first_day();
            all.vouchers.push_back(std::move(voucher));
        }
    return all;
}

void load_by_hand(const ScratchBooks& books, const app::ToldMonth& month, Saved saved) {
    hand::Connection connection(books.file);
    hand::Statement head(connection, "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID,"
                                     "T,D,T_SY) VALUES (?1,?2,'记',?3,?4,?5,'admin',0,0,0)");
    hand::Statement line(connection, "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) "
                                     "VALUES (?1,?2,?3,?4,?5,?6)");
    hand::Statement allocation(connection,
                               "INSERT INTO D6601B (NOID,D6820ID,J,D) VALUES (?1,?2,?3,?4)");
    const auto cents = [](host::Amount amount) { return amount.units() / 100; };
    const std::string period = month.period.to_text();
    connection.run("BEGIN IMMEDIATE");
    for (std::size_t i = 0; i < month.vouchers.size(); ++i) {
        const app::ToldVoucher& voucher = month.vouchers[i];
        if (i > 0 && saved == Saved::Each) connection.run("COMMIT; BEGIN IMMEDIATE");
        const std::string key = period + "记" + std::to_string(10'000 + i);
        const std::int64_t ticks =
            std::int64_t{voucher.date - *host::Date::of(1900, 1, 1)} * 25'920'000;
        head.bind(1, key).bind(2, period).bind(3, std::int64_t(i + 1))
            .bind(4, std::int64_t{voucher.attachments}).bind(5, ticks).run();
        for (std::size_t l = 0; l < voucher.lines.size(); ++l)
            line.bind(1, key).bind(2, voucher.lines[l].summary).bind(3, voucher.lines[l].account)
                .bind(4, cents(voucher.lines[l].debit)).bind(5, cents(voucher.lines[l].credit))
                .bind(6, std::int64_t(l)).run();
        const host::Amount received = app::money_received(voucher);
        if (voucher.cash_item.empty()) continue;
        const bool in = !received.is_negative();
        allocation.bind(1, key).bind(2, voucher.cash_item)
            .bind(3, in ? cents(received) : std::int64_t{0})
            .bind(4, in ? std::int64_t{0} : -cents(received)).run();
    }
    connection.run("COMMIT");
}

// Takes what a query answers and does nothing with it.
struct Unread : host::RowReceiver {
    void columns(const std::vector<host::ColumnDescription>&) override {}
    void row(const std::vector<host::CellView>&) override {}
};

// The statements that the forms sent, handed to the data port again without a form.
void replay(const ScratchBooks& books, host::Date today,
            const std::vector<host::SentStatement>& statements) {
    app::Workplace work(books.file, today);
    work.log_in("admin", [] { return std::optional<std::string>(); });
    app::EngineData& data = work.data();
    data.begin_unit();
    Unread unread;
    for (const host::SentStatement& sent : statements) {
        if (sent.call == "opensql")
            data.query(sent.text, unread);
        else
            data.execute(sent.text, {sent.function, sent.key, sent.operation});
    }
    data.keep_unit();
}

// A load that left something out would be quick for nothing.
void require_loaded(const ScratchBooks& books, const app::ToldMonth& month) {
    std::size_t lines = 0;
    for (const app::ToldVoucher& voucher : month.vouchers) lines += voucher.lines.size();
    hand::Connection connection(books.file);
    hand::Statement count(connection, "SELECT (SELECT count(*) FROM D6601),"
                                      "(SELECT count(*) FROM D6601A),"
                                      "(SELECT count(*) FROM SYS_LOG WHERE FUNCTION_CODE='661')");
    const auto vouchers = static_cast<std::int64_t>(month.vouchers.size());
    const bool all = count.step() && count.integer(0) == vouchers &&
                     count.integer(1) == static_cast<std::int64_t>(lines) &&
                     count.integer(2) == vouchers;
    if (!all) throw std::runtime_error("the year was not loaded whole");
}

// Reading the requests and writing the answers, without the driver between them.
void pass_texts(const Script& script) {
    Sender sender(script);
    while (const auto line = sender.next()) {
        automation::Request::parse(*line);
        sender.write(nlohmann::json{{"ok", true},
                                    {"messages", nlohmann::json::array()},
                                    {"active", "TF6661_1"}}
                         .dump());
    }
}

} // namespace

std::vector<Row> loading(const BigBooks& books) {
    const app::Story story = app::told_story();
    const app::ToldMonth year = all_in_one(app::told_months(story));
    const int vouchers = static_cast<int>(year.vouchers.size());
    const host::Date day = story.start.first_day();
    const ScratchBooks scratch(books);
    const auto fresh = [&] {
        create(scratch, story);
        type(scratch, day, app::typed_chart(story));
        type(scratch, day, app::typed_opening(story));
        host::the_host().statements.clear();
    };
    fresh();
    const Script script = type(scratch, day, app::typed_month(year));
    std::vector<host::SentStatement> statements;
    statements.swap(host::the_host().statements);
    const auto by_hand = [&](Saved saved) {
        return Way{[&, saved] { load_by_hand(scratch, year, saved); }, fresh};
    };
    const auto by_form = [&](Saved saved) {
        return Way{[&, saved] { play(scratch, day, script, saved); }, fresh};
    };
    Row together = measure("a voucher of a year loaded through the form, saved together", 3,
                           by_hand(Saved::Together), by_form(Saved::Together), vouchers);
    together.budget_ratio = 20;
    require_loaded(scratch, year);
    const Row engine = measure("  of it: its statements and the log, without the form", 3,
                               by_hand(Saved::Together),
                               {[&] { replay(scratch, day, statements); }, fresh}, vouchers);
    const Row each = measure("  the same, each on the disk when it is answered", 3,
                             by_hand(Saved::Each), by_form(Saved::Each), vouchers);
    require_loaded(scratch, year);
    const Row texts = measure_ours("  of it: requests and answers as text", 3,
                                   {[&] { pass_texts(script); }}, vouchers);
    return {together, engine, texts, each};
}

} // namespace bench
