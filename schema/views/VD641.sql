-- What stands open with every supplier, also with one that has nothing: YM the documents not settled
-- (less returns settled through the account), YSM the advances not used, XJYS the difference.
-- Advances are used up by heads of kind 3 in total, not document by document.
CREATE VIEW VD641 AS
SELECT B.KH_GYS_ID, B.YM, B.YSM, CAST(B.YM - B.YSM AS decimal(18,2)) AS XJYS
FROM (SELECT P.KH_GYS_ID,
             CAST(ISNULL((SELECT SUM(D8202.YSMONEY) FROM D8202
                          WHERE D8202.KH_GYS_ID = P.KH_GYS_ID AND D8202.C < 3), 0.00)
                  + ISNULL((SELECT SUM(D652.YSMONEY) FROM D652
                            WHERE D652.KH_GYS_ID = P.KH_GYS_ID AND D652.C <> 0), 0.00)
                  - ISNULL((SELECT SUM(D8203.YSMONEY) FROM D8203
                            WHERE D8203.KH_GYS_ID = P.KH_GYS_ID AND D8203.JY_ID = '0'), 0.00)
                  AS decimal(18,2)) AS YM,
             CAST(ISNULL((SELECT SUM(D8202.YSMONEY) FROM D8202
                          WHERE D8202.KH_GYS_ID = P.KH_GYS_ID AND D8202.C IN (3, 4)), 0.00)
                  + ISNULL((SELECT SUM(CASE D641.JY_KM WHEN 1 THEN D641.MONEY_SS
                                       ELSE 0.00 - D641.MONEY_SS END) FROM D641
                            WHERE D641.KH_GYS_ID = P.KH_GYS_ID AND D641.JY_KM IN (1, 2, 3)), 0.00)
                  AS decimal(18,2)) AS YSM
      FROM D1103 P) B
