// Books of a worked month, posted, with a person at them; and the figures that must come out.
#pragma once

#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

class WorkedMonth : public testing::Test {
protected:
    WorkedMonth();

    void post();
    // Opens the statement, asks for the month where it does not know it, and recalculates.
    void recalculate(int code);
    // Amounts by line number: {"31": {"期末": "3276941.95"}}, of the worked month and as shown.
    using Figures = std::map<std::string, std::map<std::string, std::string>>;
    Figures expected(const std::string& statement) const;
    // Reads lines `number` and their columns out of the grid, with two decimals.
    Figures shown(const std::map<std::string, std::map<std::string, std::string>>& halves);
    Figures balance_sheet(); // both halves
    // Shown figures of the lines and columns that `wanted` names.
    static Figures of_the_lines(const Figures& all, const Figures& wanted);

    const nlohmann::json month; // of tests/worked_months
    Books books;
    Person anna;

private:
    void enter_accounts();
    void enter_opening_balances();
    void enter_vouchers();
    void enter_carry_forward();
};

} // namespace tests
