// Reverses a posted voucher in red: what was booked stays in the books, and is taken back openly.
#include "module/vouchers/red_voucher.h"

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/vouchers/cash_allocation.h"
#include "module/vouchers/voucher_grid.h"
#include "module/vouchers/voucher_number.h"
#include "module/vouchers/voucher_statements.h"

namespace module {
namespace {

constexpr std::size_t longest_summary = 100; // characters

std::string name_of(const std::string& period, const std::string& word, const std::string& number) {
    return period + word + "-" + number;
}

// Looked for among the lines of one account, from the original's period on, where the index leads.
std::string select_marked(const OriginalVoucher& original, const std::string& account) {
    const std::string mark = red_mark(original);
    return "SELECT D6601.PZQJ,D6601.PZZ,D6601.PZZ_H FROM D6601A INNER JOIN D6601 ON "
           "D6601A.NOID=D6601.NOID WHERE D6601A.KM_ID=" +
           quoted(account) + " AND D6601A.NOID>=" + quoted(original.period) +
           " AND LEFT(D6601A.ZY," + std::to_string(character_count(mark)) + ")=" + quoted(mark) +
           " ORDER BY D6601.NOID";
}

} // namespace

std::string red_mark(const OriginalVoucher& original) {
    return "红字冲销" + name_of(original.period, original.word, original.number) + " ";
}

Date red_date(Period open, Date today) {
    return open.contains(today) ? today : open.last_day();
}

std::vector<VoucherLine> red_lines(const std::vector<VoucherLine>& lines, const std::string& mark) {
    std::vector<VoucherLine> red;
    for (const VoucherLine& line : lines) {
        red.push_back({first_characters(mark + line.summary, longest_summary), line.account,
                       -line.debit, -line.credit});
    }
    return red;
}

std::vector<VoucherLine> read_voucher_lines(const std::string& function, const std::string& key) {
    TClientDataSet rows;
    VoucherGrid grid(rows);
    grid.define_fields();
    opensql(rows, function, select_voucher_lines(key));
    return grid.read();
}

std::string already_reversed_by(const std::string& function, const OriginalVoucher& original,
                                const std::vector<VoucherLine>& lines) {
    if (lines.empty()) return "";
    TClientDataSet red;
    opensql(red, function, select_marked(original, lines.front().account));
    if (red.IsEmpty()) return "";
    return name_of(red.FieldByName("PZQJ").AsText(), red.FieldByName("PZZ").AsText(),
                   red.FieldByName("PZZ_H").AsText());
}

RedVoucher red_voucher(const std::string& function, const OriginalVoucher& original,
                       const std::vector<VoucherLine>& lines, Period open, Date today,
                       const std::string& maker) {
    const std::string period = open.to_text();
    const std::string number = std::to_string(next_voucher_number(function, period, original.word));
    const std::string key = voucher_key(period, original.word, number);
    const VoucherHead head{
        key, period, original.word, number, "0", red_date(open, today).to_text(), maker};
    return {key, insert_voucher_head(head) +
                     insert_voucher_lines(key, red_lines(lines, red_mark(original))) +
                     take_back_allocation(original.key, key)};
}

} // namespace module
