// Queries, logged writes, and errors as sentences.
#include "app/data/engine_data.h"

#include "app/data/cell_conversion.h"
#include "app/data/error_sentence.h"
#include "app/data/log_entry.h"
#include "host/values/errors.h"

namespace app {

namespace {

// Hands the first result set on; further ones are nobody's business.
class FirstSet : public engines::ResultReceiver {
public:
    // digest: of what is handed on, null when nobody wants it.
    FirstSet(host::RowReceiver& receiver, ResultDigest* digest)
        : receiver_(receiver), digest_(digest) {}

    void begin_set(std::span<const engines::Column> columns) override {
        wanted_ = !seen_;
        seen_ = true;
        if (!wanted_) return;
        if (digest_ != nullptr) digest_->begin_set(columns.size());
        std::vector<host::ColumnDescription> descriptions;
        descriptions.reserve(columns.size());
        for (const engines::Column& column : columns)
            descriptions.push_back(description_of(column));
        cells_.resize(columns.size());
        storage_.resize(columns.size());
        receiver_.columns(descriptions);
    }
    bool row(std::span<const engines::Value> values) override {
        if (!wanted_) return false;
        if (digest_ != nullptr) digest_->row(values);
        for (std::size_t i = 0; i < values.size(); ++i)
            cells_[i] = view_of(values[i], storage_[i]);
        receiver_.row(cells_);
        ++rows_;
        return true;
    }
    const std::int64_t& rows() const { return rows_; }

private:
    host::RowReceiver& receiver_;
    ResultDigest* digest_;
    std::vector<host::CellView> cells_;
    std::vector<std::string> storage_;
    std::int64_t rows_ = 0;
    bool seen_ = false;
    bool wanted_ = false;
};

[[noreturn]] void raise(const engines::Error& error) {
    throw host::DataError(sentence_for(error), error.text, error.number);
}

void require(const engines::Outcome& outcome) {
    if (!outcome.ok()) raise(*outcome.error);
}

// Undoes what was not committed, whatever way the block is left.
class Transaction {
public:
    explicit Transaction(engines::Session& session) : session_(session) {
        require(session_.begin());
        open_ = true;
    }
    ~Transaction() {
        if (open_) session_.rollback();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit() {
        require(session_.commit());
        open_ = false;
    }

private:
    engines::Session& session_;
    bool open_ = false;
};

} // namespace

// ---- long work is told, and can be stopped ----

// Listens to the session while one piece of work runs.
class EngineData::Listening {
public:
    // rows: counted by a query, null for a write.
    Listening(EngineData& data, const std::int64_t* rows) : data_(data), rows_(rows) {
        if (!data_.progress_) return;
        data_.session_.set_progress(
            [this](std::int64_t done, std::int64_t all) { return tell(done, all); },
            data_.every_);
    }
    ~Listening() {
        if (data_.progress_) data_.session_.set_progress({}, data_.every_);
        if (told_) data_.progress_(1, 1);
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

private:
    bool tell(std::int64_t done, std::int64_t all) {
        told_ = true;
        data_.reporting_ = true;
        const bool go_on = rows_ ? data_.progress_(*rows_, 0) : data_.progress_(done, all);
        data_.reporting_ = false;
        return go_on;
    }
    EngineData& data_;
    const std::int64_t* rows_;
    bool told_ = false;
};

EngineData::EngineData(engines::Session& session, const host::Clock& clock, std::string user)
    : session_(session), clock_(clock), user_(std::move(user)),
      readings_(session) {}

void EngineData::report_progress(Progress progress, std::chrono::milliseconds every) {
    progress_ = std::move(progress);
    every_ = every;
}

// The session is in the middle of a statement then.
void EngineData::refuse_within_report() const {
    if (reporting_) throw host::DataError("上一个操作还没有完成,请稍候再试!", "asked while working");
}

void EngineData::query(std::string_view sql, host::RowReceiver& receiver) {
    refuse_within_report();
    ResultDigest digest;
    const bool remembered = readings_.want_next();
    FirstSet first(receiver, remembered ? &digest : nullptr);
    const Listening listening(*this, &first.rows());
    const engines::Outcome outcome = session_.read(sql, first);
    if (outcome.ok()) {
        if (remembered) readings_.add(sql, digest);
        return;
    }
    switch (outcome.error->category) {
    case engines::ErrorCategory::interrupted:
        throw host::DataError("查询已取消,显示的内容没有更新!", outcome.error->text);
    case engines::ErrorCategory::read_only:
        throw host::DataError("这里只能查询,不能更改帐套的数据,没有执行!请改正公式或条件后再试。",
                              outcome.error->text, outcome.error->number);
    default: raise(*outcome.error);
    }
}

// Inside a transaction. Nothing is written without its row of the log.
void EngineData::write(std::string_view batch, const host::LogEntry& entry,
                       const host::WhyNot& why_not) {
    const std::string reason = why_not ? why_not() : "";
    if (!reason.empty()) throw host::DataError(reason, "not run: " + reason);
    if (!readings_.still_true())
        throw host::DataError("别的用户刚刚更改了有关的数据,没有保存!请刷新后再试一次。",
                              "what the act was decided on has changed");
    engines::ResultReceiver nobody;
    {
        const Listening listening(*this, nullptr);
        require(session_.execute_atomically(batch, nobody));
    }
    const engines::Outcome logged = append_log_row(session_, clock_.now(), user_, entry, batch);
    if (logged.ok()) return readings_.written();
    session_.rollback();
    raise(*logged.error);
}

void EngineData::execute(std::string_view batch, const host::LogEntry& entry,
                         const host::WhyNot& why_not) {
    refuse_within_report();
    if (unit_) {
        refuse_after_undoing();
        return write(batch, entry, why_not);
    }
    Transaction transaction(session_);
    write(batch, entry, why_not);
    transaction.commit();
}

// ---- many writes as one ----

void EngineData::begin_unit() {
    require(session_.begin());
    unit_ = true;
}

// An error may have ended the transaction that holds the unit together.
void EngineData::refuse_after_undoing() const {
    if (session_.transaction_depth() == 0)
        throw host::DataError("前面的操作出错,这一次录入的全部内容都已撤消,没有保存!",
                              "the unit of work was undone");
}

void EngineData::keep_unit() {
    refuse_after_undoing();
    unit_ = false;
    require(session_.commit());
}

void EngineData::undo_unit() {
    unit_ = false;
    session_.rollback();
}

} // namespace app
