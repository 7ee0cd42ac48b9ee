-- What stands open with every customer, also with one that has nothing: YM the documents not settled
-- (less returns settled through the account), YSM the advances not used, XJYS the difference.
-- Advances are used up by heads of kind 3 in total, not document by document.
CREATE VIEW VD631 AS
SELECT B.KH_GYS_ID, B.YM, B.YSM, CAST(B.YM - B.YSM AS decimal(18,2)) AS XJYS
FROM (SELECT P.KH_GYS_ID,
             CAST(ISNULL((SELECT SUM(D8102.YSMONEY) FROM D8102
                          WHERE D8102.KH_GYS_ID = P.KH_GYS_ID AND D8102.C < 3), 0.00)
                  + ISNULL((SELECT SUM(D651.YSMONEY) FROM D651
                            WHERE D651.KH_GYS_ID = P.KH_GYS_ID AND D651.C <> 0), 0.00)
                  - ISNULL((SELECT SUM(D8103.YSMONEY) FROM D8103
                            WHERE D8103.KH_GYS_ID = P.KH_GYS_ID AND D8103.JY_ID = '0'), 0.00)
                  AS decimal(18,2)) AS YM,
             CAST(ISNULL((SELECT SUM(D8102.YSMONEY) FROM D8102
                          WHERE D8102.KH_GYS_ID = P.KH_GYS_ID AND D8102.C IN (3, 4)), 0.00)
                  + ISNULL((SELECT SUM(CASE D631.JY_KM WHEN 1 THEN D631.MONEY_SS
                                       ELSE 0.00 - D631.MONEY_SS END) FROM D631
                            WHERE D631.KH_GYS_ID = P.KH_GYS_ID AND D631.JY_KM IN (1, 2, 3)), 0.00)
                  AS decimal(18,2)) AS YSM
      FROM D1102 P) B
