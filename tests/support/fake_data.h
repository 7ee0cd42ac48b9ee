// A database that knows its answers by heart, for tests of one form without books.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/ports/data_port.h"

namespace tests {

// Columns are declared "NAME kind" with kind text, int, money, bit or date; cells are plain text,
// "<null>" for NULL, money as fine as wished. A query is answered by the first entry whose
// beginning it has, blanks at its front ignored; a query nobody prepared throws host::DataError
// naming it.
//
//     FakeData data;
//     data.answer("SELECT param", {"param text", "fqj text"}, {{"2024-03", "2024-01"}});
//     data.answer("select NOID", {"NOID text"}, {});
//     data.refuse_next_batch("重复的凭证");   // ExecSql then shows it and does not answer "Y"
class FakeData final : public host::DataPort {
public:
    using Cells = std::vector<std::string>;

    // Replaces an earlier answer to the same beginning.
    void answer(const std::string& beginning, std::vector<std::string> columns,
                std::vector<Cells> rows);
    void refuse_next_batch(const std::string& sentence);

    // Batches that were executed, in order, with what went into the operation log.
    struct Executed {
        std::string batch;
        host::LogEntry log;
    };
    const std::vector<Executed>& executed() const { return executed_; }
    const std::vector<std::string>& queries() const { return queries_; }

    void query(std::string_view sql, host::RowReceiver& receiver) override;
    void execute(std::string_view batch, const host::LogEntry& entry,
                 const host::WhyNot& why_not = {}) override;

private:
    struct Prepared {
        std::string beginning;
        std::vector<std::string> columns;
        std::vector<Cells> rows;
    };
    std::vector<Prepared> prepared_;
    std::vector<Executed> executed_;
    std::vector<std::string> queries_;
    std::string refusal_;
};

} // namespace tests
