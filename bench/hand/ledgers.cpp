// The queries of the two ledgers and the running sums over their rows.
#include "bench/hand/ledgers.h"

namespace bench::hand {

// ---- detailed ledger

DetailedLedger::DetailedLedger(const std::string& file)
    : connection_(file),
      account_(connection_, "SELECT KM_NAME2, FX FROM D6801 WHERE KM_ID=?1"),
      opening_(connection_, "SELECT J-D FROM D6602 WHERE KM_ID=?1 AND QJ=?2 AND INX=1"),
      year_(connection_, "SELECT ifnull(sum(J),0), ifnull(sum(D),0) FROM D6602 WHERE KM_ID=?1 AND "
                         "INX=0 AND QJ>=?2 AND QJ<?3"),
      lines_(connection_, "SELECT H.BDATE, H.PZZ, H.PZZ_H, L.ZY, L.J, L.D, L.INX, L.NOID FROM "
                          "D6601A L JOIN D6601 H ON H.NOID=L.NOID WHERE L.KM_ID=?1 AND L.NOID>=?2 "
                          "AND L.NOID<?3 ORDER BY H.BDATE, H.PZZ, H.PZZ_H, L.INX") {}

LedgerSums DetailedLedger::read(const std::string& account, const host::Period& period) {
    const std::string from = period.to_text(), to = period.next().to_text();
    const std::string before = period.previous().to_text(), year = from.substr(0, 5) + "00";
    LedgerSums shown;
    account_.bind(1, account).step();
    shown.text += account_.text(0).size();
    const std::int64_t sign = account_.text(1) == "借" ? 1 : -1;
    account_.reset();
    opening_.bind(1, account).bind(2, before);
    std::int64_t balance = opening_.step() ? opening_.integer(0) : 0;
    opening_.reset();
    year_.bind(1, account).bind(2, year).bind(3, from).step();
    std::int64_t year_debit = year_.integer(0), year_credit = year_.integer(1);
    year_.reset();
    shown.add(0, 0, sign * balance);
    std::int64_t debit = 0, credit = 0;
    lines_.bind(1, account).bind(2, from).bind(3, to);
    while (lines_.step()) {
        balance += lines_.integer(4) - lines_.integer(5);
        debit += lines_.integer(4), credit += lines_.integer(5);
        shown.add(lines_.integer(4), lines_.integer(5), sign * balance);
        std::string number(lines_.text(1));
        number += '-';
        number += lines_.text(2);
        shown.text += number.size() + lines_.text(3).size() + lines_.text(7).size() +
                      static_cast<std::size_t>(lines_.integer(0) & 1);
    }
    lines_.reset();
    year_debit += debit, year_credit += credit;
    shown.add(debit, credit, sign * balance);
    shown.add(year_debit, year_credit, sign * balance);
    return shown;
}

// ---- general ledger

GeneralLedger::GeneralLedger(const std::string& file)
    : connection_(file),
      accounts_(connection_, "SELECT KM_ID, KM_NAME, FX FROM D6801 WHERE KM_ID>=?1 AND KM_ID<=?2 "
                             "AND KM_J<=1 ORDER BY KM_ID"),
      months_(connection_, "SELECT QJ, INX, J, D FROM D6602 WHERE KM_ID=?1 AND QJ>=?2 AND QJ<=?3 "
                           "ORDER BY QJ, INX") {}

LedgerSums GeneralLedger::read(const std::string& first, const std::string& last, int year) {
    const std::string before = host::Period::of(year, 1).previous().to_text();
    const std::string end = host::Period::of(year, 12).to_text();
    LedgerSums shown;
    accounts_.bind(1, first).bind(2, last);
    while (accounts_.step()) {
        const std::int64_t sign = accounts_.text(2) == "借" ? 1 : -1;
        LedgerSums account;
        std::int64_t opening = 0, debit = 0, credit = 0, year_debit = 0, year_credit = 0;
        months_.bind(1, accounts_.text(0)).bind(2, before).bind(3, end);
        while (months_.step()) {
            account.text += accounts_.text(1).size() + months_.text(0).size();
            const bool inside = months_.text(0) != before;
            if (months_.integer(1) == 0) {
                if (!inside) continue;
                debit = months_.integer(2), credit = months_.integer(3);
                year_debit += debit, year_credit += credit;
                continue;
            }
            const std::int64_t balance = months_.integer(2) - months_.integer(3);
            if (inside) {
                account.add(0, 0, sign * opening);
                account.add(debit, credit, sign * balance);
                account.add(year_debit, year_credit, sign * balance);
            }
            opening = balance;
        }
        months_.reset();
        if (year_debit == 0 && year_credit == 0) continue;
        shown.rows += account.rows, shown.text += account.text;
        shown.debit += account.debit, shown.credit += account.credit;
        shown.balance += account.balance;
    }
    accounts_.reset();
    return shown;
}

} // namespace bench::hand
