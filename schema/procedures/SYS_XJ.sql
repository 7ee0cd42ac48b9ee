-- Money accounts from @BDATE up to, but not including, @EDATE; of one account or of all, also those
-- without movement. @PARAM 0: a row an account with opening, in, out and closing. @PARAM 1: per
-- account its opening row, then every movement with the running balance.
CREATE PROCEDURE SYS_XJ @PARAM int, @BDATE datetime, @EDATE datetime, @JY_ID nvarchar(2) = NULL AS
BEGIN
    SET NOCOUNT ON;
    IF @PARAM = 0
        SELECT A.JY_ID, A.JY_NAME, A.BEGIN_MONEY + ISNULL(M.QC, 0.00) AS QC,
               ISNULL(M.INMONEY, 0.00) AS INMONEY, ISNULL(M.OUTMONEY, 0.00) AS OUTMONEY,
               A.BEGIN_MONEY + ISNULL(M.QC, 0.00) + ISNULL(M.INMONEY, 0.00)
               - ISNULL(M.OUTMONEY, 0.00) AS YE
        FROM D1010 A
        LEFT JOIN (SELECT JY_ID,
                          SUM(CASE WHEN BDATE < @BDATE THEN INMONEY - OUTMONEY ELSE 0.00 END) AS QC,
                          SUM(CASE WHEN BDATE < @BDATE THEN 0.00 ELSE INMONEY END) AS INMONEY,
                          SUM(CASE WHEN BDATE < @BDATE THEN 0.00 ELSE OUTMONEY END) AS OUTMONEY
                   FROM VIEW_XJ WHERE BDATE < @EDATE GROUP BY JY_ID) M ON M.JY_ID = A.JY_ID
        WHERE A.JY_ID <> '0' AND (@JY_ID IS NULL OR A.JY_ID = @JY_ID)
        ORDER BY A.JY_ID;
    ELSE
        SELECT R.JY_ID, R.JY_NAME, R.BDATE, R.NOID, R.C, R.MNAME, R.ZY, R.KG_NAME,
               R.INMONEY, R.OUTMONEY,
               SUM(R.MOVED) OVER (PARTITION BY R.JY_ID ORDER BY R.STEP, R.BDATE, R.C, R.NOID
                                  ROWS UNBOUNDED PRECEDING) AS YE
        FROM (SELECT A.JY_ID, A.JY_NAME, 0 AS STEP, NULL AS BDATE, NULL AS NOID, NULL AS C,
                     '期初余额' AS MNAME, NULL AS ZY, NULL AS KG_NAME,
                     0.00 AS INMONEY, 0.00 AS OUTMONEY,
                     A.BEGIN_MONEY + ISNULL((SELECT SUM(X.INMONEY - X.OUTMONEY) FROM VIEW_XJ X
                                             WHERE X.JY_ID = A.JY_ID AND X.BDATE < @BDATE), 0.00)
                     AS MOVED
              FROM D1010 A
              WHERE A.JY_ID <> '0' AND (@JY_ID IS NULL OR A.JY_ID = @JY_ID)
              UNION ALL
              SELECT A.JY_ID, A.JY_NAME, 1, X.BDATE, X.NOID, X.C,
                     CASE X.C WHEN 10 THEN '销售收款' WHEN 11 THEN '预收款' WHEN 12 THEN '预收退款'
                              WHEN 13 THEN '销售退回' WHEN 20 THEN '采购付款' WHEN 21 THEN '预付款'
                              WHEN 22 THEN '预付退款' WHEN 24 THEN '采购退回'
                              WHEN 30 THEN '银行存取款单' WHEN 31 THEN '银行存取款单'
                              WHEN 40 THEN '收款结算' WHEN 50 THEN '费用结算' END,
                     X.ZY, X.KG_NAME, X.INMONEY, X.OUTMONEY, X.INMONEY - X.OUTMONEY
              FROM VIEW_XJ X INNER JOIN D1010 A ON A.JY_ID = X.JY_ID
              WHERE X.BDATE >= @BDATE AND X.BDATE < @EDATE AND A.JY_ID <> '0'
                AND (@JY_ID IS NULL OR A.JY_ID = @JY_ID)) R
        ORDER BY R.JY_ID, R.STEP, R.BDATE, R.C, R.NOID;
END
