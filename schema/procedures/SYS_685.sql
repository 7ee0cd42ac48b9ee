-- Detailed ledger of the accounts that take entries from @KM_ID1 to @KM_ID2, or of one account (given
-- twice, or alone) with the lines of everything below it; periods @P_month1 to @P_month2 of a year.
-- Per account the opening row, then per period its lines, their sum and the year's sum to there.
-- The opening is the closing balance of the period before @P_month1, whatever @P_year says.
-- inx is -1 on rows that are no line. @p_show '1' leaves unposted vouchers out; @p_xj 1 names the
-- accounts on the other side of each line.
CREATE PROCEDURE SYS_685 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7), @p_xj int = 0 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @before nvarchar(7), @after nvarchar(7), @year nvarchar(5);
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @before = CONVERT(nvarchar(7), DATEADD(month, -1, CAST(@P_month1 + '-01' AS datetime)), 120);
    SET @after = CONVERT(nvarchar(7), DATEADD(month, 1, CAST(@P_month2 + '-01' AS datetime)), 120);
    SET @year = LEFT(@P_month1, 5);

    WITH BELOW AS (
        SELECT KM_ID FROM D6801 WHERE KM_ID = @KM_ID1 AND @KM_ID1 = @last
        UNION ALL
        SELECT C.KM_ID FROM D6801 C INNER JOIN BELOW ON C.OID = BELOW.KM_ID),
    MEMBER AS (
        SELECT @KM_ID1 AS TOP_ID, KM_ID FROM BELOW
        UNION ALL
        SELECT A.KM_ID, A.KM_ID FROM D6801 A
        WHERE @KM_ID1 <> @last AND A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last
          AND NOT EXISTS (SELECT * FROM D6801 C WHERE C.OID = A.KM_ID)),
    LINE AS (
        SELECT M.TOP_ID, H.PZQJ, H.BDATE, H.NOID, H.PZZ, H.PZZ_H, L.INX, L.ZY, L.J, L.D
        FROM MEMBER M
        INNER JOIN D6601A L ON L.KM_ID = M.KM_ID AND L.NOID >= @P_month1 AND L.NOID < @after
        INNER JOIN D6601 H ON H.NOID = L.NOID
        WHERE H.PZQJ >= @P_month1 AND H.PZQJ <= @P_month2 AND (@p_show <> '1' OR H.D = 1)),
    MONTHS AS (
        SELECT @year + V.M AS QJ
        FROM (VALUES ('01'), ('02'), ('03'), ('04'), ('05'), ('06'),
                     ('07'), ('08'), ('09'), ('10'), ('11'), ('12')) V (M)
        WHERE @year + V.M >= @P_month1 AND @year + V.M <= @P_month2),
    MOVED AS (
        SELECT T.TOP_ID, Q.QJ, ISNULL(SUM(N.J), 0.00) AS J, ISNULL(SUM(N.D), 0.00) AS D
        FROM (SELECT DISTINCT TOP_ID FROM MEMBER) T CROSS JOIN MONTHS Q
        LEFT JOIN LINE N ON N.TOP_ID = T.TOP_ID AND N.PZQJ = Q.QJ
        GROUP BY T.TOP_ID, Q.QJ),
    SO_FAR AS (
        SELECT T.TOP_ID, ISNULL(SUM(B.J), 0.00) AS J, ISNULL(SUM(B.D), 0.00) AS D
        FROM (SELECT DISTINCT TOP_ID FROM MEMBER) T
        LEFT JOIN D6602 B ON B.KM_ID = T.TOP_ID AND B.INX = 0
               AND B.QJ >= @year + '00' AND B.QJ < @P_month1
        GROUP BY T.TOP_ID),
    SHOWN AS (
        SELECT T.TOP_ID, @P_month1 AS QJ, 0 AS STEP, NULL AS BDATE, NULL AS PZZ, NULL AS PZZ_H,
               -1 AS INX, NULL AS NOID,
               CASE RIGHT(@P_month1, 2) WHEN '01' THEN '上年结转' ELSE '期初余额' END AS ZY,
               0.00 AS J, 0.00 AS D, ISNULL(B.J - B.D, 0.00) AS CHANGE
        FROM SO_FAR T
        LEFT JOIN D6602 B ON B.KM_ID = T.TOP_ID AND B.QJ = @before AND B.INX = 1
        UNION ALL
        SELECT TOP_ID, PZQJ, 1, BDATE, PZZ, PZZ_H, INX, NOID, ZY, J, D, J - D FROM LINE
        UNION ALL
        SELECT TOP_ID, QJ, 2, NULL, NULL, NULL, -1, NULL, '本期合计', J, D, 0.00 FROM MOVED
        UNION ALL
        SELECT M.TOP_ID, M.QJ, 3, NULL, NULL, NULL, -1, NULL, '本年累计',
               S.J + SUM(M.J) OVER (PARTITION BY M.TOP_ID ORDER BY M.QJ ROWS UNBOUNDED PRECEDING),
               S.D + SUM(M.D) OVER (PARTITION BY M.TOP_ID ORDER BY M.QJ ROWS UNBOUNDED PRECEDING),
               0.00
        FROM MOVED M INNER JOIN SO_FAR S ON S.TOP_ID = M.TOP_ID),
    BALANCED AS (
        SELECT R.TOP_ID, A.KM_NAME2, A.FX, R.QJ, R.STEP, R.BDATE, R.PZZ, R.PZZ_H, R.INX, R.NOID,
               R.ZY, R.J, R.D,
               CASE A.FX WHEN '借' THEN 1 ELSE -1 END
               * SUM(R.CHANGE) OVER (PARTITION BY R.TOP_ID
                                     ORDER BY R.QJ, R.STEP, R.BDATE, R.PZZ, R.PZZ_H, R.INX
                                     ROWS UNBOUNDED PRECEDING) AS E
        FROM SHOWN R INNER JOIN D6801 A ON A.KM_ID = R.TOP_ID)
    SELECT X.BDATE, X.PZZ + '-' + CONVERT(nvarchar(10), X.PZZ_H) AS PZZ, X.ZY,
           CASE WHEN @p_xj = 1 AND X.STEP = 1
                THEN (SELECT STRING_AGG(O.KM_NAME2, ',') WITHIN GROUP (ORDER BY O.KM_ID)
                      FROM (SELECT DISTINCT A.KM_ID, A.KM_NAME2
                            FROM D6601A L INNER JOIN D6801 A ON A.KM_ID = L.KM_ID
                            WHERE L.NOID = X.NOID AND (X.J <> 0 AND L.D <> 0
                                                       OR X.D <> 0 AND L.J <> 0)) O)
                ELSE NULL END AS KM_ID_DF,
           X.J, X.D, CASE X.E WHEN 0 THEN '平' ELSE X.FX END AS FX, X.E,
           X.TOP_ID AS KM_ID, X.KM_NAME2 AS KM_NAME, X.INX AS inx, X.NOID
    FROM BALANCED X
    ORDER BY X.TOP_ID, X.QJ, X.STEP, X.BDATE, X.PZZ, X.PZZ_H, X.INX;
END
