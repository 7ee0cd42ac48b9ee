// A person with one of the books by period open: a ledger, the journal, the trial balance.
#pragma once

#include <string>
#include <vector>

#include "tests/forms/form_desk.h"

namespace tests {

// Small books by heart in 2024-03, the first period 2024-01, with the answers of the ledgers.
class BookDesk : public FormDesk {
protected:
    explicit BookDesk(int code);

    // What the books say of their periods: to a dialog that knows both, and to the journal's.
    void periods_of_the_books(const std::string& current, const std::string& first);
    // The person with the rows before him.
    Person& at_the_book();
    int current_row(); // of the rows shown

    // Periods typed into the dialog; `last` "" where it asks for one month only. An empty verdict
    // shows the rows; any other text is the refusal, after which the dialog still stands with the
    // focus on the month and nothing was read.
    struct PeriodAttempt {
        const char *year, *first, *last, *verdict;
    };
    void try_periods(const std::vector<PeriodAttempt>& attempts);

private:
    const std::string form_; // "TF6685"
};

} // namespace tests
