-- Amounts of profit and loss accounts without what the carry-forward moved, added up over the
-- accounts that take entries (the opening of a year carries them on those only). @kind 2, 3: of
-- the period; 4, 5: from the year's opening to the period; debit, credit. 0 and 1 as FASC.
CREATE FUNCTION FSY (@kind int, @period nvarchar(7), @first nvarchar(50), @last nvarchar(50))
RETURNS decimal(18,2) AS
BEGIN
    IF @kind = 0 OR @kind = 1
        RETURN dbo.FASC(@kind, @period, @first, @last);
    RETURN (SELECT ISNULL(SUM(CASE WHEN @kind = 2 OR @kind = 4 THEN B.SY_J ELSE B.SY_D END), 0.00)
            FROM dbo.F6801_LEAVES(@first, @last) A
            INNER JOIN D6602 B ON B.KM_ID = A.KM_ID AND B.INX = 0 AND B.QJ <= @period
                   AND B.QJ >= CASE WHEN @kind = 2 OR @kind = 3 THEN @period
                                    ELSE LEFT(@period, 4) + '-00' END)
END
