// A small company's books by heart: one word, March 2024 open, a handful of accounts.
#include "tests/forms/small_books.h"

namespace tests {

namespace {

using Rows_ = std::vector<FakeData::Cells>;

const std::vector<std::string> head_columns = {
    "NOID text",  "PZQJ text",    "PZZ text",      "PZZ_H int", "PZZ_Z int",
    "BDATE date", "USER_ID text", "SDATE date",    "sk text",   "T int",
    "D bit",      "T_SY int",     "USER_NAME text"};

const FakeData::Cells voucher_7 = {"2024-03记007", "2024-03", "记", "7", "2", "2024-03-05", "anna",
                                   "<null>",       "<null>",  "0",  "0", "0", "李敏"};
const FakeData::Cells voucher_8 = {"2024-03记008", "2024-03", "记", "8", "0", "2024-03-06", "anna",
                                   "2024-03-07",   "陈晓雯",  "1",  "1", "0", "李敏"};

void answer_vouchers(FakeData& data) {
    const std::string heads = "SELECT D6601.*, SYS_USER.USER_NAME FROM D6601 INNER JOIN   SYS_USER "
                              "ON D6601.USER_ID = SYS_USER.USER_ID ";
    data.answer(heads + " where d6601.noid='2024-03记007'", head_columns, {voucher_7});
    data.answer(heads + " where d6601.noid='2024-03记008'", head_columns, {voucher_8});
    data.answer(heads + " where d6601.noid=", head_columns, {});
    data.answer(heads + " WHERE D6601.NOID='2024-03记007'", head_columns, {voucher_7});
    data.answer(heads + " WHERE D6601.NOID='2024-03记008'", head_columns, {voucher_8});
    data.answer(heads, head_columns, {voucher_7, voucher_8});
    const std::vector<std::string> line_columns = {"NOID text",        "ZY text", "KM_ID text",
                                                   "J money",          "D money", "INX int",
                                                   "KM_NAME_NEW text", "KM_K bit"};
    const std::string lines = "SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER "
                              "JOIN V6801 ON D6601A.KM_ID = V6801.KM_ID  WHERE (NOID =";
    for (const std::string key : {"2024-03记007", "2024-03记008"}) {
        data.answer(lines + "'" + key + "'", line_columns,
                    {{key, "收货款", "1001", "585.00", "0.00", "0", "现金", "1"},
                     {key, "收货款", "1131", "0.00", "585.00", "1", "应收帐款", "0"}});
    }
    data.answer(lines, line_columns, {});
    data.answer("SELECT NOID FROM D6601 WHERE", {"NOID text"}, {});
    answer_red_vouchers(data, {});
    data.answer("SELECT * FROM ( SELECT 1 AS I", {"I int"}, {{"9"}, {"1"}});
    data.answer("SELECT ISNULL(MAX(NOID)+1,10000) AS N FROM D6601M", {"N int"}, {{"10003"}});
}

void answer_accounts(FakeData& data) {
    data.answer(
        "SELECT A.KM_ID,A.KM_NAME_NEW,A.PYM,A.FX,A.KM_K",
        {"KM_ID text", "KM_NAME_NEW text", "PYM text", "FX text", "KM_K bit", "J money", "D money"},
        {{"1001", "现金", "XJ", "借", "1", "350.00", "0.00"},
         {"100201", "银行存款-工行", "GH", "借", "1", "8000.00", "0.00"},
         {"1131", "应收帐款", "YSZK", "借", "0", "585.00", "0.00"},
         {"1133", "其他应收款", "QTYSK", "借", "0", "0.00", "0.00"},
         {"5101", "主营业务收入", "ZYYWSR", "贷", "0", "0.00", "0.00"}});
    data.answer("SELECT km_id,km_name_new,PYM FROM V6801 where ISEND=1",
                {"km_id text", "km_name_new text", "PYM text"},
                {{"1001", "现金", "XJ"},
                 {"100201", "银行存款-工行", "GH"},
                 {"1131", "应收帐款", "YSZK"},
                 {"1133", "其他应收款", "QTYSK"},
                 {"5101", "主营业务收入", "ZYYWSR"}});
    const std::string same_code = "SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID=";
    const std::vector<std::string> code_and_name = {"KM_ID text", "KM_NAME_NEW text"};
    data.answer(same_code + "'1002'", code_and_name, {{"1002", "银行存款"}});
    data.answer(same_code + "'１００１'", code_and_name, {{"1001", "现金"}});
    data.answer(same_code, code_and_name, {});
}

void answer_summaries(FakeData& data) {
    const std::vector<std::string> columns = {"GUID text", "ZY text", "PYM text"};
    const Rows_ both = {{"G1", "收货款", "SHK"}, {"G2", "提现", "TX"}};
    data.answer("SELECT * FROM D6803 WHERE (ZY like '%货%')", columns, {both[0]});
    data.answer("SELECT * FROM D6803 WHERE", columns, {});
    data.answer("SELECT * FROM D6803", columns, both);
}

void answer_templates(FakeData& data) {
    const std::string all = "SELECT D6601M.*, V6801.KM_NAME_NEW AS KM_NAME_NEW FROM D6601M INNER "
                            "JOIN V6801 ON D6601M.KM_ID = V6801.KM_ID ";
    const std::vector<std::string> columns = {"NOID int", "ZY text", "KM_ID text",      "J money",
                                              "D money",  "INX int", "KM_NAME_NEW text"};
    const Rows_ sale = {{"10001", "销售", "1131", "117.00", "0.00", "0", "应收帐款"},
                        {"10001", "销售", "5101", "0.00", "100.00", "1", "主营业务收入"},
                        {"10001", "代垫运费", "1133", "0.00", "17.00", "2", "其他应收款"}};
    const Rows_ cash = {{"10002", "提现", "1001", "500.00", "0.00", "0", "现金"},
                        {"10002", "提现", "100201", "0.00", "500.00", "1", "银行存款-工行"}};
    Rows_ both = sale;
    both.insert(both.end(), cash.begin(), cash.end());
    const std::string search = "INNER JOIN (SELECT D6601M.NOID FROM D6601M INNER JOIN V6801 ON "
                               "D6601M.KM_ID = V6801.KM_ID WHERE (V6801.KM_NAME_NEW LIKE '%";
    data.answer(all + search + "提%'", columns, cash);
    data.answer(all + search, columns, {});
    data.answer(all, columns, both);
}

} // namespace

void answer_allocation(FakeData& data, const std::vector<std::array<std::string, 3>>& amounts) {
    Rows_ items = {{"1101", "销售商品、提供劳务收到的现金", "<null>", "<null>"},
                   {"1109", "收到的其他与经营活动有关的现金", "<null>", "<null>"},
                   {"1201", "购买商品、接受劳务支付的现金", "<null>", "<null>"}};
    for (const auto& [item, inflow, outflow] : amounts) {
        for (auto& row : items) {
            if (row[0] == item) row = {item, row[1], inflow, outflow};
        }
    }
    data.answer("SELECT D6820_1.ID, D6820_1.XJLL,A.J,A.D FROM D6820",
                {"ID text", "XJLL text", "J money", "D money"}, items);
}

void answer_red_vouchers(FakeData& data, const std::vector<std::array<std::string, 3>>& vouchers) {
    Rows_ rows;
    for (const auto& voucher : vouchers) rows.push_back({voucher.begin(), voucher.end()});
    data.answer("SELECT D6601.PZQJ,D6601.PZZ,D6601.PZZ_H FROM D6601A INNER JOIN D6601 ON",
                {"PZQJ text", "PZZ text", "PZZ_H int"}, rows);
}

void answer_mode(FakeData& data, const std::string& mode) {
    Rows_ rows;
    if (!mode.empty()) rows.push_back({mode});
    data.answer("SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'", {"VALUE text"}, rows);
}

void answer_word_scheme(FakeData& data, const std::string& scheme) {
    data.answer("SELECT PARAM FROM D6600 WHERE ID=3", {"PARAM text"}, {{scheme}});
}

void answer_current_period(FakeData& data, const std::string& period) {
    data.answer("SELECT param,(SELECT param  FROM d6600", {"param text", "fqj text"},
                {{period, period.empty() ? "" : "2024-01"}});
    data.answer("SELECT id,param  FROM d6600 where id=2", {"id int", "param text"},
                {{"2", period}});
    data.answer("SELECT PARAM FROM D6600 WHERE ID=2", {"PARAM text"}, {{period}});
}

void answer_as_small_books(FakeData& data) {
    answer_word_scheme(data, "1");
    answer_current_period(data, "2024-03");
    answer_vouchers(data);
    answer_accounts(data);
    answer_summaries(data);
    answer_templates(data);
    answer_allocation(data, {});
    answer_mode(data, "");
}

} // namespace tests
