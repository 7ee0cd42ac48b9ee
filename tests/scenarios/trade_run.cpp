// Trade kept twice: the acts.
#include "tests/scenarios/trade_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>


namespace tests {

const TradeSide sales_side = {"D1102", "D8102", "D8103", "D651", "D631", "D631A", "VD631",
                              "SYS_YS", 631, 646, "收款结算", "其他应收",
                              {"应收帐款", "预收款", "预收退款", "预收冲应收"},
                              "本单累计收款必须与表格中明细累计收款一致", 1};
const TradeSide purchase_side = {"D1103", "D8202", "D8203", "D652", "D641", "D641A", "VD641",
                                 "SYS_YF", 641, 647, "费用结算", "其他应付",
                                 {"应付帐款", "预付款", "预付退款", "预付冲应付"},
                                 "本单累计付款必须与表格中明细累计付款一致", -1};

namespace {

// P1 owes 500.00 and P2 has 200.00 to its good when the books begin, on both sides.
std::string beginning() {
    std::string batch =
        "INSERT INTO D1010 (JY_ID,JY_NAME,BEGIN_MONEY) VALUES ('2','工行',1000),('3','建行',0);"
        "INSERT INTO D1101 (YW_ID,YW_NAME) VALUES ('1','王强');"
        "INSERT INTO D1007 (CK_ID,CK_NAME) VALUES ('1','总仓');"
        "INSERT INTO D1011 (SEND_ID,SEND_NAME) VALUES ('1','自提');"
        "INSERT INTO D1003 (DW_ID,DW_NAME) VALUES ('1','台');"
        "INSERT INTO D1801 (WL_ID,WL_NAME) VALUES ('W1','电视机'),('W2','电风扇');"
        "INSERT INTO D1801DW (WL_ID,DW_ID) VALUES ('W1','1'),('W2','1');"
        "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME,KM_ID) VALUES (0,'01','租金','5102'),"
        "(0,'02','利息','550302'),(1,'21','运费','550101'),(1,'22','罚款','560102');";
    for (const TradeSide* side : {&sales_side, &purchase_side})
        batch += "INSERT INTO " + std::string(side->parties) +
                 " (KH_GYS_ID,KG_NAME) VALUES ('P1','东方'),('P2','海天'),('P3','长城');"
                 "INSERT INTO " + side->goods +
                 " (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,YSMONEY) VALUES "
                 "('初P1',2,'P1','2023-12-31','admin',500,500),"
                 "('预P2',3,'P2','2023-12-31','admin',200,200);";
    return batch + "UPDATE D1102 SET SEND_ID='1';";
}

std::vector<NaiveShare> in_order(std::vector<NaiveShare> shares) {
    std::sort(shares.begin(), shares.end());
    return shares;
}

Cents sum_of(const std::vector<NaiveShare>& shares) {
    return std::accumulate(shares.begin(), shares.end(), Cents{0},
                           [](Cents sum, const NaiveShare& share) { return sum + share.amount; });
}

} // namespace

TradeRun::TradeRun(std::uint32_t seed)
    : random_(seed), books_({.today = "2024-03-31", .prepare = beginning()}),
      anna_(books_.data(), books_.person()), sales_{&sales_side, {}},
      purchases_{&purchase_side, {}} {
    for (Ledger* ledger : {&sales_, &purchases_}) {
        ledger->trade.items.push_back(
            {"初P1", "P1", "2023-12-31", NaiveItem::opening, 50000, 0});
        ledger->trade.opening_advances["P2"] = 20000;
    }
}

// ---- chance ----

std::size_t TradeRun::any(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
}

Cents TradeRun::amount(Cents most) {
    return std::uniform_int_distribution<Cents>(1, most)(random_);
}

std::string TradeRun::day() {
    constexpr int days[] = {31, 29, 31};
    const std::size_t month = any(3);
    const std::string day = std::to_string(1 + any(static_cast<std::size_t>(days[month])));
    return "2024-0" + std::to_string(month + 1) + "-" + (day.size() == 1 ? "0" : "") + day;
}

void TradeRun::step() {
    Ledger& ledger = once_in(2) ? sales_ : purchases_;
    switch (any(18)) {
    case 0: case 1: case 2: deliver(ledger); break;
    case 3: take_back(ledger); break;
    case 4: enter_other(ledger, true); break;
    case 5: enter_other(ledger, false); break;
    case 6: case 7: case 8: settle(ledger, NaiveSettlement::settles); break;
    case 9: settle(ledger, NaiveSettlement::advance); break;
    case 10: settle(ledger, NaiveSettlement::refund); break;
    case 11: settle(ledger, NaiveSettlement::set_off); break;
    case 12: change_settlement(ledger); break;
    case 13: delete_settlement(ledger); break;
    case 14: once_in(2) ? delete_other(ledger) : settle_too_much(ledger); break;
    case 15: transfer(); break;
    case 16: invoice(); break;
    case 17: receive_split();
    }
    compare_both_sides();
}

// ---- goods ----

void TradeRun::deliver(Ledger& ledger) {
    NaiveItem sale{next("S"), party(), day(), NaiveItem::sale, amount(500000), 0};
    if (once_in(4)) sale.credited = amount(sale.total);
    books_.execute("INSERT INTO " + std::string(ledger.side->goods) +
                   " (NOID,C,KH_GYS_ID,BDATE,USER_ID,TOLMONEY,REMONEY,YSMONEY) VALUES ('" +
                   sale.number + "',0,'" + sale.party + "','" + sale.date + "','admin'," +
                   money(sale.total) + "," + money(sale.credited) + "," +
                   money(sale.total - sale.credited) + ");");
    ledger.trade.items.push_back(sale);
    ++count_.acts["goods delivered"];
}

void TradeRun::invoice() {
    NaiveItem sale{"", party(), day(), NaiveItem::sale, 0, 0};
    NaiveSettlement at_once{.party = sale.party, .date = sale.date, .account = "1"};
    anna_.open(631);
    anna_.click("Act_Invoice");
    anna_.set("KH_GYS_ID", sale.party);
    anna_.set("CK_ID", "1");
    anna_.set("BDATE", sale.date);
    const char* const goods[] = {"W1", "W2"};
    const int lines = once_in(2) ? 2 : 1;
    for (int line = 0; line < lines; ++line) {
        const Cents pieces = amount(20), price = amount(9999);
        sale.total += pieces * price;
        anna_.line(line, {{"WL_ID", goods[line]},
                          {"SL", std::to_string(pieces)},
                          {"SJ", money(price)}});
    }
    if (once_in(2)) {
        const Cents whole = once_in(2) ? sale.total : amount(sale.total);
        at_once.discount = once_in(3) ? amount(whole) - 1 : 0;
        at_once.paid = whole - at_once.discount;
        anna_.set("BQMONEY", money(at_once.paid));
        anna_.set("YHMONEY", money(at_once.discount));
    }
    sale.number = anna_.value("Edit1");
    anna_.click("Act_Save");
    anna_.close();
    anna_.close();
    sales_.trade.items.push_back(sale);
    ++count_.acts["invoices"];
    if (at_once.paid + at_once.discount == 0) return;
    at_once.number = sale.number + "SYS";
    at_once.shares = {{sale.number, at_once.paid + at_once.discount}};
    sales_.trade.settlements.push_back(at_once);
    ++count_.acts["invoices paid at once"];
}

// Set against what is owed, or paid back in money at once.
void TradeRun::take_back(Ledger& ledger) {
    const NaiveItem back{next("R"), party(), day(), NaiveItem::goods_back, amount(60000), 0};
    const std::string from = once_in(3) ? account() : "0";
    books_.execute("INSERT INTO " + std::string(ledger.side->returns) +
                   " (NOID,KH_GYS_ID,JY_ID,BDATE,TOLMONEY,YSMONEY) VALUES ('" + back.number +
                   "','" + back.party + "','" + from + "','" + back.date + "'," +
                   money(back.total) + "," + money(back.total) + ");");
    if (from == "0") ledger.trade.items.push_back(back);
    else
        money_.push_back(
            {back.number, from, back.date, -ledger.side->money_direction * back.total});
    ++count_.acts["goods taken back"];
}

// ---- other documents ----

void TradeRun::enter_other(Ledger& ledger, bool open) {
    const TradeSide& side = *ledger.side;
    const std::string party = this->party(), day = this->day(), account = this->account();
    const Cents first = amount(30000), second = once_in(2) ? amount(30000) : 0;
    anna_.open(side.other_code);
    anna_.click("Act_Add");
    anna_.set("CB1", open ? side.open_kind : side.settled_kind);
    anna_.set("KH_GYS_ID", party);
    anna_.set("BDATE", day);
    if (!open) anna_.set("JY_ID", account);
    anna_.cell(0, "MONEY", money(first));
    anna_.cell(1, "MONEY", money(second));
    const std::string number = anna_.value("Edit1");
    anna_.click("Act_Save");
    anna_.close();
    anna_.close();
    if (open)
        ledger.trade.items.push_back(
            {number, party, day, NaiveItem::other, first + second, 0});
    else
        money_.push_back({number, account, day, side.money_direction * (first + second)});
    ++count_.acts[open ? "other documents left open" : "other documents settled at once"];
}

void TradeRun::delete_other(Ledger& ledger) {
    std::vector<NaiveItem>& items = ledger.trade.items;
    std::vector<std::size_t> others;
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].kind == NaiveItem::other) others.push_back(i);
    if (others.empty()) return;
    const std::size_t chosen = others[any(others.size())];
    const std::string number = items[chosen].number;
    if (!select(ledger.side->other_code, number)) return;
    const bool in_use = ledger.trade.in_use(number);
    if (!in_use) anna_.answer_next(true);
    anna_.click("Act_Delete");
    EXPECT_NE(anna_.next_message().find(in_use ? "不能删除" : "确定要删除"), std::string::npos);
    anna_.close();
    if (!in_use) items.erase(items.begin() + static_cast<std::ptrdiff_t>(chosen));
    ++count_.acts[in_use ? "deletes of documents in use refused" : "other documents deleted"];
}

// ---- settlements ----

void TradeRun::begin_settlement(Ledger& ledger, const NaiveSettlement& settlement) {
    anna_.open(ledger.side->settlement_code);
    anna_.click("Act_Add");
    anna_.set("CB1", ledger.side->purposes[settlement.purpose]);
    anna_.set("KH_GYS_ID", settlement.party);
    anna_.set("BDATE", settlement.date);
    anna_.set("JY_ID", settlement.account);
    anna_.set("MONEY", money(settlement.paid));
    if (settlement.discount != 0) anna_.set("YH", money(settlement.discount));
}

void TradeRun::settle(Ledger& ledger, int purpose) {
    NaiveSettlement settlement{.number = "", .party = party(), .date = day(), .purpose = purpose,
                               .paid = 0, .discount = 0, .shares = {}};
    settlement.account = account();
    NaiveTrade& trade = ledger.trade;
    const Cents offered = sum_of(trade.offered(settlement.party));
    const Cents advance = trade.advance_at_hand(settlement.party);
    Cents most = purpose == NaiveSettlement::advance ? 100000 : 0;
    if (purpose == NaiveSettlement::settles) most = offered;
    if (purpose == NaiveSettlement::refund) most = advance;
    if (purpose == NaiveSettlement::set_off) most = std::min(offered, advance);
    if (most <= 0) return;
    const Cents whole = once_in(3) ? most : amount(most);
    const bool off = purpose == NaiveSettlement::settles && whole > 1 && once_in(3);
    settlement.discount = off ? amount(whole - 1) : 0;
    settlement.paid = whole - settlement.discount;
    if (purpose == NaiveSettlement::settles || purpose == NaiveSettlement::set_off)
        settlement.shares = trade.spread(settlement.party, whole);
    begin_settlement(ledger, settlement);
    settlement.number = anna_.value("Edit1");
    anna_.click("Act_Save");
    anna_.close();
    anna_.close();
    EXPECT_EQ(stored_shares(ledger, settlement.number), in_order(settlement.shares));
    trade.settlements.push_back(settlement);
    ++count_.acts[ledger.side->purposes[purpose]];
}

void TradeRun::settle_too_much(Ledger& ledger) {
    NaiveSettlement settlement{.number = "", .party = party(), .date = day(), .paid = 0};
    settlement.account = account();
    // What came back is not taken once the money is used up, so it does not make less room.
    Cents room = 0;
    for (const NaiveShare& item : ledger.trade.offered(settlement.party))
        room += std::max(item.amount, Cents{0});
    if (room == 0) return;
    settlement.paid = room + amount(1000);
    // Where more came back than is settled, another refusal comes first.
    if (sum_of(ledger.trade.spread(settlement.party, settlement.paid)) <= 0) return;
    begin_settlement(ledger, settlement);
    anna_.click("Act_Save");
    anna_.expect_message(ledger.side->sums_differ);
    anna_.answer_next(true);
    anna_.close();
    anna_.forget_messages(); // whether to give up what was typed
    anna_.close();
    ++count_.acts["settlements of too much refused"];
}

// The second income category takes what is paid beyond all that is owed.
void TradeRun::receive_split() {
    NaiveSettlement receipt{.party = party(), .date = day(), .account = account()};
    NaiveTrade& trade = sales_.trade;
    const Cents owed = sum_of(trade.offered(receipt.party, false));
    if (owed <= 0) return;
    const Cents over = once_in(2) ? amount(5000) : 0;
    receipt.paid = over > 0 ? owed + over : amount(owed);
    receipt.shares = trade.spread(receipt.party, receipt.paid, false);
    const Cents first = amount(receipt.paid);
    receipt.split["2"] = first;
    if (receipt.paid > first) receipt.split["3"] = receipt.paid - first;
    anna_.open(630);
    anna_.click("Act_Add");
    anna_.set("KH_GYS_ID", receipt.party);
    anna_.set("BDATE", receipt.date);
    anna_.set("JY_ID", receipt.account);
    const Rows accounts = anna_.rows("cd_jy");
    for (std::size_t row = 0; row < accounts.size(); ++row)
        if (const auto share = receipt.split.find(accounts[row].at("JY_ID"));
            share != receipt.split.end())
            anna_.cell(static_cast<int>(row), "MONEY", money(share->second), "cd_jy");
    if (over > 0) anna_.cell(1, "MONEY", money(over));
    receipt.number = anna_.value("Edit1");
    anna_.click("Act_Save");
    anna_.close();
    anna_.close();
    EXPECT_EQ(stored_shares(sales_, receipt.number), in_order(receipt.shares));
    EXPECT_EQ(books_.value("SELECT ISNULL(SUM(MONEY),0.00) FROM D651A WHERE D631NOID='" +
                           receipt.number + "'"),
              money(over));
    trade.settlements.push_back(receipt);
    ++count_.acts[over > 0 ? "receipts of more than is owed" : "receipts split over accounts"];
}

// Of a settlement that is changed the documents are the ones it had: less money is spread over them
// anew, no document takes more than stood open, and nothing else moves.
void TradeRun::change_settlement(Ledger& ledger) {
    std::vector<NaiveSettlement*> found;
    for (NaiveSettlement& one : ledger.trade.settlements)
        if (one.purpose == NaiveSettlement::settles && one.paid > 1 && one.split.empty() &&
            !one.number.ends_with("SYS"))
            found.push_back(&one);
    if (found.empty()) return;
    NaiveSettlement& settlement = *found[any(found.size())];
    if (!select(ledger.side->settlement_code, settlement.number)) return;
    settlement.paid = amount(settlement.paid);
    settlement.account = account();
    anna_.click("Act_Modify");
    anna_.set("JY_ID", settlement.account);
    anna_.set("MONEY", money(settlement.paid));
    anna_.click("Act_Save");
    anna_.close(); // the list
    const std::vector<NaiveShare> before = std::exchange(
        settlement.shares, stored_shares(ledger, settlement.number));
    EXPECT_EQ(sum_of(settlement.shares), settlement.paid + settlement.discount);
    for (const NaiveShare& share : settlement.shares) {
        const auto had = std::find_if(before.begin(), before.end(), [&](const NaiveShare& one) {
            return one.item == share.item;
        });
        EXPECT_NE(had, before.end()) << share.item;
        for (const NaiveItem& item : ledger.trade.items) {
            if (item.number != share.item) continue;
            EXPECT_GE(ledger.trade.open(item), 0) << share.item;
            EXPECT_EQ(share.amount < 0, item.kind == NaiveItem::goods_back) << share.item;
        }
    }
    ++count_.acts["settlements changed"];
}

void TradeRun::delete_settlement(Ledger& ledger) {
    std::vector<NaiveSettlement>& all = ledger.trade.settlements;
    if (all.empty()) return;
    const std::size_t chosen = any(all.size());
    const NaiveSettlement& one = all[chosen];
    // An advance that was used stays, or more would be used up than there was.
    if (one.purpose == NaiveSettlement::advance &&
        ledger.trade.advance_at_hand(one.party) < one.paid)
        return;
    if (one.number.ends_with("SYS")) return; // changed and deleted with its invoice
    if (!select(ledger.side->settlement_code, one.number)) return;
    anna_.answer_next(true);
    anna_.click("Act_Delete");
    EXPECT_NE(anna_.next_message().find("确定要删除"), std::string::npos);
    anna_.close();
    all.erase(all.begin() + static_cast<std::ptrdiff_t>(chosen));
    ++count_.acts["settlements deleted"];
}

std::vector<NaiveShare> TradeRun::stored_shares(const Ledger& ledger, const std::string& number) {
    std::vector<NaiveShare> shares;
    const std::string goods = ledger.side->goods, others = ledger.side->others,
                      returns = ledger.side->returns;
    for (const Row& row : books_.table("SELECT COALESCE(" + goods + "NOID," + others + "NOID," +
                                       returns + "NOID) AS ITEM, MONEY FROM " +
                                       ledger.side->lines + " WHERE NOID='" + number +
                                       "'"))
        shares.push_back({row.at("ITEM"), cents_of(row.at("MONEY"))});
    return in_order(shares);
}

bool TradeRun::select(int code, const std::string& number) {
    anna_.open(code);
    anna_.key("F3");
    anna_.set("BDATE", "2024-01-01");
    anna_.set("EDATE", "2024-12-31");
    anna_.click("btn_ok");
    const Rows rows = anna_.rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].at("NOID") != number) continue;
        anna_.row(static_cast<int>(row));
        return true;
    }
    ADD_FAILURE() << number << " is not in the list of " << code;
    return false;
}

// ---- money alone ----

void TradeRun::transfer() {
    const std::string from = account(), day = this->day();
    std::string to = account();
    if (from == to) to = from == "1" ? "2" : "1";
    const Cents moved = amount(50000);
    anna_.open(648);
    anna_.click("Act_Add");
    const std::string number = anna_.value("Edit1");
    anna_.set("BDATE", day);
    anna_.set("JY_ID_FK", from);
    anna_.set("JY_ID_SK", to);
    anna_.set("MONEY", money(moved));
    anna_.click("btn_ok");
    anna_.close();
    money_.push_back({number, from, day, -moved});
    money_.push_back({number, to, day, moved});
    ++count_.acts["transfers"];
}

} // namespace tests
