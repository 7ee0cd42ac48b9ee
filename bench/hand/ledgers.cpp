// The queries of the two ledgers and the running sums over their rows.
#include "bench/hand/ledgers.h"

namespace bench::hand {

namespace {

constexpr std::int64_t ten_thousandths_a_cent = 100;
constexpr std::int64_t days_from_1900_to_1970 = 25567;

void set(host::CellView& cell, std::string_view text) {
    cell.null = false;
    cell.text = text;
}
void set_amount(host::CellView& cell, std::int64_t cents) {
    cell.null = false;
    cell.integer = cents * ten_thousandths_a_cent;
}
// An opening row has a balance and no amounts.
void set_amounts(host::CellView& debit, host::CellView& credit, const std::optional<Sums>& sums) {
    if (!sums) return void(debit = credit = {});
    set_amount(debit, sums->debit), set_amount(credit, sums->credit);
}
void set_number(host::CellView& cell, std::int64_t number) {
    cell.null = false;
    cell.integer = number;
}
// A voucher's date is a whole day, kept in 1/300 seconds since 1900.
void set_day(host::CellView& cell, std::int64_t ticks) {
    cell.null = false;
    cell.integer = (ticks / 300 - days_from_1900_to_1970 * 86'400) * 1000;
}

std::vector<host::ColumnDescription> columns_of(std::initializer_list<const char*> names) {
    std::vector<host::ColumnDescription> columns;
    for (const char* name : names) columns.push_back({.name = name});
    return columns;
}

} // namespace

// ---- detailed ledger

namespace {

enum DetailedColumn { BDATE, PZZ, ZY, KM_ID_DF, J, D, FX, E, KM_ID, KM_NAME, INX, NOID };

const std::vector<host::ColumnDescription>& detailed_columns() {
    static const auto columns = columns_of({"BDATE", "PZZ", "ZY", "KM_ID_DF", "J", "D", "FX", "E",
                                            "KM_ID", "KM_NAME", "inx", "NOID"});
    return columns;
}

} // namespace

DetailedLedger::DetailedLedger(const std::string& file)
    : connection_(file),
      account_(connection_, "SELECT KM_NAME2, FX FROM D6801 WHERE KM_ID=?1"),
      opening_(connection_, "SELECT J-D FROM D6602 WHERE KM_ID=?1 AND QJ=?2 AND INX=1"),
      year_(connection_, "SELECT ifnull(sum(J),0), ifnull(sum(D),0) FROM D6602 WHERE KM_ID=?1 AND "
                         "INX=0 AND QJ>=?2 AND QJ<?3"),
      lines_(connection_, "SELECT H.BDATE, H.PZZ, H.PZZ_H, L.ZY, L.J, L.D, L.INX, L.NOID FROM "
                          "D6601A L JOIN D6601 H ON H.NOID=L.NOID WHERE L.KM_ID=?1 AND L.NOID>=?2 "
                          "AND L.NOID<?3 ORDER BY H.BDATE, H.PZZ, H.PZZ_H, L.INX") {}

void DetailedLedger::show_balance() {
    set(cells_[FX], balance_ == 0 ? std::string_view("平") : std::string_view(side_));
    set_amount(cells_[E], sign_ * balance_);
}

void DetailedLedger::show_sum(const char* words, const std::optional<Sums>& sums,
                              host::RowReceiver& receiver) {
    for (const int column : {BDATE, PZZ, NOID}) cells_[static_cast<std::size_t>(column)] = {};
    set(cells_[ZY], words);
    set_amounts(cells_[J], cells_[D], sums);
    set_number(cells_[INX], -1);
    show_balance();
    receiver.row(cells_);
}

void DetailedLedger::read_lines(host::RowReceiver& receiver) {
    debit_ = credit_ = 0;
    while (lines_.step()) {
        const std::int64_t debit = lines_.integer(4), credit = lines_.integer(5);
        balance_ += debit - credit;
        debit_ += debit, credit_ += credit;
        number_.assign(lines_.text(1));
        number_ += '-';
        number_ += lines_.text(2);
        set_day(cells_[BDATE], lines_.integer(0));
        set(cells_[PZZ], number_);
        set(cells_[ZY], lines_.text(3));
        set_amount(cells_[J], debit), set_amount(cells_[D], credit);
        set_number(cells_[INX], lines_.integer(6));
        set(cells_[NOID], lines_.text(7));
        show_balance();
        receiver.row(cells_);
    }
    lines_.reset();
}

void DetailedLedger::read(const std::string& account, const host::Period& period,
                          host::RowReceiver& receiver) {
    const std::string from = period.to_text(), to = period.next().to_text();
    const std::string before = period.previous().to_text(), year = from.substr(0, 5) + "00";
    code_ = account;
    account_.bind(1, account).step();
    name_ = account_.text(0), side_ = account_.text(1);
    account_.reset();
    sign_ = side_ == "借" ? 1 : -1;
    opening_.bind(1, account).bind(2, before);
    balance_ = opening_.step() ? opening_.integer(0) : 0;
    opening_.reset();
    year_.bind(1, account).bind(2, year).bind(3, from).step();
    const std::int64_t year_debit = year_.integer(0), year_credit = year_.integer(1);
    year_.reset();
    receiver.columns(detailed_columns());
    cells_.assign(detailed_columns().size(), {});
    set(cells_[KM_ID], code_), set(cells_[KM_NAME], name_);
    show_sum(period.month() == 1 ? "上年结转" : "期初余额", {}, receiver);
    lines_.bind(1, account).bind(2, from).bind(3, to);
    read_lines(receiver);
    show_sum("本期合计", Sums{debit_, credit_}, receiver);
    show_sum("本年累计", Sums{year_debit + debit_, year_credit + credit_}, receiver);
}

// ---- general ledger

namespace {

enum GeneralColumn { G_KM_ID, G_KM_NAME, G_QJ, G_ZY, G_J, G_D, G_FX, G_E, G_QJ_MONTH };

const std::vector<host::ColumnDescription>& general_columns() {
    static const auto columns =
        columns_of({"KM_ID", "KM_NAME", "QJ", "ZY", "J", "D", "FX", "E", "QJ_MONTH"});
    return columns;
}

} // namespace

GeneralLedger::GeneralLedger(const std::string& file)
    : connection_(file),
      accounts_(connection_, "SELECT KM_ID, KM_NAME, FX FROM D6801 WHERE KM_ID>=?1 AND KM_ID<=?2 "
                             "AND KM_J<=?3 ORDER BY KM_ID"),
      months_(connection_, "SELECT QJ, INX, J, D FROM D6602 WHERE KM_ID=?1 AND QJ>=?2 AND QJ<=?3 "
                           "ORDER BY QJ, INX") {}

// Answers whether anything moved within the year.
bool GeneralLedger::read_months(std::string_view account, std::int64_t sign) {
    read_.fill({});
    year_debit_ = year_credit_ = 0;
    bool moved = false;
    months_.bind(1, account).bind(2, periods_[0]).bind(3, periods_[12]);
    while (months_.step()) {
        const std::string_view period = months_.text(0);
        const bool balance = months_.integer(1) == 1;
        const std::int64_t debit = months_.integer(2), credit = months_.integer(3);
        if (period == year_begin_) {
            if (!balance) year_debit_ += debit, year_credit_ += credit;
            continue;
        }
        const bool before = period == periods_[0];
        const int number = (period[5] - '0') * 10 + period[6] - '0';
        Month& month = read_[before ? 0 : static_cast<std::size_t>(number)];
        if (balance) {
            month.balance = sign * (debit - credit);
        } else if (!before) {
            month.moved = true;
            month.debit = debit, month.credit = credit;
            moved = moved || debit != 0 || credit != 0;
        }
    }
    months_.reset();
    return moved;
}

void GeneralLedger::show(std::string_view side, std::int64_t balance, const char* words,
                         const std::optional<Sums>& sums, host::RowReceiver& receiver) {
    set(cells_[G_ZY], words);
    set_amounts(cells_[G_J], cells_[G_D], sums);
    set(cells_[G_FX], balance == 0 ? std::string_view("平") : side);
    set_amount(cells_[G_E], balance);
    receiver.row(cells_);
}

void GeneralLedger::show_months(std::string_view side, host::RowReceiver& receiver) {
    std::int64_t debit = year_debit_, credit = year_credit_;
    for (std::size_t at = 1; at < read_.size(); ++at) {
        const Month& month = read_[at];
        set(cells_[G_QJ], periods_[at]), set(cells_[G_QJ_MONTH], periods_[at]);
        show(side, read_[at - 1].balance, "期初余额", {}, receiver);
        if (!month.moved) continue;
        debit += month.debit, credit += month.credit;
        show(side, month.balance, "本期合计", Sums{month.debit, month.credit}, receiver);
        show(side, month.balance, "本年累计", Sums{debit, credit}, receiver);
    }
}

void GeneralLedger::read(const std::string& first, const std::string& last, int level, int year,
                         host::RowReceiver& receiver) {
    for (int month = 1; month <= 12; ++month)
        periods_[static_cast<std::size_t>(month)] = host::Period::of(year, month).to_text();
    periods_[0] = host::Period::of(year, 1).previous().to_text();
    year_begin_ = periods_[1].substr(0, 5) + "00";
    receiver.columns(general_columns());
    cells_.assign(general_columns().size(), {});
    accounts_.bind(1, first).bind(2, last).bind(3, std::int64_t{level});
    while (accounts_.step()) {
        const std::string_view side = accounts_.text(2);
        if (!read_months(accounts_.text(0), side == "借" ? 1 : -1)) continue;
        set(cells_[G_KM_ID], accounts_.text(0)), set(cells_[G_KM_NAME], accounts_.text(1));
        show_months(side, receiver);
    }
    accounts_.reset();
}

} // namespace bench::hand
