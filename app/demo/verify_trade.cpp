// Looks whether money and balances of the trade are those of the ledger.
#include "app/demo/verify_trade.h"

#include <map>

#include "app/demo/verify_month.h"
#include "automation/sql/collected_result.h"
#include "host/values/sql_text.h"

namespace app {

namespace {

using host::Amount;

std::map<std::string, std::string> told_by(engines::Session& session, const std::string& query,
                                           std::size_t value) {
    std::map<std::string, std::string> answers;
    for (const auto& row : automation::rows_of(session, query))
        answers[row[0].value_or("")] = row[value].value_or("");
    return answers;
}

} // namespace

void verify_trade(engines::Session& session, const TradeStory& trade, const ToldMonth& month) {
    constexpr std::size_t closing = 5; // of JY_ID, JY_NAME, QC, INMONEY, OUTMONEY, YE
    auto money = told_by(
        session,
        "EXEC SYS_XJ @PARAM=0,@BDATE=" + host::quoted(month.period.first_day().to_text()) +
            ",@EDATE=" + host::quoted(month.period.last_day().plus_days(1).to_text()),
        closing);
    for (const StoryMoney& one : trade.money)
        verify_text(month, one.name + "余额", money[one.code],
                    month.after.balance(one.account).to_text());
    auto owed = told_by(session, "SELECT KH_GYS_ID,XJYS FROM VD631", 1);
    owed.merge(told_by(session, "SELECT KH_GYS_ID,XJYS FROM VD641", 1));
    for (const StoryParty& party : trade.parties) {
        const Amount balance = month.after.balance(party.account);
        verify_text(month, party.name + "往来余额", owed[party.code],
                    (party.customer ? balance : -balance).to_text());
    }
}

} // namespace app
