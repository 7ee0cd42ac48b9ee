// The income statement: look at it, recalculate it, change its formulas.
#include "module/statements/U6673.h"

namespace module {

TF6673* F6673 = nullptr;

namespace {

using enum StatementContent;

// The titles of the two grids and the labels do not agree; they are the ones of this screen.
constexpr StatementColumn columns[] = {
    // what     amounts                    formulas
    {Item, "A1", "A|资产", "A1", "A|资产"},
    {LineNumber, "A2", "B|行次", "A2", "B|行次"},
    {Amount, "A3", "C|本月金额", "A5", "C|本月累计金额"}, // of the month
    {Amount, "A4", "D|本年累计金额", "A6", "D|本年金额"}, // of the year to date
};

constexpr FieldLabel labels[] = {
    {"A1", 255, "资产"}, {"A2", 53, "行次"}, {"A3", 53, "本年累计金额"}, {"A4", 53, "本月金额"}};

constexpr PeriodWord periods[] = {
    {"年初", 1, true},   {"期末", 0},         {"本期借方累计", 2},
    {"本期贷方累计", 3}, {"本年借方累计", 4}, {"本年贷方累计", 5},
};

constexpr StatementFunction functions[] = {
    {"fsum(", "dbo.fsum3(", true}, // from one line to another
    {"fd(", "dbo.fd3(", true},     // one line
    {"fsy(", "dbo.fsy(", false},   // profit and loss of a range of accounts
};

} // namespace

const StatementKind income_statement = {
    .caption = "利 润 表",
    .table = "D6832",
    .columns = columns,
    .labels = labels,
    .words = {periods, functions},
    .opening_query = "SELECT * FROM D6832  WHERE G=",
    .layout_query = "SELECT * FROM D6832 WHERE G=",
    .opens_at_current_period = true,
    .passes = 6,
    .two_decimals = true,
    // The second table is the balance sheet's: a blank year to date stays a blank text here, which
    // counts as nothing just the same.
    .clear_blanks = "UPDATE D6832 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                    "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');",
};

} // namespace module
