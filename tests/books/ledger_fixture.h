// Books with a few posted vouchers, written as the forms write them.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "app/data/engine_data.h"
#include "app/settings/surroundings.h"
#include "automation/check/check.h"
#include "engines/session.h"
#include "host/values/period.h"
#include "tests/support/temporary_folder.h"

namespace tests {

struct Line {
    std::string account, debit, credit;
};

// Books opened at 2024-03 with a session and the data operations on it.
class Ledger : public ::testing::Test {
protected:
    Ledger();

    // Writes an audited voucher of the current period; answers its key.
    std::string voucher(int number, const std::vector<Line>& lines,
                        const std::string& word = "记");
    // Posts the current period, or takes it back, by the batch of the posting dialog.
    void post();
    void unpost();
    // Closes the current period or takes the last closing back, as the closing dialog does.
    void close_period();
    void take_closing_back();
    // The first column of the first row, "" without one.
    std::string value(const std::string& select);
    // A batch past every form, as somebody with the file in hand might send it.
    void damage(const std::string& batch);
    // The texts of all findings, joined; "" for sound books.
    std::string findings();
    std::string hints(); // in the same way
    bool finds(const std::string& check, const std::string& part);

private:
    void set_period(const host::Period& period, const std::string& key);

protected:
    TemporaryFolder folder_;
    std::string books_;
    std::unique_ptr<engines::Session> session_;
    app::SystemClock clock_;
    std::unique_ptr<app::EngineData> data_;
};

} // namespace tests
