// What a document says is settled and open equals what its write-off lines give.
#include "automation/check/findings.h"

namespace automation {

namespace {

// A document table, the lines that settle it, and how its columns follow from them.
struct Settled {
    const char* table;
    const char* lines;
    const char* column;
    const char* sum;       // SUMMONEY, where S is the sum of the lines
    const char* open;      // YSMONEY
    const char* concerned; // documents that are settled by lines
};

// Lines of a return carry a negative amount, the return itself stays positive. Documents settled
// when they are made, and returns paid in money, have no lines.
constexpr Settled settled[] = {
    {"D8102", "D631A", "D8102NOID", "S", "TOLMONEY - REMONEY - SUMMONEY", "1 = 1"},
    {"D8202", "D641A", "D8202NOID", "S", "TOLMONEY - REMONEY - SUMMONEY", "1 = 1"},
    {"D651", "D631A", "D651NOID", "S", "TOLMONEY - SUMMONEY", "C <> 0"},
    {"D652", "D641A", "D652NOID", "S", "TOLMONEY - SUMMONEY", "C <> 0"},
    {"D8103", "D631A", "D8103NOID", "0 - S", "TOLMONEY - SUMMONEY", "JY_ID = '0'"},
    {"D8203", "D641A", "D8203NOID", "0 - S", "TOLMONEY - SUMMONEY", "JY_ID = '0'"},
};

std::string query_of(const Settled& rule) {
    const std::string table = rule.table, lines = rule.lines, column = rule.column;
    return "SELECT '" + table + "', NOID + ': 已结', SUMMONEY, '应为', " + rule.sum +
           ", '未结', YSMONEY FROM (SELECT A.*, ISNULL((SELECT SUM(MONEY) FROM " + lines +
           " B WHERE B." + column + " = A.NOID), 0.00) AS S FROM " + table + " A WHERE " +
           rule.concerned + ") T WHERE SUMMONEY <> " + rule.sum + " OR YSMONEY <> " + rule.open +
           " ORDER BY NOID";
}

} // namespace

void check_settlements(engines::Session& session, Findings& findings) {
    for (const Settled& rule : settled) add_rows(session, query_of(rule), findings);
}

} // namespace automation
