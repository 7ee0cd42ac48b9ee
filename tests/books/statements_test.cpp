// Every statement of the forms runs on the full schema.
#include <fstream>

#include "automation/sql/batches.h"
#include "automation/sql/collected_result.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class Statements : public Ledger {
protected:
    Statements() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"1001", "30.00", "0.00"}, {"3131", "0.00", "30.00"}});
        post();
    }
};

} // namespace

TEST_F(Statements, run_without_an_error_and_leave_sound_books_behind_when_taken_back) {
    std::ifstream file(ZF_SOURCE_DIR "/tests/books/statements.sql");
    int statements = 0;
    for (std::string batch; automation::read_batch(file, batch); ++statements) {
        ASSERT_TRUE(session_->begin().ok());
        const auto result = automation::collect(*session_, batch);
        EXPECT_TRUE(result.outcome.ok())
            << batch << (result.outcome.ok() ? "" : result.outcome.error->text);
        session_->rollback();
    }
    EXPECT_GT(statements, 70);
    EXPECT_EQ(findings(), "");
}

} // namespace tests
