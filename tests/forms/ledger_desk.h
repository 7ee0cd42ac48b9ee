// A person on real books of March 2024, with the everyday steps as single calls.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

class LedgerDesk : public testing::Test {
protected:
    using Cells = std::vector<std::pair<std::string, std::string>>;
    LedgerDesk();
    void TearDown() override; // whatever forms did, the books are sound

    void new_voucher(); // opens the list and a blank voucher
    // Types a debit and a credit of the amount and saves; the form is ready for the next voucher.
    void save_voucher(const std::string& debit, const std::string& credit,
                      const std::string& amount);
    void audit_all();
    void post();
    void unpost();
    void trial_balance(const std::string& level);
    Row account(const std::string& code); // its row in the grid shown; empty when it has none

    bool written_past_forms = false; // a test that damages the books itself says so
    Books books;
    Person anna;
};

} // namespace tests
