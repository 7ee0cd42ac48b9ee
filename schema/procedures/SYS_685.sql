-- Detailed ledger of the accounts that take entries from @KM_ID1 to @KM_ID2, or of one account
-- (given twice, or alone) with the lines of everything below it; periods @P_month1 to @P_month2,
-- mostly of one year. Per account the opening row, then per period its lines, their sum and the sum
-- of the period's own year to there.
-- The opening is the closing balance of the period before @P_month1, whatever @P_year says.
-- inx is -1 on rows that are no line; the opening row has a balance and no amounts. @p_show '1'
-- leaves unposted vouchers out; @p_xj 1 names the accounts on the other side of each line.
-- KIND: 0 the opening, 1 a line, 2 the sum of a period, 3 the sum of the year. The opening stands
-- in the period 00 and brings what the year had moved before @P_month1, so that all sums are sums
-- of the rows above; the lines of the year Y are those from FIRST to before BEHIND. Those windows
-- follow the order of the rows, which are sorted once for all. The order of the joins is the way of
-- looking things up: from the few accounts to their lines.
CREATE PROCEDURE SYS_685 @P_year nvarchar(7), @p_show nvarchar(5) = '0', @KM_ID1 nvarchar(50),
    @KM_ID2 nvarchar(50) = NULL, @P_month1 nvarchar(7), @P_month2 nvarchar(7), @p_xj int = 0 AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @last nvarchar(50), @before nvarchar(7), @after nvarchar(7), @year nvarchar(5);
    DECLARE @posted int, @Y1 int, @Y2 int;
    SET @last = ISNULL(@KM_ID2, @KM_ID1);
    SET @before = CONVERT(nvarchar(7), DATEADD(month, -1, CAST(@P_month1 + '-01' AS datetime)), 120);
    SET @after = CONVERT(nvarchar(7), DATEADD(month, 1, CAST(@P_month2 + '-01' AS datetime)), 120);
    SET @year = LEFT(@P_month1, 5);
    SET @Y1 = LEFT(@P_month1, 4);
    SET @Y2 = LEFT(@P_month2, 4);
    SET @posted = CASE @p_show WHEN '1' THEN 1 ELSE 0 END;

    DECLARE @TOP TABLE (KM_ID nvarchar(50), KM_NAME nvarchar(610), FX nvarchar(2), SIGN int,
                        OPENING decimal(18,2), J decimal(18,2), D decimal(18,2));
    INSERT INTO @TOP (KM_ID, KM_NAME, FX, SIGN, OPENING, J, D)
    SELECT A.KM_ID, A.KM_NAME2, A.FX, CASE A.FX WHEN '借' THEN 1 ELSE -1 END,
           ISNULL((SELECT CASE A.FX WHEN '借' THEN B.J - B.D ELSE B.D - B.J END FROM D6602 B
                   WHERE B.KM_ID = A.KM_ID AND B.QJ = @before AND B.INX = 1), 0.00),
           ISNULL((SELECT SUM(B.J) FROM D6602 B WHERE B.KM_ID = A.KM_ID AND B.INX = 0
                   AND B.QJ >= @year + '00' AND B.QJ < @P_month1), 0.00),
           ISNULL((SELECT SUM(B.D) FROM D6602 B WHERE B.KM_ID = A.KM_ID AND B.INX = 0
                   AND B.QJ >= @year + '00' AND B.QJ < @P_month1), 0.00)
    FROM D6801 A
    WHERE A.KM_ID >= @KM_ID1 AND A.KM_ID <= @last
      AND (@KM_ID1 = @last OR NOT EXISTS (SELECT * FROM D6801 C WHERE C.OID = A.KM_ID));

    DECLARE @KINDS TABLE (KIND int, Y int, QJ nvarchar(7), ZY nvarchar(100), FIRST nvarchar(7),
                          BEHIND nvarchar(7));
    WITH YEARS AS (
        SELECT @Y1 AS Y
        UNION ALL
        SELECT Y + 1 FROM YEARS WHERE Y < @Y2)
    INSERT INTO @KINDS (KIND, Y, QJ, ZY, FIRST, BEHIND)
    SELECT V.KIND, A.Y, CONVERT(nvarchar(4), A.Y) + '-' + V.M,
           CASE V.KIND WHEN 0 THEN CASE @P_month1 WHEN @year + '01' THEN '上年结转'
                                                  ELSE '期初余额' END
                       WHEN 2 THEN '本期合计' WHEN 3 THEN '本年累计' END,
           CASE A.Y WHEN @Y1 THEN @P_month1 ELSE CONVERT(nvarchar(4), A.Y) + '-01' END,
           CASE A.Y WHEN @Y2 THEN @after ELSE CONVERT(nvarchar(4), A.Y + 1) + '-01' END
    FROM YEARS A CROSS JOIN
         (VALUES (0, '00'), (1, '00'),
                 (2, '01'), (2, '02'), (2, '03'), (2, '04'), (2, '05'), (2, '06'),
                 (2, '07'), (2, '08'), (2, '09'), (2, '10'), (2, '11'), (2, '12'),
                 (3, '01'), (3, '02'), (3, '03'), (3, '04'), (3, '05'), (3, '06'),
                 (3, '07'), (3, '08'), (3, '09'), (3, '10'), (3, '11'), (3, '12')) V (KIND, M)
    WHERE V.KIND = 0 AND A.Y = @Y1 OR V.KIND = 1
       OR V.KIND > 1 AND CONVERT(nvarchar(4), A.Y) + '-' + V.M >= @P_month1
                     AND CONVERT(nvarchar(4), A.Y) + '-' + V.M <= @P_month2;

    WITH MEMBER AS (
        SELECT T.KM_ID AS TOP_ID, T.KM_NAME, T.FX, T.SIGN, T.OPENING, T.J, T.D, T.KM_ID
        FROM @TOP T
        UNION ALL
        SELECT M.TOP_ID, M.KM_NAME, M.FX, M.SIGN, M.OPENING, M.J, M.D, C.KM_ID
        FROM MEMBER M INNER JOIN D6801 C ON C.OID = M.KM_ID),
    SHOWN AS (
        SELECT M.TOP_ID AS KM_ID, K.KIND, K.Y, ISNULL(H.PZQJ, K.QJ) AS QJ, H.BDATE, H.PZZ, H.PZZ_H,
               ISNULL(L.INX, -1) AS INX, L.NOID, ISNULL(L.ZY, K.ZY) AS ZY,
               ISNULL(L.J, CASE K.KIND WHEN 0 THEN M.J ELSE 0.00 END) AS J,
               ISNULL(L.D, CASE K.KIND WHEN 0 THEN M.D ELSE 0.00 END) AS D,
               ISNULL(CASE M.SIGN WHEN 1 THEN L.J - L.D ELSE L.D - L.J END,
                      CASE K.KIND WHEN 0 THEN M.OPENING ELSE 0.00 END) AS CHANGE,
               M.FX, M.KM_NAME
        FROM MEMBER M CROSS JOIN @KINDS K
        LEFT JOIN D6601A L ON K.KIND = 1 AND L.KM_ID = M.KM_ID
                              AND L.NOID >= K.FIRST AND L.NOID < K.BEHIND
        LEFT JOIN D6601 H ON H.NOID = L.NOID AND H.D >= @posted
        WHERE H.NOID IS NOT NULL OR K.KIND <> 1 AND M.KM_ID = M.TOP_ID)
    SELECT X.BDATE, X.PZZ + '-' + CONVERT(nvarchar(10), X.PZZ_H) AS PZZ, X.ZY,
           CASE WHEN @p_xj = 1 AND X.NOID IS NOT NULL
                THEN (SELECT STRING_AGG(O.KM_NAME2, ',') WITHIN GROUP (ORDER BY O.KM_ID)
                      FROM (SELECT DISTINCT A.KM_ID, A.KM_NAME2
                            FROM D6601A L INNER JOIN D6801 A ON A.KM_ID = L.KM_ID
                            WHERE L.NOID = X.NOID AND (X.J <> 0 AND L.D <> 0
                                                       OR X.D <> 0 AND L.J <> 0)) O)
                ELSE NULL END AS KM_ID_DF,
           CASE X.KIND WHEN 1 THEN X.J
                       WHEN 2 THEN CAST(SUM(X.J) OVER (PARTITION BY X.KM_ID, X.Y, X.QJ
                                                       ORDER BY X.KIND
                                                       ROWS UNBOUNDED PRECEDING) AS decimal(18,2))
                       WHEN 3 THEN CAST(SUM(X.J) OVER (PARTITION BY X.KM_ID, X.Y
                                                       ORDER BY X.QJ, X.KIND
                                                       ROWS UNBOUNDED PRECEDING) AS decimal(18,2))
                       END AS J,
           CASE X.KIND WHEN 1 THEN X.D
                       WHEN 2 THEN CAST(SUM(X.D) OVER (PARTITION BY X.KM_ID, X.Y, X.QJ
                                                       ORDER BY X.KIND
                                                       ROWS UNBOUNDED PRECEDING) AS decimal(18,2))
                       WHEN 3 THEN CAST(SUM(X.D) OVER (PARTITION BY X.KM_ID, X.Y
                                                       ORDER BY X.QJ, X.KIND
                                                       ROWS UNBOUNDED PRECEDING) AS decimal(18,2))
                       END AS D,
           CASE SUM(X.CHANGE) OVER (PARTITION BY X.KM_ID
                                    ORDER BY X.Y, X.QJ, X.KIND, X.BDATE, X.PZZ, X.PZZ_H, X.INX
                                    ROWS UNBOUNDED PRECEDING)
                WHEN 0 THEN '平' ELSE X.FX END AS FX,
           CAST(SUM(X.CHANGE) OVER (PARTITION BY X.KM_ID
                                    ORDER BY X.Y, X.QJ, X.KIND, X.BDATE, X.PZZ, X.PZZ_H, X.INX
                                    ROWS UNBOUNDED PRECEDING) AS decimal(18,2)) AS E,
           X.KM_ID, X.KM_NAME, X.INX AS inx, X.NOID
    FROM SHOWN X
    ORDER BY X.KM_ID, X.Y, X.QJ, X.KIND, X.BDATE, X.PZZ, X.PZZ_H, X.INX
    OPTION (FORCE ORDER);
END
