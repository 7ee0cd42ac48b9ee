-- Detailed ledger of the accounts that take entries from @KM_ID1 to @KM_ID2, or of one account (given
-- twice, or alone) with the lines of everything below it; periods @P_month1 to @P_month2 of a year.
-- Per account the opening row, then per period its lines, their sum and the year's sum to there.
-- The opening is the closing balance of the period before @P_month1, whatever @P_year says.
-- inx is -1 on rows that are no line. @p_show '1' leaves unposted vouchers out; @p_xj 1 names the
-- accounts on the other side of each line.
-- Accounts and months are numbered before the lines are sorted: whole numbers sort fast. The outer
-- joins fix the way of looking things up, from the few accounts to their lines.
CREATE PROCEDURE SYS_685 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7), @p_xj int = 0 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @before nvarchar(7), @after nvarchar(7), @year nvarchar(5);
    DECLARE @month1 int, @month2 int;
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @before = CONVERT(nvarchar(7), DATEADD(month, -1, CAST(@P_month1 + '-01' AS datetime)), 120);
    SET @after = CONVERT(nvarchar(7), DATEADD(month, 1, CAST(@P_month2 + '-01' AS datetime)), 120);
    SET @year = LEFT(@P_month1, 5);
    SET @month1 = RIGHT(@P_month1, 2);
    SET @month2 = RIGHT(@P_month2, 2);

    DECLARE @TOP TABLE (N int NOT NULL PRIMARY KEY, KM_ID nvarchar(50), KM_NAME nvarchar(610),
                        FX nvarchar(2), SIGN int, OPENING decimal(18,2),
                        J decimal(18,2), D decimal(18,2));
    INSERT INTO @TOP (N, KM_ID, KM_NAME, FX, SIGN, OPENING, J, D)
    SELECT ROW_NUMBER() OVER (ORDER BY A.KM_ID), A.KM_ID, A.KM_NAME2, A.FX,
           CASE A.FX WHEN '借' THEN 1 ELSE -1 END,
           ISNULL((SELECT B.J - B.D FROM D6602 B
                   WHERE B.KM_ID = A.KM_ID AND B.QJ = @before AND B.INX = 1), 0.00),
           ISNULL((SELECT SUM(B.J) FROM D6602 B WHERE B.KM_ID = A.KM_ID AND B.INX = 0
                   AND B.QJ >= @year + '00' AND B.QJ < @P_month1), 0.00),
           ISNULL((SELECT SUM(B.D) FROM D6602 B WHERE B.KM_ID = A.KM_ID AND B.INX = 0
                   AND B.QJ >= @year + '00' AND B.QJ < @P_month1), 0.00)
    FROM D6801 A
    WHERE A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last
      AND (@KM_ID1 = @last OR NOT EXISTS (SELECT * FROM D6801 C WHERE C.OID = A.KM_ID));

    WITH MEMBER AS (
        SELECT T.N, T.KM_ID FROM @TOP T
        UNION ALL
        SELECT M.N, C.KM_ID FROM D6801 C INNER JOIN MEMBER M ON C.OID = M.KM_ID),
    LINE AS (
        SELECT M.N, CAST(SUBSTRING(H.PZQJ, 6, 2) AS int) AS MONTH, H.BDATE, H.PZZ, H.PZZ_H,
               L.INX, L.NOID, L.ZY, L.J, L.D
        FROM MEMBER M
        LEFT JOIN D6601A L ON L.KM_ID = M.KM_ID AND L.NOID >= @P_month1 AND L.NOID < @after
        LEFT JOIN D6601 H ON H.NOID = L.NOID
        WHERE ISNULL(L.NOID, '') <> '' AND (@p_show <> '1' OR H.D = 1)),
    MONTHS AS (
        SELECT V.M
        FROM (VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9), (10), (11), (12)) V (M)
        WHERE V.M >= @month1 AND V.M <= @month2),
    MOVED AS (
        SELECT N, MONTH, SUM(J) AS J, SUM(D) AS D FROM LINE GROUP BY N, MONTH),
    SHOWN AS (
        SELECT T.N, @month1 AS MONTH, 0 AS STEP, NULL AS BDATE, NULL AS PZZ, NULL AS PZZ_H,
               -1 AS INX, NULL AS NOID,
               CASE @month1 WHEN 1 THEN '上年结转' ELSE '期初余额' END AS ZY,
               0.00 AS J, 0.00 AS D, T.OPENING AS CHANGE
        FROM @TOP T
        UNION ALL
        SELECT N, MONTH, 1, BDATE, PZZ, PZZ_H, INX, NOID, ZY, J, D, CAST(J - D AS decimal(18,2))
        FROM LINE
        UNION ALL
        SELECT T.N, Q.M, 2, NULL, NULL, NULL, -1, NULL, '本期合计',
               CAST(ISNULL(M.J, 0.00) AS decimal(18,2)), CAST(ISNULL(M.D, 0.00) AS decimal(18,2)),
               0.00
        FROM @TOP T CROSS JOIN MONTHS Q LEFT JOIN MOVED M ON M.N = T.N AND M.MONTH = Q.M
        UNION ALL
        SELECT T.N, Q.M, 3, NULL, NULL, NULL, -1, NULL, '本年累计',
               CAST(T.J + ISNULL((SELECT SUM(M.J) FROM MOVED M
                                  WHERE M.N = T.N AND M.MONTH <= Q.M), 0.00) AS decimal(18,2)),
               CAST(T.D + ISNULL((SELECT SUM(M.D) FROM MOVED M
                                  WHERE M.N = T.N AND M.MONTH <= Q.M), 0.00) AS decimal(18,2)),
               0.00
        FROM @TOP T CROSS JOIN MONTHS Q),
    BALANCED AS (
        SELECT R.N, R.MONTH, R.STEP, R.BDATE, R.PZZ, R.PZZ_H, R.INX, R.NOID, R.ZY, R.J, R.D,
               SUM(R.CHANGE) OVER (PARTITION BY R.N
                                   ORDER BY R.MONTH, R.STEP, R.BDATE, R.PZZ, R.PZZ_H, R.INX
                                   ROWS UNBOUNDED PRECEDING) AS E
        FROM SHOWN R)
    SELECT X.BDATE, X.PZZ + '-' + CONVERT(nvarchar(10), X.PZZ_H) AS PZZ, X.ZY,
           CASE WHEN @p_xj = 1 AND X.STEP = 1
                THEN (SELECT STRING_AGG(O.KM_NAME2, ',') WITHIN GROUP (ORDER BY O.KM_ID)
                      FROM (SELECT DISTINCT A.KM_ID, A.KM_NAME2
                            FROM D6601A L INNER JOIN D6801 A ON A.KM_ID = L.KM_ID
                            WHERE L.NOID = X.NOID AND (X.J <> 0 AND L.D <> 0
                                                       OR X.D <> 0 AND L.J <> 0)) O)
                ELSE NULL END AS KM_ID_DF,
           X.J, X.D, CASE X.E WHEN 0 THEN '平' ELSE T.FX END AS FX,
           CAST(T.SIGN * X.E AS decimal(18,2)) AS E,
           T.KM_ID, T.KM_NAME, X.INX AS inx, X.NOID
    FROM BALANCED X INNER JOIN @TOP T ON T.N = X.N
    ORDER BY X.N, X.MONTH, X.STEP, X.BDATE, X.PZZ, X.PZZ_H, X.INX;
END
