// Two ledgers written by hand as one statement of the database each.
#pragma once

#include <string>
#include <vector>

#include "bench/hand/connection.h"
#include "host/ports/data_port.h"
#include "host/values/period.h"

namespace bench::hand {

// The rows of a statement, handed on as they come. What a column holds says how it is handed on.
class LedgerStatement {
public:
    enum class Kind { text, amount, number, day }; // amount in cents, day in 1/300 s since 1900
    struct Column {
        const char* name;
        Kind kind;
    };
    LedgerStatement(const std::string& file, const char* sql, std::vector<Column> columns);

protected:
    Statement& statement() { return statement_; }
    // Runs the statement as it is bound.
    void read(host::RowReceiver& receiver);

private:
    Connection connection_;
    Statement statement_;
    std::vector<Column> columns_;
    std::vector<host::CellView> cells_;
};

// The rows and columns of SYS_685 for one account that takes entries and one period.
class DetailedLedgerStatement : public LedgerStatement {
public:
    explicit DetailedLedgerStatement(const std::string& file);
    void read(const std::string& account, const host::Period& period, host::RowReceiver& receiver);
};

// The rows and columns of SYS_686 for a year, accounts without turnover left out.
class GeneralLedgerStatement : public LedgerStatement {
public:
    explicit GeneralLedgerStatement(const std::string& file);
    void read(const std::string& first, const std::string& last, int level, int year,
              host::RowReceiver& receiver);
};

} // namespace bench::hand
