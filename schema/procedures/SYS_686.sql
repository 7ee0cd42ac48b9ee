-- General ledger of the accounts from @KM_ID1 to @KM_ID2 up to level @p_kmjb, by period from
-- @P_month1 to @P_month2 of a year, from the posted balances: opening, sum of the period, sum of
-- the year to there. @p_show '1' leaves out accounts without turnover in the range.
-- The opening of a period is the closing balance of the one before, whatever @P_year says; its row
-- has a balance and no amounts. A period that was not posted has its opening row only.
-- Each period's figures of an account are read once and make its three rows: STEP 0 the opening, 1
-- the sum of the period, 2 the sum of the year. The months of the year before @P_month1, and before
-- them the period 00 with last December's closing balance, are read along and not SHOWN, so that
-- sums and openings are those of the rows above. The windows follow the order of the rows. The
-- order of the joins is the way of looking things up: from the few accounts to their balances. INX
-- is asked for as a range, so that an account's balances are found by the index that keeps them
-- side by side.
CREATE PROCEDURE SYS_686 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7),
    @p_kmjb int = 5 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @december nvarchar(7), @year nvarchar(5);
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @year = LEFT(@P_month1, 5);
    SET @december = CONVERT(nvarchar(7), DATEADD(month, -1, @year + '01-01'), 120);

    DECLARE @MONTHS TABLE (QJ nvarchar(7), CLOSED nvarchar(7), SHOWN int);
    INSERT INTO @MONTHS (QJ, CLOSED, SHOWN)
    SELECT @year + V.M, CASE V.M WHEN '00' THEN @december ELSE @year + V.M END,
           CASE WHEN @year + V.M < @P_month1 THEN 0 ELSE 1 END
    FROM (VALUES ('00'), ('01'), ('02'), ('03'), ('04'), ('05'), ('06'), ('07'), ('08'), ('09'),
                 ('10'), ('11'), ('12')) V (M)
    WHERE @year + V.M <= @P_month2;

    DECLARE @ACCOUNTS TABLE (KM_ID nvarchar(50), KM_NAME nvarchar(100), FX nvarchar(2), SIGN int);
    INSERT INTO @ACCOUNTS (KM_ID, KM_NAME, FX, SIGN)
    SELECT A.KM_ID, A.KM_NAME, A.FX, CASE A.FX WHEN '借' THEN 1 ELSE -1 END
    FROM D6801 A
    WHERE A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last AND A.KM_J <= @p_kmjb
      AND (@p_show <> '1'
           OR EXISTS (SELECT * FROM D6602 B
                      WHERE B.KM_ID = A.KM_ID AND B.INX = 0 AND (B.J <> 0 OR B.D <> 0)
                        AND B.QJ >= @P_month1 AND B.QJ <= @P_month2))
    ORDER BY A.KM_ID;

    WITH PERIOD AS (
        SELECT Y.KM_ID, Y.KM_NAME, Y.FX, Y.QJ, Y.SHOWN, Y.J, Y.D, Y.CLOSING,
               LAG(Y.CLOSING) OVER (PARTITION BY Y.KM_ID ORDER BY Y.QJ) AS OPENING,
               SUM(Y.J) OVER (PARTITION BY Y.KM_ID ORDER BY Y.QJ ROWS UNBOUNDED PRECEDING)
                   AS YEAR_J,
               SUM(Y.D) OVER (PARTITION BY Y.KM_ID ORDER BY Y.QJ ROWS UNBOUNDED PRECEDING)
                   AS YEAR_D
        FROM (SELECT A.KM_ID, A.KM_NAME, A.FX, Q.QJ, Q.SHOWN, P.J, P.D,
                     CASE A.SIGN WHEN 1 THEN ISNULL(B.J - B.D, 0.00)
                                 ELSE ISNULL(B.D - B.J, 0.00) END AS CLOSING
              FROM @ACCOUNTS A CROSS JOIN @MONTHS Q
              LEFT JOIN D6602 P ON P.KM_ID = A.KM_ID AND P.QJ = Q.QJ AND P.INX BETWEEN 0 AND 0
              LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.CLOSED
                                   AND B.INX BETWEEN 1 AND 1) Y)
    SELECT P.KM_ID, P.KM_NAME, P.QJ,
           CASE S.STEP WHEN 0 THEN '期初余额' WHEN 1 THEN '本期合计' ELSE '本年累计' END AS ZY,
           CASE S.STEP WHEN 1 THEN P.J WHEN 2 THEN P.YEAR_J END AS J,
           CASE S.STEP WHEN 1 THEN P.D WHEN 2 THEN P.YEAR_D END AS D,
           CASE CASE S.STEP WHEN 0 THEN P.OPENING ELSE P.CLOSING END
                WHEN 0 THEN '平' ELSE P.FX END AS FX,
           CASE S.STEP WHEN 0 THEN P.OPENING ELSE P.CLOSING END AS E, P.QJ AS QJ_MONTH
    FROM PERIOD P CROSS JOIN (VALUES (0), (1), (2)) S (STEP)
    WHERE P.SHOWN = 1 AND (S.STEP = 0 OR P.J IS NOT NULL)
    ORDER BY P.KM_ID, P.QJ, S.STEP
    OPTION (FORCE ORDER);
END
