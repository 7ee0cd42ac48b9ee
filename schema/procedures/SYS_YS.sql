-- What customers owe from @BDATE up to, but not including, @EDATE. @PARAM 0: a row a party with A
-- opening, B new, C settled (discounts in it), D closing. @PARAM 1: per party an opening row, then
-- a row a document with F the discount; D of a document is what it adds to the closing, so every
-- column adds up. @PARAM1 1: only parties with a document in the range; @PARAM2 1: without those
-- whose closing is 0. One party, or the parties from @KH_GYS_ID to @KH_GYS_ID2.
CREATE PROCEDURE SYS_YS @PARAM int, @PARAM1 int, @PARAM2 int, @BDATE datetime, @EDATE datetime,
    @KH_GYS_ID nvarchar(10) = NULL, @KH_GYS_ID2 nvarchar(10) = NULL AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @SUM TABLE (KH_GYS_ID nvarchar(10) NOT NULL PRIMARY KEY, KG_NAME nvarchar(50),
                        A decimal(18,2), B decimal(18,2), C decimal(18,2), D decimal(18,2));
    INSERT INTO @SUM (KH_GYS_ID, KG_NAME, A, B, C, D)
    SELECT S.KH_GYS_ID, S.KG_NAME, S.A, S.B, S.C, S.A + S.B - S.C
    FROM (SELECT P.KH_GYS_ID, P.KG_NAME, ISNULL(M.A, 0.00) AS A, ISNULL(M.B, 0.00) AS B,
                 ISNULL(M.C, 0.00) AS C, ISNULL(M.N, 0) AS N
          FROM D1102 P
          LEFT JOIN (SELECT V.KH_GYS_ID,
                            SUM(CASE WHEN V.IS_OPENING = 1 OR V.BDATE < @BDATE
                                     THEN V.B - V.C - V.F ELSE 0.00 END) AS A,
                            SUM(CASE WHEN V.IS_OPENING = 1 OR V.BDATE < @BDATE
                                     THEN 0.00 ELSE V.B END) AS B,
                            SUM(CASE WHEN V.IS_OPENING = 1 OR V.BDATE < @BDATE
                                     THEN 0.00 ELSE V.C + V.F END) AS C,
                            SUM(CASE WHEN V.IS_OPENING = 1 OR V.BDATE < @BDATE
                                     THEN 0 ELSE 1 END) AS N
                     FROM VIEW_YS V WHERE V.BDATE < @EDATE GROUP BY V.KH_GYS_ID) M
            ON M.KH_GYS_ID = P.KH_GYS_ID
          WHERE @KH_GYS_ID IS NULL
             OR (P.KH_GYS_ID >= @KH_GYS_ID AND P.KH_GYS_ID <= ISNULL(@KH_GYS_ID2, @KH_GYS_ID))) S
    WHERE (@PARAM1 <> 1 OR S.N > 0) AND (@PARAM2 <> 1 OR S.A + S.B - S.C <> 0);
    IF @PARAM = 0
        SELECT KH_GYS_ID, KG_NAME, A, B, C, D FROM @SUM ORDER BY KH_GYS_ID;
    ELSE
        SELECT R.KH_GYS_ID, R.KG_NAME, R.BDATE, R.NOID, R.MNAME, R.A, R.B, R.C, R.F,
               R.A + R.B - R.C - R.F AS D, R.mytype
        FROM (SELECT KH_GYS_ID, KG_NAME, 0 AS STEP, NULL AS BDATE, NULL AS NOID,
                     '期初余额' AS MNAME, A, 0.00 AS B, 0.00 AS C, 0.00 AS F, 0 AS mytype
              FROM @SUM
              UNION ALL
              SELECT S.KH_GYS_ID, S.KG_NAME, 1, V.BDATE, V.NOID, V.MNAME, 0.00, V.B, V.C, V.F,
                     V.MYTYPE
              FROM @SUM S INNER JOIN VIEW_YS V ON V.KH_GYS_ID = S.KH_GYS_ID
              WHERE V.IS_OPENING = 0 AND V.BDATE >= @BDATE AND V.BDATE < @EDATE) R
        ORDER BY R.KH_GYS_ID, R.STEP, R.BDATE, R.mytype, R.NOID;
END
