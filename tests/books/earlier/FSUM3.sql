-- Lines of the income statement from @line1 to @line2 added up, by their line numbers. @kind 4, 5
-- and 1: the column of the year to date, any other: the month. A blank counts 0.
CREATE FUNCTION FSUM3 (@layout int, @kind int, @period nvarchar(7), @line1 int, @line2 int)
RETURNS decimal(18,2) AS
BEGIN
    RETURN (SELECT ISNULL(SUM(ISNULL(TRY_CONVERT(decimal(18,2),
                   CASE WHEN @kind IN (1, 4, 5) THEN A4 ELSE A3 END), 0.00)), 0.00)
            FROM D6832
            WHERE G = @layout AND A2 <> '' AND TRY_CONVERT(int, A2) >= @line1
              AND TRY_CONVERT(int, A2) <= @line2)
END
