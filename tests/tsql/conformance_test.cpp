// Every case of T-SQL conformance on the embedded engine.
#include <gtest/gtest.h>

#include "engines/engine.h"
#include "tests/tsql/conformance_case.h"
#include "tests/tsql/exceptions.h"

namespace tests {

namespace {

class Conformance : public testing::TestWithParam<ConformanceCase> {};

std::string test_name(const testing::TestParamInfo<ConformanceCase>& info) {
    std::string name = info.param.id;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

} // namespace

// gtest would print every byte of a case otherwise.
void PrintTo(const ConformanceCase& one, std::ostream* out) {
    *out << one.id;
}

TEST_P(Conformance, the_embedded_engine_answers_as_the_server) {
    const ConformanceCase& one = GetParam();
    const auto session = engines::sqlite_engine().open(":memory:", {});
    const std::string difference = difference_in(one, *session);
    for (const ConformanceException& exception : conformance_exceptions) {
        if (exception.id != one.id) continue;
        EXPECT_NE(difference, "") << "no longer an exception: " << exception.reason;
        return;
    }
    EXPECT_EQ(difference, "") << one.id << ": " << one.note << "\n" << one.sql;
}

INSTANTIATE_TEST_SUITE_P(sqlite, Conformance, testing::ValuesIn(conformance_cases()), test_name);

TEST(ConformanceCases, the_files_are_found) {
    EXPECT_GE(conformance_cases().size(), 538U);
}

} // namespace tests
