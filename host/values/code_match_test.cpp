// Finding a code by what was typed so far.
#include "host/values/code_match.h"

#include <gtest/gtest.h>

namespace host {
namespace {

struct Account {
    std::string code, name, pinyin;
};

const std::vector<Account> chart = {{"1001", "现金", "XJ"},
                                    {"100201", "银行存款-工行", "YHCKGH"},
                                    {"1131", "应收帐款", "YSZK"},
                                    {"2131", "预收帐款", "YSZK"},
                                    {"310101", "实收资本", "SSZB"}};

std::string found(const std::string& typed) {
    std::string codes;
    for (const Account* account : rows_fitting(chart, typed))
        codes += (codes.empty() ? "" : " ") + account->code;
    return codes;
}

TEST(CodeMatch, a_code_is_found_by_its_digits_its_name_and_its_pinyin) {
    // typed, codes found in order
    const struct {
        const char* typed;
        const char* codes;
    } rows[] = {
        {"1001", "1001"},
        {"10", "1001 100201 310101"}, // those that begin with the digits come first
        {"31", "310101 1131 2131"},
        {"收", "1131 2131 310101"},
        {"工行", "100201"},
        {"YSZK", "1131 2131"},
        {"ysz", "1131 2131"},
        {" ysz ", "1131 2131"},
        {"没有", ""},
    };
    for (const auto& row : rows) EXPECT_EQ(found(row.typed), row.codes) << row.typed;
}

TEST(CodeMatch, a_blank_text_fits_every_row_in_its_order) {
    EXPECT_EQ(found(" "), "1001 100201 1131 2131 310101");
}

} // namespace
} // namespace host
