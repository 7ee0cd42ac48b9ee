// A voucher's cash-flow allocation: which cash-flow items its cash came from and went to.
#include "module/vouchers/cash_allocation.h"

#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"

namespace module {
namespace {

std::string quoted_amount(const TField& amount) {
    return amount.IsNull() ? "'0'" : quoted(amount.AsText());
}

} // namespace

std::string select_allocation(const std::string& voucher_key) {
    return "SELECT D6820_1.ID, D6820_1.XJLL,A.J,A.D FROM D6820 INNER JOIN D6820 D6820_1 ON "
           "D6820.ID = D6820_1.OID LEFT JOIN (SELECT D6820ID, J, D FROM D6601B WHERE (NOID = " +
           quoted(voucher_key) + ")) A ON D6820_1.ID=A.D6820ID WHERE (D6820.OID <> 'ZZZ') ";
}

std::string replace_allocation(const std::string& voucher_key, const TClientDataSet& items) {
    const std::string key = quoted(voucher_key);
    std::string inserts;
    for (int row = 0; row < items.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(items, row);
        const TField& inflow = items.FieldByName("J");
        const TField& outflow = items.FieldByName("D");
        if (inflow.AsAmount() <= Amount() && outflow.AsAmount() <= Amount()) continue;
        inserts += "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES (" + key + "," +
                   quoted(items.FieldByName("ID").AsText()) + "," + quoted_amount(inflow) + "," +
                   quoted_amount(outflow) + ");";
    }
    return inserts.empty() ? "" : delete_allocation(voucher_key) + inserts;
}

std::string delete_allocation(const std::string& voucher_key) {
    return "delete from d6601b where noid=" + quoted(voucher_key) + ";";
}

std::string take_back_allocation(const std::string& voucher_key, const std::string& red_key) {
    return "INSERT INTO D6601B (NOID, D6820ID, J, D) SELECT " + quoted(red_key) +
           ",D6820ID,-J,-D FROM D6601B WHERE NOID=" + quoted(voucher_key) + ";";
}

std::string move_allocation(const std::string& voucher_key, const std::string& new_key) {
    return "UPDATE D6601B SET NOID=" + quoted(new_key) + " WHERE NOID=" + quoted(voucher_key) + ";";
}

} // namespace module
