-- A figure of the accounts a range of codes means. @kind 0: closing balance of the period. 1 (the
-- period is a year's month 00): balance at the beginning of the year. 2, 3: debit, credit turnover
-- of the period. 5, 6: of the accounts below them that take entries, the opening balances of the
-- period that lie on the debit, the credit side. A balance is signed on the side of the lowest
-- account meant. Nothing there is 0.00.
CREATE FUNCTION FASC (@kind int, @period nvarchar(7), @first nvarchar(50), @last nvarchar(50))
RETURNS decimal(18,2) AS
BEGIN
    IF @kind = 2 OR @kind = 3
        RETURN (SELECT ISNULL(SUM(CASE @kind WHEN 2 THEN B.J ELSE B.D END), 0.00)
                FROM dbo.F6801_MEANT(@first, @last) A
                INNER JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.QJ = @period AND B.INX = 0);
    DECLARE @side nvarchar(2), @closing nvarchar(7);
    SET @closing = CASE WHEN @kind = 0 THEN @period
                        WHEN @kind = 1 THEN dbo.F6602_YEAR_BEGIN(LEFT(@period, 4))
                        ELSE CONVERT(nvarchar(7), DATEADD(month, -1, @period + '-01'), 120) END;
    IF @kind = 5 OR @kind = 6
        RETURN (SELECT ISNULL(SUM(CASE WHEN @kind = 5 AND B.J > B.D THEN B.J - B.D
                                       WHEN @kind = 6 AND B.D > B.J THEN B.D - B.J
                                       ELSE 0.00 END), 0.00)
                FROM dbo.F6801_LEAVES(@first, @last) A
                INNER JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.INX = 1 AND B.QJ = @closing);
    SET @side = (SELECT TOP 1 S.FX FROM D6801 S
                 WHERE S.KM_ID >= @first AND S.KM_ID <= @last ORDER BY S.KM_ID);
    RETURN (SELECT ISNULL(SUM(CASE WHEN @side = '借' AND B.INX = 1 OR @side <> '借' AND B.INX = 0
                                   THEN B.J - B.D ELSE B.D - B.J END), 0.00)
            FROM dbo.F6801_MEANT(@first, @last) A
            INNER JOIN D6602 B ON B.KM_ID = A.KM_ID
                   AND (B.INX = 1 AND B.QJ = @closing
                        OR B.INX = 0 AND @kind = 1 AND B.QJ = LEFT(@period, 4) + '-00'))
END
