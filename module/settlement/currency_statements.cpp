// The statements of a receipt in any currency: split over accounts, with over-receipts.
#include "module/settlement/currency_statements.h"

#include "host/contract/U_function.h"
#include "host/values/sql_text.h"

namespace module {

const char* const currency_heads =
    "SELECT D631.*, D1102.KG_NAME, D1010.JY_NAME, SYS_USER.USER_NAME,D1013.HB_NAME, "
    "CASE JY_KM WHEN 0 THEN '应收帐款' WHEN 1 THEN '预收款' WHEN 2 THEN '预收退款' "
    "WHEN 3 THEN '预收冲应收' END AS JY_KM_NAME FROM D631 "
    "INNER JOIN D1102 on D631.KH_GYS_ID = D1102.KH_GYS_ID "
    "INNER JOIN D1010 on D631.JY_ID = D1010.JY_ID "
    "INNER JOIN D1013 ON D631.HB_ID = D1013.HB_ID "
    "INNER JOIN SYS_USER on D631.USER_ID = SYS_USER.USER_ID";

// Amounts as they stood when the receipt was made: what it wrote off itself is open again.
const char* const currency_lines =
    "SELECT NULL AS SZLB,CASE D631A.C WHEN 5 THEN D631A.D651NOID WHEN 6 THEN D631A.D8103NOID "
    "ELSE D631A.D8102NOID END AS NOID,D631A.C,CASE D631A.C WHEN 2 THEN '期初应收' "
    "WHEN 5 THEN D631A.D651NOID WHEN 6 THEN D631A.D8103NOID ELSE D631A.D8102NOID END AS D8102NOID,"
    "CASE D631A.C WHEN 2 THEN '期初应收' WHEN 5 THEN '其他应收' WHEN 6 THEN '销售退回' "
    "ELSE '销货单' END AS C_NAME,CASE D631A.C WHEN 5 THEN D651.BDATE WHEN 6 THEN D8103.BDATE "
    "ELSE D8102.BDATE END AS BDATE,CASE D631A.C WHEN 5 THEN D651.TOLMONEY "
    "WHEN 6 THEN 0-D8103.TOLMONEY ELSE D8102.TOLMONEY END AS TOLMONEY,"
    "CASE D631A.C WHEN 5 THEN D651.SUMMONEY-D631A.MONEY "
    "WHEN 6 THEN 0-D8103.SUMMONEY-D631A.MONEY ELSE D8102.SUMMONEY-D631A.MONEY END AS SUMMONEY,"
    "ISNULL(D8102.REMONEY,0.00) AS REMONEY,D631A.MONEY,"
    "CASE D631A.C WHEN 5 THEN D651.YSMONEY+D631A.MONEY WHEN 6 THEN D631A.MONEY-D8103.YSMONEY "
    "ELSE D8102.YSMONEY+D631A.MONEY END AS YSB,"
    "CASE D631A.C WHEN 5 THEN D651.YSMONEY+D631A.MONEY WHEN 6 THEN D631A.MONEY-D8103.YSMONEY "
    "ELSE (D8102.YSMONEY+D631A.MONEY)/D8102.HL END AS YSW,"
    "ISNULL(D1013.HB_ID,(SELECT HB_ID FROM D1013 WHERE (HB_BW = 1))) AS HB_ID,"
    "ISNULL(D1013.HB_NAME,(SELECT HB_NAME FROM D1013 WHERE (HB_BW = 1))) AS HB_NAME,"
    "CASE D631A.C WHEN 5 THEN D651.TOLMONEY WHEN 6 THEN 0-D8103.TOLMONEY "
    "ELSE D8102.TOLSMONEY END AS TOLSMONEY,ISNULL(D8102.HL,1.00) AS HL "
    "FROM D631A LEFT OUTER JOIN D8102 ON D631A.D8102NOID = D8102.NOID "
    "LEFT OUTER JOIN D1013 ON D8102.HB_ID = D1013.HB_ID "
    "LEFT OUTER JOIN D8103 ON D631A.D8103NOID = D8103.NOID "
    "LEFT OUTER JOIN D651 ON D631A.D651NOID = D651.NOID WHERE D631A.NOID=%s "
    "UNION ALL SELECT D6804.SZLB,NULL,0,NULL,'其他应收-'+SZLB_NAME,NULL,NULL,NULL,NULL,"
    "ISNULL(D651A.MONEY,0.00),NULL,NULL,NULL,NULL,NULL,NULL FROM D6804 "
    "LEFT OUTER JOIN D651A ON D6804.SZLB = D651A.SZLB AND D651A.D631NOID=%s "
    "WHERE D6804.SZLB_CLASS=0 order by bdate,C,NOID";

// ---- reading ----

std::string select_currency_head(const std::string& number) {
    return std::string(currency_heads) + " where d631.noid=" + quoted(number);
}

std::string select_currency_items(const std::string& customer) {
    return "SELECT NULL AS SZLB, NOID,C,case c when 2 then '期初应收' else NOID end as d8102NOID,"
           "CASE C WHEN 2 THEN '期初应收' ELSE '销货单' END AS C_NAME, bdate, TOLMONEY, SUMMONEY, "
           "REMONEY, 0.00 AS MONEY,YSMONEY AS YSB,YSMONEY/hl as YSW,D1013.HB_ID,D1013.HB_NAME,"
           "D8102.TOLSMONEY, D8102.HL FROM D8102 INNER JOIN D1013 ON D8102.HB_ID = D1013.HB_ID  "
           "where (C < 3) and (d8102.KH_gys_ID=" +
           quoted(customer) +
           ") and (YSMONEY>0)"
           "UNION ALL SELECT null,NOID,5,NOID,'其他应收', "
           "BDATE,TOLMONEY,SUMMONEY,0.00,0.00 AS MONEY, "
           "YSMONEY AS YSB,YSMONEY as YSW,(SELECT HB_ID FROM D1013 WHERE (HB_BW = 1)) as HB_ID,"
           "(SELECT HB_NAME FROM D1013 WHERE (HB_BW = 1)) as HB_NAME,D651.TOLMONEY,1.00 as hl "
           "FROM D651 WHERE (KH_GYS_ID=" +
           quoted(customer) +
           ") AND (YSMONEY>0) "
           "union all SELECT D6804.SZLB,NULL,0,null,'其他应收-'+SZLB_NAME,NULL,null,NULL,NULL,"
           "0.00,null,null,NULL,NULL,null,NULL "
           "FROM D6804 WHERE D6804.SZLB_CLASS=0    order by bdate,C,NOID ";
}

std::string select_accounts(const std::string& number) {
    return "SELECT D1010.JY_ID, D1010.JY_NAME, ISNULL(D631B.MONEY, 0.00) AS MONEY FROM D1010 "
           "LEFT OUTER JOIN D631B ON D1010.JY_ID = D631B.JY_ID  AND D631B.NOID=" +
           quoted(number) + "WHERE (D1010.JY_ID <> '0')";
}

std::string select_currency(const std::string& currency) {
    return "SELECT * FROM d1013 WHERE hb_id=" + quoted(currency);
}

// ---- writing ----

std::string insert_currency_head(const CurrencyHead& head) {
    return "INSERT INTO D631 (T, NOID,KH_GYS_ID, JY_KM, KM_ID, JY_ID, MONEY,MONEY_SS,MONEY_YH,"
           "MONEY_RS, WBMONEY, HB_ID, HL, BDATE, EDATE, PH, USER_ID) values (1," +
           quoted(head.number) + "," + quoted(head.party) + "," + quoted(head.purpose) +
           ",'1001'," + quoted(head.account) + "," + quoted(head.paid) + "," +
           quoted(head.paid) + ",'0'," + quoted(head.over_receipt) + "," + quoted(head.foreign) +
           "," + quoted(head.currency) + "," + quoted(head.rate) + "," + quoted(head.date) +
           ",NULL," + quoted(head.slip) + "," + quoted(head.user) + ");";
}

std::string update_currency_head(const CurrencyHead& head) {
    const std::string number = quoted(head.number);
    return "UPDATE D631 SET edate=getdate(), KH_GYS_ID=" + quoted(head.party) +
           ",JY_KM=" + quoted(head.purpose) + ",BDATE=" + quoted(head.date) +
           ",JY_ID=" + quoted(head.account) + ",KM_ID='1001',PH=" + quoted(head.slip) +
           ",MONEY=" + quoted(head.paid) + ",MONEY_ss=" + quoted(head.paid) +
           ",MONEY_rs=" + quoted(head.over_receipt) + ",MONEY_YH='0',WBMONEY=" +
           quoted(head.foreign) + ",HB_ID=" + quoted(head.currency) + ",HL=" + quoted(head.rate) +
           ",USER_ID=" + quoted(head.user) + " WHERE noid=" + number + ";" +
           "delete from  D631A WHERE NOID=" + number + ";" +
           "delete from  D631B WHERE NOID=" + number + ";" +
           "delete from  D651A WHERE D631NOID=" + number + ";";
}

std::string insert_currency_lines(const CurrencyHead& head, const std::vector<WriteOff>& lines) {
    std::string batch;
    for (const WriteOff& line : lines) {
        if (line.category.empty()) {
            batch += insert_write_offs(receipt_kind, head, {line});
        } else if (!line.share.is_zero()) {
            batch += "INSERT INTO D651A (D631NOID, SZLB, MONEY, SZLB_CLASS)  VALUES (" +
                     quoted(head.number) + "," + quoted(line.category) + "," +
                     quoted(line.share.to_plain_text()) + ",0);";
        }
    }
    return batch;
}

std::string update_over_receipt(const std::string& number, Amount over_receipt) {
    return "UPDATE D631 SET  MONEY_rs=" + quoted(over_receipt.to_plain_text()) +
           " WHERE noid=" + quoted(number) + ";";
}

std::string insert_split(const std::string& number, const std::vector<AccountShare>& split) {
    std::string batch;
    for (const AccountShare& share : split) {
        if (share.money.is_zero()) continue;
        batch += "INSERT INTO D631B (INX, NOID, JY_ID, MONEY) VALUES ('0'," + quoted(number) +
                 "," + quoted(share.account) + "," + quoted(FormatAmount(share.money)) + ");";
    }
    return batch;
}

} // namespace module
