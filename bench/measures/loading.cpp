// Loading vouchers through the forms, and the whole of the demonstration books.
#include <filesystem>
#include <stdexcept>

#include "app/books/create.h"
#include "app/demo/demo_books.h"
#include "app/demo/told_months.h"
#include "app/demo/typed_story.h"
#include "app/workplace/run_driver.h"
#include "app/workplace/scripted_person.h"
#include "app/workplace/workplace.h"
#include "bench/hand/connection.h"
#include "bench/measures/all.h"
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

void type(const ScratchBooks& books, host::Date today, std::vector<nlohmann::json> requests) {
    app::Workplace work(books.file, today);
    work.log_in("admin", [] { return std::optional<std::string>(); });
    app::ScriptedPerson person(std::move(requests));
    app::run_driver(person, person);
    if (!person.trouble().empty()) throw std::runtime_error(person.trouble());
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

void load_by_hand(const ScratchBooks& books, const app::ToldMonth& month) {
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

} // namespace

std::vector<Row> loading(const BigBooks& books) {
    const app::Story story = app::told_story();
    const app::ToldMonth year = all_in_one(app::told_months(story));
    const ScratchBooks scratch(books);
    const auto fresh = [&] {
        create(scratch, story);
        type(scratch, story.start.first_day(), app::typed_start(story));
    };
    Row voucher = measure("a voucher loaded through the form, of a year", 3,
                          {[&] { load_by_hand(scratch, year); }, fresh},
                          {[&] { type(scratch, story.start.first_day(), app::typed_month(year)); },
                           fresh},
                          static_cast<int>(year.vouchers.size()));
    voucher.budget_ratio = 20;
    Row all = measure_ours("the demonstration books, whole", 1, {[&] {
                               app::create_demo_books(
                                   scratch.file, "",
                                   [](const std::string&, std::int64_t, std::int64_t) {
                                       return true;
                                   });
                           },
                           [&] { scratch.remove(); }});
    all.budget_ms = 15'000;
    return {voucher, all};
}

} // namespace bench
