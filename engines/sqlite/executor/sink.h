// Where the rows of a query go.
#pragma once

#include <span>
#include <vector>

#include "engines/sqlite/executor/frame.h"
#include "engines/statement.h"
#include "tsql/plan/plan.h"

namespace engines {

class RowSink {
public:
    virtual ~RowSink() = default;
    virtual void begin(std::span<const tsql::PlanColumn> columns) = 0;
    // One row, a cell a column. false: no more rows are wanted.
    virtual bool row(std::span<const Stored> cells) = 0;
    virtual void end() = 0;
};

// Shows rows to the receiver of the batch.
class ClientSink : public RowSink {
public:
    explicit ClientSink(ResultReceiver& receiver) : receiver_(receiver) {}
    void begin(std::span<const tsql::PlanColumn> columns) override;
    bool row(std::span<const Stored> cells) override;
    void end() override { receiver_.end_set(); }

private:
    ResultReceiver& receiver_;
    std::vector<tsql::Type> types_;
    std::vector<Column> columns_;
    std::vector<Value> cells_;
};

// Keeps rows in memory: INSERT … EXEC, cursors, single values.
class KeepingSink : public RowSink {
public:
    void begin(std::span<const tsql::PlanColumn> columns) override;
    bool row(std::span<const Stored> cells) override;
    void end() override {}

    std::size_t columns() const { return types_.size(); }
    std::vector<std::vector<TypedValue>> rows;

private:
    std::vector<tsql::Type> types_;
};

// Shows one kept row as a set of its own.
void show_row(ResultReceiver& receiver, std::span<const tsql::PlanColumn> columns,
              const std::vector<TypedValue>& row);

// A plan's column as a receiver sees it.
Column column_of(const tsql::PlanColumn& column);

} // namespace engines
