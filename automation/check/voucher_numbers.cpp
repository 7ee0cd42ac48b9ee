// Numbers left out between the vouchers of a posted period: allowed, but worth asking about.
#include "automation/check/findings.h"
#include "automation/sql/collected_result.h"

namespace automation {

namespace {

// Each voucher whose number does not follow the one before it, with that number.
constexpr const char* gaps =
    "SELECT PZQJ, PZZ, BEFORE, PZZ_H FROM (SELECT PZQJ, PZZ, PZZ_H, "
    "LAG(PZZ_H, 1, 0) OVER (PARTITION BY PZQJ, PZZ ORDER BY PZZ_H) AS BEFORE FROM D6601) T "
    "WHERE PZZ_H > BEFORE + 1 AND PZQJ IN (SELECT PZQJ FROM D6601 WHERE D = 1) "
    "ORDER BY PZQJ, PZZ, PZZ_H";

std::string range(std::int64_t from, std::int64_t to) {
    return from == to ? std::to_string(from) : std::to_string(from) + "-" + std::to_string(to);
}

} // namespace

void check_voucher_numbers(engines::Session& session, Findings& findings) {
    for (const TextRow& row : rows_of(session, gaps))
        findings.hint(*row[0] + " " + *row[1] + "字: 缺 " +
                      range(std::stoll(*row[2]) + 1, std::stoll(*row[3]) - 1) + " 号");
}

} // namespace automation
