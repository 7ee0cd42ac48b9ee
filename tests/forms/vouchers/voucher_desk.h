// A person with a blank voucher before him, on the small company's books.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "tests/forms/small_books.h"
#include "tests/support/person.h"

namespace tests {

class VoucherDesk : public testing::Test {
protected:
    void SetUp() override;
    void start(PersonOptions options = {}); // sits down at the voucher list
    void new_voucher();
    // Cash 100 on the debit side, a receivable of 100 on the credit side.
    void type_balanced_lines();
    std::string last_batch() const; // what was saved last; "" when nothing was

    FakeData data;
    std::unique_ptr<Person> anna;
};

} // namespace tests
