// The cash flow statement: look at it, recalculate it, change its formulas.
#include "module/statements/U6672.h"

namespace module {

TF6672* F6672 = nullptr;

namespace {

using enum StatementContent;

constexpr StatementColumn columns[] = {
    // what     amounts                    formulas
    {Item, "A1", "A|资产", "A1", "A|资产"},
    {LineNumber, "A2", "B|行次", "A2", "B|行次"},
    {Amount, "A3", "C|本年累计金额", "A5", "C|本年累计金额"}, // of the year to date
    {Amount, "A4", "D|本月金额", "A6", "D|本月金额"},         // of the month
};

constexpr FieldLabel labels[] = {
    {"A1", 255, "资产"}, {"A2", 53, "行次"}, {"A3", 53, "本年累计金额"}, {"A4", 53, "本月金额"}};

// Its formulas name the functions of the database in full; the words for turnover are this
// statement's own.
constexpr PeriodWord periods[] = {
    {"年初", 1, true}, {"期末", 0}, {"本期累计借方", 2}, {"本期累计贷方", 3}};

} // namespace

const StatementKind cash_flow_statement = {
    .caption = "现金流量表",
    .table = "D6831",
    .columns = columns,
    .labels = labels,
    .words = {periods, {}},
    .opening_query = "SELECT * FROM D6831 ",
    .layout_query = nullptr,
    .opens_at_current_period = false, // the person says which period, every time
    .passes = 1,
    .two_decimals = false,
    // The second table is the balance sheet's: a blank month stays a blank text here.
    .clear_blanks = "UPDATE D6831 SET A3 = NULL WHERE (RTRIM(LTRIM(A3)) = '');"
                    "UPDATE D6830 SET A4 = NULL WHERE (RTRIM(LTRIM(A4)) = '');",
};

} // namespace module
