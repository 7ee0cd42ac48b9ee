// The balance sheet: look at it, recalculate it, change its formulas.
#include "module/statements/U6671.h"

namespace module {

TF6671* F6671 = nullptr;

namespace {

using enum StatementContent;

constexpr StatementColumn columns[] = {
    // what     amounts              formulas
    {Item, "A1", "A|资产", "A1", "A|资产"},
    {LineNumber, "A2", "B|行次", "A2", "B|行次"},
    {Amount, "A3", "C|年初数", "A5", "C|年初数"}, // at the beginning of the year
    {Amount, "A4", "D|期末数", "A6", "D|期末数"}, // at the end of the period
    {Item, "B1", "E|负债及所有者权益", "B1", "E|负债及所有者权益"},
    {LineNumber, "B2", "F|行次", "B2", "F|行次"},
    {Amount, "B3", "G|年初数", "B5", "G|年初数"},
    {Amount, "B4", "H|期末数", "B6", "H|期末数"},
};

// A balance sheet tells turnover of the period only: its words for the year mean the same.
constexpr PeriodWord periods[] = {
    {"年初", 1, true},   {"期末", 0},         {"本期借方累计", 2}, {"本期贷方累计", 3},
    {"本年借方累计", 2}, {"本年贷方累计", 3}, {"借方期初余额", 5}, {"贷方期初余额", 6},
};

constexpr StatementFunction functions[] = {
    {"fsum(", "dbo.fsum(", true},  // from one line to another
    {"fd(", "dbo.fd(", true},      // one line
    {"fasc(", "dbo.fasc(", false}, // a range of accounts
};

} // namespace

const StatementKind balance_sheet = {
    .caption = "资产负债表",
    .table = "D6830",
    .columns = columns,
    .labels = {},
    .words = {periods, functions},
    .opening_query = "SELECT * FROM D6830 WHERE G=",
    .layout_query = "SELECT * FROM D6830 WHERE G=",
    .opens_at_current_period = true,
    .passes = 6,
    .two_decimals = true,
    .clear_blanks = "UPDATE D6830 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                    "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');"
                    "UPDATE D6830 SET B3 = NULL WHERE (RTRIM(LTRIM(B3)) = '');"
                    "UPDATE D6830 SET B4 = NULL WHERE (RTRIM(LTRIM(B4)) = '');",
};

} // namespace module
