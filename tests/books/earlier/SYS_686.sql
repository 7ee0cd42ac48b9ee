-- General ledger of the accounts from @KM_ID1 to @KM_ID2 up to level @p_kmjb, by period from
-- @P_month1 to @P_month2 of a year, from the posted balances: opening, sum of the period, sum of
-- the year to there. @p_show '1' leaves out accounts without turnover in the range.
-- The opening of a period is the closing balance of the one before, whatever @P_year says.
CREATE PROCEDURE SYS_686 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7),
    @p_kmjb int = 5 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @year nvarchar(5);
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @year = LEFT(@P_month1, 5);

    WITH MONTHS AS (
        SELECT @year + V.M AS QJ,
               CONVERT(nvarchar(7), DATEADD(month, -1, CAST(@year + V.M + '-01' AS datetime)), 120)
               AS BEFORE
        FROM (VALUES ('01'), ('02'), ('03'), ('04'), ('05'), ('06'),
                     ('07'), ('08'), ('09'), ('10'), ('11'), ('12')) V (M)
        WHERE @year + V.M >= @P_month1 AND @year + V.M <= @P_month2),
    ACCOUNT AS (
        SELECT A.KM_ID, A.KM_NAME, A.FX
        FROM D6801 A
        WHERE A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last AND A.KM_J <= @p_kmjb
          AND (@p_show <> '1'
               OR EXISTS (SELECT * FROM D6602 B
                          WHERE B.KM_ID = A.KM_ID AND B.INX = 0 AND (B.J <> 0 OR B.D <> 0)
                            AND B.QJ >= @P_month1 AND B.QJ <= @P_month2))),
    SHOWN AS (
        SELECT A.KM_ID, A.KM_NAME, A.FX, Q.QJ, 0 AS STEP,
               CASE RIGHT(Q.QJ, 2) WHEN '01' THEN '上年结转' ELSE '期初余额' END AS ZY,
               0.00 AS J, 0.00 AS D, ISNULL(B.J - B.D, 0.00) AS E
        FROM ACCOUNT A CROSS JOIN MONTHS Q
        LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.BEFORE AND B.INX = 1
        UNION ALL
        SELECT A.KM_ID, A.KM_NAME, A.FX, Q.QJ, 1, '本期合计', M.J, M.D, ISNULL(B.J - B.D, 0.00)
        FROM ACCOUNT A CROSS JOIN MONTHS Q
        INNER JOIN D6602 M ON M.KM_ID = A.KM_ID AND M.QJ = Q.QJ AND M.INX = 0
        LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.QJ AND B.INX = 1
        UNION ALL
        SELECT A.KM_ID, A.KM_NAME, A.FX, Q.QJ, 2, '本年累计',
               (SELECT SUM(Y.J) FROM D6602 Y WHERE Y.KM_ID = A.KM_ID AND Y.INX = 0
                                               AND Y.QJ >= @year + '00' AND Y.QJ <= Q.QJ),
               (SELECT SUM(Y.D) FROM D6602 Y WHERE Y.KM_ID = A.KM_ID AND Y.INX = 0
                                               AND Y.QJ >= @year + '00' AND Y.QJ <= Q.QJ),
               ISNULL(B.J - B.D, 0.00)
        FROM ACCOUNT A CROSS JOIN MONTHS Q
        INNER JOIN D6602 M ON M.KM_ID = A.KM_ID AND M.QJ = Q.QJ AND M.INX = 0
        LEFT JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = Q.QJ AND B.INX = 1)
    SELECT KM_ID, KM_NAME, QJ, ZY, J, D, CASE E WHEN 0 THEN '平' ELSE FX END AS FX,
           CASE FX WHEN '借' THEN E ELSE 0.00 - E END AS E, QJ AS QJ_MONTH
    FROM SHOWN
    ORDER BY KM_ID, QJ, STEP;
END
