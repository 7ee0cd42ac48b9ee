// A session on the embedded engine.
#pragma once

#include "engines/engine.h"
#include "engines/sqlite/executor/executor.h"

namespace engines {

class SqliteSession : public Session {
public:
    // Throws Failure when the books cannot be used.
    SqliteSession(const std::string& books, const OpenOptions& options);

    Outcome execute(std::string_view batch, ResultReceiver& receiver) override;
    Outcome execute_atomically(std::string_view batch, ResultReceiver& receiver) override;
    Outcome read(std::string_view batch, ResultReceiver& receiver) override;
    Outcome begin() override;
    Outcome begin_reading() override;
    Outcome commit() override;
    void rollback() override;
    int transaction_depth() const override { return transactions_.depth(); }
    void set_recorder(Recorder recorder) override { recorder_ = std::move(recorder); }
    void interrupt() override;
    void set_progress(BatchProgress listener, std::chrono::milliseconds every) override;
    void set_clock(std::optional<std::int64_t> day) override { executor_.set_clock(day); }
    void set_person(Person person) override { executor_.set_person(std::move(person)); }
    void backup_to(const std::string& file, const Progress& progress) override;
    std::vector<std::string> check_integrity() override;
    std::int64_t change_count() override;

private:
    Outcome compile_and_run(std::string_view batch, ResultReceiver& receiver, bool contained);
    Outcome guarded(const std::function<void()>& action);
    // Whether definitions were read anew.
    bool refresh_catalog();
    void transaction_begun();
    void remember_for_recorder(std::string_view batch);
    void run_before_commit();

    const OpenOptions options_;
    ConnectionHandle connection_;
    tsql::Catalog catalog_;
    tsql::Compiler compiler_;
    ObjectStore objects_;
    Identities identities_;
    Transactions transactions_;
    StatementCache statements_;
    Executor executor_;
    std::int64_t known_version_ = 0;
    bool compiled_outside_ = false; // the running batch was compiled before any transaction began
    StatementHandle data_version_;
    Recorder recorder_;
    std::string unrecorded_; // batches since the transaction began, or since they were told
    bool recording_ = false; // the recorder is at work
};

} // namespace engines
