// Questions to the books, answers from the story.
#include "app/demo/verify_month.h"

#include "app/refusal.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

using host::Amount;

void verify_cell(engines::Session& session, const ToldMonth& month, const std::string& what,
                 const std::string& query, const std::string& told) {
    verify_text(month, what, automation::rows_of(session, query)[0][0].value_or(""), told);
}

Amount allocated(const std::vector<ToldVoucher>& vouchers) {
    Amount sum;
    for (const ToldVoucher& voucher : vouchers)
        if (!voucher.cash_item.empty()) sum += money_received(voucher);
    return sum;
}

} // namespace

void verify_text(const ToldMonth& month, const std::string& what, const std::string& found,
                 const std::string& told) {
    if (found == told) return;
    throw Refusal("演示数据没有全部录入," + month.period.to_text() + "的" + what + "是" + found +
                  ",应为" + told + "。请把这个问题报告给开发者!");
}

void verify_month(engines::Session& session, const ToldMonth& month) {
    const std::string period = host::quoted(month.period.to_text());
    const std::size_t entered =
        month.vouchers.size() + month.after_carrying.size() + (month.closes ? 1 : 0);
    const auto count = [&](const char* what, const std::string& condition, std::size_t told) {
        verify_cell(session, month, what,
                    "SELECT COUNT(*) FROM D6601 WHERE PZQJ = " + period + condition,
                    std::to_string(told));
    };
    count("凭证数", "", entered);
    count("已审凭证数", " AND T = 1", month.closes ? entered : month.audited);
    count("已登帐凭证数", " AND D = 1", month.closes ? entered : month.posted);
    verify_cell(session, month, "现金流量分配",
                "SELECT ISNULL(SUM(B.J - B.D), 0.00) FROM D6601B B INNER JOIN D6601 H ON "
                "H.NOID = B.NOID WHERE H.PZQJ = " +
                    period,
                (allocated(month.vouchers) + allocated(month.after_carrying)).to_text());
    if (!month.closes) return;
    const auto rows = automation::rows_of(
        session, "SELECT KM_ID, J - D FROM D6602 WHERE INX = 1 AND QJ = " + period);
    for (const auto& row : rows) {
        const std::string told = month.after.balance(*row[0]).to_text();
        verify_text(month, *row[0] + "余额", row[1].value_or(""), told);
    }
}

} // namespace app
