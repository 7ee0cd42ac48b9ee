// The voucher that carries profit and loss forward.
#include "module/period/carry_forward.h"

#include "host/contract/U_function.h"
#include "host/values/sql_text.h"

namespace module {
namespace {

const char* const word = "记";
const char* const nothing = "0.00";

std::string insert_head(const CarryForwardVoucher& voucher) {
    return "INSERT INTO D6601 (T_SY,NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES (1," +
           quoted(voucher.key()) + "," + quoted(voucher.period) + "," + quoted(word) + "," +
           quoted(voucher.number) + ",'0'," + quoted(voucher.date) + "," + quoted(voucher.user) +
           ");";
}

std::string insert_line(const CarryForwardVoucher& voucher, const std::string& account,
                        const std::string& debit, const std::string& credit, int index) {
    return "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES (" + quoted(voucher.key()) +
           "," + quoted(voucher.summary) + "," + quoted(account) + "," + quoted(debit) + "," +
           quoted(credit) + "," + std::to_string(index) + ");";
}

} // namespace

void CarriedTotals::add(const CarriedAccount& account) {
    (account.debit_side ? debit : credit) += account.balance;
}

std::string CarryForwardVoucher::key() const { return period + word + number; }

std::string carry_forward_batch(const CarryForwardVoucher& voucher,
                                const std::vector<CarriedAccount>& accounts,
                                const CarriedTotals& totals) {
    std::string batch = insert_head(voucher);
    int lines = 0;
    for (const CarriedAccount& account : accounts) {
        if (account.balance.is_zero()) continue;
        const std::string amount = FormatAmount(account.balance);
        batch += account.debit_side ? insert_line(voucher, account.code, nothing, amount, lines)
                                    : insert_line(voucher, account.code, amount, nothing, lines);
        ++lines;
    }
    const std::string target = accounts.empty() ? "" : accounts.back().target;
    if (!totals.debit.is_zero()) {
        batch += insert_line(voucher, target, FormatAmount(totals.debit), nothing, lines + 1);
    }
    if (!totals.credit.is_zero()) {
        batch += insert_line(voucher, target, nothing, FormatAmount(totals.credit), lines + 2);
    }
    return batch;
}

} // namespace module
