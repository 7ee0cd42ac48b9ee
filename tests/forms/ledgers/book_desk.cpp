// A person with one of the books by period open: a ledger, the journal, the trial balance.
#include "tests/forms/ledgers/book_desk.h"

#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "tests/forms/ledgers/ledger_answers.h"
#include "tests/forms/small_books.h"

namespace tests {

BookDesk::BookDesk(int code) : FormDesk(code), form_("TF6" + std::to_string(code)) {
    answer_as_small_books(data);
    answer_general_ledger(data);
    answer_detailed_ledger(data);
    answer_cash_accounts(data);
    periods_of_the_books("2024-03", "2024-01");
}

void BookDesk::periods_of_the_books(const std::string& current, const std::string& first) {
    data.answer("SELECT param,(SELECT param  FROM d6600", {"param text", "fqj text"},
                {{current, first}});
    data.answer("SELECT param  FROM d6600 where id=2", {"param text"}, {{current}});
}

Person& BookDesk::at_the_book() {
    Person& anna = person();
    anna.click("btn_ok");
    anna.expect_active(form_);
    return anna;
}

int BookDesk::current_row() {
    int row = 0;
    person().inside([&row] {
        auto* form = host::the_host().active;
        auto* grid = dynamic_cast<host::TDBGridEh*>(form->FindComponent("DBGridEh"));
        row = grid->DataSet->RecNo();
    });
    return row;
}

void BookDesk::try_periods(const std::vector<PeriodAttempt>& attempts) {
    for (const PeriodAttempt& attempt : attempts) {
        SCOPED_TRACE(std::string(attempt.year) + " " + attempt.first + " " + attempt.last);
        leave();
        Person& anna = person();
        anna.set("EDT1", attempt.year);
        anna.set("EDT2", attempt.first);
        if (*attempt.last) anna.set("EDT3", attempt.last);
        anna.mark();
        anna.click("btn_ok");
        if (!*attempt.verdict) {
            anna.expect_active(form_);
            continue;
        }
        anna.expect_message(attempt.verdict);
        anna.expect_active(form_ + "F");
        EXPECT_EQ(anna.focused(), "EDT2");
        EXPECT_TRUE(anna.sent_texts().empty());
    }
}

} // namespace tests
