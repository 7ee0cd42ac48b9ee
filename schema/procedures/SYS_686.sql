-- General ledger of the accounts from @KM_ID1 to @KM_ID2 up to level @p_kmjb, by period from
-- @P_month1 to @P_month2 of a year, from the posted balances: opening, sum of the period, sum of
-- the year to there. @p_show '1' leaves out accounts without turnover in the range.
-- The opening of a period is the closing balance of the one before, whatever @P_year says. A period
-- that was not posted has its opening row only.
-- Each period's figures of an account are read once and make its three rows: STEP 0 the opening, 1
-- the sum of the period, 2 the sum of the year, to which the first period adds what the year had
-- moved before. The windows follow the order of the rows. The order of the joins is the way of
-- looking things up: from the few accounts to their balances. INX is asked for as a range, so that
-- an account's balances are found by the index that keeps them side by side.
CREATE PROCEDURE SYS_686 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7),
    @p_kmjb int = 5 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @before nvarchar(7), @year nvarchar(5), @month1 int;
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @before = CONVERT(nvarchar(7), DATEADD(month, -1, @P_month1 + '-01'), 120);
    SET @year = LEFT(@P_month1, 5);
    SET @month1 = RIGHT(@P_month1, 2);

    DECLARE @MONTHS TABLE (M int, QJ nvarchar(7));
    INSERT INTO @MONTHS (M, QJ)
    SELECT V.M, @year + V.T
    FROM (VALUES (1, '01'), (2, '02'), (3, '03'), (4, '04'), (5, '05'), (6, '06'), (7, '07'),
                 (8, '08'), (9, '09'), (10, '10'), (11, '11'), (12, '12')) V (M, T)
    WHERE @year + V.T >= @P_month1 AND @year + V.T <= @P_month2;

    DECLARE @ACCOUNTS TABLE (KM_ID nvarchar(50), KM_NAME nvarchar(100), FX nvarchar(2), SIGN int,
                             OPENING decimal(18,2), J decimal(18,2), D decimal(18,2));
    INSERT INTO @ACCOUNTS (KM_ID, KM_NAME, FX, SIGN, OPENING, J, D)
    SELECT A.KM_ID, A.KM_NAME, A.FX, CASE A.FX WHEN '借' THEN 1 ELSE -1 END,
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
                        AND B.QJ >= @P_month1 AND B.QJ <= @P_month2))
    ORDER BY A.KM_ID;

    WITH PERIOD AS (
        SELECT Y.KM_ID, Y.KM_NAME, Y.FX, Y.M, Y.QJ, Y.J, Y.D, Y.CLOSING,
               LAG(Y.CLOSING, 1, Y.OPENING) OVER (PARTITION BY Y.KM_ID ORDER BY Y.M) AS OPENING,
               SUM(Y.ADDED_J) OVER (PARTITION BY Y.KM_ID ORDER BY Y.M
                                    ROWS UNBOUNDED PRECEDING) AS YEAR_J,
               SUM(Y.ADDED_D) OVER (PARTITION BY Y.KM_ID ORDER BY Y.M
                                    ROWS UNBOUNDED PRECEDING) AS YEAR_D
        FROM (SELECT A.KM_ID, A.KM_NAME, A.FX, A.OPENING, Q.M, Q.QJ, P.J, P.D,
                     CASE A.SIGN WHEN 1 THEN ISNULL(B.J - B.D, 0.00)
                                 ELSE ISNULL(B.D - B.J, 0.00) END AS CLOSING,
                     CASE Q.M WHEN @month1 THEN A.J + ISNULL(P.J, 0.00) ELSE P.J END AS ADDED_J,
                     CASE Q.M WHEN @month1 THEN A.D + ISNULL(P.D, 0.00) ELSE P.D END AS ADDED_D
              FROM @ACCOUNTS A CROSS JOIN @MONTHS Q
              LEFT JOIN D6602 P ON P.KM_ID = A.KM_ID AND P.QJ = Q.QJ AND P.INX BETWEEN 0 AND 0
              LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.QJ AND B.INX BETWEEN 1 AND 1) Y)
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
    ORDER BY P.KM_ID, P.M, S.STEP
    OPTION (FORCE ORDER);
END
