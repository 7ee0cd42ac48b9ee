// What the ledger procedures answer about a small company's March 2024, for tests without books.
#include "tests/forms/ledgers/ledger_answers.h"

namespace tests {

void answer_detailed_ledger(FakeData& data) {
    const std::string none = "<null>";
    const std::string cash = "1001", cash_name = "现金";
    const std::string owed = "1131", owed_name = "应收帐款-东方";
    data.answer(
        "EXEC SYS_685",
        {"BDATE date", "PZZ text", "ZY text", "KM_ID_DF text", "J money", "D money", "FX text",
         "E money", "KM_ID text", "KM_NAME text", "inx int", "NOID text"},
        {{none, none, "期初余额", none, none, none, "借", "100", cash, cash_name, "-1", none},
         {"2024-03-05", "记-7", "收货款", owed_name, "585", "0", "借", "685", cash, cash_name, "0",
          "2024-03记007"},
         {"2024-03-06", "记-8", "付运费", "营业费用", "0", "700", "借", "-15", cash, cash_name, "1",
          "2024-03记008"},
         {none, none, "本期合计", none, "585", "700", "借", "-15", cash, cash_name, "-1", none},
         {none, none, "本年累计", none, "585", "700", "借", "-15", cash, cash_name, "-1", none},
         {none, none, "期初余额", none, none, none, "借", "585", owed, owed_name, "-1", none},
         {"2024-03-05", "记-7", "收货款", cash_name, "0", "585", "平", "0", owed, owed_name, "1",
          "2024-03记007"},
         {none, none, "本期合计", none, "0", "585", "平", "0", owed, owed_name, "-1", none},
         {none, none, "本年累计", none, "0", "585", "平", "0", owed, owed_name, "-1", none}});
}

void answer_general_ledger(FakeData& data) {
    const std::string none = "<null>", february = "2024-02", march = "2024-03";
    data.answer(
        "EXEC SYS_686",
        {"KM_ID text", "KM_NAME text", "QJ text", "ZY text", "J money", "D money", "FX text",
         "E money", "QJ_MONTH text"},
        {{"1001", "现金", february, "期初余额", none, none, "借", "50", february},
         {"1001", "现金", february, "本期合计", "50", "0", "借", "100", february},
         {"1001", "现金", february, "本年累计", "50", "0", "借", "100", february},
         {"1001", "现金", march, "期初余额", none, none, "借", "100", march},
         {"1001", "现金", march, "本期合计", "585", "700", "借", "-15", march},
         {"1001", "现金", march, "本年累计", "635", "700", "借", "-15", march},
         {"1131", "应收帐款", march, "期初余额", none, none, "借", "585", march},
         {"1131", "应收帐款", march, "本期合计", "0", "585", "平", "0", march},
         {"1131", "应收帐款", march, "本年累计", "0", "585", "平", "0", march}});
}

void answer_cash_accounts(FakeData& data) {
    data.answer("SELECT KM_ID, KM_NAME FROM D6801 WHERE", {"KM_ID text", "KM_NAME text"},
                {{"1001", "现金"}, {"100201", "工行"}});
}

} // namespace tests
