// The statements as one writes them for this database: accounts first, figures by index, windows
// for what runs along.
#include "bench/hand/ledger_statements.h"

namespace bench::hand {

namespace {

using Kind = LedgerStatement::Kind;

// ?1 account, ?2 period, ?3 the next, ?4 the one before, ?5 the year's opening period.
constexpr const char* detailed = R"(
WITH A AS (SELECT KM_ID, KM_NAME2, FX, CASE FX WHEN '借' THEN 1 ELSE -1 END AS SIGN
           FROM D6801 WHERE KM_ID = ?1),
S AS (SELECT ifnull(sum(J), 0) AS J, ifnull(sum(D), 0) AS D
      FROM D6601A WHERE KM_ID = ?1 AND NOID >= ?2 AND NOID < ?3),
Y AS (SELECT ifnull(sum(J), 0) AS J, ifnull(sum(D), 0) AS D
      FROM D6602 WHERE KM_ID = ?1 AND INX = 0 AND QJ >= ?5 AND QJ < ?2),
R AS (
    SELECT 0 AS KIND, NULL AS BDATE, NULL AS PZZ, NULL AS PZZ_H, -1 AS INX, NULL AS NOID,
           CASE substr(?2, 6) WHEN '01' THEN '上年结转' ELSE '期初余额' END AS ZY, NULL AS J,
           NULL AS D,
           ifnull((SELECT J - D FROM D6602 WHERE KM_ID = ?1 AND QJ = ?4 AND INX = 1), 0) AS CHANGE
    UNION ALL
    SELECT 1, H.BDATE, H.PZZ, H.PZZ_H, L.INX, L.NOID, L.ZY, L.J, L.D, L.J - L.D
    FROM D6601A L CROSS JOIN D6601 H ON H.NOID = L.NOID
    WHERE L.KM_ID = ?1 AND L.NOID >= ?2 AND L.NOID < ?3
    UNION ALL
    SELECT 2, NULL, NULL, NULL, -1, NULL, '本期合计', S.J, S.D, 0 FROM S
    UNION ALL
    SELECT 3, NULL, NULL, NULL, -1, NULL, '本年累计', Y.J + S.J, Y.D + S.D, 0 FROM S, Y),
X AS (SELECT R.*, sum(CHANGE) OVER (ORDER BY KIND, BDATE, PZZ, PZZ_H, INX
                                    ROWS UNBOUNDED PRECEDING) AS BALANCE
      FROM R)
SELECT X.BDATE, X.PZZ || '-' || X.PZZ_H, X.ZY, NULL, X.J, X.D,
       CASE X.BALANCE WHEN 0 THEN '平' ELSE A.FX END, A.SIGN * X.BALANCE, A.KM_ID, A.KM_NAME2,
       X.INX, X.NOID
FROM X CROSS JOIN A
ORDER BY X.KIND, X.BDATE, X.PZZ, X.PZZ_H, X.INX)";

// ?1 and ?2 accounts, ?3 level, ?4 the year as "2024-", ?5 the last period of the year before,
// whose closing balance stands beside the year's opening and is not shown.
constexpr const char* general = R"(
WITH M(QJ, CLOSED, SHOWN) AS (
    VALUES (?4 || '00', ?5, 0), (?4 || '01', ?4 || '01', 1), (?4 || '02', ?4 || '02', 1),
           (?4 || '03', ?4 || '03', 1), (?4 || '04', ?4 || '04', 1), (?4 || '05', ?4 || '05', 1),
           (?4 || '06', ?4 || '06', 1), (?4 || '07', ?4 || '07', 1), (?4 || '08', ?4 || '08', 1),
           (?4 || '09', ?4 || '09', 1), (?4 || '10', ?4 || '10', 1), (?4 || '11', ?4 || '11', 1),
           (?4 || '12', ?4 || '12', 1)),
Y AS (
    SELECT A.KM_ID, A.KM_NAME, A.FX, M.QJ, M.SHOWN, P.J, P.D,
           ifnull(CASE A.FX WHEN '借' THEN B.J - B.D ELSE B.D - B.J END, 0) AS CLOSING
    FROM D6801 A CROSS JOIN M
    LEFT JOIN D6602 P ON P.KM_ID = A.KM_ID AND P.QJ = M.QJ AND P.INX = 0
    LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = M.CLOSED AND B.INX = 1
    WHERE A.KM_ID >= ?1 AND A.KM_ID <= ?2 AND A.KM_J <= ?3
      AND EXISTS (SELECT 1 FROM D6602 T
                  WHERE T.KM_ID = A.KM_ID AND T.QJ >= ?4 || '01' AND T.QJ <= ?4 || '12'
                    AND T.INX = 0 AND (T.J <> 0 OR T.D <> 0))),
W AS (
    SELECT Y.*, lag(CLOSING) OVER YEAR AS OPENING, sum(J) OVER YEAR AS YEAR_J,
           sum(D) OVER YEAR AS YEAR_D
    FROM Y WINDOW YEAR AS (PARTITION BY KM_ID ORDER BY QJ ROWS UNBOUNDED PRECEDING)),
STEPS(STEP) AS (VALUES (0), (1), (2))
SELECT KM_ID, KM_NAME, QJ,
       CASE STEP WHEN 1 THEN '本期合计' WHEN 2 THEN '本年累计' ELSE '期初余额' END,
       CASE STEP WHEN 1 THEN J WHEN 2 THEN YEAR_J END,
       CASE STEP WHEN 1 THEN D WHEN 2 THEN YEAR_D END,
       CASE CASE STEP WHEN 0 THEN OPENING ELSE CLOSING END WHEN 0 THEN '平' ELSE FX END,
       CASE STEP WHEN 0 THEN OPENING ELSE CLOSING END, QJ
FROM W CROSS JOIN STEPS
WHERE SHOWN = 1 AND (STEP = 0 OR J IS NOT NULL)
ORDER BY KM_ID, QJ, STEP)";

constexpr std::int64_t days_from_1900_to_1970 = 25567;

void take(host::CellView& cell, Kind kind, const Statement& row, int column) {
    cell.null = row.is_null(column);
    if (cell.null) return;
    switch (kind) {
    case Kind::text: cell.text = row.text(column); return;
    case Kind::amount: cell.integer = row.integer(column) * 100; return;
    case Kind::number: cell.integer = row.integer(column); return;
    case Kind::day:
        cell.integer = (row.integer(column) / 300 - days_from_1900_to_1970 * 86'400) * 1000;
    }
}

} // namespace

LedgerStatement::LedgerStatement(const std::string& file, const char* sql,
                                 std::vector<Column> columns)
    : connection_(file), statement_(connection_, sql), columns_(std::move(columns)) {}

void LedgerStatement::read(host::RowReceiver& receiver) {
    std::vector<host::ColumnDescription> descriptions;
    for (const Column& column : columns_) descriptions.push_back({.name = column.name});
    receiver.columns(descriptions);
    cells_.resize(columns_.size());
    while (statement_.step()) {
        for (std::size_t i = 0; i < columns_.size(); ++i)
            take(cells_[i], columns_[i].kind, statement_, int(i));
        receiver.row(cells_);
    }
    statement_.reset();
}

DetailedLedgerStatement::DetailedLedgerStatement(const std::string& file)
    : LedgerStatement(file, detailed,
                      {{"BDATE", Kind::day},
                       {"PZZ", Kind::text},
                       {"ZY", Kind::text},
                       {"KM_ID_DF", Kind::text},
                       {"J", Kind::amount},
                       {"D", Kind::amount},
                       {"FX", Kind::text},
                       {"E", Kind::amount},
                       {"KM_ID", Kind::text},
                       {"KM_NAME", Kind::text},
                       {"inx", Kind::number},
                       {"NOID", Kind::text}}) {}

void DetailedLedgerStatement::read(const std::string& account, const host::Period& period,
                                   host::RowReceiver& receiver) {
    const std::string from = period.to_text(), to = period.next().to_text();
    const std::string before = period.previous().to_text(), year = from.substr(0, 5) + "00";
    statement().bind(1, account).bind(2, from).bind(3, to).bind(4, before).bind(5, year);
    LedgerStatement::read(receiver);
}

GeneralLedgerStatement::GeneralLedgerStatement(const std::string& file)
    : LedgerStatement(file, general,
                      {{"KM_ID", Kind::text},
                       {"KM_NAME", Kind::text},
                       {"QJ", Kind::text},
                       {"ZY", Kind::text},
                       {"J", Kind::amount},
                       {"D", Kind::amount},
                       {"FX", Kind::text},
                       {"E", Kind::amount},
                       {"QJ_MONTH", Kind::text}}) {}

void GeneralLedgerStatement::read(const std::string& first, const std::string& last, int level,
                                  int year, host::RowReceiver& receiver) {
    const host::Period january = host::Period::of(year, 1);
    const std::string of_year = january.to_text().substr(0, 5);
    const std::string before = january.previous().to_text();
    statement().bind(1, first).bind(2, last).bind(3, std::int64_t{level});
    statement().bind(4, of_year).bind(5, before);
    LedgerStatement::read(receiver);
}

} // namespace bench::hand
