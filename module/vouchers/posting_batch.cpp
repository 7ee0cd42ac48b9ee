// The statements that post a period or take its posting back.
#include "module/vouchers/posting_batch.h"

#include "host/values/sql_text.h"
#include "module/vouchers/balance_rows.h"

namespace module {
namespace {

// Periods are given as quoted texts.
std::string set_movements_from_vouchers(const std::string& period) {
    return "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D FROM ( "
           "SELECT D6601A.KM_ID, SUM(D6601A.J) AS J, SUM(D6601A.D) AS D "
           "FROM D6601A INNER JOIN D6601 ON D6601A.NOID = D6601.NOID "
           "WHERE D6601.T=1 AND (D6601.PZQJ = " +
           period +
           ") GROUP BY D6601A.KM_ID, D6601.PZQJ) T WHERE D6602.INX=0 AND D6602.QJ=" + period +
           " AND D6602.KM_ID=T.KM_ID;";
}

// 3131 is the profit of the current year: a voucher that touches it carries forward.
std::string mark_carry_forward_vouchers(const std::string& period) {
    return "UPDATE D6601 SET T_SY =1 FROM (SELECT D6601A.NOID, D6601.PZQJ "
           "FROM D6601A INNER JOIN D6601 ON D6601A.NOID = D6601.NOID "
           "WHERE (D6601A.KM_ID = '3131') AND (D6601.PZQJ = " +
           period + ")) A WHERE D6601.NOID=A.NOID ;";
}

// The sides are swapped: what carries a profit account forward stands on its other side, and the
// income statement wants the side on which the account earned it.
std::string set_carried_forward_amounts(const std::string& period) {
    return "UPDATE D6602 SET D6602.SY_J=T.J,D6602.SY_D=T.D FROM ( "
           "SELECT D6601A.KM_ID, SUM(D6601A.J) AS D, SUM(D6601A.D) AS J "
           "FROM D6601A INNER JOIN D6601 ON D6601A.NOID = D6601.NOID "
           "WHERE D6601.T=1 AND D6601.T_SY = 1 AND (D6601.PZQJ = " +
           period +
           ") GROUP BY D6601A.KM_ID, D6601.PZQJ) T WHERE D6602.INX=0 AND D6602.QJ=" + period +
           " AND D6602.KM_ID=T.KM_ID;";
}

// Closing balance = closing balance of the period before + movements, on the account's own side.
std::string set_closing_balances(const std::string& period, const std::string& before) {
    return "UPDATE D6602 SET D6602.J=T.J,D6602.D=T.D FROM ( SELECT D6602.KM_ID, "
           "CASE D6801.FX WHEN '借' then ISNULL(BE.J, 0.00)+D6602.J-D6602.D else 0.00 end AS J, "
           "CASE D6801.FX WHEN '借' then 0.00 else ISNULL(BE.D, 0.00)+D6602.D-D6602.J end AS D "
           "FROM D6602 INNER JOIN D6801 ON D6602.KM_ID = D6801.KM_ID LEFT OUTER JOIN "
           "(SELECT KM_ID, J, D FROM D6602 WHERE QJ = " +
           before +
           " AND INX = 1) BE ON D6602.KM_ID = BE.KM_ID "
           "WHERE (D6602.INX = 0) AND (D6602.QJ = " +
           period + ")) T WHERE D6602.INX=1 AND D6602.QJ=" + period + " AND D6602.KM_ID=T.KM_ID;";
}

std::string mark_audited_vouchers_posted(const std::string& period) {
    return "update D6601 set d=1 WHERE (D6601.PZQJ = " + period + ") and D6601.D=0 and t=1;";
}

std::string mark_vouchers_unposted(const std::string& period) {
    return "update D6601 set d=0 WHERE (D6601.PZQJ = " + period + ") and D6601.D=1;";
}

std::string delete_balances(const std::string& period) {
    return "delete from d6602 WHERE (QJ = " + period + ");";
}

} // namespace

std::string posting_batch(Period period) {
    const std::string current = quoted(period.to_text());
    const std::string before = quoted(period.previous().to_text());
    return add_missing_balance_rows(movements, current) +
           add_missing_balance_rows(closing_balance, current) +
           set_movements_from_vouchers(current) + mark_carry_forward_vouchers(current) +
           set_carried_forward_amounts(current) + roll_up_to_parents("", movements, current) +
           roll_up_to_parents("SY_", movements, current) + set_closing_balances(current, before) +
           mark_audited_vouchers_posted(current);
}

std::string unposting_batch(Period period) {
    const std::string current = quoted(period.to_text());
    return mark_vouchers_unposted(current) + delete_balances(current);
}

} // namespace module
