// Every statement of the forms runs on the full schema.
#include "automation/sql/collected_result.h"
#include "tests/books/ledger_fixture.h"
#include "tests/support/case_file.h"

namespace tests {
namespace {

class Statements : public Ledger {
protected:
    Statements() {
        voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        voucher(2, {{"1001", "30.00", "0.00"}, {"3131", "0.00", "30.00"}});
        post();
    }
    // What running it says, taken back afterwards; "" when it went well.
    std::string error_of(const std::string& statement) {
        if (!session_->begin().ok()) return "no transaction";
        const auto result = automation::collect(*session_, statement);
        session_->rollback();
        return result.outcome.ok() ? "" : result.outcome.error->text;
    }
};

} // namespace

TEST_F(Statements, run_without_an_error_and_leave_sound_books_behind_when_taken_back) {
    std::size_t statements = 0;
    for (const std::string& path :
         support::files_below(ZF_SOURCE_DIR "/tests/tsql/statements", ".case"))
        for (const support::Case& one : support::read_case_file(path, {}).cases) {
            EXPECT_EQ(error_of(one.text), "") << path << ":" << one.line;
            ++statements;
        }
    EXPECT_GT(statements, 150U);
    EXPECT_EQ(findings(), "");
}

} // namespace tests
