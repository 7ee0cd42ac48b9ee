// The operation log: numbered without a gap, every row chained to the one before, with its text, up
// to the row that the head names.
#include "automation/check/findings.h"
#include "automation/check/log_seal.h"
#include "automation/sql/collected_result.h"
#include "engines/value_text.h"
#include "schema/log_chain.h"

namespace automation {

namespace {

std::string rows_query(bool texts) {
    const std::string columns = "SELECT L.ID, L.LOG_TIME, L.USER_ID, L.FUNCTION_CODE, L.DOC_KEY, "
                                "L.OPERATION, L.DIGEST, L.HASH, ";
    return columns + (texts ? "T.BATCH FROM SYS_LOG L LEFT JOIN SYS_LOG_TEXT T ON T.ID = L.ID"
                            : "NULL FROM SYS_LOG L") +
           " ORDER BY L.ID";
}

std::string text_of_cell(const engines::Value& cell) {
    return cell.is_null() ? "" : engines::text_of(cell);
}

std::string numbers(std::int64_t from, std::int64_t to) {
    return from == to ? "第 " + std::to_string(from) + " 条"
                      : "第 " + std::to_string(from) + " 条到第 " + std::to_string(to) + " 条";
}

// Walks the log row by row: it may be larger than the memory.
class Chain : public engines::ResultReceiver {
public:
    Chain(const LogHead& head, Findings& findings) : head_(head), findings_(findings) {}

    bool row(std::span<const engines::Value> cells) override {
        schema::LogRow row;
        row.id = cells[0].as_integer();
        row.time = text_of_cell(cells[1]).substr(0, 19); // whole seconds
        std::string* const texts[] = {&row.user, &row.function, &row.key, &row.operation,
                                      &row.digest};
        for (std::size_t i = 0; i < std::size(texts); ++i) *texts[i] = text_of_cell(cells[i + 2]);
        const std::string hash = text_of_cell(cells[7]);
        check_place(row, hash);
        if (head_.kept && row.id >= head_.first_text) check_text(row, cells[8]);
        previous_ = hash;
        expected_ = row.id + 1;
        return true;
    }

    // After the last row: does the log reach to where its head says?
    void finish() {
        if (!head_.kept) {
            findings_.hint("由以前的程序建立,没有保存内容和末尾的记载;管理员登录一次后补上");
            return;
        }
        if (!head_.found) {
            findings_.add("日志末尾的记载(SYS_LOG_HEAD)不见了,不能断定末尾有没有被截去");
            return;
        }
        const std::int64_t last = expected_ - 1;
        if (last < head_.last)
            findings_.add("日志末尾被截去: 缺少" + numbers(last + 1, head_.last) + "记录");
        else if (last > head_.last)
            findings_.add("日志末尾被添加: " + numbers(head_.last + 1, last) +
                          "记录在记载的末尾之后");
        else if (previous_ != head_.hash)
            findings_.add("日志末尾被改动: 第 " + std::to_string(last) +
                          " 条记录与记载的末尾不符");
    }

private:
    static std::string name_of(const schema::LogRow& row) {
        return "第 " + std::to_string(row.id) + " 条记录(" + row.time + " " + row.user + " " +
               row.function + " " + row.key + ")";
    }
    void check_place(const schema::LogRow& row, const std::string& hash) {
        if (row.id > expected_)
            findings_.add("缺少" + numbers(expected_, row.id - 1) + "记录");
        else if (row.id < expected_)
            findings_.add(name_of(row) + "被插入到第一条之前");
        else if (hash != schema::chained_hash(previous_, row))
            findings_.add(name_of(row) + "被改动过");
    }
    void check_text(const schema::LogRow& row, const engines::Value& batch) {
        if (batch.is_null())
            findings_.add(name_of(row) + "的内容被删去");
        else if (schema::digest_of(batch.as_text()) != row.digest)
            findings_.add(name_of(row) + "的内容被改动过");
    }

    const LogHead& head_;
    Findings& findings_;
    std::string previous_;
    std::int64_t expected_ = 1;
};

} // namespace

void check_log(engines::Session& session, Findings& findings) {
    const LogHead head = read_log_head(session);
    Chain chain(head, findings);
    const engines::Outcome outcome = session.execute(rows_query(head.kept), chain);
    if (!outcome.ok()) throw engines::Failure(*outcome.error);
    chain.finish();
    if (!head.kept) return;
    add_rows(session,
             "SELECT '内容没有所属的记录: 第', T.ID, '条' FROM SYS_LOG_TEXT T "
             "WHERE NOT EXISTS (SELECT * FROM SYS_LOG L WHERE L.ID = T.ID) ORDER BY T.ID",
             findings);
}

} // namespace automation
