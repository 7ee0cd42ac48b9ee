-- General ledger of the accounts from @KM_ID1 to @KM_ID2 up to level @p_kmjb, by period from
-- @P_month1 to @P_month2 of a year, from the posted balances: opening, sum of the period, sum of
-- the year to there. @p_show '1' leaves out accounts without turnover in the range.
-- The opening of a period is the closing balance of the one before, whatever @P_year says. A period
-- that was not posted has its opening row only.
-- Each period's figures of an account are read once and make its three rows. Accounts and months
-- are numbered before: whole numbers sort fast. The outer joins fix the way of looking things up,
-- from the few accounts to their balances.
CREATE PROCEDURE SYS_686 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7),
    @p_kmjb int = 5 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @before nvarchar(7), @year nvarchar(5);
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @before = CONVERT(nvarchar(7), DATEADD(month, -1, @P_month1 + '-01'), 120);
    SET @year = LEFT(@P_month1, 5);

    DECLARE @MONTHS TABLE (M int NOT NULL PRIMARY KEY, QJ nvarchar(7));
    INSERT INTO @MONTHS (M, QJ)
    SELECT CAST(V.M AS int), @year + V.M
    FROM (VALUES ('01'), ('02'), ('03'), ('04'), ('05'), ('06'),
                 ('07'), ('08'), ('09'), ('10'), ('11'), ('12')) V (M)
    WHERE @year + V.M >= @P_month1 AND @year + V.M <= @P_month2;

    DECLARE @ACCOUNTS TABLE (N int NOT NULL PRIMARY KEY, KM_ID nvarchar(50), KM_NAME nvarchar(100),
                             FX nvarchar(2), SIGN int, OPENING decimal(18,2),
                             J decimal(18,2), D decimal(18,2));
    INSERT INTO @ACCOUNTS (N, KM_ID, KM_NAME, FX, SIGN, OPENING, J, D)
    SELECT ROW_NUMBER() OVER (ORDER BY A.KM_ID), A.KM_ID, A.KM_NAME, A.FX,
           CASE A.FX WHEN '借' THEN 1 ELSE -1 END,
           ISNULL((SELECT CASE A.FX WHEN '借' THEN B.J - B.D ELSE B.D - B.J END FROM D6602 B
                   WHERE B.KM_ID = A.KM_ID AND B.QJ = @before AND B.INX = 1), 0.00),
           ISNULL((SELECT SUM(Y.J) FROM D6602 Y WHERE Y.KM_ID = A.KM_ID AND Y.INX = 0
                   AND Y.QJ >= @year + '00' AND Y.QJ < @P_month1), 0.00),
           ISNULL((SELECT SUM(Y.D) FROM D6602 Y WHERE Y.KM_ID = A.KM_ID AND Y.INX = 0
                   AND Y.QJ >= @year + '00' AND Y.QJ < @P_month1), 0.00)
    FROM D6801 A
    WHERE A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last AND A.KM_J <= @p_kmjb
      AND (@p_show <> '1'
           OR EXISTS (SELECT * FROM D6602 B
                      WHERE B.KM_ID = A.KM_ID AND B.INX = 0 AND (B.J <> 0 OR B.D <> 0)
                        AND B.QJ >= @P_month1 AND B.QJ <= @P_month2));

    WITH PERIOD AS (
        SELECT A.N, Q.M, A.KM_ID, A.KM_NAME, A.FX, Q.QJ, P.J, P.D,
               LAG(CASE A.SIGN WHEN 1 THEN ISNULL(B.J - B.D, 0.00)
                               ELSE ISNULL(B.D - B.J, 0.00) END, 1, A.OPENING)
                   OVER (PARTITION BY A.N ORDER BY Q.M) AS OPENING,
               CASE A.SIGN WHEN 1 THEN ISNULL(B.J - B.D, 0.00)
                           ELSE ISNULL(B.D - B.J, 0.00) END AS CLOSING,
               A.J + SUM(P.J) OVER (PARTITION BY A.N ORDER BY Q.M
                                    ROWS UNBOUNDED PRECEDING) AS YEAR_J,
               A.D + SUM(P.D) OVER (PARTITION BY A.N ORDER BY Q.M
                                    ROWS UNBOUNDED PRECEDING) AS YEAR_D
        FROM @ACCOUNTS A CROSS JOIN @MONTHS Q
        LEFT JOIN D6602 P ON P.KM_ID = A.KM_ID AND P.QJ = Q.QJ AND P.INX = 0
        LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.QJ AND B.INX = 1)
    SELECT P.KM_ID, P.KM_NAME, P.QJ,
           CASE S.STEP WHEN 1 THEN '本期合计' WHEN 2 THEN '本年累计'
                       ELSE CASE P.M WHEN 1 THEN '上年结转' ELSE '期初余额' END END AS ZY,
           CASE S.STEP WHEN 1 THEN P.J WHEN 2 THEN P.YEAR_J ELSE 0.00 END AS J,
           CASE S.STEP WHEN 1 THEN P.D WHEN 2 THEN P.YEAR_D ELSE 0.00 END AS D,
           CASE CASE S.STEP WHEN 0 THEN P.OPENING ELSE P.CLOSING END
                WHEN 0 THEN '平' ELSE P.FX END AS FX,
           CASE S.STEP WHEN 0 THEN P.OPENING ELSE P.CLOSING END AS E, P.QJ AS QJ_MONTH
    FROM PERIOD P CROSS JOIN (VALUES (0), (1), (2)) S (STEP)
    WHERE S.STEP = 0 OR P.J IS NOT NULL
    ORDER BY P.N, P.M, S.STEP;
END
