-- For reclassification: of the accounts that take entries, below those a range of codes means, the
-- balances that lie on the debit side. @kind 0: at the end of the period; 1 (the period is a year's
-- month 00): at the beginning of the year.
CREATE FUNCTION FJF (@kind int, @period nvarchar(7), @first nvarchar(50), @last nvarchar(50))
RETURNS decimal(18,2) AS
BEGIN
    DECLARE @closing nvarchar(7);
    SET @closing = CASE @kind WHEN 1 THEN dbo.F6602_YEAR_BEGIN(LEFT(@period, 4)) ELSE @period END;
    RETURN (SELECT ISNULL(SUM(CASE WHEN T.E > 0 THEN T.E ELSE 0.00 END), 0.00)
            FROM (SELECT SUM(CASE B.INX WHEN 1 THEN B.J - B.D ELSE B.D - B.J END) AS E
                  FROM dbo.F6801_LEAVES(@first, @last) A
                  INNER JOIN D6602 B ON B.KM_ID = A.KM_ID
                         AND (B.INX = 1 AND B.QJ = @closing
                              OR B.INX = 0 AND @kind = 1 AND B.QJ = LEFT(@period, 4) + '-00')
                  GROUP BY A.KM_ID) T)
END
