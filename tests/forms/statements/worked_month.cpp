// Books of a worked month, posted, with a person at them; and the figures that must come out.
#include "tests/forms/statements/worked_month.h"

#include <fstream>

#include "host/values/amount.h"
#include "host/values/sql_text.h"

namespace tests {

using nlohmann::json;

namespace {

json worked_month() {
    std::ifstream file(ZF_SOURCE_DIR "/tests/worked_months/home_appliances_2024_01.json");
    return json::parse(file);
}

BooksOptions opened(const json& month) {
    BooksOptions options;
    options.start = month.at("start");
    options.company = month.at("company");
    options.today = "2024-01-31";
    return options;
}

std::string literal(const json& text) {
    return host::quoted(text.get<std::string>());
}

std::string key_of(const json& voucher) {
    std::string number = std::to_string(voucher.at("number").get<int>());
    number.insert(0, 3 - std::min<std::size_t>(3, number.size()), '0');
    return host::quoted(voucher.at("period").get<std::string>() + "记" + number);
}

std::string insert_lines(const std::string& key, const json& lines) {
    std::string batch;
    int place = 0;
    for (const json& line : lines)
        batch += "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) VALUES (" + key + "," +
                 literal(line.value("zy", json("结转本期损益"))) + "," + literal(line.at("km_id")) +
                 "," + line.at("j").get<std::string>() + "," + line.at("d").get<std::string>() +
                 "," + std::to_string(place++) + ");";
    return batch;
}

std::string insert_voucher(const json& voucher) {
    const std::string key = key_of(voucher);
    std::string batch = "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,BDATE,USER_ID,T) VALUES (" + key +
                        "," + literal(voucher.at("period")) + ",'记'," +
                        std::to_string(voucher.at("number").get<int>()) + "," +
                        literal(voucher.at("date")) + ",'admin',1);";
    batch += insert_lines(key, voucher.at("lines"));
    for (const json& part : voucher.value("cash", json::array()))
        batch += "INSERT INTO D6601B (NOID,D6820ID,J,D) VALUES (" + key + "," +
                 literal(part.at("id")) + "," + part.at("j").get<std::string>() + "," +
                 part.at("d").get<std::string>() + ");";
    return batch;
}

} // namespace

WorkedMonth::WorkedMonth()
    : month(worked_month()), books(opened(month)), anna(books.data(), books.person()) {
    enter_accounts();
    enter_opening_balances();
    enter_vouchers();
    enter_carry_forward();
    post();
}

// ---- the books

void WorkedMonth::enter_accounts() {
    std::string batch;
    for (const json& one : month.at("accounts"))
        batch += "IF NOT EXISTS (SELECT * FROM D6801 WHERE KM_ID=" + literal(one.at("km_id")) +
                 ") INSERT INTO D6801 (KM_ID,KM_NAME,FX,OID,KM_FL,KM_J,KM_K) VALUES (" +
                 literal(one.at("km_id")) + "," + literal(one.at("km_name")) + "," +
                 literal(one.at("fx")) + "," + literal(one.at("oid")) + "," +
                 one.at("km_fl").dump() + "," + one.at("km_j").dump() + "," +
                 one.at("km_k").dump() + ");";
    books.execute(batch);
}

// The closing balances of the month before; a parent's is the net sum of everything below it.
void WorkedMonth::enter_opening_balances() {
    std::string batch;
    for (const json& one : month.at("opening"))
        batch += "UPDATE D6801 SET BEGIN4=" + one.at("begin4").get<std::string>() +
                 " WHERE KM_ID=" + literal(one.at("km_id")) + ";";
    batch += "DELETE FROM D6602;"
             "INSERT INTO D6602 (QJ,KM_ID,INX,J,D) SELECT '2023-12',T.KM_ID,1,"
             "CASE T.FX WHEN '借' THEN T.E ELSE 0 END,CASE T.FX WHEN '借' THEN 0 ELSE 0-T.E END "
             "FROM (SELECT A.KM_ID,A.FX,SUM(CASE L.FX WHEN '借' THEN L.BEGIN4 ELSE 0-L.BEGIN4 END) "
             "AS E FROM D6801 A INNER JOIN D6801 L ON LEFT(L.KM_ID,LEN(A.KM_ID))=A.KM_ID "
             "GROUP BY A.KM_ID,A.FX) T";
    books.execute(batch);
}

void WorkedMonth::enter_vouchers() {
    std::string batch;
    for (const json& voucher : month.at("vouchers")) batch += insert_voucher(voucher);
    books.execute(batch);
}

void WorkedMonth::enter_carry_forward() {
    json voucher = month.at("expected").at("periods").at("2024-01").at("carry_forward");
    voucher["period"] = "2024-01";
    books.execute(insert_voucher(voucher));
}

void WorkedMonth::post() {
    anna.open(663);
    anna.click("btn_ok");
    anna.expect_message("登帐完成!");
    anna.click("btn_Cancel");
}

// ---- the statements

void WorkedMonth::recalculate(int code) {
    anna.open(code);
    anna.set("Edit1", "2024-01");
    anna.click("Act_Other");
}

WorkedMonth::Figures WorkedMonth::expected(const std::string& statement) const {
    const json& all = month.at("expected").at("periods").at("2024-01").at(statement);
    return (all.contains("样式1") ? all.at("样式1") : all).get<Figures>();
}

WorkedMonth::Figures
WorkedMonth::shown(const std::map<std::string, std::map<std::string, std::string>>& halves) {
    Figures figures;
    for (const Row& row : anna.rows())
        for (const auto& [number, columns] : halves)
            for (const auto& [field, name] : columns) {
                if (row.at(number).empty()) continue;
                const auto amount = host::Amount::parse(row.at(field));
                figures[row.at(number)][name] = amount ? amount->to_text(2) : row.at(field);
            }
    return figures;
}

WorkedMonth::Figures WorkedMonth::balance_sheet() {
    return shown(
        {{"A2", {{"A3", "年初"}, {"A4", "期末"}}}, {"B2", {{"B3", "年初"}, {"B4", "期末"}}}});
}

WorkedMonth::Figures WorkedMonth::of_the_lines(const Figures& all, const Figures& wanted) {
    Figures some;
    for (const auto& [line, columns] : wanted)
        for (const auto& [column, amount] : columns)
            if (all.contains(line) && all.at(line).contains(column))
                some[line][column] = all.at(line).at(column);
    return some;
}

} // namespace tests
