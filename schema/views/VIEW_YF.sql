-- What moves the balance with a supplier, one row a document: B made it, C settled it, F is the discount
-- in the settlement; the balance is the sum of B less C less F. IS_OPENING 1 marks what came into
-- the books with their opening. MYTYPE is the function that shows the document, 0 for none.
-- A head of kind 3 sets an advance against documents: as a rule its C is 0. Lines that name an
-- advance take from it, so they count the other way round.
CREATE VIEW VIEW_YF AS
SELECT D.KH_GYS_ID, 1 AS IS_OPENING, D.BDATE, D.NOID, 0 AS MYTYPE, '期初' AS MNAME,
       CASE D.C WHEN 2 THEN D.TOLMONEY - D.REMONEY ELSE D.REMONEY - D.TOLMONEY END AS B,
       0.00 AS C, 0.00 AS F
FROM D8202 D WHERE D.C IN (2, 3)
UNION ALL
SELECT D.KH_GYS_ID, 0, D.BDATE, D.NOID, 212, CASE D.C WHEN 4 THEN '预付单' ELSE '采购进货' END,
       CASE D.C WHEN 4 THEN 0.00 ELSE D.TOLMONEY - D.REMONEY END,
       CASE D.C WHEN 4 THEN D.TOLMONEY - D.REMONEY ELSE 0.00 END, 0.00
FROM D8202 D WHERE D.C NOT IN (2, 3)
UNION ALL
SELECT R.KH_GYS_ID, 0, R.BDATE, R.NOID, 214, '采购退回', 0.00 - R.TOLMONEY, 0.00, 0.00
FROM D8203 R WHERE R.JY_ID = '0'
UNION ALL
SELECT O.KH_GYS_ID, 0, O.BDATE, O.NOID, 647, '其他应付', O.TOLMONEY, 0.00, 0.00
FROM D652 O WHERE O.C <> 0
UNION ALL
SELECT H.KH_GYS_ID, 0, H.BDATE, H.NOID, 641,
       CASE H.JY_KM WHEN 0 THEN '采购付款' WHEN 1 THEN '预付款' WHEN 2 THEN '预付退款'
                    ELSE '预付冲应付' END,
       0.00,
       CASE H.JY_KM WHEN 1 THEN H.MONEY_SS WHEN 2 THEN 0.00 - H.MONEY_SS
                    WHEN 3 THEN S.SETTLED - H.MONEY_YH - H.MONEY_SS
                    ELSE S.SETTLED - H.MONEY_YH END,
       CASE WHEN H.JY_KM IN (0, 3) THEN H.MONEY_YH ELSE 0.00 END
FROM D641 H
INNER JOIN (SELECT K.NOID,
                   ISNULL((SELECT SUM(CASE WHEN D.C IN (3, 4) THEN 0.00 - L.MONEY ELSE L.MONEY END)
                           FROM D641A L LEFT JOIN D8202 D ON D.NOID = L.D8202NOID
                           WHERE L.NOID = K.NOID), 0.00) AS SETTLED
            FROM D641 K) S ON S.NOID = H.NOID
