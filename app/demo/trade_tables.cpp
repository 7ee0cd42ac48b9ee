// Statements of the trade's master data and of the documents of goods.
#include "app/demo/trade_tables.h"

#include <map>

#include "host/values/sql_text.h"

namespace app {

namespace {

using host::Amount;
using host::quoted;

constexpr const char* piece = "01"; // unit of all goods
constexpr const char* route = "01";

// "INSERT INTO D1008 (BM_ID,BM_NAME) VALUES ('01','门市部');"
std::string inserted(const std::string& table, const std::string& columns,
                     const std::vector<std::string>& values) {
    std::string texts;
    for (const std::string& value : values) texts += (texts.empty() ? "" : ",") + quoted(value);
    return "INSERT INTO " + table + " (" + columns + ") VALUES (" + texts + ");";
}

Amount opening_of(const Story& story, const std::string& account) {
    for (const StoryBalance& balance : story.opening)
        if (balance.account == account)
            return balance.debit_side ? balance.amount : -balance.amount;
    return {};
}

std::string goods_masters(const TradeStory& trade) {
    std::string batch = inserted("D1007", "CK_ID,CK_NAME", {warehouse, "总仓"}) +
                        inserted("D1011", "SEND_ID,SEND_NAME", {route, "自备车送货"}) +
                        inserted("D1003", "DW_ID,DW_NAME", {piece, "台"});
    for (const StoryGood& good : trade.goods)
        batch += inserted("D1801", "WL_ID,WL_NAME,WL_GG", {good.code, good.name, good.model}) +
                 inserted("D1801DW", "WL_ID,DW_ID,TM", {good.code, piece, "69300000" + good.code});
    return batch;
}

// 212240105001: function, day, number of the day.
class DayNumbers {
public:
    std::string next(const std::string& function, host::Date day) {
        const std::string date = day.to_text(); // 2024-01-05
        const std::string beginning =
            function + date.substr(2, 2) + date.substr(5, 2) + date.substr(8, 2);
        const std::string number = std::to_string(++last_[beginning]);
        return beginning + std::string(3 - number.size(), '0') + number;
    }

private:
    std::map<std::string, int> last_;
};

} // namespace

std::string trade_masters(const Story& story, const TradeStory& trade) {
    std::string batch = "DELETE FROM D1010 WHERE JY_ID<>'0';";
    for (const StoryMoney& money : trade.money)
        batch += inserted("D1010", "JY_ID,JY_NAME,BEGIN_MONEY",
                          {money.code, money.name, opening_of(story, money.account).to_text()});
    for (const StoryCode& person : trade.staff)
        batch += inserted("D1101", "YW_ID,YW_NAME", {person.code, person.name});
    for (const StoryCode& department : trade.departments)
        batch += inserted("D1008", "BM_ID,BM_NAME", {department.code, department.name});
    for (const StoryParty& party : trade.parties) {
        if (party.customer)
            batch += inserted("D1102", "KH_GYS_ID,KG_NAME,FULL_NAME,FZR,TEL,SEND_ID,KM_IDA",
                              {party.code, party.name, party.full_name, party.contact, party.phone,
                               route, trade.staff.front().code});
        else
            batch += inserted("D1103", "KH_GYS_ID,KG_NAME,FULL_NAME",
                              {party.code, party.name, party.full_name});
    }
    return batch + goods_masters(trade);
}

std::string goods_documents(const std::vector<TradeDocument>& documents) {
    std::string batch;
    DayNumbers numbers;
    for (const TradeDocument& document : documents) {
        const std::string day = document.date.to_text(), amount = document.amount.to_text();
        if (document.kind == TradeKind::SaleReturn)
            batch += inserted("D8103", "NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY",
                              {numbers.next("204", document.date), document.party, "0", day,
                               amount, amount});
        if (document.kind == TradeKind::Purchase)
            batch += inserted("D8202",
                              "NOID,T,KH_GYS_ID,CK_ID,USER_ID,NOTE,BDATE,TOLMONEY,YSMONEY",
                              {numbers.next("212", document.date), "1", document.party, warehouse,
                               "admin", document.summary, day, amount, amount});
    }
    return batch;
}

} // namespace app
