// A person with one function open, on a database that knows its answers by heart.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/fake_data.h"
#include "tests/support/person.h"

namespace tests {

// A test prepares `data`; the function opens when person() is asked for first.
class FormDesk : public testing::Test {
protected:
    explicit FormDesk(int code) : code_(code) {}
    Person& person();
    void leave() { anna_.reset(); } // the next person() opens the function afresh
    // "BDATE 凭证日期, PZZ 凭证字": the visible columns of the main grid.
    std::string columns_shown();
    std::string last_batch() const; // what was saved last; "" when nothing was
    const host::LogEntry& last_log() const { return data.executed().back().log; }

    FakeData data;

private:
    int code_;
    std::unique_ptr<Person> anna_;
};

} // namespace tests
