// Saving one voucher of four lines, durable, with its row of the operation log.
#include "bench/hand/connection.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "host/values/sql_text.h"
#include "schema/log_chain.h"

namespace bench {

namespace {

constexpr int vouchers_a_call = 50;
// Keys of a word of their own, so that the measured vouchers never meet those of the books.
constexpr const char* hand_word = "测甲";
constexpr const char* our_word = "测乙";

struct NextVoucher {
    std::string word;
    std::string period;
    std::string day;
    int number = 0;
    std::string key() const { return period + word + std::to_string(number); }
};

std::string batch(const NextVoucher& voucher, const std::vector<std::string>& accounts) {
    using host::quoted;
    const std::string key = voucher.key();
    std::string text =
        "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES (" + quoted(key) +
        "," + quoted(voucher.period) + "," + quoted(voucher.word) + ",'" +
        std::to_string(voucher.number) + "','1','" + voucher.day + "','admin');";
    for (int i = 0; i < 4; ++i)
        text += "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES (" + quoted(key) +
                ",'收到货款','" + accounts[(voucher.number + i) % accounts.size()] + "','" +
                (i < 3 ? "            100.00','              0.00',"
                       : "              0.00','            300.00',") +
                std::to_string(i) + ");";
    return text;
}

class HandSaver {
public:
    explicit HandSaver(const std::string& file)
        : connection_(file),
          head_(connection_, "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID,"
                             "T,D,T_SY) VALUES (?1,?2,?3,?4,1,?5,'admin',0,0,0)"),
          line_(connection_, "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) "
                             "VALUES (?1,?2,?3,?4,?5,?6)"),
          last_(connection_, "SELECT LAST_ID, HASH FROM SYS_LOG_HEAD"),
          log_(connection_, "INSERT INTO SYS_LOG (ID,LOG_TIME,USER_ID,FUNCTION_CODE,DOC_KEY,"
                            "OPERATION,DIGEST,HASH) VALUES (?1,?2,'admin','661',?3,'Add',?4,?5)"),
          text_(connection_, "INSERT INTO SYS_LOG_TEXT (ID,BATCH) VALUES (?1,?2)"),
          head_of_log_(connection_, "UPDATE SYS_LOG_HEAD SET LAST_ID=?1,HASH=?2") {}

    void save(const NextVoucher& voucher, const std::vector<std::string>& accounts,
              std::int64_t ticks, const std::string& text) {
        const std::string key = voucher.key();
        connection_.run("BEGIN IMMEDIATE");
        head_.bind(1, key).bind(2, voucher.period).bind(3, voucher.word)
            .bind(4, std::int64_t{voucher.number}).bind(5, ticks).run();
        for (int i = 0; i < 4; ++i)
            line_.bind(1, key).bind(2, "收到货款")
                .bind(3, accounts[(voucher.number + i) % accounts.size()])
                .bind(4, std::int64_t{i < 3 ? 10000 : 0}).bind(5, std::int64_t{i < 3 ? 0 : 30000})
                .bind(6, std::int64_t{i}).run();
        log_row(key, ticks, text);
        connection_.run("COMMIT");
    }

private:
    void log_row(const std::string& key, std::int64_t ticks, const std::string& text) {
        schema::LogRow row{1, "2024-01-01 00:00:00", "admin", "661", key, "Add",
                           schema::digest_of(text)};
        std::string previous;
        if (last_.step()) {
            row.id = last_.integer(0) + 1;
            previous = std::string(last_.text(1));
        }
        last_.reset();
        const std::string hash = schema::chained_hash(previous, row);
        log_.bind(1, row.id).bind(2, ticks).bind(3, key).bind(4, row.digest).bind(5, hash).run();
        text_.bind(1, row.id).bind(2, text).run();
        head_of_log_.bind(1, row.id).bind(2, hash).run();
    }

    hand::Connection connection_;
    hand::Statement head_, line_, last_, log_, text_, head_of_log_;
};

} // namespace

std::vector<Row> saving(const BigBooks& books) {
    OurSession ours(books.file);
    HandSaver hand(books.file);
    NextVoucher by_hand{hand_word, books.last.to_text(), books.last.first_day().to_text(), 0};
    NextVoucher by_us = by_hand;
    by_us.word = our_word;
    const std::int64_t ticks =
        std::int64_t{books.last.first_day() - *host::Date::of(1900, 1, 1)} * 25'920'000;
    Row row = measure(
        "saving one voucher of 4 lines, durable", 9,
        {[&] {
            for (int i = 0; i < vouchers_a_call; ++i) {
                ++by_hand.number;
                hand.save(by_hand, books.leaves, ticks, batch(by_hand, books.leaves));
            }
        }},
        {[&] {
            for (int i = 0; i < vouchers_a_call; ++i) {
                ++by_us.number;
                ours.data().execute(batch(by_us, books.leaves), {"661", by_us.key(), "Add"});
            }
        }},
        vouchers_a_call);
    row.budget_ratio = 2;
    ours.data().execute("DELETE FROM D6601 WHERE PZZ='测甲' OR PZZ='测乙'", {"661", "测", "Delete"});
    return {row};
}

} // namespace bench
